// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// The ways to the screens, side by side. Where they do not all fit, the one that keys act on, or would, is in the
// middle as far as possible, and those beyond an edge fade out there.
Item {
    id: mainMenu

    required property MainMenuController menu
    // Whether keys act on the menu.
    required property bool active
    readonly property MainMenuButtonQmlStyle style: QmlDesignSystem.mainMenuButtonQmlStyle
    // An entry that has the focus is higher than the others and stands out above and below.
    readonly property int overhang: Math.max(0, Math.ceil((style.backgroundFocusedHeight - height) / 2))

    readonly property Item middle: entries.count > 0 ? entries.itemAt(active ? menu.chosen : Math.max(0, menu.current))
                                                     : null
    readonly property real excess: Math.max(0, row.width - width)
    readonly property real hiddenLeft: middle ? Math.max(0, Math.min(excess, middle.x + (middle.width - width) / 2)) : 0
    // Nothing moves before everything has its place.
    property bool completed: false

    implicitHeight: Math.max(style.backgroundCheckedHeight, row.height)
    Component.onCompleted: completed = true
    Accessible.role: Accessible.MenuBar
    Accessible.name: qsTr("Main menu")

    Item {
        id: strip

        objectName: "menuEntries"
        y: -mainMenu.overhang
        width: parent.width
        height: parent.height + 2 * mainMenu.overhang
        clip: true

        Row {
            id: row

            x: LayoutMirroring.enabled && mainMenu.excess === 0 ? strip.width - width
                                                                : -Math.round(mainMenu.hiddenLeft)
            y: mainMenu.overhang
            spacing: Look.tiny

            Behavior on x {
                enabled: mainMenu.completed && mainMenu.visible && QmlSettings.layoutScrollingAnimationsEnabled
                SmoothedAnimation {
                    duration: Look.scrollTime
                    velocity: -1
                }
            }
            Repeater {
                id: entries

                model: mainMenu.menu.entries
                // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
                // qmllint disable unqualified
                delegate: MainMenuButton {
                    required property int index
                    required property string modelData
                    readonly property bool current: index === mainMenu.menu.current
                    readonly property bool chosen: mainMenu.active && index === mainMenu.menu.chosen

                    objectName: "menuEntry"
                    text: mainMenu.menu.text(modelData)
                    checked: current
                    // Not by what is checked, which the states set themselves.
                    state: chosen ? "focused" : current ? "checked" : "normal"
                }
                // qmllint enable unqualified
            }
        }
    }
    MainMenuEffect {
        objectName: "menuFades"
        anchors.fill: strip
        color: Look.backdrop
        leftGradientOpacity: mainMenu.hiddenLeft > 0 ? 1 : 0
        rightGradientOpacity: mainMenu.hiddenLeft < mainMenu.excess ? 1 : 0
    }
}
