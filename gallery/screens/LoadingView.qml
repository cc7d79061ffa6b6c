// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// Shown while the guide's file is being read.
Item {
    id: view

    // 0 to 1.
    required property real progress

    Accessible.role: Accessible.ProgressBar
    Accessible.name: message.text
    Accessible.description: Math.round(progress * 100) + "%"
    Column {
        anchors.centerIn: parent
        spacing: Look.large

        Label {
            id: message

            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Reading the guide…")
            font: Look.heading
        }
        ProgressLine {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.round(480 * Look.unit)
            progress: view.progress
        }
    }
}
