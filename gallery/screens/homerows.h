// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_HOMEROWS_H
#define GALLERY_SCREENS_HOMEROWS_H

#include "screens/homerow.h"

#include <memory>
#include <vector>

namespace gallery {

/*! The rows of the home screen that have tiles; a row comes and goes with its tiles. */
class HomeRows : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        RowRole = Qt::UserRole + 1 /*!< row: HomeRow */
    };

    /*! \a favourites outlives the rows. */
    explicit HomeRows(Marks *favourites, QObject *parent = nullptr);

    /*! The row \a kind, shown or not. */
    HomeRow *ofKind(HomeRow::Kind kind) const;
    /*! Every row, shown or not. */
    const std::vector<std::unique_ptr<HomeRow>> &all() const { return m_all; }
    void setItems(HomeRow::Kind kind, const QList<MediaItem> &items);

    int count() const { return int(m_shown.size()); }
    /*! The row at the place \a index; null when there is none. */
    HomeRow *at(int index) const { return m_shown.value(index); }
    /*! The place of \a row, or -1 when it is not shown. */
    int indexOf(const HomeRow *row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void show(HomeRow *row);
    void hide(HomeRow *row);

    std::vector<std::unique_ptr<HomeRow>> m_all;
    QList<HomeRow *> m_shown;
};

} // namespace gallery

#endif // GALLERY_SCREENS_HOMEROWS_H
