// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// Something that was found: a programme, a film or a series.
Item {
    id: cell

    required property bool focused
    required property bool programme
    required property string title
    required property string subtitle
    required property string channel
    required property string rating
    required property url still
    required property url logo
    required property double position
    required property double duration
    required property double progress
    required property bool favourite
    readonly property ExpandableTile tile: loader.item as ExpandableTile
    readonly property rect around: tile ? tile.customFocusRect : Qt.rect(0, 0, 0, 0)

    FocusPlate {
        visible: cell.focused
        x: cell.around.x - Look.frame
        y: cell.around.y - Look.frame
        width: cell.around.width + 2 * Look.frame
        height: cell.around.height + 2 * Look.frame
        radius: 0
    }
    Loader {
        id: loader

        sourceComponent: cell.programme ? programmeTile : videoTile
    }
    // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
    // qmllint disable unqualified
    Component {
        id: programmeTile

        ProgrammeTile {
            focused: cell.focused
            title: cell.title
            subtitle: cell.subtitle
            status: ""
            channel: cell.channel
            still: cell.still
            progress: cell.progress
            favourite: cell.favourite
        }
    }
    Component {
        id: videoTile

        VideoTile {
            focused: cell.focused
            style: QmlDesignSystem.contentTileStyle
            shownPicture: cell.still
            title: cell.title
            subtitle: cell.subtitle
            status: ""
            rating: cell.rating
            logo: cell.logo
            position: cell.position
            duration: cell.duration
            favourite: cell.favourite
        }
    }
    // qmllint enable unqualified
}
