// SPDX-License-Identifier: MIT
#include "app/keyrun.h"

#include <QtCore/qcoreapplication.h>
#include <QtGui/qevent.h>
#include <QtQuick/qquickwindow.h>

namespace gallery {

namespace {

// A picture that does not change for the first time is taken for finished, one that always moves after the second, and
// one whose pictures do not come after the third.
constexpr int restTime = 100;
constexpr int movingTime = 1500;
constexpr int longestWait = 6000;

} // namespace

KeyRun::KeyRun(const QList<Qt::Key> &keys, QQuickWindow *window, const std::function<bool()> &isBusy)
    : QObject(window)
    , m_keys(keys)
    , m_window(window)
    , m_isBusy(isBusy)
{
    m_rest.setSingleShot(true);
    m_limit.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, &KeyRun::finishUnlessBusy);
    connect(&m_limit, &QTimer::timeout, this, &KeyRun::finishUnlessBusy);
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
        rest();
        return;
    }
    const Qt::Key key = m_keys.takeFirst();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &release);
    m_window->update();
}

void KeyRun::rest()
{
    m_rest.start(restTime);
    if (m_limit.isActive())
        return;
    m_limit.start(movingTime);
    if (!m_waiting.isValid())
        m_waiting.start();
}

void KeyRun::finishUnlessBusy()
{
    if (m_isBusy && m_isBusy() && !m_waiting.hasExpired(longestWait))
        rest();
    else
        finish();
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
