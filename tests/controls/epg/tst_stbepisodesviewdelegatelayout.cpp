// SPDX-License-Identifier: MIT
#include "epgstyles.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepisodesviewdelegatelayout.h>

#include <functional>
#include <limits>

using Layout = StbEpisodesViewDelegateLayout;
using design_system::PlayerEpisodesItemStyle;
using Style = PlayerEpisodesItemStyle;
using Change = std::function<void(Style &)>;
using Places = QMap<QString, QRect>;

namespace {

const QSize titleSize(101, 57);
const QSize subtitleSize(211, 63);
const QSize statusSize(71, 19);
const QSize upperSize(59, 33);
const QSize lowerSize(47, 21);
const QSize none = QRect(QPoint(0, 0), QPoint(-1, -1)).size(); // the extent of an empty text

Places places(const Style &style)
{
    const QRect badge = Layout::badge(style, statusSize);
    const Layout::Progress bar = Layout::progress(style, 0.4);
    return { { "title", Layout::title(style, titleSize) },
             { "subtitle", Layout::subtitle(style, titleSize, subtitleSize) },
             { "icon", Layout::playIcon(style) },
             { "badge", badge },
             { "status", Layout::insideBadge(style, badge) },
             { "above bar", Layout::boxAboveBar(style, statusSize) },
             { "upper", Layout::upperDate(style, upperSize, lowerSize) },
             { "lower", Layout::lowerDate(style, lowerSize) },
             { "viewed", bar.viewed },
             { "remaining", bar.remaining } };
}

} // namespace

class tst_StbEpisodesViewDelegateLayout : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    // Each row changes one field and names the places that move with it; all the others stay.
    void everyFieldMovesItsOwnParts_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<Places>("moved");
        QTest::newRow("none") << Change([](Style &) {}) << Places();
        QTest::newRow("tileRect left")
                << Change([](Style &s) { s.tileRect.translate(10, 0); })
                << Places { { "badge", QRect(115, 83, 89, 27) },     { "status", QRect(122, 86, 71, 19) },
                            { "above bar", QRect(115, 47, 89, 27) }, { "upper", QRect(34, 50, 59, 33) },
                            { "lower", QRect(34, 83, 47, 21) },      { "viewed", QRect(34, 95, 68, 15) },
                            { "remaining", QRect(101, 95, 103, 15) } };
        QTest::newRow("tileRect top") << Change([](Style &s) { s.tileRect.translate(0, 10); })
                                      << Places { { "badge", QRect(105, 93, 89, 27) },
                                                  { "status", QRect(112, 96, 71, 19) },
                                                  { "above bar", QRect(105, 57, 89, 27) },
                                                  { "viewed", QRect(24, 105, 68, 15) },
                                                  { "remaining", QRect(91, 105, 103, 15) } };
        QTest::newRow("tileRect width")
                << Change([](Style &s) { s.tileRect.setWidth(211); })
                << Places { { "title", QRect(230, 0, 101, 57) },  { "subtitle", QRect(230, 80, 211, 63) },
                            { "icon", QRect(87, 35, 37, 43) },    { "badge", QRect(115, 83, 89, 27) },
                            { "status", QRect(122, 86, 71, 19) }, { "above bar", QRect(115, 47, 89, 27) },
                            { "viewed", QRect(24, 95, 72, 15) },  { "remaining", QRect(95, 95, 109, 15) } };
        QTest::newRow("tileRect height")
                << Change([](Style &s) { s.tileRect.setHeight(123); })
                << Places { { "icon", QRect(82, 40, 37, 43) },    { "badge", QRect(105, 93, 89, 27) },
                            { "status", QRect(112, 96, 71, 19) }, { "above bar", QRect(105, 57, 89, 27) },
                            { "upper", QRect(24, 60, 59, 33) },   { "lower", QRect(24, 93, 47, 21) },
                            { "viewed", QRect(24, 105, 68, 15) }, { "remaining", QRect(91, 105, 103, 15) } };
        addMargins();
        addStatusAndBar();
        QTest::newRow("textLeftSpacing")
                << Change([](Style &s) { s.textLeftSpacing = 29; })
                << Places { { "title", QRect(230, 0, 101, 57) }, { "subtitle", QRect(230, 80, 211, 63) } };
        QTest::newRow("titleSubtitleSpacing") << Change([](Style &s) { s.titleSubtitleSpacing = 31; })
                                              << Places { { "subtitle", QRect(220, 88, 211, 63) } };
        QTest::newRow("textAreaRect")
                << Change([](Style &s) { s.textAreaRect = QRect(1, 2, 3, 4); }) << Places();
        QTest::newRow("playIconSize") << Change([](Style &s) { s.playIconSize = QSize(27, 23); })
                                      << Places { { "icon", QRect(87, 45, 27, 23) } };
        QTest::newRow("an icon larger than the tile") // the division cuts towards zero
                << Change([](Style &s) { s.playIconSize = QSize(206, 118); })
                << Places { { "icon", QRect(-2, -2, 206, 118) } };
    }
    void everyFieldMovesItsOwnParts()
    {
        QFETCH(Change, change);
        QFETCH(Places, moved);
        Places expected { { "title", QRect(220, 0, 101, 57) },  { "subtitle", QRect(220, 80, 211, 63) },
                          { "icon", QRect(82, 35, 37, 43) },    { "badge", QRect(105, 83, 89, 27) },
                          { "status", QRect(112, 86, 71, 19) }, { "above bar", QRect(105, 47, 89, 27) },
                          { "upper", QRect(24, 50, 59, 33) },   { "lower", QRect(24, 83, 47, 21) },
                          { "viewed", QRect(24, 95, 68, 15) },  { "remaining", QRect(91, 95, 103, 15) } };
        for (auto it = moved.cbegin(); it != moved.cend(); ++it)
            expected[it.key()] = it.value();
        Style style = oddEpisodesStyle();
        change(style);
        const Places actual = places(style);
        for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
            if (actual.value(it.key()) != it.value())
                qWarning("%s", qPrintable(it.key()));
            QCOMPARE(actual.value(it.key()), it.value());
        }
    }

    void anEmptyTitleKeepsTheGapAboveTheSubtitle()
    {
        QCOMPARE(Layout::subtitle(oddEpisodesStyle(), none, subtitleSize), QRect(220, 23, 211, 63));
    }

    void anEmptyStatusHasNoBox()
    {
        const Style style = oddEpisodesStyle();
        QCOMPARE(Layout::badge(style, none), QRect());
        QCOMPARE(Layout::boxAboveBar(style, none), QRect());
        QCOMPARE(Layout::insideBadge(style, QRect()), QRect());
    }

    void anUpperLineAloneStandsOnTheMargin()
    {
        QCOMPARE(Layout::upperDate(oddEpisodesStyle(), upperSize, none), QRect(24, 71, 59, 33));
    }

    void theFractionIsNotBounded_data()
    {
        QTest::addColumn<qint64>("position");
        QTest::addColumn<qint64>("duration");
        QTest::addColumn<double>("fraction");
        constexpr qint64 highest = std::numeric_limits<qint64>::max();
        constexpr qint64 lowest = std::numeric_limits<qint64>::min();
        QTest::newRow("inside") << qint64(3) << qint64(8) << 0.375;
        QTest::newRow("at the end") << qint64(8) << qint64(8) << 1.0;
        QTest::newRow("beyond") << qint64(20) << qint64(8) << 2.5;
        QTest::newRow("before") << qint64(-6) << qint64(8) << -0.75;
        QTest::newRow("no duration") << qint64(5) << qint64(0) << 0.0;
        QTest::newRow("a negative duration") << qint64(5) << qint64(-8) << 0.0;
        QTest::newRow("the highest") << highest << qint64(1) << 0x1p63;
        QTest::newRow("the lowest") << lowest << qint64(1) << -0x1p63;
        QTest::newRow("both the highest") << highest << highest << 1.0;
    }
    void theFractionIsNotBounded()
    {
        QFETCH(qint64, position);
        QFETCH(qint64, duration);
        QTEST(Layout::fraction(position, duration), "fraction");
    }

    void theBarIsCutAtTheFraction_data()
    {
        QTest::addColumn<double>("fraction");
        QTest::addColumn<QRect>("viewed");
        QTest::addColumn<QRect>("remaining");
        constexpr int far = 1 << 24;
        QTest::newRow("nothing viewed") << 0.0 << QRect(24, 95, 0, 15) << QRect(23, 95, 171, 15);
        QTest::newRow("less than a pixel") << 0.9 / 171 << QRect(24, 95, 0, 15) << QRect(23, 95, 171, 15);
        QTest::newRow("a half") << 0.5 << QRect(24, 95, 85, 15) << QRect(108, 95, 86, 15);
        QTest::newRow("all") << 1.0 << QRect(24, 95, 171, 15) << QRect(194, 95, 0, 15);
        QTest::newRow("more than all") << 1.25 << QRect(24, 95, 213, 15) << QRect(236, 95, -42, 15);
        QTest::newRow("less than nothing") << -0.5 << QRect(24, 95, -85, 15) << QRect(-62, 95, 256, 15);
        QTest::newRow("by far more") << 0x1p63 << QRect(24, 95, far, 15)
                                     << QRect(23 + far, 95, 171 - far, 15);
        QTest::newRow("by far less") << -0x1p63 << QRect(24, 95, -far, 15)
                                     << QRect(23 - far, 95, 171 + far, 15);
    }
    void theBarIsCutAtTheFraction()
    {
        QFETCH(double, fraction);
        const Layout::Progress bar = Layout::progress(oddEpisodesStyle(), fraction);
        QTEST(bar.viewed, "viewed");
        QTEST(bar.remaining, "remaining");
    }

    void sweepOverSizesKeepsEverythingAtItsMargin()
    {
        for (int size = 0; size < 160; ++size) {
            Style style = oddEpisodesStyle();
            style.tileRect = QRect(11, 7, 2 * size, size);
            const QSize text(size / 2, size / 3);
            const QRect tile = style.tileRect;
            const QRect badge = Layout::badge(style, text);
            QCOMPARE(badge.isNull(), text.isEmpty());
            if (!badge.isNull()) {
                QCOMPARE(badge.right() + 1 + 17, tile.right());
                QCOMPARE(badge.bottom() + 1 + 9, tile.bottom());
                QCOMPARE(Layout::insideBadge(style, badge).size(), text);
                QCOMPARE(Layout::boxAboveBar(style, text), badge.translated(0, -21 - 15));
            }
            const QRect lower = Layout::lowerDate(style, text);
            QCOMPARE(lower.bottom() + 9, tile.bottom() - tile.top());
            QCOMPARE(Layout::upperDate(style, QSize(3, 5), text).bottom() + 1, lower.top());
            QCOMPARE(Layout::title(style, text).left(), tile.width() + 19);
            const QRect icon = Layout::playIcon(style);
            QVERIFY(qAbs(icon.left() - (tile.width() - icon.right() - 1)) <= 1);
            QVERIFY(qAbs(icon.top() - (tile.height() - icon.bottom() - 1)) <= 1);
        }
    }

    void sweepOverFractionsCoversTheTrackWithOnePixelTwice()
    {
        for (int size = 0; size < 160; ++size) {
            Style style = oddEpisodesStyle();
            style.tileRect = QRect(11, 7, 30 + size, 50);
            int before = 0;
            for (int step = 0; step <= 40; ++step) {
                const Layout::Progress bar = Layout::progress(style, step / 40.0);
                QCOMPARE(bar.viewed.width() + bar.remaining.width(), size);
                QCOMPARE(bar.viewed.left(), 24);
                QCOMPARE(bar.remaining.left(), bar.viewed.right());
                QVERIFY(bar.viewed.width() >= before);
                before = bar.viewed.width();
            }
            QCOMPARE(before, size);
        }
    }

private:
    static void addMargins()
    {
        QTest::newRow("contentLeftMargin") << Change([](Style &s) { s.contentLeftMargin = 33; })
                                           << Places { { "upper", QRect(44, 50, 59, 33) },
                                                       { "lower", QRect(44, 83, 47, 21) },
                                                       { "viewed", QRect(44, 95, 60, 15) },
                                                       { "remaining", QRect(103, 95, 91, 15) } };
        QTest::newRow("contentRightMargin") << Change([](Style &s) { s.contentRightMargin = 37; })
                                            << Places { { "badge", QRect(85, 83, 89, 27) },
                                                        { "status", QRect(92, 86, 71, 19) },
                                                        { "above bar", QRect(85, 47, 89, 27) },
                                                        { "viewed", QRect(24, 95, 60, 15) },
                                                        { "remaining", QRect(83, 95, 91, 15) } };
        QTest::newRow("contentBottomMargin")
                << Change([](Style &s) { s.contentBottomMargin = 14; })
                << Places { { "badge", QRect(105, 78, 89, 27) },     { "status", QRect(112, 81, 71, 19) },
                            { "above bar", QRect(105, 42, 89, 27) }, { "upper", QRect(24, 45, 59, 33) },
                            { "lower", QRect(24, 78, 47, 21) },      { "viewed", QRect(24, 90, 68, 15) },
                            { "remaining", QRect(91, 90, 103, 15) } };
    }

    static void addStatusAndBar()
    {
        QTest::newRow("statusSpacing") << Change([](Style &s) { s.statusSpacing = 1; })
                                       << Places { { "above bar", QRect(105, 67, 89, 27) } };
        QTest::newRow("progressBarRect") << Change([](Style &s) { s.progressBarRect = QRect(1, 2, 3, 4); })
                                         << Places { { "above bar", QRect(105, 58, 89, 27) },
                                                     { "viewed", QRect(24, 106, 68, 4) },
                                                     { "remaining", QRect(91, 106, 103, 4) } };
        QTest::newRow("leftPadding") << Change([](Style &s) { s.statusTextStyle.leftPadding = 17; })
                                     << Places { { "badge", QRect(95, 83, 99, 27) },
                                                 { "status", QRect(112, 86, 71, 19) },
                                                 { "above bar", QRect(95, 47, 99, 27) } };
        QTest::newRow("topPadding") << Change([](Style &s) {
            s.statusTextStyle.topPadding = 13;
        }) << Places { { "badge", QRect(105, 73, 89, 37) }, { "above bar", QRect(105, 37, 89, 37) } };
        QTest::newRow("rightPadding") << Change([](Style &s) { s.statusTextStyle.rightPadding = 21; })
                                      << Places { { "badge", QRect(95, 83, 99, 27) },
                                                  { "status", QRect(102, 86, 71, 19) },
                                                  { "above bar", QRect(95, 47, 99, 27) } };
        QTest::newRow("bottomPadding") << Change([](Style &s) { s.statusTextStyle.bottomPadding = 15; })
                                       << Places { { "badge", QRect(105, 73, 89, 37) },
                                                   { "status", QRect(112, 76, 71, 19) },
                                                   { "above bar", QRect(105, 37, 89, 37) } };
    }
};

STB_TEST_MAIN(tst_StbEpisodesViewDelegateLayout)
#include "tst_stbepisodesviewdelegatelayout.moc"
