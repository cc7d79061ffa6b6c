// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The chosen programme, large, over the dimmed screen.
SlidingPanel {
    id: overlay

    required property GuideController guide

    Accessible.role: Accessible.Dialog
    Accessible.name: guide.title
    Accessible.description: guide.description
    Accessible.focusable: true
    Accessible.focused: open && Told.screenFocus

    Rectangle {
        anchors.fill: parent
        color: Look.backdrop
        opacity: 0.85 * overlay.progress
    }
    // From below.
    FocusPlate {
        readonly property int place: Math.round((footer.y - height) / 2)

        anchors.horizontalCenter: parent.horizontalCenter
        y: place + Math.round((1 - overlay.progress) * (parent.height - place))
        width: Math.min(Math.round(860 * Look.unit), parent.width - 2 * Look.safeX)
        height: card.height + 2 * Look.tiny

        Rectangle {
            id: card

            anchors.centerIn: parent
            width: parent.width - 2 * Look.tiny
            height: facts.height + 2 * Look.huge
            color: Look.surface
            radius: Look.innerRadius

            ProgrammeFacts {
                id: facts

                anchors.centerIn: parent
                width: parent.width - 2 * Look.huge
                guide: overlay.guide
                room: footer.y - Look.safeY - 2 * Look.huge - 2 * Look.tiny - Look.small
            }
        }
    }
    Item {
        id: footer

        anchors.bottom: parent.bottom
        anchors.bottomMargin: Look.safeY
        anchors.left: parent.left
        anchors.leftMargin: Look.safeX
        anchors.right: parent.right
        anchors.rightMargin: Look.safeX
        height: hints.height
        visible: overlay.open

        Label {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: overlay.guide.notice
            font: Look.hint
        }
        Row {
            id: hints

            objectName: "detailsHints"
            anchors.right: parent.right
            visible: overlay.guide.notice.length === 0
            spacing: Look.large

            KeyHint {
                visible: Look.wide && (overlay.guide.leftChannelName + overlay.guide.rightChannelName).length > 0
                key: "◀ ▶"
                text: qsTr("Channel")
            }
            KeyHint {
                key: "▲ ▼"
                text: overlay.guide.detailsPages > 1 ? qsTr("Read on") : qsTr("Programme")
            }
            KeyHint {
                visible: overlay.guide.playAction !== GuideController.NothingToPlay
                key: qsTr("OK", "a key of the remote control")
                text: overlay.guide.playAction === GuideController.PlayLive ? qsTr("Watch") : qsTr("From the start")
            }
            KeyHint {
                key: qsTr("BACK", "a key of the remote control")
                text: qsTr("Close")
            }
        }
    }
}
