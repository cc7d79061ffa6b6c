// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// The programmes of the channel that is watched, side by side: what is over, what is on, what is to come.
Item {
    id: programmes

    required property PlayerController player
    readonly property bool active: player.area === PlayerController.Programmes
    // qmllint disable type
    readonly property rect cell: Look.programme.style.delegateRect
    readonly property rect image: QmlDesignSystem.playerHorizontalEpgViewStyle.style.imageRect
    // qmllint enable type
    readonly property int step: cell.width + Look.medium

    height: cell.height + 2 * Look.frame

    ListView {
        id: list

        // Between its margins the list is less than nothing wide at first, and what is placed then gets places
        // that a mirrored list of Qt 6.11 does not find again.
        function showCurrent() {
            if (width > 0)
                positionViewAtIndex(currentIndex, ListView.Beginning);
        }

        objectName: "programmes"
        anchors.fill: parent
        anchors.leftMargin: Look.safeX
        anchors.rightMargin: Look.safeX
        orientation: ListView.Horizontal
        spacing: programmes.step - programmes.cell.width
        interactive: false
        // Cells made ahead of need would still be on their way when the model is reset, which Qt warns of.
        cacheBuffer: 0
        // What is before and after goes on to the edges of the screen.
        displayMarginBeginning: Look.safeX
        displayMarginEnd: Look.safeX
        // The chosen programme has its place where reading starts, the last one too.
        leftMargin: LayoutMirroring.enabled ? width - programmes.cell.width : 0
        rightMargin: LayoutMirroring.enabled ? 0 : width - programmes.cell.width
        model: programmes.player.programmes
        currentIndex: programmes.player.programmeRow
        // At once: the list is as long as the guide, and another channel has other programmes.
        onCurrentItemChanged: showCurrent()
        onWidthChanged: showCurrent()
        highlightFollowsCurrentItem: false
        // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
        // qmllint disable unqualified
        delegate: Item {
            id: row

            required property string title
            required property string exactDate
            required property string description
            required property url picture
            required property bool live
            required property bool past
            required property real progress

            width: programmes.cell.width
            height: list.height
            opacity: past && !ListView.isCurrentItem ? 0.85 : 1

            FocusPlate {
                anchors.fill: parent
                anchors.leftMargin: -Look.frame
                anchors.rightMargin: -Look.frame
                radius: 0
                visible: row.ListView.isCurrentItem && programmes.active
            }
            HorizontalEpgViewDelegate {
                objectName: "programme"
                y: Look.frame
                width: programmes.cell.width
                height: programmes.cell.height
                style: Look.programme
                imageSource: Pictures.filling(row.picture, programmes.image.width, programmes.image.height)
                itemTitle: row.title
                tvProgramExactDate: row.exactDate
                tvProgramDescription: row.description
                Accessible.role: Accessible.ListItem
                Accessible.name: row.exactDate + " " + row.title
                Accessible.description: row.description
                Accessible.focusable: true
                Accessible.focused: visible && row.ListView.isCurrentItem && programmes.active && Told.screenFocus
                Accessible.selectable: true
                Accessible.selected: row.ListView.isCurrentItem
            }
            ProgressLine {
                y: Look.frame + programmes.cell.height - height
                width: programmes.cell.width
                visible: row.live
                progress: row.progress
            }
        }
        // qmllint enable unqualified
    }
    FocusPlate {
        x: LayoutMirroring.enabled ? parent.width - width - Look.safeX : Look.safeX
        width: programmes.cell.width
        height: parent.height
        visible: programmes.active && programmes.player.programmeRow < 0
        Accessible.role: Accessible.StaticText
        Accessible.name: nothing.text
        Accessible.focusable: true
        Accessible.focused: visible && Told.screenFocus

        Label {
            id: nothing

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.margins: Look.medium
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("This channel has no programme guide")
            color: Look.textOnFocus
            wrapMode: Text.Wrap
            maximumLineCount: 2
        }
    }
}
