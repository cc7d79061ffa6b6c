// SPDX-License-Identifier: MIT
#include "epgdatescene.h"
#include "epgtexts.h"
#include "testkit/counters.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

using stbtest::NodeInfo;
using Scene = OffscreenEpgDateScene;
using StyleObject = design_system::PlayerEpgDateQmlStyle;

namespace {

QSize monthSize(const QString &text, int width = 151)
{
    return textExtent(oddEpgDateStyle().monthStyle, text, width).size();
}
QSize daySize(const QString &text, int width = 151)
{
    return textExtent(oddEpgDateStyle().dayStyle, text, width).size();
}

} // namespace

class tst_StbEpgDatePaint : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
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

STB_TEST_MAIN(tst_StbEpgDatePaint)
#include "tst_stbepgdatepaint.moc"
