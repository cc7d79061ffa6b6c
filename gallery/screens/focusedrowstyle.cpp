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

void FocusedRowStyle::setCardHeight(int height)
{
    if (height == m_cardHeight)
        return;
    m_cardHeight = height;
    derive();
    Q_EMIT cardHeightChanged();
}

void FocusedRowStyle::derive()
{
    design_system::PlayerEpgDelegateStyle derived;
    if (m_base != nullptr)
        derived = m_base->style();
    if (m_cardHeight > 0 && m_cardHeight < derived.previewRect.height())
        derived.previewRect.setHeight(m_cardHeight);
    // A programme that is to come cannot be watched yet, but keys act on it.
    derived.unavailableTextColor = derived.playableTextColor;
    setStyle(derived);
}

} // namespace gallery
