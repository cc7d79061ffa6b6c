// SPDX-License-Identifier: MIT
import QtQuick

Item {
    id: content

    property string title
    property string subtitle
    property color ink
    property bool dark: false
    readonly property int half: Math.floor((titleLine.height + subtitleLine.height + 2) / 2)

    Image {
        y: 18
        source: content.dark ? "qrc:/forms/pictures/icon_dark.png" : "qrc:/forms/pictures/icon_light.png"
    }

    Text {
        id: titleLine

        x: 48
        y: 30 - content.half
        width: 220
        text: content.title
        textFormat: Text.PlainText
        elide: Text.ElideRight
        font.family: "DejaVu Sans"
        font.pixelSize: 22
        color: content.ink
    }

    Text {
        id: subtitleLine

        x: 48
        y: 30 + content.half - height
        width: 220
        text: content.subtitle
        textFormat: Text.PlainText
        elide: Text.ElideRight
        font.family: "DejaVu Sans"
        font.pixelSize: 16
        color: content.ink
    }
}
