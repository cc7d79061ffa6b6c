// SPDX-License-Identifier: MIT
#include "epgdatescene.h"
#include "epgtexts.h"
#include "testkit/counters.h"
#include "testkit/nodes.h"
#include "testkit/pictures.h"
#include "testkit/qmlscene.h"
#include "testkit/stage.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepgdate_p.h>

#include <QtTest/qsignalspy.h>

using stbtest::NodeInfo;
using StyleObject = design_system::PlayerEpgDateQmlStyle;

namespace {

struct Scene : EpgDateScene<stbtest::Stage>
{
    void fillAndPaint(const QDate &date = QDate(2026, 3, 15))
    {
        fill(date);
        stage.renderFrame();
    }
    StbEpgDatePrivate *d() { return static_cast<StbEpgDatePrivate *>(QQuickItemPrivate::get(&cell)); }
    QList<NodeInfo> children() { return stbtest::childNodes(stbtest::paintNode(&cell)); }
    static QRect onStage(const NodeInfo &node) { return node.rect.toRect().translated(20, 30); }
};

QSize monthSize(const QString &text, int width = 151)
{
    return textExtent(oddEpgDateStyle().monthStyle, text, width).size();
}
QSize daySize(const QString &text, int width = 151)
{
    return textExtent(oddEpgDateStyle().dayStyle, text, width).size();
}

} // namespace

class tst_StbEpgDate : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFreshCellHasTheDefaults()
    {
        const StbEpgDate cell;
        QVERIFY(!cell.style());
        QVERIFY(cell.date().isNull());
        QVERIFY(cell.isActive());
        QVERIFY(cell.flags() & QQuickItem::ItemHasContents);
        QCOMPARE(cell.size(), QSizeF(0, 0));
    }

    void everyPropertyStoresSignalsOnceAndAsksForAFrame_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("date") << QByteArray("dateChanged") << QVariant(QDate(2026, 4, 1));
        QTest::newRow("isActive") << QByteArray("activeChanged") << QVariant(false);
    }
    void everyPropertyStoresSignalsOnceAndAsksForAFrame()
    {
        QFETCH(QByteArray, signal);
        QFETCH(QVariant, value);
        Scene scene;
        scene.fillAndPaint();
        const QMetaObject *meta = scene.cell.metaObject();
        const char *name = QTest::currentDataTag();
        QCOMPARE(meta->property(meta->indexOfProperty(name)).notifySignal().name(), signal);
        QSignalSpy style(&scene.cell, &StbEpgDate::styleChanged);
        QSignalSpy date(&scene.cell, &StbEpgDate::dateChanged);
        QSignalSpy active(&scene.cell, &StbEpgDate::activeChanged);
        const auto emitted = [&] { return QList<qsizetype> { style.count(), date.count(), active.count() }; };
        const QList<qsizetype> expected { 0, signal == "dateChanged", signal == "activeChanged" };
        QVERIFY(!scene.stage.wantsFrame());
        QVERIFY(scene.cell.setProperty(name, value));
        QCOMPARE(emitted(), expected);
        QCOMPARE(scene.cell.property(name), value);
        QVERIFY(scene.stage.wantsFrame());

        scene.stage.renderFrame();
        QVERIFY(scene.cell.setProperty(name, value));
        QCOMPARE(emitted(), expected);
        QVERIFY(!scene.stage.wantsFrame());
    }

    void theStyleIsStoredSignalledAndResettable()
    {
        Scene scene;
        QSignalSpy changed(&scene.cell, &StbEpgDate::styleChanged);
        scene.cell.setStyle(&scene.style);
        scene.cell.setStyle(&scene.style);
        QCOMPARE(changed.count(), 1);
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        const QMetaObject *meta = scene.cell.metaObject();
        const QMetaProperty property = meta->property(meta->indexOfProperty("style"));
        QCOMPARE(property.notifySignal().name(), QByteArray("styleChanged"));
        QVERIFY(property.isResettable());
        QVERIFY(property.reset(&scene.cell));
        QVERIFY(!scene.cell.style());
        QCOMPARE(changed.count(), 2);
        QVERIFY(scene.stage.wantsFrame());
    }

    void aStyleThatDiesCountsAsNullAndOneThatWasReplacedDiesUnnoticed()
    {
        Scene scene;
        scene.fill();
        auto former = std::make_unique<StyleObject>();
        auto style = std::make_unique<StyleObject>();
        scene.cell.setStyle(former.get());
        scene.cell.setStyle(style.get());
        scene.stage.renderFrame();
        QSignalSpy changed(&scene.cell, &StbEpgDate::styleChanged);
        former.reset();
        QCOMPARE(changed.count(), 0);
        style.reset();
        QCOMPARE(changed.count(), 1);
        QVERIFY(!scene.cell.style());
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(&scene.cell));
    }

    void aStyleLeavesTheTextsAlone()
    {
        Scene scene;
        scene.fill();
        const DefaultLocale locale(QLocale("de_DE"));
        scene.cell.setStyle(&scene.other);
        QCOMPARE(scene.d()->m_month.text(), "Mar"); // of the locale there was when the date was set
    }

    void theSignalComesBeforeTheTexts()
    {
        Scene scene;
        scene.fill();
        QDate seen;
        QString day;
        connect(&scene.cell, &StbEpgDate::dateChanged, this, [&] {
            seen = scene.cell.date();
            day = scene.d()->m_day.text();
        });
        scene.cell.setDate(QDate(2026, 3, 16));
        QCOMPARE(seen, QDate(2026, 3, 16));
        QCOMPARE(day, "15");
        QCOMPARE(scene.d()->m_day.text(), "16");
    }

    void theTextsAreTheLocales_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QString>("month");
        QTest::addColumn<QString>("day");
        const QDate date(2026, 9, 15);
        const auto shortName = [](const QLocale &locale) {
            return locale.standaloneMonthName(9, QLocale::ShortFormat);
        };
        const QLocale ukraine(QLocale::Russian, QLocale::Ukraine);
        const QLocale arabic("ar_EG");
        QTest::newRow("C") << QLocale::c() << date << "Sep"
                           << "15";
        QTest::newRow("no leading zero") << QLocale::c() << QDate(2026, 12, 3) << "Dec"
                                         << "3";
        QTest::newRow("ru_RU: in full") << QLocale("ru_RU") << date << QString::fromUtf8("сентябрь") << "15";
        QTest::newRow("ru_RU in March")
                << QLocale("ru_RU") << QDate(2026, 3, 15) << QString::fromUtf8("март") << "15";
        QTest::newRow("ru_UA: short like any other") << ukraine << date << shortName(ukraine) << "15";
        QTest::newRow("de_DE") << QLocale("de_DE") << date << shortName(QLocale("de_DE")) << "15";
        QTest::newRow("ar_EG: western digits") << arabic << date << shortName(arabic) << "15";
    }
    void theTextsAreTheLocales()
    {
        QFETCH(QLocale, locale);
        QFETCH(QDate, date);
        const DefaultLocale scope(locale);
        Scene scene;
        scene.cell.setDate(date);
        QTEST(scene.d()->m_month.text(), "month");
        QTEST(scene.d()->m_day.text(), "day");
    }

    void theLongAndTheShortNameDiffer()
    {
        // Without this the rows above could not tell one from the other.
        const QLocale russian("ru_RU");
        const QLocale ukraine(QLocale::Russian, QLocale::Ukraine);
        QVERIFY(ukraine.name() != russian.name());
        QVERIFY(russian.standaloneMonthName(9, QLocale::ShortFormat)
                != russian.standaloneMonthName(9, QLocale::LongFormat));
        QVERIFY(ukraine.standaloneMonthName(9, QLocale::ShortFormat)
                != ukraine.standaloneMonthName(9, QLocale::LongFormat));
        QVERIFY(russian.monthName(9, QLocale::LongFormat)
                != russian.standaloneMonthName(9, QLocale::LongFormat));
    }

    void anInvalidDateHasNoTexts()
    {
        Scene scene;
        scene.fill();
        scene.cell.setDate(QDate(2026, 2, 30));
        QVERIFY(!scene.cell.date().isValid());
        QCOMPARE(scene.d()->m_month.text(), QString());
        QCOMPARE(scene.d()->m_day.text(), QString());
    }

    void aDateComesFromQml()
    {
        stbtest::QmlScene qml;
        const auto item = qml.createItem<StbEpgDate>(
                "import Stbui.UI.Qml.Controls.Basic\nEpgDate { date: new Date(2026, 2, 5); isActive: false }");
        QVERIFY(item);
        QCOMPARE(item->date(), QDate(2026, 3, 5));
        QVERIFY(!item->isActive());
    }

    void withoutStyleDateOrSizeNothingIsPainted_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("no style") << QByteArray("style") << QVariant::fromValue<StyleObject *>(nullptr);
        QTest::newRow("a null date") << QByteArray("date") << QVariant(QDate());
        QTest::newRow("an impossible date") << QByteArray("date") << QVariant(QDate(2026, 2, 30));
        QTest::newRow("no width") << QByteArray("width") << QVariant(0);
        QTest::newRow("no height") << QByteArray("height") << QVariant(0);
        QTest::newRow("negative width") << QByteArray("width") << QVariant(-1);
        QTest::newRow("negative height") << QByteArray("height") << QVariant(-1);
    }
    void withoutStyleDateOrSizeNothingIsPainted()
    {
        QFETCH(QByteArray, property);
        QFETCH(QVariant, value);
        Scene scene;
        scene.stage.renderFrame();
        const QImage ground = scene.stage.picture();
        scene.fillAndPaint();
        const QImage painted = scene.stage.picture();
        QVERIFY(painted != ground);
        const QVariant before = scene.cell.property(property);
        QVERIFY(scene.cell.setProperty(property, value));
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(&scene.cell));
        QCOMPARE(scene.stage.picture(), ground);
        QVERIFY(scene.cell.setProperty(property, before)); // and everything is there again
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), painted);
    }

    void theRootOnlyHoldsMonthAndDay()
    {
        Scene scene;
        scene.fillAndPaint();
        scene.cell.setSize(QSizeF(161, 81));
        scene.stage.renderFrame();
        const NodeInfo root = stbtest::nodeTree(stbtest::paintNode(&scene.cell)).first();
        QCOMPARE(root.type, "Rectangle");
        QCOMPARE(root.color, QColor(Qt::transparent));
        QCOMPARE(root.rect, QRectF()); // never set
        QCOMPARE(scene.children().size(), 2);
        for (const NodeInfo &node : scene.children())
            QCOMPARE(node.type, "Image");
        QVERIFY(isInkOf(scene.children()[0].pixmap, QColor(151, 163, 173)));
        QVERIFY(isInkOf(scene.children()[1].pixmap, QColor(91, 191, 241)));
    }

    void theDayBeginsOnTheMonthsLastPixelRow()
    {
        Scene scene;
        scene.fillAndPaint();
        QCOMPARE(scene.children()[0].rect, QRectF(QPointF(0, 0), monthSize("Mar")));
        QCOMPARE(scene.children()[1].rect, QRectF(QPointF(0, monthSize("Mar").height() - 1), daySize("15")));
    }

    void theColourOfTheDayTellsTheChosenOne()
    {
        Scene scene;
        scene.fillAndPaint();
        const QList<NodeInfo> active = scene.children();
        QVERIFY(isInkOf(active[1].pixmap, QColor(91, 191, 241)));
        scene.cell.setActive(false);
        QCOMPARE(scene.stage.renderFrame(), QRegion(Scene::onStage(active[1])));
        const QList<NodeInfo> inactive = scene.children();
        QVERIFY(isInkOf(inactive[1].pixmap, QColor(251, 249, 231)));
        for (int i = 0; i < 2; ++i)
            QCOMPARE(inactive[i].rect, active[i].rect);
        QCOMPARE(inactive[0].pixmap.cacheKey(), active[0].pixmap.cacheKey());
    }

    void aTextOfAnotherSizeIsPlacedAgain()
    {
        Scene scene;
        const DefaultLocale locale(QLocale("ru_RU"));
        scene.fillAndPaint(QDate(2026, 3, 31));
        scene.cell.setDate(QDate(2026, 9, 1));
        scene.stage.renderFrame();
        const QString month = QString::fromUtf8("сентябрь");
        QCOMPARE(scene.children()[0].rect, QRectF(QPointF(0, 0), monthSize(month)));
        QCOMPARE(scene.children()[1].rect, QRectF(QPointF(0, monthSize(month).height() - 1), daySize("1")));
        Scene fresh;
        fresh.fillAndPaint(QDate(2026, 9, 1));
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
    }

    void aDateThatBecomesInvalidAndValidAgainLeavesNothingBehind()
    {
        Scene scene;
        scene.fillAndPaint(QDate(2026, 9, 30));
        scene.cell.setDate(QDate());
        scene.cell.setDate(QDate(2026, 3, 1)); // within a frame
        scene.stage.renderFrame();
        Scene fresh;
        fresh.fillAndPaint(QDate(2026, 3, 1));
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
        scene.cell.setDate(QDate());
        scene.stage.renderFrame();
        scene.cell.setDate(QDate(2026, 3, 1));
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
    }

    // On purpose: the renderers are set up when the nodes are made.
    void anotherStyleChangesTheColoursOnlyWhileSomethingIsPainted()
    {
        Scene scene;
        scene.fillAndPaint();
        const QList<NodeInfo> before = scene.children();
        scene.cell.setStyle(&scene.other);
        scene.stage.renderFrame();
        for (int i = 0; i < 2; ++i)
            QCOMPARE(scene.children()[i].rect, before[i].rect);
        QVERIFY(isInkOf(scene.children()[0].pixmap, QColor(241, 91, 41)));
        QVERIFY(isInkOf(scene.children()[1].pixmap, QColor(201, 251, 131)));
        scene.cell.setActive(false);
        scene.stage.renderFrame();
        QVERIFY(isInkOf(scene.children()[1].pixmap, QColor(243, 143, 203)));
    }

    void anotherWidthReachesTheTextsWhenTheCellBeginsAnew()
    {
        Scene scene;
        scene.cell.setWidth(25.9);
        scene.fillAndPaint();
        QCOMPARE(scene.children()[0].rect.size(), QSizeF(monthSize("Mar", 25)));
        QVERIFY(monthSize("Mar", 25) != monthSize("Mar"));
        scene.cell.setWidth(151);
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[0].rect.size(), QSizeF(monthSize("Mar", 25)));
        scene.cell.resetStyle();
        scene.stage.renderFrame();
        scene.cell.setStyle(&scene.style);
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[0].rect.size(), QSizeF(monthSize("Mar")));
    }

    void aCellNarrowerThanAPixelShowsNoTextAndNoHole()
    {
        Scene scene;
        scene.stage.renderFrame();
        const QImage ground = scene.stage.picture();
        scene.cell.setWidth(0.9);
        scene.fillAndPaint();
        QCOMPARE(scene.stage.picture(), ground);
    }

    void aCellThatBeginsAnewTakesTheStyleOverWhole_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("lost");
        QTest::newRow("no style") << QByteArray("style") << QVariant::fromValue<StyleObject *>(nullptr);
        QTest::newRow("no date") << QByteArray("date") << QVariant(QDate());
        QTest::newRow("no width") << QByteArray("width") << QVariant(0);
        QTest::newRow("no height") << QByteArray("height") << QVariant(0);
    }
    void aCellThatBeginsAnewTakesTheStyleOverWhole()
    {
        QFETCH(QByteArray, property);
        QFETCH(QVariant, lost);
        Scene fresh;
        fresh.fill();
        fresh.cell.setStyle(&fresh.other);
        fresh.stage.renderFrame();
        Scene scene;
        scene.fillAndPaint();
        const QVariant value = scene.cell.property(property);
        QVERIFY(scene.cell.setProperty(property, lost));
        scene.stage.renderFrame();
        QVERIFY(scene.cell.setProperty(property, value));
        scene.cell.setStyle(&scene.other);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
    }

    void anotherWindowShowsTheSamePicture()
    {
        Scene scene;
        scene.fillAndPaint();
        const QImage painted = scene.stage.picture();
        stbtest::Stage other(scene.stage.size(), QColor(0, 60, 40));
        scene.cell.setParentItem(other.contentItem());
        other.renderFrame();
        QCOMPARE(other.picture(), painted);
        scene.stage.renderFrame();
        scene.cell.setParentItem(scene.stage.contentItem());
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), painted);
    }

    void anUpdateThatChangesNothingPaintsNothing()
    {
        Scene scene;
        scene.fillAndPaint();
        scene.cell.update();
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        scene.cell.setSize(QSizeF(160, 80));
        QCOMPARE(scene.stage.renderFrame(), QRegion());
    }

    void anotherDayOfTheSameMonthPaintsTheDayOnly()
    {
        Scene scene;
        scene.fillAndPaint();
        const QRegion before(Scene::onStage(scene.children()[1]));
        scene.cell.setDate(QDate(2026, 3, 1));
        const QRegion painted = scene.stage.renderFrame();
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted.subtracted(before.united(Scene::onStage(scene.children()[1]))), QRegion());
    }

    void oneCellIsOneObjectOneItemAndThreeNodes()
    {
        Scene scene;
        scene.fillAndPaint();
        QCOMPARE(stbtest::objectCount(&scene.cell), 1);
        QCOMPARE(stbtest::itemCount(&scene.cell), 1);
        QCOMPARE(stbtest::nodeCount(stbtest::paintNode(&scene.cell)), 3);
    }

    void everyTextIsLaidOutOnce()
    {
        Scene scene;
        QCOMPARE(stbtest::textsLaidOut([&] { scene.fillAndPaint(QDate(2026, 7, 27)); }), 2);
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.cell.setActive(false);
                     scene.cell.setSize(QSizeF(155, 75));
                     scene.stage.renderFrame();
                     scene.cell.resetStyle();
                     scene.stage.renderFrame();
                     scene.cell.setWidth(151);
                     scene.cell.setStyle(&scene.style);
                     scene.stage.renderFrame();
                 }),
                 0);
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.cell.setDate(QDate(2026, 7, 28)); // the month stays
                     scene.stage.renderFrame();
                 }),
                 1);
    }

    void itLooksLikeItsPictures_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<bool>("active");
        QTest::newRow("active") << "en_GB" << true;
        QTest::newRow("inactive") << "en_GB" << false;
        QTest::newRow("russian") << "ru_RU" << true;
    }
    void itLooksLikeItsPictures()
    {
        QFETCH(QString, locale);
        QFETCH(bool, active);
        const DefaultLocale scope { QLocale(locale) };
        Scene scene;
        scene.cell.setActive(active);
        scene.fillAndPaint(QDate(2026, 8, 25));
        STB_COMPARE_GOLDEN(scene.stage.picture(), QStringLiteral("epgdate-") + QTest::currentDataTag(),
                           { 24, 60, "glyph edges differ a little between font rasterizers' versions" });
    }
};

STB_TEST_MAIN(tst_StbEpgDate)
#include "tst_stbepgdate.moc"
