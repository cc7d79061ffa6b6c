// SPDX-License-Identifier: MIT
#include "testkit/propertywalk.h"
#include "testkit/testcase.h"
#include "toyitem.h"

#include <QtCore/qrandom.h>
#include <QtCore/qregularexpression.h>

using stbtest::PropertyWalk;

class ColorStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QColor color MEMBER m_color)
public:
    explicit ColorStyle(const QColor &color)
        : m_color(color)
    {
    }

private:
    QColor m_color;
};

class tst_PropertyWalk : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init();

    void aFaultlessItemPasses();
    void theSameSeedMakesTheSameWalk();
    void anotherSeedMakesAnotherWalk();
    void aForgottenUpdateIsCaught();
    void aStalePictureIsCaught();
    void aPictureLostInAnotherWindowIsCaught();
    void aDependenceOnTheOrderIsCaught();
    void anUpdateThatPaintsForNothingIsCaught();
    void anUpdateMayPaintForNothingWithAReason();
    void aComparedPropertyThatDiffersIsCaught();
    void anExcludedPropertyIsLeftAlone();
    void aPropertySetOnceKeepsItsValue();
    void theReportShowsTheShortestWayThere();
    void aGeneratorIsAskedForValues();
    void settleIsCalledBeforeEachLook();
    void anUndeclaredPropertyIsAnError();
    void anUnknownPropertyIsAnError();
    void anExclusionNeedsAReason();
    void aValueOfTheWrongTypeIsAnError();
    void anItemThatIsNeverSeenIsAnError();
    void aToleranceNeedsAReason();
    void theCommandLineOptionsAreTaken_data();
    void theCommandLineOptionsAreTaken();

private:
    QString walk(ToyItem::Mistake mistake);
    void declare(PropertyWalk &walk);

    ColorStyle m_blue { QColor(0, 0, 255) };
    ColorStyle m_brown { QColor(99, 66, 33) };
};

namespace {

PropertyWalk::Factory toy(ToyItem::Mistake mistake = ToyItem::NoMistake)
{
    return [mistake] {
        auto item = std::make_unique<ToyItem>(mistake);
        item->setHeight(17);
        return item;
    };
}

const QVariantList colors = { QColor(Qt::red), QColor(Qt::green), QColor(1, 2, 3), QColor(9, 8, 7, 120) };

} // namespace

void tst_PropertyWalk::init()
{
    TestCase::init();
    int argc = 1;
    char name[] = "tst";
    char *argv[] = { name, nullptr };
    QVERIFY(stbtest::takeRandomOptions(argc, argv)); // whatever the command line said
}

void tst_PropertyWalk::declare(PropertyWalk &walk)
{
    walk.property("color", colors)
            .property("pictureColor", { QColor(Qt::yellow), QColor(Qt::transparent), QColor(Qt::cyan) })
            .property("pictureX", { 3, 11, -2, 90 })
            .property("style", { QVariant::fromValue<QObject *>(&m_blue),
                                 QVariant::fromValue<QObject *>(&m_brown), QVariant(), QVariant() });
}

QString tst_PropertyWalk::walk(ToyItem::Mistake mistake)
{
    PropertyWalk walk(toy(mistake));
    declare(walk);
    return walk.run();
}

void tst_PropertyWalk::aFaultlessItemPasses()
{
    PropertyWalk walk(toy());
    declare(walk);
    walk.property("height", { 17, 40, 0, 17 });
    QCOMPARE(walk.run(), QString());
    QCOMPARE(walk.stepsMade(), 200);
    QVERIFY2(walk.stepsPainted() > 50, qPrintable(QString::number(walk.stepsPainted())));
}

void tst_PropertyWalk::theSameSeedMakesTheSameWalk()
{
    const QString first = walk(ToyItem::NoUpdateOnColor);
    QVERIFY(!first.isEmpty());
    QCOMPARE(walk(ToyItem::NoUpdateOnColor), first);
}

void tst_PropertyWalk::anotherSeedMakesAnotherWalk()
{
    PropertyWalk other(toy(ToyItem::NoUpdateOnColor));
    declare(other);
    other.seed(4711);
    const QString report = other.run();
    QVERIFY2(report.contains(QLatin1String("--seed 4711")), qPrintable(report));
    QVERIFY(report != walk(ToyItem::NoUpdateOnColor));
}

void tst_PropertyWalk::aForgottenUpdateIsCaught()
{
    const QString report = walk(ToyItem::NoUpdateOnColor);
    QVERIFY2(report.contains(QLatin1String("the picture is not that of a fresh item")), qPrintable(report));
}

void tst_PropertyWalk::aStalePictureIsCaught()
{
    const QString report = walk(ToyItem::StalePicture);
    QVERIFY2(report.contains(QLatin1String("its nodes differ as well")), qPrintable(report));
}

void tst_PropertyWalk::aPictureLostInAnotherWindowIsCaught()
{
    const QString report = walk(ToyItem::StaleAfterWindow);
    QVERIFY2(report.contains(QLatin1String("window = QVariant(int, ")), qPrintable(report));
}

void tst_PropertyWalk::aDependenceOnTheOrderIsCaught()
{
    const QString report = walk(ToyItem::WrongPictureOrder);
    QVERIFY2(report.contains(QLatin1String("the picture is not that of a fresh item")), qPrintable(report));
}

void tst_PropertyWalk::anUpdateThatPaintsForNothingIsCaught()
{
    const QString report = walk(ToyItem::AlwaysDirty);
    QVERIFY2(report.contains(QLatin1String("an update that changed nothing painted")), qPrintable(report));
}

void tst_PropertyWalk::anUpdateMayPaintForNothingWithAReason()
{
    PropertyWalk walk(toy(ToyItem::AlwaysDirty));
    declare(walk);
    walk.updatesMayPaint(QStringLiteral("the toy paints with each update on purpose"));
    QCOMPARE(walk.run(), QString());

    walk.updatesMayPaint(QString());
    QCOMPARE(walk.run(), QStringLiteral("updates may paint without a reason"));
}

void tst_PropertyWalk::aComparedPropertyThatDiffersIsCaught()
{
    PropertyWalk walk([made = 0]() mutable {
        auto item = std::make_unique<ToyItem>();
        item->setSize(QSizeF(20, 11));
        item->setObjectName(QString::number(made++));
        return item;
    });
    declare(walk);
    walk.comparedProperty("objectName");
    const QString report = walk.run();
    QVERIFY2(report.contains(QLatin1String("objectName = QVariant(QString, ")), qPrintable(report));
}

void tst_PropertyWalk::anExcludedPropertyIsLeftAlone()
{
    PropertyWalk walk(toy(ToyItem::StalePicture));
    declare(walk);
    walk.exclude("pictureColor", QStringLiteral("the first picture stays"));
    QCOMPARE(walk.run(), QString());
}

void tst_PropertyWalk::aPropertySetOnceKeepsItsValue()
{
    PropertyWalk walk(toy(ToyItem::StalePicture));
    declare(walk);
    walk.once("pictureColor", QColor(Qt::yellow), QStringLiteral("the first picture stays"));
    QCOMPARE(walk.run(), QString());
}

void tst_PropertyWalk::theReportShowsTheShortestWayThere()
{
    const QString report = walk(ToyItem::NoUpdateOnColor);
    static const QRegularExpression change(QStringLiteral(" = QVariant\\("));
    static const QRegularExpression file(QStringLiteral("actual: +([^\n]+\\.png)"));
    const int changes = int(report.count(change));
    QVERIFY2(changes >= 2 && changes <= 4, qPrintable(report)); // a width, a frame, a colour and luck
    const QImage saved(file.match(report).captured(1));
    QCOMPARE(saved.size(), QSize(320, 200));
}

void tst_PropertyWalk::aGeneratorIsAskedForValues()
{
    int asked = 0;
    PropertyWalk walk(toy());
    declare(walk);
    walk.property("pictureX", [&asked](QRandomGenerator &random) {
        ++asked;
        return QVariant(random.bounded(50));
    });
    QCOMPARE(walk.run(), QString());
    QVERIFY(asked > 10);
}

void tst_PropertyWalk::settleIsCalledBeforeEachLook()
{
    PropertyWalk walk(toy(ToyItem::NoUpdateOnColor));
    declare(walk);
    walk.settle([](QQuickItem *item) { item->update(); });
    QCOMPARE(walk.run(), QString());
}

void tst_PropertyWalk::anUndeclaredPropertyIsAnError()
{
    PropertyWalk walk(toy());
    walk.property("color", colors)
            .property("pictureX", { 1 })
            .exclude("style", QStringLiteral("no style here"));
    QCOMPARE(walk.run(),
             QStringLiteral("the property pictureColor is neither walked nor set once nor excluded"));
}

void tst_PropertyWalk::anUnknownPropertyIsAnError()
{
    PropertyWalk walk(toy());
    declare(walk);
    walk.exclude("pictureZ", QStringLiteral("it is flat"));
    QCOMPARE(walk.run(), QStringLiteral("there is no property pictureZ"));
}

void tst_PropertyWalk::anExclusionNeedsAReason()
{
    PropertyWalk walk(toy());
    declare(walk);
    walk.exclude("color", QString());
    QCOMPARE(walk.run(), QStringLiteral("color is excluded without a reason"));
}

void tst_PropertyWalk::aValueOfTheWrongTypeIsAnError()
{
    PropertyWalk walk(toy());
    declare(walk);
    walk.property("pictureX", { QVariant(QByteArrayLiteral("wide")) });
    const QString report = walk.run();
    QVERIFY2(report.contains(QLatin1String("cannot be set: pictureX")), qPrintable(report));
}

void tst_PropertyWalk::anItemThatIsNeverSeenIsAnError()
{
    PropertyWalk walk([] { return std::make_unique<ToyItem>(); });
    declare(walk);
    walk.steps(30); // no height
    QCOMPARE(walk.run(), QStringLiteral("the item was never seen in 30 steps"));
}

void tst_PropertyWalk::aToleranceNeedsAReason()
{
    PropertyWalk walk(toy());
    declare(walk);
    walk.tolerance({ 0, 5, nullptr });
    QCOMPARE(walk.run(), QStringLiteral("a tolerance needs its reason"));
}

void tst_PropertyWalk::theCommandLineOptionsAreTaken_data()
{
    QTest::addColumn<QByteArrayList>("arguments");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QByteArrayList>("left");
    QTest::addColumn<int>("seed");
    QTest::addColumn<int>("steps");
    QTest::newRow("none") << QByteArrayList { "-v2" } << true << QByteArrayList { "-v2" } << -1 << -1;
    QTest::newRow("seed") << QByteArrayList { "--seed", "77", "-v2" } << true << QByteArrayList { "-v2" }
                          << 77 << -1;
    QTest::newRow("both") << QByteArrayList { "walk", "--steps", "13", "--seed", "0" } << true
                          << QByteArrayList { "walk" } << 0 << 13;
    QTest::newRow("no number") << QByteArrayList { "--seed" } << false << QByteArrayList() << -1 << -1;
    QTest::newRow("not a number") << QByteArrayList { "--steps", "many" } << false << QByteArrayList() << -1
                                  << -1;
}

void tst_PropertyWalk::theCommandLineOptionsAreTaken()
{
    QFETCH(QByteArrayList, arguments);
    QFETCH(bool, ok);
    QFETCH(QByteArrayList, left);
    QFETCH(int, seed);
    QFETCH(int, steps);
    arguments.prepend("tst");
    QList<char *> argv;
    for (QByteArray &argument : arguments)
        argv.append(argument.data());
    argv.append(nullptr);
    int argc = int(arguments.size());
    QCOMPARE(stbtest::takeRandomOptions(argc, argv.data()), ok);
    const stbtest::RandomOptions options = stbtest::randomOptions();
    QCOMPARE(options.seed ? int(*options.seed) : -1, seed);
    QCOMPARE(options.steps.value_or(-1), steps);
    if (!ok)
        return;
    QCOMPARE(argc, 1 + int(left.size()));
    for (int i = 1; i < argc; ++i)
        QCOMPARE(QByteArray(argv.at(i)), left.at(i - 1));
}

STB_TEST_MAIN(tst_PropertyWalk)
#include "tst_propertywalk.moc"
