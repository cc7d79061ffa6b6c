// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// Lets what goes on above the screen's or a list's edge fade out; turned by 180 degrees, what goes on below.
Rectangle {
    objectName: "edgeFade"
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
