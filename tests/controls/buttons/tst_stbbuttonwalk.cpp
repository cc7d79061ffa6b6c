// SPDX-License-Identifier: MIT
#include "buttonstyles.h"
#include "testkit/propertywalk.h"
#include "testkit/testcase.h"

#include <controls/buttons/stbbuttonwithcheckindicator.h>

#include <QtQml/qqmlparserstatus.h>

using stbtest::PropertyWalk;

class tst_StbButtonWalk : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        m_first.setStyle(oddButtonStyle());
        design_system::QmlButtonStyle other = otherButtonStyle();
        other.checkIndicatorColor = oddButtonStyle().checkIndicatorColor; // its colour is stale on purpose
        m_second.setStyle(other);
    }

    // A button takes its height from its first style and its width back from the former layout, and a line that
    // became empty keeps its room: sizes are given, and lines only change their words.
    void whatIsPaintedStepByStepIsWhatAFreshButtonPaints()
    {
        PropertyWalk walk([] { return button<StbButton>(QSizeF(313, 87)); });
        declareStates(walk);
        declareTwoLines(walk);
        declareSizes(walk);
        check(walk);
    }

    void aButtonWithCheckIndicatorDoesSoToo()
    {
        PropertyWalk walk([] { return button<StbButtonWithCheckIndicator>(QSizeF(313, 87)); });
        declareStates(walk);
        declareTwoLines(walk);
        declareSizes(walk);
        check(walk);
    }

    // With one line that comes and goes, in buttons of fixed width.
    void aTitleThatComesAndGoesLeavesNothingBehind()
    {
        PropertyWalk walk([] { return button<StbButtonWithCheckIndicator>(QSizeF(313, 87)); });
        declareStates(walk);
        walk.property("titleText", { "", "Watch", "", "Watch now, from the start" })
                .exclude("subtitleText", "only one line can come and go without leaving its room behind")
                .once("isFixedWidth", true, "the room that a line leaves behind widens a button that grows");
        declareSizes(walk);
        check(walk);
    }

    void theImplicitWidthIsTheOneOfAFreshButton()
    {
        PropertyWalk walk([] { return button<StbButton>({}); });
        declareStates(walk);
        declareTwoLines(walk);
        walk.property("style", { QVariant::fromValue(&m_first) })
                .once("isFixedWidth", false, "a fixed button has the width that it is given")
                .exclude("width", "it comes from the content")
                .comparedProperty("implicitWidth");
        check(walk);
    }

private:
    template <typename Button>
    static std::unique_ptr<QQuickItem> button(const QSizeF &size)
    {
        auto result = std::make_unique<Button>();
        static_cast<QQmlParserStatus &>(*result).componentComplete();
        if (size.isValid())
            result->setSize(size);
        return result;
    }
    void declareStates(PropertyWalk &walk)
    {
        const QVariant noColor = QVariant::fromValue(QColor());
        walk.stageSize(QSize(640, 200))
                .property("style", { QVariant::fromValue(&m_first), QVariant::fromValue(&m_second),
                                     QVariant::fromValue(&m_first), QVariant() })
                .property("visible", { true, true, true, true, true, false })
                .property("opacity", { 1.0, 1.0, 0.5 })
                .tolerance({ 1, 0,
                             "the renderer leaves an alpha of 254 where it paints an edge without blending" })
                .property("leftIconSource", { "", "qrc:/icons/left.png", ":/icons/other.png" })
                .property("rightIconSource", { "", ":/icons/right.png", "qrc:/icons/left.png", "none" })
                .property("focused", { false, true })
                .property("checked", { false, true })
                .property("checkable", { false, true })
                .property("throbberVisible", { false, false, false, true })
                .property("forceTitleColor", { false, true })
                .property("titleForcedColor", { noColor, QColor(255, 0, 255), QColor(0, 255, 255, 128) })
                .property("leftPadding", { 0, 31.5, -1 })
                .property("rightPadding", { 0, 0.5, 77 })
                .property("roundingRadius", { 0, 8 });
    }
    static void declareTwoLines(PropertyWalk &walk)
    {
        walk.property("titleText", { "Watch", "Watch now, from the very beginning to the end",
                                     QString::fromUtf8("شاهد الآن"), "One\ntwo" })
                .property("subtitleText", { "From the start", "A", "The second line of them all" })
                .property("isFixedWidth", { true, false });
    }
    // Whole numbers: the software renderer blends the edge of an opaque rectangle that ends inside a pixel over
    // what it blended there before.
    static void declareSizes(PropertyWalk &walk)
    {
        walk.property("width", { 313, 313, 313, 420, 97, 250, 1, 0 })
                .property("height", { 87, 87, 87, 41, 121, 60, 1, 0 });
    }
    static void check(PropertyWalk &walk)
    {
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
        QVERIFY(walk.stepsPainted() > walk.stepsMade() / 8); // most often something hides it
    }

    design_system::ButtonQmlStyle m_first;
    design_system::ButtonQmlStyle m_second;
};

STB_TEST_MAIN(tst_StbButtonWalk)
#include "tst_stbbuttonwalk.moc"
