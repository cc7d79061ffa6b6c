// SPDX-License-Identifier: MIT
#include "design_system/qmldesignsystem.h"

namespace design_system {

QmlDesignSystem::QmlDesignSystem(QObject *parent)
    : QObject(parent)
    , m_playerEpgDelegateStyle(new PlayerEpgDelegateQmlStyle(this))
{
}

PlayerEpgDelegateQmlStyle *QmlDesignSystem::playerEpgDelegateStyle() const
{
    return m_playerEpgDelegateStyle;
}

} // namespace design_system
