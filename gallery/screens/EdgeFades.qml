// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// Lets the rows of a list fade out at the ends where it goes on.
Item {
    id: fades

    required property ListView list

    Fade {
        anchors.top: parent.top
        visible: !fades.list.atYBeginning
    }
    Fade {
        anchors.bottom: parent.bottom
        rotation: 180
        visible: !fades.list.atYEnd
    }

    component Fade: Rectangle {
        width: parent.width
        height: Look.huge
        gradient: Gradient {
            GradientStop {
                position: 0
                color: Look.backdrop
            }
            GradientStop {
                position: 1
                color: "transparent"
            }
        }
    }
}
