// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Gallery

// A film, a series or an episode.
VodTile {
    id: tile

    required property bool focused
    // Of title, subtitle and status as many as there is room for.
    property int captionLines: 3
    required property url shownPicture
    required property string title
    required property string subtitle
    required property string status
    required property string rating
    required property url logo
    required property double position
    required property double duration
    required property bool favourite
    // A state that is there from the beginning would not make the tile grow.
    property bool completed: false

    objectName: "tile"
    state: completed && focused ? "focused" : "normal"
    z: focused ? 2 : 1
    itemTitle: title
    itemSubtitle: captionLines > 1 ? subtitle : ""
    itemStatus: captionLines > 1 + Number(subtitle.length > 0) ? status : ""
    itemIsFavourite: favourite
    ratingText: rating
    mediaPositionsTimepoint: position
    moviePosterDuration: duration
    imageSource: Pictures.filling(shownPicture, style.style.focusedRect.width, style.style.focusedRect.height)
    rightholderImageSource: Pictures.fitting(logo, Look.logoWidth, Look.logoHeight)
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: subtitle
    Accessible.focusable: true
    Accessible.focused: visible && focused && Told.screenFocus
    Component.onCompleted: completed = true
}
