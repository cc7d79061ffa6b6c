// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Generic

// Progress as an arc on a ring; see ProgressCircle.
ProgressCircle {
    // What assistive programs read beside the value.
    readonly property real minimumValue: from
    readonly property real maximumValue: to

    implicitWidth: 96
    implicitHeight: 96

    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTr("Progress")
    Accessible.description: Math.round(position * 100) + "%"
}
