// SPDX-License-Identifier: MIT
#include "screens/focusedrowstyle.h"

namespace gallery {

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

void FocusedRowStyle::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    derive();
    Q_EMIT colorChanged();
}

void FocusedRowStyle::derive()
{
    design_system::PlayerEpgDelegateStyle derived;
    if (m_base != nullptr)
        derived = m_base->style();
    derived.liveStartTimeColor = m_color;
    derived.unavailableTextColor = m_color;
    derived.playableTextColor = m_color;
    derived.subtitleTextStyle.color = m_color;
    setStyle(derived);
}

} // namespace gallery
