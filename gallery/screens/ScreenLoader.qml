// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// One screen of the shell: there while it is open, seen while it is on top, and with the keys unless the menu has them.
Loader {
    required property ShellController controller
    required property string name

    anchors.fill: parent
    // qmllint disable
    active: controller.openScreens.includes(name)
    // qmllint enable
    visible: controller.screen === name
    focus: visible && !controller.menu.open
}
