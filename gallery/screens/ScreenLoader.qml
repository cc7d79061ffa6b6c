// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// One screen of the shell: there while it is open, seen and with the keys while it is on top.
Loader {
    required property ShellController controller
    required property string name

    anchors.fill: parent
    // qmllint disable
    active: controller.openScreens.includes(name)
    // qmllint enable
    visible: controller.screen === name
    focus: visible
}
