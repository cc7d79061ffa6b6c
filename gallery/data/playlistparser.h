// SPDX-License-Identifier: MIT
#ifndef GALLERY_PLAYLISTPARSER_H
#define GALLERY_PLAYLISTPARSER_H

#include "gallery/data/playlistentry.h"
#include "gallery/data/playlistreader.h"

#include <QtCore/qset.h>

#include <limits>
#include <optional>

namespace gallery {

/*! Makes the channels of a playlist of the bytes of its file. The report gets them and the problems. */
class PlaylistParser
{
    Q_DISABLE_COPY_MOVE(PlaylistParser)
public:
    /*! \a folder is where relative addresses of logos start; \a report outlives the parser. */
    PlaylistParser(const QString &folder, PlaylistReport *report);

    void read(const QByteArray &file);

    /*! Whether anything in the file shows that it is a playlist: its header, an entry, or an address. */
    bool foundPlaylist() const { return m_foundPlaylist; }

private:
    /*! An entry that waits for its address, and where it stands. */
    struct Waiting
    {
        PlaylistEntry entry;
        qint64 line = 0;
    };

    void readLines(const QByteArray &text);
    void readLine(const QByteArray &bytes);
    void readAddress(const QString &address);
    void addChannel(PlaylistEntry *entry, const QString &address);
    PlaylistChannel channelOf(PlaylistEntry *entry, const QString &address) const;
    bool isRepetition(const PlaylistChannel &channel);
    void checkIdAndNumber(PlaylistChannel *channel, qint64 line, QStringList *problems);
    void dropEntry();
    void finish();
    void problem(qint64 line, const QString &text);
    void tellProblems(qint64 before);

    QString m_folder;
    PlaylistReport *m_report = nullptr;
    qint64 m_line = 0;
    QList<PlaylistProblem> m_untold; // of the lines since the waiting entry, in their order
    std::optional<Waiting> m_waiting;
    QHash<QString, qint64> m_lineOfId;
    QHash<QString, qint64> m_lineOfNumber;
    QSet<QString> m_known; // what makes a channel the same as another
    bool m_foundPlaylist = false;
    bool m_hasContent = false;
    bool m_full = false;
};

} // namespace gallery

#endif // GALLERY_PLAYLISTPARSER_H
