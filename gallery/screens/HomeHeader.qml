// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The ways to other screens, and the time.
Item {
    id: header

    required property HomeController home
    required property string clockText

    height: entry.height

    Row {
        // The first word stands where the rows below begin.
        x: LayoutMirroring.enabled ? parent.width - width + Look.medium : -Look.medium
        spacing: Look.small

        Entry {
            id: entry

            focused: header.home.inHeader && header.home.entry === HomeController.HomeEntry
            text: qsTr("Home")
            color: Look.text
        }
        Entry {
            focused: header.home.inHeader && header.home.entry === HomeController.GuideEntry
            text: qsTr("TV guide")
        }
        Entry {
            focused: header.home.inHeader && header.home.entry === HomeController.ChannelsEntry
            text: qsTr("Channels")
        }
    }
    Label {
        anchors.right: clock.left
        anchors.rightMargin: Look.large
        anchors.verticalCenter: parent.verticalCenter
        visible: header.home.leaving
        text: qsTr("Press BACK again to leave")
        font: Look.caption
        color: Look.quietText
    }
    Label {
        id: clock

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: header.clockText
        font: Look.heading
    }

    component Entry: Item {
        id: item

        required property string text
        property color color: Look.quietText
        required property bool focused

        width: label.width + 2 * Look.medium
        height: label.height + Look.small
        Accessible.role: Accessible.MenuItem
        Accessible.name: text

        FocusPlate {
            anchors.fill: parent
            visible: item.focused
        }
        Label {
            id: label

            anchors.centerIn: parent
            text: item.text
            font: Look.heading
            color: item.focused ? Look.textOnFocus : item.color
        }
    }
}
