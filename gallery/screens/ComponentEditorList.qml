// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// The properties of the chosen control, and their values.
ListView {
    id: list

    required property ComponentsController controller
    readonly property int rowHeight: metrics.height + Look.small
    readonly property bool active: controller.area === ComponentsController.Editors

    implicitHeight: Math.min(count, 4) * rowHeight
    interactive: false
    clip: true
    cacheBuffer: 0
    highlightFollowsCurrentItem: false
    model: controller.editors
    currentIndex: controller.editorRow
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Properties")
    // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
    // qmllint disable unqualified
    delegate: Item {
        id: row

        required property string name
        required property bool isFlag
        required property bool isNumber
        required property bool checked
        required property string text
        required property string swatch
        required property bool isSet
        readonly property bool focused: ListView.isCurrentItem && list.active

        objectName: "editor"
        width: ListView.view.width
        height: list.rowHeight
        Accessible.role: isFlag ? Accessible.CheckBox : isNumber ? Accessible.SpinBox : Accessible.ComboBox
        Accessible.name: isFlag ? name : name + ": " + text
        Accessible.focusable: true
        Accessible.focused: focused && Told.screenFocus
        Accessible.checkable: isFlag
        Accessible.checked: checked

        FocusPlate {
            anchors.fill: parent
            visible: row.focused
        }
        Label {
            id: nameLabel

            anchors.left: parent.left
            anchors.leftMargin: Look.medium
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, Math.round(0.55 * parent.width))
            text: row.name
            font: Look.caption
            color: row.focused ? Look.textOnFocus : row.isSet ? Look.text : Look.quietText
        }
        CheckBox {
            anchors.right: parent.right
            anchors.rightMargin: Look.medium + arrow.width + value.spacing
            anchors.verticalCenter: parent.verticalCenter
            visible: row.isFlag
            scale: Math.min(1, (row.height - Look.small) / height)
            transformOrigin: list.controller.mirrored ? Item.Left : Item.Right
            focusPolicy: Qt.NoFocus
            checkable: false
            checked: row.checked
            Accessible.ignored: true
        }
        Row {
            id: value

            readonly property int room: parent.width - nameLabel.width - 3 * Look.medium

            anchors.right: parent.right
            anchors.rightMargin: Look.medium
            anchors.verticalCenter: parent.verticalCenter
            visible: !row.isFlag
            spacing: Look.small

            // Arrows that lead to another value keep their room where they do not.
            Label {
                opacity: row.focused ? 1 : 0
                text: list.controller.mirrored ? "▶" : "◀"
                font: Look.caption
                color: Look.textOnFocus
            }
            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: height
                height: Math.round(metrics.ascent)
                visible: row.swatch.length > 0
                radius: Look.smallRadius
                color: row.swatch.length > 0 ? QmlDesignSystem.colors[row.swatch] : "transparent"
                border.width: Look.hairline
                border.color: Look.quietText
            }
            Label {
                width: Math.min(implicitWidth, value.room - 2 * (arrow.width + value.spacing)
                                - (row.swatch.length > 0 ? metrics.ascent + value.spacing : 0))
                text: row.text
                font: Look.caption
                color: row.focused ? Look.textOnFocus : row.isSet ? Look.text : Look.quietText
            }
            Label {
                id: arrow

                opacity: row.focused ? 1 : 0
                text: list.controller.mirrored ? "◀" : "▶"
                font: Look.caption
                color: Look.textOnFocus
            }
        }
    }
    // qmllint enable unqualified

    MiddleKeeper {
        list: list
    }
    FontMetrics {
        id: metrics

        font: Look.caption
    }
}
