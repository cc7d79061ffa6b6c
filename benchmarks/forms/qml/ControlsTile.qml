// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Controls.Basic

ItemDelegate {
    id: tile

    property url imageSource
    property rect customFocusRect: Qt.rect(0, 0, 270, 152)

    width: 270
    height: 152
    leftPadding: Math.round(customFocusRect.x)
    topPadding: Math.round(customFocusRect.y)
    rightPadding: width - Math.round(customFocusRect.right)
    bottomPadding: height - Math.round(customFocusRect.bottom)
    leftInset: leftPadding
    topInset: topPadding
    rightInset: rightPadding
    bottomInset: bottomPadding
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

    background: Rectangle {
        color: "#263445"
    }

    contentItem: Image {
        asynchronous: true
        source: tile.imageSource
    }
}
