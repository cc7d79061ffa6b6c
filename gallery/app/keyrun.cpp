// SPDX-License-Identifier: MIT
#include "app/keyrun.h"

#include <QtCore/qcoreapplication.h>
#include <QtGui/qevent.h>
#include <QtQuick/qquickwindow.h>

namespace gallery {

namespace {

// A picture that does not change for the first time is taken for finished, one that still does after the second.
constexpr int restTime = 300;
constexpr int longestWait = 5000;

} // namespace

KeyRun::KeyRun(const QList<Qt::Key> &keys, QQuickWindow *window)
    : QObject(window)
    , m_keys(keys)
    , m_window(window)
{
    m_rest.setSingleShot(true);
    m_limit.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, &KeyRun::finish);
    connect(&m_limit, &QTimer::timeout, this, &KeyRun::finish);
}

void KeyRun::start()
{
    if (m_window->isActive()) {
        begin();
        return;
    }
    connect(m_window, &QWindow::activeChanged, this, &KeyRun::begin);
    // A display that gives no window the focus still gets its picture.
    QTimer::singleShot(1000, this, &KeyRun::begin);
    m_window->requestActivate();
}

void KeyRun::begin()
{
    if (m_begun)
        return;
    m_begun = true;
    // A threaded render loop emits this from its own thread.
    m_frames = connect(m_window, &QQuickWindow::frameSwapped, this, &KeyRun::next, Qt::QueuedConnection);
    m_window->update();
}

void KeyRun::next()
{
    // Frames that are told of already still come in after the connection is cut.
    if (m_finished)
        return;
    if (m_keys.isEmpty()) {
        m_rest.start(restTime);
        if (!m_limit.isActive())
            m_limit.start(longestWait);
        return;
    }
    const Qt::Key key = m_keys.takeFirst();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &release);
    m_window->update();
}

void KeyRun::finish()
{
    m_finished = true;
    m_rest.stop();
    m_limit.stop();
    disconnect(m_frames);
    Q_EMIT finished();
}

} // namespace gallery
