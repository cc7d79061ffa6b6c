// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// What can be done with what is watched, or with the programme that is chosen.
Item {
    id: buttons

    required property PlayerController player
    readonly property bool active: player.area === PlayerController.Buttons

    height: row.height

    Flow {
        id: row

        anchors.left: parent.left
        anchors.right: parent.right

        CheckableButton {
            objectName: "button"
            titleText: qsTr("Pause")
            focused: buttons.active && buttons.player.button === PlayerController.PauseButton
            checked: buttons.player.paused
        }
        CheckableButton {
            objectName: "button"
            visible: buttons.player.canStartOver
            titleText: qsTr("From the start")
            checkable: false
            focused: buttons.active && buttons.player.button === PlayerController.StartOverButton
        }
        CheckableButton {
            objectName: "button"
            titleText: qsTr("Live")
            focused: buttons.active && buttons.player.button === PlayerController.LiveButton
            checked: buttons.player.live
        }
        CheckableButton {
            objectName: "button"
            titleText: qsTr("Favourite")
            focused: buttons.active && buttons.player.button === PlayerController.FavouriteButton
            checked: buttons.player.favourite
        }
        CheckableButton {
            objectName: "button"
            titleText: qsTr("TV guide")
            checkable: false
            focused: buttons.active && buttons.player.button === PlayerController.GuideButton
        }
    }
}
