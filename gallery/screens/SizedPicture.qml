// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// A picture that fills its place, whose size is fixed when it is made. Without a picture, or with one that cannot be
// loaded, there is nothing but the background.
ExpandableTile {
    id: picture

    required property url source
    required property int pictureWidth
    required property int pictureHeight

    itemBackgroundColor: Look.backdrop
    imageSource: Pictures.filling(source, pictureWidth, pictureHeight)
    Accessible.ignored: true // an ornament

    Component.onCompleted: style = measures

    // A tile takes its size from the style that it is given, as it is at that moment.
    readonly property TileQmlStyle measures: TileQmlStyle {
        // qmllint disable type
        style.tileRect: Qt.rect(0, 0, picture.pictureWidth, picture.pictureHeight)
        // qmllint enable type
    }
}
