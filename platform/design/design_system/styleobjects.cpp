// SPDX-License-Identifier: MIT
#include "design_system/buttonstyle.h"
#include "design_system/playerepgdatestyle.h"
#include "design_system/playerepgdelegatestyle.h"
#include "design_system/playerepisodesitemstyle.h"
#include "design_system/playerhorizontalepgviewstyle.h"
#include "design_system/playertvchannelitemstyle.h"
#include "design_system/tilestyle.h"

namespace design_system {

namespace {

template <typename Object, typename Style>
void assign(Object *object, Style &current, const Style &style)
{
    if (style == current)
        return;
    current = style;
    Q_EMIT object->styleChanged();
}

} // namespace

ButtonQmlStyle::ButtonQmlStyle(QObject *parent)
    : QObject(parent)
{
}

QmlButtonStyle ButtonQmlStyle::style() const
{
    return m_style;
}

void ButtonQmlStyle::setStyle(const QmlButtonStyle &style)
{
    assign(this, m_style, style);
}

TileQmlStyle::TileQmlStyle(QObject *parent)
    : QObject(parent)
{
}

TileStyle TileQmlStyle::style() const
{
    return m_style;
}

void TileQmlStyle::setStyle(const TileStyle &style)
{
    assign(this, m_style, style);
}

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
    assign(this, m_style, style);
}

PlayerHorizontalEpgViewQmlStyle::PlayerHorizontalEpgViewQmlStyle(QObject *parent)
    : QObject(parent)
{
}

PlayerHorizontalEpgViewStyle PlayerHorizontalEpgViewQmlStyle::style() const
{
    return m_style;
}

void PlayerHorizontalEpgViewQmlStyle::setStyle(const PlayerHorizontalEpgViewStyle &style)
{
    assign(this, m_style, style);
}

PlayerEpgDateQmlStyle::PlayerEpgDateQmlStyle(QObject *parent)
    : QObject(parent)
{
}

PlayerEpgDateStyle PlayerEpgDateQmlStyle::style() const
{
    return m_style;
}

void PlayerEpgDateQmlStyle::setStyle(const PlayerEpgDateStyle &style)
{
    assign(this, m_style, style);
}

PlayerEpisodesItemQmlStyle::PlayerEpisodesItemQmlStyle(QObject *parent)
    : QObject(parent)
{
}

PlayerEpisodesItemStyle PlayerEpisodesItemQmlStyle::style() const
{
    return m_style;
}

void PlayerEpisodesItemQmlStyle::setStyle(const PlayerEpisodesItemStyle &style)
{
    assign(this, m_style, style);
}

PlayerTvChannelItemQmlStyle::PlayerTvChannelItemQmlStyle(QObject *parent)
    : QObject(parent)
{
}

PlayerTvChannelItemStyle PlayerTvChannelItemQmlStyle::style() const
{
    return m_style;
}

void PlayerTvChannelItemQmlStyle::setStyle(const PlayerTvChannelItemStyle &style)
{
    assign(this, m_style, style);
}

} // namespace design_system
