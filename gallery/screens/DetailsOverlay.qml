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
        height: card.height + 2 * Look.tiny

        Rectangle {
            id: card

            anchors.centerIn: parent
            width: parent.width - 2 * Look.tiny
            height: facts.height + 2 * Look.huge
            color: Look.surface
            radius: Look.radius - Look.tiny / 2

            ProgrammeFacts {
                id: facts

                anchors.centerIn: parent
                width: parent.width - 2 * Look.huge
                guide: overlay.guide
            }
        }
    }
}
