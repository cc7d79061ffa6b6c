// SPDX-License-Identifier: MIT
#include "buttonstyles.h"
#include "testkit/testcase.h"

#include <controls/buttons/stbbuttonlayout.h>

#include <array>

using Content = StbButtonLayout::Content;
using Style = design_system::QmlButtonStyle;

Q_DECLARE_METATYPE(Content)
Q_DECLARE_METATYPE(StbButtonLayout)

namespace {

constexpr QSize leftIcon(21, 33);
constexpr QSize rightIcon(27, 19);
constexpr QSize title(101, 31);
constexpr QSize subtitle(83, 21);

Content button(bool fixed)
{
    Content content;
    content.fixed = fixed;
    content.width = 313;
    content.height = 87;
    return content;
}

Content with(Content content, bool left, bool hasTitle, bool hasSubtitle, bool right)
{
    content.hasTitle = hasTitle;
    content.hasSubtitle = hasSubtitle;
    if (left)
        content.leftIcon = leftIcon;
    if (right)
        content.rightIcon = rightIcon;
    if (hasTitle)
        content.title = title;
    if (hasSubtitle)
        content.subtitle = subtitle;
    return content;
}

QRect at(int x, int y, const QSize &size)
{
    return { QPoint(x, y), size };
}

struct Expected
{
    QRect leftIcon = {};
    QRect title = {};
    QRect subtitle = {};
    QRect rightIcon = {};
    int implicitWidth = 313;
};

StbButtonLayout layoutOf(const Expected &expected)
{
    StbButtonLayout layout;
    layout.leftIcon = expected.leftIcon;
    layout.title = expected.title;
    layout.subtitle = expected.subtitle;
    layout.rightIcon = expected.rightIcon;
    layout.implicitWidth = expected.implicitWidth;
    return layout;
}

Style centredStyle()
{
    Style style = oddButtonStyle();
    style.titleStyle.alignment = Qt::AlignHCenter | Qt::AlignTop;
    style.subtitleStyle.alignment = Qt::AlignCenter;
    return style;
}

const std::array intFields { &Style::leftPadding,         &Style::iconTopOffset,  &Style::rightPadding,
                             &Style::iconSpacing,         &Style::textMarginLeft, &Style::textMarginRight,
                             &Style::titleSubtitleSpacing };

// All there is to say about one style: every layout of every combination of parts.
QList<StbButtonLayout> allLayouts(const Style &style)
{
    QList<StbButtonLayout> layouts;
    for (int parts = 0; parts < 32; ++parts) {
        const Content content = with(button(parts & 1), parts & 2, parts & 4, parts & 8, parts & 16);
        layouts += StbButtonLayout::compute(style, content);
        layouts.last().implicitWidth += 1000 * StbButtonLayout::textWidth(style, content);
    }
    return layouts;
}

} // namespace

class tst_StbButtonLayout : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    // The odd style: paddings 19 and 23, icon top 29, icon spacing 13, text margins 7 and 11, line spacing 5. The
    // middle of the height is 43.
    void everyPartHasItsPlace_data()
    {
        QTest::addColumn<Content>("content");
        QTest::addColumn<StbButtonLayout>("expected");
        const auto row = [](const char *name, const Content &content, const Expected &expected) {
            QTest::newRow(name) << content << layoutOf(expected);
        };
        const Content fixed = button(true);
        row("fixed: nothing", fixed, {});
        row("fixed: everything", with(fixed, true, true, true, true),
            { .leftIcon = at(0, 27, leftIcon),
              .title = at(41, 15, title),
              .subtitle = at(41, 50, subtitle),
              .rightIcon = at(273, 29, rightIcon) });
        row("fixed: title", with(fixed, false, true, false, false), { .title = at(7, 28, title) });
        row("fixed: subtitle", with(fixed, false, false, true, false), { .subtitle = at(7, 32, subtitle) });
        row("fixed: left icon alone is centred", with(fixed, true, false, false, false),
            { .leftIcon = at(146, 27, leftIcon) });
        row("fixed: right icon alone", with(fixed, false, false, false, true),
            { .rightIcon = at(273, 29, rightIcon) });
        row("fixed: both icons, the left one centred", with(fixed, true, false, false, true),
            { .leftIcon = at(146, 27, leftIcon), .rightIcon = at(273, 29, rightIcon) });
        row("fixed: left icon and title", with(fixed, true, true, false, false),
            { .leftIcon = at(0, 27, leftIcon), .title = at(41, 28, title) });
        row("fixed: title and right icon", with(fixed, false, true, false, true),
            { .title = at(7, 28, title), .rightIcon = at(273, 29, rightIcon) });

        const Content growing = button(false);
        row("growing: nothing", growing, { .implicitWidth = 42 });
        row("growing: everything", with(growing, true, true, true, true),
            { .leftIcon = at(19, 27, leftIcon),
              .title = at(60, 15, title),
              .subtitle = at(60, 15, subtitle),
              .rightIcon = at(185, 34, rightIcon),
              .implicitWidth = 235 });
        row("growing: title", with(growing, false, true, false, false),
            { .title = at(26, 28, title), .implicitWidth = 161 });
        row("growing: left icon", with(growing, true, false, false, false),
            { .leftIcon = at(19, 27, leftIcon), .implicitWidth = 63 });
        row("growing: right icon", with(growing, false, false, false, true),
            { .rightIcon = at(19, 34, rightIcon), .implicitWidth = 69 });
        row("growing: no spacing between a subtitle and the right icon",
            with(growing, false, false, true, true),
            { .subtitle = at(26, 33, subtitle), .rightIcon = at(120, 34, rightIcon), .implicitWidth = 170 });
    }
    void everyPartHasItsPlace()
    {
        QFETCH(Content, content);
        QFETCH(StbButtonLayout, expected);
        const StbButtonLayout layout = StbButtonLayout::compute(oddButtonStyle(), content);
        QCOMPARE(layout.leftIcon, expected.leftIcon);
        QCOMPARE(layout.title, expected.title);
        QCOMPARE(layout.subtitle, expected.subtitle);
        QCOMPARE(layout.rightIcon, expected.rightIcon);
        QCOMPARE(layout.implicitWidth, expected.implicitWidth);
    }

    void noTwoStyleNumbersCanBeSwapped()
    {
        const QList<StbButtonLayout> right = allLayouts(oddButtonStyle());
        for (const auto first : intFields) {
            for (const auto second : intFields) {
                if (first == second)
                    continue;
                Style style = oddButtonStyle();
                std::swap(style.*first, style.*second);
                QVERIFY(allLayouts(style) != right);
            }
        }
    }

    void theTextsOfAFixedButtonGetWhatIsLeftBetweenIconsAndMargins_data()
    {
        QTest::addColumn<Content>("content");
        QTest::addColumn<int>("width");
        const Content fixed = button(true);
        QTest::newRow("no icons") << with(fixed, false, true, true, false) << 295;
        QTest::newRow("left icon") << with(fixed, true, true, false, false) << 261;
        QTest::newRow("right icon") << with(fixed, false, false, true, true) << 255;
        QTest::newRow("both icons") << with(fixed, true, true, true, true) << 221;
        Content narrow = with(fixed, true, true, true, true);
        narrow.width = 5;
        QTest::newRow("no room") << narrow << -87;
    }
    void theTextsOfAFixedButtonGetWhatIsLeftBetweenIconsAndMargins()
    {
        QFETCH(Content, content);
        QFETCH(int, width);
        QCOMPARE(StbButtonLayout::textWidth(oddButtonStyle(), content), width);
        content.title = QSize(999, 1);
        QCOMPARE(StbButtonLayout::textWidth(oddButtonStyle(), content), width); // no text is looked at
    }

    void centredLinesStandInTheMiddleOfTheTextColumn()
    {
        const Content content = with(button(true), false, true, true, false);
        const StbButtonLayout layout = StbButtonLayout::compute(centredStyle(), content);
        QCOMPARE(layout.title, at(104, 15, title));
        QCOMPARE(layout.subtitle, at(113, 50, subtitle));
    }

    void eachLineIsCentredByItsOwnStyle()
    {
        const Content content = with(button(true), false, true, true, false);
        Style style = oddButtonStyle();
        style.titleStyle.alignment = Qt::AlignHCenter;
        StbButtonLayout layout = StbButtonLayout::compute(style, content);
        QCOMPARE(layout.title.left(), 104);
        QCOMPARE(layout.subtitle.left(), 7);
        style = oddButtonStyle();
        style.subtitleStyle.alignment = Qt::AlignHCenter;
        layout = StbButtonLayout::compute(style, content);
        QCOMPARE(layout.title.left(), 7);
        QCOMPARE(layout.subtitle.left(), 113);
    }

    void otherAlignmentsBeginAtTheLeft()
    {
        const Content content = with(button(true), false, true, false, false);
        for (const Qt::Alignment alignment :
             { Qt::Alignment(Qt::AlignLeft), Qt::Alignment(Qt::AlignRight), Qt::Alignment(Qt::AlignJustify),
               Qt::Alignment(Qt::AlignVCenter) }) {
            Style style = oddButtonStyle();
            style.titleStyle.alignment = alignment;
            QCOMPARE(StbButtonLayout::compute(style, content).title.left(), 7);
        }
    }

    void aGrowingButtonCentresNoLine()
    {
        const Content content = with(button(false), true, true, true, true);
        QCOMPARE(StbButtonLayout::compute(centredStyle(), content),
                 StbButtonLayout::compute(oddButtonStyle(), content));
    }

    void halvesAreRoundedTowardZero()
    {
        Content content = with(button(true), true, true, true, true);
        content.height = 0;
        content.title = QSize(356, 31); // 135 more than the text column: 67 to each side, not 68
        StbButtonLayout layout = StbButtonLayout::compute(centredStyle(), content);
        QCOMPARE(layout.title.topLeft(), QPoint(41 - 67, -28));
        QCOMPARE(layout.subtitle.top(), 28 - 21);
        QCOMPARE(layout.leftIcon.top(), -16);
        content = with(button(true), true, false, false, false);
        content.width = 1;
        QCOMPARE(StbButtonLayout::compute(oddButtonStyle(), content).leftIcon.left(), -10);
        content.width = 20; // an even width with an odd icon
        QCOMPARE(StbButtonLayout::compute(oddButtonStyle(), content).leftIcon.left(), 0);
    }

    void theButtonsOwnPaddingsReplaceTheStyles_data()
    {
        QTest::addColumn<double>("left");
        QTest::addColumn<double>("right");
        QTest::addColumn<int>("titleLeft");
        QTest::addColumn<int>("implicitWidth");
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double infinity = std::numeric_limits<double>::infinity();
        constexpr int bound = 1 << 30;
        QTest::newRow("none") << 0. << 0. << 26 << 161;
        QTest::newRow("left") << 41. << 0. << 48 << 183;
        QTest::newRow("right") << 0. << 61. << 26 << 199;
        QTest::newRow("fractions are cut off") << 41.9 << 61.9 << 48 << 221;
        QTest::newRow("less than a pixel is no padding") << 0.5 << 0.9 << 7 << 119;
        QTest::newRow("negative means the style's") << -3. << -0.1 << 26 << 161;
        QTest::newRow("no number means the style's") << nan << nan << 26 << 161;
        QTest::newRow("minus infinity too") << -infinity << -infinity << 26 << 161;
        QTest::newRow("infinity is bounded") << infinity << infinity << bound << bound;
        QTest::newRow("huge is bounded") << 1e300 << 1e18 << bound << bound;
    }
    void theButtonsOwnPaddingsReplaceTheStyles()
    {
        QFETCH(double, left);
        QFETCH(double, right);
        QFETCH(int, titleLeft);
        QFETCH(int, implicitWidth);
        Content content = with(button(false), false, true, false, false);
        content.leftPadding = left;
        content.rightPadding = right;
        const StbButtonLayout layout = StbButtonLayout::compute(oddButtonStyle(), content);
        QCOMPARE(layout.title, at(titleLeft, 28, title));
        QCOMPARE(layout.implicitWidth, implicitWidth);
    }

    void aFixedButtonHasNoPaddings()
    {
        Content content = with(button(true), true, true, true, true);
        const StbButtonLayout before = StbButtonLayout::compute(oddButtonStyle(), content);
        content.leftPadding = 41;
        content.rightPadding = 61;
        QCOMPARE(StbButtonLayout::compute(oddButtonStyle(), content), before);
    }

    void aLineThatBecameEmptyKeepsItsRoom()
    {
        Content content = with(button(true), false, true, false, false);
        content.subtitle = subtitle;
        StbButtonLayout layout = StbButtonLayout::compute(oddButtonStyle(), content);
        QCOMPARE(layout.title, at(7, 17, title)); // without the space between the lines
        content.fixed = false;
        content.subtitle = QSize(151, 21);
        QCOMPARE(StbButtonLayout::compute(oddButtonStyle(), content).implicitWidth, 161 + 50);
        content = with(button(false), false, false, false, true);
        content.title = title;
        layout = StbButtonLayout::compute(oddButtonStyle(), content);
        QCOMPARE(layout.rightIcon, at(32, 34, rightIcon));
        QCOMPARE(layout.implicitWidth, 82);
    }

    void aLineThatFitsNowhereIsNotPlaced()
    {
        Content content = with(button(true), false, true, true, false);
        content.title = QSize(0, 0);
        const StbButtonLayout layout = StbButtonLayout::compute(oddButtonStyle(), content);
        QVERIFY(!layout.title.isValid());
        QCOMPARE(layout.subtitle.top(), 43 + (21 + 5) / 2 - 21);
    }

    void theThrobberTakesTwoFifthsOfTheHeightRoundedUp_data()
    {
        QTest::addColumn<double>("height");
        QTest::addColumn<int>("side");
        QTest::newRow("nothing") << 0. << 0;
        QTest::newRow("a little") << 0.1 << 1;
        QTest::newRow("whole") << 85. << 34;
        QTest::newRow("rounded up") << 85.1 << 35;
        QTest::newRow("almost whole") << 87. << 35;
        QTest::newRow("bounded") << 1e12 << 2048;
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 2048;
        QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 0;
    }
    void theThrobberTakesTwoFifthsOfTheHeightRoundedUp()
    {
        QFETCH(double, height);
        QFETCH(int, side);
        QCOMPARE(StbButtonLayout::throbberSide(height), side);
    }

    void whateverTheSizeThePartsKeepTheirSizesAndOrder()
    {
        const Style style = oddButtonStyle();
        for (int parts = 0; parts < 32; ++parts) {
            for (int side = 0; side < 400; side += side < 40 ? 1 : 13) {
                Content content = with(button(parts & 1), parts & 2, parts & 4, parts & 8, parts & 16);
                content.width = side;
                content.height = 400 - side;
                const StbButtonLayout layout = StbButtonLayout::compute(style, content);
                QCOMPARE(layout.leftIcon.size().expandedTo({ 0, 0 }), content.leftIcon.expandedTo({ 0, 0 }));
                QCOMPARE(layout.rightIcon.size().expandedTo({ 0, 0 }), content.rightIcon.expandedTo({ 0, 0 }));
                QCOMPARE(layout.title.isValid(), content.hasTitle);
                QCOMPARE(layout.subtitle.isValid(), content.hasSubtitle);
                if (content.hasTitle && !content.leftIcon.isEmpty())
                    QCOMPARE(layout.title.left() - layout.leftIcon.right() - 1, 13 + 7);
                if (!content.fixed && content.hasTitle && !content.rightIcon.isEmpty())
                    QVERIFY(layout.rightIcon.left() >= layout.title.right() + 1 + 13 + 11);
                if (content.fixed)
                    QCOMPARE(layout.implicitWidth, side);
            }
        }
    }

    // Run under the sanitizer, an overflow fails.
    void noNumberOverflows()
    {
        constexpr std::array extremes { std::numeric_limits<int>::min(), -1, 0,
                                        std::numeric_limits<int>::max() };
        for (const int number : extremes) {
            for (const int side : { -(1 << 30), 0, 1 << 30 }) {
                for (int parts = 0; parts < 32; ++parts) {
                    Style style = centredStyle();
                    for (const auto field : intFields)
                        style.*field = number;
                    Content content = with(button(parts & 1), parts & 2, parts & 4, parts & 8, parts & 16);
                    content.width = side;
                    content.height = side;
                    content.leftPadding = content.rightPadding = number;
                    const StbButtonLayout layout = StbButtonLayout::compute(style, content);
                    QVERIFY(qAbs(layout.implicitWidth) <= 1 << 30);
                    QVERIFY(qAbs(StbButtonLayout::textWidth(style, content)) <= 1 << 30);
                    QCOMPARE(layout.rightIcon.isValid(), (parts & 16) != 0);
                    QCOMPARE(layout.title.isValid(), (parts & 4) != 0);
                }
            }
        }
    }
};

STB_TEST_MAIN(tst_StbButtonLayout)
#include "tst_stbbuttonlayout.moc"
