// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The names of the controls, of which one is chosen.
ListView {
    id: list

    required property ComponentsController controller
    readonly property int rowHeight: metrics.height + Look.small
    readonly property int visibleRows: Math.max(1, Math.floor(height / rowHeight))

    interactive: false
    clip: true
    cacheBuffer: 0
    highlightFollowsCurrentItem: false
    model: controller.pages
    currentIndex: controller.pageRow
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Controls")
    // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
    // qmllint disable unqualified
    delegate: Item {
        id: row

        required property string modelData
        readonly property bool current: ListView.isCurrentItem
        readonly property bool focused: current && list.controller.area === ComponentsController.Pages

        objectName: "page"
        width: ListView.view.width
        height: list.rowHeight
        Accessible.role: Accessible.ListItem
        Accessible.name: modelData
        Accessible.focusable: true
        Accessible.focused: focused && Told.screenFocus
        Accessible.selectable: true
        Accessible.selected: current

        FocusPlate {
            anchors.fill: parent
            visible: row.focused
        }
        Rectangle {
            anchors.fill: parent
            visible: row.current && !row.focused
            color: Look.raised
            radius: Look.radius
        }
        Label {
            anchors.left: parent.left
            anchors.leftMargin: Look.small
            anchors.right: parent.right
            anchors.rightMargin: Look.small
            anchors.verticalCenter: parent.verticalCenter
            text: row.modelData
            font: Look.caption
            color: row.focused ? Look.textOnFocus : row.current ? Look.text : Look.quietText
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
