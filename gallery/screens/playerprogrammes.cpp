// SPDX-License-Identifier: MIT
#include "screens/playerprogrammes.h"

#include "gallery/data/programmestills.h"
#include "screens/mediaitem.h"

#include <QtCore/qcoreapplication.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

bool isPast(const TimeSpan &time, qint64 now)
{
    return now >= time.start && now >= time.stop;
}

} // namespace

void PlayerProgrammes::select(const Guide &guide, int channel)
{
    if (channel == m_channel && guide.isSameAs(m_guide))
        return;
    beginResetModel();
    m_guide = guide;
    m_channel = channel;
    m_count = channel >= 0 && channel < guide.channelCount() ? guide.programmeCount(channel) : 0;
    endResetModel();
}

void PlayerProgrammes::setNow(const QDateTime &now)
{
    if (now == m_now)
        return;
    const qint64 before = m_now.isValid() ? m_now.toSecsSinceEpoch() : 0;
    const bool otherDay = m_now.date() != now.date();
    m_now = now;
    const qint64 after = now.toSecsSinceEpoch();
    for (int row = 0; row < m_count; ++row) {
        const TimeSpan time = timeSpan(row);
        QList<int> roles;
        if (otherDay || time.contains(before) != time.contains(after))
            roles = { ExactDateRole, LiveRole };
        if (isPast(time, before) != isPast(time, after))
            roles.append(PastRole);
        if (time.progressAt(before) != time.progressAt(after))
            roles.append(ProgressRole);
        if (!roles.isEmpty())
            Q_EMIT dataChanged(index(row), index(row), roles);
    }
}

int PlayerProgrammes::nearestRow(qint64 time) const
{
    const int running = rowAt(time);
    if (running >= 0 || m_count == 0)
        return running;
    return std::max(m_guide.previousProgramme(m_channel, time + 1), 0);
}

int PlayerProgrammes::rowOf(qint64 start, const QString &title) const
{
    if (m_count == 0)
        return -1;
    const int like = m_guide.programmeLike(m_channel, start, title);
    if (like >= 0)
        return like;
    const int next = m_guide.nextProgramme(m_channel, start - 1);
    return next >= 0 && timeSpan(next).start == start ? next : -1;
}

QVariant PlayerProgrammes::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_count)
        return {};
    const TimeSpan time = timeSpan(index.row());
    const qint64 now = m_now.isValid() ? m_now.toSecsSinceEpoch() : 0;
    switch (role) {
    case ExactDateRole:
        return exactDate(time);
    case LiveRole:
        return time.contains(now);
    case PastRole:
        return isPast(time, now);
    case ProgressRole:
        return time.progressAt(now);
    default:
        return textData(index.row(), role);
    }
}

QVariant PlayerProgrammes::textData(int row, int role) const
{
    const Programme programme = m_guide.programme(m_channel, row);
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return programme.shownTitle();
    case DescriptionRole:
        return programme.description.isEmpty() ? programme.shownSubtitle() : programme.description;
    case PictureRole:
        return programme.picture.isEmpty() ? programmeStill(programme.category, programme.title)
                                           : programme.picture;
    default:
        return {};
    }
}

QString PlayerProgrammes::exactDate(const TimeSpan &time) const
{
    const QDateTime start = QDateTime::fromSecsSinceEpoch(time.start);
    const QString stop = QDateTime::fromSecsSinceEpoch(time.stop).toString(u"HH:mm"_s);
    const bool live = m_now.isValid() && time.contains(m_now.toSecsSinceEpoch());
    const QString day = live ? QCoreApplication::translate("PlayerScreen", "Now")
                             : dayName(start.date(), m_now.date());
    //: %1 is a day ("Today"), %2 and %3 are the times of start and stop: "Today, 20:00 – 20:30"
    return QCoreApplication::translate("PlayerScreen", "%1, %2 – %3")
            .arg(day, start.toString(u"HH:mm"_s), stop);
}

QHash<int, QByteArray> PlayerProgrammes::roleNames() const
{
    return { { TitleRole, "title" },      { ExactDateRole, "exactDate" }, { DescriptionRole, "description" },
             { PictureRole, "picture" },  { LiveRole, "live" },           { PastRole, "past" },
             { ProgressRole, "progress" } };
}

} // namespace gallery
