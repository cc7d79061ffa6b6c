// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Controls.Basic

ItemDelegate {
    property alias channelListChannelName: content.channelListChannelName
    property alias channelListChannelNumber: content.channelListChannelNumber
    property alias channelListChannelQuality: content.channelListChannelQuality
    property alias channelListProgramName: content.channelListProgramName
    property alias channelListProgramProgress: content.channelListProgramProgress
    property alias channelListChannelLive: content.channelListChannelLive
    property alias channelListLockIconVisible: content.channelListLockIconVisible
    property alias channelNameColor: content.channelNameColor
    property alias cachedChannelRect: content.cachedChannelRect
    property alias canvas: content.canvas
    property alias imageSource: content.imageSource

    padding: 0
    horizontalPadding: 0
    background: null

    // qmllint disable deferred-property-id
    contentItem: ComposedChannelRow {
        id: content
    }
}
