// SPDX-License-Identifier: MIT
#include "screens/channelnowmodel.h"

namespace gallery {

void ChannelNowModel::setNow(const QDateTime &now)
{
    if (now == m_now)
        return;
    m_now = now;
    if (count() > 0)
        Q_EMIT dataChanged(index(0), index(count() - 1), { NowTitleRole });
}

QVariant ChannelNowModel::data(const QModelIndex &index, int role) const
{
    if (role != NowTitleRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return ChannelModel::data(index, role);
    if (!m_now.isValid())
        return QString();
    const int programme = guide().programmeAt(index.row(), m_now.toSecsSinceEpoch());
    return programme < 0 ? QString() : guide().programme(index.row(), programme).shownTitle();
}

QHash<int, QByteArray> ChannelNowModel::roleNames() const
{
    QHash<int, QByteArray> names = ChannelModel::roleNames();
    names.insert(NowTitleRole, "nowTitle");
    return names;
}

} // namespace gallery
