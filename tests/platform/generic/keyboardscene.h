// SPDX-License-Identifier: MIT
#ifndef TESTS_PLATFORM_GENERIC_KEYBOARDSCENE_H
#define TESTS_PLATFORM_GENERIC_KEYBOARDSCENE_H

#include "generic/keyboardkey.h"
#include "generic/keyboardpad.h"
#include "viewscene.h"

#include <QtTest/qsignalspy.h>

namespace keyboard {

using namespace Qt::StringLiterals;
using stbgeneric::KeyboardKey;
using stbgeneric::KeyboardPad;

inline constexpr int firstLetter = 12; // "q"
inline constexpr int backspace = 11;
inline constexpr int capsLock = 23;
inline constexpr int shift = 35;
inline constexpr int page = 47;
inline constexpr int language = 48;
inline constexpr int domain = 49;
inline constexpr int space = 51;
inline constexpr int cursorLeft = 54;
inline constexpr int cursorRight = 55;

struct KeyboardScene : stbtest::ViewScene
{
    /*! A keyboard with these \a properties, which has the focus. */
    bool showKeyboard(const QString &properties = {})
    {
        return show(u"Keyboard { focus: true; "_s + properties + u"}"_s);
    }

    KeyboardPad *pad() const { return qobject_cast<KeyboardPad *>(item.get()); }

    KeyboardKey *key(int index) const
    {
        const QList<QQuickItem *> children = item->childItems();
        for (QQuickItem *child : children) {
            auto *key = qobject_cast<KeyboardKey *>(child);
            if (key && key->index() == index)
                return key;
        }
        return nullptr;
    }

    /*! A line of text above a keyboard that writes into it. */
    bool showLineAndKeyboard(const QString &text)
    {
        return show(u"FocusScope { focus: true\n"
                    "property alias line: line\n"
                    "property alias keyboard: keyboard\n"
                    "LineEdit { id: line; width: 400; height: 40; text: '"_s
                    + text
                    + u"' }\n"
                      "Keyboard { id: keyboard; y: 50; focus: true; target: line }\n"
                      "Item { id: other; objectName: 'other'; width: 9; height: 9 } }"_s);
    }
    QObject *line() const { return item->property("line").value<QObject *>(); }
    KeyboardPad *keyboard() const { return item->property("keyboard").value<KeyboardPad *>(); }
};

inline QStringList texts(const QSignalSpy &spy)
{
    QStringList result;
    for (const QList<QVariant> &arguments : spy)
        result.append(arguments.at(0).toString());
    return result;
}

} // namespace keyboard

#endif // TESTS_PLATFORM_GENERIC_KEYBOARDSCENE_H
