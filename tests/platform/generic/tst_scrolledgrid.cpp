// SPDX-License-Identifier: MIT
#include "generic/gridsteering.h"
#include "scrolledscene.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

using namespace Qt::StringLiterals;
using namespace scrolled;

class tst_ScrolledGrid : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    // --- grids ---

    void spacingComesBetweenItemsAndNotAfterThem()
    {
        ScrolledScene scene;
        QVERIFY(scene.showGrid());
        const QList<std::pair<int, QPointF>> places {
            { 0, { 47, 13 } }, { 1, { 47 + 124, 13 } }, { 3, { 47 + 3 * 124, 13 } }, { 4, { 47, 13 + 80 } }
        };
        for (const auto &[index, place] : places) {
            scene.goTo(index);
            QCOMPARE(scene.currentRect(), QRectF(place, QSizeF(101, 61)));
        }
    }

    void aRowThatFitsExactlyIsFull()
    {
        ScrolledScene scene;
        QVERIFY(scene.showGrid());
        scene.item->setWidth(47 + 5 * 101 + 4 * 23 + 59);
        scene.goTo(4);
        QCOMPARE(scene.currentRect(), QRectF(47 + 4 * 124, 13, 101, 61));
    }

    void aPixelLessIsAColumnLess()
    {
        ScrolledScene scene;
        QVERIFY(scene.showGrid());
        scene.item->setWidth(47 + 5 * 101 + 4 * 23 + 59 - 1);
        scene.goTo(4);
        QCOMPARE(scene.currentRect(), QRectF(47, 13 + 80, 101, 61));
    }

    void aMirroredGridBeginsAtTheRightMargin()
    {
        ScrolledScene scene;
        QVERIFY(scene.showGrid(u"LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true"_s));
        QCOMPARE(scene.currentRect(), QRectF(640 - 59 - 101, 13, 101, 61));
        QVERIFY(scene.press(Qt::Key_Left));
        QCOMPARE(scene.current(), 1);
        QCOMPARE(scene.currentRect(), QRectF(640 - 59 - 101 - 124, 13, 101, 61));
    }

    void theLastRowStandsAtTheLowerMargin()
    {
        ScrolledScene scene;
        QVERIFY(scene.showGrid());
        scene.goTo(39);
        QCOMPARE(scene.currentRect().bottom(), 360 - 17);
    }

    void arrowsGoThroughTheGrid()
    {
        ScrolledScene scene;
        QVERIFY(scene.showGrid());
        const QList<std::pair<Qt::Key, int>> steps {
            { Qt::Key_Right, 1 }, { Qt::Key_Down, 5 }, { Qt::Key_Left, 4 }, { Qt::Key_Up, 0 }
        };
        for (const auto &[key, index] : steps) {
            QVERIFY(scene.press(key));
            QCOMPARE(scene.current(), index);
        }
        QVERIFY(!scene.press(Qt::Key_Up));
        QVERIFY(!scene.press(Qt::Key_Left));
        scene.hold(Qt::Key_Down, 3);
        QCOMPARE(scene.current(), 16);
    }

    void downFromAboveTheGapOfAShortRowLeadsToTheLastItem()
    {
        ScrolledScene scene;
        QVERIFY(scene.showGrid({}, 10)); // rows of 4, 4 and 2
        const QList<std::pair<int, int>> steps { { 4, 8 }, { 5, 9 }, { 6, 9 }, { 7, 9 } };
        for (const auto &[from, to] : steps) {
            scene.goTo(from);
            QVERIFY(scene.press(Qt::Key_Down));
            QCOMPARE(scene.current(), to);
            QVERIFY(!scene.press(Qt::Key_Down));
            QCOMPARE(scene.current(), to);
        }
        scene.goTo(2);
        scene.hold(Qt::Key_Down, 3);
        QCOMPARE(scene.current(), 9);
    }

    void atTheSidesTheFocusLeavesInsteadOfGoingOnInAnotherRow_data()
    {
        QTest::addColumn<QString>("properties");
        QTest::addColumn<Qt::Key>("toFirst");
        QTest::addColumn<Qt::Key>("toLast");
        QTest::newRow("as it is") << QString() << Qt::Key_Left << Qt::Key_Right;
        QTest::newRow("mirrored") << u"LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true"_s
                                  << Qt::Key_Right << Qt::Key_Left;
    }

    void atTheSidesTheFocusLeavesInsteadOfGoingOnInAnotherRow()
    {
        QFETCH(QString, properties);
        QFETCH(Qt::Key, toFirst);
        QFETCH(Qt::Key, toLast);
        ScrolledScene scene;
        QVERIFY(scene.showGrid(properties, 10));
        const QList<std::pair<int, Qt::Key>> edges { { 0, toFirst }, { 4, toFirst }, { 8, toFirst },
                                                     { 3, toLast },  { 7, toLast },  { 9, toLast } };
        for (const auto &[index, key] : edges) {
            scene.goTo(index);
            QVERIFY(!scene.press(key));
            QCOMPARE(scene.current(), index);
        }
        scene.goTo(5);
        QVERIFY(scene.press(toFirst));
        QCOMPARE(scene.current(), 4);
    }

    void aGridThatWrapsGoesOnInTheNextRow()
    {
        ScrolledScene scene;
        QVERIFY(scene.showGrid(u"keyNavigationWraps: true"_s, 10));
        scene.goTo(3);
        QVERIFY(scene.press(Qt::Key_Right));
        QCOMPARE(scene.current(), 4);
        QVERIFY(scene.press(Qt::Key_Left));
        QCOMPARE(scene.current(), 3);
        scene.goTo(6);
        QVERIFY(scene.press(Qt::Key_Down));
        QCOMPARE(scene.current(), 9);
    }

    void aGridWithoutKeysTakesNone()
    {
        ScrolledScene scene;
        QVERIFY(scene.showGrid({}, 10));
        scene.item->property("view").value<QObject *>()->setProperty("keyNavigationEnabled", false);
        scene.goTo(6);
        QVERIFY(!scene.press(Qt::Key_Down));
        QCOMPARE(scene.current(), 6);
    }

    void anEmptyGridAndASingleColumnHaveNoGap()
    {
        using stbgeneric::GridStep;
        using stbgeneric::gridStep;
        QCOMPARE(gridStep(Qt::Key_Down, -1, 0, 4, false), GridStep::Usual);
        QCOMPARE(gridStep(Qt::Key_Down, -1, 5, 4, false), GridStep::Usual); // no item is current
        QCOMPARE(gridStep(Qt::Key_Down, 0, 3, 0, false), GridStep::Usual);
        QCOMPARE(gridStep(Qt::Key_Down, 1, 3, 1, false), GridStep::Usual);
        QCOMPARE(gridStep(Qt::Key_Left, 1, 3, 1, false), GridStep::Leave);
        QCOMPARE(gridStep(Qt::Key_Right, 1, 3, 1, false), GridStep::Leave);
        QCOMPARE(gridStep(Qt::Key_Up, 6, 10, 4, false), GridStep::Usual);
    }

    void theGridItselfCanBeReached()
    {
        ScrolledScene scene;
        QVERIFY(scene.showGrid());
        auto *grid = scene.item->property("view").value<QQuickItem *>();
        QVERIFY(grid);
        QVERIFY(QMetaObject::invokeMethod(grid, "positionViewAtIndex", Q_ARG(int, 39), Q_ARG(int, 1)));
        QVERIFY(scene.item->property("contentY").toDouble() > 300);
    }

    void aNameGivenByTheUserIsTheNameOfTheObject()
    {
        ScrolledScene scene;
        QVERIFY(scene.showGrid(u"objectName: 'contentView'"_s));
        QCOMPARE(scene.item->objectName(), u"contentView"_s);
        QVERIFY(scene.showRow(u"objectName: 'contentView'"_s));
        QCOMPARE(scene.item->objectName(), u"contentView"_s);
    }

    // --- pictures ---

    void lookOfAGrid_data()
    {
        QTest::addColumn<QString>("properties");
        QTest::newRow("scrolledgrid") << QString();
        QTest::newRow("scrolledgrid-mirrored")
                << u"LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true"_s;
    }

    void lookOfAGrid()
    {
        QFETCH(QString, properties);
        ScrolledScene scene;
        QVERIFY(scene.showGrid(
                u"currentIndex: 22; delegate: Rectangle { width: 101; height: 61\n"
                "color: GridView.isCurrentItem ? 'white' : 'teal' }\n"
                "scrollBar: ScrollBar { backgroundColor: '#203040'; sliderColor: '#ff8000' }\n"_s
                + properties));
        scene.stage.renderFrame();
        STB_COMPARE_GOLDEN(scene.stage.picture(), QString::fromLatin1(QTest::currentDataTag()));
    }
};

STB_TEST_MAIN(tst_ScrolledGrid)
#include "tst_scrolledgrid.moc"
