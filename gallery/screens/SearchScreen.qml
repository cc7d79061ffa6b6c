// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Gallery

// A keyboard, what is typed on it, and what is found for that: beside the keyboard, or below it on a narrow screen.
FocusScope {
    id: screen

    required property SearchController search
    required property GuideController guide
    // Nothing is told of a cursor that has not its place yet, nor of a keyboard that is not as it was.
    property bool completed: false
    // Two tiles are side by side.
    readonly property int resultsWidth: Look.wide ? results.leftMargin + 2 * results.itemWidth
                                                    + results.horizontalSpacing + results.rightMargin
                                                  : header.width + results.growth
    readonly property int keyboardWidth: Look.wide ? header.width - resultsWidth - Look.medium : header.width
    readonly property int keySpacing: Look.wide ? Look.small : Look.tiny

    focus: true
    Keys.onPressed: event => event.accepted = search.press(event.key, event.text, event.modifiers)
    Component.onCompleted: {
        edit.cursorPosition = search.cursor
        completed = true
    }

    Binding {
        screen.search.resultsBelow: !Look.wide
        screen.search.keyEdges: keyboard.currentEdges
    }
    Rectangle {
        anchors.fill: parent
        color: Look.backdrop
    }
    ScreenHeader {
        id: header

        anchors.top: parent.top
        anchors.topMargin: Look.safeY
        anchors.left: parent.left
        anchors.leftMargin: Look.safeX
        anchors.right: parent.right
        anchors.rightMargin: Look.safeX
        title: qsTr("Search")
        dayText: screen.guide.dayText
        shortDayText: screen.guide.shortDayText
        clockText: screen.guide.clockText
    }
    LineEdit {
        id: edit

        objectName: "searchText"
        anchors.top: header.bottom
        anchors.topMargin: Look.small
        anchors.left: header.left
        width: keyboard.width
        maximumLength: screen.search.maximumLength
        placeholderText: qsTr("Programmes, films, series")
        text: screen.search.text
        onTextChanged: screen.search.text = text
        onCursorPositionChanged: if (screen.completed) screen.search.cursor = cursorPosition
    }
    Connections {
        target: screen.search
        function onCursorChanged() {
            edit.cursorPosition = screen.search.cursor
        }
    }
    Keyboard {
        id: keyboard

        objectName: "searchKeyboard"
        anchors.top: edit.bottom
        anchors.topMargin: Look.small
        anchors.left: header.left
        focus: !screen.search.inResults
        target: edit
        rowSpacing: screen.keySpacing
        columnSpacing: screen.keySpacing
        // Thirteen stand side by side.
        keyWidth: Math.floor((screen.keyboardWidth + screen.keySpacing) / 13) - screen.keySpacing
        keyHeight: Look.wide ? Math.round(60 * Look.unit) : 32
        openEdges: screen.search.openEdges
        currentKey: screen.search.keyboardKey
        onCurrentKeyChanged: screen.search.keyboardKey = currentKey
        language: screen.search.keyboardLanguage
        shift: screen.search.keyboardShift
        capsLock: screen.search.keyboardCapsLock
        symbols: screen.search.keyboardSymbols
        // All of it changes with one signal, and is kept at once: in parts, the next part would be as it was before.
        onLanguageChanged: if (screen.completed) screen.search.keepKeyboard(language, shift, capsLock, symbols)
    }
    SearchResults {
        id: results

        anchors.top: Look.wide ? header.bottom : keyboard.bottom
        anchors.topMargin: Look.small - (Look.wide ? growth - Look.frame : 0)
        anchors.right: header.right
        width: screen.resultsWidth
        room: (Look.wide ? screen.height - Look.safeY : facts.y) - y
        search: screen.search
    }
    Label {
        anchors.centerIn: results
        width: results.width - 2 * Look.large
        visible: text.length > 0
        text: screen.search.message
        color: Look.quietText
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        maximumLineCount: 3
    }
    // A tile has no room for all of a title and a day.
    SearchFacts {
        id: facts

        objectName: "searchFacts"
        y: Look.wide ? keyboard.y + keyboard.height + Look.medium : footer.y - Look.tiny - height
        anchors.left: keyboard.left
        width: keyboard.width
        search: screen.search
    }
    SearchHints {
        id: footer

        anchors.bottom: parent.bottom
        anchors.bottomMargin: Look.safeY
        anchors.left: keyboard.left
        width: keyboard.width
        search: screen.search
    }
}
