// SPDX-License-Identifier: MIT
#include "app/themewatcher.h"

#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>

#include <optional>

namespace gallery {

namespace {

// More than a theme may have.
constexpr qint64 longestContent = qint64(8) * 1024 * 1024;

// Nothing when there is no file to read; opening a pipe might never end.
std::optional<QByteArray> contentOf(const QString &name)
{
    QFile file(name);
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.read(longestContent);
}

} // namespace

ThemeWatcher::ThemeWatcher(QObject *parent)
    : QObject(parent)
    , m_rest(this)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(restTime);
    connect(&m_rest, &QTimer::timeout, this, &ThemeWatcher::look);
    const auto wait = [this] { m_rest.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, wait);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, wait);
}

bool ThemeWatcher::canWatch(const QString &file)
{
    return !file.isEmpty() && !file.startsWith(QLatin1String(":/"))
           && !file.startsWith(QLatin1String("qrc:/"));
}

void ThemeWatcher::setFile(const QString &file)
{
    const QString watched = canWatch(file) ? file : QString();
    if (watched == m_file)
        return;
    m_rest.stop();
    const QStringList before = m_watcher.files() + m_watcher.directories();
    if (!before.isEmpty())
        m_watcher.removePaths(before);
    m_file = watched;
    m_content = contentOf(m_file).value_or(QByteArray());
    watch();
}

// The folders tell of a file that comes in the place of another one. The file itself is watched anew each time: as long
// as somebody has the one before open, that one is watched under the same name.
void ThemeWatcher::watch()
{
    if (m_file.isEmpty())
        return;
    const QFileInfo named(m_file);
    QStringList paths { named.absolutePath() };
    if (named.exists())
        paths += { QFileInfo(named.canonicalFilePath()).absolutePath(), named.absoluteFilePath() };
    paths.removeDuplicates();
    m_watcher.removePath(named.absoluteFilePath());
    const QStringList watched = m_watcher.directories();
    for (const QString &path : std::as_const(paths)) {
        if (!watched.contains(path))
            m_watcher.addPath(path);
    }
}

void ThemeWatcher::look()
{
    watch();
    const std::optional<QByteArray> content = contentOf(m_file);
    if (!content || *content == m_content)
        return;
    m_content = *content;
    Q_EMIT changed();
}

} // namespace gallery
