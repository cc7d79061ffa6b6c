// SPDX-License-Identifier: MIT
#ifndef GALLERY_PLAYLIST_H
#define GALLERY_PLAYLIST_H

#include <QtCore/qlist.h>
#include <QtCore/qstring.h>
#include <QtCore/qurl.h>

namespace gallery {

/*! One channel of a playlist. */
struct PlaylistChannel
{
    /*! The id that is looked for in the guide (tvg-id); may be empty, and several channels may have the same. */
    QString id;
    /*! The name to show; never empty. */
    QString name;
    /*! The name that is looked for in the guide before the shown one (tvg-name); may be empty. */
    QString guideName;
    /*! The number to show ("7", "7-1"); different for each channel, empty for some when only others have one. */
    QString number;
    /*! The group that the channel is in (group-title); may be empty. */
    QString group;
    /*! What channelQuality() says of its name and group. */
    QString quality;
    /*! The channel's picture: a web address or an existing local file; empty when there is none. */
    QUrl logo;
    /*! Whether the channel takes a code to watch (parent-code). */
    bool locked = false;
    /*! Where the channel is to be received, as the playlist has it; never empty. */
    QString address;
};

/*! The channels of a playlist in its order. */
using Playlist = QList<PlaylistChannel>;

/*!
    The quality of a channel, told by the last word of its \a name, or else by one of its \a group: "8K", "UHD", "4K",
    "FHD", "HD" or "SD" in capital or small letters, also in brackets; else empty. A name that is nothing else tells no
    quality, a group may ("UHD", "Sport HD", "4K films").
*/
QString channelQuality(const QString &name, const QString &group);

/*! \a name without the last word when that tells the quality: where the quality is shown beside it. */
QString withoutQuality(const QString &name);

/*! Whether \a text is a channel's number, as "7", "7-1" or "7.1" are. */
bool isChannelNumber(QStringView text);

} // namespace gallery

#endif // GALLERY_PLAYLIST_H
