// SPDX-License-Identifier: MIT
#ifndef STBTEST_EPGSTYLES_H
#define STBTEST_EPGSTYLES_H

#include <design_system/playerepgdelegatestyle.h>

#include <QtCore/qcoreapplication.h>
#include <QtCore/qtranslator.h>

inline QFont pixelFont(int pixelSize)
{
    QFont result(QStringLiteral("DejaVu Sans"));
    result.setPixelSize(pixelSize);
    return result;
}

/*!
    Every number odd, every colour another one: two swapped fields cannot pass. The font sizes are such that all
    versions of Qt put the base line on the same pixel: they round the ascent in different ways.
*/
inline design_system::PlayerEpgDelegateStyle oddEpgStyle()
{
    design_system::PlayerEpgDelegateStyle style;
    style.titleSubtitleSpacing = 7;
    style.startTimeTextStyle.rect = QRect(501, 503, 113, 509);
    style.startTimeTextStyle.font = pixelFont(25);
    style.startTimeTextStyle.maxLineCount = 1;
    style.startTimeTextStyle.color = QColor(1, 1, 1);
    style.previewRect = QRect(131, 53, 417, 211);
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
    style.startTimeTextStyle.font = pixelFont(27);
    style.previewRect = QRect(141, 1, 333, 7);
    style.liveBadgeColor = QColor(3, 5, 177, 200);
    style.liveBadgeTopMargin = 13;
    style.liveBadgeBottomSpacing = 1;
    style.liveBadgePadding = 15;
    style.liveBadgeIconSpacing = 19;
    style.liveTextStyle.font = pixelFont(17);
    style.liveTextStyle.color = QColor(1, 241, 231);
    style.titleTextStyle.font = pixelFont(31);
    style.titleTextStyle.maxLineCount = 1;
    style.titleTextStyle.alignment = Qt::AlignRight;
    style.subtitleTextStyle.font = pixelFont(19);
    style.subtitleTextStyle.color = QColor(191, 91, 111);
    style.liveStartTimeColor = QColor(41, 231, 51);
    style.unavailableTextColor = QColor(151, 103, 157);
    style.playableTextColor = QColor(1, 201, 203);
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
