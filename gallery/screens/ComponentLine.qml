// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The QML that makes the control as it is shown. With the focus all of it is to be seen.
Item {
    id: box

    required property ComponentsController controller
    readonly property bool focused: controller.area === ComponentsController.Line

    height: Math.ceil(3 * metrics.lineSpacing) + 2 * Look.small
    Accessible.role: Accessible.Button
    Accessible.name: controller.qmlText
    Accessible.focusable: true
    Accessible.focused: focused && Told.screenFocus
    Accessible.onPressAction: controller.press(Qt.Key_Return)

    EdgeFade {
        anchors.bottom: plate.top
        rotation: 180
        // Without the focus nothing sticks out, and what is above must not fade.
        visible: box.focused && plate.height > box.height
    }
    Rectangle {
        id: plate

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: box.focused ? Math.max(parent.height, code.height + 2 * Look.small) : parent.height
        color: Look.surface
        radius: Look.radius

        FocusPlate {
            anchors.fill: parent
            visible: box.focused
        }
        // Code runs from left to right in any language.
        Label {
            id: code

            LayoutMirroring.enabled: false
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.leftMargin: Look.medium
            anchors.rightMargin: Look.medium
            anchors.topMargin: Look.small
            text: box.controller.qmlText
            font: metrics.font
            color: box.focused ? Look.textOnFocus : Look.text
            wrapMode: Text.Wrap
            maximumLineCount: box.focused ? 12 : 3
        }
    }
    FontMetrics {
        id: metrics

        font: box.controller.codeFont(Look.hint)
    }
}
