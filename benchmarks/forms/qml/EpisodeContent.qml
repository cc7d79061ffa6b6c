// SPDX-License-Identifier: MIT
import QtQuick

Item {
    id: cell

    property string itemTitle
    property string itemSubtitle
    property alias imageSource: picture.source
    property alias titleColor: title.color
    property alias subtitleColor: subtitle.color
    property alias overlayColor: overlay.color

    implicitWidth: 560
    implicitHeight: 152

    Image {
        id: picture

        width: 270
        height: 152
    }

    Rectangle {
        id: overlay

        width: 270
        height: 152
        color: "#40101820"
    }

    Line {
        id: title

        x: 286
        width: 260
        text: cell.itemTitle
        font.pixelSize: 20
    }

    Line {
        id: subtitle

        x: 286
        y: title.height + 6
        width: 260
        text: cell.itemSubtitle
        wrapMode: Text.Wrap
        maximumLineCount: 2
        font.pixelSize: 16
        color: "#a0b0c0"
    }
}
