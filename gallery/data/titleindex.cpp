// SPDX-License-Identifier: MIT
#include "gallery/data/titleindex.h"

#include "gallery/data/foldedtext.h"

namespace gallery {

TitleIndex::TitleIndex(const Guide &guide)
    : m_guide(guide)
    , m_next(after({ 0, -1 }))
{
    m_titleOf.reserve(size_t(guide.programmeCount()));
}

TitleIndex::Place TitleIndex::after(Place place) const
{
    ++place.programme;
    while (place.channel < m_guide.channelCount() && place.programme >= m_guide.programmeCount(place.channel))
        place = { place.channel + 1, 0 };
    return place;
}

void TitleIndex::read(int count)
{
    for (; count > 0 && !isComplete(); --count) {
        m_titleOf.push_back(add(m_next.channel, m_next.programme));
        m_next = after(m_next);
    }
    if (isComplete()) {
        m_known = {};
        m_numbers = {};
    }
}

// Most programmes have a title that another one has too, which is kept at the same address.
int TitleIndex::add(int channel, int programme)
{
    const void *key = m_guide.titleKey(channel, programme);
    if (const auto known = m_known.constFind(key); known != m_known.cend())
        return *known;
    const QString folded = foldedText(m_guide.title(channel, programme));
    auto number = m_numbers.constFind(folded);
    if (number == m_numbers.cend()) {
        number = m_numbers.insert(folded, titleCount());
        m_titles.push_back(folded);
    }
    m_known.insert(key, *number);
    return *number;
}

} // namespace gallery
