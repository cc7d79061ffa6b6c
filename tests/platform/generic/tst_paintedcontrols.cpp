// SPDX-License-Identifier: MIT
#include "genericscene.h"
#include "testkit/counters.h"
#include "testkit/testcase.h"

#include <generic/horizontalfadeeffect.h>
#include <generic/progresscircle.h>
#include <generic/throbber.h>

#include <QtGui/qaccessible.h>
#include <QtTest/qsignalspy.h>

using stbgeneric::Throbber;

namespace {

// How opaque the black of a fade over white is, in per cent.
int blackness(const QColor &color)
{
    return 100 - qRound(color.red() / 2.55);
}

} // namespace

class tst_PaintedControls : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    // --- the busy indicator and its arc ---

    void theArcTurnsOnlyWhileItRunsInAWindowAndIsSeen()
    {
        GenericScene scene("Item { BusyIndicator {} }");
        auto *arc = scene.item->findChild<Throbber *>();
        if (!arc)
            arc = qobject_cast<Throbber *>(GenericScene::childOf(scene.item.get(), "stbgeneric::Throbber"));
        QVERIFY(arc && arc->isTurning());
        QQuickItem *indicator = scene.item->childItems().first();
        indicator->setProperty("running", false);
        QVERIFY(!arc->isTurning());
        QVERIFY2(!arc->isVisible(), "what does not run is not shown");
        indicator->setProperty("running", true);
        QVERIFY(arc->isTurning());
        indicator->setVisible(false);
        QVERIFY(!arc->isTurning());
        indicator->setVisible(true);
        QVERIFY(arc->isTurning());
        indicator->setProperty("animationInterval", 0);
        QVERIFY(!arc->isTurning());
        indicator->setProperty("animationInterval", 17);
        QVERIFY(arc->isTurning());
        scene.item->setParentItem(nullptr);
        QVERIFY(!arc->isTurning());
    }

    void theArcStandsStillWhileItIsEmptyOrClear()
    {
        GenericScene scene("Throbber { width: 40; height: 40 }");
        auto *arc = qobject_cast<Throbber *>(scene.item.get());
        QVERIFY(arc->isTurning());
        for (const char *property : { "opacity", "width", "height" }) {
            const QVariant before = arc->property(property);
            arc->setProperty(property, 0);
            QVERIFY2(!arc->isTurning(), property);
            arc->setProperty(property, before);
            QVERIFY2(arc->isTurning(), property);
        }
    }

    void aStepThatNobodyCanSeePaintsNothing_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("hidden");
        QTest::addColumn<QVariant>("shown");
        QTest::newRow("something around it is clear")
                << QByteArray("opacity") << QVariant(0) << QVariant(0.5);
        QTest::newRow("outside the window") << QByteArray("x") << QVariant(400) << QVariant(390);
        QTest::newRow("above the window") << QByteArray("y") << QVariant(-80) << QVariant(-70);
        QTest::newRow("outside of what clips it") << QByteArray("clip") << QVariant(true) << QVariant(false);
    }

    void aStepThatNobodyCanSeePaintsNothing()
    {
        QFETCH(QByteArray, property);
        QFETCH(QVariant, hidden);
        QFETCH(QVariant, shown);
        GenericScene scene(
                "Item { width: 40; height: 40; Throbber { y: 40; width: 40; height: 40; interval: 400 } }");
        auto *arc = qobject_cast<Throbber *>(scene.item->childItems().first());
        QVERIFY(arc);
        QVERIFY(scene.item->setProperty(property, hidden));
        scene.stage.renderFrame();
        arc->step();
        QVERIFY(scene.stage.renderFrame().isEmpty());
        QVERIFY(scene.item->setProperty(property, shown));
        scene.stage.renderFrame();
        arc->step();
        QVERIFY(!scene.stage.renderFrame().isEmpty());
    }

    void aStepTurnsTheArcAndPaintsItsOwnRectangle()
    {
        GenericScene scene("BusyIndicator { x: 30; y: 40; throbberWidth: 60; throbberHeight: 60\n"
                           "throbberPenWidth: 8; header: 'Wait'; animationInterval: 300 }",
                           QSize(400, 200), Qt::black);
        auto *arc = qobject_cast<Throbber *>(GenericScene::childOf(scene.item.get(), "stbgeneric::Throbber"));
        QVERIFY(arc);
        scene.stage.renderFrame();
        const QPoint corner = arc->mapToScene(QPointF()).toPoint();
        const auto top = [&] { return scene.pixel(corner.x() + 30, corner.y() + 4); };
        const auto left = [&] { return scene.pixel(corner.x() + 4, corner.y() + 30); };
        QVERIFY2(top().red() > 240, "the head is at twelve o'clock");
        arc->step(); // a quarter turn
        const QRegion painted = scene.stage.renderFrame();
        QCOMPARE(painted.boundingRect(), QRect(corner, QSize(60, 60)));
        const QColor quarter = left();
        for (int i = 0; i < 3; ++i)
            arc->step();
        scene.stage.renderFrame();
        QVERIFY2(top().red() > 240, "a turn has 1.2 s");
        QVERIFY(quarter != left());
    }

    void theArcHasTheHeadersColourOnAPalerRing()
    {
        GenericScene scene("BusyIndicator { headerColor: '#d01020' }");
        auto *arc = qobject_cast<Throbber *>(GenericScene::childOf(scene.item.get(), "stbgeneric::Throbber"));
        QVERIFY(arc);
        QCOMPARE(arc->color(), QColor("#d01020"));
        QCOMPARE(arc->trackColor().rgb(), QColor("#d01020").rgb());
        QVERIFY(arc->trackColor().alpha() < 64);
        scene.item->setProperty("throbberColor", QColor("#1020d0"));
        QCOMPARE(arc->color(), QColor("#1020d0"));
    }

    void theTextsStandBelowTheArcWithTheirMargins()
    {
        GenericScene scene("BusyIndicator { width: 300; header: 'Header'; description: 'Text'; spacing: 9\n"
                           "throbberHeight: 51; headerLeftMargin: 11; headerRightMargin: 13\n"
                           "descriptionLeftMargin: 17; descriptionRightMargin: 19 }");
        const QList<QQuickItem *> parts = scene.item->childItems().first()->childItems();
        QCOMPARE(parts.size(), 3);
        QCOMPARE(parts[0]->height(), 51.0);
        QCOMPARE(parts[1]->y(), 60.0);
        QCOMPARE(parts[1]->x(), 11.0);
        QCOMPARE(parts[1]->width(), 276.0);
        QCOMPARE(parts[2]->y(), 69.0 + parts[1]->height());
        QCOMPARE(parts[2]->x(), 17.0);
        QCOMPARE(parts[2]->width(), 264.0);
        QCOMPARE(scene.item->implicitHeight(), 78.0 - 9 + parts[1]->height() + parts[2]->height());
        scene.item->setProperty("header", QString());
        scene.stage.renderFrame();
        QCOMPARE(parts[2]->y(), 60.0);
        QVERIFY(!parts[1]->isVisible());
    }

    // --- the progress circle ---

    void theArcCoversTheShareOfTheRing()
    {
        GenericScene scene("CircleProgressBar { width: 80; height: 80; barWidth: 10; barColor: '#00ff00'\n"
                           "barBackgroundColor: '#0000ff'; from: 20; to: 60; value: 30 }");
        QVERIFY(scene.item);
        QCOMPARE(scene.item->property("position").toReal(), 0.25);
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(65, 14), QColor("#00ff00")); // half past one
        QCOMPARE(scene.pixel(65, 65), QColor("#0000ff"));
        QCOMPARE(scene.pixel(14, 14), QColor("#0000ff"));
        QCOMPARE(scene.pixel(40, 40), QColor(Qt::white));
        scene.item->setProperty("value", 50);
        QVERIFY(QRect(0, 0, 80, 80).contains(scene.stage.renderFrame().boundingRect()));
        QCOMPARE(scene.pixel(65, 65), QColor("#00ff00"));
        QCOMPARE(scene.pixel(14, 65), QColor("#00ff00"));
        QCOMPARE(scene.pixel(14, 14), QColor("#0000ff"));
    }

    void theArcKeepsWithinTheRing_data()
    {
        QTest::addColumn<double>("from");
        QTest::addColumn<double>("to");
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("position");
        QTest::newRow("below") << 0.0 << 1.0 << -3.0 << 0.0;
        QTest::newRow("above") << 0.0 << 1.0 << 7.0 << 1.0;
        QTest::newRow("backwards") << 10.0 << 0.0 << 7.5 << 0.25;
        QTest::newRow("no range") << 5.0 << 5.0 << 5.0 << 0.0;
        QTest::newRow("no number") << 0.0 << 1.0 << std::numeric_limits<double>::quiet_NaN() << 0.0;
        QTest::newRow("without end") << 0.0 << 1.0 << std::numeric_limits<double>::infinity() << 0.0;
    }
    void theArcKeepsWithinTheRing()
    {
        QFETCH(double, from);
        QFETCH(double, to);
        QFETCH(double, value);
        stbgeneric::ProgressCircle circle;
        circle.setFrom(from);
        circle.setTo(to);
        circle.setValue(value);
        QTEST(circle.position(), "position");
    }

    void aChangeTooSmallToSeePaintsNothing()
    {
        GenericScene scene("CircleProgressBar { value: 0.5 }");
        scene.stage.renderFrame();
        QSignalSpy changed(scene.item.get(), SIGNAL(valueChanged()));
        scene.item->setProperty("value", 0.50001);
        QCOMPARE(changed.count(), 1);
        QVERIFY(scene.stage.renderFrame().isEmpty());
        scene.item->setProperty("value", 0.51);
        QVERIFY(!scene.stage.renderFrame().isEmpty());
    }

    void assistiveProgramsSeeTheRoles()
    {
        QAccessible::setActive(true);
        GenericScene scene("Item { CircleProgressBar { value: 0.356 } BusyIndicator { header: 'Loading' } }");
        const auto *bar = QAccessible::queryAccessibleInterface(scene.item->childItems().first());
        QVERIFY(bar);
        QCOMPARE(bar->role(), QAccessible::ProgressBar);
        QCOMPARE(bar->text(QAccessible::Description), "36%");
        const auto *busy = QAccessible::queryAccessibleInterface(scene.item->childItems().last());
        QVERIFY(busy);
        QCOMPARE(busy->role(), QAccessible::Indicator);
        QCOMPARE(busy->text(QAccessible::Name), "Loading");
        QAccessible::setActive(false);
    }

    void controlsWithoutWordsHaveNames()
    {
        QAccessible::setActive(true);
        GenericScene scene("Item { CircleProgressBar { from: 10; to: 90; value: 37 } BusyIndicator {} }");
        auto *bar = QAccessible::queryAccessibleInterface(scene.item->childItems().first());
        QCOMPARE(bar->text(QAccessible::Name), "Progress");
        QQuickItem *indicator = scene.item->childItems().last();
        const auto *busy = QAccessible::queryAccessibleInterface(indicator);
        QCOMPARE(busy->text(QAccessible::Name), "Please wait");
        indicator->setProperty("header", "Loading");
        QCOMPARE(busy->text(QAccessible::Name), "Loading");
        QAccessible::setActive(false);
    }

    // --- the fade ---

    void theEdgesFadeIntoTheColour()
    {
        GenericScene scene("HorizontalFadeEffect { x: 50; width: 200; height: 30; leftGradientWidth: 100\n"
                           "rightGradientWidth: 40 }");
        QVERIFY(scene.item);
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(49, 10), QColor(Qt::white));
        QVERIFY(blackness(scene.pixel(50, 10)) >= 98);
        QVERIFY(qAbs(blackness(scene.pixel(75, 10)) - 75) <= 2);
        QVERIFY(qAbs(blackness(scene.pixel(125, 29)) - 25) <= 2);
        QCOMPARE(scene.pixel(160, 10), QColor(Qt::white));
        QVERIFY(qAbs(blackness(scene.pixel(229, 0)) - 50) <= 2);
        QVERIFY(blackness(scene.pixel(249, 10)) >= 97);
        QCOMPARE(scene.pixel(250, 10), QColor(Qt::white));
        QCOMPARE(scene.pixel(60, 30), QColor(Qt::white));
    }

    void aChangedOpacityPaintsItsOwnStrip()
    {
        GenericScene scene("HorizontalFadeEffect { width: 200; height: 30; leftGradientWidth: 100\n"
                           "rightGradientWidth: 40 }");
        scene.stage.renderFrame();
        scene.item->setProperty("rightGradientOpacity", 0.5);
        QCOMPARE(scene.stage.renderFrame().boundingRect(), QRect(160, 0, 40, 30));
        QVERIFY(qAbs(blackness(scene.pixel(179, 10)) - 25) <= 2);
        scene.item->setProperty("leftGradientOpacity", 0);
        QCOMPARE(scene.stage.renderFrame().boundingRect(), QRect(0, 0, 100, 30));
        QCOMPARE(scene.pixel(0, 10), QColor(Qt::white));
        scene.item->setProperty("leftGradientOpacity", 1);
        scene.stage.renderFrame();
        QVERIFY(blackness(scene.pixel(0, 10)) >= 98);
        scene.item->update();
        QVERIFY(scene.stage.renderFrame().isEmpty());
    }

    void aStripThatAppearsLaterIsInItsPlace()
    {
        GenericScene scene(
                "HorizontalFadeEffect { x: 50; y: 20; width: 200; height: 30; leftGradientWidth: 100\n"
                "leftGradientOpacity: 0 }");
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(50, 25), QColor(Qt::white));
        scene.item->setProperty("leftGradientOpacity", 1);
        scene.stage.renderFrame();
        QVERIFY(blackness(scene.pixel(50, 25)) >= 98);
        QCOMPARE(scene.pixel(49, 25), QColor(Qt::white));
        QCOMPARE(scene.pixel(50, 19), QColor(Qt::white));
    }

    void theStripsFollowSizeAndColour()
    {
        GenericScene scene("HorizontalFadeEffect { width: 200; height: 30; rightGradientWidth: 40 }");
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(0, 10), QColor(Qt::white)); // no left strip
        scene.item->setSize(QSizeF(120, 20));
        scene.stage.renderFrame();
        QVERIFY(blackness(scene.pixel(119, 19)) >= 97);
        QCOMPARE(scene.pixel(199, 10), QColor(Qt::white));
        QCOMPARE(scene.pixel(119, 20), QColor(Qt::white));
        scene.item->setProperty("color", QColor(Qt::red));
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(119, 10).red(), 255);
        QVERIFY(scene.pixel(119, 10).blue() < 8);
        scene.item->setWidth(20); // less than the strip wants
        scene.stage.renderFrame();
        QVERIFY(scene.pixel(19, 10).blue() < 14);
        QVERIFY(scene.pixel(0, 10).blue() > 240);
        scene.item->setProperty("color", QColor());
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(19, 10), QColor(Qt::white));
    }
};

STB_TEST_MAIN(tst_PaintedControls)
#include "tst_paintedcontrols.moc"
