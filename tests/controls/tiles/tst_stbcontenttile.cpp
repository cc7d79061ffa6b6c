// SPDX-License-Identifier: MIT
#include "captionscene.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <controls/tiles/stbcontenttile.h>
#include <controls/tiles/stbcontenttile_p.h>

#include <QtTest/qsignalspy.h>

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
    StbContentTilePrivate *d() { return static_cast<StbContentTilePrivate *>(QQuickItemPrivate::get(&tile)); }
};

QRect titleExtent(int width = tileWidth)
{
    return captionExtent(oddTileStyle().titleStyle, "Rivers", width);
}

} // namespace

class tst_StbContentTile : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFreshTileHasTheDefaults()
    {
        StbContentTile tile;
        QVERIFY(tile.title().isEmpty());
        QVERIFY(tile.subtitle().isEmpty());
        QVERIFY(tile.status().isEmpty());
        QVERIFY(!tile.isFavorite());
        QVERIFY(tile.flags() & QQuickItem::ItemHasContents);
    }

    void everyPropertyStoresSignalsOnceAndAsksForAFrame_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *property, const char *signal, const QVariant &value) {
            QTest::newRow(property) << QByteArray(property) << QByteArray(signal) << value;
        };
        row("itemTitle", "titleChanged", "a");
        row("itemSubtitle", "subtitleChanged", "b");
        row("itemStatus", "statusChanged", "c");
        row("itemIsFavourite", "favoriteChanged", true);
    }
    void everyPropertyStoresSignalsOnceAndAsksForAFrame()
    {
        QFETCH(QByteArray, property);
        QFETCH(QByteArray, signal);
        QFETCH(QVariant, value);
        Scene scene;
        scene.tile.setStyle(&scene.style);
        scene.stage.renderFrame();
        const QMetaObject *meta = scene.tile.metaObject();
        QCOMPARE(meta->property(meta->indexOfProperty(property)).notifySignal().name(), signal);
        QSignalSpy title(&scene.tile, &StbContentTile::titleChanged);
        QSignalSpy subtitle(&scene.tile, &StbContentTile::subtitleChanged);
        QSignalSpy status(&scene.tile, &StbContentTile::statusChanged);
        QSignalSpy favorite(&scene.tile, &StbContentTile::favoriteChanged);
        const auto emitted = [&] {
            QByteArrayList names;
            for (const QSignalSpy *spy : { &title, &subtitle, &status, &favorite })
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

    void theTextsLiveInTheirRenderersAlone()
    {
        Scene scene;
        scene.fill();
        QCOMPARE(scene.d()->m_title.text(), "Rivers");
        QCOMPARE(scene.d()->m_subtitle.text(), "Part three");
        QCOMPARE(scene.d()->m_status.text(), "New");
    }

    void theElementDerivesFromTheExpandableTile()
    {
        const stbtest::MemoryConfiguration configuration;
        stbtest::QmlScene scene;
        const auto tile = scene.createItem<StbContentTile>(
                "import Stbui.UI.Qml.Controls.Basic\n"
                "ContentTile { itemTitle: 'Rivers'; itemSubtitle: 'Part three'; itemStatus: 'New'\n"
                "              itemIsFavourite: true; itemBackgroundColor: '#123456' }");
        QVERIFY(tile);
        QVERIFY(qobject_cast<StbExpandableTile *>(tile.get()));
        QCOMPARE(tile->title(), "Rivers");
        QVERIFY(tile->isFavorite());
    }

    void theIconIsReadWhenATileWithAStyleBecomesAFavourite()
    {
        Scene scene;
        scene.tile.setStyle(&scene.style);
        QVERIFY(!scene.d()->m_favoriteIcon.isLoadAttempted());
        scene.tile.setFavorite(true);
        QVERIFY(scene.d()->m_favoriteIcon.isLoaded());
        QCOMPARE(scene.d()->m_favoriteIcon.source(), ":/resources/icons/favorite_small.png");
        QVERIFY(isPaintedIn(scene.d()->m_favoriteIcon.pixmap(), QColor(239, 67, 71)));
    }

    void aFavouriteWithoutAStyleReadsTheIconWhenTheStyleArrives()
    {
        Scene scene;
        scene.tile.setFavorite(true);
        QVERIFY(!scene.d()->m_favoriteIcon.isLoadAttempted());
        scene.tile.setStyle(&scene.style);
        QVERIFY(scene.d()->m_favoriteIcon.isLoaded());
        scene.stage.renderFrame();
        QCOMPARE(scene.nodes().size(), 1);
        QCOMPARE(scene.nodes()[0].pixmap.size(), iconSize);
    }

    void theIconKeepsTheTintOfTheStyleItWasReadWith()
    {
        Scene scene;
        scene.tile.setFavorite(true);
        scene.tile.setStyle(&scene.style);
        design_system::TileQmlStyle other;
        other.setStyle(otherTileStyle());
        scene.tile.setStyle(&other);
        QVERIFY(isPaintedIn(scene.d()->m_favoriteIcon.pixmap(), QColor(239, 67, 71)));
    }

    void aTileThatIsNoFavouriteAnyMoreKeepsTheIconReady()
    {
        Scene scene;
        scene.fill();
        scene.tile.setFavorite(true);
        scene.stage.renderFrame();
        const QImage favourite = scene.stage.picture();
        scene.tile.setFavorite(false);
        scene.stage.renderFrame();
        QVERIFY(scene.d()->m_favoriteIcon.isLoaded());
        QCOMPARE(scene.nodes().size(), 3);
        scene.tile.setFavorite(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), favourite);
    }

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
        QVERIFY(isPaintedIn(nodes[1].pixmap, QColor(19, 21, 23)));
        QVERIFY(isPaintedIn(nodes[2].pixmap, QColor(91, 103, 107)));
        QVERIFY(isPaintedIn(nodes[3].pixmap, QColor(1, 131, 61)));
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
        const QRect subtitle = captionExtent(oddTileStyle().subtitleStyle, "Part three", tileWidth);
        const QRect status = captionExtent(oddTileStyle().statusStyle, "New", tileWidth);
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
        QCOMPARE(scene.nodes()[0].rect.size(), captionExtent(style.titleStyle, text, tileWidth).size());
        scene.tile.setFavorite(true);
        scene.stage.renderFrame();
        const QList<NodeInfo> nodes = scene.nodes();
        QCOMPARE(nodes[1].rect.size(),
                 captionExtent(style.titleStyle, text, tileWidth - iconSize.width() - spacing).size());
        QCOMPARE(nodes[2].rect.size(), captionExtent(style.subtitleStyle, text, tileWidth).size());
        QCOMPARE(nodes[3].rect.size(), captionExtent(style.statusStyle, text, tileWidth).size());
        scene.tile.setFavorite(false);
        scene.stage.renderFrame();
        QCOMPARE(scene.nodes()[0].rect.size(), captionExtent(style.titleStyle, text, tileWidth).size());
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

    void aNullStyleTakesTheCaptionAway()
    {
        Scene scene;
        scene.stage.renderFrame();
        const QImage ground = scene.stage.picture();
        scene.fill();
        scene.tile.setFavorite(true);
        scene.stage.renderFrame();
        const QImage painted = scene.stage.picture();
        scene.tile.setStyle(nullptr);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), ground);
        scene.tile.setStyle(&scene.style);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), painted);
    }

    void anotherWindowShowsTheSamePicture()
    {
        Scene scene;
        scene.fill();
        scene.tile.setFavorite(true);
        scene.stage.renderFrame();
        stbtest::Stage other(scene.stage.size(), captionGround);
        scene.tile.setParentItem(other.contentItem());
        other.renderFrame();
        QCOMPARE(other.picture(), scene.stage.picture());
        scene.stage.renderFrame();
        scene.tile.setParentItem(scene.stage.contentItem());
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), other.picture());
    }

    void aNewStyleObjectIsTakenOverWhole()
    {
        TileStyle other = otherTileStyle();
        other.favouriteIconColor = oddTileStyle().favouriteIconColor; // the icon keeps its tint
        other.overlayColor = oddTileStyle().overlayColor; // and the frame what it was made with
        other.borderPen = oddTileStyle().borderPen;
        design_system::TileQmlStyle object;
        object.setStyle(other);
        Scene scene;
        scene.fill();
        scene.tile.setFavorite(true);
        scene.stage.renderFrame();
        scene.tile.setStyle(&object);
        scene.stage.renderFrame();

        Scene fresh;
        fresh.style.setStyle(other);
        fresh.fill();
        fresh.tile.setFavorite(true);
        fresh.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
    }

    void withoutANodeToFollowNothingIsDone()
    {
        Scene scene;
        scene.fill();
        QCOMPARE(scene.d()->updateExtendedNodes(oddTileStyle(), nullptr), nullptr);
    }

    void theHookReturnsTheLastNodeThereIs()
    {
        Scene scene;
        scene.tile.setStyle(&scene.style);
        scene.stage.renderFrame();
        QSGNode *given = stbtest::paintNode(&scene.tile)->lastChild();
        const auto last = [&] { return scene.d()->updateExtendedNodes(oddTileStyle(), given); };
        QCOMPARE(last(), given);
        scene.tile.setFavorite(true);
        scene.stage.renderFrame();
        QCOMPARE(last(), scene.nodes()[0].node);
        scene.tile.setTitle("Rivers");
        scene.stage.renderFrame();
        QCOMPARE(last(), scene.nodes()[1].node);
        scene.tile.setSubtitle("Part three");
        scene.stage.renderFrame();
        QCOMPARE(last(), scene.nodes()[2].node);
        scene.tile.setStatus("New");
        scene.stage.renderFrame();
        QCOMPARE(last(), scene.nodes()[3].node);
    }
};

STB_TEST_MAIN(tst_StbContentTile)
#include "tst_stbcontenttile.moc"
