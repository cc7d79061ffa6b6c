// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Gallery

// Groups of settings, and beside them, or in their place on a narrow screen, the settings of one group.
FocusScope {
    id: screen

    required property SettingsController settings
    required property GuideController guide

    focus: true
    Keys.onPressed: event => event.accepted = settings.press(event.key)

    Rectangle {
        anchors.fill: parent
        color: Look.backdrop
    }
    ScreenHeader {
        id: header

        anchors.top: parent.top
        anchors.topMargin: Look.safeY
        anchors.left: parent.left
        anchors.leftMargin: Look.safeX
        anchors.right: parent.right
        anchors.rightMargin: Look.safeX
        title: values.visible && !groups.visible ? screen.settings.groupTitle : qsTr("Settings")
        dayText: screen.guide.dayText
        shortDayText: screen.guide.shortDayText
        clockText: screen.guide.clockText
    }
    Column {
        id: groups

        anchors.top: header.bottom
        anchors.topMargin: Look.large
        anchors.left: header.left
        width: Look.wide ? Math.round(0.28 * header.width) : header.width
        visible: Look.wide || !screen.settings.inValues
        spacing: Look.small

        Repeater {
            model: screen.settings.groups

            // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
            // qmllint disable unqualified
            TabButton {
                required property int index
                required property string modelData

                objectName: "group"
                width: groups.width
                text: modelData
                checked: screen.settings.groupIndex === index
                focus: checked && !screen.settings.inValues
                onActiveFocusChanged: if (activeFocus) screen.settings.focusGroup(index)
                onClicked: screen.settings.open(index)
                Accessible.onPressAction: screen.settings.open(index)
            }
            // qmllint enable unqualified
        }
    }
    SettingsValues {
        id: values

        objectName: "values"
        anchors.top: groups.top
        anchors.bottom: footer.top
        anchors.bottomMargin: Look.medium
        anchors.left: Look.wide ? groups.right : header.left
        anchors.leftMargin: Look.wide ? Look.huge : 0
        anchors.right: header.right
        visible: Look.wide || screen.settings.inValues
        settings: screen.settings
    }
    Item {
        id: footer

        anchors.bottom: parent.bottom
        anchors.bottomMargin: Look.safeY
        anchors.left: header.left
        anchors.right: header.right
        height: hints.height

        Label {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: screen.settings.unsaved
            text: qsTr("This could not be stored: it holds until you leave")
            font: Look.hint
        }
        Row {
            id: hints

            anchors.right: parent.right
            visible: !screen.settings.unsaved
            spacing: Look.large

            KeyHint {
                key: "▲ ▼"
                text: qsTr("Select")
            }
            KeyHint {
                key: qsTr("OK", "a key of the remote control")
                text: screen.settings.inValues ? qsTr("Choose") : qsTr("Open")
            }
            KeyHint {
                key: qsTr("BACK", "a key of the remote control")
                text: screen.settings.inValues ? qsTr("Settings") : qsTr("Leave")
            }
        }
    }
}
