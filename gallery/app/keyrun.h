// SPDX-License-Identifier: MIT
#ifndef GALLERY_APP_KEYRUN_H
#define GALLERY_APP_KEYRUN_H

#include <QtCore/qelapsedtimer.h>
#include <QtCore/qlist.h>
#include <QtCore/qobject.h>
#include <QtCore/qtimer.h>

#include <functional>

class QQuickWindow;

namespace gallery {

/*!
    Presses remote keys in a window as a person would: one after the other, each when the picture that the one
    before has led to is on screen.
*/
class KeyRun : public QObject
{
    Q_OBJECT
public:
    /*!
        Presses \a keys in \a window, which is visible or about to be. Lives as a child of the window. As long as
        \a isBusy says so, the picture is still to change, though nothing is seen of it.
    */
    KeyRun(const QList<Qt::Key> &keys, QQuickWindow *window, const std::function<bool()> &isBusy = {});

    /*! Begins as soon as the window is the active one, which is when keys have somebody to go to. */
    void start();

Q_SIGNALS:
    /*!
        All keys are handled, and the picture that came of them has been rendered and does not change any more:
        the pictures of tiles come in from other threads. A picture that always moves counts after a while.
    */
    void finished();

private:
    void begin();
    void next();
    void rest();
    void finishUnlessBusy();
    void finish();

    QList<Qt::Key> m_keys;
    QQuickWindow *m_window;
    std::function<bool()> m_isBusy;
    QMetaObject::Connection m_frames;
    QTimer m_rest;
    QTimer m_limit;
    QElapsedTimer m_waiting; // since all keys are pressed
    bool m_begun = false;
    bool m_finished = false;
};

} // namespace gallery

#endif // GALLERY_APP_KEYRUN_H
