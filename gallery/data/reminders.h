// SPDX-License-Identifier: MIT
#ifndef GALLERY_REMINDERS_H
#define GALLERY_REMINDERS_H

#include <QtCore/qdatetime.h>
#include <QtCore/qlist.h>
#include <QtCore/qobject.h>
#include <QtCore/qstringlist.h>

namespace gallery {

/*! A programme that the viewer wants to be reminded of. */
struct Reminder
{
    /*! The channel's id in the guide; never empty. */
    QString channelId;
    /*! When the programme starts, in seconds since 1970-01-01 00:00 UTC. */
    qint64 start = 0;
    /*!
        The programme's title when the reminder was set. It only tells programmes of one channel that start together
        from each other: another language, or a newer guide, may call the programme something else.
    */
    QString title;

    friend bool operator==(const Reminder &, const Reminder &) = default;
};

/*!
    The reminders, kept in a JSON file. The file is read when the object is made and written, as a whole or not at
    all, at each change. Only one object at a time may use a file.

    A file that cannot be used gives no reminders and one message. It is never overwritten: a damaged one is renamed
    (".broken" is added, with a number if there is such a file), and where that does not work, or where something that
    is no ordinary file has the name, reminders are kept in memory only.
*/
class Reminders : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY changed)
    /*! Why the file could not be read, or last not be written, as one line that names it; else empty. */
    Q_PROPERTY(QString error READ error NOTIFY errorChanged)
public:
    /*! The most reminders that are kept. */
    static constexpr int maximumReminders = 1000;
    /*! The most characters of an id or a title; longer titles are cut, also when they are looked for. */
    static constexpr int longestText = 500;

    /*! \a fileName is in the user's data folder; the folder is made when it is needed. Empty: nothing is stored. */
    explicit Reminders(const QString &fileName, QObject *parent = nullptr);

    int count() const { return int(m_reminders.size()); }
    QString error() const { return m_error; }
    /*! All reminders, the next one first. */
    QList<Reminder> reminders() const { return m_reminders; }

    /*! The titles of the reminders of what starts at \a start, in any time zone, on the channel; sorted. */
    QStringList titlesAt(const QString &channelId, const QDateTime &start) const;
    /*! Whether there is a reminder; \a start may be in any time zone. */
    Q_INVOKABLE bool contains(const QString &channelId, const QDateTime &start, const QString &title) const;
    /*!
        Adds a reminder. Returns false when nothing changes: it is there already, there are too many, the id is empty
        or too long, or the start is invalid or not in the years 1 to 9999. True also when it could not be stored,
        which error() tells.
    */
    Q_INVOKABLE bool add(const QString &channelId, const QDateTime &start, const QString &title);
    /*! Removes a reminder; false when there is none. */
    Q_INVOKABLE bool remove(const QString &channelId, const QDateTime &start, const QString &title);
    /*! Drops the reminders of programmes that have started at \a now; an invalid time drops none. */
    Q_INVOKABLE void dropExpired(const QDateTime &now);

Q_SIGNALS:
    /*! There are other reminders than before. */
    void changed();
    void errorChanged();

private:
    void load();
    QString read();
    QString keepAside();
    void store();
    QString write() const;
    void setError(const QString &error);

    QString m_fileName;
    QList<Reminder> m_reminders; // sorted
    QString m_error;
    bool m_writable = true;
};

} // namespace gallery

#endif // GALLERY_REMINDERS_H
