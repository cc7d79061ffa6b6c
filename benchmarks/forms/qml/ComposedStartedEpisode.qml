// SPDX-License-Identifier: MIT
import QtQuick

EpisodeContent {
    id: cell

    property string listItemType
    property string itemStatus
    property real mediaPositionsProgressBarViewed: 0
    property real mediaPositionsProgressBarValue: 0
    readonly property int viewed: Math.floor(246 * mediaPositionsProgressBarViewed / mediaPositionsProgressBarValue)

    EpisodeIcon {}

    Rectangle {
        x: 12
        y: 137
        width: cell.viewed
        height: 4
        color: "#ffd060"
    }

    Rectangle {
        x: 11 + cell.viewed
        y: 137
        width: 246 - cell.viewed
        height: 4
        color: "#607080"
    }

    Line {
        x: 249 - width
        y: 128 - height
        text: cell.itemStatus
        font.pixelSize: 16
    }
}
