// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// A thin bar, filled from the side where reading starts.
Rectangle {
    id: line

    // 0 to 1.
    required property real progress
    property color fill: Look.accent

    height: Look.barHeight
    color: Look.track

    Rectangle {
        anchors.left: parent.left
        width: Math.round(parent.width * line.progress)
        height: parent.height
        color: line.fill
    }
}
