// SPDX-License-Identifier: MIT
#include "captionscene.h"
#include "testkit/testcase.h"

#include <controls/tiles/stbcontenttile.h>
#include <controls/tiles/stbcontenttile_p.h>

#include <algorithm>

using design_system::TileStyle;
using stbtest::NodeInfo;

namespace {

const QSize iconSize(19, 13); // of the test's own resource
constexpr int tileWidth = 201;
constexpr int spacing = 7;
constexpr int firstLine = 112 + spacing; // from the inclusive bottom of the resting picture

struct Scene : CaptionScene<StbContentTile>
{
    void fill()
    {
        tile.setStyle(&style);
        tile.setTitle("Rivers");
        tile.setSubtitle("Part three");
        tile.setStatus("New");
    }
};

QRect titleExtent()
{
    return stbtest::textExtent(oddTileStyle().titleStyle, "Rivers", tileWidth);
}

} // namespace

// Which nodes a caption has, in which order, and where they lie.
class tst_StbContentTileLines : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theNodesStandInTheOrderIconTitleSubtitleStatus_data()
    {
        QTest::addColumn<QList<int>>("appearance");
        QList<int> order { 0, 1, 2, 3 };
        do {
            QTest::addRow("%d%d%d%d", order[0], order[1], order[2], order[3]) << order;
        } while (std::next_permutation(order.begin(), order.end()));
    }
    void theNodesStandInTheOrderIconTitleSubtitleStatus()
    {
        QFETCH(QList<int>, appearance);
        Scene scene;
        scene.tile.setStyle(&scene.style);
        scene.stage.renderFrame();
        QVERIFY(scene.nodes().isEmpty());
        for (const int part : appearance) {
            switch (part) {
            case 0:
                scene.tile.setFavorite(true);
                break;
            case 1:
                scene.tile.setTitle("Rivers");
                break;
            case 2:
                scene.tile.setSubtitle("Part three");
                break;
            default:
                scene.tile.setStatus("New");
            }
            scene.stage.renderFrame();
        }
        const QList<NodeInfo> nodes = scene.nodes();
        QCOMPARE(nodes.size(), 4);
        QCOMPARE(nodes[0].pixmap.size(), iconSize);
        QVERIFY(stbtest::isPaintedIn(nodes[1].pixmap, QColor(19, 21, 23)));
        QVERIFY(stbtest::isPaintedIn(nodes[2].pixmap, QColor(91, 103, 107)));
        QVERIFY(stbtest::isPaintedIn(nodes[3].pixmap, QColor(1, 131, 61)));
    }

    void aLateFrameGoesBeforeTheCaption()
    {
        Scene scene;
        TileStyle plain = oddTileStyle();
        plain.overlayColor = QColor();
        plain.borderPen = QPen(QBrush(QColor()), 0);
        design_system::TileQmlStyle frameless;
        frameless.setStyle(plain);
        scene.fill();
        scene.tile.setFavorite(true);
        scene.tile.setStyle(&frameless);
        scene.stage.renderFrame();
        const QList<NodeInfo> before = stbtest::childNodes(stbtest::paintNode(&scene.tile));
        QCOMPARE(before.size(), 1 + 4);
        scene.tile.setStyle(&scene.style);
        scene.stage.renderFrame();
        const QList<NodeInfo> after = stbtest::childNodes(stbtest::paintNode(&scene.tile));
        QCOMPARE(after.size(), 2 + 4);
        QCOMPARE(after[1].type, "InternalRectangle");
        for (int i = 0; i < 4; ++i)
            QCOMPARE(after[2 + i].node, before[1 + i].node);
    }

    void eachLineLiesBelowTheOneBefore()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        const QList<NodeInfo> nodes = scene.nodes();
        QCOMPARE(nodes.size(), 3);
        const QRect title = titleExtent();
        const QRect subtitle = stbtest::textExtent(oddTileStyle().subtitleStyle, "Part three", tileWidth);
        const QRect status = stbtest::textExtent(oddTileStyle().statusStyle, "New", tileWidth);
        int y = firstLine;
        QCOMPARE(nodes[0].rect, QRectF(-1, y, title.width(), title.height())); // one pixel left, on purpose
        y += title.height() + spacing;
        QCOMPARE(nodes[1].rect, QRectF(0, y, subtitle.width(), subtitle.height()));
        y += subtitle.height() + spacing;
        QCOMPARE(nodes[2].rect, QRectF(0, y, status.width(), status.height()));
    }

    void theTitleStandsBehindTheIcon()
    {
        Scene scene;
        scene.fill();
        scene.tile.setFavorite(true);
        scene.stage.renderFrame();
        const QList<NodeInfo> nodes = scene.nodes();
        const QRect title = titleExtent();
        QVERIFY(title.height() > iconSize.height());
        const int down = (title.height() - iconSize.height()) / 2;
        QCOMPARE(nodes[0].rect, QRectF(0, firstLine + down, iconSize.width(), iconSize.height()));
        QCOMPARE(nodes[1].rect,
                 QRectF(iconSize.width() - 1 + spacing, firstLine, title.width(), title.height()));
        QCOMPARE(nodes[2].rect.top(), firstLine + title.height() + spacing);
    }

    void anEmptyTitleBesideTheIconLeavesTheIconsLine()
    {
        Scene scene;
        scene.tile.setStyle(&scene.style);
        scene.tile.setFavorite(true);
        scene.tile.setSubtitle("Part three");
        scene.stage.renderFrame();
        const QList<NodeInfo> nodes = scene.nodes();
        QCOMPARE(nodes.size(), 2);
        QCOMPARE(nodes[0].rect, QRectF(QPointF(0, firstLine), iconSize));
        QCOMPARE(nodes[1].rect.top(), firstLine + iconSize.height() + spacing);
    }

    void aSubtitleAloneTakesTheFirstLine()
    {
        Scene scene;
        scene.tile.setStyle(&scene.style);
        scene.tile.setSubtitle("Part three");
        scene.stage.renderFrame();
        QCOMPARE(scene.nodes().size(), 1);
        QCOMPARE(scene.nodes()[0].rect.topLeft(), QPointF(0, firstLine));
    }

    void aTextThatNeverWasHasNoNode()
    {
        Scene scene;
        scene.tile.setStyle(&scene.style);
        scene.tile.setStatus("New");
        scene.stage.renderFrame();
        QCOMPARE(scene.nodes().size(), 1);
    }

    void onlyTheTitleMakesRoomForTheIcon()
    {
        Scene scene;
        const QString text = "A very long line that fits into no tile of this world";
        scene.tile.setStyle(&scene.style);
        scene.tile.setTitle(text);
        scene.tile.setSubtitle(text);
        scene.tile.setStatus(text);
        scene.stage.renderFrame();
        const TileStyle style = oddTileStyle();
        QCOMPARE(scene.nodes()[0].rect.size(), stbtest::textExtent(style.titleStyle, text, tileWidth).size());
        scene.tile.setFavorite(true);
        scene.stage.renderFrame();
        const QList<NodeInfo> nodes = scene.nodes();
        QCOMPARE(nodes[1].rect.size(),
                 stbtest::textExtent(style.titleStyle, text, tileWidth - iconSize.width() - spacing).size());
        QCOMPARE(nodes[2].rect.size(), stbtest::textExtent(style.subtitleStyle, text, tileWidth).size());
        QCOMPARE(nodes[3].rect.size(), stbtest::textExtent(style.statusStyle, text, tileWidth).size());
        scene.tile.setFavorite(false);
        scene.stage.renderFrame();
        QCOMPARE(scene.nodes()[0].rect.size(), stbtest::textExtent(style.titleStyle, text, tileWidth).size());
    }

    void aTitleWithoutAnyRoomShowsNothingAndLeavesNoHole()
    {
        Scene scene;
        TileStyle narrow = oddTileStyle();
        narrow.tileRect = QRect(0, 0, 25, 113); // the icon and the spacing leave -1
        scene.style.setStyle(narrow);
        scene.fill();
        scene.tile.setFavorite(true);
        scene.stage.renderFrame();
        QVERIFY(scene.nodes()[1].rect.isEmpty());
        QCOMPARE(scene.nodes()[2].rect.top(), firstLine + iconSize.height() + spacing);
    }

    void anEmptiedTextKeepsItsNodeItsSpacingAndShowsNothing()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        const QList<NodeInfo> before = scene.nodes();
        scene.tile.setTitle(QString());
        scene.tile.setSubtitle(QString());
        scene.stage.renderFrame();
        const QList<NodeInfo> after = scene.nodes();
        QCOMPARE(after.size(), 3);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(after[i].node, before[i].node);
        QVERIFY(after[0].rect.isEmpty());
        QVERIFY(after[1].rect.isEmpty());
        QCOMPARE(after[2].rect.topLeft(), QPointF(0, firstLine + 2 * spacing));

        scene.tile.setStatus(QString());
        scene.stage.renderFrame();
        Scene bare;
        bare.tile.setStyle(&bare.style);
        bare.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), bare.stage.picture());
        scene.fill();
        scene.stage.renderFrame();
        QCOMPARE(scene.nodes()[0].rect, before[0].rect);
        QCOMPARE(scene.nodes()[2].rect, before[2].rect);
    }

    void anEmptiedTextIsForgottenWithTheNodes()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        scene.tile.setTitle(QString());
        scene.tile.setStyle(nullptr);
        scene.stage.renderFrame();
        scene.tile.setStyle(&scene.style);
        scene.stage.renderFrame();
        QCOMPARE(scene.nodes().size(), 2);
        QCOMPARE(scene.nodes()[0].rect.topLeft(), QPointF(0, firstLine));
    }
};

STB_TEST_MAIN(tst_StbContentTileLines)
#include "tst_stbcontenttilelines.moc"
