// SPDX-License-Identifier: MIT
#include "screens/tilemodel.h"

#include "screens/marks.h"

#include <algorithm>

namespace gallery {

TileModel::TileModel(Marks *favourites, QObject *parent)
    : QAbstractListModel(parent)
    , m_favourites(favourites)
{
    connect(m_favourites, &Marks::changed, this, [this] {
        if (count() > 0)
            Q_EMIT dataChanged(index(0), index(count() - 1), { FavouriteRole });
    });
}

void TileModel::setItems(const QList<MediaItem> &items)
{
    if (items.size() != m_items.size()) {
        beginResetModel();
        m_items = items;
        endResetModel();
        return;
    }
    for (int row = 0; row < count(); ++row) {
        if (items.at(row) == m_items.at(row))
            continue;
        m_items[row] = items.at(row);
        Q_EMIT dataChanged(index(row), index(row));
    }
}

int TileModel::rowOf(const QString &id) const
{
    const auto found = std::find_if(m_items.cbegin(), m_items.cend(),
                                    [&id](const MediaItem &item) { return item.id == id; });
    return found == m_items.cend() ? -1 : int(found - m_items.cbegin());
}

int TileModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant TileModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const MediaItem &item = m_items.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return item.title;
    case SubtitleRole:
        return secondLine(item);
    case StatusRole:
        return thirdLine(item);
    case PictureRole:
        return item.picture;
    case StillRole:
        return item.still;
    case LogoRole:
        return item.logo;
    case RatingRole:
        return item.rating;
    case ChannelRole:
        return item.channel;
    case PositionRole:
        return item.position;
    case DurationRole:
        return item.duration;
    case ProgressRole:
        return item.progress();
    case FavouriteRole:
        return m_favourites->contains(item.id);
    case ProgrammeRole:
        return item.isProgramme();
    default:
        return {};
    }
}

QHash<int, QByteArray> TileModel::roleNames() const
{
    return { { TitleRole, "title" },        { SubtitleRole, "subtitle" }, { StatusRole, "status" },
             { PictureRole, "picture" },    { StillRole, "still" },       { LogoRole, "logo" },
             { RatingRole, "rating" },      { ChannelRole, "channel" },   { PositionRole, "position" },
             { DurationRole, "duration" },  { ProgressRole, "progress" }, { FavouriteRole, "favourite" },
             { ProgrammeRole, "programme" } };
}

} // namespace gallery
