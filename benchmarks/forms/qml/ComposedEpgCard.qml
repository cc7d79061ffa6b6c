// SPDX-License-Identifier: MIT
import QtQuick

Item {
    id: row

    property string tvProgramStartTimeText
    property string itemTitle
    property string itemSubtitle
    property bool tvProgramIsLive: false
    property bool tvProgramIsFuture: false
    property bool tvProgramIsPast: false
    property bool tvProgramPlayable: false
    property bool tvProgramHasReminder: false
    property real tvProgramProgress: 0
    property alias imageSource: card.imageSource
    readonly property color textColor: tvProgramIsLive || tvProgramPlayable ? "white" : "#8090a0"

    implicitWidth: 400
    implicitHeight: subtitle.y + subtitle.height

    EpgPreview {
        id: card

        x: 96
        width: 270
        height: 152
        live: row.tvProgramIsLive
        future: row.tvProgramIsFuture
        past: row.tvProgramIsPast
        playable: row.tvProgramPlayable
        hasReminder: row.tvProgramHasReminder
        progress: row.tvProgramProgress
        startTime: row.tvProgramStartTimeText
    }

    Line {
        width: 90
        text: row.tvProgramStartTimeText
        font.pixelSize: 22
        color: row.tvProgramIsLive ? "#ffd060" : row.textColor
    }

    Line {
        id: title

        x: 96
        y: row.tvProgramIsLive ? badge.y + badge.height + 6 : 160
        width: 270
        text: row.itemTitle
        wrapMode: Text.Wrap
        maximumLineCount: 2
        font.pixelSize: 22
        color: row.textColor
    }

    Line {
        id: subtitle

        x: 96
        y: title.y + title.height + 3
        width: 270
        text: row.itemSubtitle
        font.pixelSize: 18
        color: "#a0b0c0"
    }

    LiveBadge {
        id: badge

        visible: row.tvProgramIsLive
        x: 96
        y: 163
    }
}
