// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_GUIDES_H
#define STBUI_TEST_GUIDES_H

#include "gallery/data/guidebuilder.h"

#include <QtCore/qlist.h>
#include <QtCore/qtimezone.h>

namespace guides {

/*! The day of the guides below, and the time they are looked at, in UTC. */
inline const QDate day(2026, 3, 4);

inline QDateTime at(int hour, int minute)
{
    return QDateTime(day, QTime(hour, minute), QTimeZone::utc());
}

struct Show
{
    QString title;
    QDateTime start;
    QDateTime stop;
};

inline void addChannel(gallery::GuideBuilder &builder, const QString &id, const QList<Show> &shows)
{
    builder.addChannel({ id, "Channel " + id, {}, {} });
    for (const Show &show : shows) {
        gallery::NewProgramme programme;
        programme.channelId = id;
        programme.start = show.start.toSecsSinceEpoch();
        programme.stop = show.stop.toSecsSinceEpoch();
        programme.title = show.title;
        programme.subTitle = "About " + show.title;
        programme.description = "All of " + show.title;
        builder.addProgramme(programme);
    }
}

/*! Shows of \a minutes each that fill the day. */
inline QList<Show> wholeDay(const QString &name, int minutes)
{
    QList<Show> shows;
    for (int i = 0; i * minutes < 24 * 60; ++i) {
        const QDateTime start = at(0, 0).addSecs(qint64(i) * minutes * 60);
        shows.append({ name + QString::number(i), start, start.addSecs(qint64(minutes) * 60) });
    }
    return shows;
}

/*!
    Five channels: "a" with shows of 30 minutes, "b" of 47, "none" without any, "c" of 61 and "one" with a single
    show from 19:10 to 22:50.
*/
inline gallery::Guide five()
{
    gallery::GuideBuilder builder;
    addChannel(builder, QStringLiteral("a"), wholeDay(QStringLiteral("A"), 30));
    addChannel(builder, QStringLiteral("b"), wholeDay(QStringLiteral("B"), 47));
    addChannel(builder, QStringLiteral("none"), {});
    addChannel(builder, QStringLiteral("c"), wholeDay(QStringLiteral("C"), 61));
    addChannel(builder, QStringLiteral("one"), { { QStringLiteral("Only"), at(19, 10), at(22, 50) } });
    return builder.take();
}

} // namespace guides

#endif // STBUI_TEST_GUIDES_H
