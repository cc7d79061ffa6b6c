// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// Lets rows fade out at the upper edge of a list that goes on there; turned round, at the lower one.
Rectangle {
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
