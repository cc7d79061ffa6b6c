// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// Shown while the guide's file is being read.
Item {
    id: view

    // 0 to 1.
    required property real progress

    Column {
        anchors.centerIn: parent
        spacing: Look.large

        Label {
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
