// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_MEDIAITEM_H
#define GALLERY_SCREENS_MEDIAITEM_H

#include "gallery/data/catalogue.h"
#include "gallery/data/guide.h"

#include <QtCore/qdatetime.h>

namespace gallery {

/*! Something to watch: what is on a channel now, or an entry of the catalogue. */
struct MediaItem
{
    enum class Kind { Programme, Film, Series, Episode };

    /*! The same for the same thing as long as the program runs; for a programme it names the channel. */
    QString id;
    Kind kind = Kind::Film;
    QString title;
    QString subtitle;
    /*! A short note such as "New". */
    QString note;
    QString description;
    QString genre;
    /*! Age rating such as "12+". */
    QString rating;
    /*! Only of a programme: the channel's name and its id in the guide. */
    QString channel;
    QString channelId;
    /*! When a programme began, in local time. */
    QDateTime start;
    int year = 0;
    int season = 0;
    int episode = 0;
    /*! The day on which an episode comes out; invalid when that is not told. */
    QDate release;
    /*! In the catalogue: the index of this entry, and that of its series, which a series has too; else -1. */
    int entry = -1;
    int series = -1;
    /*! How much of it is over or watched, and how long it is, in seconds; 0 when not known. */
    double position = 0;
    double duration = 0;
    /*! Upright and wide; empty when there is none. */
    QUrl picture;
    QUrl still;
    QUrl logo;

    bool isProgramme() const { return kind == Kind::Programme; }
    /*! How much is over or watched, 0 to 1. */
    double progress() const;

    friend bool operator==(const MediaItem &, const MediaItem &) = default;
};

/*! The programme \a index of \a channel in \a guide, as it is at \a now. */
MediaItem programmeItem(const Guide &guide, int channel, int index, const QDateTime &now);
/*! What is on each channel of \a guide at \a now; channels with nothing on are left out. */
QList<MediaItem> programmesAt(const Guide &guide, const QDateTime &now);
/*! The entry \a index of \a catalogue. */
MediaItem catalogueItem(const Catalogue &catalogue, int index);

/*! The id of the items that stand for what is on the channel \a channelId. */
QString channelItemId(const QString &channelId);
/*! "1 h 42 min", "12 min". */
QString lengthText(double seconds);

/*! "Yesterday", "Today", "Tomorrow", or the weekday and date in short. */
QString dayName(QDate day, QDate today);
/*! "20:00 – 20:30"; the times stand in the order of reading, whatever is around them. */
QString timeRangeText(const QString &start, const QString &stop);
/*!
    "20:15 – 21:30" of a programme that is on or of today, "Tomorrow, 20:15" of another one; else the subtitle: the
    second line of a tile.
*/
QString secondLine(const MediaItem &item);
/*! What is left of something that was begun, else the note: the third line of a tile. */
QString thirdLine(const MediaItem &item);
/*! What is known besides the texts, for one line: "2021 · Drama · 1 h 42 min". */
QString facts(const MediaItem &item);
/*! Whether \a item was watched to its end. */
bool isViewed(const MediaItem &item);
/*! Whether \a item comes out only after the day \a today. */
bool isToCome(const MediaItem &item, QDate today);
/*! What is told where something would be played. */
QString noPlayerText();
/*! What is told where a channel that is locked would be played. */
QString lockedText();
/*! "12 min left", or nothing when \a item is not begun or its length is not known. */
QString timeLeft(const MediaItem &item);

} // namespace gallery

#endif // GALLERY_SCREENS_MEDIAITEM_H
