// SPDX-License-Identifier: MIT
#include "epgstyles.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepgviewdelegatelayout.h>

using Layout = StbEpgViewDelegateLayout;
using Style = design_system::PlayerEpgDelegateStyle;

namespace {

Layout::Content content(const QRect &startTime, const QRect &title, const QRect &subtitle)
{
    Layout::Content result;
    result.startTime = startTime;
    result.title = title;
    result.subtitle = subtitle;
    return result;
}

const QRect none(QPoint(0, 0), QPoint(-1, -1));

} // namespace

class tst_StbEpgViewDelegateLayout : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void textsOfAPlainRow_data()
    {
        QTest::addColumn<QRect>("startTime");
        QTest::addColumn<QRect>("title");
        QTest::addColumn<QRect>("subtitle");
        QTest::addColumn<QRect>("titleRect");
        QTest::addColumn<QRect>("subtitleRect");
        QTest::addColumn<int>("height");
        const QRect time(0, 0, 61, 27);
        const QRect title(0, 0, 401, 33);
        const QRect subtitle(0, 0, 303, 25);
        QTest::newRow("the subtitle starts at the title's bottom corner plus the spacing")
                << time << title << subtitle << QRect(131, 0, 401, 33) << QRect(131, 32 + 7, 303, 25) << 63;
        QTest::newRow("without a title the subtitle takes its place")
                << time << none << subtitle << none << QRect(131, 0, 303, 25) << 26;
        QTest::newRow("without a subtitle the title stands alone")
                << time << title << none << QRect(131, 0, 401, 33) << none << 32;
        QTest::newRow("the start time alone gives the height") << time << none << none << none << none << 26;
        QTest::newRow("a start time lower than the texts gives the height")
                << QRect(0, 0, 61, 77) << title << subtitle << QRect(131, 0, 401, 33)
                << QRect(131, 39, 303, 25) << 76;
        QTest::newRow("no text at all: never below 0") << none << none << none << none << none << 0;
        QTest::newRow("extents that do not begin at the origin are moved, not replaced")
                << QRect(2, 3, 61, 27) << QRect(5, 1, 401, 33) << QRect(4, 2, 303, 25)
                << QRect(136, 1, 401, 33) << QRect(135, 2 + 33 + 7, 303, 25) << 66;
    }
    void textsOfAPlainRow()
    {
        QFETCH(QRect, startTime);
        QFETCH(QRect, title);
        QFETCH(QRect, subtitle);
        const Layout layout = Layout::compute(oddEpgStyle(), content(startTime, title, subtitle));
        QCOMPARE(layout.startTime, startTime); // never moved
        QTEST(layout.title, "titleRect");
        QTEST(layout.subtitle, "subtitleRect");
        QTEST(layout.height, "height");
        QVERIFY(layout.liveBadge.isNull());
        QVERIFY(layout.liveIndicator.isNull());
        QVERIFY(layout.liveText.isNull());
    }

    void badgeOfALiveRow_data()
    {
        QTest::addColumn<int>("top");
        QTest::addColumn<QSize>("icon");
        QTest::addColumn<QRect>("label");
        QTest::addColumn<QRect>("badgeRect");
        QTest::addColumn<QRect>("iconRect");
        QTest::addColumn<QRect>("labelRect");
        QTest::addColumn<int>("titleTop");
        // The icon's inclusive right corner is 131 + 5 + 17 - 1 = 152; the label begins 9 behind it.
        QTest::newRow("the label is taller: the icon moves down by half the difference, rounded down")
                << 0 << QSize(17, 13) << QRect(0, 0, 71, 20) << QRect(131, 3, 71 + 17 + 10 + 9, 30)
                << QRect(136, 3 + 5 + 3, 17, 13) << QRect(161, 3 + 5, 71, 20) << 3 + 30 + 11;
        QTest::newRow("the icon is taller: the label moves down")
                << 0 << QSize(17, 20) << QRect(0, 0, 71, 13) << QRect(131, 3, 107, 30)
                << QRect(136, 8, 17, 20) << QRect(161, 8 + 3, 71, 13) << 44;
        QTest::newRow("equal heights: neither moves")
                << 0 << QSize(17, 15) << QRect(0, 0, 71, 15) << QRect(131, 3, 107, 25)
                << QRect(136, 8, 17, 15) << QRect(161, 8, 71, 15) << 3 + 25 + 11;
        QTest::newRow("below an extended item the extended margins hold")
                << 1 << QSize(17, 15) << QRect(0, 0, 71, 15) << QRect(131, 24, 107, 25)
                << QRect(136, 29, 17, 15) << QRect(161, 29, 71, 15) << 24 + 25 + 29;
        QTest::newRow("a card of 211 and its spacing above")
                << 230 << QSize(17, 15) << QRect(0, 0, 71, 15) << QRect(131, 253, 107, 25)
                << QRect(136, 258, 17, 15) << QRect(161, 258, 71, 15) << 253 + 25 + 29;
        QTest::newRow("a missing icon: the badge is label, padding and spacing")
                << 0 << QSize(0, 0) << QRect(0, 0, 71, 15) << QRect(131, 3, 71 + 10 + 9, 25)
                << QRect(136, 3 + 5 + 7, 0, 0) << QRect(144, 8, 71, 15) << 39;
        QTest::newRow("an empty label: the badge is icon, padding and spacing")
                << 0 << QSize(17, 15) << none << QRect(131, 3, 17 + 10 + 9, 25) << QRect(136, 8, 17, 15)
                << QRect(161, 8 + 7, 0, 0) << 39;
    }
    void badgeOfALiveRow()
    {
        QFETCH(int, top);
        QFETCH(QSize, icon);
        QFETCH(QRect, label);
        QFETCH(int, titleTop);
        Layout::Content live = content(none, QRect(0, 0, 401, 33), QRect(0, 0, 303, 25));
        live.top = top;
        live.live = true;
        live.liveIndicatorSize = icon;
        live.liveText = label;
        const Layout layout = Layout::compute(oddEpgStyle(), live);
        QTEST(layout.liveBadge, "badgeRect");
        QTEST(layout.liveIndicator, "iconRect");
        QTEST(layout.liveText, "labelRect");
        QCOMPARE(layout.title, QRect(131, titleTop, 401, 33));
        QCOMPARE(layout.subtitle, QRect(131, titleTop + 32 + 7, 303, 25));
        QCOMPARE(layout.height, titleTop + 32 + 7 + 24);
    }

    void aRowThatIsNotLiveIgnoresIconAndLabel()
    {
        Layout::Content plain = content(none, QRect(0, 0, 401, 33), none);
        const Layout expected = Layout::compute(oddEpgStyle(), plain);
        plain.liveIndicatorSize = QSize(17, 15);
        plain.liveText = QRect(0, 0, 71, 15);
        QCOMPARE(Layout::compute(oddEpgStyle(), plain), expected);
    }

    void sweepOverSizesKeepsThePartsApart()
    {
        const Style style = oddEpgStyle();
        for (int label = 0; label < 40; ++label) {
            for (int icon = 0; icon < 40; ++icon) {
                for (int title = 0; title < 40; title += 3) {
                    Layout::Content live = content(QRect(0, 0, 61, 27), QRect(0, 0, 401, title),
                                                   QRect(0, 0, 303, 25));
                    live.live = true;
                    live.liveIndicatorSize = QSize(icon, icon);
                    live.liveText = QRect(0, 0, 71, label);
                    const Layout layout = Layout::compute(style, live);
                    const QRect inner = layout.liveBadge.adjusted(5, 5, -5, -5);
                    QCOMPARE(inner.height(), qMax(label, icon));
                    if (layout.liveIndicator.isValid())
                        QVERIFY(inner.contains(layout.liveIndicator));
                    if (layout.liveText.isValid())
                        QVERIFY(inner.contains(layout.liveText));
                    QVERIFY(!layout.liveText.intersects(layout.liveIndicator));
                    // Centred: the spaces above and below differ by one line at most.
                    for (const QRect &part : { layout.liveText, layout.liveIndicator }) {
                        if (part.isValid())
                            QVERIFY(qAbs((part.top() - inner.top()) - (inner.bottom() - part.bottom())) <= 1);
                    }
                    const QRect first = title > 0 ? layout.title : layout.subtitle;
                    QCOMPARE(first.top(), layout.liveBadge.bottom() + 1 + 11);
                    QVERIFY(layout.height >= layout.subtitle.bottom());
                    QVERIFY(layout.height >= layout.startTime.bottom());
                }
            }
        }
    }
};

STB_TEST_MAIN(tst_StbEpgViewDelegateLayout)
#include "tst_stbepgviewdelegatelayout.moc"
