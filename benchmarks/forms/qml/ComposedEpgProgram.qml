// SPDX-License-Identifier: MIT
import QtQuick

Rectangle {
    id: cell

    property string tvProgramExactDate
    property string itemTitle
    property string tvProgramDescription
    property alias imageSource: picture.source

    implicitWidth: 560
    implicitHeight: 120
    color: "#263445"

    Line {
        id: day

        x: 190
        y: 15
        width: 354
        text: cell.tvProgramExactDate
        font.pixelSize: 16
        color: "#5cc2f2"
    }

    Line {
        id: title

        x: 190
        y: day.y + day.height + 3
        width: 354
        text: cell.itemTitle
        font.pixelSize: 20
    }

    Line {
        x: 190
        y: title.y + title.height + 5
        width: 354
        text: cell.tvProgramDescription
        wrapMode: Text.Wrap
        maximumLineCount: 2
        font.pixelSize: 16
        color: "#a0b0c0"
    }

    Image {
        id: picture

        x: 16
        y: 15
        width: 160
        height: 90
        asynchronous: true
    }
}
