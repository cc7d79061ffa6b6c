// SPDX-License-Identifier: MIT
#include "screens/marks.h"

namespace gallery {

void Marks::set(const QString &id, bool marked)
{
    if (contains(id) == marked)
        return;
    if (marked)
        m_ids.insert(id);
    else
        m_ids.remove(id);
    Q_EMIT changed();
}

void Marks::reset(const QSet<QString> &ids)
{
    if (ids == m_ids)
        return;
    m_ids = ids;
    Q_EMIT changed();
}

} // namespace gallery
