// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Gallery

// What lies over a screen while it is open. It is seen until it has gone, but has the keys only while it is open.
FocusScope {
    id: panel

    required property bool open
    // How much of the way in it has gone: 0 out of sight, 1 in its place.
    property real progress: open ? 1 : 0

    visible: open || progress > 0
    focus: open

    Behavior on progress {
        enabled: QmlSettings.slidingAnimationsEnabled
        NumberAnimation {
            duration: Look.scrollTime
            easing.type: Easing.OutCubic
        }
    }
}
