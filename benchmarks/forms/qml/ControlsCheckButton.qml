// SPDX-License-Identifier: MIT
import QtQuick

ControlsButton {
    id: button

    Rectangle {
        visible: button.checked
        x: 24
        y: button.height - 10
        width: 32
        height: 4
        color: "#ffd060"
    }
}
