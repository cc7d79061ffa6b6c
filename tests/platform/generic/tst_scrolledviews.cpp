// SPDX-License-Identifier: MIT
#include "scrolledscene.h"
#include "testkit/counters.h"
#include "testkit/testcase.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace scrolled;

class tst_ScrolledViews : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    // --- lists ---

    void theFirstItemStandsAtTheMargin()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow());
        QCOMPARE(scene.currentRect(), QRectF(47, 0, 101, 61));
        QVERIFY(scene.showList());
        QCOMPARE(scene.currentRect(), QRectF(0, 13, 101, 61));
    }

    void theLastItemStandsAtTheMargin()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow());
        scene.goTo(19);
        QCOMPARE(scene.currentRect().right(), 640 - 59);
        QVERIFY(scene.showList());
        scene.goTo(19);
        QCOMPARE(scene.currentRect().bottom(), 360 - 17);
    }

    void theCurrentItemStaysWithinTheMargins_data()
    {
        QTest::addColumn<QString>("view");
        QTest::addColumn<QString>("properties");
        for (const char *view : { "row", "list", "grid" }) {
            QTest::addRow("%s", view) << QString::fromLatin1(view) << QString();
            QTest::addRow("%s, right to left", view)
                    << QString::fromLatin1(view) << u"layoutDirection: Qt.RightToLeft"_s;
            QTest::addRow("%s, mirrored", view)
                    << QString::fromLatin1(view) << u"LayoutMirroring.enabled: true"_s;
        }
    }

    void theCurrentItemStaysWithinTheMargins()
    {
        QFETCH(QString, view);
        QFETCH(QString, properties);
        ScrolledScene scene;
        QVERIFY(view == u"row"    ? scene.showRow(properties)
                : view == u"list" ? scene.showList(properties)
                                  : scene.showGrid(properties));
        const QRectF room = view == u"list"  ? QRectF(0, 13, 300, 360 - 13 - 17)
                            : view == u"row" ? QRectF(47, 0, 640 - 47 - 59, 100)
                                             : QRectF(47, 13, 640 - 47 - 59, 360 - 13 - 17);
        for (const int index : { 1, 4, 5, 6, 19, 12, 11, 3, 17, 0, 19, 7 }) {
            scene.goTo(index);
            QVERIFY2(room.contains(scene.currentRect()), qPrintable(QString::number(index)));
        }
    }

    void nothingMovesWhileTheCurrentItemIsInView()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow());
        const QVariant before = scene.item->property("contentX");
        scene.goTo(3);
        QCOMPARE(scene.item->property("contentX"), before);
    }

    void anArrowGoesOnByOneItem()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow());
        QVERIFY(scene.press(Qt::Key_Right));
        QCOMPARE(scene.current(), 1);
        QVERIFY(scene.press(Qt::Key_Left));
        QCOMPARE(scene.current(), 0);
        QVERIFY(scene.showList());
        QVERIFY(scene.press(Qt::Key_Down));
        QCOMPARE(scene.current(), 1);
    }

    void anArrowThatIsHeldGoesOnByOneItemEachTime()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow());
        scene.hold(Qt::Key_Right, 6);
        QCOMPARE(scene.current(), 7);
    }

    void arrowsAtTheEndsAndAcrossAreLeftToOthers()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow());
        QVERIFY(!scene.press(Qt::Key_Left));
        QVERIFY(!scene.press(Qt::Key_Down));
        QVERIFY(!scene.press(Qt::Key_Up));
        scene.goTo(19);
        QVERIFY(!scene.press(Qt::Key_Right));
    }

    void arrowsAreThoseOfTheScreenInAMirroredRow()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow(u"LayoutMirroring.enabled: true"_s));
        QCOMPARE(scene.currentRect().right(), 640 - 59); // the row begins at the right margin
        QVERIFY(!scene.press(Qt::Key_Right));
        QVERIFY(scene.press(Qt::Key_Left));
        QCOMPARE(scene.current(), 1);
    }

    void keysActWhenDraggingIsOff()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow(u"interactive: false"_s));
        QVERIFY(scene.press(Qt::Key_Right));
        QCOMPARE(scene.current(), 1);
    }

    void theCurrentItemHasTheFocus()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow());
        scene.press(Qt::Key_Right);
        QCOMPARE(scene.focusItem(), scene.item->property("currentItem").value<QQuickItem *>());
    }

    void anEmptyViewTakesKeysWithoutHarm()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow({}, 0));
        QVERIFY(!scene.press(Qt::Key_Right));
        QVERIFY(scene.showGrid({}, 0));
        QVERIFY(!scene.press(Qt::Key_Down));
    }

    void theCurrentItemStaysInViewWhenItemsComeAndGo_data()
    {
        QTest::addColumn<bool>("isGrid");
        QTest::newRow("row") << false;
        QTest::newRow("grid") << true;
    }

    void theCurrentItemStaysInViewWhenItemsComeAndGo()
    {
        QFETCH(bool, isGrid);
        ScrolledScene scene;
        const QString model = u"property ListModel items: ListModel {}\n"
                              "function add() { items.insert(0, { name: 'x' }) }\n"
                              "function take() { items.remove(0) }\n"
                              "Component.onCompleted: { for (let i = 0; i < 30; ++i) add()\n"
                              "model = items }"_s;
        QVERIFY(isGrid ? scene.showGrid(model) : scene.showRow(model));
        scene.goTo(4);
        const auto change = [&scene](const char *function) {
            QMetaObject::invokeMethod(scene.item.get(), function);
            scene.settle();
            const QRectF rect = scene.currentRect();
            return rect.left() >= 47 && rect.right() <= 640 - 59 && rect.top() >= 0 && rect.bottom() <= 360;
        };
        for (int i = 1; i <= 9; ++i) {
            QVERIFY2(change("add"), qPrintable(QString::number(i)));
            QCOMPARE(scene.current(), 4 + i);
        }
        for (int i = 1; i <= 7; ++i) {
            QVERIFY2(change("take"), qPrintable(QString::number(i)));
            QCOMPARE(scene.current(), 13 - i);
        }
    }

    // --- movement ---

    void aViewThatIsToldNotToFollowStaysWhereItIs()
    {
        ScrolledScene scene;
        QVERIFY(scene.showList(u"highlightFollowsCurrentItem: false"_s));
        scene.goTo(19);
        const double before = scene.item->property("contentY").toDouble();
        scene.item->setProperty("model", 25);
        scene.settle();
        QCOMPARE(scene.item->property("highlightFollowsCurrentItem").toBool(), false);
        QCOMPARE(scene.item->property("contentY").toDouble(), before);
    }

    void theViewTakesItsTimeToFollow()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow(u"highlightMoveDuration: 200; currentIndex: 4"_s));
        for (int frame = 0; frame < 20; ++frame)
            scene.passFrame();
        QCOMPARE(scene.currentRect().right(), 640 - 59);
        scene.time.restart();
        scene.setCurrent(5);
        QList<double> places { scene.currentRect().right() };
        for (int frame = 0; frame < 20; ++frame) {
            scene.passFrame();
            places.append(scene.currentRect().right());
        }
        QCOMPARE(places.constFirst(), 640 - 59 + 112);
        QCOMPARE(places.constLast(), 640 - 59);
        QVERIFY(std::is_sorted(places.rbegin(), places.rend()));
        const auto underWay = std::count_if(places.begin() + 1, places.end(), [](double place) {
            return place < 640 - 59 + 112 && place > 640 - 59;
        });
        QVERIFY2(underWay >= 5 && underWay <= 11, qPrintable(QString::number(underWay))); // frames of 20 ms
    }

    void withoutDurationTheViewFollowsAtOnce()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow(u"highlightMoveDuration: 0"_s));
        scene.goTo(8);
        QCOMPARE(scene.currentRect().right(), 640 - 59);
    }

    void aHeldKeyScrollsWithoutStandingStillOrJumping_data()
    {
        QTest::addColumn<bool>("isGrid");
        QTest::newRow("row") << false;
        QTest::newRow("grid") << true;
    }

    // A key that repeats ten times a second, at 50 frames a second.
    void aHeldKeyScrollsWithoutStandingStillOrJumping()
    {
        QFETCH(bool, isGrid);
        ScrolledScene scene;
        QVERIFY(isGrid ? scene.showGrid(u"highlightMoveDuration: 200"_s, 200)
                       : scene.showRow(u"highlightMoveDuration: 200"_s, 200));
        const Qt::Key key = isGrid ? Qt::Key_Down : Qt::Key_Right;
        const char *position = isGrid ? "contentY" : "contentX";
        const double step = isGrid ? 80 : 112;
        scene.send(QEvent::KeyPress, key, false, {});
        QList<double> moves;
        for (int repeat = 0; repeat < 30; ++repeat) {
            scene.send(QEvent::KeyPress, key, true, {});
            for (int frame = 0; frame < 5; ++frame) { // 100 ms
                const double before = scene.item->property(position).toDouble();
                scene.passFrame();
                moves.append(scene.item->property(position).toDouble() - before);
            }
        }
        moves = moves.mid(50); // under way
        QVERIFY2(*std::min_element(moves.begin(), moves.end()) > 0, "it stands still");
        QVERIFY2(*std::max_element(moves.begin(), moves.end()) < step, "it jumps");
    }

    // --- costs ---

    void delegatesAreUsedAgain()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow(countingDelegate, 100));
        for (int i = 0; i < 60; ++i) {
            scene.press(Qt::Key_Right);
            scene.settle();
        }
        const int made = scene.item->property("made").toInt();
        QVERIFY2(made <= 10, qPrintable(QString::number(made)));
    }

    void delegatesThatKeepTheirContentCanBeMadeAnew()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow(u"reuseItems: false\n"_s + countingDelegate, 100));
        for (int i = 0; i < 60; ++i) {
            scene.press(Qt::Key_Right);
            scene.settle();
        }
        QVERIFY(scene.item->property("made").toInt() >= 60);
    }

    void noItemsAreMadeAheadOfNeed()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow(countingDelegate, 100));
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::processEvents();
            scene.stage.renderFrame();
        }
        QVERIFY(scene.item->property("made").toInt() <= 7); // six are seen at least in part
    }

    void aStepWithinTheViewPaintsNothingByItself()
    {
        ScrolledScene scene;
        QVERIFY(scene.showRow());
        QCOMPARE(stbtest::pixelsPainted(scene.stage, [&scene] { scene.press(Qt::Key_Right); }), 0);
    }
};

STB_TEST_MAIN(tst_ScrolledViews)
#include "tst_scrolledviews.moc"
