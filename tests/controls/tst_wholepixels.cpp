// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <controls/wholepixels.h>

#include <limits>

using qml_basic_plugin::maxCoordinate;
using qml_basic_plugin::wholePixels;

class tst_WholePixels : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theFractionIsDroppedTowardZero()
    {
        QCOMPARE(wholePixels(3.99), 3);
        QCOMPARE(wholePixels(-3.99), -3);
        QCOMPARE(wholePixels(0.99), 0);
        QCOMPARE(wholePixels(-0.99), 0);
    }

    void noNumberIsZero() { QCOMPARE(wholePixels(std::numeric_limits<double>::quiet_NaN()), 0); }

    void aRealIsBounded()
    {
        QCOMPARE(wholePixels(std::numeric_limits<double>::infinity()), maxCoordinate);
        QCOMPARE(wholePixels(-std::numeric_limits<double>::infinity()), -maxCoordinate);
        QCOMPARE(wholePixels(1e300), maxCoordinate);
        QCOMPARE(wholePixels(-1e300), -maxCoordinate);
    }

    void aSumIsBounded()
    {
        QCOMPARE(wholePixels(std::numeric_limits<qint64>::max()), maxCoordinate);
        QCOMPARE(wholePixels(std::numeric_limits<qint64>::min()), -maxCoordinate);
        QCOMPARE(wholePixels(qint64(-57)), -57);
    }

    void anIntegerIsBounded()
    {
        QCOMPARE(wholePixels(std::numeric_limits<int>::min()), -maxCoordinate);
        QCOMPARE(wholePixels(maxCoordinate), maxCoordinate);
        QCOMPARE(wholePixels(maxCoordinate + 1), maxCoordinate);
    }

    void theCallerMaySetTheBound()
    {
        QCOMPARE(wholePixels(57.5, 55), 55);
        QCOMPARE(wholePixels(-57.5, 55), -55);
        QCOMPARE(wholePixels(-54.5, 55), -54);
        constexpr int largest = std::numeric_limits<int>::max();
        QCOMPARE(wholePixels(1e300, largest), largest);
        QCOMPARE(wholePixels(-1e300, largest), -largest);
    }

    void cornerAndExtentAddUpToAnInteger()
    {
        QVERIFY(qint64(maxCoordinate) + maxCoordinate - 1 <= std::numeric_limits<int>::max());
    }
};

STB_TEST_MAIN(tst_WholePixels)
#include "tst_wholepixels.moc"
