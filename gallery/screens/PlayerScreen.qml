// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The channel that is watched. Over its picture lie, when a key is pressed, its programmes and what can be done.
FocusScope {
    id: screen

    required property PlayerController player
    readonly property bool overlaid: player.area !== PlayerController.Picture
    readonly property bool onButtons: player.area === PlayerController.Buttons

    focus: true
    Keys.onPressed: event => event.accepted = player.press(event.key)

    Rectangle {
        anchors.fill: parent
        color: Look.backdrop
        // What keys act on while nothing lies over the picture.
        Accessible.role: Accessible.Graphic
        Accessible.name: screen.player.channelName + " " + screen.player.title
        Accessible.focusable: true
        Accessible.focused: visible && !screen.overlaid && Told.screenFocus
    }
    SizedPicture {
        pictureWidth: Look.screenWidth
        pictureHeight: Look.screenHeight
        visible: String(source).length > 0
        source: screen.player.picture
    }
    Label {
        // Above what the overlay shows.
        y: Math.round(0.3 * parent.height)
        anchors.horizontalCenter: parent.horizontalCenter
        width: parent.width - 2 * Look.safeX
        visible: screen.player.locked || screen.player.title.length === 0
        text: screen.player.locked ? qsTr("This channel is locked")
                                   : screen.player.channelName.length > 0 ? qsTr("There is nothing on now")
                                                                          : qsTr("There are no channels to watch")
        font: Look.heading
        color: Look.quietText
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        maximumLineCount: 2
    }
    Item {
        anchors.fill: parent
        visible: screen.overlaid

        Rectangle {
            width: parent.width
            height: Math.round(0.33 * parent.height)
            gradient: Gradient {
                GradientStop {
                    position: 0.5
                    color: Look.badge
                }
                GradientStop {
                    position: 1
                    color: Look.clear
                }
            }
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: parent.height - status.y + 2 * Look.huge
            gradient: Gradient {
                GradientStop {
                    position: 0
                    color: Look.clear
                }
                GradientStop {
                    position: 0.2
                    color: Look.badge
                }
                GradientStop {
                    position: 1
                    color: Look.backdrop
                }
            }
        }
        Row {
            anchors.top: parent.top
            anchors.topMargin: Look.safeY
            anchors.left: parent.left
            anchors.leftMargin: Look.safeX
            spacing: Look.medium

            Label {
                text: screen.player.channelNumber
                font: Look.headline
                color: Look.accent
                visible: text.length > 0
            }
            Label {
                width: Math.min(implicitWidth, Math.round(0.6 * screen.width))
                text: screen.player.channelName
                font: Look.headline
            }
        }
        Label {
            id: clock

            anchors.top: parent.top
            anchors.topMargin: Look.safeY
            anchors.right: parent.right
            anchors.rightMargin: Look.safeX
            text: screen.player.clockText
            font: Look.headline
        }
        Row {
            anchors.top: clock.bottom
            anchors.topMargin: Look.small
            anchors.right: clock.right
            spacing: Look.large

            KeyHint {
                visible: screen.onButtons || screen.player.programmeRow >= 0
                key: "◀ ▶"
                text: screen.onButtons ? qsTr("Action") : qsTr("Programme")
            }
            KeyHint {
                visible: screen.onButtons || screen.player.canZap
                key: screen.onButtons ? "▲" : "▲ ▼"
                text: screen.onButtons ? qsTr("Programmes") : qsTr("Channel")
            }
            KeyHint {
                visible: !screen.onButtons
                key: qsTr("OK", "a key of the remote control")
                text: qsTr("Actions")
            }
            KeyHint {
                key: qsTr("BACK", "a key of the remote control")
                text: qsTr("Hide")
            }
        }
        PlayerStatus {
            id: status

            anchors.left: parent.left
            anchors.leftMargin: Look.safeX
            anchors.right: parent.right
            anchors.rightMargin: Look.safeX
            anchors.bottom: programmes.top
            anchors.bottomMargin: Look.medium
            player: screen.player
        }
        PlayingProgrammes {
            id: programmes

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: buttons.top
            anchors.bottomMargin: Look.small
            player: screen.player
        }
        PlayerButtons {
            id: buttons

            anchors.left: status.left
            anchors.right: status.right
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Look.safeY
            player: screen.player
        }
    }
}
