// SPDX-License-Identifier: MIT
import QtQuick

Item {
    id: row

    property string tvProgramStartTimeText
    property string itemTitle
    property string itemSubtitle
    property bool tvProgramIsLive: false
    property bool tvProgramPlayable: false
    readonly property color textColor: tvProgramIsLive || tvProgramPlayable ? "white" : "#8090a0"

    width: 600
    height: subtitle.y + subtitle.height

    Text {
        width: 90
        text: row.tvProgramStartTimeText
        textFormat: Text.PlainText
        elide: Text.ElideRight
        font.family: "DejaVu Sans"
        font.pixelSize: 22
        color: row.tvProgramIsLive ? "#ffd060" : row.textColor
    }

    Text {
        id: title

        x: 96
        y: row.tvProgramIsLive ? badge.y + badge.height + 6 : 0
        width: 480
        text: row.itemTitle
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        font.family: "DejaVu Sans"
        font.pixelSize: 22
        color: row.textColor
    }

    Text {
        id: subtitle

        x: 96
        y: title.y + title.height + 3
        width: 480
        text: row.itemSubtitle
        textFormat: Text.PlainText
        elide: Text.ElideRight
        font.family: "DejaVu Sans"
        font.pixelSize: 18
        color: "#a0b0c0"
    }

    LiveBadge {
        id: badge

        visible: row.tvProgramIsLive
        x: 96
        y: 3
    }
}
