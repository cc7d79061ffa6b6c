// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Controls.Basic

Button {
    id: button

    property alias titleText: button.text
    property string subtitleText
    property bool focused: false
    property bool throbberVisible: false

    width: 280
    height: 60
    padding: 0
    horizontalPadding: 0
    topInset: 0
    bottomInset: 0

    background: Rectangle {
        color: !button.enabled ? "#18222e" : button.checked ? "#1c3850" : button.focused ? "#f0f4f8" : "#263445"
    }

    contentItem: ButtonContent {
        visible: !button.throbberVisible
        title: button.text
        subtitle: button.subtitleText
        ink: !button.enabled ? "#8090a0" : button.checked ? "#5cc2f2" : button.focused ? "#101820" : "white"
        dark: button.focused && !button.checked && button.enabled
    }

    Loader {
        active: button.throbberVisible
        anchors.centerIn: parent
        sourceComponent: BusyIndicator {
            padding: 0
            implicitWidth: 24
            implicitHeight: 24
        }
    }
}
