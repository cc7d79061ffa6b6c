// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <controls/tiles/stbcontenttilelayout.h>

#include <limits>

using Layout = StbContentTileLayout;

namespace {

const QRect none(QPoint(0, 0), QPoint(-1, -1)); // the extent of an empty text

constexpr int bottom = 211; // of the picture
constexpr int spacing = 7;
constexpr int first = 218; // where the first line starts

Layout compute(const Layout::Content &content)
{
    return Layout::compute(bottom, spacing, content);
}

} // namespace

class tst_StbContentTileLayout : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theFirstLine_data()
    {
        QTest::addColumn<std::optional<QSize>>("icon");
        QTest::addColumn<std::optional<QRect>>("title");
        QTest::addColumn<QRect>("iconRect");
        QTest::addColumn<QRect>("titleRect");
        QTest::addColumn<int>("nextLine");
        using Icon = std::optional<QSize>;
        using Text = std::optional<QRect>;
        const QRect title(0, 0, 131, 29);
        QTest::newRow("neither: it takes no room") << Icon() << Text() << QRect() << QRect() << first;
        QTest::newRow("the title alone starts at -1")
                << Icon() << Text(title) << QRect() << QRect(-1, first, 131, 29) << first + 29 + 7;
        QTest::newRow("the icon alone gives the height")
                << Icon(QSize(19, 13)) << Text() << QRect(0, first, 19, 13) << QRect() << first + 13 + 7;
        QTest::newRow("the title starts at the icon's inclusive right edge plus the spacing")
                << Icon(QSize(19, 29)) << Text(title) << QRect(0, first, 19, 29)
                << QRect(18 + 7, first, 131, 29) << first + 29 + 7;
        QTest::newRow("a smaller icon moves down by half the difference, rounded down")
                << Icon(QSize(19, 14)) << Text(title) << QRect(0, first + 7, 19, 14)
                << QRect(25, first, 131, 29) << first + 29 + 7;
        QTest::newRow("a smaller title moves down by half the difference, rounded down")
                << Icon(QSize(19, 40)) << Text(title) << QRect(0, first, 19, 40)
                << QRect(25, first + 5, 131, 29) << first + 40 + 7;
        QTest::newRow("an icon without a picture: the title starts at -1")
                << Icon(QSize(0, 0)) << Text(title) << QRect(0, first + 14, 0, 0) << QRect(-1, first, 131, 29)
                << first + 29 + 7;
        QTest::newRow("an emptied title beside the icon: the height is the icon's")
                << Icon(QSize(19, 13)) << Text(none) << QRect(0, first, 19, 13)
                << none.translated(25, first + 6) << first + 13 + 7;
        QTest::newRow("an emptied title alone takes the spacing")
                << Icon() << Text(none) << QRect() << none.translated(-1, first) << first + 7;
        QTest::newRow("an extent that does not begin at the origin is moved, not replaced")
                << Icon(QSize(19, 40)) << Text(QRect(3, 5, 131, 29)) << QRect(0, first, 19, 40)
                << QRect(28, first + 5 + 5, 131, 29) << first + 40 + 7;
    }
    void theFirstLine()
    {
        QFETCH(std::optional<QSize>, icon);
        QFETCH(std::optional<QRect>, title);
        QFETCH(int, nextLine);
        const Layout layout = compute({ icon, title, QRect(0, 0, 101, 23), QRect(0, 0, 71, 17) });
        QTEST(layout.icon, "iconRect");
        QTEST(layout.title, "titleRect");
        QCOMPARE(layout.subtitle, QRect(0, nextLine, 101, 23));
        QCOMPARE(layout.status, QRect(0, nextLine + 23 + 7, 71, 17));
    }

    void theOtherLines_data()
    {
        QTest::addColumn<std::optional<QRect>>("subtitle");
        QTest::addColumn<std::optional<QRect>>("status");
        QTest::addColumn<QRect>("subtitleRect");
        QTest::addColumn<QRect>("statusRect");
        using Text = std::optional<QRect>;
        const int second = first + 29 + 7;
        QTest::newRow("both") << Text(QRect(0, 0, 101, 23)) << Text(QRect(0, 0, 71, 17))
                              << QRect(0, second, 101, 23) << QRect(0, second + 23 + 7, 71, 17);
        QTest::newRow("without a subtitle the status takes its place")
                << Text() << Text(QRect(0, 0, 71, 17)) << QRect() << QRect(0, second, 71, 17);
        QTest::newRow("an emptied subtitle takes its spacing")
                << Text(none) << Text(QRect(0, 0, 71, 17)) << none.translated(0, second)
                << QRect(0, second + 7, 71, 17);
        QTest::newRow("only the size of an extent counts")
                << Text(QRect(3, 5, 101, 23)) << Text(QRect(9, 11, 71, 17)) << QRect(0, second, 101, 23)
                << QRect(0, second + 30, 71, 17);
    }
    void theOtherLines()
    {
        QFETCH(std::optional<QRect>, subtitle);
        QFETCH(std::optional<QRect>, status);
        const Layout layout = compute({ {}, QRect(0, 0, 131, 29), subtitle, status });
        QTEST(layout.subtitle, "subtitleRect");
        QTEST(layout.status, "statusRect");
    }

    void onlyTheTitleMakesRoomForTheIcon_data()
    {
        QTest::addColumn<int>("iconWidth");
        QTest::addColumn<int>("width");
        QTest::newRow("no icon: no spacing either") << 0 << 301;
        QTest::newRow("the icon and the spacing") << 19 << 301 - 19 - 7;
        QTest::newRow("an icon as wide as the tile leaves less than nothing") << 301 << -7;
    }
    void onlyTheTitleMakesRoomForTheIcon()
    {
        QFETCH(int, iconWidth);
        QTEST(Layout::titleWidth(301, iconWidth, 7), "width");
    }

    void theCaptionMovesWithThePictureAsOne()
    {
        const Layout::Content content { QSize(19, 13), QRect(0, 0, 131, 29), QRect(0, 0, 101, 23),
                                        QRect(0, 0, 71, 17) };
        const Layout resting = Layout::compute(bottom, spacing, content);
        for (int step = 0; step < 50; ++step) {
            const Layout moved = Layout::compute(bottom + step, spacing, content);
            QCOMPARE(moved.icon, resting.icon.translated(0, step));
            QCOMPARE(moved.title, resting.title.translated(0, step));
            QCOMPARE(moved.subtitle, resting.subtitle.translated(0, step));
            QCOMPARE(moved.status, resting.status.translated(0, step));
        }
    }

    void aPictureAsFarAwayAsNumbersGoKeepsItsCaptionInOrder()
    {
        for (const int far : { std::numeric_limits<int>::min(), std::numeric_limits<int>::max() }) {
            const Layout layout = Layout::compute(far, spacing, { {}, QRect(0, 0, 131, 29), {}, {} });
            QCOMPARE(layout.title.size(), QSize(131, 29));
            QCOMPARE(layout.title.top() > 0, far > 0);
        }
    }

    void sweepOverSizesKeepsThePartsApart()
    {
        for (int iconSize = 0; iconSize < 40; ++iconSize) {
            for (int titleHeight = 0; titleHeight < 40; ++titleHeight) {
                for (int subtitleHeight = 0; subtitleHeight < 40; subtitleHeight += 13)
                    checkParts(iconSize, titleHeight, subtitleHeight);
            }
        }
    }

private:
    static void checkParts(int iconSize, int titleHeight, int subtitleHeight)
    {
        const int lineHeight = qMax(iconSize, titleHeight);
        const Layout layout = compute({ QSize(iconSize, iconSize), QRect(0, 0, 131, titleHeight),
                                        QRect(0, 0, 101, subtitleHeight), QRect(0, 0, 71, 17) });
        const QRect line(-1, first, 301, lineHeight);
        for (const QRect &part : { layout.icon, layout.title }) {
            if (!part.isValid())
                continue;
            QVERIFY(line.contains(part));
            // Centred: the spaces above and below differ by one line at most.
            const int below = line.bottom() - part.bottom();
            QVERIFY(part.top() - line.top() == below || part.top() - line.top() == below - 1);
        }
        QVERIFY(!layout.icon.intersects(layout.title));
        QCOMPARE(layout.subtitle.top(), first + lineHeight + spacing);
        QCOMPARE(layout.status.top(), layout.subtitle.top() + subtitleHeight + spacing);
    }
};

STB_TEST_MAIN(tst_StbContentTileLayout)
#include "tst_stbcontenttilelayout.moc"
