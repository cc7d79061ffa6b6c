// SPDX-License-Identifier: MIT
#ifndef GALLERY_TITLEINDEX_H
#define GALLERY_TITLEINDEX_H

#include "gallery/data/guide.h"

#include <QtCore/qhash.h>

#include <vector>

namespace gallery {

/*!
    The titles of a guide's programmes, folded for the search, each once. Programmes are counted through, channel by
    channel in the guide's order. A long guide is read step by step, so that nobody has to wait for it.
*/
class TitleIndex
{
public:
    /*! A programme of the guide: the indices of its channel, and of itself in that. */
    struct Place
    {
        int channel = 0;
        int programme = 0;
    };

    TitleIndex() = default;
    explicit TitleIndex(const Guide &guide);

    const Guide &guide() const { return m_guide; }
    bool isComplete() const { return m_next.channel >= m_guide.channelCount(); }
    /*! Reads up to \a count more programmes. */
    void read(int count);

    /*! How many programmes have been read so far. */
    qsizetype programmeCount() const { return qsizetype(m_titleOf.size()); }
    /*! Which title the programme has, counted in the order in which they were read first. */
    int titleOf(qsizetype programme) const { return m_titleOf[size_t(programme)]; }
    /*! The folded text of a title. */
    const QString &title(int title) const { return m_titles[size_t(title)]; }
    int titleCount() const { return int(m_titles.size()); }
    /*! The place after \a place; that of the first programme is the one after a Place of { 0, -1 }. */
    Place after(Place place) const;

private:
    int add(int channel, int programme);

    Guide m_guide;
    Place m_next { 0, 0 };
    std::vector<QString> m_titles;
    std::vector<qint32> m_titleOf;
    QHash<const void *, int> m_known; // by what Guide::titleKey() gives
    QHash<QString, int> m_numbers; // by folded title
};

} // namespace gallery

#endif // GALLERY_TITLEINDEX_H
