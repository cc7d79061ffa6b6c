// SPDX-License-Identifier: MIT
import QtQuick

Item {
    id: caption

    property string title
    property string subtitle
    property string status
    property bool favourite: false
    readonly property int lineHeight: Math.max(titleLine.height, favourite ? mark.height : 0)

    Image {
        id: mark

        visible: caption.favourite
        y: Math.floor((caption.lineHeight - height) / 2)
        source: caption.favourite ? "qrc:/resources/icons/favorite_small.png" : ""
    }

    Text {
        id: titleLine

        x: caption.favourite ? mark.width + 7 : -1
        width: caption.favourite ? 262 - mark.width : 270
        text: caption.title
        textFormat: Text.PlainText
        elide: Text.ElideRight
        font.family: "DejaVu Sans"
        font.pixelSize: 22
        color: "white"
    }

    Text {
        id: subtitleLine

        y: caption.lineHeight + 8
        width: 270
        text: caption.subtitle
        textFormat: Text.PlainText
        elide: Text.ElideRight
        font.family: "DejaVu Sans"
        font.pixelSize: 18
        color: "#a0b0c0"
    }

    Text {
        y: subtitleLine.y + subtitleLine.height + 8
        width: 270
        text: caption.status
        textFormat: Text.PlainText
        elide: Text.ElideRight
        font.family: "DejaVu Sans"
        font.pixelSize: 18
        color: "#5cc2f2"
    }
}
