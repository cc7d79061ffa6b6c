// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The channels, all or those of a group, and what is on the chosen one.
FocusScope {
    id: screen

    required property ChannelsController channels
    required property GuideController guide

    focus: true
    Keys.onPressed: event => event.accepted = channels.press(event.key)

    Binding {
        screen.channels.rowsPerPage: rows.visibleRows
    }
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
        title: qsTr("Channels")
        dayText: screen.guide.dayText
        shortDayText: screen.guide.shortDayText
        clockText: screen.guide.clockText
    }
    GroupTabs {
        id: groups

        objectName: "groups"
        anchors.top: header.bottom
        anchors.topMargin: Look.tiny
        anchors.left: header.left
        anchors.right: header.right
        height: count > 0 ? implicitHeight : 0
        controller: screen.channels
    }
    ChannelRowList {
        id: rows

        objectName: "channelRows"
        anchors.top: groups.bottom
        anchors.topMargin: Look.small
        anchors.bottom: footer.top
        anchors.bottomMargin: Look.small
        anchors.left: header.left
        width: Look.wide ? Math.round(0.62 * header.width) : header.width
        controller: screen.channels
    }
    EdgeFades {
        anchors.fill: rows
        list: rows
    }
    ChannelFacts {
        anchors.top: rows.top
        anchors.bottom: rows.bottom
        anchors.left: rows.right
        anchors.leftMargin: Look.large
        anchors.right: header.right
        visible: Look.wide && screen.channels.channelRow >= 0
        controller: screen.channels
    }
    FocusPlate {
        anchors.top: rows.top
        anchors.left: header.left
        anchors.right: header.right
        height: nothing.height + 2 * Look.medium
        visible: screen.channels.channelRow < 0 && !screen.guide.loading
        Accessible.role: Accessible.StaticText
        Accessible.name: nothing.text
        Accessible.focusable: true
        Accessible.focused: visible && Told.screenFocus

        Label {
            id: nothing

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: Look.medium
            text: qsTr("There are no channels")
            color: Look.textOnFocus
        }
    }
    // The number that is being typed.
    Rectangle {
        anchors.top: header.bottom
        anchors.right: header.right
        width: typed.width + 2 * Look.large
        height: typed.height + 2 * Look.small
        visible: screen.channels.typedNumber.length > 0
        color: Look.raised
        radius: Look.radius

        Label {
            id: typed

            anchors.centerIn: parent
            text: screen.channels.typedNumber
            font: Look.headline
        }
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
            visible: text.length > 0
            text: screen.channels.message
            font: Look.hint
        }
        Row {
            id: hints

            anchors.right: parent.right
            visible: screen.channels.message.length === 0
            spacing: Look.large

            KeyHint {
                visible: groups.count > 0
                key: "◀ ▶"
                text: qsTr("Group")
            }
            KeyHint {
                visible: rows.count > 1
                key: "▲ ▼"
                text: qsTr("Channel")
            }
            KeyHint {
                visible: Look.wide && screen.channels.hasNumbers
                key: "0–9"
                text: qsTr("Number")
            }
            KeyHint {
                visible: rows.count > 0
                key: qsTr("OK", "a key of the remote control")
                text: qsTr("Watch")
            }
            KeyHint {
                key: qsTr("BACK", "a key of the remote control")
                text: qsTr("Leave")
            }
        }
    }
    LoadingView {
        anchors.fill: parent
        visible: screen.guide.loading
        progress: screen.guide.loadProgress
        Accessible.focusable: true
        Accessible.focused: visible && screen.channels.channelRow < 0 && Told.screenFocus
    }
}
