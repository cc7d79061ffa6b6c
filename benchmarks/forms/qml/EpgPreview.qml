// SPDX-License-Identifier: MIT
import QtQuick

Item {
    id: card

    property bool live
    property bool future
    property bool past
    property bool playable
    property bool hasReminder
    property real progress
    property string startTime
    property alias imageSource: picture.source
    readonly property bool announced: future && !playable
    readonly property int played: Math.floor(250 * progress)

    Image {
        id: picture

        anchors.fill: parent
    }

    Rectangle {
        anchors.fill: parent
        color: "#60101820"
    }

    Rectangle {
        visible: card.playable && card.live
        x: 10
        y: 136
        width: card.played
        height: 6
        color: "#ffd060"
    }

    Rectangle {
        visible: card.playable && card.live
        x: 9 + card.played
        y: 136
        width: 250 - card.played
        height: 6
        color: "#607080"
    }

    Image {
        visible: card.playable
        anchors.centerIn: parent
        source: card.playable ? "qrc:/resources/icons/single_epg/epg_preview_play.png" : ""
    }

    Line {
        id: status

        visible: !card.playable && (card.past || card.future)
        x: Math.floor((270 - width) / 2)
        y: card.announced ? bell.y + bell.height + 6 : Math.floor((152 - height) / 2)
        text: card.past ? "WATCH_UNAVAILABLE" : card.hasReminder ? "REMINDER_WAS_SET" : "LIVE_SOON"
        font.pixelSize: 20
    }

    Rectangle {
        visible: card.announced
        y: 120
        width: 270
        height: 32
        color: "#5cc2f2"

        Line {
            x: Math.floor((270 - width) / 2)
            y: Math.floor((32 - height) / 2)
            text: card.hasReminder ? "DELETE_REMINDER" : "ADD_REMINDER"
            font.pixelSize: 16
            color: "#101820"
        }
    }

    Line {
        id: startsAt

        visible: card.announced
        x: Math.floor((270 - width) / 2)
        y: status.y + status.height
        text: "ON " + card.startTime
        font.pixelSize: 18
        color: "#5cc2f2"
    }

    Image {
        id: bell

        visible: card.announced
        x: Math.floor((270 - width) / 2)
        y: Math.floor((120 - status.height - startsAt.height - height - 6) / 2)
        source: "qrc:/resources/icons/reminder_small.png"
    }
}
