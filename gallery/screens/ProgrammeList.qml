// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// The day's programmes of the chosen channel.
ListView {
    // How many rows fit, on average.
    readonly property int visibleRows: count > 0 ? Math.floor(height * count / contentHeight) : 1

    implicitWidth: Look.rowTextArea.x + Look.rowTextArea.width + 2 * Look.medium
    interactive: false
    clip: true
    // Rows made ahead of need would still be on their way when the model is reset, which Qt warns of.
    cacheBuffer: 0
    // The chosen row stays in the middle as far as the ends of the list allow, at once: a view that follows a
    // highlight gets there in steps of an animation, and is elsewhere when a key comes in between.
    highlightFollowsCurrentItem: false
    onCurrentItemChanged: positionViewAtIndex(currentIndex, ListView.Center)
    onHeightChanged: positionViewAtIndex(currentIndex, ListView.Center)
    delegate: Item {
        id: row

        readonly property bool focused: ListView.isCurrentItem && ListView.view.focus
        required property string title
        required property string subtitle
        required property string startTimeText
        required property bool isLive
        required property bool isFuture
        required property bool isPlayable

        width: ListView.view.width
        // A row measures one pixel less than what it paints.
        height: programme.height + 1 + 2 * Look.small
        Accessible.role: Accessible.ListItem
        Accessible.name: startTimeText + " " + title

        FocusPlate {
            anchors.fill: parent
            visible: row.focused
        }
        EpgViewDelegate {
            id: programme

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.margins: Look.medium
            y: Look.small
            style: row.focused ? Look.focusedRow : QmlDesignSystem.playerEpgDelegateStyle
            itemTitle: row.title
            itemSubtitle: row.subtitle
            tvProgramStartTimeText: row.startTimeText
            tvProgramIsLive: row.isLive
            tvProgramIsFuture: row.isFuture
            // There is no recording to go back to: what is over is dimmed, what is to come is not.
            tvProgramPlayable: row.isFuture
        }
    }
}
