// SPDX-License-Identifier: MIT
#include "gallery/data/cataloguemodel.h"

namespace gallery {

namespace {

QString kindName(CatalogueEntry::Kind kind)
{
    switch (kind) {
    case CatalogueEntry::Kind::Series:
        return QStringLiteral("series");
    case CatalogueEntry::Kind::Episode:
        return QStringLiteral("episode");
    case CatalogueEntry::Kind::Film:
        break;
    }
    return QStringLiteral("film");
}

QVariant textOf(const CatalogueEntry &entry, int role)
{
    switch (role) {
    case Qt::DisplayRole:
    case CatalogueModel::TitleRole:
        return entry.title;
    case CatalogueModel::SubtitleRole:
        return entry.subtitle;
    case CatalogueModel::StatusRole:
        return entry.status;
    case CatalogueModel::RatingRole:
        return entry.rating;
    case CatalogueModel::DescriptionRole:
        return entry.description;
    case CatalogueModel::KindRole:
        return kindName(entry.kind);
    case CatalogueModel::GenreRole:
        return entry.genre;
    default:
        return {};
    }
}

} // namespace

CatalogueModel::CatalogueModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

void CatalogueModel::setCatalogue(const Catalogue &catalogue)
{
    if (!catalogue.isSameAs(m_catalogue))
        show(catalogue, false);
}

void CatalogueModel::setFilter(Filter filter)
{
    if (m_filter == filter)
        return;
    m_filter = filter;
    show(m_catalogue, true);
    Q_EMIT filterChanged();
}

void CatalogueModel::setSeries(int series)
{
    series = std::max(series, -1);
    if (m_series == series)
        return;
    m_series = series;
    show(m_catalogue, true);
    Q_EMIT seriesChanged();
}

QVariantMap CatalogueModel::get(int row) const
{
    QVariantMap all;
    if (row < 0 || row >= count())
        return all;
    const QHash<int, QByteArray> names = roleNames();
    for (auto name = names.cbegin(); name != names.cend(); ++name)
        all.insert(QString::fromLatin1(name.value()), data(index(row), name.key()));
    return all;
}

int CatalogueModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant CatalogueModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= count())
        return {};
    const CatalogueEntry &entry = m_catalogue.entry(m_rows[index.row()]);
    switch (role) {
    case DurationRole:
        return entry.duration;
    case TimepointRole:
        return entry.position;
    case FavouriteRole:
        return entry.favourite;
    case PictureRole:
        return entry.picture;
    case StillRole:
        return entry.still;
    case LogoRole:
        return entry.logo;
    case YearRole:
        return entry.year;
    case SeasonRole:
        return entry.season;
    case EpisodeRole:
        return entry.episode;
    case EntryRole:
        return m_rows[index.row()];
    default:
        return textOf(entry, role);
    }
}

QHash<int, QByteArray> CatalogueModel::roleNames() const
{
    return { { TitleRole, "title" },         { SubtitleRole, "subtitle" }, { StatusRole, "status" },
             { RatingRole, "rating" },       { DurationRole, "duration" }, { TimepointRole, "timepoint" },
             { FavouriteRole, "favourite" }, { PictureRole, "picture" },   { StillRole, "still" },
             { LogoRole, "logo" },           { KindRole, "kind" },         { DescriptionRole, "description" },
             { GenreRole, "genre" },         { YearRole, "year" },         { SeasonRole, "season" },
             { EpisodeRole, "episode" },     { EntryRole, "entry" } };
}

bool CatalogueModel::isShown(const CatalogueEntry &entry) const
{
    switch (m_filter) {
    case Filter::Films:
        return entry.kind == CatalogueEntry::Kind::Film;
    case Filter::Series:
        return entry.kind == CatalogueEntry::Kind::Series;
    case Filter::Episodes:
        return entry.kind == CatalogueEntry::Kind::Episode && (m_series < 0 || entry.series == m_series);
    case Filter::Started:
        return entry.isStarted();
    case Filter::All:
        break;
    }
    return true;
}

void CatalogueModel::show(const Catalogue &catalogue, bool sameCatalogue)
{
    QList<int> rows;
    for (int i = 0; i < catalogue.count(); ++i) {
        if (isShown(catalogue.entry(i)))
            rows.append(i);
    }
    const bool otherCount = rows.size() != m_rows.size();
    const bool reset = rows != m_rows || (!sameCatalogue && !rows.isEmpty());
    if (reset)
        beginResetModel();
    m_catalogue = catalogue;
    m_rows = rows;
    if (reset)
        endResetModel();
    if (otherCount)
        Q_EMIT countChanged();
}

} // namespace gallery
