// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Controls.Basic

ItemDelegate {
    property alias listItemType: content.listItemType
    property alias itemTitle: content.itemTitle
    property alias itemSubtitle: content.itemSubtitle
    property alias itemStatus: content.itemStatus
    property alias mediaPositionsProgressBarViewed: content.mediaPositionsProgressBarViewed
    property alias mediaPositionsProgressBarValue: content.mediaPositionsProgressBarValue
    property alias imageSource: content.imageSource

    padding: 0
    horizontalPadding: 0
    background: null

    // qmllint disable deferred-property-id
    contentItem: ComposedComingEpisode {
        id: content
    }
}
