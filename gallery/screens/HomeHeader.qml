// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The main menu, and the time. What is at the edge of the menu fades into the ground, which is plain up here.
Item {
    id: header

    required property MainMenuController menu
    // Whether keys act on the menu.
    required property bool active
    required property string clockText
    // Asked of the user, in the place of the menu's end.
    property string question

    implicitHeight: entries.implicitHeight

    Rectangle {
        id: ground

        x: -header.x
        y: -header.y
        width: Look.screenWidth
        height: header.y + header.height + Look.small
        color: Look.backdrop
    }
    EdgeFade {
        anchors.top: ground.bottom
        anchors.left: ground.left
        width: ground.width
    }
    MainMenu {
        id: entries

        anchors.left: parent.left
        anchors.right: asked.visible ? asked.left : clock.left
        anchors.rightMargin: Look.medium
        menu: header.menu
        active: header.active
    }
    Label {
        id: asked

        anchors.right: clock.left
        anchors.rightMargin: Look.large
        anchors.verticalCenter: parent.verticalCenter
        visible: header.question.length > 0
        text: header.question
        font: Look.caption
        color: Look.quietText
    }
    Label {
        id: clock

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: header.clockText
        font: Look.heading
    }
}
