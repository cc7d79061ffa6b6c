// SPDX-License-Identifier: MIT
#include "screens/focusedchannelstyle.h"

namespace gallery {

FocusedChannelStyle::FocusedChannelStyle(QObject *parent)
    : PlayerTvChannelItemQmlStyle(parent)
{
}

void FocusedChannelStyle::setBase(design_system::PlayerTvChannelItemQmlStyle *base)
{
    if (base == m_base)
        return;
    m_base = base;
    derive();
    Q_EMIT baseChanged();
}

void FocusedChannelStyle::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    derive();
    Q_EMIT colorChanged();
}

void FocusedChannelStyle::setPlateColor(const QColor &color)
{
    if (color == m_plateColor)
        return;
    m_plateColor = color;
    derive();
    Q_EMIT plateColorChanged();
}

void FocusedChannelStyle::derive()
{
    design_system::PlayerTvChannelItemStyle derived;
    if (m_base != nullptr)
        derived = m_base->style();
    derived.channelNameTextStyle.color = m_color;
    derived.programNameTextStyle.color = m_color;
    derived.playingTextStyle.color = m_color;
    derived.qualityTextStyle.backgroundColor = m_color;
    derived.qualityTextStyle.color = m_plateColor;
    // The theme's accent need not be seen on the plate.
    derived.progressPlayedColor = m_color;
    derived.progressRemainderColor = m_color;
    derived.progressRemainderColor.setAlphaF(0.25F);
    setStyle(derived);
}

} // namespace gallery
