// SPDX-License-Identifier: MIT
#include "screens/focuseddatestyle.h"

namespace gallery {

FocusedDateStyle::FocusedDateStyle(QObject *parent)
    : PlayerEpgDateQmlStyle(parent)
{
}

void FocusedDateStyle::setBase(design_system::PlayerEpgDateQmlStyle *base)
{
    if (base == m_base)
        return;
    m_base = base;
    derive();
    Q_EMIT baseChanged();
}

void FocusedDateStyle::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    derive();
    Q_EMIT colorChanged();
}

void FocusedDateStyle::derive()
{
    design_system::PlayerEpgDateStyle derived;
    if (m_base != nullptr)
        derived = m_base->style();
    derived.monthColor = m_color;
    derived.dayActiveColor = m_color;
    derived.dayInactiveColor = m_color;
    setStyle(derived);
}

} // namespace gallery
