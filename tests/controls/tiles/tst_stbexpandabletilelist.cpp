// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"
#include "tilescene.h"

#include <QtQml/qqmlcontext.h>
#include <QtQuick/private/qquickpixmapcache_p.h>

#include <utility>

namespace {

struct Scene : TileScene<StbExpandableTile>
{
    explicit Scene(const QString &view)
    {
        qml.engine()->rootContext()->setContextProperty("tileStyle", &style);
        list = qml.createItem("import QtQuick\nimport Stbui.UI.Qml.Controls.Basic\n" + view,
                              stage.contentItem());
        if (!list)
            qFatal("no view");
        stage.renderFrame();
        collect(list.get());
        std::sort(tiles.begin(), tiles.end(), [](const QQuickItem *a, const QQuickItem *b) {
            return a->y() < b->y() || (a->y() == b->y() && a->x() < b->x());
        });
    }
    void collect(QQuickItem *item)
    {
        for (QQuickItem *child : item->childItems()) {
            if (auto *found = qobject_cast<StbExpandableTile *>(child))
                tiles += found;
            collect(child);
        }
    }
    QList<QPointF> positions() const
    {
        QList<QPointF> result;
        for (const StbExpandableTile *found : tiles)
            result += found->position();
        return result;
    }

    std::unique_ptr<QQuickItem> list;
    QList<StbExpandableTile *> tiles;
};

} // namespace

// Views and positioners read the size of a tile, which its style writes without telling them.
class tst_StbExpandableTileList : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void viewsAndPositionersLayTilesOutByTheStylesSize_data()
    {
        QTest::addColumn<QString>("view");
        QTest::addColumn<QList<QPointF>>("expected");
        const QList<QPointF> row { QPointF(0, 0), QPointF(206, 0), QPointF(412, 0) };
        const QList<QPointF> column { QPointF(0, 0), QPointF(0, 118), QPointF(0, 236) };
        const QList<QPointF> grid { QPointF(0, 0), QPointF(206, 0), QPointF(0, 118) };
        QTest::newRow("horizontal ListView")
                << "ListView { width: 900; height: 300; orientation: ListView.Horizontal; spacing: 5; model: 3;"
                   " delegate: ExpandableTile { style: tileStyle } }"
                << row;
        QTest::newRow("vertical ListView") << "ListView { width: 300; height: 900; spacing: 5; model: 3;"
                                              " delegate: ExpandableTile { style: tileStyle } }"
                                           << column;
        QTest::newRow("delegates with bound sizes")
                << "ListView { id: view; width: 900; height: 300; orientation: ListView.Horizontal; spacing: 5;"
                   " model: 3; delegate: ExpandableTile { width: view.width / 9; height: view.height / 3;"
                   " style: tileStyle } }"
                << row;
        QTest::newRow("Row") << "Row { spacing: 5; Repeater { model: 3; ExpandableTile { style: tileStyle } } }"
                             << row;
        QTest::newRow("Grid") << "Grid { columns: 2; spacing: 5;"
                                 " Repeater { model: 3; ExpandableTile { style: tileStyle } } }"
                              << grid;
    }
    void viewsAndPositionersLayTilesOutByTheStylesSize()
    {
        QFETCH(QString, view);
        QFETCH(QList<QPointF>, expected);
        Scene scene(view);
        QCOMPARE(scene.positions(), expected);
        for (StbExpandableTile *tile : scene.tiles)
            QCOMPARE(tile->size(), QSizeF(201, 113));
    }

    void aTileThatGrowsOnFocusMovesNoOtherTile()
    {
        Scene scene("ListView { width: 900; height: 300; orientation: ListView.Horizontal; spacing: 5;"
                    " model: 3; delegate: ExpandableTile { style: tileStyle } }");
        const QList<QPointF> before = scene.positions();
        scene.tiles[1]->setState("focused");
        finish(tilePrivate(scene.tiles[1])->m_focusTimeLine);
        scene.stage.renderFrame();
        QCOMPARE(scene.tiles[1]->customFocusRect(), QRect(-23, -17, 253, 161));
        QCOMPARE(scene.positions(), before);
    }

    void aStateThatFollowsTheCurrentItemGrowsTheTileThatBecomesCurrent()
    {
        Scene scene("ListView { width: 900; height: 300; orientation: ListView.Horizontal; model: 3;"
                    " delegate: ExpandableTile { style: tileStyle;"
                    " state: ListView.isCurrentItem ? 'focused' : 'normal' } }");
        for (StbExpandableTile *tile : scene.tiles)
            finish(tilePrivate(tile)->m_focusTimeLine);
        QCOMPARE(scene.tiles[0]->state(), "focused");
        QCOMPARE(scene.tiles[0]->customFocusRect(), QRect(-23, -17, 253, 161));
        scene.list->setProperty("currentIndex", 2);
        QCOMPARE(scene.tiles[2]->state(), "focused");
        finish(tilePrivate(scene.tiles[2])->m_focusTimeLine);
        finish(tilePrivate(scene.tiles[0])->m_focusTimeLine);
        QCOMPARE(scene.tiles[2]->customFocusRect(), QRect(-23, -17, 253, 161));
        QCOMPARE(scene.tiles[0]->customFocusRect(), QRect(0, 0, 201, 113));
        QCOMPARE(scene.tiles[1]->customFocusRect(), QRect(0, 0, 201, 113));
    }

    void aTileThatAViewUsesAgainShowsItsNewPictureAtRest()
    {
        const QQuickPixmap red(QUrl("itemgrabber:red"), plainPicture(Qt::red));
        const QQuickPixmap blue(QUrl("itemgrabber:blue"), plainPicture(Qt::blue));
        Scene scene("ListView { width: 400; height: 300; orientation: ListView.Horizontal; model: 40;"
                    " reuseItems: true; cacheBuffer: 0; highlightMoveDuration: 0; delegate: ExpandableTile {"
                    " required property int index; style: tileStyle;"
                    " imageSource: index < 20 ? 'itemgrabber:red' : 'itemgrabber:blue';"
                    " state: ListView.isCurrentItem ? 'focused' : 'normal' } }");
        const QList<StbExpandableTile *> before = std::exchange(scene.tiles, {});
        advance(tilePrivate(before[0])->m_focusTimeLine, 0.5); // it is given up on its way
        for (const int current : { 10, 30 }) {
            scene.list->setProperty("currentIndex", current);
            scene.stage.renderFrame();
            scene.stage.renderFrame();
        }
        scene.collect(scene.list.get());
        int usedAgain = 0;
        for (StbExpandableTile *tile : std::as_const(scene.tiles)) {
            const int index = tile->property("index").toInt();
            if (index < 20)
                continue; // waits to be used
            finish(tilePrivate(tile)->m_focusTimeLine);
            scene.stage.renderFrame();
            usedAgain += before.contains(tile) ? 1 : 0;
            const QList<stbtest::NodeInfo> nodes = stbtest::childNodes(stbtest::paintNode(tile));
            QCOMPARE(nodes[0].pixmap.toImage().pixelColor(9, 9), QColor(Qt::blue));
            QCOMPARE(nodes[0].rect, index == 30 ? QRectF(-23, -17, 253, 161) : QRectF(0, 0, 201, 113));
        }
        QVERIFY(usedAgain > 0);
    }
};

STB_TEST_MAIN(tst_StbExpandableTileList)
#include "tst_stbexpandabletilelist.moc"
