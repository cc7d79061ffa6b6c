// SPDX-License-Identifier: MIT
#include "pressable.h"

#include "okkey.h"

#include <QtGui/qevent.h>

namespace stbgeneric {

Pressable::Pressable(QQuickItem *parent)
    : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
}

void Pressable::click()
{
    if (isEnabled() && isVisible())
        Q_EMIT clicked();
}

void Pressable::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(isOkKey(event->key()));
    if (event->isAccepted() && !event->isAutoRepeat())
        setPressed(true);
}

void Pressable::keyReleaseEvent(QKeyEvent *event)
{
    event->setAccepted(isOkKey(event->key()));
    if (event->isAccepted() && !event->isAutoRepeat())
        release();
}

void Pressable::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    forceActiveFocus(Qt::MouseFocusReason);
    setPressed(true);
}

void Pressable::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    if (contains(event->position()))
        release();
    else
        setPressed(false);
}

void Pressable::mouseUngrabEvent()
{
    setPressed(false);
}

void Pressable::focusOutEvent(QFocusEvent *event)
{
    QQuickItem::focusOutEvent(event);
    setPressed(false);
}

void Pressable::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if ((change == ItemEnabledHasChanged || change == ItemVisibleHasChanged) && !data.boolValue)
        setPressed(false);
}

void Pressable::setPressed(bool pressed)
{
    if (pressed == m_pressed)
        return;
    m_pressed = pressed;
    Q_EMIT pressedChanged();
}

void Pressable::release()
{
    if (!m_pressed)
        return;
    setPressed(false);
    Q_EMIT clicked();
}

} // namespace stbgeneric
