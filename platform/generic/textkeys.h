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
    and right are those of the screen in right-to-left text too. Without an item, and with one that is disabled,
    nothing happens.
*/
class TextKeys : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /*!
        Writes \a text where the cursor is: line breaks and other control characters as spaces, and of one that is
        longer than the maximum length allows, as many whole characters as fit.
    */
    Q_INVOKABLE void insert(QQuickItem *input, const QString &text) const;
    Q_INVOKABLE void backspace(QQuickItem *input) const;
    Q_INVOKABLE void left(QQuickItem *input) const;
    Q_INVOKABLE void right(QQuickItem *input) const;

    /*!
        Tells the input that nobody writes into it any more: a password that is shown while it is written is hidden.
        Qt does that when the focus leaves, which it has never had. With the focus in the input nothing happens.
    */
    Q_INVOKABLE void endEditing(QQuickItem *input) const;
    /*! Whether \a text runs from right to left: as its first letter does, and as \a otherwise says without any. */
    Q_INVOKABLE static bool runsToTheLeft(const QString &text, bool otherwise);
};

} // namespace stbgeneric

#endif // STBGENERIC_TEXTKEYS_H
