// SPDX-License-Identifier: MIT
#include "design_system/playerepgdelegatestyle.h"

namespace design_system {

PlayerEpgDelegateQmlStyle::PlayerEpgDelegateQmlStyle(QObject *parent)
    : QObject(parent)
{
}

PlayerEpgDelegateStyle PlayerEpgDelegateQmlStyle::style() const
{
    return m_style;
}

void PlayerEpgDelegateQmlStyle::setStyle(const PlayerEpgDelegateStyle &style)
{
    if (style == m_style)
        return;
    m_style = style;
    Q_EMIT styleChanged();
}

} // namespace design_system
