// SPDX-License-Identifier: MIT
#include "captionscene.h"
#include "testkit/counters.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <controls/tiles/stbvodtile.h>
#include <controls/tiles/stbvodtile_p.h>

using stbtest::NodeInfo;

namespace {

const stbtest::Tolerance sameGlyphs { 24, 60,
                                      "glyph edges differ a little between font rasterizers' versions" };

// A film with all its marks.
struct Scene : QmlCaptionScene<StbVodTile>
{
    Scene()
        : QmlCaptionScene("VodTile", "itemTitle: 'Rivers'; itemSubtitle: 'Part three'; ratingText: '12+'\n"
                                     "imageSource: 'qrc:/pictures/landscape.png'\n"
                                     "rightholderImageSource: 'qrc:/pictures/logo.png'\n"
                                     "mediaPositionsTimepoint: 1; moviePosterDuration: 3")
    {
    }
    StbVodTilePrivate *d() { return static_cast<StbVodTilePrivate *>(QQuickItemPrivate::get(tile.get())); }
    bool isLoaded() { return !d()->m_rightholderImage.size().isEmpty() && !d()->m_poster.size().isEmpty(); }
    QList<NodeInfo> all() { return stbtest::childNodes(stbtest::paintNode(tile.get())); }
    // Logo, badge, track and value, when all of them are there.
    QList<NodeInfo> marks() { return all().mid(all().size() - 4); }
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

class tst_StbVodTilePaint : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aProgressThatGoesOnPaintsTheTwoBarRectanglesOnly()
    {
        Scene scene;
        QTRY_VERIFY(scene.isLoaded());
        scene.stage.renderFrame();
        const QRegion before = areaOf(scene.marks().mid(2));
        scene.tile->setTimepoint(1.5);
        const QRegion painted = scene.stage.renderFrame();
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted - (before + areaOf(scene.marks().mid(2))), QRegion());
        QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
    }

    void aFilmWatchedAnewLeavesNoPixelOfTheFullBar()
    {
        Scene scene;
        QTRY_VERIFY(scene.isLoaded());
        scene.tile->setTimepoint(3);
        scene.stage.renderFrame();
        scene.tile->setTimepoint(0.001);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
    }

    void aProgressOfLessThanAColumnPaintsNothing()
    {
        Scene scene;
        QTRY_VERIFY(scene.isLoaded());
        scene.tile->setTimepoint(1.5);
        scene.stage.renderFrame();
        scene.tile->setTimepoint(1.501);
        QCOMPARE(scene.stage.renderFrame(), QRegion());
    }

    void anUpdateThatChangesNothingPaintsNothing()
    {
        Scene scene;
        QTRY_VERIFY(scene.isLoaded());
        scene.stage.renderFrame();
        scene.tile->update();
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        QVERIFY(!scene.stage.wantsFrame());
    }

    void aStepOfTheAnimationPaintsTheTilesOwnRectanglesOnly()
    {
        Scene scene;
        QTRY_VERIFY(scene.isLoaded());
        scene.stage.renderFrame();
        holdFocusAnimation(scene.tile.get(), 0.4);
        scene.stage.renderFrame();
        const QRegion before = areaOf(scene.all());
        scene.moveTo(0.5);
        const QRegion painted = scene.stage.renderFrame();
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted - (before + areaOf(scene.all())), QRegion());
    }

    void theMovingMarksLeaveNoTrail()
    {
        Scene scene;
        QTRY_VERIFY(scene.isLoaded());
        scene.stage.renderFrame();
        const QImage resting = scene.stage.picture();
        holdFocusAnimation(scene.tile.get(), 0);
        for (int step = 1; step <= 20; ++step) {
            scene.moveTo(step / 20.);
            scene.stage.renderFrame();
            QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
        }
        QVERIFY(scene.stage.picture() != resting);
        for (int step = 19; step >= 0; --step) {
            scene.moveTo(step / 20.);
            scene.stage.renderFrame();
            QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
        }
        QCOMPARE(scene.stage.picture(), resting);
    }

    void theMarksFollowTheFocusAnimation()
    {
        Scene scene;
        QTRY_VERIFY(scene.isLoaded());
        scene.stage.renderFrame();
        const QList<NodeInfo> resting = scene.marks();
        holdFocusAnimation(scene.tile.get(), 1);
        scene.stage.renderFrame();
        const QList<NodeInfo> focused = scene.marks();
        QCOMPARE(scene.tile->customFocusRect(), oddTileStyle().focusedRect);
        QCOMPARE(focused[0].rect, resting[0].rect.translated(29, 31)); // lower right corner
        QCOMPARE(focused[1].rect, resting[1].rect.translated(-23, -17)); // upper left corner
        QCOMPARE(focused[3].rect.topLeft(), resting[3].rect.topLeft() + QPointF(-23, 31));
        QCOMPARE(focused[3].rect.width(), 67); // a third of 253 - 54, rounded up
        QCOMPARE(focused[2].rect.width(), 199 - 67);
    }

    void everyTextIsLaidOutOnceAndNotAgainWhileThePictureGrows()
    {
        Scene scene;
        QTRY_VERIFY(scene.isLoaded());
        QCOMPARE(stbtest::textsLaidOut([&] { scene.stage.renderFrame(); }), 3);
        QCOMPARE(stbtest::textsLaidOut([&] {
                     holdFocusAnimation(scene.tile.get(), 0);
                     for (int step = 0; step <= 20; ++step) {
                         scene.moveTo(step / 20.);
                         scene.tile->setTimepoint(1 + step / 20.);
                         scene.stage.renderFrame();
                     }
                 }),
                 0);
    }

    void oneTileIsOneItemAndTwoTimeLines()
    {
        QCOMPARE(stbtest::objectsCreated([] { const StbVodTile tile; }), 3);
        Scene scene;
        QTRY_VERIFY(scene.isLoaded());
        scene.stage.renderFrame();
        QCOMPARE(stbtest::itemCount(scene.tile.get()), 1);
        QCOMPARE(stbtest::objectCount(scene.tile.get()), 1);
        // The root, picture, frame, two texts, the logo, the badge and its text, track and value.
        QCOMPARE(stbtest::nodeCount(stbtest::paintNode(scene.tile.get())), 10);
    }

    void pictures_data()
    {
        QTest::addColumn<double>("progress");
        QTest::addColumn<double>("timepoint");
        QTest::addColumn<bool>("picture");
        QTest::addColumn<bool>("captions"); // the optional ones too: status and favourite icon
        QTest::newRow("resting") << 0. << 1. << true << false;
        QTest::newRow("half-way") << 0.5 << 1. << true << false;
        QTest::newRow("focused") << 1. << 1. << true << false;
        QTest::newRow("full-bar") << 0. << 4. << true << false;
        QTest::newRow("no-bar") << 0. << 0. << true << false;
        QTest::newRow("without-picture") << 0. << 1. << false << false;
        QTest::newRow("all-badges") << 0. << 1. << true << true;
    }
    void pictures()
    {
        QFETCH(double, progress);
        QFETCH(double, timepoint);
        QFETCH(bool, picture);
        QFETCH(bool, captions);
        Scene scene;
        scene.tile->setTimepoint(timepoint);
        QTRY_VERIFY(scene.isLoaded());
        if (!picture)
            scene.tile->setImageSource(QUrl());
        scene.tile->setFavorite(captions);
        scene.tile->setStatus(captions ? "New" : "");
        if (progress > 0)
            holdFocusAnimation(scene.tile.get(), progress);
        scene.stage.renderFrame();
        STB_COMPARE_GOLDEN(scene.stage.picture(), QStringLiteral("vodtile-") + QTest::currentDataTag(),
                           sameGlyphs);
    }
};

STB_TEST_MAIN(tst_StbVodTilePaint)
#include "tst_stbvodtilepaint.moc"
