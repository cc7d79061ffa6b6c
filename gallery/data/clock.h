// SPDX-License-Identifier: MIT
#ifndef GALLERY_CLOCK_H
#define GALLERY_CLOCK_H

#include <QtCore/qdatetime.h>
#include <QtCore/qobject.h>
#include <QtCore/qtimer.h>

namespace gallery {

/*!
    The time that the gallery shows: the real one, renewed at the start of each minute, or a fixed one.
    It always has whole seconds and is given in local time.
*/
class Clock : public QObject
{
    Q_OBJECT
    /*! The time, to be shown as "now". */
    Q_PROPERTY(QDateTime now READ now NOTIFY nowChanged)
    /*! Whether the time stands still. */
    Q_PROPERTY(bool fixed READ isFixed NOTIFY fixedChanged)
public:
    /*! A clock that runs. */
    explicit Clock(QObject *parent = nullptr);

    QDateTime now() const { return m_now; }
    bool isFixed() const { return m_fixed; }

    /*! Stops the clock at \a now; an invalid time lets it run again. */
    void setFixed(const QDateTime &now);

    /*! Milliseconds from \a time to the next full minute: 1 to 60000. */
    static int millisecondsToNextMinute(QTime time);

Q_SIGNALS:
    void nowChanged();
    void fixedChanged();

private:
    void setNow(const QDateTime &now);
    void tick();

    QTimer m_timer;
    QDateTime m_now;
    bool m_fixed = false;
};

} // namespace gallery

#endif // GALLERY_CLOCK_H
