// SPDX-License-Identifier: MIT
#include "gallery/data/guide.h"

#include "gallery/data/guide_p.h"

#include <QtCore/qcoreapplication.h>

#include <algorithm>
#include <cstdlib>

namespace gallery {

namespace {

using Programmes = std::deque<ProgrammeRecord>;

// Index of the first programme that starts after \a time.
qsizetype firstAfter(const Programmes &programmes, qint64 time)
{
    const auto later = [](qint64 t, const ProgrammeRecord &programme) { return t < programme.start; };
    return std::upper_bound(programmes.cbegin(), programmes.cend(), time, later) - programmes.cbegin();
}

// Index of the first programme that starts at \a time or later.
qsizetype firstFrom(const Programmes &programmes, qint64 time)
{
    const auto earlier = [](const ProgrammeRecord &programme, qint64 t) { return programme.start < t; };
    return std::lower_bound(programmes.cbegin(), programmes.cend(), time, earlier) - programmes.cbegin();
}

} // namespace

void GuideData::summarize()
{
    qint64 first = std::numeric_limits<qint64>::max();
    qint64 last = std::numeric_limits<qint64>::min();
    for (size_t i = 0; i < channels.size(); ++i) {
        const ChannelProgrammes &programmes = *channels[i].programmes;
        channelById.insert(channels[i].channel.id, int(i));
        programmeCount += qint64(programmes.records.size());
        last = std::max(last, programmes.lastStop);
        if (!programmes.records.empty())
            first = std::min(first, programmes.records.front().start);
    }
    if (programmeCount > 0)
        time = { first, last };
}

Guide::Guide()
    : m_data(std::make_shared<const GuideData>())
{
}

Guide::Guide(std::shared_ptr<const GuideData> data)
    : m_data(std::move(data))
{
}

int Guide::channelCount() const
{
    return int(m_data->channels.size());
}

const Channel &Guide::channel(int channel) const
{
    Q_ASSERT(channel >= 0 && channel < channelCount());
    return m_data->channels[size_t(channel)].channel;
}

int Guide::channelIndex(const QString &id) const
{
    return m_data->channelById.value(id, -1);
}

qint64 Guide::programmeCount() const
{
    return m_data->programmeCount;
}

int Guide::programmeCount(int channel) const
{
    Q_ASSERT(channel >= 0 && channel < channelCount());
    return int(m_data->channels[size_t(channel)].programmes->records.size());
}

Programme Guide::programme(int channel, int programme) const
{
    Q_ASSERT(programme >= 0 && programme < programmeCount(channel));
    const ProgrammeRecord &record = m_data->channels[size_t(channel)].programmes->records[size_t(programme)];
    return { { record.start, record.stop },   TextPool::text(record.title),
             TextPool::text(record.subTitle), TextPool::text(record.description),
             TextPool::text(record.category), QUrl::fromEncoded(TextPool::text(record.picture).toLatin1()) };
}

QString Guide::title(int channel, int programme) const
{
    Q_ASSERT(programme >= 0 && programme < programmeCount(channel));
    return TextPool::text(m_data->channels[size_t(channel)].programmes->records[size_t(programme)].title);
}

const void *Guide::titleKey(int channel, int programme) const
{
    Q_ASSERT(programme >= 0 && programme < programmeCount(channel));
    return m_data->channels[size_t(channel)].programmes->records[size_t(programme)].title;
}

TimeSpan Guide::timeSpan(int channel, int programme) const
{
    Q_ASSERT(programme >= 0 && programme < programmeCount(channel));
    const ProgrammeRecord &record = m_data->channels[size_t(channel)].programmes->records[size_t(programme)];
    return { record.start, record.stop };
}

QString Programme::shownTitle() const
{
    if (!title.isEmpty())
        return title;
    //: A programme whose title the guide does not tell
    return subTitle.isEmpty() ? QCoreApplication::translate("Programme", "Untitled") : subTitle;
}

QString Programme::shownSubtitle() const
{
    return title.isEmpty() ? QString() : subTitle;
}

double TimeSpan::progressAt(qint64 time) const
{
    if (time >= stop)
        return time >= start ? 1 : 0;
    return time <= start ? 0 : double(time - start) / double(stop - start);
}

int Guide::firstChannelOnAir(qint64 time) const
{
    int first = -1;
    for (int channel = 0; channel < channelCount(); ++channel) {
        if (this->channel(channel).locked)
            continue;
        if (programmeAt(channel, time) >= 0)
            return channel;
        if (first < 0)
            first = channel;
    }
    return first;
}

int Guide::programmeAt(int channel, qint64 time) const
{
    Q_ASSERT(channel >= 0 && channel < channelCount());
    const ChannelProgrammes &record = *m_data->channels[size_t(channel)].programmes;
    qsizetype found = -1;
    for (qsizetype i = firstAfter(record.records, time) - 1; i >= 0; --i) {
        const ProgrammeRecord &programme = record.records[size_t(i)];
        if (time - programme.start >= record.longest)
            break;
        if (found >= 0 && programme.start < record.records[size_t(found)].start)
            break;
        if (time < programme.stop)
            found = i;
    }
    return int(found);
}

int Guide::nextProgramme(int channel, qint64 time) const
{
    Q_ASSERT(channel >= 0 && channel < channelCount());
    const Programmes &programmes = m_data->channels[size_t(channel)].programmes->records;
    const qsizetype next = firstAfter(programmes, time);
    return next < qsizetype(programmes.size()) ? int(next) : -1;
}

int Guide::previousProgramme(int channel, qint64 time) const
{
    Q_ASSERT(channel >= 0 && channel < channelCount());
    return int(firstFrom(m_data->channels[size_t(channel)].programmes->records, time)) - 1;
}

int Guide::programmeLike(int channel, qint64 start, const QString &title) const
{
    constexpr qint64 longestMove = 3600;
    int found = -1;
    qint64 smallest = longestMove + 1;
    const int count = programmeCount(channel);
    for (int i = previousProgramme(channel, start - longestMove) + 1; i < count; ++i) {
        const qint64 move = timeSpan(channel, i).start - start;
        if (move > longestMove)
            break;
        if (std::abs(move) < smallest && programme(channel, i).shownTitle() == title) {
            smallest = std::abs(move);
            found = i;
        }
    }
    return found;
}

QList<int> Guide::programmesIn(int channel, const TimeSpan &span) const
{
    Q_ASSERT(channel >= 0 && channel < channelCount());
    const ChannelProgrammes &record = *m_data->channels[size_t(channel)].programmes;
    const qsizetype begin = firstFrom(record.records, span.start);
    QList<int> rows;
    for (qsizetype i = firstAfter(record.records, span.start - record.longest); i < begin; ++i) {
        if (record.records[size_t(i)].stop > span.start)
            rows.append(int(i));
    }
    const qsizetype end = firstFrom(record.records, span.stop);
    for (qsizetype i = begin; i < end; ++i)
        rows.append(int(i));
    return rows;
}

TimeSpan Guide::timeSpan() const
{
    return m_data->time;
}

qint64 Guide::memoryUsage() const
{
    const qint64 own = qint64(m_data->channels.size()) * qint64(sizeof(ChannelRecord));
    if (m_data->source)
        return own + Guide(m_data->source).memoryUsage();
    return own + qint64(m_data->texts.bytes()) + m_data->programmeCount * qint64(sizeof(ProgrammeRecord));
}

Guide Guide::withChannels(const QList<ShownChannel> &channels) const
{
    const auto none = std::make_shared<ChannelProgrammes>();
    auto data = std::make_shared<GuideData>();
    data->source = m_data->source ? m_data->source : m_data;
    data->channels.reserve(size_t(channels.size()));
    for (const ShownChannel &shown : channels) {
        Q_ASSERT(shown.source < channelCount());
        const bool known = shown.source >= 0;
        data->channels.push_back(
                { shown.channel, known ? m_data->channels[size_t(shown.source)].programmes : none, true });
    }
    data->summarize();
    Q_ASSERT(data->channelById.size() == channels.size());
    return Guide(data);
}

bool Guide::sharesProgrammes(int channel, const Guide &other, int otherChannel) const
{
    return m_data->channels[size_t(channel)].programmes
           == other.m_data->channels[size_t(otherChannel)].programmes;
}

TimeSpan localDay(QDate date)
{
    return { date.startOfDay().toSecsSinceEpoch(), date.addDays(1).startOfDay().toSecsSinceEpoch() };
}

} // namespace gallery
