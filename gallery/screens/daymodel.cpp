// SPDX-License-Identifier: MIT
#include "screens/daymodel.h"

#include <algorithm>

namespace gallery {

void DayModel::setToday(QDate today)
{
    if (today == m_today)
        return;
    const bool otherCount = today.isValid() != m_today.isValid();
    if (otherCount)
        beginResetModel();
    m_today = today;
    if (otherCount)
        endResetModel();
    else
        Q_EMIT dataChanged(index(0), index(count() - 1));
}

void DayModel::show(const Guide &guide, int channel)
{
    if (guide.isSameAs(m_guide) && channel == m_channel)
        return;
    m_guide = guide;
    m_channel = channel;
    if (count() > 0)
        Q_EMIT dataChanged(index(0), index(count() - 1), { HasProgrammesRole });
}

int DayModel::rowOf(QDate date) const
{
    if (count() == 0 || !date.isValid())
        return -1;
    return int(std::clamp<qint64>(m_today.daysTo(date) + daysBefore, 0, count() - 1));
}

int DayModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant DayModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QDate date = dateAt(index.row());
    switch (role) {
    case DayRole:
        return QDateTime(date, QTime(12, 0));
    case HasProgrammesRole:
        return hasProgrammes(date);
    case IsTodayRole:
        return date == m_today;
    default:
        return {};
    }
}

QHash<int, QByteArray> DayModel::roleNames() const
{
    return { { DayRole, "day" }, { HasProgrammesRole, "hasProgrammes" }, { IsTodayRole, "isToday" } };
}

// Asks the guide twice at most, instead of for all programmes of the day.
bool DayModel::hasProgrammes(QDate date) const
{
    if (m_channel < 0 || m_channel >= m_guide.channelCount())
        return false;
    const TimeSpan day = localDay(date);
    if (m_guide.programmeAt(m_channel, day.start) >= 0)
        return true;
    const int first = m_guide.nextProgramme(m_channel, day.start - 1);
    return first >= 0 && m_guide.timeSpan(m_channel, first).start < day.stop;
}

} // namespace gallery
