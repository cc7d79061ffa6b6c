// SPDX-License-Identifier: MIT
#include "captionscene.h"
#include "testkit/counters.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <controls/tiles/stbcontenttile.h>
#include <controls/tiles/stbcontenttile_p.h>

using stbtest::NodeInfo;

namespace {

constexpr int spacing = 7;

const stbtest::Tolerance sameGlyphs { 24, 60,
                                      "glyph edges differ a little between font rasterizers' versions" };

// A whole tile, complete, so that its focus animation runs.
struct Scene : QmlCaptionScene<StbContentTile>
{
    explicit Scene(const QString &content = {})
        : QmlCaptionScene("ContentTile", "itemTitle: 'Rivers'; itemSubtitle: 'Part three'; itemStatus: 'New';"
                                         "itemIsFavourite: true;"
                                                 + content)
    {
    }
    QList<NodeInfo> all() { return stbtest::childNodes(stbtest::paintNode(tile.get())); }
    // Icon, title, subtitle and status.
    QList<NodeInfo> caption() { return all().mid(all().size() - 4); }
    StbContentTilePrivate *d()
    {
        return static_cast<StbContentTilePrivate *>(QQuickItemPrivate::get(tile.get()));
    }
    void moveTo(double progress) { d()->m_focusTimeLine.setCurrentTime(qRound(1000 * progress)); }
};

QRegion areaOf(const QList<NodeInfo> &nodes)
{
    QRegion area;
    for (const NodeInfo &node : nodes)
        area += onStage(node);
    return area;
}

} // namespace

class tst_StbContentTilePaint : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theCaptionFollowsThePictureToTheEndOfTheAnimation_data()
    {
        QTest::addColumn<double>("progress");
        QTest::newRow("resting") << 0.;
        QTest::newRow("half-way") << 0.5;
        QTest::newRow("focused") << 1.;
    }
    void theCaptionFollowsThePictureToTheEndOfTheAnimation()
    {
        QFETCH(double, progress);
        Scene scene;
        scene.stage.renderFrame();
        const QList<NodeInfo> resting = scene.caption();
        holdFocusAnimation(scene.tile.get(), progress);
        scene.stage.renderFrame();
        const QList<NodeInfo> moved = scene.caption();
        const int down = scene.tile->customFocusRect().bottom() - 112;
        QVERIFY(qAbs(down - 31 * progress) < 1); // the focused picture sticks out by 31 below
        QCOMPARE(moved[1].rect.top(), 112 + down + spacing);
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(moved[i].node, resting[i].node);
            QCOMPARE(moved[i].rect, resting[i].rect.translated(0, down));
        }
        if (progress == 1.)
            QCOMPARE(moved[1].rect.top(), oddTileStyle().focusedRect.bottom() + spacing);
    }

    void theMovingCaptionLeavesNoTrail()
    {
        Scene scene;
        scene.stage.renderFrame();
        const QImage resting = scene.stage.picture();
        holdFocusAnimation(scene.tile.get(), 0);
        for (int step = 0; step <= 20; ++step) {
            scene.moveTo(step / 20.);
            scene.stage.renderFrame();
            QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
        }
        QVERIFY(scene.stage.picture() != resting);
        for (int step = 20; step >= 0; --step) {
            scene.moveTo(step / 20.);
            scene.stage.renderFrame();
            QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
        }
        QCOMPARE(scene.stage.picture(), resting);
    }

    void theCaptionIsPaintedBelowTheItemAndCutByAClippingParent()
    {
        Scene scene;
        scene.stage.renderFrame();
        const QImage free = scene.stage.picture();
        QVERIFY(scene.caption()[3].rect.bottom() > scene.tile->height() + 50);
        const QRect below(0, 40 + 113 + spacing, 360, 100);
        QImage ground = free;
        ground.fill(captionGround);
        QVERIFY(free.copy(below) != ground.copy(below));

        QQuickItem clipping(scene.stage.contentItem());
        const int visible = 40 + 113 + spacing + 12; // cuts through the title
        clipping.setSize(QSizeF(360, visible));
        clipping.setClip(true);
        scene.tile->setParentItem(&clipping);
        holdFocusAnimation(scene.tile.get(), 0);
        for (const int step : { 0, 5, 10, 7, 0 }) {
            scene.moveTo(step / 10.);
            scene.stage.renderFrame();
            QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
            QCOMPARE(scene.stage.picture().copy(0, visible, 360, 340 - visible),
                     ground.copy(0, visible, 360, 340 - visible));
        }
        QCOMPARE(scene.stage.picture().copy(0, 0, 360, visible), free.copy(0, 0, 360, visible));
        scene.tile->setParentItem(scene.stage.contentItem());
    }

    void everyTextIsLaidOutOnceAndNotAgainWhileThePictureGrows()
    {
        Scene scene;
        QCOMPARE(stbtest::textsLaidOut([&] { scene.stage.renderFrame(); }), 3);
        QCOMPARE(stbtest::textsLaidOut([&] {
                     holdFocusAnimation(scene.tile.get(), 0);
                     for (int step = 0; step <= 20; ++step) {
                         scene.moveTo(step / 20.);
                         scene.stage.renderFrame();
                     }
                 }),
                 0);
    }

    void theCaptionIsNotPaintedIntoItsPixmapsAgainWhileThePictureGrows()
    {
        Scene scene;
        scene.stage.renderFrame();
        const QList<NodeInfo> resting = scene.caption();
        holdFocusAnimation(scene.tile.get(), 0.5);
        scene.stage.renderFrame();
        for (int i = 0; i < 4; ++i)
            QCOMPARE(scene.caption()[i].pixmap.cacheKey(), resting[i].pixmap.cacheKey());
    }

    void aStepOfTheAnimationPaintsTheTilesOwnRectanglesOnly()
    {
        Scene scene;
        scene.stage.renderFrame();
        holdFocusAnimation(scene.tile.get(), 0.4);
        scene.stage.renderFrame();
        const QRegion before = areaOf(scene.all());
        const QRegion captionBefore = areaOf(scene.caption());
        scene.moveTo(0.5);
        const QRegion painted = scene.stage.renderFrame();
        QRegion expected = before + areaOf(scene.all());
        // The frame is an internal rectangle, of which Qt does not tell the rectangle: it is the background's.
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted - expected, QRegion());
        QCOMPARE((captionBefore + areaOf(scene.caption())) - painted, QRegion());
    }

    void anUpdateThatChangesNothingPaintsNothing()
    {
        Scene scene;
        scene.stage.renderFrame();
        scene.tile->update();
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        QVERIFY(!scene.stage.wantsFrame());
    }

    void aChangedTextOfTheSameHeightPaintsItsOwnRectanglesOnly_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<int>("part");
        QTest::newRow("title") << QByteArray("itemTitle") << 1;
        QTest::newRow("subtitle") << QByteArray("itemSubtitle") << 2;
        QTest::newRow("status") << QByteArray("itemStatus") << 3;
    }
    void aChangedTextOfTheSameHeightPaintsItsOwnRectanglesOnly()
    {
        QFETCH(QByteArray, property);
        QFETCH(int, part);
        Scene scene;
        scene.stage.renderFrame();
        QRegion expected = onStage(scene.caption()[part]);
        scene.tile->setProperty(property, "Lakes");
        const QRegion painted = scene.stage.renderFrame();
        expected += onStage(scene.caption()[part]);
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted - expected, QRegion());
    }

    void theFavouriteIconComesAndGoesWithoutATrace()
    {
        Scene scene;
        scene.tile->setFavorite(false);
        scene.stage.renderFrame();
        const QImage before = scene.stage.picture();
        scene.tile->setFavorite(true);
        scene.stage.renderFrame();
        QVERIFY(scene.stage.picture() != before);
        QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
        scene.tile->setFavorite(false);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), before);
    }

    void aTextChangedTwiceInAFrameLeavesNothingBehind()
    {
        Scene scene;
        Scene fresh;
        for (const Scene *each : { &scene, &fresh })
            each->tile->setStatus(QString()); // below an emptied subtitle it would stay apart
        scene.stage.renderFrame();
        scene.tile->setSubtitle("Lakes");
        scene.tile->setSubtitle("Seas");
        scene.stage.renderFrame();
        scene.tile->setSubtitle("Lakes");
        scene.tile->setSubtitle(QString());
        scene.stage.renderFrame();
        fresh.tile->setSubtitle(QString());
        fresh.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
    }

    void oneTileIsOneItemAndTwoTimeLines()
    {
        QCOMPARE(stbtest::objectsCreated([] { const StbContentTile tile; }), 3);
        Scene scene;
        scene.stage.renderFrame();
        QCOMPARE(stbtest::itemCount(scene.tile.get()), 1);
        QCOMPARE(stbtest::objectCount(scene.tile.get()), 1);
        // The root, background, frame, icon and three texts.
        QCOMPARE(stbtest::nodeCount(stbtest::paintNode(scene.tile.get())), 7);
    }

    void pictures_data()
    {
        QTest::addColumn<double>("progress");
        QTest::addColumn<bool>("favourite");
        QTest::addColumn<bool>("poster");
        QTest::newRow("resting") << 0. << false << true;
        QTest::newRow("half-way") << 0.5 << false << true;
        QTest::newRow("focused") << 1. << false << true;
        QTest::newRow("favourite") << 0. << true << true;
        QTest::newRow("no-picture") << 0. << false << false;
    }
    void pictures()
    {
        QFETCH(double, progress);
        QFETCH(bool, favourite);
        QFETCH(bool, poster);
        Scene scene(poster ? "imageSource: 'qrc:/pictures/landscape.png'" : "");
        scene.tile->setFavorite(favourite);
        if (poster)
            QTRY_VERIFY(!scene.d()->m_poster.size().isEmpty());
        if (progress > 0)
            holdFocusAnimation(scene.tile.get(), progress);
        scene.stage.renderFrame();
        STB_COMPARE_GOLDEN(scene.stage.picture(), QStringLiteral("contenttile-") + QTest::currentDataTag(),
                           sameGlyphs);
    }
};

STB_TEST_MAIN(tst_StbContentTilePaint)
#include "tst_stbcontenttilepaint.moc"
