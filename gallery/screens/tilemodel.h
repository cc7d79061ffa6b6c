// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_TILEMODEL_H
#define GALLERY_SCREENS_TILEMODEL_H

#include "screens/mediaitem.h"

#include <QtCore/qabstractitemmodel.h>

namespace gallery {

class Marks;

/*! The tiles of one row of the home screen, or of what a search has found. */
class TileModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        TitleRole = Qt::UserRole + 1, /*!< title: QString */
        SubtitleRole, /*!< subtitle: QString, the second line: times of a programme */
        StatusRole, /*!< status: QString, the third line: what is left of what was begun, else a note */
        PictureRole, /*!< picture: QUrl, upright */
        StillRole, /*!< still: QUrl, wide */
        LogoRole, /*!< logo: QUrl of the right holder's mark or of the channel */
        RatingRole, /*!< rating: QString */
        ChannelRole, /*!< channel: QString, only of a programme */
        PositionRole, /*!< position: double, seconds */
        DurationRole, /*!< duration: double, seconds */
        ProgressRole, /*!< progress: double, 0 to 1 */
        FavouriteRole, /*!< favourite: bool */
        ProgrammeRole /*!< programme: bool, whether it is on TV */
    };
    Q_ENUM(Role)

    /*! \a favourites outlives the model. */
    explicit TileModel(Marks *favourites, QObject *parent = nullptr);

    const QList<MediaItem> &items() const { return m_items; }
    /*! As many items as before change the rows in place, another number resets the model. */
    void setItems(const QList<MediaItem> &items);
    int count() const { return int(m_items.size()); }
    /*! The row of the item \a id, or -1. */
    int rowOf(const QString &id) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    Marks *m_favourites;
    QList<MediaItem> m_items;
};

} // namespace gallery

#endif // GALLERY_SCREENS_TILEMODEL_H
