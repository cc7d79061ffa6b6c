// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// A key of the remote control, and what it does here.
Row {
    id: hint

    required property string key
    required property string text

    spacing: Look.small

    Rectangle {
        width: keyLabel.width + 2 * Look.small
        height: keyLabel.height + Look.tiny
        color: Look.raised
        radius: Look.smallRadius

        Label {
            id: keyLabel

            anchors.centerIn: parent
            text: hint.key
            font: Look.keyHint
        }
    }
    Label {
        anchors.verticalCenter: parent.verticalCenter
        text: hint.text
        font: Look.keyHint
        color: Look.quietText
    }
}
