// SPDX-License-Identifier: MIT
#include "screens/focusedrowstyle.h"

#include <QtGui/qfontmetrics.h>

#include <algorithm>

namespace gallery {

namespace {

using Style = design_system::PlayerEpgDelegateStyle;

int lineOf(const design_system::TextStyle &style)
{
    return QFontMetrics(style.font).height();
}

// What stands below the card.
int textsOf(const Style &style)
{
    return style.previewBottomSpacing + style.liveBadgeTopMarginExtended + lineOf(style.liveTextStyle)
           + 2 * style.liveBadgePadding + style.liveBadgeBottomSpacingExtended
           + style.focusedTitleMaxLineCount * lineOf(style.titleTextStyle) + style.titleSubtitleSpacing
           + lineOf(style.subtitleTextStyle);
}

// What stands on it of a programme that is to come.
int textsOnCard(const Style &style)
{
    return style.reminderActionTextStyle.rect.height() + style.reminderIconSpacing
           + lineOf(style.statusTextStyle) + lineOf(style.startsAtTextStyle);
}

} // namespace

FocusedRowStyle::FocusedRowStyle(QObject *parent)
    : PlayerEpgDelegateQmlStyle(parent)
{
}

void FocusedRowStyle::setBase(design_system::PlayerEpgDelegateQmlStyle *base)
{
    if (base == m_base)
        return;
    m_base = base;
    derive();
    Q_EMIT baseChanged();
}

void FocusedRowStyle::setCardHeight(int height)
{
    if (height == m_cardHeight)
        return;
    m_cardHeight = height;
    derive();
    Q_EMIT cardHeightChanged();
}

void FocusedRowStyle::setRoom(int room)
{
    if (room == m_room)
        return;
    m_room = room;
    derive();
    Q_EMIT roomChanged();
}

void FocusedRowStyle::derive()
{
    design_system::PlayerEpgDelegateStyle derived;
    if (m_base != nullptr)
        derived = m_base->style();
    if (m_cardHeight > 0 && m_cardHeight < derived.previewRect.height())
        derived.previewRect.setHeight(m_cardHeight);
    if (m_room > 0) {
        const int least = std::min(derived.previewRect.height(), textsOnCard(derived));
        while (derived.focusedTitleMaxLineCount > 1 && m_room - textsOf(derived) < least)
            --derived.focusedTitleMaxLineCount;
        derived.previewRect.setHeight(
                std::clamp(m_room - textsOf(derived), least, derived.previewRect.height()));
    }
    // A programme that is to come cannot be watched yet, but keys act on it.
    derived.unavailableTextColor = derived.playableTextColor;
    setStyle(derived);
}

} // namespace gallery
