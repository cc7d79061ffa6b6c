// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include "screens/fittedstyles.h"
#include "screens/focusedrowstyle.h"

#include <QtGui/qfontmetrics.h>
#include <QtTest/qsignalspy.h>

using namespace design_system;
using namespace gallery;

namespace {

QFont font(int pixelSize)
{
    QFont result(QStringLiteral("Noto Sans"));
    result.setPixelSize(pixelSize);
    return result;
}

int lineOf(int pixelSize)
{
    return QFontMetrics(font(pixelSize)).height();
}

// Two lines of the title, three of the other text, 7 between them.
PlayerEpisodesItemStyle episode(int height)
{
    PlayerEpisodesItemStyle style;
    style.tileRect = QRect(0, 0, 211, height);
    style.titleSubtitleSpacing = 7;
    style.titleTextStyle.font = font(28);
    style.titleTextStyle.maxLineCount = 2;
    style.subtitleTextStyle.font = font(17);
    style.subtitleTextStyle.maxLineCount = 3;
    return style;
}

int heightOf(int titleLines, int lines)
{
    return titleLines * lineOf(28) + 7 + lines * lineOf(17);
}

PlayerHorizontalEpgViewStyle programme()
{
    PlayerHorizontalEpgViewStyle style;
    style.delegateRect = QRect(0, 0, 411, 61);
    style.imageRect = QRect(0, 0, 131, 81);
    style.dateStyle.font = font(15);
    style.titleStyle.font = font(29);
    style.descriptionStyle.font = font(18);
    style.descriptionStyle.maxLineCount = 3;
    style.dateTitleGap = 3;
    style.titleDescriptionGap = 5;
    return style;
}

// The texts begin where the picture begins, which is in the middle.
int heightWith(int lines)
{
    return 2 * (lineOf(15) + 3 + lineOf(29) + 5 + lines * lineOf(18)) - 81;
}

PlayerEpgDelegateStyle guideRow()
{
    PlayerEpgDelegateStyle style;
    style.previewRect = QRect(0, 0, 311, 217);
    style.previewBottomSpacing = 3;
    style.liveBadgeTopMarginExtended = 5;
    style.liveBadgePadding = 2;
    style.liveBadgeBottomSpacingExtended = 6;
    style.liveTextStyle.font = font(15);
    style.titleTextStyle.font = font(28);
    style.focusedTitleMaxLineCount = 2;
    style.titleSubtitleSpacing = 7;
    style.subtitleTextStyle.font = font(17);
    style.reminderActionTextStyle.rect = QRect(0, 0, 311, 31);
    style.reminderIconSpacing = 9;
    style.statusTextStyle.font = font(24);
    style.startsAtTextStyle.font = font(18);
    return style;
}

int belowCard(int titleLines)
{
    return 3 + 5 + lineOf(15) + 2 * 2 + 6 + titleLines * lineOf(28) + 7 + lineOf(17);
}

int onCard()
{
    return 31 + 9 + lineOf(24) + lineOf(18);
}

} // namespace

class tst_FittedStyles : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void anEpisodeHasTheLinesThatFitBesideItsPicture_data()
    {
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("titleLines");
        QTest::addColumn<int>("lines");
        QTest::newRow("all") << heightOf(2, 3) << 2 << 3;
        QTest::newRow("one less") << heightOf(2, 3) - 1 << 2 << 2;
        QTest::newRow("one of the text") << heightOf(2, 1) << 2 << 1;
        QTest::newRow("a short title") << heightOf(2, 1) - 1 << 1 << 2;
        QTest::newRow("never nothing") << 5 << 1 << 1;
    }
    void anEpisodeHasTheLinesThatFitBesideItsPicture()
    {
        QFETCH(int, height);
        PlayerEpisodesItemQmlStyle base;
        base.setStyle(episode(height));
        FittedEpisodeStyle fitted;
        QSignalSpy changes(&fitted, &FittedEpisodeStyle::baseChanged);
        fitted.setBase(&base);
        fitted.setBase(&base);
        QCOMPARE(changes.count(), 1);
        QTEST(fitted.style().titleTextStyle.maxLineCount, "titleLines");
        QTEST(fitted.style().subtitleTextStyle.maxLineCount, "lines");
        PlayerEpisodesItemStyle other = fitted.style();
        other.titleTextStyle.maxLineCount = 2;
        other.subtitleTextStyle.maxLineCount = 3;
        QCOMPARE(other, base.style());
        fitted.setBase(nullptr);
        QCOMPARE(fitted.style(), PlayerEpisodesItemStyle());
    }

    void whatIsSaidOnThePictureMayBeSmaller()
    {
        PlayerEpisodesItemStyle style = episode(211);
        style.statusTextStyle.font = font(24);
        style.dateUpperTextStyle.font = font(29);
        style.dateLowerTextStyle.font = font(15);
        PlayerEpisodesItemQmlStyle base;
        base.setStyle(style);
        FittedEpisodeStyle fitted;
        fitted.setBase(&base);
        QCOMPARE(fitted.style(), style);
        fitted.setStatusScale(2 / 3.);
        QCOMPARE(fitted.style().statusTextStyle.font, font(16));
        QCOMPARE(fitted.style().dateUpperTextStyle.font, font(19));
        QCOMPARE(fitted.style().dateLowerTextStyle.font, font(10));
        QCOMPARE(fitted.style().titleTextStyle, style.titleTextStyle);
    }

    void aProgrammeIsAsHighAsItsTextsNeedOrHasFewerLines_data()
    {
        QTest::addColumn<int>("room");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("lines");
        QTest::newRow("all") << heightWith(3) << heightWith(3) << 3;
        QTest::newRow("more than needed") << heightWith(3) + 90 << heightWith(3) << 3;
        QTest::newRow("one less") << heightWith(3) - 1 << heightWith(2) << 2;
        QTest::newRow("no room") << 0 << 61 << 1;
    }
    void aProgrammeIsAsHighAsItsTextsNeedOrHasFewerLines()
    {
        QFETCH(int, room);
        PlayerHorizontalEpgViewQmlStyle base;
        base.setStyle(programme());
        FittedProgrammeStyle fitted;
        QSignalSpy rooms(&fitted, &FittedProgrammeStyle::roomChanged);
        fitted.setBase(&base);
        fitted.setRoom(room);
        fitted.setRoom(room);
        QCOMPARE(rooms.count(), room == 0 ? 0 : 1);
        QTEST(fitted.style().delegateRect.height(), "height");
        QTEST(fitted.style().descriptionStyle.maxLineCount, "lines");
        PlayerHorizontalEpgViewStyle other = fitted.style();
        other.delegateRect = base.style().delegateRect;
        other.descriptionStyle.maxLineCount = 3;
        QCOMPARE(other, base.style());
    }

    void theCardOfAGuideRowIsLowerAndItsTitleShorterWhereTextsAreLarge_data()
    {
        QTest::addColumn<int>("room");
        QTest::addColumn<int>("card");
        QTest::addColumn<int>("titleLines");
        QTest::newRow("not told") << 0 << 217 << 2;
        QTest::newRow("room for all") << belowCard(2) + 217 << 217 << 2;
        QTest::newRow("a lower card") << belowCard(2) + 190 << 190 << 2;
        QTest::newRow("its own texts just fit") << belowCard(2) + onCard() << onCard() << 2;
        QTest::newRow("a shorter title") << belowCard(2) + onCard() - 1 << onCard() - 1 + lineOf(28) << 1;
        QTest::newRow("no less") << 10 << onCard() << 1;
    }
    void theCardOfAGuideRowIsLowerAndItsTitleShorterWhereTextsAreLarge()
    {
        QFETCH(int, room);
        PlayerEpgDelegateQmlStyle base;
        base.setStyle(guideRow());
        FocusedRowStyle row;
        QSignalSpy rooms(&row, &FocusedRowStyle::roomChanged);
        row.setBase(&base);
        row.setRoom(room);
        row.setRoom(room);
        QCOMPARE(rooms.count(), room == 0 ? 0 : 1);
        QTEST(row.style().previewRect.height(), "card");
        QTEST(row.style().focusedTitleMaxLineCount, "titleLines");
    }

    void aProgrammeThatHasRoomStaysAsItIs()
    {
        PlayerHorizontalEpgViewStyle style = programme();
        style.delegateRect.setHeight(heightWith(3) + 10);
        PlayerHorizontalEpgViewQmlStyle base;
        base.setStyle(style);
        FittedProgrammeStyle fitted;
        fitted.setBase(&base);
        QCOMPARE(fitted.style(), style);
    }
};

STB_TEST_MAIN(tst_FittedStyles)
#include "tst_fittedstyles.moc"
