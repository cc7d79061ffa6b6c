// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_PLAYEREPGDELEGATESTYLE_H
#define DESIGN_SYSTEM_PLAYEREPGDELEGATESTYLE_H

#include <design_system/textstyle.h>

#include <QtCore/qobject.h>

namespace design_system {

/*! The look of EpgViewDelegate and, with the card, of EpgViewDelegateFocused. Pixels; 0 when new. */
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
    Q_CLASSINFO("unscaled", "focusedTitleMaxLineCount")
    QML_ANONYMOUS
public:
    int titleSubtitleSpacing = 0; //!< vertical gap between title and subtitle
    TextStyle startTimeTextStyle; //!< the width of its rectangle bounds the text
    QRect previewRect; //!< the focused row's card; its left and width also place badge, title and subtitle
    int previewBottomSpacing = 0; //!< between the card and what follows
    QColor cardColor; //!< over the card's picture
    int reminderIconSpacing = 0; //!< between the reminder icon and the status line
    TextStyle statusTextStyle; //!< "not available", "soon live", "reminder set"
    TextStyle startsAtTextStyle; //!< "on" and the start time
    TextStyle reminderActionTextStyle; //!< action bar at the card's bottom; its height is the rectangle's
    QColor playIconColor; //!< tint of the play icon
    QRect progressBarRect; //!< left: inset from the card's left, right and bottom; height: the bar's
    QColor progressRemainderColor; //!< of the bar: what is still to come
    QColor progressPlayedColor; //!< of the bar: what has been on air
    int focusedTitleMaxLineCount = 0; //!< lines of the title in the focused row
    QColor liveBadgeColor; //!< fill of the badge of the programme on air
    int liveBadgeTopMargin = 0; //!< above the badge of a resting row
    int liveBadgeBottomSpacing = 0; //!< below the badge of a resting row
    int liveBadgeTopMarginExtended = 0; //!< above the badge of a focused row
    int liveBadgeBottomSpacingExtended = 0; //!< below the badge of a focused row
    int liveBadgePadding = 0; //!< inside the badge, on all sides
    int liveBadgeIconSpacing = 0; //!< between the badge's icon and its text
    TextStyle liveTextStyle; //!< the badge's text, in its color
    TextStyle titleTextStyle; //!< the title; its colour is one of the last two
    TextStyle subtitleTextStyle; //!< the line below the title, in its color
    QColor liveStartTimeColor; //!< start time of the programme on air
    QColor unavailableTextColor; //!< start time and title of what cannot be played
    QColor playableTextColor; //!< start time and title of what can be played

    bool operator==(const PlayerEpgDelegateStyle &) const = default;
};

/*!
    Holds a PlayerEpgDelegateStyle for a control. A control acts on another object in its style, not on
    styleChanged().
*/
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
