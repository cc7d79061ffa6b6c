// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The programme guide: days, channels, and the day's programmes of the chosen channel.
FocusScope {
    id: screen

    required property GuideController guide

    focus: true
    Keys.onPressed: event => event.accepted = guide.press(event.key)

    Binding {
        screen.guide.rowsPerPage: programmes.visibleRows
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
        dayText: screen.guide.dayText
        shortDayText: screen.guide.shortDayText
        clockText: screen.guide.clockText
    }
    Item {
        id: daysPlace

        anchors.top: header.bottom
        anchors.topMargin: Look.small
        anchors.left: header.left
        anchors.right: header.right
        height: days.height

        DayList {
            id: days

            x: Math.floor((parent.width - width) / 2)
            focus: screen.guide.inDays
            model: screen.guide.days
            currentIndex: screen.guide.dayRow
        }
    }
    ChannelList {
        id: channels

        objectName: "channels"
        anchors.top: daysPlace.bottom
        anchors.topMargin: Look.small
        anchors.bottom: footer.top
        anchors.bottomMargin: Look.small
        anchors.left: header.left
        anchors.right: programmes.left
        anchors.rightMargin: Look.large
        model: screen.guide.channels
        currentIndex: screen.guide.channelRow
    }
    ProgrammeList {
        id: programmes

        objectName: "programmes"
        anchors.top: channels.top
        anchors.bottom: channels.bottom
        anchors.right: header.right
        width: implicitWidth
        focus: !screen.guide.detailsOpen && !screen.guide.inDays
        // Behind the details everything stays where it is.
        cardShown: !screen.guide.inDays
        model: screen.guide.programmes
        currentIndex: screen.guide.programmeRow
    }
    Item {
        anchors.top: programmes.top
        anchors.left: programmes.left
        anchors.right: programmes.right
        height: nothing.height + 2 * Look.medium
        visible: screen.guide.programmeRow < 0 && !screen.guide.loading

        FocusPlate {
            anchors.fill: parent
            visible: programmes.focus
            Accessible.role: Accessible.StaticText
            Accessible.name: nothing.text
            Accessible.focusable: true
            Accessible.focused: visible && Told.screenFocus
        }
        Label {
            id: nothing

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: Look.medium
            text: screen.guide.channelRow < 0 ? qsTr("There are no channels in this guide")
                                              : qsTr("No programmes on this day")
            color: programmes.focus ? Look.textOnFocus : Look.quietText
        }
    }
    EdgeFades {
        anchors.fill: channels
        list: channels
    }
    EdgeFades {
        anchors.fill: programmes
        list: programmes
    }
    Item {
        id: footer

        anchors.bottom: parent.bottom
        anchors.bottomMargin: Look.safeY
        anchors.left: header.left
        anchors.right: header.right
        height: hints.height + (message.visible ? message.height + Look.tiny : 0)

        Label {
            id: message

            anchors.left: parent.left
            anchors.right: parent.right
            visible: text.length > 0
            text: screen.guide.message
            font: Look.hint
            // The place of an error stands behind the name of its file.
            elide: Text.ElideMiddle
            color: Look.quietText
        }
        Label {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.verticalCenter: hints.verticalCenter
            text: screen.guide.notice
            font: Look.hint
        }
        Row {
            id: hints

            anchors.right: parent.right
            anchors.bottom: parent.bottom
            visible: screen.guide.notice.length === 0 && !screen.guide.detailsOpen
            spacing: Look.large

            KeyHint {
                visible: screen.guide.inDays || (screen.guide.leftChannelName + screen.guide.rightChannelName).length > 0
                key: "◀ ▶"
                text: screen.guide.inDays ? qsTr("Day") : qsTr("Channel")
            }
            KeyHint {
                visible: screen.guide.inDays || screen.guide.programmeRow >= 0
                key: screen.guide.inDays ? "▼" : "▲ ▼"
                text: screen.guide.inDays ? qsTr("Programmes") : qsTr("Programme")
            }
            // Where there is nothing to choose, Up leads to the days at once.
            KeyHint {
                visible: screen.guide.channelRow >= 0 && screen.guide.programmeRow < 0 && !screen.guide.inDays
                key: "▲"
                text: qsTr("Day")
            }
            // What OK does with a programme that is to come stands on its card.
            KeyHint {
                visible: screen.guide.programmeRow >= 0 && !screen.guide.inDays
                key: screen.guide.future ? qsTr("INFO", "a key of the remote control")
                                         : qsTr("OK", "a key of the remote control")
                text: qsTr("Details")
            }
            KeyHint {
                visible: Look.wide && screen.guide.programmeRow >= 0 && !screen.guide.inDays
                key: qsTr("GREEN", "a key of the remote control")
                text: qsTr("Day")
            }
            KeyHint {
                key: qsTr("BACK", "a key of the remote control")
                text: screen.guide.backAction === GuideController.ShowNow ? qsTr("On now") : qsTr("Leave")
            }
        }
    }
    LoadingView {
        anchors.fill: parent
        visible: screen.guide.loading
        progress: screen.guide.loadProgress
        Accessible.focusable: true
        Accessible.focused: visible && screen.guide.channelRow < 0 && Told.screenFocus
    }
    DetailsOverlay {
        anchors.fill: parent
        objectName: "details"
        open: screen.guide.detailsOpen
        guide: screen.guide
    }
}
