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
    if (m_target) {
        m_target->removeEventFilter(this);
        disconnect(m_target, nullptr, this, nullptr);
    }
    m_target = target;
    if (m_target) {
        m_target->installEventFilter(this);
        connect(m_target, &QQuickItem::visibleChanged, this, &OkKey::letGo);
    }
    Q_EMIT targetChanged();
}

bool OkKey::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isLetter = key->key() == Qt::Key_Space && m_key != Qt::Key_Space;
    if (!isOkKey(key->key()) || isLetter)
        return false;
    if (key->isAutoRepeat()) {
        event->accept();
        return true;
    }
    if (key->key() == m_key)
        return false;
    QKeyEvent known(key->type(), m_key, Qt::NoModifier);
    QCoreApplication::sendEvent(watched, &known);
    event->setAccepted(known.isAccepted());
    return true;
}

void OkKey::letGo()
{
    // A button lets go when the focus leaves, which it does not when it is hidden.
    if (m_target->isVisible() || !m_target->property("pressed").toBool())
        return;
    QFocusEvent event(QEvent::FocusOut, Qt::OtherFocusReason);
    QCoreApplication::sendEvent(m_target, &event);
}

} // namespace stbgeneric
