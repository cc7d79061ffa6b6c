// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// Lets the rows of a list fade out at the ends where it goes on.
Item {
    id: fades

    required property ListView list

    EdgeFade {
        anchors.top: parent.top
        visible: !fades.list.atYBeginning
    }
    EdgeFade {
        anchors.bottom: parent.bottom
        rotation: 180
        visible: !fades.list.atYEnd
    }
}
