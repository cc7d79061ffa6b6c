// SPDX-License-Identifier: MIT
#include "gallery/data/playlistreader.h"

#include "gallery/data/playlistparser.h"

#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>

namespace gallery {

namespace {

PlaylistReport unreadable(const QString &name, const QString &reason)
{
    PlaylistReport report;
    report.outcome = PlaylistReport::Outcome::Unreadable;
    report.error = name + QLatin1String(": ") + reason
                   + QLatin1String("; expected a playlist in extended M3U format, which begins with #EXTM3U");
    return report;
}

} // namespace

QStringList PlaylistReport::messages(const QString &fileName) const
{
    if (outcome == Outcome::Unreadable)
        return { error };
    QStringList lines;
    for (const PlaylistProblem &found : problems)
        lines.append(QStringLiteral("%1: line %2: ").arg(fileName).arg(found.line) + found.text);
    if (problemCount > problems.size())
        lines.append(
                QStringLiteral("%1: and %2 more problems").arg(fileName).arg(problemCount - problems.size()));
    return lines;
}

PlaylistReport readPlaylist(const QString &fileName)
{
    const QFileInfo info(fileName);
    if (!info.exists())
        return unreadable(fileName, QStringLiteral("no such file"));
    if (info.isDir())
        return unreadable(fileName, QStringLiteral("is a folder"));
    // Reading a pipe or a device might never end.
    if (!info.isFile())
        return unreadable(fileName, QStringLiteral("is no ordinary file"));
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return unreadable(fileName, file.errorString());
    return readPlaylist(file.read(PlaylistReport::maximumFileSize + 1), fileName);
}

PlaylistReport readPlaylist(const QByteArray &file, const QString &name)
{
    if (file.trimmed().isEmpty())
        return unreadable(name, QStringLiteral("the file is empty"));
    PlaylistReport report;
    PlaylistParser parser(QFileInfo(name).absolutePath(), &report);
    parser.read(file);
    if (!parser.foundPlaylist())
        return unreadable(name, QStringLiteral("is no playlist"));
    return report;
}

} // namespace gallery
