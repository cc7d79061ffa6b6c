// SPDX-License-Identifier: MIT
#ifndef GALLERY_PROGRAMMESEARCH_H
#define GALLERY_PROGRAMMESEARCH_H

#include "gallery/data/foldedtext.h"
#include "gallery/data/titleindex.h"

#include <vector>

namespace gallery {

/*!
    Looks for programmes by their titles, a bounded number of programmes at a time. Of the programmes with one title on
    one channel only one is found: the one that is on, else the next one, else the last one.
*/
class ProgrammeSearch
{
public:
    /*! As many programmes are found at most, the best ones. */
    static constexpr int limit = 30;

    /*! In the order of what is found. */
    enum class Time { OnNow, ToCome, Over };

    struct Hit
    {
        TextMatch match = TextMatch::None;
        Time time = Time::Over;
        qint64 start = 0; // seconds since 1970-01-01 00:00 UTC
        TitleIndex::Place place;

        /*! Whether this one stands before \a other: first how well the title fits, then the time. */
        bool isBefore(const Hit &other) const;
    };

    /*! Begins to look for the folded \a words, as it is at \a now. */
    void start(const QStringList &words, qint64 now);
    /*!
        Looks at up to \a count more programmes of \a index, which is read further where needed; it is the same one
        for the whole search. True when all have been looked at.
    */
    bool step(TitleIndex &index, int count);
    /*! What has been found when step() has answered with true, the best first. */
    const std::vector<Hit> &hits() const { return m_hits; }

private:
    TextMatch match(const TitleIndex &index, int title);
    void look(const TitleIndex &index, int title);
    void finishChannel();
    void keepBest();

    QStringList m_words;
    qint64 m_now = 0;
    qsizetype m_looked = 0;
    TitleIndex::Place m_place; // of the programme that was looked at last
    std::vector<qint8> m_matches; // of the titles that have been looked at: a TextMatch, else -1
    QHash<int, Hit> m_inChannel; // by title
    std::vector<Hit> m_hits;
};

} // namespace gallery

#endif // GALLERY_PROGRAMMESEARCH_H
