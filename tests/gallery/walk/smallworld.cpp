// SPDX-License-Identifier: MIT
#include "smallworld.h"

#include "gallery/app/catalogues.h"
#include "gallery/app/channels.h"

namespace smallworld {

QDateTime now()
{
    return guides::at(10, 5);
}

gallery::Guide guide()
{
    constexpr int minutes = 360;
    return channels::guide({ { "Nature", "1", "Discovery", "HD", false, {}, minutes },
                             { "Cinema", "2", "Today", {}, true, {}, minutes } });
}

gallery::Catalogue catalogue()
{
    gallery::CatalogueEntry series = catalogues::film("Voyages");
    series.kind = gallery::CatalogueEntry::Kind::Series;
    QList<gallery::CatalogueEntry> entries { catalogues::film("Aurora"), series };
    entries << catalogues::episode(1, 1, 1, 600) << catalogues::episode(1, 1, 2)
            << catalogues::episode(1, 2, 1);
    entries[3].release = now().date().addDays(8);
    return gallery::Catalogue(entries);
}

} // namespace smallworld
