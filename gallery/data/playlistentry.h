// SPDX-License-Identifier: MIT
#ifndef GALLERY_PLAYLISTENTRY_H
#define GALLERY_PLAYLISTENTRY_H

#include <QtCore/qhash.h>
#include <QtCore/qstring.h>
#include <QtCore/qstringlist.h>

namespace gallery {

/*! What a line "#EXTINF:duration key="value" ...,Name" says of the address that follows it. */
struct PlaylistEntry
{
    /*! The values of all attributes by their keys in small letters, without surrounding blanks. */
    QHash<QString, QString> attributes;
    /*! What stands behind the comma, simplified; may be empty. */
    QString name;
    /*! What is wrong with the line, in words for its reader. */
    QStringList problems;
};

/*! Whether \a line is such a line. */
bool isPlaylistEntry(QStringView line);

/*!
    Reads such a line. A quote ends a value only where a comma, another attribute or the end of the line follows, so
    that values may have quotes and commas in them; a value whose quote is not closed ends before the next attribute
    or comma.
*/
PlaylistEntry readPlaylistEntry(QStringView line);

/*! A short piece of \a text to be shown in a message, without control characters. */
QString shownInMessage(QStringView text);

} // namespace gallery

#endif // GALLERY_PLAYLISTENTRY_H
