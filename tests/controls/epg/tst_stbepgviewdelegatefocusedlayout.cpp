// SPDX-License-Identifier: MIT
#include "epgstyles.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepgviewdelegatefocusedlayout.h>

#include <limits>

using Layout = StbEpgViewDelegateFocusedLayout;
using Style = design_system::PlayerEpgDelegateStyle;

namespace {

const QRect none(QPoint(0, 0), QPoint(-1, -1));

// The card is 417 x 211 at 131; the bar is 9 high and 27 from its edges; the action bar is 47 high.
Layout::Content content()
{
    Layout::Content result;
    result.playIcon = QSize(41, 43);
    result.reminderIcon = QSize(21, 23);
    result.status = QRect(0, 0, 203, 29);
    result.startsAt = QRect(0, 0, 107, 21);
    result.reminderAction = QRect(0, 0, 151, 19);
    return result;
}

} // namespace

class tst_StbEpgViewDelegateFocusedLayout : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void progressBar_data()
    {
        QTest::addColumn<double>("progress");
        QTest::addColumn<int>("filled");
        constexpr double infinity = std::numeric_limits<double>::infinity();
        const int whole = 417 - 2 * 27;
        QTest::newRow("0: the rest begins one pixel before the bar") << 0.0 << 0;
        QTest::newRow("1: nothing is left") << 1.0 << whole;
        QTest::newRow("a half is cut off, not rounded") << 0.5 << 181;
        QTest::newRow("a third") << 1.0 / 3 << 121;
        QTest::newRow("nearly one") << 0.9999 << 362;
        QTest::newRow("hardly any") << 0.0001 << 0;
        QTest::newRow("above 1") << 1.5 << whole;
        QTest::newRow("far above 1") << 1e300 << whole;
        QTest::newRow("below 0") << -0.5 << 0;
        QTest::newRow("far below 0") << -1e300 << 0;
        QTest::newRow("infinity") << infinity << whole;
        QTest::newRow("negative infinity") << -infinity << 0;
        QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
    }
    void progressBar()
    {
        QFETCH(double, progress);
        QFETCH(int, filled);
        Layout::Content live = content();
        live.progress = progress;
        const Layout layout = Layout::compute(oddEpgStyle(), live);
        QCOMPARE(layout.played, QRect(158, 211 - 27 - 9, filled, 9));
        QCOMPARE(layout.remainder, QRect(158 + filled - 1, 175, 363 - filled, 9));
    }

    void theBarsPartsOverlapByOnePixel()
    {
        Layout::Content live = content();
        for (int step = 1; step < 100; ++step) {
            live.progress = step / 100.0;
            const Layout layout = Layout::compute(oddEpgStyle(), live);
            QCOMPARE(layout.remainder.left(), layout.played.right());
            QCOMPARE(layout.played.width() + layout.remainder.width(), 363);
            QCOMPARE(layout.remainder.right(), 158 + 363 - 1 - 1);
        }
    }

    void thePlayIconStandsInTheMiddleOfTheCard_data()
    {
        QTest::addColumn<QSize>("icon");
        QTest::addColumn<QRect>("place");
        QTest::newRow("odd in odd") << QSize(41, 43) << QRect(131 + 188, 84, 41, 43);
        QTest::newRow("even in odd: rounded down") << QSize(40, 44) << QRect(131 + 188, 83, 40, 44);
        QTest::newRow("as large as the card") << QSize(417, 211) << QRect(131, 0, 417, 211);
        QTest::newRow("larger than the card: rounded towards zero")
                << QSize(420, 216) << QRect(131 - 1, -2, 420, 216);
        QTest::newRow("missing") << QSize() << QRect(131 + 208, 105, 0, 0);
    }
    void thePlayIconStandsInTheMiddleOfTheCard()
    {
        QFETCH(QSize, icon);
        Layout::Content playable = content();
        playable.playIcon = icon;
        QTEST(Layout::compute(oddEpgStyle(), playable).playIcon, "place");
    }

    void theNoticeStandsInTheMiddleOfTheCard_data()
    {
        QTest::addColumn<QRect>("text");
        QTest::addColumn<QRect>("place");
        QTest::newRow("at the origin") << QRect(0, 0, 203, 29) << QRect(131 + 107, 91, 203, 29);
        QTest::newRow("even: rounded down") << QRect(0, 0, 204, 30) << QRect(131 + 106, 90, 204, 30);
        QTest::newRow("an extent of its own is added") << QRect(3, 5, 203, 29) << QRect(241, 96, 203, 29);
        QTest::newRow("wider than the card") << QRect(0, 0, 421, 215) << QRect(129, -2, 421, 215);
    }
    void theNoticeStandsInTheMiddleOfTheCard()
    {
        QFETCH(QRect, text);
        Layout::Content past = content();
        past.status = text;
        QTEST(Layout::compute(oddEpgStyle(), past).notice, "place");
    }

    void theActionBarLiesAlongTheBottomWithItsLabelInTheMiddle_data()
    {
        QTest::addColumn<QRect>("label");
        QTest::addColumn<QRect>("place");
        QTest::newRow("at the origin") << QRect(0, 0, 151, 19) << QRect(131 + 133, 164 + 14, 151, 19);
        QTest::newRow("even: rounded down") << QRect(0, 0, 150, 20) << QRect(131 + 133, 164 + 13, 150, 20);
        QTest::newRow("an extent of its own is added") << QRect(3, 5, 151, 19) << QRect(267, 183, 151, 19);
        QTest::newRow("higher than the bar") << QRect(0, 0, 151, 51) << QRect(264, 162, 151, 51);
    }
    void theActionBarLiesAlongTheBottomWithItsLabelInTheMiddle()
    {
        QFETCH(QRect, label);
        Layout::Content future = content();
        future.reminderAction = label;
        const Layout layout = Layout::compute(oddEpgStyle(), future);
        QCOMPARE(layout.reminderBar, QRect(131, 211 - 47, 417, 47));
        QTEST(layout.reminderAction, "place");
    }

    void theReminderStack_data()
    {
        QTest::addColumn<QSize>("icon");
        QTest::addColumn<QRect>("status");
        QTest::addColumn<QRect>("startsAt");
        QTest::addColumn<QRect>("iconPlace");
        QTest::addColumn<QRect>("statusPlace");
        QTest::addColumn<QRect>("startsAtPlace");
        // 164 are free above the bar; the stack is 21 + 29 + 23 + 19 = 92 high.
        QTest::newRow("icon, status, start time")
                << QSize(21, 23) << QRect(0, 0, 203, 29) << QRect(0, 0, 107, 21) << QRect(329, 36, 21, 23)
                << QRect(238, 36 + 23 + 19, 203, 29) << QRect(286, 78 + 29, 107, 21);
        QTest::newRow("even sizes are rounded down")
                << QSize(20, 24) << QRect(0, 0, 204, 30) << QRect(0, 0, 108, 22) << QRect(329, 34, 20, 24)
                << QRect(237, 34 + 24 + 19, 204, 30) << QRect(285, 77 + 30, 108, 22);
        QTest::newRow("a missing icon takes no room, but its spacing pushes the texts down")
                << QSize() << QRect(0, 0, 203, 29) << QRect(0, 0, 107, 21) << QRect(339, 57, 0, 0)
                << QRect(238, 57 + 19, 203, 29) << QRect(286, 76 + 29, 107, 21);
        QTest::newRow("extents of their own are not added")
                << QSize(21, 23) << QRect(3, 5, 203, 29) << QRect(7, 9, 107, 21) << QRect(329, 36, 21, 23)
                << QRect(238, 78, 203, 29) << QRect(286, 107, 107, 21);
        QTest::newRow("empty texts") << QSize(21, 23) << none << none << QRect(329, 61, 21, 23)
                                     << QRect(QPoint(339, 103), QSize(0, 0))
                                     << QRect(QPoint(339, 103), QSize(0, 0));
        QTest::newRow("higher than the room: rounded towards zero")
                << QSize(21, 100) << QRect(0, 0, 203, 29) << QRect(0, 0, 107, 21) << QRect(329, -2, 21, 100)
                << QRect(238, 117, 203, 29) << QRect(286, 146, 107, 21);
    }
    void theReminderStack()
    {
        QFETCH(QSize, icon);
        QFETCH(QRect, status);
        QFETCH(QRect, startsAt);
        Layout::Content future = content();
        future.reminderIcon = icon;
        future.status = status;
        future.startsAt = startsAt;
        const Layout layout = Layout::compute(oddEpgStyle(), future);
        QTEST(layout.reminderIcon, "iconPlace");
        QTEST(layout.status, "statusPlace");
        QTEST(layout.startsAt, "startsAtPlace");
    }

    void theTopOfTheCardMovesNothing()
    {
        Style style = oddEpgStyle();
        const Layout expected = Layout::compute(style, content());
        style.previewRect.moveTop(-77);
        QCOMPARE(Layout::compute(style, content()), expected);
        style.previewRect.moveLeft(0);
        const Layout moved = Layout::compute(style, content());
        for (const auto part :
             { &Layout::played, &Layout::remainder, &Layout::playIcon, &Layout::notice, &Layout::reminderIcon,
               &Layout::status, &Layout::startsAt, &Layout::reminderBar, &Layout::reminderAction })
            QCOMPARE(moved.*part, (expected.*part).translated(-131, 0));
    }

    // The numbers that are none of the layout's business, however large they are.
    void onlyTheNamedFieldsCount()
    {
        Style style = oddEpgStyle();
        const Layout expected = Layout::compute(style, content());
        style.previewBottomSpacing = 999;
        style.progressBarRect = QRect(27, 1, 999, 9);
        style.reminderActionTextStyle.rect = QRect(999, 998, 997, 47);
        style.statusTextStyle.rect = QRect(901, 903, 907, 909);
        style.startsAtTextStyle.rect = QRect(911, 913, 917, 919);
        QCOMPARE(Layout::compute(style, content()), expected);
    }

    void sweepOverSizesKeepsThePartsInTheirOrder()
    {
        Style style = oddEpgStyle();
        for (int size = 0; size < 120; ++size) {
            style.previewRect.setSize(QSize(3 * size, 2 * size));
            for (int part = 0; part < 60; ++part) {
                Layout::Content any;
                any.progress = part / 60.0;
                any.playIcon = any.reminderIcon = QSize(part, part);
                any.status = QRect(0, 0, 3 * part, part);
                any.startsAt = QRect(0, 0, 2 * part, part);
                any.reminderAction = QRect(0, 0, part, part);
                checkOrder(style, Layout::compute(style, any));
            }
        }
    }

private:
    static void checkOrder(const Style &style, const Layout &layout)
    {
        const QRect card(131, 0, style.previewRect.width(), style.previewRect.height());
        QCOMPARE(layout.reminderBar.bottom(), card.bottom());
        QCOMPARE(layout.reminderBar.width(), card.width());
        QCOMPARE(layout.status.top(), layout.reminderIcon.top() + layout.reminderIcon.height() + 19);
        QCOMPARE(layout.startsAt.top(), layout.status.top() + layout.status.height());
        // Centred: the spaces on both sides differ by one pixel at most, also when they are negative.
        for (const QRect &part : { layout.playIcon, layout.notice, layout.reminderIcon, layout.status,
                                   layout.startsAt, layout.reminderAction }) {
            QVERIFY(qAbs((part.left() - card.left()) - (card.right() - part.right())) <= 1);
        }
        for (const QRect &part : { layout.playIcon, layout.notice })
            QVERIFY(qAbs((part.top() - card.top()) - (card.bottom() - part.bottom())) <= 1);
        const int below = layout.reminderBar.top() - 1 - layout.startsAt.bottom();
        const int spacingLeftOut = layout.reminderIcon.isEmpty() ? 19 : 0;
        QVERIFY(qAbs(layout.reminderIcon.top() - below - spacingLeftOut) <= 1);
    }
};

STB_TEST_MAIN(tst_StbEpgViewDelegateFocusedLayout)
#include "tst_stbepgviewdelegatefocusedlayout.moc"
