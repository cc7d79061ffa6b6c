// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// The episodes of a season. A cell is filled once and then stays as it is: cells are never used again for another row
// (reuseItems is off), and the model is reset where one would have to show something else.
ListView {
    id: list

    // Whether keys act on the episodes.
    required property bool active
    // qmllint disable type
    readonly property rect tile: QmlDesignSystem.playerEpisodesItemStyle.style.tileRect
    readonly property rect texts: QmlDesignSystem.playerEpisodesItemStyle.style.textAreaRect
    readonly property int gap: QmlDesignSystem.playerEpisodesItemStyle.style.textLeftSpacing
    // qmllint enable type
    readonly property int rowHeight: tile.height + 2 * Look.frame
    readonly property int visibleRows: Math.max(1, Math.floor((height + spacing) / (rowHeight + spacing)))

    width: tile.width + gap + texts.width + 2 * Look.frame
    spacing: Look.medium
    interactive: false
    clip: true
    reuseItems: false
    // Cells made ahead of need would still be on their way when the model is reset, which Qt warns of.
    cacheBuffer: 0
    highlightFollowsCurrentItem: false
    // No row is cut off at the top: there stands the one before the chosen one.
    bottomMargin: height
    onCurrentItemChanged: positionViewAtIndex(Math.max(0, currentIndex - 1), ListView.Beginning)
    onHeightChanged: positionViewAtIndex(Math.max(0, currentIndex - 1), ListView.Beginning)
    // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
    // qmllint disable unqualified
    delegate: Item {
        id: row

        required property string title
        required property string description
        required property string cellType
        required property string status
        required property url still
        required property real position
        required property real duration

        width: list.width
        height: list.rowHeight

        FocusPlate {
            width: list.tile.width + 2 * Look.frame
            height: parent.height
            radius: 0
            visible: row.ListView.isCurrentItem && list.active
        }
        // Until the picture is there.
        Rectangle {
            x: Look.frame
            y: Look.frame
            width: list.tile.width
            height: list.tile.height
            color: Look.surface
        }
        EpisodesViewDelegate {
            objectName: "episode"
            x: Look.frame
            y: Look.frame
            width: parent.width - 2 * Look.frame
            height: list.tile.height
            style: Look.episode
            listItemType: row.cellType
            imageSource: Pictures.filling(row.still, list.tile.width, list.tile.height)
            itemTitle: row.title
            itemSubtitle: row.description
            itemStatus: row.status
            mediaPositionsProgressBarViewed: row.position
            mediaPositionsProgressBarValue: row.duration
            Accessible.role: Accessible.ListItem
            Accessible.name: row.title
            Accessible.description: row.status
            Accessible.focusable: true
            Accessible.focused: visible && row.ListView.isCurrentItem && list.active && Told.screenFocus
            Accessible.selectable: true
            Accessible.selected: row.ListView.isCurrentItem
        }
    }
    // qmllint enable unqualified
}
