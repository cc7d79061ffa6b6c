// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Generic

// A line of text input. A real keyboard writes while it has the focus, an on-screen keyboard through its
// functions, with the focus elsewhere; "editing" then shows the cursor and the focused colours all the same.
// Return, Enter and Select emit accepted(), once when held; left and right leave it at the ends of the text. Lengths
// are pixels.
FocusScope {
    id: control

    property alias text: input.text
    property alias displayText: input.displayText
    property alias length: input.length
    property alias maximumLength: input.maximumLength
    property alias cursorPosition: input.cursorPosition
    property alias selectedText: input.selectedText
    property alias echoMode: input.echoMode // TextInput.Password for passwords
    property alias passwordCharacter: input.passwordCharacter
    property alias passwordMaskDelay: input.passwordMaskDelay
    property alias validator: input.validator
    property alias inputMask: input.inputMask
    property alias inputMethodHints: input.inputMethodHints
    property alias acceptableInput: input.acceptableInput
    property alias readOnly: input.readOnly
    property string placeholderText
    property bool editing: false // an on-screen keyboard writes here
    property bool error: false // shows the error frame

    property real roundingRadius: 0
    property list<color> backgroundColors: ["white"] // here and below: normal, checked, disabled, focused
    property list<color> textColors: ["black"]
    property list<color> placeholderTextColors: ["gray"]
    property real errorFrameWidth: 1
    property color errorFrameColor: "red"
    property alias font: input.font
    property real leftPadding: 0
    property real topPadding: 0
    property real rightPadding: 0
    property real bottomPadding: 0
    property real cursorWidth: 1

    readonly property bool focusShown: activeFocus || editing
    readonly property string spokenName: placeholderText !== "" ? placeholderText : qsTr("Text field")

    signal accepted
    signal textEdited

    function insertText(text: string) {
        TextKeys.insert(input, text)
    }
    function backspace() {
        TextKeys.backspace(input)
    }
    function moveCursorLeft() {
        TextKeys.left(input)
    }
    function moveCursorRight() {
        TextKeys.right(input)
    }
    function clear() {
        input.clear()
    }
    function selectAll() {
        input.selectAll()
    }

    onEditingChanged: if (!editing) TextKeys.endEditing(input)

    implicitWidth: leftPadding + Math.max(input.implicitWidth, placeholder.implicitWidth) + rightPadding
    implicitHeight: topPadding + Math.max(input.implicitHeight, placeholder.implicitHeight) + bottomPadding

    OkKey {
        target: input
        key: Qt.Key_Return
    }
    Rectangle {
        anchors.fill: parent
        radius: control.roundingRadius
        color: ColorsByState.ofControl(control.backgroundColors, control.enabled, false, control.focusShown)
        border.width: control.error ? control.errorFrameWidth : 0
        border.color: control.errorFrameColor
    }
    Text {
        id: placeholder

        anchors.fill: input
        // The cursor stands before the text, as far from it as it is wide.
        leftPadding: effectiveHorizontalAlignment === Text.AlignLeft ? 2 * control.cursorWidth : 0
        rightPadding: effectiveHorizontalAlignment === Text.AlignRight ? 2 * control.cursorWidth : 0
        visible: !input.length && !input.preeditText
        text: control.placeholderText
        textFormat: Text.PlainText
        font: input.font
        color: ColorsByState.ofControl(control.placeholderTextColors, control.enabled, false,
                                       control.focusShown)
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }
    TextInput {
        id: input

        anchors.fill: parent
        anchors.leftMargin: control.leftPadding
        anchors.topMargin: control.topPadding
        anchors.rightMargin: control.rightPadding
        anchors.bottomMargin: control.bottomPadding
        focus: true
        clip: true
        // By itself it asks the system's keyboard where a text without letters begins. A mirrored layout turns it over.
        horizontalAlignment: TextKeys.runsToTheLeft(displayText, input.LayoutMirroring.enabled)
                             === input.LayoutMirroring.enabled ? TextInput.AlignLeft : TextInput.AlignRight
        verticalAlignment: TextInput.AlignVCenter
        color: ColorsByState.ofControl(control.textColors, control.enabled, false, control.focusShown)
        selectionColor: color
        selectedTextColor: ColorsByState.ofControl(control.backgroundColors, control.enabled, false,
                                                   control.focusShown)
        cursorDelegate: Item {} // below is one that stands still and may lie in the right padding

        Accessible.role: Accessible.EditableText
        Accessible.name: control.spokenName
        Accessible.description: control.spokenName // Qt tells no name of a password's input
        Accessible.passwordEdit: echoMode !== TextInput.Normal
        Accessible.readOnly: readOnly

        onAccepted: control.accepted()
        onTextEdited: control.textEdited()
    }
    Rectangle {
        x: input.x + Math.round(input.cursorRectangle.x)
        y: input.y + input.cursorRectangle.y
        width: control.cursorWidth
        height: input.cursorRectangle.height
        visible: control.focusShown && control.enabled && !input.readOnly
        color: input.color
    }
}
