// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// What was found, in whole lines: as many as fit into the height that there is.
MediaGridView {
    id: grid

    required property SearchController search
    required property real room
    readonly property TileQmlStyle tileStyle: QmlDesignSystem.contentTileStyle
    // qmllint disable type
    readonly property rect tileRect: tileStyle.style.tileRect
    readonly property rect focusedRect: tileStyle.style.focusedRect
    // qmllint enable type
    // The tile that has the focus grows, and has a frame.
    readonly property int growth: Math.ceil(Math.max(-focusedRect.x, -focusedRect.y)) + Look.frame
    // Between the frame of the last tile and the edge there is the scroll bar.
    readonly property int barRoom: growth + Look.tiny + (scrollBar ? Math.ceil(scrollBar.implicitWidth) : 0)
    readonly property int lines: Math.max(1, Math.floor((room - 2 * growth + verticalSpacing)
                                                        / (itemHeight + verticalSpacing)))

    objectName: "results"
    height: lines * (itemHeight + verticalSpacing) - verticalSpacing + 2 * growth
    clip: true
    interactive: false
    reuseItems: false
    itemWidth: tileRect.width
    itemHeight: tileRect.height + caption.height
    verticalSpacing: Look.medium
    // On a narrow screen three tiles fill the width.
    horizontalSpacing: Look.wide ? 2 * (growth + Look.tiny)
                                 : Math.floor((width - leftMargin - 3 * itemWidth - rightMargin) / 2)
    topMargin: growth
    bottomMargin: growth
    leftMargin: LayoutMirroring.enabled ? barRoom : growth
    rightMargin: LayoutMirroring.enabled ? growth : barRoom
    highlightMoveDuration: QmlSettings.layoutScrollingAnimationsEnabled ? Look.scrollTime : 0
    model: search.results
    currentIndex: search.resultRow
    scrollBar: ScrollBar {}
    Component.onCompleted: contentY = search.firstLine * (itemHeight + verticalSpacing) - topMargin
    Accessible.name: qsTr("Results")
    // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
    // qmllint disable unqualified
    delegate: ResultTile {
        width: grid.itemWidth
        height: grid.itemHeight
        z: GridView.isCurrentItem ? 2 : 1
        focused: grid.search.inResults && GridView.isCurrentItem
    }
    // qmllint enable unqualified

    Binding {
        grid.search.lines: grid.lines
        grid.search.columns: Math.max(1, Math.floor((grid.width - grid.leftMargin - grid.rightMargin
                                                     + grid.horizontalSpacing)
                                                    / (grid.itemWidth + grid.horizontalSpacing)))
    }
    // As high as the lines below a tile.
    Column {
        id: caption

        visible: false
        topPadding: spacing
        spacing: Look.captionSpacing

        // qmllint disable type
        Label {
            text: "X"
            font: grid.tileStyle.style.titleStyle.font
        }
        Label {
            text: "X"
            font: grid.tileStyle.style.subtitleStyle.font
        }
        // qmllint enable type
    }
}
