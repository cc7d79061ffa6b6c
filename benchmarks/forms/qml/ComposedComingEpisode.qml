// SPDX-License-Identifier: MIT
import QtQuick

EpisodeContent {
    property string listItemType
    property string itemStatus
    property real mediaPositionsProgressBarViewed: 0
    property real mediaPositionsProgressBarValue: 0
    readonly property var words: itemStatus.split(" ")

    overlayColor: "#a0101820"
    titleColor: "#8090a0"
    subtitleColor: "#8090a0"

    Line {
        x: 12
        y: lower.y - height
        text: parent.words[0]
        font.pixelSize: 28
    }

    Line {
        id: lower

        x: 12
        y: 142 - height
        text: parent.words[1]
        font.pixelSize: 18
    }
}
