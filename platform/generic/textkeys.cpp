// SPDX-License-Identifier: MIT
#include "textkeys.h"

#include <QtCore/qcoreapplication.h>
#include <QtGui/qevent.h>

namespace stbgeneric {

namespace {

void strike(QQuickItem *input, Qt::Key key)
{
    if (!input)
        return;
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(input, &event);
}

} // namespace

void TextKeys::insert(QQuickItem *input, const QString &text) const
{
    // Qt asks an input method not to write where it may not, and takes what it writes all the same.
    if (!input || text.isEmpty() || input->property("readOnly").toBool())
        return;
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(input, &event);
}

void TextKeys::backspace(QQuickItem *input) const
{
    strike(input, Qt::Key_Backspace);
}

void TextKeys::left(QQuickItem *input) const
{
    strike(input, Qt::Key_Left);
}

void TextKeys::right(QQuickItem *input) const
{
    strike(input, Qt::Key_Right);
}

} // namespace stbgeneric
