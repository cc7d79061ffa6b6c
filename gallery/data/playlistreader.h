// SPDX-License-Identifier: MIT
#ifndef GALLERY_PLAYLISTREADER_H
#define GALLERY_PLAYLISTREADER_H

#include "gallery/data/playlist.h"

#include <QtCore/qstringlist.h>

namespace gallery {

/*! A line of a playlist file that is not as it should be; the rest was read. */
struct PlaylistProblem
{
    qint64 line = 0; /*!< from 1 */
    /*! All that is wrong with the line, and what was done about it. */
    QString text;
};

/*! What came of reading a playlist file. The file's format is told in docs/playlist.md. */
struct PlaylistReport
{
    enum class Outcome {
        Complete, /*!< read, although there may be problems */
        Unreadable /*!< no playlist: there is no such file, or it is none; there are no channels */
    };

    /*! How many problems are kept with their text. */
    static constexpr int maximumProblems = 20;
    /*! The most of a file that is read, in bytes; what follows is left out. */
    static constexpr qint64 maximumFileSize = 16 * 1024 * 1024;
    /*! The most channels that are kept; what follows is left out. */
    static constexpr int maximumChannels = 10000;

    Outcome outcome = Outcome::Complete;
    Playlist playlist;
    /*! For Unreadable one line that names the file and what is wrong; else empty. */
    QString error;
    /*! The first problems, in the order of the file, at most one for each line. */
    QList<PlaylistProblem> problems;
    /*! All problems, also those that are not kept. */
    qint64 problemCount = 0;

    /*!
        Everything that is to be told about the file \a fileName, one line each: the error, or the problems and
        how many more there are.
    */
    QStringList messages(const QString &fileName) const;
};

/*! Reads the playlist file \a fileName (extended M3U). Blocks; for any thread. */
PlaylistReport readPlaylist(const QString &fileName);

/*! Reads a playlist from the bytes \a file. \a name stands for the file in messages and addresses of logos. */
PlaylistReport readPlaylist(const QByteArray &file, const QString &name);

} // namespace gallery

#endif // GALLERY_PLAYLISTREADER_H
