// SPDX-License-Identifier: MIT
#include "app/keyrun.h"

#include <QtCore/qcoreapplication.h>
#include <QtGui/qevent.h>
#include <QtQuick/qquickwindow.h>

namespace gallery {

KeyRun::KeyRun(const QList<Qt::Key> &keys, QQuickWindow *window)
    : QObject(window)
    , m_keys(keys)
    , m_window(window)
{
}

void KeyRun::start()
{
    // A threaded render loop emits this from its own thread.
    connect(m_window, &QQuickWindow::frameSwapped, this, &KeyRun::next, Qt::QueuedConnection);
    m_window->update();
}

void KeyRun::next()
{
    if (m_keys.isEmpty()) {
        disconnect(m_window, nullptr, this, nullptr);
        Q_EMIT finished();
        return;
    }
    const Qt::Key key = m_keys.takeFirst();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &release);
    m_window->update();
}

} // namespace gallery
