// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Controls.Basic

ItemDelegate {
    property alias tvProgramStartTimeText: content.tvProgramStartTimeText
    property alias itemTitle: content.itemTitle
    property alias itemSubtitle: content.itemSubtitle
    property alias tvProgramIsLive: content.tvProgramIsLive
    property alias tvProgramIsFuture: content.tvProgramIsFuture
    property alias tvProgramIsPast: content.tvProgramIsPast
    property alias tvProgramPlayable: content.tvProgramPlayable
    property alias tvProgramHasReminder: content.tvProgramHasReminder
    property alias tvProgramProgress: content.tvProgramProgress
    property alias imageSource: content.imageSource

    padding: 0
    horizontalPadding: 0
    background: null

    // qmllint disable deferred-property-id
    contentItem: ComposedEpgCard {
        id: content
    }
}
