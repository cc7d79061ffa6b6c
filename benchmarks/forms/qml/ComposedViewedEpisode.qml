// SPDX-License-Identifier: MIT
import QtQuick

EpisodeContent {
    property string listItemType
    property alias itemStatus: badge.text
    property real mediaPositionsProgressBarViewed: 0
    property real mediaPositionsProgressBarValue: 0

    overlayColor: "#a0101820"

    EpisodeBadge {
        id: badge
    }
}
