// SPDX-License-Identifier: MIT
#include "gallery/data/programmesearch.h"

#include <algorithm>
#include <tuple>

namespace gallery {

bool ProgrammeSearch::Hit::isBefore(const Hit &other) const
{
    if (match != other.match)
        return match > other.match;
    if (time != other.time)
        return time < other.time;
    // What is on stands in the order of the channels.
    const qint64 when = time == Time::OnNow ? 0 : time == Time::ToCome ? start : -start;
    const qint64 otherWhen = time == Time::OnNow ? 0 : time == Time::ToCome ? other.start : -other.start;
    return std::tie(when, place.channel, place.programme)
           < std::tie(otherWhen, other.place.channel, other.place.programme);
}

void ProgrammeSearch::start(const QStringList &words, qint64 now)
{
    m_words = words;
    m_now = now;
    m_looked = 0;
    m_place = { 0, -1 };
    m_matches.clear();
    m_inChannel.clear();
    m_hits.clear();
}

bool ProgrammeSearch::step(TitleIndex &index, int count)
{
    index.read(int(std::max<qsizetype>(0, m_looked + count - index.programmeCount())));
    m_matches.resize(size_t(index.titleCount()), -1);
    const qsizetype end = std::min(m_looked + count, index.programmeCount());
    for (; m_looked < end; ++m_looked) {
        const TitleIndex::Place next = index.after(m_place);
        if (next.channel != m_place.channel)
            finishChannel();
        m_place = next;
        look(index, index.titleOf(m_looked));
    }
    if (!index.isComplete() || m_looked < index.programmeCount())
        return false;
    finishChannel();
    keepBest();
    return true;
}

TextMatch ProgrammeSearch::match(const TitleIndex &index, int title)
{
    qint8 &known = m_matches[size_t(title)];
    if (known < 0)
        known = qint8(matchOf(index.title(title), m_words));
    return TextMatch(known);
}

void ProgrammeSearch::look(const TitleIndex &index, int title)
{
    const TextMatch found = match(index, title);
    if (found == TextMatch::None)
        return;
    const TimeSpan time = index.guide().timeSpan(m_place.channel, m_place.programme);
    Hit hit { found, Time::Over, time.start, m_place };
    if (time.contains(m_now))
        hit.time = Time::OnNow;
    else if (time.start > m_now)
        hit.time = Time::ToCome;
    const auto other = m_inChannel.find(title);
    if (other == m_inChannel.end())
        m_inChannel.insert(title, hit);
    else if (hit.isBefore(*other))
        *other = hit;
}

void ProgrammeSearch::finishChannel()
{
    m_hits.insert(m_hits.end(), m_inChannel.cbegin(), m_inChannel.cend());
    m_inChannel.clear();
    // One letter fits nearly everything.
    if (m_hits.size() > 32 * size_t(limit))
        keepBest();
}

void ProgrammeSearch::keepBest()
{
    const auto end = m_hits.begin() + std::min<qsizetype>(limit, qsizetype(m_hits.size()));
    std::partial_sort(m_hits.begin(), end, m_hits.end(),
                      [](const Hit &a, const Hit &b) { return a.isBefore(b); });
    m_hits.erase(end, m_hits.end());
}

} // namespace gallery
