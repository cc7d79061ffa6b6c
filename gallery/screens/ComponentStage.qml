// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Gallery

// The control of the chosen page. What it types into, and what it lies over, comes with it.
FocusScope {
    id: stage

    required property ComponentsController controller
    readonly property bool chosen: controller.area === ComponentsController.Preview

    Accessible.role: Accessible.Grouping
    Accessible.name: controller.pageName
    Accessible.focusable: true
    Accessible.focused: chosen && !controller.entered && Told.screenFocus

    FocusPlate {
        anchors.fill: parent
        visible: stage.chosen && !stage.controller.entered
    }
    // While the control has the keys it shows the focus, and the frame that it is there.
    Rectangle {
        anchors.fill: parent
        visible: stage.controller.entered
        radius: Look.radius
        color: Look.accent
    }
    Rectangle {
        anchors.fill: parent
        anchors.margins: Look.frame
        radius: Look.innerRadius
        color: Look.backdrop
        border.width: stage.chosen ? 0 : Look.hairline
        border.color: Look.raised
    }
    Loader {
        id: typed

        anchors.top: parent.top
        anchors.topMargin: Look.small + Look.frame
        anchors.horizontalCenter: parent.horizontalCenter
        width: parent.width / 2
        active: stage.controller.types
        // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
        // qmllint disable unqualified
        sourceComponent: LineEdit {
            placeholderText: qsTr("What is typed")
        }
        // qmllint enable unqualified
    }
    Image {
        x: preview.x + preview.controlRect.x
        y: preview.y + preview.controlRect.y
        width: preview.controlRect.width
        height: preview.controlRect.height
        visible: stage.controller.liesOver
        source: visible ? Pictures.filling("qrc:/resources/pictures/aurora_wide.jpg", width, height) : ""
    }
    ComponentPreview {
        id: preview

        objectName: "preview"
        anchors.top: typed.active ? typed.bottom : parent.top
        anchors.topMargin: Look.small + (typed.active ? 0 : Look.frame)
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Look.medium
        anchors.rightMargin: Look.medium
        anchors.bottomMargin: Look.small + Look.frame
        focus: true
        controller: stage.controller
        target: typed.item as Item
    }
}
