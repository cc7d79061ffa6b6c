// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// One row of tiles with its name.
Item {
    id: tileRow

    required property HomeRow row
    // Whether keys act on this row.
    required property bool active
    // How high the row may be. Where texts are large, the lower lines below the tiles go.
    required property real room
    readonly property bool upright: row.kind === HomeRow.Films || row.kind === HomeRow.Series
    readonly property TileQmlStyle tileStyle: upright ? QmlDesignSystem.vodTileStyle
                                                      : QmlDesignSystem.contentTileStyle
    // qmllint disable type
    readonly property rect tileRect: tileStyle.style.tileRect
    readonly property rect focusedRect: tileStyle.style.focusedRect
    // qmllint enable type
    property bool placed: false
    // Nothing moves before everything has its place.
    property bool completed: false
    readonly property int step: tileRect.width + QmlDesignSystem.layouts.viewHorizontalSpacing

    Component.onCompleted: { placed = true; completed = true }
    // Without the lines below the tiles, with the first of them, and with all.
    readonly property real bareHeight: name.height + list.anchors.topMargin + focusedRect.y + focusedRect.height
    readonly property real leastHeight: bareHeight + captionHeight(1)
    readonly property real fullHeight: bareHeight + captionHeight(row.captionLines)
    readonly property int captionLines: {
        let lines = row.captionLines;
        while (lines > 1 && bareHeight + captionHeight(lines) > room)
            --lines;
        return lines;
    }

    function captionHeight(lines: int): int {
        return Math.ceil(Look.captionSpacing + titleFont.height)
               + (lines - 1) * Math.ceil(Look.captionSpacing + lineFont.height);
    }

    height: bareHeight + captionHeight(captionLines) + Look.medium

    Binding {
        tileRow.row.columns: Math.floor((tileRow.width - 2 * Look.safeX + tileRow.step - tileRow.tileRect.width)
                                        / tileRow.step)
    }
    Label {
        id: name

        objectName: "rowName"
        anchors.left: parent.left
        anchors.leftMargin: Look.safeX
        text: tileRow.row.title
        font: Look.heading
        color: tileRow.active ? Look.text : Look.quietText
    }
    ListView {
        id: list

        objectName: "tiles"
        anchors.top: name.bottom
        // The tile that has the focus grows, and has a frame.
        anchors.topMargin: Look.small - tileRow.focusedRect.y
        width: parent.width
        height: tileRow.focusedRect.y + tileRow.focusedRect.height + tileRow.captionHeight(tileRow.captionLines)
        orientation: ListView.Horizontal
        spacing: tileRow.step - tileRow.tileRect.width
        interactive: false
        // Tiles made ahead of need would still be on their way when the model is reset, which Qt warns of.
        cacheBuffer: 0
        // The first tile has its place at the edge of the safe area, the last one may have it too.
        leftMargin: LayoutMirroring.enabled ? width : Look.safeX
        rightMargin: LayoutMirroring.enabled ? Look.safeX : width
        model: tileRow.row.tiles
        // A list that knows its current item jumps to where that is seen, and what moves smoothly begins there.
        currentIndex: -1
        // A list goes to its beginning when it is completed, and does not get far before it knows how long it is: it is told
        // again each time.
        contentX: (tileRow.placed ? 0 : 0) + contentWidth - contentWidth
                  + (LayoutMirroring.enabled ? Look.safeX - width - tileRow.row.first * tileRow.step
                                             : tileRow.row.first * tileRow.step - Look.safeX)
        delegate: tileRow.row.kind === HomeRow.NowOnTv ? programme : video

        Behavior on contentX {
            enabled: tileRow.completed && QmlSettings.layoutScrollingAnimationsEnabled
            SmoothedAnimation {
                duration: Look.scrollTime
                velocity: -1
            }
        }
    }
    // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
    // qmllint disable unqualified
    Component {
        id: programme

        ProgrammeTile {
            id: programmeTile

            required property int index

            focused: tileRow.active && tileRow.row.current === index
            captionLines: tileRow.captionLines

            Plate {
                tile: programmeTile
                visible: programmeTile.focused
            }
        }
    }
    Component {
        id: video

        VideoTile {
            id: videoTile

            required property int index
            required property url picture
            required property url still

            focused: tileRow.active && tileRow.row.current === index
            captionLines: tileRow.captionLines
            style: tileRow.tileStyle
            shownPicture: tileRow.upright ? picture : still

            Plate {
                tile: videoTile
                visible: videoTile.focused
            }
        }
    }
    // qmllint enable unqualified
    // qmllint disable type
    FontMetrics {
        id: titleFont

        font: tileRow.tileStyle.style.titleStyle.font
    }
    FontMetrics {
        id: lineFont

        font: tileRow.tileStyle.style.subtitleStyle.font
    }
    // qmllint enable type

    // Around what the tile takes up, and below it.
    component Plate: FocusPlate {
        required property ExpandableTile tile
        // qmllint disable type
        readonly property rect around: tile.customFocusRect
        // qmllint enable type

        z: -1
        x: around.x - Look.frame
        y: around.y - Look.frame
        width: around.width + 2 * Look.frame
        height: around.height + 2 * Look.frame
        radius: 0
    }
}
