// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"
#include "tilescene.h"

#include <QtQml/qqmlcontext.h>

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
};

STB_TEST_MAIN(tst_StbExpandableTileList)
#include "tst_stbexpandabletilelist.moc"
