// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// What is watched, and how much of it is over.
Column {
    id: status

    required property PlayerController player

    spacing: Look.tiny

    Label {
        objectName: "watched"
        width: parent.width
        text: status.player.title
        font: Look.headline
    }
    Label {
        width: parent.width
        text: status.player.facts
        font: Look.caption
    }
    Item {
        width: parent.width
        height: start.height
        visible: status.player.title.length > 0

        Label {
            id: start

            anchors.left: parent.left
            text: status.player.startText
            font: Look.caption
        }
        ProgressLine {
            anchors.left: start.right
            anchors.right: stop.left
            anchors.leftMargin: Look.medium
            anchors.rightMargin: Look.medium
            anchors.verticalCenter: parent.verticalCenter
            progress: status.player.progress
        }
        Label {
            id: stop

            anchors.right: parent.right
            text: status.player.stopText
            font: Look.caption
        }
    }
}
