// SPDX-License-Identifier: MIT
#include "buttonscene.h"
#include "testkit/testcase.h"

#include <controls/buttons/stbbutton.h>
#include <controls/buttons/stbbutton_p.h>

#include <limits>

using Scene = ButtonScene<StbButton>;
using StyleObject = design_system::ButtonQmlStyle;

namespace {

// A derived button that writes down what it is asked.
class LoggingButtonPrivate : public StbButtonPrivate
{
public:
    void processStyleChanged(const Style &style) override
    {
        log += QStringLiteral("style %1, height %2").arg(style.size.width()).arg(implicitHeight);
        StbButtonPrivate::processStyleChanged(style);
    }
    QStringList log;
};

class LoggingButton : public StbButton
{
public:
    LoggingButton()
        : StbButton(*new LoggingButtonPrivate, nullptr)
    {
    }
    QStringList &log() { return static_cast<LoggingButtonPrivate *>(QQuickItemPrivate::get(this))->log; }
};

} // namespace

// How large a button is, and what of its texts it has room for.
class tst_StbButtonSize : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFixedButtonHasTheStylesSize()
    {
        Scene scene;
        scene.button.setStyle(&scene.style);
        QCOMPARE(scene.button.implicitWidth(), 313);
        QCOMPARE(scene.button.implicitHeight(), 0); // without content
        scene.button.setTitleText("Watch");
        QCOMPARE(scene.button.size(), QSizeF(313, 87));
    }

    void anIconAloneGivesTheHeightToo()
    {
        Scene scene;
        scene.button.setStyle(&scene.style);
        scene.button.setRightIconSource(":/icons/no such file.png"); // tried is enough
        QCOMPARE(scene.button.height(), 87);
    }

    void aStyleWithoutSizeGivesNone()
    {
        Scene scene;
        design_system::QmlButtonStyle style = oddButtonStyle();
        style.size = QRect();
        scene.style.setStyle(style);
        scene.fill();
        QCOMPARE(scene.button.implicitWidth(), 0);
        QCOMPARE(scene.button.implicitHeight(), 0);
    }

    void aDerivedButtonHearsOfAStyleBeforeItIsLaidOut()
    {
        StyleObject style;
        style.setStyle(oddButtonStyle());
        LoggingButton button;
        button.setTitleText("Watch now");
        connect(&button, &StbButton::styleChanged, this, [&] { button.log() += "signal"; });
        button.setStyle(&style);
        QCOMPARE(button.log(), (QStringList { "signal", "style 313, height 0" }));
        QCOMPARE(button.implicitHeight(), 87);
        button.setStyle(&style);
        QCOMPARE(button.log().size(), 2);
        button.setStyle(nullptr);
        QCOMPARE(button.log(), (QStringList { "signal", "style 313, height 0", "signal" }));
    }

    void aWidthOfNothingFallsBackToTheImplicitOne_data()
    {
        QTest::addColumn<double>("width");
        QTest::newRow("none") << 0.;
        QTest::newRow("negative") << -3.;
    }
    void aWidthOfNothingFallsBackToTheImplicitOne()
    {
        QFETCH(double, width);
        Scene scene;
        scene.fill();
        scene.button.setWidth(width);
        QCOMPARE(scene.button.implicitWidth(), 313);
        scene.button.setTitleText("Watch now, from the very beginning to the end");
        QCOMPARE(scene.button.implicitWidth(), 313);
        QCOMPARE(scene.button.width(), width);
    }

    void aHeightOfLessThanOneCountsAsNone_data()
    {
        QTest::addColumn<double>("height");
        QTest::addColumn<double>("implicitHeight");
        QTest::newRow("less than one") << 0.9 << 87.;
        QTest::newRow("negative") << -3. << 87.;
        QTest::newRow("one") << 1. << 0.;
    }
    void aHeightOfLessThanOneCountsAsNone()
    {
        QFETCH(double, height);
        QFETCH(double, implicitHeight);
        Scene scene;
        scene.button.setHeight(height);
        scene.fill();
        QCOMPARE(scene.button.implicitHeight(), implicitHeight);
        QCOMPARE(scene.button.height(), height);
    }

    void aGivenWidthBecomesTheImplicitOne()
    {
        Scene scene;
        scene.button.setWidth(211.9);
        scene.fill();
        QCOMPARE(scene.button.implicitWidth(), 211);
        QCOMPARE(scene.button.width(), 211.9);
        scene.button.setWidth(307);
        QCOMPARE(scene.button.implicitWidth(), 307);
    }

    void aHeightStaysWhenAnotherStyleComes()
    {
        Scene scene;
        scene.fill();
        StyleObject other;
        other.setStyle(otherButtonStyle());
        scene.button.setStyle(&other);
        QCOMPARE(scene.button.implicitWidth(), 251);
        QCOMPARE(scene.button.height(), 87);
    }

    void aButtonThatIsNotFixedGrowsWithItsContent()
    {
        Scene scene;
        scene.button.setIsFixedWidth(false);
        scene.fill();
        scene.button.setSubtitleText({});
        const int title = textSize(oddButtonStyle().titleStyle, "Watch now").width();
        const int subtitle = textSize(oddButtonStyle().subtitleStyle, "From the start").width();
        const int between = 19 + 21 + 13 + 7 + 11 + 13 + 27 + 23;
        // The room of a line that became empty stays.
        QCOMPARE(scene.button.width(), between + qMax(title, subtitle));
        const QString longText = "Watch now, from the very beginning to the end";
        scene.button.setTitleText(longText);
        const int longTitle = textSize(oddButtonStyle().titleStyle, longText).width();
        QVERIFY(longTitle > 313);
        QCOMPARE(scene.button.width(), between + longTitle);
        scene.button.setLeftPadding(41);
        QCOMPARE(scene.button.width(), between + longTitle - 19 + 41);
        scene.button.setRightPadding(61);
        QCOMPARE(scene.button.width(), between + longTitle - 19 + 41 - 23 + 61);
    }

    void aButtonThatIsNotFixedAnyMoreShowsItsWholeText()
    {
        Scene scene;
        scene.button.setStyle(&scene.style);
        const QString text = "Watch now, from the very beginning to the end";
        scene.button.setTitleText(text);
        QCOMPARE(scene.button.width(), 313);
        scene.button.setIsFixedWidth(false);
        const int title = textSize(oddButtonStyle().titleStyle, text).width();
        QCOMPARE(scene.button.width(), 19 + 7 + title + 11 + 23);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().first().rect.width(), title);
    }

    void aFixedButtonShortensItsTextToTheColumn()
    {
        Scene scene;
        scene.fill();
        const QString text = "Watch now, from the very beginning to the end";
        scene.button.setTitleText(text);
        scene.stage.renderFrame();
        const QSize shortened = textSize(oddButtonStyle().titleStyle, text, 221);
        QVERIFY(shortened.width() <= 221);
        QCOMPARE(scene.children()[1].rect.size().toSize(), shortened);
    }

    void aButtonThatIsNotFixedTakesNoWidthFromTheStyle()
    {
        Scene scene;
        scene.button.setIsFixedWidth(false);
        scene.button.setStyle(&scene.style);
        QCOMPARE(scene.button.implicitWidth(), 0);
    }

    void aButtonThatBecomesFixedKeepsItsWidth()
    {
        Scene scene;
        scene.button.setIsFixedWidth(false);
        scene.button.setStyle(&scene.style);
        scene.button.setTitleText("Watch now, from the very beginning to the end");
        const double width = scene.button.width();
        QVERIFY(width > 313);
        scene.button.setIsFixedWidth(true);
        QCOMPARE(scene.button.width(), width);
        scene.button.setTitleText("Watch");
        QCOMPARE(scene.button.width(), width);
    }

    void aButtonThatIsNotFixedAnyMoreShowsItsWholeSubtitleToo()
    {
        Scene scene;
        scene.button.setStyle(&scene.style);
        const QString text = "From the start, with all that was before it and comes behind";
        scene.button.setSubtitleText(text);
        scene.button.setIsFixedWidth(false);
        const int subtitle = textSize(oddButtonStyle().subtitleStyle, text).width();
        QVERIFY(subtitle > 313);
        QCOMPARE(scene.button.width(), 19 + 7 + subtitle + 11 + 23);
    }

    void anotherStyleLeavesTheTextItsColumn()
    {
        Scene scene;
        scene.button.setWidth(83);
        scene.fill();
        scene.button.setRightIconSource({});
        scene.button.setLeftIconSource({});
        StyleObject other;
        other.setStyle(otherButtonStyle());
        scene.button.setStyle(&other);
        scene.stage.renderFrame();
        const QSize title = textSize(otherButtonStyle().titleStyle, "Watch now", 83 - 3 - 1);
        QVERIFY(title != textSize(otherButtonStyle().titleStyle, "Watch now"));
        QCOMPARE(scene.children()[0].rect.size().toSize(), title);
        scene.button.setStyle(nullptr);
    }

    void equalTextsInButtonsOfTwoWidthsAreLaidOutForEach()
    {
        const QString text = "Watch now, from the very beginning to the end";
        Scene narrow;
        Scene wide;
        wide.button.setWidth(421);
        for (Scene *scene : { &narrow, &wide }) {
            scene->button.setStyle(&scene->style);
            scene->button.setTitleText(text);
            scene->stage.renderFrame();
        }
        const auto shown = [](Scene &scene) { return scene.children().first().rect.size().toSize(); };
        QCOMPARE(shown(narrow), textSize(oddButtonStyle().titleStyle, text, 295));
        QCOMPARE(shown(wide), textSize(oddButtonStyle().titleStyle, text, 403));
        QVERIFY(shown(narrow) != shown(wide));
    }

    void anotherHeightMovesTheContent()
    {
        Scene scene;
        scene.button.setStyle(&scene.style);
        scene.button.setTitleText("Watch now");
        scene.button.setHeight(151);
        scene.stage.renderFrame();
        const int title = textSize(oddButtonStyle().titleStyle, "Watch now").height();
        QCOMPARE(scene.children().first().rect.top(), 75 - title / 2);
    }

    void aSizeThatIsNoNumberCountsAsNone()
    {
        Scene scene;
        scene.button.setImplicitWidth(std::numeric_limits<double>::quiet_NaN());
        scene.button.setImplicitHeight(std::numeric_limits<double>::quiet_NaN());
        scene.fill();
        QCOMPARE(scene.button.size(), QSizeF(313, 87));
    }
};

STB_TEST_MAIN(tst_StbButtonSize)
#include "tst_stbbuttonsize.moc"
