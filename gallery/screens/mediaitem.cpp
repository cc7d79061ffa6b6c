// SPDX-License-Identifier: MIT
#include "screens/mediaitem.h"

#include "gallery/data/programmestills.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qlocale.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

int minutes(double seconds)
{
    // A catalogue can claim any length; beyond this many nobody reads the number.
    return int(std::clamp(std::ceil(seconds / 60), 0.0, 1e6));
}

QString episodeText(const MediaItem &item)
{
    if (item.season <= 0 || item.episode <= 0)
        return {};
    //: %1 is the season's number, %2 the episode's
    return QCoreApplication::translate("MediaItem", "Season %1, episode %2").arg(item.season).arg(item.episode);
}

MediaItem::Kind kindOf(CatalogueEntry::Kind kind)
{
    switch (kind) {
    case CatalogueEntry::Kind::Series:
        return MediaItem::Kind::Series;
    case CatalogueEntry::Kind::Episode:
        return MediaItem::Kind::Episode;
    case CatalogueEntry::Kind::Film:
        break;
    }
    return MediaItem::Kind::Film;
}

} // namespace

MediaItem programmeItem(const Guide &guide, int channel, int index, const QDateTime &now)
{
    const Programme programme = guide.programme(channel, index);
    MediaItem item;
    item.kind = MediaItem::Kind::Programme;
    item.id = channelItemId(guide.channel(channel).id);
    item.title = programme.shownTitle();
    item.subtitle = programme.shownSubtitle();
    item.description = programme.description;
    item.genre = programme.category;
    item.channel = guide.channel(channel).name;
    item.channelId = guide.channel(channel).id;
    item.logo = guide.channel(channel).icon;
    item.still = programmeStill(programme.category, programme.title);
    item.start = QDateTime::fromSecsSinceEpoch(programme.time.start);
    item.position = double(now.toSecsSinceEpoch() - programme.time.start);
    item.duration = double(programme.time.stop - programme.time.start);
    return item;
}

double MediaItem::progress() const
{
    return duration > 0 ? std::clamp(position / duration, 0.0, 1.0) : 0.0;
}

QList<MediaItem> programmesAt(const Guide &guide, const QDateTime &now)
{
    QList<MediaItem> items;
    for (int channel = 0; channel < guide.channelCount(); ++channel) {
        const int programme = guide.programmeAt(channel, now.toSecsSinceEpoch());
        if (programme >= 0)
            items.append(programmeItem(guide, channel, programme, now));
    }
    return items;
}

MediaItem catalogueItem(const Catalogue &catalogue, int index)
{
    const CatalogueEntry &entry = catalogue.entry(index);
    MediaItem item;
    item.kind = kindOf(entry.kind);
    item.id = u"vod:"_s + QString::number(index);
    item.title = entry.title;
    item.subtitle = entry.subtitle;
    item.note = entry.status;
    item.description = entry.description;
    item.genre = entry.genre;
    item.rating = entry.rating;
    item.year = entry.year;
    item.season = entry.season;
    item.episode = entry.episode;
    item.release = entry.release;
    item.entry = index;
    item.series = item.kind == MediaItem::Kind::Series ? index : entry.series;
    item.position = entry.position;
    item.duration = entry.duration;
    item.picture = entry.picture;
    item.still = entry.still;
    item.logo = entry.logo;
    return item;
}

QString channelItemId(const QString &channelId)
{
    return u"tv:"_s + channelId;
}

QString lengthText(double seconds)
{
    const int all = minutes(seconds);
    if (all < 60) {
        //: Length of a film: minutes
        return QCoreApplication::translate("MediaItem", "%1 min").arg(all);
    }
    //: Length of a film: hours and minutes
    return QCoreApplication::translate("MediaItem", "%1 h %2 min").arg(all / 60).arg(all % 60);
}

QString dayName(QDate day, QDate today)
{
    switch (today.daysTo(day)) {
    case -1:
        return QCoreApplication::translate("PlayerScreen", "Yesterday");
    case 0:
        return QCoreApplication::translate("PlayerScreen", "Today");
    case 1:
        return QCoreApplication::translate("PlayerScreen", "Tomorrow");
    default:
        return QLocale().toString(day, QCoreApplication::translate("GuideScreen", "ddd, d MMM"));
    }
}

QString secondLine(const MediaItem &item)
{
    if (!item.isProgramme())
        return item.subtitle;
    const QDate today = item.start.addSecs(qint64(item.position)).date();
    const bool isOn = item.position >= 0 && item.position < item.duration;
    if (!isOn && item.start.date() != today) {
        //: %1 is a day ("Tomorrow"), %2 a time: "Tomorrow, 20:15"
        return QCoreApplication::translate("MediaItem", "%1, %2")
                .arg(dayName(item.start.date(), today), item.start.toString(u"HH:mm"_s));
    }
    const QDateTime stop = item.start.addSecs(qint64(item.duration));
    return timeRangeText(item.start.toString(u"HH:mm"_s), stop.toString(u"HH:mm"_s));
}

QString timeRangeText(const QString &start, const QString &stop)
{
    //: %1 and %2 are the times of start and stop. A language that is read from the right has its marks (U+200F) around
    //: the dash, or the times change places where there is no other text.
    return QCoreApplication::translate("MediaItem", "%1 – %2").arg(start, stop);
}

QString thirdLine(const MediaItem &item)
{
    const QString left = item.isProgramme() ? QString() : timeLeft(item);
    return left.isEmpty() ? item.note : left;
}

QString facts(const MediaItem &item)
{
    QStringList parts;
    if (item.isProgramme())
        parts = { item.channel, secondLine(item), item.genre };
    else if (item.kind == MediaItem::Kind::Episode)
        parts = { item.subtitle, episodeText(item) };
    else
        parts = { item.year > 0 ? QString::number(item.year) : QString(), item.genre };
    if (!item.isProgramme() && item.duration > 0)
        parts.append(lengthText(item.duration));
    parts.append(item.rating);
    parts.removeAll(QString());
    return parts.join(u" · "_s);
}

bool isViewed(const MediaItem &item)
{
    return item.duration > 0 && item.position >= item.duration;
}

bool isToCome(const MediaItem &item, QDate today)
{
    return item.release.isValid() && item.release > today;
}

QString noPlayerText()
{
    return QCoreApplication::translate("MediaItem", "There is no film to play in this gallery.");
}

QString lockedText()
{
    return QCoreApplication::translate("MediaItem", "This channel is locked");
}

QString timeLeft(const MediaItem &item)
{
    if (item.position <= 0 || item.position >= item.duration)
        return {};
    //: %1 is how much is left of a film that was begun: "12 min"
    return QCoreApplication::translate("MediaItem", "%1 left").arg(lengthText(item.duration - item.position));
}

} // namespace gallery
