// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Generic

// An on-screen keyboard for a remote control: letters of four languages, digits, symbols, shift, caps lock, ends of
// addresses, backspace and cursor keys. What is typed goes to "target" when there is one; the signals tell it in
// any case. All other properties are those of KeyboardPad, in keyboardpad.h.
//
// It consists of one item for each key, 56 in all, and one for each icon.
KeyboardPad {
    id: control

    // The line of text to write into. It keeps its cursor shown while the keyboard has the focus.
    property LineEdit target

    edited: target

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Keyboard")

    onTextEntered: text => control.target?.insertText(text)
    onBackspacePressed: control.target?.backspace()
    onCursorLeftPressed: control.target?.moveCursorLeft()
    onCursorRightPressed: control.target?.moveCursorRight()

    Repeater {
        model: control.keyCount
        delegate: KeyboardKey {
            id: key

            required index

            Accessible.role: Accessible.Button
            Accessible.name: key.name
            Accessible.focusable: true
            Accessible.focused: key.activeFocus
            Accessible.checkable: key.toggle
            Accessible.checked: key.on
            Accessible.onPressAction: key.press()
        }
    }
}
