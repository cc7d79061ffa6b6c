// SPDX-License-Identifier: MIT
#include "captionscene.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <controls/tiles/stbcontenttile.h>
#include <controls/tiles/stbcontenttile_p.h>

#include <QtGui/qpixmapcache.h>
#include <QtTest/qsignalspy.h>

using design_system::TileStyle;

// Where the resource macros stand must be outside any namespace.
static void setIconsAvailable(bool available)
{
    if (available)
        Q_INIT_RESOURCE(tst_stbcontenttile_icons);
    else
        Q_CLEANUP_RESOURCE(tst_stbcontenttile_icons);
}

namespace {

/* While it lives, the application has no icons. */
struct NoIcon
{
    NoIcon() { setIconsAvailable(false); }
    ~NoIcon() { setIconsAvailable(true); }
    Q_DISABLE_COPY_MOVE(NoIcon)
};

const QSize iconSize(19, 13); // of the test's own resource

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
        QVERIFY(stbtest::isPaintedIn(scene.d()->m_favoriteIcon.pixmap(), QColor(239, 67, 71)));
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

    void withoutTheIconsFileTheTitleStandsAloneAndThereIsNoHole()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        const QImage plain = scene.stage.picture();
        QPixmapCache::clear();
        {
            const NoIcon noIcon;
            scene.tile.setFavorite(true);
        }
        QVERIFY(scene.d()->m_favoriteIcon.isLoadAttempted());
        QVERIFY(!scene.d()->m_favoriteIcon.isLoaded());
        scene.stage.renderFrame();
        QVERIFY(scene.nodes()[0].rect.isEmpty());
        QCOMPARE(scene.nodes()[1].rect.left(), -1);
        QCOMPARE(scene.stage.picture(), plain);
    }

    void theIconKeepsTheTintOfTheStyleItWasReadWith()
    {
        Scene scene;
        scene.tile.setFavorite(true);
        scene.tile.setStyle(&scene.style);
        design_system::TileQmlStyle other;
        other.setStyle(otherTileStyle());
        scene.tile.setStyle(&other);
        QVERIFY(stbtest::isPaintedIn(scene.d()->m_favoriteIcon.pixmap(), QColor(239, 67, 71)));
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
