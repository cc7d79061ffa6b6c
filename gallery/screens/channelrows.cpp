// SPDX-License-Identifier: MIT
#include "screens/channelrows.h"

#include "gallery/data/playlist.h"

#include <algorithm>

namespace gallery {

ChannelRows::ChannelRows(QObject *parent)
    : QAbstractListModel(parent)
{
}

void ChannelRows::show(const Guide &guide, const QString &group)
{
    const int before = count();
    beginResetModel();
    m_guide = guide;
    m_playing = -1;
    m_channels.clear();
    for (int channel = 0; channel < guide.channelCount(); ++channel) {
        if (group.isEmpty() || guide.channel(channel).group == group)
            m_channels.append(channel);
    }
    endResetModel();
    if (count() != before)
        Q_EMIT countChanged();
}

void ChannelRows::setNow(const QDateTime &now)
{
    if (now == m_now)
        return;
    m_now = now;
    if (count() > 0)
        Q_EMIT dataChanged(index(0), index(count() - 1), { ProgrammeRole, ProgressRole });
}

void ChannelRows::setPlaying(int channel)
{
    if (channel == m_playing)
        return;
    const int before = m_playing;
    m_playing = channel;
    tellPlaying(before);
    tellPlaying(channel);
}

void ChannelRows::tellPlaying(int channel)
{
    const int row = rowOf(channel);
    if (row >= 0)
        Q_EMIT dataChanged(index(row), index(row), { PlayingRole });
}

int ChannelRows::rowOf(int channel) const
{
    const auto found = std::lower_bound(m_channels.cbegin(), m_channels.cend(), channel);
    return found != m_channels.cend() && *found == channel ? int(found - m_channels.cbegin()) : -1;
}

int ChannelRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ChannelRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const int row = m_channels.at(index.row());
    const Channel &channel = m_guide.channel(row);
    switch (role) {
    case ChannelRole:
        return row;
    case Qt::DisplayRole:
    case NameRole:
        return channel.quality.isEmpty() ? channel.name : withoutQuality(channel.name);
    case NumberRole:
        return channel.number;
    case LogoRole:
        return channel.icon;
    case QualityRole:
        return channel.quality;
    case LockedRole:
        return channel.locked;
    case PlayingRole:
        return row == m_playing;
    default:
        return programmeData(row, role);
    }
}

QVariant ChannelRows::programmeData(int channel, int role) const
{
    if (role != ProgrammeRole && role != ProgressRole)
        return {};
    const qint64 now = m_now.toSecsSinceEpoch();
    const int programme = m_now.isValid() ? m_guide.programmeAt(channel, now) : -1;
    if (role == ProgrammeRole)
        return programme < 0 ? QString() : m_guide.programme(channel, programme).shownTitle();
    return programme < 0 ? 0.0 : m_guide.timeSpan(channel, programme).progressAt(now);
}

QHash<int, QByteArray> ChannelRows::roleNames() const
{
    return { { ChannelRole, "channel" },   { NameRole, "name" },           { NumberRole, "number" },
             { LogoRole, "logo" },         { QualityRole, "quality" },     { LockedRole, "locked" },
             { ProgressRole, "progress" }, { ProgrammeRole, "programme" }, { PlayingRole, "playing" } };
}

} // namespace gallery
