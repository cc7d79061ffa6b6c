// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// What is on a channel now, or at another time.
ContentTile {
    id: tile

    required property bool focused
    // Of title, subtitle and status as many as there is room for.
    property int captionLines: 3
    required property string title
    required property string subtitle
    required property string status
    required property string channel
    required property url still
    required property double progress
    required property bool favourite
    // A state that is there from the beginning would not make the tile grow.
    property bool completed: false

    objectName: "tile"
    state: completed && focused ? "focused" : "normal"
    z: focused ? 2 : 1
    style: QmlDesignSystem.contentTileStyle
    itemTitle: title
    itemSubtitle: captionLines > 1 ? subtitle : ""
    itemStatus: captionLines > 1 + Number(subtitle.length > 0) ? status : ""
    itemIsFavourite: favourite
    imageSource: Pictures.filling(still, style.style.focusedRect.width, style.style.focusedRect.height)
    Accessible.role: Accessible.ListItem
    Accessible.name: channel + " " + title
    Accessible.description: subtitle
    Accessible.focusable: true
    Accessible.focused: visible && focused && Told.screenFocus
    Component.onCompleted: completed = true

    Rectangle {
        x: tile.customFocusRect.x + Look.small
        y: tile.customFocusRect.y + Look.small
        width: Math.min(badge.implicitWidth + 2 * Look.small, tile.customFocusRect.width - 2 * Look.small)
        height: badge.height + Look.tiny
        color: Look.badge

        Label {
            id: badge

            anchors.centerIn: parent
            width: parent.width - 2 * Look.small
            text: tile.channel
            font: Look.hint
        }
    }
    ProgressLine {
        visible: tile.progress > 0 && tile.progress < 1
        x: tile.customFocusRect.x + Look.medium
        y: tile.customFocusRect.y + tile.customFocusRect.height - height - Look.medium
        width: tile.customFocusRect.width - 2 * Look.medium
        progress: tile.progress
        // On a picture, as a tile's own bar.
        fill: tile.style.style.progressValueColor
        color: tile.style.style.progressTrackColor
    }
}
