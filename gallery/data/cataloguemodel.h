// SPDX-License-Identifier: MIT
#ifndef GALLERY_CATALOGUEMODEL_H
#define GALLERY_CATALOGUEMODEL_H

#include "gallery/data/catalogue.h"

#include <QtCore/qabstractitemmodel.h>

namespace gallery {

/*! The entries of a catalogue that a filter lets through, one row each, in the catalogue's order. */
class CatalogueModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /*! Which entries are shown; All when not set. */
    Q_PROPERTY(Filter filter READ filter WRITE setFilter NOTIFY filterChanged)
    /*! With the filter Episodes: the catalogue's index of the series whose episodes are shown; -1, the default, is any. */
    Q_PROPERTY(int series READ series WRITE setSeries NOTIFY seriesChanged)
public:
    enum class Filter {
        All,
        Films,
        Series, /*!< series themselves, not their episodes */
        Episodes,
        Started /*!< to continue watching: begun and not watched to the end */
    };
    Q_ENUM(Filter)

    enum Role {
        TitleRole = Qt::UserRole + 1, /*!< title: QString, never empty; also Qt::DisplayRole */
        SubtitleRole, /*!< subtitle: QString */
        StatusRole, /*!< status: QString, a short note such as "New" */
        RatingRole, /*!< rating: QString such as "12+" */
        DurationRole, /*!< duration: double, seconds, 0 when not known */
        TimepointRole, /*!< timepoint: double, how far it was watched, in seconds */
        FavouriteRole, /*!< favourite: bool */
        PictureRole, /*!< picture: QUrl, upright, empty when there is none */
        StillRole, /*!< still: QUrl, wide, or the same as picture */
        LogoRole, /*!< logo: QUrl of the right holder's mark, empty when there is none */
        DescriptionRole, /*!< description: QString */
        KindRole, /*!< kind: QString, "film", "series" or "episode" */
        GenreRole, /*!< genre: QString */
        YearRole, /*!< year: int, 0 when not known */
        SeasonRole, /*!< season: int, 0 when not known and for what is no episode */
        EpisodeRole, /*!< episode: int, 0 when not known and for what is no episode */
        EntryRole /*!< entry: int, the index in the catalogue */
    };
    Q_ENUM(Role)

    explicit CatalogueModel(QObject *parent = nullptr);

    Catalogue catalogue() const { return m_catalogue; }
    /*! Shows entries of \a catalogue; resets the model, unless it is the same one. */
    void setCatalogue(const Catalogue &catalogue);

    Filter filter() const { return m_filter; }
    void setFilter(Filter filter);
    int series() const { return m_series; }
    void setSeries(int series);

    int count() const { return int(m_rows.size()); }

    /*! Everything about a row, by the names of the roles; empty when there is no such row. */
    Q_INVOKABLE QVariantMap get(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();
    void filterChanged();
    void seriesChanged();

private:
    bool isShown(const CatalogueEntry &entry) const;
    void show(const Catalogue &catalogue, bool sameCatalogue);

    Catalogue m_catalogue;
    Filter m_filter = Filter::All;
    int m_series = -1;
    QList<int> m_rows; // indexes in the catalogue
};

} // namespace gallery

#endif // GALLERY_CATALOGUEMODEL_H
