// SPDX-License-Identifier: MIT
#ifndef GALLERY_APP_THEMEWATCHER_H
#define GALLERY_APP_THEMEWATCHER_H

#include <QtCore/qbytearray.h>
#include <QtCore/qfilesystemwatcher.h>
#include <QtCore/qobject.h>
#include <QtCore/qtimer.h>

namespace gallery {

/*!
    Tells when the content of a file changes, also when an editor writes another file and gives it the name, and when
    the name is a link. A file that has gone is no change until it is there again.
*/
class ThemeWatcher : public QObject
{
    Q_OBJECT
public:
    /*! How long a file must rest before it is read, in milliseconds: editors write in several steps. */
    static constexpr int restTime = 100;

    explicit ThemeWatcher(QObject *parent = nullptr);

    /*! False for an empty name and for a compiled-in file, which never change. */
    static bool canWatch(const QString &file);

    QString file() const { return m_file; }
    /*! Watches \a file in place of the one before. One that cannot be watched: nothing is. */
    void setFile(const QString &file);

Q_SIGNALS:
    /*! The file has another content than when it was last told of. */
    void changed();

private:
    void watch();
    void look();

    QFileSystemWatcher m_watcher;
    QTimer m_rest;
    QString m_file;
    QByteArray m_content;
};

} // namespace gallery

#endif // GALLERY_APP_THEMEWATCHER_H
