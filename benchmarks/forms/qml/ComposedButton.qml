// SPDX-License-Identifier: MIT
import QtQuick

Rectangle {
    id: button

    property string titleText
    property string subtitleText
    property bool focused: false
    property bool checked: false
    property bool throbberVisible: false
    readonly property color ink: !enabled ? "#8090a0" : checked ? "#5cc2f2" : focused ? "#101820" : "white"

    width: 280
    height: 60
    color: !enabled ? "#18222e" : checked ? "#1c3850" : focused ? "#f0f4f8" : "#263445"

    ButtonContent {
        anchors.fill: parent
        visible: !button.throbberVisible
        title: button.titleText
        subtitle: button.subtitleText
        ink: button.ink
        dark: button.focused && !button.checked && button.enabled
    }

    Loader {
        active: button.throbberVisible
        anchors.centerIn: parent
        sourceComponent: Image {
            source: "qrc:/forms/pictures/throbber.png"

            NumberAnimation on rotation {
                from: 0
                to: 360
                duration: 1200
                loops: Animation.Infinite
            }
        }
    }
}
