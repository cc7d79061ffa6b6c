// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <controls/epg/stbepgdatelayout.h>

#include <limits>

using Layout = StbEpgDateLayout;

class tst_StbEpgDateLayout : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theDayBeginsOnTheMonthsLastPixelRow_data()
    {
        QTest::addColumn<QRect>("monthExtent");
        QTest::addColumn<QRect>("dayExtent");
        QTest::addColumn<QRect>("month");
        QTest::addColumn<QRect>("day");
        const QRect none(QPoint(0, 0), QPoint(-1, -1));
        QTest::newRow("a month that is wider")
                << QRect(0, 0, 51, 21) << QRect(0, 0, 39, 35) << QRect(0, 0, 51, 21) << QRect(0, 20, 39, 35);
        QTest::newRow("a day that is wider")
                << QRect(0, 0, 31, 9) << QRect(0, 0, 39, 35) << QRect(0, 0, 31, 9) << QRect(0, 8, 39, 35);
        QTest::newRow("one row of month")
                << QRect(0, 0, 31, 1) << QRect(0, 0, 39, 35) << QRect(0, 0, 31, 1) << QRect(0, 0, 39, 35);
        QTest::newRow("no text at all") << none << none << none << QRect(0, -1, 0, 0);
    }
    void theDayBeginsOnTheMonthsLastPixelRow()
    {
        QFETCH(QRect, monthExtent);
        QFETCH(QRect, dayExtent);
        const Layout layout = Layout::compute(monthExtent, dayExtent);
        QTEST(layout.month, "month");
        QTEST(layout.day, "day");
    }

    void sweepOverSizes()
    {
        for (int month = 1; month < 60; ++month) {
            for (int day = 1; day < 60; ++day) {
                const Layout layout = Layout::compute(QRect(0, 0, 51, month), QRect(0, 0, 39, day));
                QCOMPARE(layout.month, QRect(0, 0, 51, month));
                QCOMPARE(layout.day.size(), QSize(39, day));
                QCOMPARE(layout.month.intersected(layout.day).height(), 1);
            }
        }
    }

    void theTextWidthIsTheItemsInWholePixels_data()
    {
        QTest::addColumn<double>("itemWidth");
        QTest::addColumn<int>("width");
        QTest::newRow("nothing") << 0.0 << 0;
        QTest::newRow("less than a pixel") << 0.99 << 0;
        QTest::newRow("whole") << 97.0 << 97;
        QTest::newRow("rounded down") << 97.99 << 97;
        QTest::newRow("the largest") << 2147483647.0 << 2147483647;
        QTest::newRow("too large for an integer") << 1e300 << 2147483647;
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 2147483647;
    }
    void theTextWidthIsTheItemsInWholePixels()
    {
        QFETCH(double, itemWidth);
        QTEST(Layout::textWidth(itemWidth), "width");
    }
};

STB_TEST_MAIN(tst_StbEpgDateLayout)
#include "tst_stbepgdatelayout.moc"
