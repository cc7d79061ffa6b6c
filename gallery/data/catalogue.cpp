// SPDX-License-Identifier: MIT
#include "gallery/data/catalogue.h"

#include <utility>

namespace gallery {

Catalogue::Catalogue()
    : Catalogue(QList<CatalogueEntry>())
{
}

Catalogue::Catalogue(QList<CatalogueEntry> entries)
    : m_entries(std::make_shared<const QList<CatalogueEntry>>(std::move(entries)))
{
}

const CatalogueEntry &Catalogue::entry(int index) const
{
    Q_ASSERT(index >= 0 && index < count());
    return m_entries->at(index);
}

} // namespace gallery
