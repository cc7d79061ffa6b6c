// SPDX-License-Identifier: MIT
#include "okkey.h"

#include <QtCore/qcoreapplication.h>
#include <QtGui/qevent.h>

namespace stbgeneric {

bool isOkKey(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Select || key == Qt::Key_Space;
}

void OkKey::setTarget(QQuickItem *target)
{
    if (target == m_target)
        return;
    if (m_target)
        m_target->removeEventFilter(this);
    m_target = target;
    if (m_target)
        m_target->installEventFilter(this);
    Q_EMIT targetChanged();
}

bool OkKey::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    if (!isOkKey(key->key()))
        return false;
    if (key->isAutoRepeat()) {
        event->accept();
        return true;
    }
    if (key->key() == Qt::Key_Space)
        return false;
    QKeyEvent space(key->type(), Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(watched, &space);
    event->setAccepted(space.isAccepted());
    return true;
}

} // namespace stbgeneric
