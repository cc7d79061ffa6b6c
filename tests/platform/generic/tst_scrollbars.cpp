// SPDX-License-Identifier: MIT
#include "scrolledscene.h"
#include "testkit/testcase.h"

using namespace Qt::StringLiterals;
using namespace scrolled;

class tst_ScrollBars : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    // --- scroll bars ---

    void aListHasAScrollBarWhenNotAllFits()
    {
        ScrolledScene scene;
        QVERIFY(scene.showList());
        QVERIFY(scene.scrollBar()->isVisible());
        QCOMPARE(scene.scrollBar()->x() + scene.scrollBar()->width(), 300);
        QVERIFY(scene.showList({}, 5)); // 5 * 61 + 4 * 3 + 13 + 17 = 347
        QVERIFY(!scene.scrollBar()->isVisible());
        QVERIFY(scene.showList({}, 6));
        QVERIFY(scene.scrollBar()->isVisible());
    }

    void aRowHasNoScrollBarUnlessItIsGivenOne()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow());
        QVERIFY(!scene.scrollBar()->isVisible());
        QVERIFY(scene.showRow(u"scrollBar: ScrollBar { objectName: 'own' }"_s));
        QVERIFY(scene.scrollBar()->isVisible());
        QCOMPARE(scene.scrollBar()->objectName(), u"own"_s);
        QCOMPARE(scene.scrollBar()->y() + scene.scrollBar()->height(), 100);
    }

    void theScrollBarFollowsTheList()
    {
        ScrolledScene scene;
        QVERIFY(scene.showList());
        const auto position = [&scene] { return scene.scrollBar()->property("visualPosition").toDouble(); };
        const auto size = [&scene] { return scene.scrollBar()->property("visualSize").toDouble(); };
        QCOMPARE(position(), 0.0);
        scene.goTo(19);
        scene.stage.renderFrame();
        QVERIFY(qAbs(position() + size() - 1) < 0.001);
    }

    void aGridsScrollBarIsBesideTheLastColumn()
    {
        ScrolledScene scene;
        QVERIFY(scene.showGrid());
        const auto place = [&scene] {
            const QQuickItem *bar = scene.scrollBar();
            return bar->mapRectToItem(scene.item.get(), QRectF(QPointF(), bar->size()));
        };
        QVERIFY(scene.scrollBar()->isVisible());
        QCOMPARE(place(), QRectF(640 - 59 + 12, 0, 6, 360));
        QVERIFY(scene.showGrid(u"rightMargin: 0"_s));
        QCOMPARE(place(), QRectF(640 - 6, 0, 6, 360));
        QVERIFY(scene.showGrid(u"LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true"_s));
        QCOMPARE(place(), QRectF(47 - 12 - 6, 0, 6, 360));
    }

    void aGridShowsItsScrollBarWhenNotAllFits()
    {
        ScrolledScene scene;
        QVERIFY(scene.showGrid({}, 16)); // 4 * 61 + 3 * 19 + 13 + 17 = 331
        QVERIFY(!scene.scrollBar()->isVisible());
        QVERIFY(scene.showGrid({}, 17));
        QVERIFY(scene.scrollBar()->isVisible());
    }

    void aGridTakesAnotherScrollBar()
    {
        ScrolledScene scene;
        QVERIFY(scene.showGrid(u"scrollBar: ScrollBar { objectName: 'own'; thickness: 9 }"_s));
        QCOMPARE(scene.scrollBar()->objectName(), u"own"_s);
        QVERIFY(scene.scrollBar()->isVisible());
        QCOMPARE(scene.scrollBar()->mapRectToItem(scene.item.get(),
                                                  QRectF(QPointF(), scene.scrollBar()->size())),
                 QRectF(640 - 59 + 12, 0, 9, 360));
    }

    void theScrollBarIsPaintedInItsColours()
    {
        ScrolledScene scene;
        QVERIFY(scene.showList(
                u"scrollBar: ScrollBar { backgroundColor: '#203040'; sliderColor: '#ff8000' }"_s));
        QCOMPARE(scene.stage.picture().pixelColor(297, 2), QColor(0xff, 0x80, 0x00));
        QCOMPARE(scene.stage.picture().pixelColor(297, 357), QColor(0x20, 0x30, 0x40));
    }

    void aScrollBarStandsAlone()
    {
        ScrolledScene scene;
        QVERIFY(scene.show(u"ScrollBar { height: 100; size: 0.25; position: 0.5; sliderColor: 'red'\n"
                           "backgroundColor: 'transparent' }"_s));
        QVERIFY(scene.item->isVisible());
        QCOMPARE(scene.item->width(), 6);
        QCOMPARE(scene.stage.picture().pixelColor(3, 51), QColor(Qt::red));
        QCOMPARE(scene.stage.picture().pixelColor(3, 73), QColor(Qt::red));
        QCOMPARE(scene.stage.picture().pixelColor(3, 48), QColor(16, 20, 28));
        QCOMPARE(scene.stage.picture().pixelColor(3, 77), QColor(16, 20, 28));
    }

    void byItselfAScrollBarRunsOnAPalerTrack()
    {
        ScrolledScene scene;
        QVERIFY(scene.show(u"ScrollBar { height: 100; size: 0.25; position: 0.5 }"_s));
        const QColor slider = scene.stage.picture().pixelColor(3, 60);
        const QColor track = scene.stage.picture().pixelColor(3, 20);
        QCOMPARE(slider, QColor("gray"));
        QVERIFY(track.lightness() > QColor(16, 20, 28).lightness() + 15);
        QVERIFY(track.lightness() < slider.lightness() - 40);
    }

    void aScrollBarWithAPolicyIsShownOrNot()
    {
        ScrolledScene scene;
        QVERIFY(scene.show(u"ScrollBar { height: 100; size: 1 }"_s));
        QVERIFY(!scene.item->isVisible());
        QVERIFY(scene.show(u"ScrollBar { height: 100; size: 1; policy: T.ScrollBar.AlwaysOn }"_s));
        QVERIFY(scene.item->isVisible());
        QVERIFY(scene.show(u"ScrollBar { height: 100; size: 0.5; policy: T.ScrollBar.AlwaysOff }"_s));
        QVERIFY(!scene.item->isVisible());
    }

    void theSliderOfAVeryLongListIsStillSeen()
    {
        ScrolledScene scene;
        QVERIFY(scene.show(u"ScrollBar { height: 100; size: 0.0001; sliderColor: 'red' }"_s));
        QCOMPARE(scene.stage.picture().pixelColor(3, 2), QColor(Qt::red));
        QCOMPARE(scene.item->property("visualSize").toDouble(), 0.06);
    }

    // --- for people who do not see it ---

    void viewsAreListsWithNames()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow());
        QCOMPARE(stbtest::accessible(scene.item.get())->role(), QAccessible::List);
        QVERIFY(!stbtest::accessible(scene.item.get())->text(QAccessible::Name).isEmpty());
        QVERIFY(scene.showGrid(u"Accessible.name: 'Films'"_s));
        QCOMPARE(stbtest::accessible(scene.item.get())->role(), QAccessible::List);
        QCOMPARE(stbtest::accessible(scene.item.get())->text(QAccessible::Name), u"Films"_s);
    }

    void aScrollBarSaysWhatItIs()
    {
        ScrolledScene scene;
        QVERIFY(scene.showList());
        QAccessibleInterface *bar = stbtest::accessible(scene.scrollBar());
        QVERIFY(bar);
        QCOMPARE(bar->role(), QAccessible::ScrollBar);
        QCOMPARE(bar->text(QAccessible::Name), u"Scroll bar"_s);
    }

    void aScrollBarSaysHowFarTheViewHasScrolled()
    {
        ScrolledScene scene;
        QVERIFY(scene.show(u"ScrollBar { height: 100; size: 0.25; position: 0.5 }"_s));
        QAccessibleInterface *bar = stbtest::accessible(scene.item.get());
        QVERIFY(bar && bar->valueInterface());
        // From Qt 6.11 on Qt tells the same in percent.
        const double whole = bar->valueInterface()->maximumValue().toDouble();
        QCOMPARE(bar->valueInterface()->minimumValue().toDouble(), 0.0);
        QCOMPARE(bar->valueInterface()->currentValue().toDouble() / whole, 0.5 / 0.75);
        QCOMPARE(scene.item->property("maximumValue").toDouble(), 0.75);
        scene.item->setProperty("size", 1.5);
        QCOMPARE(scene.item->property("maximumValue").toDouble(), 0.0);
    }
};

STB_TEST_MAIN(tst_ScrollBars)
#include "tst_scrollbars.moc"
