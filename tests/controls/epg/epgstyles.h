// SPDX-License-Identifier: MIT
#ifndef STBTEST_EPGSTYLES_H
#define STBTEST_EPGSTYLES_H

#include <design_system/playerepgdatestyle.h>
#include <design_system/playerepgdelegatestyle.h>
#include <design_system/playerepisodesitemstyle.h>
#include <design_system/playerhorizontalepgviewstyle.h>
#include <design_system/playertvchannelitemstyle.h>

#include <QtCore/qcoreapplication.h>
#include <QtCore/qtranslator.h>

inline QFont pixelFont(int pixelSize)
{
    QFont result(QStringLiteral("DejaVu Sans"));
    result.setPixelSize(pixelSize);
    return result;
}

/*!
    Every number odd, every colour another one: two swapped fields cannot pass. In the font sizes
    a line of DejaVu Sans has the same height in all versions of Qt; see ../tiles/tilestyles.h.
*/
inline design_system::PlayerEpgDelegateStyle oddEpgStyle()
{
    design_system::PlayerEpgDelegateStyle style;
    style.titleSubtitleSpacing = 7;
    style.startTimeTextStyle.rect = QRect(501, 503, 113, 509);
    style.startTimeTextStyle.font = pixelFont(20);
    style.startTimeTextStyle.maxLineCount = 1;
    style.startTimeTextStyle.color = QColor(1, 1, 1);
    style.previewRect = QRect(131, 53, 417, 211);
    style.previewBottomSpacing = 33;
    style.cardColor = QColor(13, 17, 61, 117);
    style.reminderIconSpacing = 19;
    style.statusTextStyle.font = pixelFont(20);
    style.statusTextStyle.color = QColor(233, 223, 121);
    style.statusTextStyle.maxLineCount = 1;
    style.startsAtTextStyle.font = pixelFont(17);
    style.startsAtTextStyle.color = QColor(121, 211, 243);
    style.startsAtTextStyle.maxLineCount = 1;
    style.reminderActionTextStyle.rect = QRect(601, 603, 607, 47);
    style.reminderActionTextStyle.font = pixelFont(15);
    style.reminderActionTextStyle.color = QColor(21, 23, 27);
    style.reminderActionTextStyle.backgroundColor = QColor(191, 141, 41);
    style.reminderActionTextStyle.maxLineCount = 1;
    style.playIconColor = QColor(101, 231, 141);
    style.progressBarRect = QRect(27, 701, 703, 9);
    style.progressRemainderColor = QColor(151, 153, 157);
    style.progressPlayedColor = QColor(221, 41, 61);
    style.focusedTitleMaxLineCount = 3;
    style.liveBadgeColor = QColor(171, 11, 31);
    style.liveBadgeTopMargin = 3;
    style.liveBadgeBottomSpacing = 11;
    style.liveBadgeTopMarginExtended = 23;
    style.liveBadgeBottomSpacingExtended = 29;
    style.liveBadgePadding = 5;
    style.liveBadgeIconSpacing = 9;
    style.liveTextStyle.font = pixelFont(15);
    style.liveTextStyle.color = QColor(251, 241, 231);
    style.liveTextStyle.maxLineCount = 1;
    style.titleTextStyle.font = pixelFont(29);
    style.titleTextStyle.maxLineCount = 2;
    style.titleTextStyle.color = QColor(2, 2, 2);
    style.subtitleTextStyle.font = pixelFont(17);
    style.subtitleTextStyle.color = QColor(91, 191, 111);
    style.subtitleTextStyle.maxLineCount = 1;
    style.liveStartTimeColor = QColor(241, 31, 51);
    style.unavailableTextColor = QColor(101, 103, 107);
    style.playableTextColor = QColor(211, 213, 217);
    return style;
}

/*! Another value for every field that a row reads. */
inline design_system::PlayerEpgDelegateStyle otherEpgStyle()
{
    design_system::PlayerEpgDelegateStyle style = oddEpgStyle();
    style.titleSubtitleSpacing = 17;
    style.startTimeTextStyle.rect = QRect(1, 3, 71, 5);
    style.startTimeTextStyle.font = pixelFont(24);
    style.previewRect = QRect(141, 1, 333, 7);
    style.previewBottomSpacing = 15;
    style.cardColor = QColor(61, 17, 13, 171);
    style.reminderIconSpacing = 5;
    style.statusTextStyle.font = pixelFont(17);
    style.statusTextStyle.color = QColor(133, 223, 221);
    style.startsAtTextStyle.font = pixelFont(15);
    style.startsAtTextStyle.color = QColor(221, 111, 243);
    style.reminderActionTextStyle.rect = QRect(1, 3, 7, 31);
    style.reminderActionTextStyle.font = pixelFont(17);
    style.reminderActionTextStyle.color = QColor(227, 223, 221);
    style.reminderActionTextStyle.backgroundColor = QColor(41, 91, 141);
    style.playIconColor = QColor(231, 101, 41);
    style.progressBarRect = QRect(11, 1, 3, 5);
    style.progressRemainderColor = QColor(51, 53, 57);
    style.progressPlayedColor = QColor(21, 141, 161);
    style.focusedTitleMaxLineCount = 1;
    style.liveBadgeColor = QColor(3, 5, 177, 200);
    style.liveBadgeTopMargin = 13;
    style.liveBadgeBottomSpacing = 1;
    style.liveBadgePadding = 15;
    style.liveBadgeIconSpacing = 19;
    style.liveTextStyle.font = pixelFont(17);
    style.liveTextStyle.color = QColor(1, 241, 231);
    style.titleTextStyle.font = pixelFont(33);
    style.titleTextStyle.maxLineCount = 1;
    style.titleTextStyle.alignment = Qt::AlignRight;
    style.subtitleTextStyle.font = pixelFont(28);
    style.subtitleTextStyle.color = QColor(191, 91, 111);
    style.liveStartTimeColor = QColor(41, 231, 51);
    style.unavailableTextColor = QColor(151, 103, 157);
    style.playableTextColor = QColor(1, 201, 203);
    return style;
}

/*! The same for a programme of the player's list: 295 pixels remain for the texts, which begin at 163. */
inline design_system::PlayerHorizontalEpgViewStyle oddHorizontalEpgStyle()
{
    design_system::PlayerHorizontalEpgViewStyle style;
    style.delegateRect = QRect(501, 503, 487, 509);
    style.backgroundColor = QColor(33, 43, 73);
    style.leftPadding = 13;
    style.rightPadding = 29;
    style.imageTextSpacing = 19;
    style.imageRect = QRect(511, 513, 131, 75);
    style.dateStyle.font = pixelFont(15);
    style.dateStyle.maxLineCount = 1;
    style.dateStyle.color = QColor(1, 1, 1);
    style.dateColor = QColor(91, 191, 241);
    style.titleStyle.font = pixelFont(29);
    style.titleStyle.maxLineCount = 2;
    style.titleStyle.alignment = Qt::AlignHCenter;
    style.titleStyle.color = QColor(2, 2, 2);
    style.titleColor = QColor(251, 249, 231);
    style.dateTitleGap = 5;
    style.descriptionStyle.font = pixelFont(17);
    style.descriptionStyle.maxLineCount = 3;
    style.descriptionStyle.alignment = Qt::AlignRight;
    style.descriptionStyle.color = QColor(3, 3, 3);
    style.descriptionColor = QColor(151, 163, 173);
    style.titleDescriptionGap = 11;
    return style;
}

/*! Another value for every field that a programme of the player's list reads. */
inline design_system::PlayerHorizontalEpgViewStyle otherHorizontalEpgStyle()
{
    design_system::PlayerHorizontalEpgViewStyle style;
    style.delegateRect = QRect(1, 3, 401, 5);
    style.backgroundColor = QColor(73, 23, 13, 201);
    style.leftPadding = 31;
    style.rightPadding = 7;
    style.imageTextSpacing = 9;
    style.imageRect = QRect(5, 7, 97, 103);
    style.dateStyle.font = pixelFont(17);
    style.dateStyle.maxLineCount = 2;
    style.dateColor = QColor(241, 91, 41);
    style.titleStyle.font = pixelFont(17);
    style.titleStyle.maxLineCount = 1;
    style.titleColor = QColor(201, 251, 131);
    style.dateTitleGap = 15;
    style.descriptionStyle.font = pixelFont(15);
    style.descriptionStyle.maxLineCount = 2;
    style.descriptionColor = QColor(243, 143, 203);
    style.titleDescriptionGap = 3;
    return style;
}

/*! The same for a day of the row of days. */
inline design_system::PlayerEpgDateStyle oddEpgDateStyle()
{
    design_system::PlayerEpgDateStyle style;
    style.monthStyle.font = pixelFont(17);
    style.monthStyle.maxLineCount = 1;
    style.monthStyle.color = QColor(1, 1, 1);
    style.monthColor = QColor(151, 163, 173);
    style.dayStyle.font = pixelFont(29);
    style.dayStyle.maxLineCount = 1;
    style.dayStyle.color = QColor(2, 2, 2);
    style.dayActiveColor = QColor(91, 191, 241);
    style.dayInactiveColor = QColor(251, 249, 231);
    return style;
}

/*! Another value for every field that a day reads. */
inline design_system::PlayerEpgDateStyle otherEpgDateStyle()
{
    design_system::PlayerEpgDateStyle style;
    style.monthStyle.font = pixelFont(20);
    style.monthColor = QColor(241, 91, 41);
    style.dayStyle.font = pixelFont(15);
    style.dayActiveColor = QColor(201, 251, 131);
    style.dayInactiveColor = QColor(243, 143, 203);
    return style;
}

/*! The same for a row of the list of channels: its texts begin at 153. */
inline design_system::PlayerTvChannelItemStyle oddTvChannelStyle()
{
    design_system::PlayerTvChannelItemStyle style;
    style.leftMargin = 13;
    style.topMargin = 9;
    style.rightMargin = 21;
    style.bottomMargin = 7;
    style.logoTextSpacing = 19;
    style.logoRect = QRect(11, 15, 121, 67);
    style.channelNumberTextStyle.rect = QRect(3, 5, 71, 501);
    style.channelNumberTextStyle.backgroundColor = QColor(31, 41, 51);
    style.channelNumberTextStyle.font = pixelFont(15);
    style.channelNumberTextStyle.maxLineCount = 1;
    style.channelNumberTextStyle.color = QColor(251, 241, 131);
    style.channelNumberTextStyle.leftPadding = 5;
    style.channelNumberTextStyle.topPadding = 1;
    style.channelNumberTextStyle.rightPadding = 7;
    style.channelNumberTextStyle.bottomPadding = 3;
    style.textTopOffset = 17;
    style.programNameSpacing = 23;
    style.nameQualitySpacing = 11;
    style.qualityTextStyle.backgroundColor = QColor(91, 31, 121);
    style.qualityTextStyle.font = pixelFont(17);
    style.qualityTextStyle.maxLineCount = 1;
    style.qualityTextStyle.color = QColor(231, 211, 251);
    style.qualityTextStyle.leftPadding = 9;
    style.qualityTextStyle.topPadding = 3;
    style.qualityTextStyle.rightPadding = 15;
    style.qualityTextStyle.bottomPadding = 1;
    style.channelNameTextStyle.font = pixelFont(20);
    style.channelNameTextStyle.maxLineCount = 1;
    style.channelNameTextStyle.color = QColor(251, 249, 231);
    style.programNameTextStyle.font = pixelFont(17);
    style.programNameTextStyle.maxLineCount = 1;
    style.programNameTextStyle.color = QColor(151, 163, 173);
    style.playingTextStyle.font = pixelFont(15);
    style.playingTextStyle.maxLineCount = 1;
    style.playingTextStyle.color = QColor(91, 191, 241);
    style.playingIconSpacing = 27;
    style.progressBarRect = QRect(151, 501, 503, 5);
    style.progressRemainderColor = QColor(71, 83, 97);
    style.progressPlayedColor = QColor(61, 201, 111);
    return style;
}

/*! Another value for every field that a row of the list of channels reads. */
inline design_system::PlayerTvChannelItemStyle otherTvChannelStyle()
{
    design_system::PlayerTvChannelItemStyle style;
    style.leftMargin = 3;
    style.topMargin = 19;
    style.rightMargin = 11;
    style.bottomMargin = 1;
    style.logoTextSpacing = 7;
    style.logoRect = QRect(5, 9, 99, 81);
    style.channelNumberTextStyle.rect = QRect(13, 1, 51, 5);
    style.channelNumberTextStyle.backgroundColor = QColor(131, 21, 11, 199);
    style.channelNumberTextStyle.font = pixelFont(17);
    style.channelNumberTextStyle.color = QColor(241, 151, 231);
    style.channelNumberTextStyle.leftPadding = 1;
    style.channelNumberTextStyle.topPadding = 7;
    style.channelNumberTextStyle.rightPadding = 3;
    style.channelNumberTextStyle.bottomPadding = 5;
    style.textTopOffset = 5;
    style.programNameSpacing = 9;
    style.nameQualitySpacing = 21;
    style.qualityTextStyle.backgroundColor = QColor(21, 91, 31);
    style.qualityTextStyle.font = pixelFont(20);
    style.qualityTextStyle.color = QColor(211, 251, 131);
    style.qualityTextStyle.leftPadding = 3;
    style.qualityTextStyle.topPadding = 1;
    style.qualityTextStyle.rightPadding = 5;
    style.qualityTextStyle.bottomPadding = 7;
    style.channelNameTextStyle.font = pixelFont(17);
    style.channelNameTextStyle.color = QColor(201, 251, 131);
    style.programNameTextStyle.font = pixelFont(15);
    style.programNameTextStyle.color = QColor(243, 143, 203);
    style.playingTextStyle.font = pixelFont(29);
    style.playingTextStyle.color = QColor(241, 91, 41);
    style.playingIconSpacing = 5;
    style.progressBarRect = QRect(121, 1, 3, 11);
    style.progressRemainderColor = QColor(171, 83, 197);
    style.progressPlayedColor = QColor(241, 201, 11);
    return style;
}

/*! The same for an episode: its texts begin at 220 and have 307 pixels, its badge ends at 194, 110. */
inline design_system::PlayerEpisodesItemStyle oddEpisodesStyle()
{
    design_system::PlayerEpisodesItemStyle style;
    style.tileRect = QRect(11, 7, 201, 113);
    style.overlayColor = QColor(31, 11, 71, 151);
    style.contentLeftMargin = 13;
    style.contentRightMargin = 17;
    style.contentBottomMargin = 9;
    style.playableOverlayColor = QColor(11, 131, 41, 51);
    style.statusSpacing = 21;
    style.statusTextStyle.rect = QRect(521, 523, 527, 529);
    style.statusTextStyle.backgroundColor = QColor(171, 11, 31);
    style.statusTextStyle.font = pixelFont(15);
    style.statusTextStyle.maxLineCount = 1;
    style.statusTextStyle.color = QColor(251, 241, 231);
    style.statusTextStyle.leftPadding = 7;
    style.statusTextStyle.topPadding = 3;
    style.statusTextStyle.rightPadding = 11;
    style.statusTextStyle.bottomPadding = 5;
    style.dateUpperTextStyle.font = pixelFont(29);
    style.dateUpperTextStyle.maxLineCount = 1;
    style.dateUpperTextStyle.color = QColor(241, 191, 31);
    style.dateLowerTextStyle.font = pixelFont(17);
    style.dateLowerTextStyle.maxLineCount = 1;
    style.dateLowerTextStyle.color = QColor(91, 191, 241);
    style.textAreaRect = QRect(501, 503, 307, 509);
    style.textLeftSpacing = 19;
    style.titleSubtitleSpacing = 23;
    style.titleTextStyle.font = pixelFont(33);
    style.titleTextStyle.maxLineCount = 2;
    style.titleTextStyle.color = QColor(211, 213, 217);
    style.subtitleTextStyle.font = pixelFont(15);
    style.subtitleTextStyle.maxLineCount = 3;
    style.subtitleTextStyle.color = QColor(151, 163, 173);
    style.comingSoonTextColor = QColor(141, 121, 61);
    style.playIconSize = QSize(37, 43);
    style.progressBarRect = QRect(511, 513, 517, 15);
    style.progressRemainingColor = QColor(221, 221, 61);
    style.progressViewedColor = QColor(61, 91, 221);
    return style;
}

/*! An application's translation of the badge's label, in force as long as it lives. */
class NowInLive : public QTranslator
{
public:
    explicit NowInLive(const QString &text)
        : m_text(text)
    {
        QCoreApplication::installTranslator(this);
    }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "QObject") == 0 && qstrcmp(source, "NOW_IN_LIVE") == 0 ? m_text : QString();
    }
    bool isEmpty() const override { return false; }

private:
    QString m_text;
};

#endif // STBTEST_EPGSTYLES_H
