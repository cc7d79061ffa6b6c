// SPDX-License-Identifier: MIT
#include "gallery/data/guidebuilder.h"

#include "gallery/data/guide_p.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace gallery {

namespace {

bool startsBefore(const ProgrammeRecord &a, const ProgrammeRecord &b)
{
    return std::pair(a.start, a.clumpIndex) < std::pair(b.start, b.clumpIndex);
}

bool sameProgramme(const ProgrammeRecord &a, const ProgrammeRecord &b)
{
    return a.start == b.start && a.stop == b.stop && a.clumpIndex == b.clumpIndex
           && TextPool::equal(a.title, b.title) && TextPool::equal(a.subTitle, b.subTitle)
           && TextPool::equal(a.description, b.description) && TextPool::equal(a.category, b.category)
           && TextPool::equal(a.picture, b.picture);
}

// A missing stop is the next start that is later than the own one: clumps start together.
void fillInStops(std::deque<ProgrammeRecord> &programmes)
{
    constexpr qint64 none = std::numeric_limits<qint64>::max();
    qint64 next = none;
    qint64 current = none;
    std::for_each(programmes.rbegin(), programmes.rend(), [&](ProgrammeRecord &programme) {
        if (programme.start != current) {
            next = current;
            current = programme.start;
        }
        if (programme.stop != ProgrammeRecord::noStop)
            return;
        const int length = programme.length > 0 ? programme.length : GuideBuilder::defaultLength;
        programme.stop = next != none ? next : programme.start + length;
    });
}

// Removes equal programmes and returns how many there were. Each is compared with the few kept before it
// only, so that a file in which everything starts at once stays cheap.
qint64 removeDuplicates(std::deque<ProgrammeRecord> &programmes)
{
    constexpr qsizetype reach = 16;
    size_t kept = 0;
    for (size_t i = 0; i < programmes.size(); ++i) {
        const auto end = programmes.begin() + qsizetype(kept);
        const auto begin = end - std::min(qsizetype(kept), reach);
        const bool known = std::any_of(begin, end, [&](const ProgrammeRecord &p) {
            return sameProgramme(p, programmes[i]);
        });
        if (!known)
            programmes[kept++] = programmes[i];
    }
    const auto removed = qint64(programmes.size() - kept);
    programmes.resize(kept);
    return removed;
}

qint64 arrange(std::deque<ProgrammeRecord> &programmes)
{
    if (!std::is_sorted(programmes.cbegin(), programmes.cend(), startsBefore))
        std::stable_sort(programmes.begin(), programmes.end(), startsBefore);
    fillInStops(programmes);
    return removeDuplicates(programmes);
}

void measure(ChannelProgrammes &programmes)
{
    for (const ProgrammeRecord &programme : programmes.records) {
        programmes.longest = std::max(programmes.longest, programme.stop - programme.start);
        programmes.lastStop = std::max(programmes.lastStop, programme.stop);
    }
}

} // namespace

GuideBuilder::GuideBuilder()
    : m_data(std::make_unique<GuideData>())
{
}

GuideBuilder::~GuideBuilder() = default;

size_t GuideBuilder::channelIndex(const QString &id)
{
    const auto known = m_data->channelById.constFind(id);
    if (known != m_data->channelById.constEnd())
        return size_t(*known);
    const size_t index = m_data->channels.size();
    m_data->channels.emplace_back();
    m_data->channels[index].channel.id = id;
    m_data->channels[index].programmes = std::make_shared<ChannelProgrammes>();
    m_data->channelById.insert(id, int(index));
    return index;
}

void GuideBuilder::addChannel(const Channel &channel)
{
    ChannelRecord &record = m_data->channels[channelIndex(channel.id)];
    record.declared = true;
    if (record.channel.name.isEmpty())
        record.channel.name = channel.name;
    if (record.channel.number.isEmpty())
        record.channel.number = channel.number;
    if (record.channel.icon.isEmpty())
        record.channel.icon = channel.icon;
    if (record.channel.group.isEmpty())
        record.channel.group = channel.group;
    if (record.channel.quality.isEmpty())
        record.channel.quality = channel.quality;
    record.channel.locked = record.channel.locked || channel.locked;
}

void GuideBuilder::addProgramme(const NewProgramme &programme)
{
    TextPool &texts = m_data->texts;
    ProgrammeRecord record;
    record.start = programme.start;
    if (programme.stop && *programme.stop >= programme.start)
        record.stop = *programme.stop;
    record.title = texts.add(programme.title);
    record.subTitle = texts.add(programme.subTitle);
    record.description = texts.add(programme.description);
    record.category = texts.add(programme.category);
    record.picture = texts.add(programme.picture.toString(QUrl::FullyEncoded));
    record.clumpIndex = programme.clumpIndex;
    record.length = programme.length;
    m_data->channels[channelIndex(programme.channelId)].programmes->records.push_back(record);
}

Guide GuideBuilder::take(const std::atomic<bool> *cancelled)
{
    const std::unique_ptr<GuideData> data = std::exchange(m_data, std::make_unique<GuideData>());
    m_duplicates = 0;
    data->texts.finish();
    data->channelById.clear();
    std::stable_partition(data->channels.begin(), data->channels.end(),
                          [](const ChannelRecord &channel) { return channel.declared; });
    for (ChannelRecord &channel : data->channels) {
        if (cancelled && cancelled->load(std::memory_order_relaxed))
            return Guide();
        m_duplicates += arrange(channel.programmes->records);
        measure(*channel.programmes);
        if (channel.channel.name.isEmpty())
            channel.channel.name = channel.channel.id;
    }
    data->summarize();
    return Guide(std::make_shared<const GuideData>(std::move(*data)));
}

} // namespace gallery
