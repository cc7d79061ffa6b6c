// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The chosen programme, large, over the dimmed screen.
Item {
    id: overlay

    required property GuideController guide

    Rectangle {
        anchors.fill: parent
        color: Look.backdrop
        opacity: 0.85
    }
    FocusPlate {
        anchors.centerIn: parent
        width: Math.min(Math.round(860 * Look.unit), parent.width - 2 * Look.safeX)
        height: Math.min(Math.round(480 * Look.unit), parent.height - 2 * Look.safeY)

        Rectangle {
            anchors.fill: parent
            anchors.margins: Look.tiny
            color: Look.surface
            radius: Look.radius - Look.tiny / 2

            ProgrammeFacts {
                anchors.fill: parent
                anchors.margins: Look.huge
                guide: overlay.guide
                titleFont: Look.headline
            }
        }
    }
}
