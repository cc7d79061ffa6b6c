// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <controls/tiles/stbvodtilelayout.h>

#include <design_system/tilestyle.h>

#include <cmath>
#include <limits>

using Layout = StbVodTileLayout;
using design_system::TileStyle;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

const QRect picture(-11, -13, 301, 401); // right 289, bottom 387

TileStyle oddStyle()
{
    TileStyle style;
    style.ratingBadgeOffset = QPoint(17, 19);
    style.ratingBadgePadding = QMargins(3, 5, 7, 9);
    style.rightholderRightMargin = 21;
    style.rightholderBottomMargin = 23;
    style.rightholderLift = 37;
    style.progressBarRect = QRect(15, 501, 503, 11);
    return style;
}

Layout compute(double timepoint, double duration, const QRect &at = picture)
{
    return Layout::compute(oddStyle(), { at, QSize(61, 31), QSize(43, 27), timepoint, duration });
}

} // namespace

class tst_StbVodTileLayout : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theBadgeLiesAtItsOffsetAndPadsTheText()
    {
        const Layout layout = compute(0, 0);
        QCOMPARE(layout.ratingBadge, QRect(-11 + 17, -13 + 19, 3 + 43 + 7, 5 + 27 + 9));
        QCOMPARE(layout.ratingText, QRect(-11 + 17 + 3, -13 + 19 + 5, 43, 27));
    }

    void theBadgeOfAnEmptyTextIsItsPadding()
    {
        const Layout layout = Layout::compute(oddStyle(), { picture, {}, QSize(0, 0) });
        QCOMPARE(layout.ratingBadge, QRect(6, 6, 10, 14));
        QVERIFY(!layout.ratingText.isValid());
    }

    void aBadgeIsNeverOfNegativeSize()
    {
        TileStyle style;
        style.ratingBadgePadding = QMargins(-3, -5, -7, -9);
        QCOMPARE(Layout::compute(style, { picture, {}, QSize(4, 6) }).ratingBadge.size(), QSize(0, 0));
    }

    void theLogoKeepsItsMarginsAndIsLiftedWhileTheBarShows_data()
    {
        QTest::addColumn<double>("timepoint");
        QTest::addColumn<double>("duration");
        QTest::addColumn<bool>("lifted");
        QTest::newRow("watched") << 1. << 3. << true;
        QTest::newRow("watched to the end") << 3. << 3. << true;
        QTest::newRow("timepoint 0") << 0. << 3. << false;
        QTest::newRow("duration 0") << 1. << 0. << false;
        QTest::newRow("timepoint below 0") << -1. << 3. << false;
        QTest::newRow("duration below 0") << 1. << -3. << false;
    }
    void theLogoKeepsItsMarginsAndIsLiftedWhileTheBarShows()
    {
        QFETCH(double, timepoint);
        QFETCH(double, duration);
        QFETCH(bool, lifted);
        const Layout layout = compute(timepoint, duration);
        QCOMPARE(layout.progressShown, lifted);
        QCOMPARE(layout.rightholder, QRect(289 - 21 - 61, 387 - 23 - 31 - (lifted ? 37 : 0), 61, 31));
    }

    // The bar is 301 - 30 = 271 wide, from 4; its top is 387 - 11 - 15 = 361.
    void theBar_data()
    {
        QTest::addColumn<double>("timepoint");
        QTest::addColumn<double>("duration");
        QTest::addColumn<int>("filled");
        QTest::addColumn<bool>("track");
        QTest::newRow("a third, rounded up") << 1. << 3. << 91 << true;
        QTest::newRow("exactly one column") << 1. << 271. << 1 << true;
        QTest::newRow("a little more than one column") << 1.001 << 271. << 2 << true;
        QTest::newRow("the first moment fills one column") << 1e-9 << 7200. << 1 << true;
        QTest::newRow("the last moment fills all, over an empty track") << 7199.9 << 7200. << 271 << true;
        QTest::newRow("the end") << 7200. << 7200. << 271 << false;
        QTest::newRow("beyond the end") << 9999. << 7200. << 271 << false;
        QTest::newRow("huge times") << 1e308 << 1.5e308 << 181 << true;
        QTest::newRow("far beyond a short duration") << 1e308 << 1e-308 << 271 << false;
        QTest::newRow("a ratio too small for a number") << 1e-308 << 1e308 << 1 << true;
        QTest::newRow("an endless duration") << 5. << infinity << 1 << true;
        QTest::newRow("an endless position") << infinity << 7200. << 271 << false;
        QTest::newRow("both endless") << infinity << infinity << 271 << false;
    }
    void theBar()
    {
        QFETCH(double, timepoint);
        QFETCH(double, duration);
        QFETCH(int, filled);
        QFETCH(bool, track);
        const Layout layout = compute(timepoint, duration);
        QVERIFY(layout.progressShown);
        QCOMPARE(layout.progressValue, QRect(4, 361, filled, 11));
        QCOMPARE(layout.trackShown, track);
        // The track begins under the last filled column; the bar's own last column stays uncovered.
        QCOMPARE(layout.progressTrack, track ? QRect(4 + filled - 1, 361, 271 - filled, 11) : QRect());
    }

    void noBar_data()
    {
        QTest::addColumn<double>("timepoint");
        QTest::addColumn<double>("duration");
        const QList<double> values { 0., -0., -7., -infinity, notANumber };
        for (const double value : values) {
            QTest::addRow("timepoint %g", value) << value << 7200.;
            QTest::addRow("duration %g", value) << 7. << value;
            QTest::addRow("endless, duration %g", value) << infinity << value;
            QTest::addRow("timepoint %g, endless", value) << value << infinity;
        }
    }
    void noBar()
    {
        QFETCH(double, timepoint);
        QFETCH(double, duration);
        const Layout layout = compute(timepoint, duration);
        QVERIFY(!layout.progressShown);
        QVERIFY(!layout.trackShown);
        QVERIFY(!layout.progressValue.isValid());
        QVERIFY(!layout.progressTrack.isValid());
    }

    void aTileNarrowerThanTwoInsetsHasABarOfNoWidth()
    {
        for (int width = 0; width <= 30; ++width) {
            const Layout layout = compute(1, 3, QRect(0, 0, width, 401));
            QVERIFY(layout.progressShown);
            QCOMPARE(layout.progressValue.width(), 0);
            QCOMPARE(layout.progressTrack.width(), 0);
            QCOMPARE(compute(4, 3, QRect(0, 0, width, 401)).progressValue.width(), 0);
        }
        QCOMPARE(compute(1, 3, QRect(0, 0, 31, 401)).progressValue, QRect(15, 400 - 26, 1, 11));
    }

    void aBarOfNoHeightIsNotNegative()
    {
        TileStyle style = oddStyle();
        style.progressBarRect = QRect(15, 0, 503, -4);
        const Layout layout = Layout::compute(style, { picture, {}, {}, 1, 3 });
        QCOMPARE(layout.progressValue, QRect(4, 387 - 15, 91, 0));
    }

    void aPictureAsLargeAsNumbersGoHasABarWithinIt()
    {
        constexpr int least = std::numeric_limits<int>::min();
        constexpr int most = std::numeric_limits<int>::max();
        const Layout layout = compute(1, 3, QRect(QPoint(least, least), QPoint(most, most)));
        QVERIFY(layout.progressValue.isValid());
        QVERIFY(layout.progressTrack.isValid());
        QCOMPARE(layout.rightholder.size(), QSize(61, 31));
        QVERIFY(layout.rightholder.left() > 0);
        QVERIFY(layout.ratingBadge.left() < 0);
        const Layout inverted = compute(1, 3, QRect(QPoint(most, most), QPoint(least, least)));
        QCOMPARE(inverted.progressValue.width(), 0);
    }

    void theMarksMoveWithThePictureAsOne()
    {
        const Layout resting = compute(1, 3);
        for (int step = 0; step < 50; ++step) {
            const Layout moved = compute(1, 3, picture.translated(step, 3 * step));
            const QPoint by(step, 3 * step);
            QCOMPARE(moved.rightholder, resting.rightholder.translated(by));
            QCOMPARE(moved.ratingBadge, resting.ratingBadge.translated(by));
            QCOMPARE(moved.ratingText, resting.ratingText.translated(by));
            QCOMPARE(moved.progressValue, resting.progressValue.translated(by));
            QCOMPARE(moved.progressTrack, resting.progressTrack.translated(by));
        }
    }

    void sweepOverSizesKeepsTheBarInPlace()
    {
        for (int size = 0; size < 120; ++size) {
            int before = 0;
            for (int part = 1; part <= 40; ++part) {
                const Layout layout = compute(part, 37, QRect(0, 0, size, size));
                const int barWidth = qMax(0, size - 30);
                QVERIFY(layout.progressValue.width() >= before); // never shrinks while the film goes on
                before = layout.progressValue.width();
                QVERIFY(before <= barWidth);
                QVERIFY(before > 0 || barWidth == 0);
                QCOMPARE(layout.trackShown, part < 37);
                if (layout.trackShown) {
                    QCOMPARE(layout.progressTrack.left(), layout.progressValue.right());
                    QCOMPARE(layout.progressTrack.width() + before, barWidth);
                }
            }
            QCOMPARE(before, qMax(0, size - 30));
        }
    }
};

STB_TEST_MAIN(tst_StbVodTileLayout)
#include "tst_stbvodtilelayout.moc"
