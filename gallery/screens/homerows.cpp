// SPDX-License-Identifier: MIT
#include "screens/homerows.h"

#include <algorithm>

namespace gallery {

HomeRows::HomeRows(Marks *favourites, QObject *parent)
    : QAbstractListModel(parent)
{
    for (const HomeRow::Kind kind :
         { HomeRow::NowOnTv, HomeRow::Films, HomeRow::Series, HomeRow::ContinueWatching })
        m_all.push_back(std::make_unique<HomeRow>(kind, favourites));
}

HomeRow *HomeRows::ofKind(HomeRow::Kind kind) const
{
    return m_all.at(size_t(kind)).get();
}

void HomeRows::setItems(HomeRow::Kind kind, const QList<MediaItem> &items)
{
    HomeRow *row = ofKind(kind);
    if (items.isEmpty())
        hide(row);
    row->setItems(items);
    if (!items.isEmpty())
        show(row);
}

int HomeRows::indexOf(const HomeRow *row) const
{
    const auto found = std::find(m_shown.cbegin(), m_shown.cend(), row);
    return found == m_shown.cend() ? -1 : int(found - m_shown.cbegin());
}

void HomeRows::show(HomeRow *row)
{
    if (m_shown.contains(row))
        return;
    const auto before = std::count_if(m_shown.cbegin(), m_shown.cend(),
                                      [row](const HomeRow *other) { return other->kind() < row->kind(); });
    beginInsertRows({}, int(before), int(before));
    m_shown.insert(before, row);
    endInsertRows();
}

void HomeRows::hide(HomeRow *row)
{
    const int index = indexOf(row);
    if (index < 0)
        return;
    beginRemoveRows({}, index, index);
    m_shown.removeAt(index);
    endRemoveRows();
}

int HomeRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant HomeRows::data(const QModelIndex &index, int role) const
{
    if (role != RowRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    return QVariant::fromValue(m_shown.at(index.row()));
}

QHash<int, QByteArray> HomeRows::roleNames() const
{
    return { { RowRole, "row" } };
}

} // namespace gallery
