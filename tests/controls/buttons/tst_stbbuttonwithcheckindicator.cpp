// SPDX-License-Identifier: MIT
#include "buttonscene.h"
#include "testkit/counters.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <controls/buttons/stbbuttonwithcheckindicator.h>

#include <algorithm>
#include <array>
#include <functional>

using Scene = ButtonScene<StbButtonWithCheckIndicator>;
using StyleObject = design_system::ButtonQmlStyle;
using stbtest::NodeInfo;

namespace {

const QColor indicatorColor(255, 120, 0);

// The parts of a button in the order of their nodes; the last one is the indicator.
enum Part { LeftIcon, Title, Subtitle, RightIcon, Indicator, PartCount };

void setShown(Scene &scene, int part, bool shown)
{
    switch (part) {
    case LeftIcon:
        return scene.button.setLeftIconSource(shown ? ":/icons/left.png" : "");
    case Title:
        return scene.button.setTitleText(shown ? "Watch now" : "");
    case Subtitle:
        return scene.button.setSubtitleText(shown ? "From the start" : "");
    case RightIcon:
        return scene.button.setRightIconSource(shown ? ":/icons/right.png" : "");
    default:
        return scene.button.setChecked(shown);
    }
}

bool isPart(const NodeInfo &node, int part)
{
    const design_system::QmlButtonStyle style = oddButtonStyle();
    switch (part) {
    case LeftIcon:
        return node.pixmap.size() == QSize(21, 33);
    case Title:
        return node.pixmap.size() == textSize(style.titleStyle, "Watch now");
    case Subtitle:
        return node.pixmap.size() == textSize(style.subtitleStyle, "From the start");
    case RightIcon:
        return node.pixmap.size() == QSize(27, 19);
    default:
        return node.type == "Rectangle" && node.color == indicatorColor;
    }
}

// Empty when the nodes are those of the shown parts in their order, the indicator only with content.
QString problem(Scene &scene, const std::array<bool, PartCount> &shown)
{
    QList<int> expected;
    for (int part = 0; part < PartCount; ++part) {
        if (shown[part] && (part != Indicator || !expected.isEmpty()))
            expected += part;
    }
    const QList<NodeInfo> nodes = scene.children();
    const bool same = std::equal(nodes.cbegin(), nodes.cend(), expected.cbegin(), expected.cend(), isPart);
    return same ? QString() : stbtest::describeNodes(stbtest::paintNode(&scene.button));
}

} // namespace

class tst_StbButtonWithCheckIndicator : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void checkingAddsOneRectangleBehindTheContent()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        const QList<NodeInfo> plain = scene.children();
        QCOMPARE(plain.size(), 4);
        scene.button.setChecked(true);
        scene.stage.renderFrame();
        const QList<NodeInfo> checked = scene.children();
        QCOMPARE(checked.size(), 5);
        for (int i = 0; i < 4; ++i)
            QCOMPARE(checked[i].node, plain[i].node); // used again
        QCOMPARE(checked[4].type, "Rectangle");
        QCOMPARE(checked[4].color, indicatorColor);
        QCOMPARE(checked[4].rect, QRectF(17, 87 - 9 - 3, 37, 9));
        scene.button.setChecked(false);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 4);
    }

    // Every order in which the parts can come and go, each with a frame in between.
    void theOrderOfTheNodesNeverDependsOnTheOrderOfAppearance()
    {
        std::array<int, PartCount> order { LeftIcon, Title, Subtitle, RightIcon, Indicator };
        do {
            Scene scene;
            scene.button.setStyle(&scene.style);
            std::array<bool, PartCount> shown {};
            for (const bool show : { true, false, true }) {
                for (const int part : order) {
                    setShown(scene, part, show);
                    shown[part] = show;
                    scene.stage.renderFrame();
                    if (scene.button.height() > 0)
                        QCOMPARE(problem(scene, shown), QString());
                }
            }
            QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
        } while (std::next_permutation(order.begin(), order.end()));
    }

    void theIndicatorFollowsTheThrobber()
    {
        Scene scene;
        scene.fill();
        scene.button.setChecked(true);
        scene.stage.renderFrame();
        QSGNode *indicator = scene.children()[4].node;
        scene.button.setThrobberVisible(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 2);
        QCOMPARE(scene.children()[0].type, "Image");
        QCOMPARE(scene.children()[1].node, indicator);
        scene.button.setChecked(false);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 1);
        scene.button.setChecked(true);
        scene.button.setThrobberVisible(false);
        scene.stage.renderFrame();
        QCOMPARE(problem(scene, { true, true, true, true, true }), QString());
    }

    void anIndicatorThatWasLostIsMadeAgain_data()
    {
        using Change = std::function<void(Scene &)>;
        QTest::addColumn<Change>("lose");
        QTest::addColumn<Change>("bringBack");
        QTest::newRow("style") << Change([](Scene &scene) { scene.button.setStyle(nullptr); })
                               << Change([](Scene &scene) { scene.button.setStyle(&scene.style); });
        QTest::newRow("height") << Change([](Scene &scene) { scene.button.setHeight(0); })
                                << Change([](Scene &scene) { scene.button.setHeight(87); });
        QTest::newRow("window") << Change([](Scene &scene) {
            scene.button.setParentItem(nullptr);
        }) << Change([](Scene &scene) { scene.button.setParentItem(scene.stage.contentItem()); });
    }
    void anIndicatorThatWasLostIsMadeAgain()
    {
        QFETCH(std::function<void(Scene &)>, lose);
        QFETCH(std::function<void(Scene &)>, bringBack);
        Scene scene;
        scene.fill();
        scene.button.setChecked(true);
        scene.stage.renderFrame();
        const QImage before = scene.stage.picture();
        lose(scene);
        scene.stage.renderFrame();
        bringBack(scene);
        scene.stage.renderFrame();
        QCOMPARE(problem(scene, { true, true, true, true, true }), QString());
        QCOMPARE(scene.stage.picture(), before);
        lose(scene);
        scene.stage.renderFrame();
        scene.button.setChecked(false);
        bringBack(scene);
        scene.stage.renderFrame();
        QCOMPARE(problem(scene, { true, true, true, true, false }), QString());
    }

    void itsPlaceFollowsTheHeight()
    {
        Scene scene;
        scene.fill();
        scene.button.setChecked(true);
        for (const double height : { 87., 61.9, 5., 0.5 }) {
            scene.button.setHeight(height);
            scene.stage.renderFrame();
            QCOMPARE(scene.children().last().rect, QRectF(17, int(height) - 9 - 3, 37, 9));
        }
    }

    void itsPlaceFollowsAnotherStyleItsColourDoesNot()
    {
        Scene scene;
        scene.fill();
        scene.button.setChecked(true);
        scene.stage.renderFrame();
        StyleObject other;
        other.setStyle(otherButtonStyle());
        scene.button.setStyle(&other);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().last().rect, QRectF(27, 87 - 5 - 13, 11, 5));
        QCOMPARE(scene.children().last().color, indicatorColor); // on purpose
        scene.button.setChecked(false);
        scene.stage.renderFrame();
        scene.button.setChecked(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().last().color, QColor(0, 120, 255));
        scene.button.setStyle(nullptr);
    }

    void noTwoOfItsStyleNumbersCanBeSwapped()
    {
        // left 17, bottom margin 3, size 37 x 9: all different, so one rectangle tells them apart
        Scene scene;
        scene.fill();
        scene.button.setChecked(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().last().rect, QRectF(17, 75, 37, 9));
        design_system::QmlButtonStyle style = oddButtonStyle();
        std::swap(style.checkIndicatorLeft, style.checkIndicatorBottomMargin);
        scene.style.setStyle(style);
        scene.button.update();
        scene.stage.renderFrame();
        QCOMPARE(scene.children().last().rect, QRectF(3, 87 - 9 - 17, 37, 9));
    }

    void itHasTheSameColourInEveryState()
    {
        Scene scene;
        scene.fill();
        scene.button.setChecked(true);
        scene.button.setEnabled(false);
        scene.button.setFocused(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().last().color, indicatorColor);
        QCOMPARE(scene.root().color, QColor(50, 50, 50));
    }

    void anInvalidColourPaintsNothing()
    {
        design_system::QmlButtonStyle colourless = oddButtonStyle();
        colourless.checkIndicatorColor = QColor();
        const auto check = [&](auto &scene) {
            scene.style.setStyle(colourless);
            scene.fill();
            scene.button.setChecked(true);
            scene.stage.renderFrame();
            return scene.children().size();
        };
        Scene scene;
        QCOMPARE(check(scene), 5);
        ButtonScene<StbButton> without;
        QCOMPARE(check(without), 4);
        QCOMPARE(scene.stage.picture(), without.stage.picture());
    }

    void aSizeBelowNothingIsNone_data()
    {
        QTest::addColumn<QRect>("size");
        QTest::addColumn<QRectF>("rect");
        QTest::newRow("width") << QRect(0, 0, -5, 9) << QRectF(17, 87 - 9 - 3, 0, 0);
        QTest::newRow("height") << QRect(0, 0, 37, -5) << QRectF(17, 87 - 3, 0, 0);
        QTest::newRow("null") << QRect() << QRectF(17, 87 - 3, 0, 0);
    }
    void aSizeBelowNothingIsNone()
    {
        QFETCH(QRect, size);
        QFETCH(QRectF, rect);
        Scene scene;
        design_system::QmlButtonStyle style = oddButtonStyle();
        style.checkIndicatorSize = size;
        scene.style.setStyle(style);
        scene.fill();
        scene.button.setChecked(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().last().rect, rect);
    }

    void aButtonWithoutContentShowsNoIndicator()
    {
        Scene scene;
        scene.button.setStyle(&scene.style);
        scene.button.setHeight(87);
        scene.button.setChecked(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 0);
    }

    void anUpdateThatChangesNothingPaintsNothing()
    {
        Scene scene;
        scene.fill();
        scene.button.setChecked(true);
        scene.stage.renderFrame();
        scene.button.update();
        QCOMPARE(scene.stage.renderFrame(), QRegion());
    }

    void whereTheStateColoursAreTheSameCheckingPaintsTheIndicatorOnly()
    {
        Scene scene;
        design_system::QmlButtonStyle style = oddButtonStyle();
        for (auto *colors : { &style.backgroundColors, &style.leftIconColors, &style.rightIconColors,
                              &style.titleStyle.colors, &style.subtitleStyle.colors })
            colors->checked = colors->normal;
        scene.style.setStyle(style);
        scene.fill();
        scene.stage.renderFrame();
        const QRegion indicator(QRect(20 + 17, 30 + 75, 37, 9));
        scene.button.setChecked(true);
        QCOMPARE(scene.stage.renderFrame(), indicator);
        scene.button.setChecked(false);
        QCOMPARE(scene.stage.renderFrame(), indicator);
    }
};

STB_TEST_MAIN(tst_StbButtonWithCheckIndicator)
#include "tst_stbbuttonwithcheckindicator.moc"
