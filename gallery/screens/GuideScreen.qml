// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The programme guide: channels, the day's programmes of the chosen channel, and the chosen programme.
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
    ChannelList {
        id: channels

        objectName: "channels"
        anchors.top: header.bottom
        anchors.topMargin: Look.medium
        anchors.bottom: summary.bottom
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
        anchors.bottom: summary.top
        anchors.bottomMargin: Look.medium
        anchors.right: header.right
        width: implicitWidth
        focus: !screen.guide.detailsOpen
        model: screen.guide.programmes
        currentIndex: screen.guide.programmeRow
    }
    FocusPlate {
        anchors.top: programmes.top
        anchors.left: programmes.left
        anchors.right: programmes.right
        height: nothing.height + 2 * Look.medium
        visible: screen.guide.programmeRow < 0 && !screen.guide.loading

        Label {
            id: nothing

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: Look.medium
            text: screen.guide.channelRow < 0 ? qsTr("There are no channels in this guide")
                                              : qsTr("No programmes on this day")
            color: Look.textOnFocus
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
    Rectangle {
        id: summary

        anchors.bottom: footer.top
        anchors.bottomMargin: Look.small
        anchors.left: programmes.left
        anchors.right: programmes.right
        height: times.height + description.height + 2 * Look.small
        visible: screen.guide.programmeRow >= 0
        color: Look.surface
        radius: Look.radius

        Label {
            id: times

            anchors.top: parent.top
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.topMargin: Look.small
            anchors.leftMargin: Look.medium
            anchors.rightMargin: Look.medium
            text: screen.guide.timeRange
            font: Look.caption
        }
        Label {
            id: description

            anchors.top: times.bottom
            anchors.left: times.left
            anchors.right: times.right
            height: Math.ceil(2.1 * metrics.lineSpacing)
            text: screen.guide.description.length > 0 ? screen.guide.description : qsTr("No description")
            font: Look.caption
            color: Look.quietText
            wrapMode: Text.Wrap
            maximumLineCount: 2
        }
        FontMetrics {
            id: metrics

            font: Look.caption
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
            text: screen.guide.message
            font: Look.hint
            // The place of an error stands behind the name of its file.
            elide: Text.ElideMiddle
            color: Look.quietText
        }
        Row {
            id: hints

            anchors.right: parent.right
            visible: screen.guide.message.length === 0
            spacing: Look.large

            KeyHint {
                key: "◀ ▶"
                text: qsTr("Channel")
            }
            KeyHint {
                key: "▲ ▼"
                text: qsTr("Programme")
            }
            KeyHint {
                key: qsTr("OK", "a key of the remote control")
                text: qsTr("Details")
            }
            KeyHint {
                key: qsTr("BACK", "a key of the remote control")
                text: qsTr("On now")
            }
        }
    }
    LoadingView {
        anchors.fill: parent
        visible: screen.guide.loading
        progress: screen.guide.loadProgress
    }
    DetailsOverlay {
        anchors.fill: parent
        visible: screen.guide.detailsOpen
        focus: visible
        guide: screen.guide
    }
}
