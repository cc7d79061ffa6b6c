// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_CATALOGUES_H
#define STBUI_TEST_CATALOGUES_H

#include "gallery/data/catalogue.h"

namespace catalogues {

inline gallery::CatalogueEntry film(const QString &title, double position = 0)
{
    gallery::CatalogueEntry entry;
    entry.title = title;
    entry.subtitle = "Below " + title;
    entry.description = "All of " + title;
    entry.genre = "Drama";
    entry.year = 2021;
    entry.rating = "12+";
    entry.duration = 6480;
    entry.position = position;
    return entry;
}

/*! \a films films "F0" and so on, of which "F1" and "F4" are begun and "F4" is a favourite. */
inline QList<gallery::CatalogueEntry> films(int count)
{
    QList<gallery::CatalogueEntry> entries;
    for (int i = 0; i < count; ++i)
        entries.append(film("F" + QString::number(i), i == 1 || i == 4 ? 1200 + i : 0));
    if (count > 4)
        entries[4].favourite = true;
    return entries;
}

/*! Nine films as above, and two series "S0" and "S1" with one episode each, of which "E1" is begun. */
inline gallery::Catalogue small()
{
    QList<gallery::CatalogueEntry> entries = films(9);
    for (int i = 0; i < 2; ++i) {
        gallery::CatalogueEntry series = film("S" + QString::number(i));
        series.kind = gallery::CatalogueEntry::Kind::Series;
        series.duration = 0;
        entries.append(series);
        gallery::CatalogueEntry episode = film("E" + QString::number(i), i * 600);
        episode.kind = gallery::CatalogueEntry::Kind::Episode;
        episode.subtitle = series.title;
        episode.season = 2;
        episode.episode = 7 + i;
        episode.series = int(entries.size()) - 1;
        entries.append(episode);
    }
    return gallery::Catalogue(entries);
}

/*! An episode of the series with the index \a series; of 50 minutes, of which \a position seconds are watched. */
inline gallery::CatalogueEntry episode(int series, int season, int number, double position = 0)
{
    gallery::CatalogueEntry entry = film(QStringLiteral("S%1E%2").arg(season).arg(number), position);
    entry.kind = gallery::CatalogueEntry::Kind::Episode;
    entry.duration = 3000;
    entry.series = series;
    entry.season = season;
    entry.episode = number;
    return entry;
}

/*!
    A film, then the series "Many" with three seasons: one of two viewed episodes, one with a viewed, a begun, a new
    and a coming episode (on 2026-03-12) and three more, one with a single episode. Then the series "Few" with two
    new episodes of one season, and "None" without any.
*/
inline gallery::Catalogue seasons()
{
    const auto series = [](const QString &title) {
        gallery::CatalogueEntry entry = film(title);
        entry.kind = gallery::CatalogueEntry::Kind::Series;
        return entry;
    };
    QList<gallery::CatalogueEntry> entries { film("F"), series("Many") };
    entries << episode(1, 1, 1, 3000) << episode(1, 1, 2, 3000);
    entries << episode(1, 2, 1, 3000) << episode(1, 2, 2, 600) << episode(1, 2, 3);
    entries << episode(1, 2, 4);
    entries.last().release = QDate(2026, 3, 12);
    entries << episode(1, 2, 5) << episode(1, 2, 6) << episode(1, 2, 7) << episode(1, 3, 1);
    const int few = int(entries.size());
    entries << series("Few") << episode(few, 1, 1) << episode(few, 1, 2) << series("None");
    return gallery::Catalogue(entries);
}

} // namespace catalogues

#endif // STBUI_TEST_CATALOGUES_H
