// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// Channels one below the other, each with its logo and what is on.
ListView {
    id: list

    required property ChannelsController controller

    // As high as the logo, or as the texts and the progress below each other.
    // qmllint disable type
    readonly property var rowStyle: QmlDesignSystem.playerTvChannelItemStyle.style
    readonly property int rowHeight: Math.max(2 * Look.channelLogo.y + Look.channelLogo.height,
                                              rowStyle.textTopOffset + Math.ceil(nameFont.height)
                                              + rowStyle.programNameSpacing + Math.ceil(programmeFont.height)
                                              + rowStyle.progressBarRect.height + rowStyle.bottomMargin)
    // qmllint enable type
    readonly property int visibleRows: Math.max(1, Math.floor(height / rowHeight))

    interactive: false
    clip: true
    // Rows made ahead of need would still be on their way when the model is reset, which Qt warns of.
    cacheBuffer: 0
    highlightFollowsCurrentItem: false
    model: controller.channels
    currentIndex: controller.channelRow
    delegate: Item {
        id: row

        required property int channel
        required property string name
        required property string number
        required property url logo
        required property string quality
        required property bool locked
        required property string programme
        required property double progress
        required property bool playing

        objectName: "channelRow"
        width: ListView.view.width
        // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
        // qmllint disable unqualified
        height: list.rowHeight
        // qmllint enable unqualified

        FocusPlate {
            anchors.fill: parent
            visible: row.ListView.isCurrentItem
        }
        // Under logos, which may be dark or bright and have holes.
        Rectangle {
            x: Look.channelLogo.x
            y: Look.channelLogo.y
            width: Look.channelLogo.width
            height: Look.channelLogo.height
            visible: String(row.logo).length > 0
            // The lock on it is white in each theme.
            color: Look.raised.hslLightness > 0.5 ? Look.quietText : Look.raised
        }
        // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that. It does not
        // know pixmaps either.
        // qmllint disable unqualified type
        TvChannelViewDelegate {
            anchors.fill: parent
            style: row.ListView.isCurrentItem ? Look.focusedChannel : QmlDesignSystem.playerTvChannelItemStyle
            imageSource: Pictures.framed(row.logo, Look.channelLogo.width, Look.channelLogo.height, Look.tiny)
            canvas: sheet.canvas(row.channel)
            cachedChannelRect: sheet.cell(row.channel)
            channelListChannelName: row.name
            channelListChannelNumber: row.number
            channelListChannelQuality: row.quality
            channelListLockIconVisible: row.locked
            channelListProgramName: row.programme
            channelListProgramProgress: row.progress
            channelListChannelLive: row.playing
            Accessible.role: Accessible.ListItem
            Accessible.name: row.number + " " + row.name
            Accessible.description: row.programme
            Accessible.focusable: true
            Accessible.focused: visible && row.ListView.isCurrentItem && Told.screenFocus
            Accessible.selectable: true
            Accessible.selected: row.playing
        }
        // qmllint enable unqualified type
    }

    MiddleKeeper {
        list: list
    }
    // qmllint disable type
    FontMetrics {
        id: nameFont

        font: list.rowStyle.channelNameTextStyle.font
    }
    FontMetrics {
        id: programmeFont

        font: list.rowStyle.programNameTextStyle.font
    }
    // qmllint enable type
    LogoSheet {
        id: sheet

        controller: list.controller
        // qmllint disable type
        cellSize: Qt.size(Look.channelLogo.width, Look.channelLogo.height)
        font: Look.heading
        // On a dark plate in each theme, as the number is.
        color: QmlDesignSystem.playerTvChannelItemStyle.style.channelNumberTextStyle.color
        // qmllint enable type
        plate: Qt.darker(Look.accent, 2.3)
    }
}
