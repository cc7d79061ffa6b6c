// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_TEXTKEYS_H
#define STBGENERIC_TEXTKEYS_H

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>

namespace stbgeneric {

/*!
    What the keys of an on-screen keyboard do to a text input, which need not have the focus. Everything goes
    through the input's own event handlers, as if it came from an input method or a real keyboard: a selection is
    replaced, the maximum length, a validator and "read only" hold, a backspace takes a whole character, and left
    and right are those of the screen in right-to-left text too. Without an item nothing happens.
*/
class TextKeys : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    Q_INVOKABLE void insert(QQuickItem *input, const QString &text) const;
    Q_INVOKABLE void backspace(QQuickItem *input) const;
    Q_INVOKABLE void left(QQuickItem *input) const;
    Q_INVOKABLE void right(QQuickItem *input) const;
};

} // namespace stbgeneric

#endif // STBGENERIC_TEXTKEYS_H
