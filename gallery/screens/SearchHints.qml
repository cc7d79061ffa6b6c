// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// What the keys do where the focus is, or why a channel is not played.
Item {
    id: hints

    required property SearchController search

    height: keys.height

    Label {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        visible: text.length > 0
        text: hints.search.notice
        font: Look.hint
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
    Column {
        id: keys

        anchors.right: parent.right
        visible: hints.search.notice.length === 0
        spacing: Look.small

        // Beside the others there is no room for it in every language.
        KeyHint {
            anchors.right: parent.right
            visible: Look.wide && hints.search.inResults
            key: qsTr("YELLOW", "a key of the remote control")
            text: hints.search.ofChannel ? qsTr("Favourite channel") : qsTr("Favourite")
        }
        Row {
            anchors.right: parent.right
            spacing: Look.large

            KeyHint {
                visible: hints.search.inResults
                key: qsTr("OK", "a key of the remote control")
                text: qsTr("Details")
            }
            // Where no arrow leads there, a shortcut does.
            KeyHint {
                visible: !hints.search.inResults && hints.search.openEdges !== 0
                key: hints.search.resultsArrow.length > 0 ? hints.search.resultsArrow
                                                          : qsTr("CH −", "a key of the remote control")
                text: qsTr("Results")
            }
            KeyHint {
                key: qsTr("BACK", "a key of the remote control")
                text: hints.search.inResults ? qsTr("Keyboard") : qsTr("Leave")
            }
        }
    }
}
