// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// The day's programmes of the chosen channel; the one that keys act on shows its card.
ListView {
    id: list

    // Whether the chosen row shows its card.
    property bool cardShown: focus
    // How many rows fit, most of which have a title and a line below it.
    readonly property int visibleRows: Math.max(1, Math.floor(height / (titleFont.height + subtitleFont.height + Look.medium)))
    // qmllint disable type
    readonly property rect cardArea: Look.focusedRow.style.previewRect
    // qmllint enable type

    implicitWidth: Look.rowTextArea.x + Look.rowTextArea.width + 2 * Look.medium
    interactive: false
    clip: true
    // Rows made ahead of need would still be on their way when the model is reset, which Qt warns of.
    cacheBuffer: 0
    highlightFollowsCurrentItem: false
    // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
    // qmllint disable unqualified
    delegate: Item {
        id: row

        readonly property bool chosen: ListView.isCurrentItem
        readonly property bool focused: chosen && list.cardShown
        readonly property EpgViewDelegateFocused focusedForm: card.item as EpgViewDelegateFocused
        required property string title
        required property string subtitle
        required property string startTimeText
        required property bool isLive
        required property bool isFuture
        required property bool isPast
        required property bool isPlayable
        required property bool hasReminder
        required property double progress
        required property url picture

        objectName: "programme"
        width: ListView.view.width
        // A row measures one pixel less than what it paints.
        height: (focusedForm ? focusedForm.height : programme.height) + 1 + 2 * Look.small

        Rectangle {
            anchors.fill: parent
            visible: row.chosen
            color: Look.raised
            radius: Look.radius
        }
        EpgViewDelegate {
            id: programme

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.margins: Look.medium
            y: Look.small
            visible: !row.focused
            style: QmlDesignSystem.playerEpgDelegateStyle
            itemTitle: row.title
            itemSubtitle: row.subtitle
            tvProgramStartTimeText: row.startTimeText
            tvProgramIsLive: row.isLive
            tvProgramIsFuture: row.isFuture
            // What cannot be watched, now or later, is dimmed.
            tvProgramPlayable: row.isPlayable || row.isFuture
            Accessible.role: Accessible.ListItem
            Accessible.name: row.startTimeText + " " + row.title
            Accessible.description: row.subtitle
            Accessible.focusable: true
            Accessible.selectable: true
            Accessible.selected: row.chosen
            // A reminder can be set for what is to come.
            Accessible.checkable: row.isFuture
            Accessible.checked: row.hasReminder
        }
        Image {
            objectName: "reminderMark"
            x: programme.x + Look.rowTextArea.x - width - Look.small
            y: programme.y + Math.round((titleFont.height - height) / 2)
            width: Math.round(20 * Look.unit)
            height: width
            visible: row.hasReminder && row.isFuture && !row.focused
            source: "qrc:/resources/icons/reminder_small.png"
        }
        Loader {
            id: card

            anchors.left: programme.left
            anchors.right: programme.right
            y: Look.small
            active: row.focused
            sourceComponent: EpgViewDelegateFocused {
                objectName: "card"
                style: Look.focusedRow
                imageSource: Pictures.filling(row.picture, list.cardArea.width, list.cardArea.height)
                itemTitle: row.title
                itemSubtitle: row.subtitle
                tvProgramStartTimeText: row.startTimeText
                tvProgramIsLive: row.isLive
                tvProgramIsFuture: row.isFuture
                tvProgramIsPast: row.isPast
                tvProgramPlayable: row.isPlayable
                tvProgramProgress: row.progress
                tvProgramHasReminder: row.hasReminder
                Accessible.role: Accessible.ListItem
                Accessible.name: row.startTimeText + " " + row.title
                Accessible.description: row.subtitle
                Accessible.focusable: true
                Accessible.focused: visible && list.focus && Told.screenFocus
                Accessible.selectable: true
                Accessible.selected: row.chosen
                // A reminder can be set for what is to come.
                Accessible.checkable: row.isFuture
                Accessible.checked: row.hasReminder

                FocusPlate {
                    x: parent.customFocusRect.x - Look.frame
                    y: parent.customFocusRect.y - Look.frame
                    z: -1
                    visible: list.focus
                    width: parent.customFocusRect.width + 2 * Look.frame
                    height: parent.customFocusRect.height + 2 * Look.frame
                    radius: 0
                }
            }
        }
    }
    // qmllint enable unqualified

    MiddleKeeper {
        list: list
    }
    // qmllint disable type
    FontMetrics {
        id: titleFont

        font: QmlDesignSystem.playerEpgDelegateStyle.style.titleTextStyle.font
    }
    FontMetrics {
        id: subtitleFont

        font: QmlDesignSystem.playerEpgDelegateStyle.style.subtitleTextStyle.font
    }
    // qmllint enable type
}
