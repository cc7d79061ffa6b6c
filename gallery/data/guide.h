// SPDX-License-Identifier: MIT
#ifndef GALLERY_GUIDE_H
#define GALLERY_GUIDE_H

#include <QtCore/qdatetime.h>
#include <QtCore/qlist.h>
#include <QtCore/qmetatype.h>
#include <QtCore/qstring.h>
#include <QtCore/qurl.h>

#include <memory>

namespace gallery {

struct GuideData;

/*! A channel, with its name in the language that was asked for when the guide was read. */
struct Channel
{
    /*! The id that programmes refer to; never empty. */
    QString id;
    /*! The name to show; the id when the guide gives no name. */
    QString name;
    /*! The number to show ("7", "7-1"), or an empty string when the guide gives none. */
    QString number;
    /*! The channel's picture: a web address or an existing local file; empty when there is none. */
    QUrl icon;
    /*! The group that the channel is in ("News"), as a playlist tells; else empty. */
    QString group = {};
    /*! The quality ("HD", "4K"), as the name or a playlist tells; else empty. */
    QString quality = {};
    /*! Whether it takes a code to watch it, as a playlist tells. */
    bool locked = false;
};

/*! From \a start on, up to but not including \a stop, in seconds since 1970-01-01 00:00 UTC. */
struct TimeSpan
{
    qint64 start = 0;
    qint64 stop = 0;

    bool contains(qint64 time) const { return time >= start && time < stop; }
    /*! How much of it is over at \a time, 0 to 1. What has no length is over when it has begun. */
    double progressAt(qint64 time) const;
    friend bool operator==(const TimeSpan &, const TimeSpan &) = default;
};

/*! A channel to be shown, and the channel of a guide whose programmes it has. */
struct ShownChannel
{
    Channel channel;
    /*! Index of the channel in the guide; -1 for a channel without programmes. */
    int source = -1;
};

/*! One programme, with its texts in the language that was asked for when the guide was read. */
struct Programme
{
    TimeSpan time;
    QString title;
    QString subTitle;
    QString description;
    QString category;
    /*! The programme's picture: a web address or an existing local file; empty when the guide has none. */
    QUrl picture;

    /*! The title to show, which is never empty: a guide may have only a subtitle, or neither. */
    QString shownTitle() const;
    /*! The line below the shown title; empty when the subtitle has the title's place. */
    QString shownSubtitle() const;
};

/*!
    A programme guide: channels and, for each, its programmes sorted by start. A value that never changes;
    copies share the data and may be read in any thread.

    Channels and programmes are addressed by index, from 0. Asking for one that does not exist is an error of
    the caller (asserted).
*/
class Guide
{
public:
    Guide();
    explicit Guide(std::shared_ptr<const GuideData> data);

    /*! True when both share their data, as copies do. */
    bool isSameAs(const Guide &other) const { return m_data == other.m_data; }

    /*! True without any channel. */
    bool isEmpty() const { return channelCount() == 0; }

    /*! Channels in the order of the guide; those that only programmes mention come last. */
    int channelCount() const;
    const Channel &channel(int channel) const;
    /*! The channel whose id is \a id, or -1. */
    int channelIndex(const QString &id) const;

    /*! Programmes of all channels. */
    qint64 programmeCount() const;
    /*! Programmes of one channel. They are sorted by start, those that start together by their clump index. */
    int programmeCount(int channel) const;
    Programme programme(int channel, int programme) const;
    /*! The title of a programme; cheaper than programme(). */
    QString title(int channel, int programme) const;
    /*! The same for two programmes only when they have the same title, and mostly when they do. */
    const void *titleKey(int channel, int programme) const;
    /*! When a programme runs; cheaper than programme(). */
    TimeSpan timeSpan(int channel, int programme) const;

    /*!
        The programme that is on at \a time: of several the one that started last, of those that started
        together the first. -1 when none is on.
    */
    int programmeAt(int channel, qint64 time) const;
    /*!
        The first channel that is not locked and has a programme on at \a time, else the first that is not locked; -1
        when all are, or there is none.
    */
    int firstChannelOnAir(qint64 time) const;
    /*! The first programme that starts after \a time, or -1. */
    int nextProgramme(int channel, qint64 time) const;
    /*! The last programme that starts before \a time, or -1. */
    int previousProgramme(int channel, qint64 time) const;

    /*!
        The programme with the shown title \a title that starts at \a start or nearest to it, at most an hour before or
        after: where another guide has what this one calls so. -1 without one.
    */
    int programmeLike(int channel, qint64 start, const QString &title) const;

    /*!
        The programmes that run or start at any time of \a span: also one that began earlier and still runs, and
        one of no length.
    */
    QList<int> programmesIn(int channel, const TimeSpan &span) const;

    /*! From the first start to the last stop of all programmes; 0 to 0 without any. */
    TimeSpan timeSpan() const;

    /*!
        This guide's programmes under the channels \a channels, in their order; other channels are left out. The
        programmes are shared, not copied, and stay as long as one guide that shows them. The ids of the channels
        are different from each other (asserted); a source may be there more than once.
    */
    Guide withChannels(const QList<ShownChannel> &channels) const;
    /*! Whether the programmes of \a channel are the very ones of \a otherChannel in \a other, not a copy. */
    bool sharesProgrammes(int channel, const Guide &other, int otherChannel) const;

    /*! About how many bytes of memory the guide takes, those included that it shares with another guide. */
    qint64 memoryUsage() const;

private:
    std::shared_ptr<const GuideData> m_data;
};

/*!
    The calendar day \a date in local time, from its first instant to the first of the next day: 23 or 25 hours
    when the clocks change.
*/
TimeSpan localDay(QDate date);

} // namespace gallery

Q_DECLARE_METATYPE(gallery::Guide)

#endif // GALLERY_GUIDE_H
