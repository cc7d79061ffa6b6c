// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The channels; the chosen one is marked and kept in sight. Keys never act here.
ListView {
    id: list

    // The name, and what is on.
    readonly property int rowHeight: Math.max(Math.round(68 * Look.unit),
                                              Math.ceil(nameFont.height + nowFont.height) + Look.tiny)

    interactive: false
    clip: true
    // Rows made ahead of need would still be on their way when the model is reset, which Qt warns of.
    cacheBuffer: 0
    highlightFollowsCurrentItem: false
    delegate: Item {
        id: row

        required property int index
        required property string name
        required property string number
        required property string nowTitle
        required property bool locked

        objectName: "channel"
        width: ListView.view.width
        // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
        // qmllint disable unqualified
        height: list.rowHeight
        // qmllint enable unqualified
        Accessible.role: Accessible.ListItem
        Accessible.name: number + " " + name
        Accessible.description: nowTitle
        Accessible.selectable: true
        Accessible.selected: ListView.isCurrentItem

        Rectangle {
            anchors.fill: parent
            visible: row.ListView.isCurrentItem
            color: Look.raised
            radius: Look.radius

            Rectangle {
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                width: Look.tiny
                height: parent.height - 2 * Look.radius
                color: Look.accent
            }
        }
        Label {
            id: numberLabel

            anchors.left: parent.left
            anchors.leftMargin: Look.medium
            anchors.verticalCenter: parent.verticalCenter
            width: Look.wide ? Math.round(44 * Look.unit) : 0
            visible: Look.wide
            text: row.number
            color: Look.quietText
        }
        Column {
            anchors.left: numberLabel.right
            anchors.leftMargin: Look.wide ? Look.small : 0
            anchors.right: lock.left
            anchors.rightMargin: lock.width > 0 ? Look.small : 0
            anchors.verticalCenter: parent.verticalCenter

            Label {
                width: parent.width
                text: row.name
                color: row.ListView.isCurrentItem ? Look.text : Look.quietText
            }
            Label {
                width: parent.width
                visible: text.length > 0
                text: row.nowTitle
                font: Look.caption
                color: Look.quietText
            }
        }
        Image {
            id: lock

            objectName: "lock"
            anchors.right: parent.right
            anchors.rightMargin: Look.medium
            anchors.verticalCenter: parent.verticalCenter
            width: row.locked ? Math.round(20 * Look.unit) : 0
            height: width
            visible: row.locked
            source: row.locked ? "qrc:/resources/icons/lock_icon_white.png" : ""

            // The lock is white in each theme.
            Rectangle {
                anchors.fill: parent
                anchors.margins: -Look.tiny
                z: -1
                visible: Look.raised.hslLightness > 0.5
                radius: Look.radius
                color: Look.quietText
            }
        }
    }

    MiddleKeeper {
        list: list
    }
    FontMetrics {
        id: nameFont

        font: Look.body
    }
    FontMetrics {
        id: nowFont

        font: Look.caption
    }
}
