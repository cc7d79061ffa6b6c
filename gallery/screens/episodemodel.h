// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_EPISODEMODEL_H
#define GALLERY_SCREENS_EPISODEMODEL_H

#include "screens/mediaitem.h"

#include <QtCore/qabstractitemmodel.h>

namespace gallery {

/*!
    The episodes of one season, for cells that are filled once: no row ever changes in place. Whenever a cell would
    have to show something else, the model is reset, and the view makes its cells anew.
*/
class EpisodeModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        TitleRole = Qt::UserRole + 1, /*!< title: QString, with the number: "2. Thaw"; also Qt::DisplayRole */
        DescriptionRole, /*!< description: QString */
        CellTypeRole, /*!< cellType: QString, one of EpisodesViewDelegate's kinds */
        StatusRole, /*!< status: QString, what the kind of cell has it for */
        StillRole, /*!< still: QUrl, a wide picture */
        PositionRole, /*!< position: double, seconds */
        DurationRole /*!< duration: double, seconds */
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    const QList<MediaItem> &episodes() const { return m_episodes; }
    int count() const { return int(m_episodes.size()); }
    /*! Shows \a episodes as they are on the day \a today: one that comes out later is still to come. */
    void setEpisodes(const QList<MediaItem> &episodes, QDate today);
    bool isToCome(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : count(); }
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    QList<MediaItem> m_episodes;
    QDate m_today;
};

} // namespace gallery

#endif // GALLERY_SCREENS_EPISODEMODEL_H
