// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// One screen of the shell: there while it is open, seen while it is on top, and with the keys unless the menu has them.
// Its document is named and not declared, so that the shell starts without the documents of screens that are not open.
Loader {
    required property ShellController controller
    required property string name
    // What the screen's properties are to be.
    required property var values

    anchors.fill: parent
    // qmllint disable
    active: controller.openScreens.includes(name)
    // qmllint enable
    visible: controller.screen === name
    focus: visible && !controller.menu.open
    Component.onCompleted: setSource(name.charAt(0).toUpperCase() + name.slice(1) + "Screen.qml", values)
}
