// SPDX-License-Identifier: MIT
#include "captionscene.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <controls/tiles/stbvodtile.h>
#include <controls/tiles/stbvodtile_p.h>

#include <QtTest/qsignalspy.h>

#include <limits>

using design_system::TileStyle;
using stbtest::NodeInfo;

namespace {

const QColor badgeColor(161, 11, 13);
const QColor valueColor(77, 199, 89);
const QColor trackColor(137, 139, 149);
// The tile is 201 x 113, the bar 201 - 2 * 27 = 147 wide; its top is 112 - 35 - 27.
constexpr int barTop = 50;

struct Scene : CaptionScene<StbVodTile>
{
    Scene() { tile.setStyle(&style); }
    StbVodTilePrivate *d() { return static_cast<StbVodTilePrivate *>(QQuickItemPrivate::get(&tile)); }
    // The nodes after a frame, in the order of the scene; captions are images.
    QList<NodeInfo> painted()
    {
        stage.renderFrame();
        return nodes();
    }
};

QList<QColor> colorsOf(const QList<NodeInfo> &nodes)
{
    QList<QColor> colors;
    for (const NodeInfo &node : nodes)
        colors.append(node.color);
    return colors;
}

QRect ratingExtent(const QString &text)
{
    return stbtest::textExtent(oddTileStyle().ratingStyle, text, 201);
}

} // namespace

class tst_StbVodTile : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFreshTileHasTheDefaults()
    {
        StbVodTile tile;
        QVERIFY(tile.rating().isEmpty());
        QVERIFY(tile.rightholderImageSource().isEmpty());
        QCOMPARE(tile.timepoint(), 0.);
        QCOMPARE(tile.duration(), 0.);
    }

    void everyPropertyStoresSignalsOnceAndAsksForAFrame_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *property, const char *signal, const QVariant &value) {
            QTest::newRow(property) << QByteArray(property) << QByteArray(signal) << value;
        };
        row("ratingText", "ratingChanged", "12+");
        row("rightholderImageSource", "rightholderImageSourceChanged", QUrl("qrc:/pictures/logo.png"));
        row("mediaPositionsTimepoint", "timepointChanged", 17.5);
        row("moviePosterDuration", "durationChanged", 7200.5);
    }
    void everyPropertyStoresSignalsOnceAndAsksForAFrame()
    {
        QFETCH(QByteArray, property);
        QFETCH(QByteArray, signal);
        QFETCH(QVariant, value);
        Scene scene;
        scene.stage.renderFrame();
        const QMetaObject *meta = scene.tile.metaObject();
        QCOMPARE(meta->property(meta->indexOfProperty(property)).notifySignal().name(), signal);
        QSignalSpy rating(&scene.tile, &StbVodTile::ratingChanged);
        QSignalSpy logo(&scene.tile, &StbVodTile::rightholderImageSourceChanged);
        QSignalSpy timepoint(&scene.tile, &StbVodTile::timepointChanged);
        QSignalSpy duration(&scene.tile, &StbVodTile::durationChanged);
        const auto emitted = [&] {
            QByteArrayList names;
            for (const QSignalSpy *spy : { &rating, &logo, &timepoint, &duration })
                names.insert(names.size(), spy->count(), spy->signal().chopped(2));
            return names;
        };
        QVERIFY(scene.tile.setProperty(property, value));
        QCOMPARE(emitted(), QByteArrayList { signal });
        QCOMPARE(scene.tile.property(property), value);
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        QVERIFY(scene.tile.setProperty(property, value));
        QCOMPARE(emitted(), QByteArrayList { signal });
        QVERIFY(!scene.stage.wantsFrame());
    }

    void theTimesAreComparedExactly()
    {
        StbVodTile tile;
        QSignalSpy timepoint(&tile, &StbVodTile::timepointChanged);
        QSignalSpy duration(&tile, &StbVodTile::durationChanged);
        tile.setTimepoint(0.3);
        tile.setTimepoint(0.1 + 0.2); // the next number but one
        tile.setDuration(7200);
        tile.setDuration(std::nextafter(7200., 1e9));
        QCOMPARE(timepoint.count(), 2);
        QCOMPARE(duration.count(), 2);
    }

    void theElementDerivesFromTheContentTile()
    {
        const stbtest::MemoryConfiguration configuration;
        stbtest::QmlScene scene;
        const auto tile = scene.createItem<StbVodTile>(
                "import Stbui.UI.Qml.Controls.Basic\n"
                "VodTile { itemTitle: 'Rivers'; ratingText: '12+'\n"
                "          mediaPositionsTimepoint: 17; moviePosterDuration: 7200 }");
        QVERIFY(tile);
        QVERIFY(qobject_cast<StbContentTile *>(tile.get()));
        QCOMPARE(tile->title(), "Rivers");
        QCOMPARE(tile->duration(), 7200.);
    }

    void aTileWithoutMarksHasNoNodesOfItsOwn()
    {
        Scene scene;
        QVERIFY(scene.painted().isEmpty());
    }

    void theBadgeIsARectangleThatHoldsItsText()
    {
        Scene scene;
        scene.tile.setRating("12+");
        const QList<NodeInfo> nodes = scene.painted();
        QCOMPARE(nodes.size(), 1);
        QCOMPARE(nodes[0].type, "Rectangle");
        QCOMPARE(nodes[0].color, badgeColor);
        const QRect text = ratingExtent("12+");
        QCOMPARE(nodes[0].rect, QRectF(9, 11, 5 + text.width() + 15, 13 + text.height() + 1));
        const QList<NodeInfo> inside = stbtest::childNodes(nodes[0].node);
        QCOMPARE(inside.size(), 1);
        QCOMPARE(inside[0].rect, QRectF(9 + 5, 11 + 13, text.width(), text.height()));
        QVERIFY(stbtest::isPaintedIn(inside[0].pixmap, QColor(251, 253, 247)));
    }

    void theBadgeGrowsWithItsText()
    {
        Scene scene;
        scene.tile.setRating("6+");
        const QSGNode *badge = scene.painted()[0].node;
        scene.tile.setRating("18+ ");
        const QList<NodeInfo> nodes = scene.painted();
        QCOMPARE(nodes[0].node, badge);
        QCOMPARE(nodes[0].rect.width(), 20 + ratingExtent("18+ ").width());
        QCOMPARE(stbtest::childNodes(nodes[0].node)[0].rect.size(), QSizeF(ratingExtent("18+ ").size()));
    }

    void theRatingIsBoundedByTheTile()
    {
        Scene scene;
        const QString text = "A rating that is longer than any tile";
        scene.tile.setRating(text);
        const QList<NodeInfo> nodes = scene.painted();
        QCOMPARE(stbtest::childNodes(nodes[0].node)[0].rect.size(), QSizeF(ratingExtent(text).size()));
        QVERIFY(ratingExtent(text).width() <= 201);
    }

    void aRatingThatTurnsEmptyKeepsItsBadgeOnScreen()
    {
        Scene scene;
        scene.tile.setRating("12+");
        const QSGNode *badge = scene.painted()[0].node;
        scene.tile.setRating(QString());
        const QList<NodeInfo> nodes = scene.painted();
        QCOMPARE(nodes.size(), 1);
        QCOMPARE(nodes[0].node, badge);
        QCOMPARE(nodes[0].rect, QRectF(9, 11, 5 + 15, 13 + 1)); // its padding
        QVERIFY(stbtest::childNodes(nodes[0].node)[0].rect.isEmpty());
        // The pixels of the padding are the badge's: the text's node leaves no hole.
        QCOMPARE(scene.stage.picture().pixelColor(60 + 9 + 19, 40 + 11 + 13), badgeColor);
        scene.tile.setRating("12+");
        QCOMPARE(scene.painted()[0].rect.width(), 20 + ratingExtent("12+").width());
    }

    void anEmptiedBadgeThatGoesWithTheStyleDoesNotComeBack()
    {
        Scene scene;
        scene.tile.setRating("12+");
        QCOMPARE(scene.painted().size(), 1);
        scene.tile.setRating(QString());
        QCOMPARE(scene.painted().size(), 1);
        scene.tile.setStyle(nullptr);
        scene.stage.renderFrame();
        scene.tile.setStyle(&scene.style);
        QVERIFY(scene.painted().isEmpty());
    }

    void theBarShowsThePartThatWasWatched()
    {
        Scene scene;
        scene.tile.setDuration(3);
        scene.tile.setTimepoint(1.001);
        const QList<NodeInfo> nodes = scene.painted();
        QCOMPARE(colorsOf(nodes), (QList<QColor> { trackColor, valueColor })); // the value above the track
        const int filled = 50; // 49.05, rounded up
        QCOMPARE(nodes[1].rect, QRectF(27, barTop, filled, 35));
        QCOMPARE(nodes[0].rect, QRectF(27 + filled - 1, barTop, 147 - filled, 35));
    }

    void theLastColumnOfTheBarStaysUncovered()
    {
        Scene scene;
        scene.tile.setDuration(3);
        scene.tile.setTimepoint(1);
        scene.stage.renderFrame();
        const QImage picture = scene.stage.picture();
        const QPoint last(60 + 27 + 146, 40 + barTop + 5);
        QCOMPARE(picture.pixelColor(last - QPoint(1, 0)), trackColor);
        scene.tile.setTimepoint(0);
        scene.stage.renderFrame();
        QCOMPARE(picture.pixelColor(last), scene.stage.picture().pixelColor(last));
    }

    void theFilledPartIsPaintedOverTheTracksFirstColumn()
    {
        Scene scene;
        scene.tile.setDuration(3);
        scene.tile.setTimepoint(1); // 49 columns
        scene.stage.renderFrame();
        const QPoint last(60 + 27 + 48, 40 + barTop + 5);
        QCOMPARE(scene.stage.picture().pixelColor(last), valueColor);
        QCOMPARE(scene.stage.picture().pixelColor(last + QPoint(1, 0)), trackColor);
    }

    void aPositionBeyondTheDurationDrawsAFullBarWithoutTrack_data()
    {
        QTest::addColumn<double>("timepoint");
        QTest::newRow("at the end") << 7200.;
        QTest::newRow("beyond") << 7201.;
        QTest::newRow("endless") << std::numeric_limits<double>::infinity();
    }
    void aPositionBeyondTheDurationDrawsAFullBarWithoutTrack()
    {
        QFETCH(double, timepoint);
        Scene scene;
        scene.tile.setDuration(7200);
        scene.tile.setTimepoint(60);
        QCOMPARE(scene.painted().size(), 2);
        scene.tile.setTimepoint(timepoint);
        QList<NodeInfo> nodes = scene.painted();
        QCOMPARE(colorsOf(nodes), QList<QColor> { valueColor });
        QCOMPARE(nodes[0].rect, QRectF(27, barTop, 147, 35));
        scene.tile.setTimepoint(60);
        nodes = scene.painted();
        QCOMPARE(colorsOf(nodes), (QList<QColor> { trackColor, valueColor })); // the late track goes beneath
    }

    void withoutAPositionOrADurationThereIsNoBar_data()
    {
        QTest::addColumn<double>("timepoint");
        QTest::addColumn<double>("duration");
        const double notANumber = std::numeric_limits<double>::quiet_NaN();
        QTest::newRow("timepoint 0") << 0. << 7200.;
        QTest::newRow("duration 0") << 60. << 0.;
        QTest::newRow("timepoint below 0") << -60. << 7200.;
        QTest::newRow("duration below 0") << 60. << -7200.;
        QTest::newRow("timepoint no number") << notANumber << 7200.;
        QTest::newRow("duration no number") << 60. << notANumber;
    }
    void withoutAPositionOrADurationThereIsNoBar()
    {
        QFETCH(double, timepoint);
        QFETCH(double, duration);
        Scene scene;
        scene.stage.renderFrame();
        const QImage bare = scene.stage.picture();
        scene.tile.setDuration(7200);
        scene.tile.setTimepoint(60);
        QCOMPARE(scene.painted().size(), 2);
        scene.tile.setTimepoint(timepoint);
        scene.tile.setDuration(duration);
        QVERIFY(scene.painted().isEmpty());
        QVERIFY(!scene.d()->m_progressTrackPresent);
        QVERIFY(!scene.d()->m_progressValuePresent);
        QCOMPARE(scene.stage.picture(), bare);
    }

    void theBadgeAndTheBarFollowThePicture()
    {
        Scene scene;
        scene.tile.setRating("12+");
        scene.tile.setDuration(3);
        scene.tile.setTimepoint(1);
        scene.tile.setCustomFocusRect(QRect(-13, -7, 231, 151)); // right 217, bottom 143
        const QList<NodeInfo> nodes = scene.painted();
        QCOMPARE(nodes[0].rect.topLeft(), QPointF(-13 + 9, -7 + 11));
        QCOMPARE(stbtest::childNodes(nodes[0].node)[0].rect.topLeft(), QPointF(-13 + 9 + 5, -7 + 11 + 13));
        QCOMPARE(nodes[2].rect, QRectF(-13 + 27, 143 - 35 - 27, 59, 35)); // a third of 177
        QCOMPARE(nodes[1].rect, QRectF(14 + 58, 81, 177 - 59, 35));
    }

    void lateCaptionsGoBeforeTheMarks()
    {
        Scene scene;
        scene.tile.setRating("12+");
        scene.tile.setDuration(3);
        scene.tile.setTimepoint(1);
        const QList<NodeInfo> marks = scene.painted();
        QCOMPARE(marks.size(), 3);
        scene.tile.setStatus("New");
        QList<NodeInfo> nodes = scene.painted();
        QVERIFY(stbtest::isPaintedIn(nodes[0].pixmap, QColor(1, 131, 61)));
        scene.tile.setTitle("Rivers");
        nodes = scene.painted();
        QVERIFY(stbtest::isPaintedIn(nodes[0].pixmap, QColor(19, 21, 23)));
        scene.tile.setFavorite(true);
        scene.tile.setSubtitle("Part three");
        nodes = scene.painted();
        QCOMPARE(nodes.size(), 4 + 3);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(nodes[4 + i].node, marks[i].node);
        scene.tile.setFavorite(false);
        QCOMPARE(scene.painted().mid(3)[0].node, marks[0].node);
    }

    void aNewStyleObjectIsTakenOverWhole()
    {
        TileStyle other = otherTileStyle();
        other.overlayColor = oddTileStyle().overlayColor; // the frame keeps what it was made with
        other.borderPen = oddTileStyle().borderPen;
        design_system::TileQmlStyle object;
        object.setStyle(other);
        const auto fill = [](StbVodTile &tile) {
            tile.setTitle("Rivers");
            tile.setRating("12+");
            tile.setDuration(3);
            tile.setTimepoint(1);
        };
        Scene scene;
        fill(scene.tile);
        scene.stage.renderFrame();
        scene.tile.setStyle(&object);
        scene.stage.renderFrame();
        Scene fresh;
        fresh.tile.setStyle(&object);
        fill(fresh.tile);
        fresh.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
    }

    void anInvalidColourPaintsNothing()
    {
        Scene scene;
        TileStyle colourless = oddTileStyle();
        colourless.ratingBadgeColor = QColor();
        colourless.progressValueColor = QColor();
        colourless.progressTrackColor = QColor();
        design_system::TileQmlStyle object;
        object.setStyle(colourless);
        scene.stage.renderFrame();
        const QImage bare = scene.stage.picture();
        scene.tile.setStyle(&object);
        scene.tile.setRating(" ");
        scene.tile.setDuration(3);
        scene.tile.setTimepoint(1);
        QCOMPARE(scene.painted().size(), 3);
        QCOMPARE(scene.stage.picture(), bare);
    }

    void aNullStyleTakesTheMarksAwayAndAnotherWindowShowsThem()
    {
        Scene scene;
        scene.tile.setRating("12+");
        scene.tile.setDuration(3);
        scene.tile.setTimepoint(1);
        scene.stage.renderFrame();
        const QImage painted = scene.stage.picture();
        scene.tile.setStyle(nullptr);
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(&scene.tile));
        scene.tile.setStyle(&scene.style);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), painted);
        stbtest::Stage other(scene.stage.size(), captionGround);
        scene.tile.setParentItem(other.contentItem());
        other.renderFrame();
        QCOMPARE(other.picture(), painted);
        scene.tile.setParentItem(nullptr);
    }

    void theHookReturnsNothing()
    {
        Scene scene;
        scene.tile.setRating("12+");
        scene.stage.renderFrame();
        QSGNode *frame = stbtest::paintNode(&scene.tile)->childAtIndex(1);
        QCOMPARE(scene.d()->updateExtendedNodes(oddTileStyle(), frame), nullptr);
        QCOMPARE(scene.d()->updateExtendedNodes(oddTileStyle(), nullptr), nullptr);
    }
};

STB_TEST_MAIN(tst_StbVodTile)
#include "tst_stbvodtile.moc"
