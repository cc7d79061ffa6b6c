// SPDX-License-Identifier: MIT
#include "screens/homerow.h"

#include <QtCore/qcoreapplication.h>

#include <algorithm>

namespace gallery {

HomeRow::HomeRow(Kind kind, Marks *favourites, QObject *parent)
    : QObject(parent)
    , m_kind(kind)
    , m_tiles(favourites)
{
}

QString HomeRow::title() const
{
    switch (m_kind) {
    case NowOnTv:
        return QCoreApplication::translate("HomeScreen", "Now on TV");
    case Films:
        return QCoreApplication::translate("HomeScreen", "Films");
    case Series:
        return QCoreApplication::translate("HomeScreen", "Series");
    case ContinueWatching:
        return QCoreApplication::translate("HomeScreen", "Continue watching");
    }
    return {};
}

void HomeRow::setItems(const QList<MediaItem> &items)
{
    const QString id = m_current < 0 ? QString() : m_tiles.items().at(m_current).id;
    m_tiles.setItems(items);
    countCaptionLines();
    const int row = m_tiles.rowOf(id);
    m_current = std::clamp(row < 0 ? m_current : row, std::min(0, count() - 1), count() - 1);
    scroll();
    // A view forgets its current tile when the model is reset: it is told again, changed or not.
    Q_EMIT currentChanged();
}

void HomeRow::countCaptionLines()
{
    const QList<MediaItem> &items = m_tiles.items();
    const bool anyStatus = std::any_of(items.cbegin(), items.cend(),
                                       [](const MediaItem &item) { return !thirdLine(item).isEmpty(); });
    const int lines = anyStatus ? 3 : 2;
    if (lines == m_captionLines)
        return;
    m_captionLines = lines;
    Q_EMIT captionLinesChanged();
}

void HomeRow::setCurrent(int tile)
{
    tile = std::clamp(tile, std::min(0, count() - 1), count() - 1);
    if (tile == m_current)
        return;
    m_current = tile;
    scroll();
    Q_EMIT currentChanged();
}

void HomeRow::setColumns(int columns)
{
    columns = std::max(1, columns);
    if (columns == m_columns)
        return;
    m_columns = columns;
    scroll();
    Q_EMIT columnsChanged();
    Q_EMIT currentChanged();
}

void HomeRow::scroll()
{
    // No empty place behind the last tile, and the current tile in sight.
    m_first = std::clamp(m_first, 0, std::max(0, count() - m_columns));
    m_first = std::clamp(m_first, std::max(0, m_current - m_columns + 1), std::max(0, m_current));
}

const MediaItem *HomeRow::item() const
{
    return m_current < 0 ? nullptr : &m_tiles.items().at(m_current);
}

const MediaItem *HomeRow::find(const QString &id) const
{
    const int row = m_tiles.rowOf(id);
    return row < 0 ? nullptr : &m_tiles.items().at(row);
}

} // namespace gallery
