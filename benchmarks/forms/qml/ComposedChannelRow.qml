// SPDX-License-Identifier: MIT
import QtQuick

Item {
    id: row

    property string channelListChannelName
    property string channelListChannelNumber
    property string channelListChannelQuality
    property string channelListProgramName
    property real channelListProgramProgress: 0
    property bool channelListChannelLive: false
    property bool channelListLockIconVisible: false
    property color channelNameColor: "white"
    property rect cachedChannelRect
    property var canvas
    property alias imageSource: logo.source
    readonly property int played: Math.floor(384 * channelListProgramProgress)

    implicitWidth: 560
    implicitHeight: 96

    Item {
        visible: logo.status !== Image.Ready
        x: 16
        y: 12
        width: 128
        height: 72
        clip: true

        Image {
            x: -row.cachedChannelRect.x
            y: -row.cachedChannelRect.y
            source: row.canvas ? "image://benchmarks/sheet" : ""
        }
    }

    Image {
        id: logo

        x: 16
        y: 12
        width: 128
        height: 72
        asynchronous: true
    }

    Rectangle {
        x: 16
        y: 12
        width: number.width + 12
        height: number.height + 4
        color: "#101820"

        Line {
            id: number

            x: 6
            y: 2
            text: row.channelListChannelNumber
            font.pixelSize: 14
        }
    }

    Rectangle {
        id: badge

        x: 160
        y: 14
        width: quality.width + 12
        height: quality.height + 4
        color: "#5cc2f2"

        Line {
            id: quality

            x: 6
            y: 2
            text: row.channelListChannelQuality
            font.pixelSize: 14
            color: "#101820"
        }
    }

    Line {
        id: title

        x: badge.x + badge.width + 9
        y: badge.y + Math.trunc((badge.height - height) / 2)
        width: 384 - badge.width - 10 - (row.channelListChannelLive ? playing.width + playingIcon.width + 8 : 0)
        text: row.channelListChannelName
        font.pixelSize: 20
        color: row.channelNameColor
    }

    Line {
        x: 160
        y: Math.max(badge.y + badge.height, title.y + title.height) + 6
        width: 384
        text: row.channelListProgramName
        font.pixelSize: 16
        color: "#a0b0c0"
    }

    Rectangle {
        x: 160
        y: 84
        width: row.played
        height: 4
        color: "#ffd060"
    }

    Rectangle {
        x: 159 + row.played
        y: 84
        width: 384 - row.played
        height: 4
        color: "#607080"
    }

    Image {
        visible: row.channelListLockIconVisible
        x: 137 - width
        y: 14
        source: row.channelListLockIconVisible ? "qrc:/resources/icons/lock_icon_white.png" : ""
    }

    Line {
        id: playing

        visible: row.channelListChannelLive
        x: 544 - width
        y: 14 + Math.max(0, (playingIcon.height - height) >> 1)
        text: "PLAYING"
        font.pixelSize: 14
    }

    Image {
        id: playingIcon

        visible: row.channelListChannelLive
        x: playing.x - 8 - width
        y: 14 + Math.max(0, (playing.height - height) >> 1)
        source: row.channelListChannelLive ? "qrc:/resources/icons/player/playing_content.png" : ""
    }
}
