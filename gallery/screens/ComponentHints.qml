// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// What the keys do where the focus is, and that the line was copied.
Item {
    id: hints

    required property ComponentsController controller
    readonly property int area: controller.area

    height: keys.height

    Label {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: hints.controller.copied
        text: qsTr("The line was copied")
        font: Look.hint
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
    Row {
        id: keys

        anchors.right: parent.right
        visible: !hints.controller.copied
        spacing: Look.large

        KeyHint {
            visible: hints.area === ComponentsController.Pages
            key: "▲ ▼"
            text: qsTr("Control")
        }
        KeyHint {
            visible: hints.area === ComponentsController.Editors
            key: "◀ ▶"
            text: qsTr("Value")
        }
        KeyHint {
            visible: hints.area === ComponentsController.Preview && !hints.controller.entered
            key: "▼"
            text: qsTr("Properties")
        }
        KeyHint {
            visible: text.length > 0
            key: qsTr("OK", "a key of the remote control")
            text: hints.controller.okText
        }
        KeyHint {
            key: qsTr("BACK", "a key of the remote control")
            text: hints.controller.entered ? qsTr("Leave the control")
                : hints.area === ComponentsController.Pages ? qsTr("Leave") : qsTr("Controls")
        }
    }
}
