// SPDX-License-Identifier: MIT
#include "gallery/data/channelmodel.h"

namespace gallery {

ChannelModel::ChannelModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

void ChannelModel::setGuide(const Guide &guide)
{
    const int before = count();
    beginResetModel();
    m_guide = guide;
    endResetModel();
    if (count() != before)
        Q_EMIT countChanged();
}

int ChannelModel::rowOf(const QString &channelId) const
{
    return m_guide.channelIndex(channelId);
}

int ChannelModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ChannelModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= count())
        return {};
    const Channel &channel = m_guide.channel(index.row());
    switch (role) {
    case ChannelIdRole:
        return channel.id;
    case Qt::DisplayRole:
    case NameRole:
        return channel.name;
    case NumberRole:
        return channel.number;
    case LogoRole:
        return channel.icon;
    case GroupRole:
        return channel.group;
    case QualityRole:
        return channel.quality;
    case LockedRole:
        return channel.locked;
    default:
        return {};
    }
}

QHash<int, QByteArray> ChannelModel::roleNames() const
{
    return { { ChannelIdRole, "channelId" }, { NameRole, "name" },   { NumberRole, "number" },
             { LogoRole, "logo" },           { GroupRole, "group" }, { QualityRole, "quality" },
             { LockedRole, "locked" } };
}

} // namespace gallery
