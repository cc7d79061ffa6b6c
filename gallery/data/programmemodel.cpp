// SPDX-License-Identifier: MIT
#include "gallery/data/programmemodel.h"

#include "gallery/data/programmestills.h"

#include <algorithm>
#include <utility>

namespace gallery {

namespace {

QDateTime localTime(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds);
}

QString timeText(qint64 seconds)
{
    return localTime(seconds).toString(QStringLiteral("HH:mm"));
}

QList<int> rowsOf(const Guide &guide, int channel, QDate date)
{
    if (channel < 0 || channel >= guide.channelCount() || !date.isValid())
        return {};
    return guide.programmesIn(channel, localDay(date));
}

} // namespace

ProgrammeModel::ProgrammeModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

void ProgrammeModel::setGuide(const Guide &guide)
{
    show(guide, m_channel, m_date);
}

void ProgrammeModel::setChannel(int channel)
{
    select(channel, m_date);
}

void ProgrammeModel::setDate(QDate date)
{
    select(m_channel, date);
}

void ProgrammeModel::select(int channel, QDate date)
{
    if (channel != m_channel || date != m_date)
        select(m_guide, channel, date);
}

void ProgrammeModel::select(const Guide &guide, int channel, QDate date)
{
    const bool otherChannel = channel != m_channel;
    const bool otherDate = date != m_date;
    show(guide, channel, date);
    if (otherChannel)
        Q_EMIT channelChanged();
    if (otherDate)
        Q_EMIT dateChanged();
}

void ProgrammeModel::setNow(const QDateTime &now)
{
    if (m_now == now)
        return;
    m_now = now;
    updateStates();
    Q_EMIT nowChanged();
}

void ProgrammeModel::setCatchUpHours(int hours)
{
    hours = std::max(hours, 0);
    if (m_catchUpHours == hours)
        return;
    m_catchUpHours = hours;
    updateStates();
    Q_EMIT catchUpHoursChanged();
}

int ProgrammeModel::indexAt(const QDateTime &time) const
{
    return time.isValid() ? rowAt(time.toSecsSinceEpoch()) : -1;
}

int ProgrammeModel::nearestRow(const QDateTime &time) const
{
    const int running = indexAt(time);
    if (running >= 0 || m_rows.isEmpty() || !time.isValid())
        return m_rows.isEmpty() ? -1 : std::max(running, 0);
    const int before = m_guide.previousProgramme(m_channel, time.toSecsSinceEpoch() + 1);
    const auto after = std::upper_bound(m_rows.cbegin(), m_rows.cend(), before);
    return int(std::max<qsizetype>(after - m_rows.cbegin() - 1, 0));
}

int ProgrammeModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ProgrammeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= count())
        return {};
    const int row = index.row();
    const State &state = m_states[row];
    switch (role) {
    case StartTimeTextRole:
        return timeText(timeOf(row).start);
    case StopTimeTextRole:
        return timeText(timeOf(row).stop);
    case IsLiveRole:
        return state.live;
    case IsFutureRole:
        return state.future;
    case IsPastRole:
        return !state.live && !state.future;
    case IsPlayableRole:
        return state.playable;
    case StartRole:
        return localTime(timeOf(row).start);
    case StopRole:
        return localTime(timeOf(row).stop);
    case ProgressRole:
        return state.progress;
    default:
        return textData(row, role);
    }
}

QVariant ProgrammeModel::textData(int row, int role) const
{
    const Programme programme = m_guide.programme(m_channel, m_rows[row]);
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return programme.shownTitle();
    case SubtitleRole:
        return programme.shownSubtitle();
    case DescriptionRole:
        return programme.description;
    case CategoryRole:
        return programme.category;
    case PictureRole:
        return programme.picture.isEmpty() ? programmeStill(programme.category, programme.title)
                                           : programme.picture;
    default:
        return {};
    }
}

QHash<int, QByteArray> ProgrammeModel::roleNames() const
{
    return { { TitleRole, "title" },
             { SubtitleRole, "subtitle" },
             { StartTimeTextRole, "startTimeText" },
             { StopTimeTextRole, "stopTimeText" },
             { IsLiveRole, "isLive" },
             { IsFutureRole, "isFuture" },
             { IsPastRole, "isPast" },
             { IsPlayableRole, "isPlayable" },
             { StartRole, "start" },
             { StopRole, "stop" },
             { ProgressRole, "progress" },
             { DescriptionRole, "description" },
             { CategoryRole, "category" },
             { PictureRole, "picture" } };
}

TimeSpan ProgrammeModel::timeOf(int row) const
{
    return m_guide.timeSpan(m_channel, m_rows[row]);
}

int ProgrammeModel::rowAt(qint64 time) const
{
    return m_rows.isEmpty() ? -1 : rowOf(m_guide.programmeAt(m_channel, time));
}

int ProgrammeModel::rowOf(int programme) const
{
    const auto row = std::lower_bound(m_rows.cbegin(), m_rows.cend(), programme);
    return row != m_rows.cend() && *row == programme ? int(row - m_rows.cbegin()) : -1;
}

ProgrammeModel::State ProgrammeModel::stateAt(const TimeSpan &time) const
{
    if (!m_now.isValid())
        return {};
    const qint64 now = m_now.toSecsSinceEpoch();
    State state;
    state.live = time.contains(now);
    state.future = now < time.start;
    state.playable = state.live || (!state.future && now - time.start <= qint64(m_catchUpHours) * 3600);
    state.progress = time.progressAt(now);
    return state;
}

void ProgrammeModel::show(const Guide &guide, int channel, QDate date)
{
    const QList<int> rows = rowsOf(guide, channel, date);
    const bool sameSource = channel == m_channel && guide.isSameAs(m_guide);
    const bool reset = rows != m_rows || (!sameSource && !rows.isEmpty());
    const bool otherCount = rows.size() != m_rows.size();
    if (reset)
        beginResetModel();
    m_guide = guide;
    m_channel = channel;
    m_date = date;
    if (!reset)
        return;
    m_rows = rows;
    m_states.clear();
    for (int row = 0; row < count(); ++row)
        m_states.append(stateAt(timeOf(row)));
    endResetModel();
    updateLiveRow();
    if (otherCount)
        Q_EMIT countChanged();
}

void ProgrammeModel::updateLiveRow()
{
    const int row = indexAt(m_now);
    if (std::exchange(m_liveRow, row) != row)
        Q_EMIT liveRowChanged();
}

void ProgrammeModel::updateStates()
{
    for (int row = 0; row < count(); ++row) {
        const State state = stateAt(timeOf(row));
        const State old = std::exchange(m_states[row], state);
        QList<int> roles;
        if (state.live != old.live)
            roles.append(IsLiveRole);
        if (state.future != old.future)
            roles.append(IsFutureRole);
        if ((state.live || state.future) != (old.live || old.future))
            roles.append(IsPastRole);
        if (state.playable != old.playable)
            roles.append(IsPlayableRole);
        if (!qFuzzyCompare(1 + state.progress, 1 + old.progress))
            roles.append(ProgressRole);
        if (!roles.isEmpty())
            Q_EMIT dataChanged(index(row), index(row), roles);
    }
    updateLiveRow();
}

} // namespace gallery
