// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_HOMEROW_H
#define GALLERY_SCREENS_HOMEROW_H

#include "screens/tilemodel.h"

#include <QtQml/qqmlregistration.h>

namespace gallery {

/*!
    One row of tiles of the home screen. One tile is the current one, also while keys act on another row, and the
    row is scrolled no further than it must be to show it.
*/
class HomeRow : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Kind kind READ kind CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QAbstractItemModel *tiles READ tiles CONSTANT)
    /*! How many lines stand below each tile: 3 when a tile has a status, else 2. */
    Q_PROPERTY(int captionLines READ captionLines NOTIFY captionLinesChanged)
    /*! The current tile; -1 without tiles. */
    Q_PROPERTY(int current READ current NOTIFY currentChanged)
    /*! The first tile that is wholly in sight. */
    Q_PROPERTY(int first READ first NOTIFY currentChanged)
    /*! How many tiles are wholly in sight, at least 1; the view knows how many it shows. */
    Q_PROPERTY(int columns READ columns WRITE setColumns NOTIFY columnsChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The home screen has them.")
public:
    /*! In the order in which the rows are shown. */
    enum Kind { NowOnTv, Films, Series, ContinueWatching };
    Q_ENUM(Kind)

    HomeRow(Kind kind, Marks *favourites, QObject *parent = nullptr);

    Kind kind() const { return m_kind; }
    QString title() const;
    QAbstractItemModel *tiles() { return &m_tiles; }
    int count() const { return m_tiles.count(); }
    int captionLines() const { return m_captionLines; }
    /*! Keeps the current tile if it is among \a items, else its place. */
    void setItems(const QList<MediaItem> &items);

    int current() const { return m_current; }
    /*! The nearest tile to \a tile becomes the current one. */
    void setCurrent(int tile);
    int first() const { return m_first; }
    int columns() const { return m_columns; }
    void setColumns(int columns);
    /*! The current item; null without tiles. */
    const MediaItem *item() const;
    /*! The item \a id; null when this row does not have it. */
    const MediaItem *find(const QString &id) const;

Q_SIGNALS:
    void currentChanged();
    void columnsChanged();
    void captionLinesChanged();

private:
    void scroll();
    void countCaptionLines();

    Kind m_kind;
    TileModel m_tiles;
    int m_current = -1;
    int m_first = 0;
    int m_columns = 1;
    int m_captionLines = 2;
};

} // namespace gallery

#endif // GALLERY_SCREENS_HOMEROW_H
