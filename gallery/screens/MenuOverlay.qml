// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The main menu over a screen, which stays as it is meanwhile and is seen as through a veil.
SlidingPanel {
    id: overlay

    required property MainMenuController menu
    required property string clockText

    objectName: "menuOverlay"
    Keys.onPressed: event => event.accepted = menu.press(event.key)

    Rectangle {
        anchors.fill: parent
        color: Look.badge
        opacity: overlay.progress
    }
    // From above.
    HomeHeader {
        id: header

        objectName: "menuPanel"
        y: Look.safeY - Math.round((1 - overlay.progress) * (Look.safeY + height + Look.huge))
        anchors.left: parent.left
        anchors.leftMargin: Look.safeX
        anchors.right: parent.right
        anchors.rightMargin: Look.safeX
        menu: overlay.menu
        active: true
        clockText: overlay.clockText
    }
}
