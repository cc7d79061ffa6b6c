// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_PLAYEREPGDELEGATESTYLE_H
#define DESIGN_SYSTEM_PLAYEREPGDELEGATESTYLE_H

#include <design_system/textstyle.h>

#include <QtCore/qobject.h>

namespace design_system {

struct STBDESIGN_EXPORT PlayerEpgDelegateStyle
{
    Q_GADGET
    Q_PROPERTY(int titleSubtitleSpacing MEMBER titleSubtitleSpacing)
    Q_PROPERTY(design_system::TextStyle startTimeTextStyle MEMBER startTimeTextStyle)
    Q_PROPERTY(QRect previewRect MEMBER previewRect)
    Q_PROPERTY(int previewBottomSpacing MEMBER previewBottomSpacing)
    Q_PROPERTY(QColor cardColor MEMBER cardColor)
    Q_PROPERTY(int reminderIconSpacing MEMBER reminderIconSpacing)
    Q_PROPERTY(design_system::TextStyle statusTextStyle MEMBER statusTextStyle)
    Q_PROPERTY(design_system::TextStyle startsAtTextStyle MEMBER startsAtTextStyle)
    Q_PROPERTY(design_system::TextStyle reminderActionTextStyle MEMBER reminderActionTextStyle)
    Q_PROPERTY(QColor playIconColor MEMBER playIconColor)
    Q_PROPERTY(QRect progressBarRect MEMBER progressBarRect)
    Q_PROPERTY(QColor progressRemainderColor MEMBER progressRemainderColor)
    Q_PROPERTY(QColor progressPlayedColor MEMBER progressPlayedColor)
    Q_PROPERTY(int focusedTitleMaxLineCount MEMBER focusedTitleMaxLineCount)
    Q_PROPERTY(QColor liveBadgeColor MEMBER liveBadgeColor)
    Q_PROPERTY(int liveBadgeTopMargin MEMBER liveBadgeTopMargin)
    Q_PROPERTY(int liveBadgeBottomSpacing MEMBER liveBadgeBottomSpacing)
    Q_PROPERTY(int liveBadgeTopMarginExtended MEMBER liveBadgeTopMarginExtended)
    Q_PROPERTY(int liveBadgeBottomSpacingExtended MEMBER liveBadgeBottomSpacingExtended)
    Q_PROPERTY(int liveBadgePadding MEMBER liveBadgePadding)
    Q_PROPERTY(int liveBadgeIconSpacing MEMBER liveBadgeIconSpacing)
    Q_PROPERTY(design_system::TextStyle liveTextStyle MEMBER liveTextStyle)
    Q_PROPERTY(design_system::TextStyle titleTextStyle MEMBER titleTextStyle)
    Q_PROPERTY(design_system::TextStyle subtitleTextStyle MEMBER subtitleTextStyle)
    Q_PROPERTY(QColor liveStartTimeColor MEMBER liveStartTimeColor)
    Q_PROPERTY(QColor unavailableTextColor MEMBER unavailableTextColor)
    Q_PROPERTY(QColor playableTextColor MEMBER playableTextColor)
    QML_ANONYMOUS
public:
    int titleSubtitleSpacing = 0;
    TextStyle startTimeTextStyle;
    QRect previewRect;
    int previewBottomSpacing = 0;
    QColor cardColor;
    int reminderIconSpacing = 0;
    TextStyle statusTextStyle;
    TextStyle startsAtTextStyle;
    TextStyle reminderActionTextStyle;
    QColor playIconColor;
    QRect progressBarRect;
    QColor progressRemainderColor;
    QColor progressPlayedColor;
    int focusedTitleMaxLineCount = 0;
    QColor liveBadgeColor;
    int liveBadgeTopMargin = 0;
    int liveBadgeBottomSpacing = 0;
    int liveBadgeTopMarginExtended = 0;
    int liveBadgeBottomSpacingExtended = 0;
    int liveBadgePadding = 0;
    int liveBadgeIconSpacing = 0;
    TextStyle liveTextStyle;
    TextStyle titleTextStyle;
    TextStyle subtitleTextStyle;
    QColor liveStartTimeColor;
    QColor unavailableTextColor;
    QColor playableTextColor;

    bool operator==(const PlayerEpgDelegateStyle &) const = default;
};

class STBDESIGN_EXPORT PlayerEpgDelegateQmlStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(design_system::PlayerEpgDelegateStyle style READ style WRITE setStyle NOTIFY styleChanged)
    QML_ELEMENT
public:
    explicit PlayerEpgDelegateQmlStyle(QObject *parent = nullptr);

    PlayerEpgDelegateStyle style() const;
    void setStyle(const PlayerEpgDelegateStyle &style);

Q_SIGNALS:
    void styleChanged();

private:
    PlayerEpgDelegateStyle m_style;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_PLAYEREPGDELEGATESTYLE_H
