// SPDX-License-Identifier: MIT
import QtQuick

Item {
    id: tile

    property url imageSource
    property rect customFocusRect: Qt.rect(0, 0, 270, 152)

    width: 270
    height: 152
    states: State {
        name: "focused"

        PropertyChanges {
            target: tile
            customFocusRect: Qt.rect(-8, -5, 286, 162)
        }
    }
    transitions: Transition {
        PropertyAnimation {
            property: "customFocusRect"
            duration: 200
        }
    }

    Rectangle {
        x: Math.round(tile.customFocusRect.x)
        y: Math.round(tile.customFocusRect.y)
        width: Math.round(tile.customFocusRect.width)
        height: Math.round(tile.customFocusRect.height)
        color: "#263445"

        Image {
            anchors.fill: parent
            asynchronous: true
            source: tile.imageSource
        }
    }
}
