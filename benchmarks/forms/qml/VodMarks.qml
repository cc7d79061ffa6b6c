// SPDX-License-Identifier: MIT
import QtQuick

Item {
    id: marks

    property string rating
    property alias logoSource: logo.source
    property real timepoint: 0
    property real duration: 0
    readonly property bool watched: timepoint > 0 && duration > 0
    readonly property int filled: watched ? Math.ceil(Math.min(timepoint, duration) / duration * (width - 20)) : 0

    Image {
        id: logo

        x: marks.width - 11 - width
        y: marks.height - (marks.watched ? 25 : 11) - height
        asynchronous: true
    }

    Rectangle {
        visible: marks.rating !== ""
        x: 8
        y: 8
        width: ratingLine.width + 16
        height: ratingLine.height + 4
        color: "#5cc2f2"

        Text {
            id: ratingLine

            x: 8
            y: 2
            text: marks.rating
            textFormat: Text.PlainText
            font.family: "DejaVu Sans"
            font.pixelSize: 16
            color: "#101820"
        }
    }

    Rectangle {
        visible: marks.watched && marks.timepoint < marks.duration
        x: 9 + marks.filled
        y: marks.height - 17
        width: marks.width - 20 - marks.filled
        height: 6
        color: "#80f4f7fa"
    }

    Rectangle {
        visible: marks.watched
        x: 10
        y: marks.height - 17
        width: marks.filled
        height: 6
        color: "#ffd060"
    }
}
