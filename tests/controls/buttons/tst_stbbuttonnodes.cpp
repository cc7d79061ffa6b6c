// SPDX-License-Identifier: MIT
#include "buttonscene.h"
#include "testkit/counters.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <controls/buttons/stbbutton.h>

#include <functional>

using Scene = ButtonScene<StbButton>;
using StyleObject = design_system::ButtonQmlStyle;
using stbtest::NodeInfo;

// What a button's nodes are, in which colours, and what is painted when something changes.
class tst_StbButtonNodes : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theNodesStandInTheirOrder()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        const NodeInfo root = scene.root();
        QCOMPARE(root.type, "Rectangle");
        QCOMPARE(root.rect, QRectF(0, 0, 313, 87));
        QCOMPARE(root.color, QColor(40, 60, 90));
        const QList<NodeInfo> nodes = scene.children();
        QCOMPARE(nodes.size(), 4);
        for (const NodeInfo &node : nodes)
            QCOMPARE(node.type, "Image");
        const QSize title = textSize(oddButtonStyle().titleStyle, "Watch now");
        const QSize subtitle = textSize(oddButtonStyle().subtitleStyle, "From the start");
        const int total = title.height() + subtitle.height() + 5;
        QCOMPARE(nodes[0].rect, QRectF(0, 27, 21, 33));
        QCOMPARE(nodes[1].rect, QRectF(QRect(QPoint(41, 43 - total / 2), title)));
        QCOMPARE(nodes[2].rect, QRectF(QRect(QPoint(41, 43 + total / 2 - subtitle.height()), subtitle)));
        QCOMPARE(nodes[3].rect, QRectF(273, 29, 27, 19));
    }

    void aButtonWithoutContentIsItsBackground()
    {
        Scene scene;
        scene.button.setStyle(&scene.style);
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(&scene.button)); // it has no height
        scene.button.setHeight(41);
        scene.stage.renderFrame();
        QCOMPARE(stbtest::nodeCount(stbtest::paintNode(&scene.button)), 1);
        QCOMPARE(scene.root().rect, QRectF(0, 0, 313, 41));
    }

    void eachStateHasItsColours_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<bool>("focused");
        QTest::addColumn<int>("state"); // of normal, checked, disabled, focused
        QTest::newRow("normal") << true << false << false << 0;
        QTest::newRow("focused") << true << false << true << 3;
        QTest::newRow("checked") << true << true << false << 1;
        QTest::newRow("checked wins over focused") << true << true << true << 1;
        QTest::newRow("disabled") << false << false << false << 2;
        QTest::newRow("disabled wins over focused") << false << false << true << 2;
        QTest::newRow("disabled wins over checked") << false << true << false << 2;
        QTest::newRow("disabled wins over both") << false << true << true << 2;
    }
    void eachStateHasItsColours()
    {
        QFETCH(bool, enabled);
        QFETCH(bool, checked);
        QFETCH(bool, focused);
        QFETCH(int, state);
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        scene.button.setEnabled(enabled);
        scene.button.setChecked(checked);
        scene.button.setFocused(focused);
        scene.stage.renderFrame();
        const auto color = [state](const design_system::StatesColors &colors) {
            return QList<QColor> { colors.normal, colors.checked, colors.disabled, colors.focused }[state];
        };
        const design_system::QmlButtonStyle style = oddButtonStyle();
        QCOMPARE(scene.root().color, color(style.backgroundColors));
        const QList<NodeInfo> nodes = scene.children();
        QVERIFY(stbtest::isPaintedIn(nodes[0].pixmap, color(style.leftIconColors)));
        QVERIFY(stbtest::isPaintedIn(nodes[1].pixmap, color(style.titleStyle.colors)));
        QVERIFY(stbtest::isPaintedIn(nodes[2].pixmap, color(style.subtitleStyle.colors)));
        QVERIFY(stbtest::isPaintedIn(nodes[3].pixmap, color(style.rightIconColors)));
    }

    void anInvalidColourPaintsNothing()
    {
        Scene scene;
        design_system::QmlButtonStyle colourless = oddButtonStyle();
        colourless.backgroundColors = {};
        scene.style.setStyle(colourless);
        scene.button.setSize(QSizeF(313, 87));
        scene.stage.renderFrame();
        const QImage bare = scene.stage.picture();
        scene.button.setStyle(&scene.style);
        scene.stage.renderFrame();
        QCOMPARE(scene.root().rect, QRectF(0, 0, 313, 87));
        QCOMPARE(scene.stage.picture(), bare);
    }

    void aDisabledParentDisablesTheButton()
    {
        Scene scene;
        scene.fill();
        QQuickItem parent(scene.stage.contentItem());
        scene.button.setParentItem(&parent);
        scene.stage.renderFrame();
        parent.setEnabled(false);
        QVERIFY(scene.stage.wantsFrame());
        QCOMPARE(scene.stage.renderFrame(), QRegion(scene.area()));
        QCOMPARE(scene.root().color, QColor(50, 50, 50));
        parent.setEnabled(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.root().color, QColor(40, 60, 90));
        scene.button.setParentItem(nullptr);
    }

    void aNewItemStateAsksForAFrame()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        QVERIFY(!scene.stage.wantsFrame());
        scene.button.setState("busy");
        QVERIFY(scene.stage.wantsFrame());
        QCOMPARE(scene.stage.renderFrame(), QRegion());
    }

    void aForcedTitleColourHoldsInEveryState()
    {
        Scene scene;
        scene.fill();
        scene.button.setTitleForcedColor(QColor(255, 0, 255));
        scene.stage.renderFrame();
        QVERIFY(stbtest::isPaintedIn(scene.children()[1].pixmap, QColor(251, 252, 253)));
        scene.button.setForceTitleColor(true);
        for (int states = 0; states < 8; ++states) {
            scene.button.setEnabled(states & 1);
            scene.button.setChecked(states & 2);
            scene.button.setFocused(states & 4);
            scene.stage.renderFrame();
            QVERIFY(stbtest::isPaintedIn(scene.children()[1].pixmap, QColor(255, 0, 255)));
            QVERIFY(!stbtest::isPaintedIn(scene.children()[2].pixmap, QColor(255, 0, 255)));
        }
    }

    void anInvalidForcedTitleColourHasNoEffect()
    {
        Scene scene;
        scene.fill();
        scene.button.setForceTitleColor(true);
        scene.stage.renderFrame();
        QVERIFY(stbtest::isPaintedIn(scene.children()[1].pixmap, QColor(251, 252, 253)));
    }

    void anEmptiedOnlyTitleDisappears()
    {
        Scene scene;
        scene.button.setStyle(&scene.style);
        scene.button.setTitleText("Watch now");
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 1);
        scene.button.setTitleText({});
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 0);
        QImage ground(scene.stage.size(), QImage::Format_ARGB32_Premultiplied);
        ground.fill(QColor(0, 60, 40));
        for (int y = 0; y < 87; ++y) {
            for (int x = 0; x < 313; ++x)
                ground.setPixelColor(20 + x, 30 + y, QColor(40, 60, 90));
        }
        QCOMPARE(stbtest::comparePictures(scene.stage.picture(), ground).text(), QString());
    }

    void anEmptiedOnlyIconDisappears()
    {
        Scene scene;
        scene.button.setStyle(&scene.style);
        scene.button.setLeftIconSource("qrc:/icons/left.png");
        scene.button.setRightIconSource("qrc:/icons/right.png");
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 2);
        scene.button.setLeftIconSource({});
        scene.button.setRightIconSource({});
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 0);
    }

    void anUnreadableIconIsNoIcon()
    {
        Scene scene;
        scene.button.setStyle(&scene.style);
        scene.button.setTitleText("Watch now");
        scene.stage.renderFrame();
        const QImage without = scene.stage.picture();
        scene.button.setLeftIconSource(":/icons/no such file.png");
        scene.button.setRightIconSource("qrc:/icons/nor this.png");
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 1);
        QCOMPARE(scene.stage.picture(), without);
    }

    void anotherSourceShowsItsOwnPictureInTheStatesColour()
    {
        Scene scene;
        design_system::QmlButtonStyle style = oddButtonStyle();
        style.leftIconColors.normal = Qt::black; // what a dropped icon leaves behind as its tint
        scene.style.setStyle(style);
        scene.button.setStyle(&scene.style);
        scene.button.setLeftIconSource(":/icons/left.png");
        scene.stage.renderFrame();
        for (const QString &between : { QStringLiteral(":/icons/left.png"), QString() }) {
            scene.button.setLeftIconSource(between);
            scene.stage.renderFrame();
            scene.button.setLeftIconSource(":/icons/other.png");
            scene.stage.renderFrame();
            QCOMPARE(scene.children().size(), 1);
            const NodeInfo icon = scene.children().first();
            QCOMPARE(icon.rect, QRectF(156 - 7, 43 - 5, 15, 11));
            QCOMPARE(icon.pixmap.size(), QSize(15, 11));
            QVERIFY(stbtest::isPaintedIn(icon.pixmap, Qt::black));
        }
    }

    void aLostRootIsMadeAgainWithAllItsNodes_data()
    {
        QTest::addColumn<std::function<void(Scene &)>>("lose");
        QTest::addColumn<std::function<void(Scene &)>>("bringBack");
        using Change = std::function<void(Scene &)>;
        QTest::newRow("style") << Change([](Scene &scene) { scene.button.setStyle(nullptr); })
                               << Change([](Scene &scene) { scene.button.setStyle(&scene.style); });
        QTest::newRow("width") << Change([](Scene &scene) { scene.button.setWidth(0); })
                               << Change([](Scene &scene) { scene.button.setWidth(313); });
        QTest::newRow("negative height") << Change([](Scene &scene) { scene.button.setHeight(-3); })
                                         << Change([](Scene &scene) { scene.button.setHeight(87); });
        QTest::newRow("window") << Change([](Scene &scene) {
            scene.button.setParentItem(nullptr);
        }) << Change([](Scene &scene) { scene.button.setParentItem(scene.stage.contentItem()); });
    }
    void aLostRootIsMadeAgainWithAllItsNodes()
    {
        QFETCH(std::function<void(Scene &)>, lose);
        QFETCH(std::function<void(Scene &)>, bringBack);
        for (const bool busy : { false, true }) {
            Scene scene;
            scene.fill();
            scene.button.setThrobberVisible(busy);
            scene.stage.renderFrame();
            const QImage before = scene.stage.picture();
            const qsizetype nodes = scene.children().size();
            lose(scene);
            scene.stage.renderFrame();
            QVERIFY(!stbtest::paintNode(&scene.button));
            QVERIFY(scene.stage.picture() != before);
            bringBack(scene);
            scene.stage.renderFrame();
            QCOMPARE(scene.children().size(), nodes);
            QCOMPARE(scene.stage.picture(), before);
        }
    }

    void anotherWindowShowsTheSamePicture()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        stbtest::Stage other(QSize(640, 300), QColor(0, 60, 40));
        scene.button.setParentItem(other.contentItem());
        other.renderFrame();
        QCOMPARE(other.picture(), scene.stage.picture());
        scene.button.setParentItem(nullptr);
    }

    void aNewStyleObjectIsTakenOverWhole()
    {
        Scene scene;
        scene.fill();
        scene.button.setSize(QSizeF(313, 87));
        scene.stage.renderFrame();
        StyleObject other;
        other.setStyle(otherButtonStyle());
        scene.button.setStyle(&other);
        scene.stage.renderFrame();
        Scene fresh;
        fresh.style.setStyle(otherButtonStyle());
        fresh.button.setSize(QSizeF(313, 87));
        fresh.fill();
        fresh.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
        scene.button.setStyle(nullptr);
    }

    void changesInsideAStyleObjectAreNotListenedTo()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        scene.style.setStyle(otherButtonStyle());
        QVERIFY(!scene.stage.wantsFrame());
    }

    void anUpdateThatChangesNothingPaintsNothing()
    {
        Scene scene;
        scene.fill();
        for (const bool busy : { false, true }) {
            scene.button.setThrobberVisible(busy);
            scene.stage.renderFrame();
            scene.button.update();
            QCOMPARE(scene.stage.renderFrame(), QRegion());
        }
    }

    void equalValuesAskForNoFrame()
    {
        Scene scene;
        scene.fill();
        scene.button.setFocused(true);
        scene.stage.renderFrame();
        scene.button.setStyle(&scene.style);
        scene.button.setTitleText("Watch now");
        scene.button.setSubtitleText("From the start");
        scene.button.setLeftIconSource(":/icons/left.png");
        scene.button.setRightIconSource(":/icons/right.png");
        scene.button.setFocused(true);
        scene.button.setChecked(false);
        scene.button.setCheckable(false);
        scene.button.setThrobberVisible(false);
        scene.button.setForceTitleColor(false);
        scene.button.setTitleForcedColor({});
        scene.button.setLeftPadding(0);
        scene.button.setRightPadding(0);
        scene.button.setRoundingRadius(9);
        QVERIFY(!scene.stage.wantsFrame());
    }

    void aFocusChangePaintsTheButtonsRectangleOnly()
    {
        Scene scene;
        scene.fill();
        StbButton neighbour(scene.stage.contentItem());
        neighbour.setStyle(&scene.style);
        neighbour.setTitleText("Trailer");
        neighbour.setPosition(QPointF(20, 130));
        scene.stage.renderFrame();
        scene.button.setFocused(true);
        QCOMPARE(scene.stage.renderFrame(), QRegion(scene.area()));
        scene.button.setFocused(false);
        QCOMPARE(scene.stage.renderFrame(), QRegion(scene.area()));
    }

    void aChangedTextPaintsItsOwnRectangleOnly()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        const QRect before = scene.children()[1].rect.toRect().translated(20, 30);
        scene.button.setTitleText("Watch");
        QCOMPARE(scene.stage.renderFrame().subtracted(before), QRegion());
    }

    void checkableAndPaddingsOfAFixedButtonPaintNothing()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        scene.button.setCheckable(true);
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        scene.button.setLeftPadding(51);
        scene.button.setRightPadding(51);
        QCOMPARE(scene.stage.renderFrame(), QRegion());
    }

    void hugeSizesAndPaddingsDoNoHarm()
    {
        Scene scene;
        scene.fill();
        scene.button.setThrobberVisible(true);
        const double infinity = std::numeric_limits<double>::infinity();
        for (const double size : { 1e9, 1e300, infinity }) {
            scene.button.setSize(QSizeF(size, size));
            scene.button.setIsFixedWidth(size < 1e200);
            scene.button.setLeftPadding(size);
            scene.button.setRightPadding(size);
            QVERIFY(qAbs(scene.button.implicitWidth()) <= 1 << 30);
        }
        scene.button.setSize(QSizeF(313, 87));
        scene.button.setThrobberVisible(false);
        scene.button.setIsFixedWidth(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[3].rect, QRectF(273, 29, 27, 19));
    }
};

STB_TEST_MAIN(tst_StbButtonNodes)
#include "tst_stbbuttonnodes.moc"
