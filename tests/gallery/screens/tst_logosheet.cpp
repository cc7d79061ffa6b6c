// SPDX-License-Identifier: MIT
#include "gallery/screens/logosheet.h"
#include "testkit/testcase.h"

#include "gallery/data/clock.h"
#include "gallery/data/guidebuilder.h"

#include <QtCore/qset.h>
#include <QtGui/qimage.h>
#include <QtTest/qsignalspy.h>

using namespace gallery;

class TestLogoSheet : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void aChannelsCellHasItsInitialsOnItsPlate();
    void aCellShowsNothingOfItsNeighbours();
    void sixteenChannelsShareASheet();
    void aSheetIsDrawnOnce();
    void theLastSheetEndsWithTheLastChannel();
    void whatDoesNotExistHasNoSheet();
    void anotherGuideHasOtherSheets();
    void theSameGuideKeepsItsSheets();
    void anotherLookDrawsAnew();
    void aThousandChannelsStayWithinTheLimit();
    void aSheetThatHadToGoIsDrawnAgainAlike();
    void twoSheetsAreKeptHoweverLarge();
    void aChannelKeepsItsTintInAnyPlace();
    void tintsDifferInHueOnly();
    void initialsAreThoseOfTheName_data();
    void initialsAreThoseOfTheName();
    void initialsThatAreTooWideAreMadeSmaller();

private:
    void show(const QStringList &names);
    QImage cellOf(int channel) const;

    std::unique_ptr<Clock> m_clock;
    std::unique_ptr<ChannelsController> m_controller;
    std::unique_ptr<LogoSheet> m;
};

namespace {

Guide guideOf(const QStringList &names)
{
    GuideBuilder builder;
    for (const QString &name : names)
        builder.addChannel({ "id of " + name, name, {}, {} });
    return builder.take();
}

QStringList numbered(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(QStringLiteral("Name %1").arg(i));
    return names;
}

// Where the picture is not as its corner.
QRect painted(const QImage &image)
{
    QRect rect;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, 0))
                rect |= QRect(x, y, 1, 1);
        }
    }
    return rect;
}

} // namespace

void TestLogoSheet::init()
{
    TestCase::init();
    m_clock = std::make_unique<Clock>();
    m_controller = std::make_unique<ChannelsController>(m_clock.get());
    m = std::make_unique<LogoSheet>();
    m->setController(m_controller.get());
    m->setCellSize({ 90, 50 });
    m->setFont(QFont(QStringLiteral("DejaVu Sans")));
    m->setColor(Qt::white);
    m->setPlate(QColor(60, 90, 120));
}

void TestLogoSheet::cleanup()
{
    m.reset();
    m_controller.reset();
    m_clock.reset();
}

void TestLogoSheet::show(const QStringList &names)
{
    m_controller->setGuide(guideOf(names));
}

QImage TestLogoSheet::cellOf(int channel) const
{
    return m->canvas(channel).copy(m->cell(channel)).toImage();
}

void TestLogoSheet::aChannelsCellHasItsInitialsOnItsPlate()
{
    show({ "Alpha", "Beta" });
    const QImage cell = cellOf(1);
    QCOMPARE(cell.size(), QSize(90, 50));
    QCOMPARE(cell.pixel(0, 0), m->tint(m_controller->guide().channel(1)).rgb());
    const QRect text = painted(cell);
    QVERIFY(text.height() >= 12 && text.height() <= 25);
    QVERIFY(std::abs(text.center().x() - 45) <= 3);
    QVERIFY(text.top() > 14 && text.bottom() < 48); // below the number's corner
    QVERIFY(cell != cellOf(0));
}

void TestLogoSheet::aCellShowsNothingOfItsNeighbours()
{
    show({ "WWWW", "MMMM", "QQQQ" });
    for (int channel = 0; channel < 3; ++channel)
        QVERIFY(QRect(1, 1, 88, 48).contains(painted(cellOf(channel))));
}

void TestLogoSheet::sixteenChannelsShareASheet()
{
    show(numbered(40));
    QCOMPARE(m->canvas(0).cacheKey(), m->canvas(15).cacheKey());
    QVERIFY(m->canvas(15).cacheKey() != m->canvas(16).cacheKey());
    QCOMPARE(m->canvas(16).cacheKey(), m->canvas(31).cacheKey());
    QCOMPARE(m->cell(0), QRect(0, 0, 90, 50));
    QCOMPARE(m->cell(15), QRect(0, 750, 90, 50));
    QCOMPARE(m->cell(16), QRect(0, 0, 90, 50));
}

void TestLogoSheet::aSheetIsDrawnOnce()
{
    show(numbered(40));
    for (int round = 0; round < 3; ++round) {
        for (int channel = 0; channel < 40; ++channel)
            QVERIFY(!m->canvas(channel).isNull());
    }
    QCOMPARE(m->drawnSheets(), 3);
}

void TestLogoSheet::theLastSheetEndsWithTheLastChannel()
{
    show(numbered(19));
    QCOMPARE(m->canvas(0).size(), QSize(90, 800));
    QCOMPARE(m->canvas(18).size(), QSize(90, 150));
    for (const int channel : { 0, 15, 16, 18 })
        QVERIFY(m->canvas(channel).rect().contains(m->cell(channel)));
}

void TestLogoSheet::whatDoesNotExistHasNoSheet()
{
    QVERIFY(m->canvas(0).isNull());
    show(numbered(2));
    QVERIFY(m->canvas(-1).isNull());
    QVERIFY(m->canvas(2).isNull());
    QVERIFY(!m->cell(-1).isValid());
    m->setCellSize({ 0, 50 });
    QVERIFY(m->canvas(0).isNull());
    m->setCellSize({ 90, 50 });
    m_controller.reset();
    QVERIFY(m->canvas(0).isNull());
}

void TestLogoSheet::anotherGuideHasOtherSheets()
{
    show({ "Alpha" });
    const QImage before = cellOf(0);
    show({ "Beta" });
    QVERIFY(cellOf(0) != before);
    QCOMPARE(m->drawnSheets(), 2);
}

void TestLogoSheet::theSameGuideKeepsItsSheets()
{
    show(numbered(3));
    m->canvas(0);
    m_controller->setGuide(m_controller->guide());
    m->canvas(0);
    QCOMPARE(m->drawnSheets(), 1);
}

void TestLogoSheet::anotherLookDrawsAnew()
{
    show({ "Alpha" });
    QSignalSpy changes(m.get(), &LogoSheet::changed);
    QList<QImage> seen { cellOf(0) };
    const auto look = [&] {
        const QImage cell = cellOf(0);
        const bool isNew = !seen.contains(cell);
        seen.append(cell);
        return isNew;
    };
    m->setColor(Qt::yellow);
    QVERIFY(look());
    m->setPlate(QColor(20, 30, 40));
    QVERIFY(look());
    QFont bold(QStringLiteral("DejaVu Sans"));
    bold.setBold(true);
    m->setFont(bold);
    QVERIFY(look());
    m->setCellSize({ 120, 68 });
    QVERIFY(look());
    QCOMPARE(changes.count(), 4);
    m->setColor(Qt::yellow);
    QCOMPARE(changes.count(), 4);
}

void TestLogoSheet::aThousandChannelsStayWithinTheLimit()
{
    m->setCellSize({ 192, 108 });
    show(numbered(1000));
    for (int channel = 0; channel < 1000; ++channel) {
        QVERIFY(!m->canvas(channel).isNull());
        QVERIFY(m->usedKilobytes() <= LogoSheet::keptKilobytes);
    }
    QCOMPARE(m->drawnSheets(), 63);
    m->canvas(999);
    m->canvas(990);
    QCOMPARE(m->drawnSheets(), 63);
}

void TestLogoSheet::aSheetThatHadToGoIsDrawnAgainAlike()
{
    m->setCellSize({ 192, 108 });
    show(numbered(1000));
    const QImage before = cellOf(3);
    for (int channel = 0; channel < 1000; channel += LogoSheet::cellsPerSheet)
        m->canvas(channel);
    QCOMPARE(m->drawnSheets(), 63);
    QCOMPARE(cellOf(3), before);
    QCOMPARE(m->drawnSheets(), 64);
    QVERIFY(m->usedKilobytes() <= LogoSheet::keptKilobytes);
    m->canvas(0);
    QCOMPARE(m->drawnSheets(), 64);
}

void TestLogoSheet::twoSheetsAreKeptHoweverLarge()
{
    m->setCellSize({ 1000, 500 });
    show(numbered(32));
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(m->canvas(0).width(), 1000);
        QCOMPARE(m->canvas(16).width(), 1000);
    }
    QCOMPARE(m->drawnSheets(), 2);
}

void TestLogoSheet::aChannelKeepsItsTintInAnyPlace()
{
    show({ "Alpha", "Beta", "Gamma" });
    const QImage before = cellOf(2);
    show({ "Gamma", "Beta" });
    QCOMPARE(cellOf(0), before);
}

void TestLogoSheet::tintsDifferInHueOnly()
{
    show(numbered(100));
    QSet<QRgb> tints;
    for (int i = 0; i < 100; ++i) {
        const QColor tint = m->tint(m_controller->guide().channel(i));
        QVERIFY(std::abs(tint.lightnessF() - QColor(60, 90, 120).lightnessF()) < 0.01F);
        QVERIFY(std::abs(tint.hslSaturationF() - QColor(60, 90, 120).hslSaturationF()) < 0.02F);
        tints.insert(tint.rgb());
    }
    QCOMPARE(tints.size(), 9);
}

void TestLogoSheet::initialsAreThoseOfTheName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("initials");
    const auto row = [](const char *what, const char *name, const char *initials) {
        QTest::newRow(what) << QString::fromUtf8(name) << QString::fromUtf8(initials);
    };
    row("one word", "news", "N");
    row("two words", "Late films", "LF");
    row("three words", "The old radio", "TO");
    row("quality at the end", "News HD", "N");
    row("quality in brackets", "Late Films [4K]", "LF");
    row("nothing but quality", "HD", "HD");
    row("a number", "Channel 4", "C4");
    row("an abbreviation", "RT2", "RT2");
    row("an abbreviation and quality", "TVX1 HD", "TVX1");
    row("an abbreviation and a word", "TVX One", "TO");
    row("a long abbreviation", "TVABC", "T");
    row("one capital", "X", "X");
    row("only a number", "24", "24");
    row("small", "tv2", "T");
    row("signs between", "Art & Music", "AM");
    row("brackets", "(Test) Image", "I");
    row("only signs", "***", "*");
    row("blanks", "  Deep   sea ", "DS");
    row("Cyrillic", "первый канал", "ПК");
    row("Arabic", "قناة الأخبار", "ق\u200Cا");
    row("Arabic that does not join", "راديو الليل", "را");
    row("a letter with a mark", "e\u0301clair", "E\u0301");
    row("outside the first plane", "\U00010428ne \U0001042Ao", "\U00010400\U00010402");
    row("a face", "\U0001F600", "\U0001F600");
    row("empty", "", "");
}

void TestLogoSheet::initialsAreThoseOfTheName()
{
    QFETCH(QString, name);
    QTEST(channelInitials(name), "initials");
}

void TestLogoSheet::initialsThatAreTooWideAreMadeSmaller()
{
    m->setCellSize({ 40, 50 });
    show({ "WWWW" });
    const QRect text = painted(cellOf(0));
    QVERIFY2(text.left() >= 2 && text.right() <= 37, qPrintable(QString::number(text.width())));
}

STB_TEST_MAIN(TestLogoSheet)
#include "tst_logosheet.moc"
