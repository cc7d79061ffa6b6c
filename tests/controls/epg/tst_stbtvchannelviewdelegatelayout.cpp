// SPDX-License-Identifier: MIT
#include "epgstyles.h"
#include "testkit/testcase.h"

#include <controls/epg/stbtvchannelviewdelegatelayout.h>

#include <cmath>
#include <functional>
#include <limits>

using Layout = StbTvChannelViewDelegateLayout;
using Content = Layout::Content;
using Style = design_system::PlayerTvChannelItemStyle;
using Change = std::function<void(Style &, Content &)>;
using Expect = std::function<void(Layout &)>;

namespace {

const QRect noText(QPoint(0, 0), QPoint(-1, -1)); // the extent of an empty text

Content oddContent()
{
    return { QSize(600, 111),      QRect(0, 0, 29, 17),
             QRect(0, 0, 33, 17),  QRect(0, 0, 101, 27),
             QRect(0, 0, 211, 19), true,
             QRect(0, 0, 61, 17),  QSize(15, 27),
             QSize(13, 17),        0.5 };
}

Layout oddLayout()
{
    Layout layout;
    layout.numberText = QRect(19, 21, 29, 17);
    layout.numberBox = QRect(14, 20, 41, 21);
    layout.qualityText = QRect(162, 20, 33, 17);
    layout.qualityBox = QRect(153, 17, 57, 21);
    layout.name = QRect(220, 14, 101, 27);
    layout.program = QRect(153, 63, 211, 19);
    layout.lockIcon = QRect(111, 16, 13, 17);
    layout.playingText = QRect(518, 14, 61, 17);
    layout.playingIcon = QRect(476, 9, 15, 27);
    layout.progressPlayed = QRect(151, 99, 214, 5);
    layout.progressRemainder = QRect(364, 99, 214, 5);
    return layout;
}

// What differs, for the report.
QString difference(const Layout &actual, const Layout &expected)
{
    QString text;
    const auto compare = [&](const char *name, const QRect &is, const QRect &should) {
        if (is != should)
            QDebug(&text) << name << is << "instead of" << should;
    };
    compare("number", actual.numberText, expected.numberText);
    compare("number box", actual.numberBox, expected.numberBox);
    compare("quality", actual.qualityText, expected.qualityText);
    compare("quality box", actual.qualityBox, expected.qualityBox);
    compare("name", actual.name, expected.name);
    compare("programme", actual.program, expected.program);
    compare("lock", actual.lockIcon, expected.lockIcon);
    compare("playing", actual.playingText, expected.playingText);
    compare("playing icon", actual.playingIcon, expected.playingIcon);
    compare("played", actual.progressPlayed, expected.progressPlayed);
    compare("remainder", actual.progressRemainder, expected.progressRemainder);
    return text;
}

void moveColumn(Layout &layout, int offset)
{
    for (QRect *rect : { &layout.qualityText, &layout.qualityBox, &layout.name, &layout.program })
        rect->translate(offset, 0);
}

void styleRows()
{
    const auto row = [](const char *name, const std::function<void(Style &)> &change, const Expect &expect) {
        QTest::newRow(name) << Change([change](Style &s, Content &) { change(s); }) << expect;
    };
    using L = Layout;
    row(
            "as it is", [](Style &) {}, [](L &) {});
    row(
            "leftMargin", [](Style &s) { s.leftMargin = 15; }, [](L &l) { moveColumn(l, 2); });
    row(
            "logoTextSpacing", [](Style &s) { s.logoTextSpacing = 23; }, [](L &l) { moveColumn(l, 4); });
    row(
            "topMargin", [](Style &s) { s.topMargin = 15; },
            [](L &l) {
                l.playingText.translate(0, 6);
                l.playingIcon.translate(0, 6);
            });
    row(
            "rightMargin", [](Style &s) { s.rightMargin = 31; },
            [](L &l) {
                l.playingText.translate(-10, 0);
                l.playingIcon.translate(-10, 0);
                l.progressPlayed.setWidth(209); // half of 418
                l.progressRemainder = QRect(359, 99, 209, 5);
            });
    row(
            "bottomMargin", [](Style &s) { s.bottomMargin = 11; },
            [](L &l) {
                l.progressPlayed.translate(0, -4);
                l.progressRemainder.translate(0, -4);
            });
    row(
            "logoRect", [](Style &s) { s.logoRect = QRect(13, 21, 131, 99); },
            [](L &l) {
                moveColumn(l, 10);
                l.numberText.translate(2, 6);
                l.numberBox.translate(2, 6);
                l.lockIcon.translate(12, 6);
            });
    row(
            "textTopOffset", [](Style &s) { s.textTopOffset = 27; },
            [](L &l) {
                for (QRect *rect : { &l.qualityText, &l.qualityBox, &l.name, &l.program })
                    rect->translate(0, 10);
            });
    row(
            "programNameSpacing", [](Style &s) { s.programNameSpacing = 5; },
            [](L &l) { l.program.translate(0, -18); });
    row(
            "nameQualitySpacing", [](Style &s) { s.nameQualitySpacing = 17; },
            [](L &l) { l.name.translate(6, 0); });
    row(
            "playingIconSpacing", [](Style &s) { s.playingIconSpacing = 3; },
            [](L &l) { l.playingIcon.translate(24, 0); });
    row(
            "progressBarRect: its left and height", [](Style &s) { s.progressBarRect = QRect(131, 1, 3, 9); },
            [](L &l) {
                l.progressPlayed = QRect(131, 95, 224, 9);
                l.progressRemainder = QRect(354, 95, 224, 9);
            });
}

void boxRows()
{
    const auto row = [](const char *name, const std::function<void(Style &)> &change, const Expect &expect) {
        QTest::newRow(name) << Change([change](Style &s, Content &) { change(s); }) << expect;
    };
    using L = Layout;
    row(
            "the number's place", [](Style &s) { s.channelNumberTextStyle.rect = QRect(7, 17, 1, 1); },
            [](L &l) {
                l.numberText.translate(4, 12);
                l.numberBox.translate(4, 12);
            });
    row(
            "the number's leftPadding", [](Style &s) { s.channelNumberTextStyle.leftPadding = 11; },
            [](L &l) {
                l.numberText.translate(6, 0);
                l.numberBox.setWidth(47);
            });
    row(
            "the number's topPadding", [](Style &s) { s.channelNumberTextStyle.topPadding = 9; },
            [](L &l) {
                l.numberText.translate(0, 8);
                l.numberBox.setHeight(29);
                l.lockIcon.translate(0, 8);
            });
    row(
            "the number's rightPadding", [](Style &s) { s.channelNumberTextStyle.rightPadding = 13; },
            [](L &l) {
                l.numberBox.setWidth(47);
                l.lockIcon.translate(-6, 0);
            });
    row(
            "the number's bottomPadding", [](Style &s) { s.channelNumberTextStyle.bottomPadding = 9; },
            [](L &l) { l.numberBox.setHeight(27); });
    row(
            "the quality's leftPadding", [](Style &s) { s.qualityTextStyle.leftPadding = 11; },
            [](L &l) {
                l.qualityText.translate(2, 0);
                l.qualityBox.setWidth(59);
                l.name.translate(2, 0);
            });
    row(
            "the quality's topPadding", [](Style &s) { s.qualityTextStyle.topPadding = 13; },
            [](L &l) {
                l.qualityText.translate(0, 10);
                l.qualityBox.setHeight(31);
                l.name.moveTop(19); // 17 + (31 - 27) / 2
                l.program.moveTop(70); // 47 + 23
            });
    row(
            "the quality's rightPadding", [](Style &s) { s.qualityTextStyle.rightPadding = 19; },
            [](L &l) {
                l.qualityBox.setWidth(61);
                l.name.translate(4, 0);
            });
    row(
            "the quality's bottomPadding", [](Style &s) { s.qualityTextStyle.bottomPadding = 5; },
            [](L &l) {
                l.qualityBox.setHeight(25);
                l.name.moveTop(16); // 17 - 1
                l.program.moveTop(65);
            });
    row(
            "a box that paddings eat up", [](Style &s) { s.qualityTextStyle.rightPadding = -42; },
            [](L &l) {
                l.qualityBox = QRect(153, 17, 0, 0);
                l.name = QRect(152, 17, 101, 27);
                l.program.moveTop(66);
            });
}

void contentRows()
{
    const auto row = [](const char *name, const std::function<void(Content &)> &change, const Expect &expect) {
        QTest::newRow(name) << Change([change](Style &, Content &c) { change(c); }) << expect;
    };
    using L = Layout;
    row(
            "texts that do not begin at 0, 0",
            [](Content &c) {
                for (QRect *rect : { &c.number, &c.quality, &c.name, &c.program, &c.playing })
                    rect->translate(2, 4);
            },
            [](L &l) {
                l.numberText.translate(2, 4);
                l.numberBox.translate(2, 4);
                l.qualityText.translate(2, 4);
                l.qualityBox.translate(2, 4);
                l.name.translate(4, 4); // the box's and its own
                l.program.translate(4, 8);
                l.playingText.translate(2, 4);
                l.playingIcon.translate(2, 0);
            });
    row(
            "no number", [](Content &c) { c.number = noText; },
            [](L &l) { l.numberText = l.numberBox = QRect(); });
    row(
            "no quality", [](Content &c) { c.quality = noText; },
            [](L &l) {
                l.qualityText = QRect();
                l.qualityBox = QRect(153, 17, 0, 0);
                l.name = QRect(152, 17, 101, 27); // the empty box's inclusive right corner; uncentred
                l.program.moveTop(66); // 43 + 23
            });
    row(
            "no name", [](Content &c) { c.name = noText; },
            [](L &l) {
                l.name = QRect();
                l.program.moveTop(60); // below the badge: 37 + 23
            });
    row(
            "neither quality nor name", [](Content &c) { c.quality = c.name = noText; },
            [](L &l) {
                l.qualityText = l.name = QRect();
                l.qualityBox = QRect(153, 17, 0, 0);
                l.program.moveTop(39); // 16 + 23
            });
    row(
            "no programme", [](Content &c) { c.program = noText; }, [](L &l) { l.program = QRect(); });
    row(
            "a name lower than the badge", [](Content &c) { c.name.setHeight(14); },
            [](L &l) {
                l.name = QRect(220, 20, 101, 14); // 17 + 7 / 2
                l.program.moveTop(60);
            });
    row(
            "not live", [](Content &c) { c.live = false; },
            [](L &l) { l.playingText = l.playingIcon = QRect(); });
    row(
            "an icon lower than the mark's text", [](Content &c) { c.playingIcon = QSize(15, 10); },
            [](L &l) {
                l.playingText.moveTop(9);
                l.playingIcon = QRect(476, 12, 15, 10); // 9 + (7 >> 1)
            });
    row(
            "an icon as high as the mark's text", [](Content &c) { c.playingIcon = QSize(15, 17); },
            [](L &l) {
                l.playingText.moveTop(9);
                l.playingIcon = QRect(476, 9, 15, 17);
            });
    row(
            "no icons", [](Content &c) { c.playingIcon = c.lockIcon = QSize(0, 0); },
            [](L &l) {
                l.playingText.moveTop(9);
                l.playingIcon = QRect(491, 17, 0, 0);
                l.lockIcon = QRect(124, 16, 0, 0);
            });
    row(
            "a mark without text", [](Content &c) { c.playing = noText; },
            [](L &l) {
                l.playingText = QRect();
                l.playingIcon = QRect(537, 9, 15, 27);
            });
    row(
            "another row", [](Content &c) { c.row = QSize(701, 95); },
            [](L &l) {
                l.playingText.translate(101, 0);
                l.playingIcon.translate(101, 0);
                l.progressPlayed = QRect(151, 83, 264, 5); // 529 / 2
                l.progressRemainder = QRect(414, 83, 265, 5);
            });
}

} // namespace

class tst_StbTvChannelViewDelegateLayout : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void everythingHasItsPlace_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<Expect>("expect");
        styleRows();
        boxRows();
        contentRows();
    }
    void everythingHasItsPlace()
    {
        QFETCH(Change, change);
        QFETCH(Expect, expect);
        Style style = oddTvChannelStyle();
        Content content = oddContent();
        change(style, content);
        Layout expected = oddLayout();
        expect(expected);
        QCOMPARE(difference(Layout::compute(style, content), expected), QString());
    }

    void theTextsGetWhatTheStyleLeavesThem_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<int>("textWidth");
        QTest::addColumn<int>("nameWidth");
        const auto row = [](const char *name, const Change &change, int textWidth, int nameWidth) {
            QTest::newRow(name) << change << textWidth << nameWidth;
        };
        // 600 - 121 - 13 - 19 - 21; less the badge's 57, 11, and the mark's 61 + 27 + 15
        row(
                "as it is", [](Style &, Content &) {}, 426, 255);
        row(
                "not live", [](Style &, Content &c) { c.live = false; }, 426, 358);
        row(
                "no quality", [](Style &, Content &c) { c.quality = noText; }, 426, 312);
        row(
                "neither", [](Style &, Content &c) { c.quality = noText, c.live = false; }, 426, 415);
        row(
                "mark without text", [](Style &, Content &c) { c.playing = noText; }, 426, 316);
        row(
                "mark without icon", [](Style &, Content &c) { c.playingIcon = QSize(0, 0); }, 426, 270);
        row(
                "the name's own extent", [](Style &, Content &c) { c.name.setWidth(301); }, 426, 255);
        row(
                "leftMargin", [](Style &s, Content &) { s.leftMargin = 3; }, 436, 265);
        row(
                "rightMargin", [](Style &s, Content &) { s.rightMargin = 3; }, 444, 273);
        row(
                "logoTextSpacing", [](Style &s, Content &) { s.logoTextSpacing = 3; }, 442, 271);
        row(
                "logoRect", [](Style &s, Content &) { s.logoRect = QRect(1, 1, 99, 1); }, 448, 277);
        row(
                "nameQualitySpacing", [](Style &s, Content &) { s.nameQualitySpacing = 1; }, 426, 265);
        row(
                "playingIconSpacing", [](Style &s, Content &) { s.playingIconSpacing = 1; }, 426, 281);
        row(
                "padding", [](Style &s, Content &) { s.qualityTextStyle.leftPadding = 19; }, 426, 245);
        row(
                "row", [](Style &, Content &c) { c.row.setWidth(100); }, -74, -245);
    }
    void theTextsGetWhatTheStyleLeavesThem()
    {
        QFETCH(Change, change);
        Style style = oddTvChannelStyle();
        Content content = oddContent();
        change(style, content);
        const int textWidth = Layout::textWidth(style, content.row.width());
        QTEST(textWidth, "textWidth");
        QTEST(Layout::nameWidth(style, content, textWidth), "nameWidth");
    }

    void theBarIsFilledByTheProgress_data()
    {
        QTest::addColumn<double>("progress");
        QTest::addColumn<int>("played"); // of 428 pixels
        QTest::newRow("0") << 0. << 0;
        QTest::newRow("a sliver") << 0.001 << 0;
        QTest::newRow("the first pixel") << 1.001 / 428 << 1;
        QTest::newRow("truncated") << 0.9999 << 427;
        QTest::newRow("a third") << 1. / 3 << 142;
        QTest::newRow("1") << 1. << 428;
        QTest::newRow("more") << 1.5 << 428;
        QTest::newRow("much more") << 1e300 << 428;
        QTest::newRow("less") << -0.5 << 0;
        QTest::newRow("much less") << -1e300 << 0;
        QTest::newRow("no number") << std::nan("") << 0;
        QTest::newRow("infinity") << std::numeric_limits<double>::infinity() << 428;
        QTest::newRow("-infinity") << -std::numeric_limits<double>::infinity() << 0;
    }
    void theBarIsFilledByTheProgress()
    {
        QFETCH(double, progress);
        QFETCH(int, played);
        Content content = oddContent();
        content.progress = progress;
        const Layout layout = Layout::compute(oddTvChannelStyle(), content);
        QCOMPARE(layout.progressPlayed, QRect(151, 99, played, 5));
        QCOMPARE(layout.progressRemainder, QRect(150 + played, 99, 428 - played, 5));
    }

    void aRealSizeLosesItsFraction_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("pixels");
        QTest::newRow("whole") << 111. << 111;
        QTest::newRow("fraction") << 111.99 << 111;
        QTest::newRow("below 0") << -1.5 << -1;
        QTest::newRow("huge") << 1e300 << (1 << 24);
        QTest::newRow("infinity") << std::numeric_limits<double>::infinity() << (1 << 24);
        QTest::newRow("-infinity") << -std::numeric_limits<double>::infinity() << -(1 << 24);
        QTest::newRow("no number") << std::nan("") << 0;
    }
    void aRealSizeLosesItsFraction()
    {
        QFETCH(double, value);
        QTEST(Layout::wholePixels(value), "pixels");
    }

    void sweepOverSizesKeepsThePartsInTheirOrder()
    {
        const Style style = oddTvChannelStyle();
        for (int side = 0; side <= 900; ++side) {
            Content content = oddContent();
            content.row = QSize(side, side / 4);
            content.progress = side % 101 / 100.;
            const Layout layout = Layout::compute(style, content);
            const int bar = std::max(0, side - 151 - 21);
            QCOMPARE(layout.progressPlayed.width() + layout.progressRemainder.width(), bar);
            QVERIFY(layout.progressPlayed.width() >= 0);
            QCOMPARE(layout.progressRemainder.left(), layout.progressPlayed.right()); // one pixel of overlap
            QCOMPARE(layout.progressPlayed.bottom() + 1, side / 4 - 7);
            QCOMPARE(layout.playingText.right() + 1, side - 21);
            QCOMPARE(layout.playingText.left() - layout.playingIcon.right() - 1, 27);
            QCOMPARE(layout.name, QRect(220, 14, 101, 27)); // does not depend on the size
            // A name as wide as it may be ends before the mark.
            const int room = Layout::nameWidth(style, content, Layout::textWidth(style, side));
            if (room > 0)
                QVERIFY(layout.name.left() + room <= layout.playingIcon.left());
        }
    }

    void sweepOverTextsKeepsTheColumnTogether()
    {
        const Style style = oddTvChannelStyle();
        for (int size = 0; size < 60; ++size) {
            Content content = oddContent();
            content.quality = QRect(0, 0, 2 * size, size);
            content.name = QRect(0, 0, 101, 60 - size);
            const Layout layout = Layout::compute(style, content);
            QCOMPARE(layout.qualityBox.topLeft(), QPoint(153, 17));
            QCOMPARE(layout.program.left(), layout.qualityBox.left());
            QCOMPARE(layout.program.top(), std::max(layout.qualityBox.bottom(), layout.name.bottom()) + 23);
            QCOMPARE(layout.name.left(), layout.qualityBox.right() + (size ? 11 : 0));
        }
    }

    void anEmptyStyleAndContentGiveNothing()
    {
        const Layout layout = Layout::compute(Style(), Content());
        QVERIFY(!layout.numberBox.isValid());
        QVERIFY(!layout.qualityBox.isValid());
        QVERIFY(!layout.name.isValid());
        QVERIFY(!layout.lockIcon.isValid());
        QVERIFY(!layout.playingText.isValid());
        QVERIFY(!layout.progressPlayed.isValid());
        QVERIFY(!layout.progressRemainder.isValid());
    }
};

STB_TEST_MAIN(tst_StbTvChannelViewDelegateLayout)
#include "tst_stbtvchannelviewdelegatelayout.moc"
