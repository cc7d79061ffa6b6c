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

    Rectangle {
        id: badge

        visible: row.tvProgramIsLive
        x: 96
        y: 3
        width: label.width + indicator.width + 15
        height: label.height + 8
        color: "#c02030"

        Text {
            id: label

            x: indicator.x + indicator.width + 6
            y: 4
            text: "NOW_IN_LIVE"
            textFormat: Text.PlainText
            font.family: "DejaVu Sans"
            font.pixelSize: 14
            color: "white"
        }

        Image {
            id: indicator

            x: 4
            y: 4 + Math.floor((label.height - height) / 2)
            source: "qrc:/resources/icons/live_status_on.png"
        }
    }
}
