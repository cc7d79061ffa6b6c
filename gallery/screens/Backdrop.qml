// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// A wide picture in the upper corner where reading ends, which fades away towards the text. Without a picture, or
// with one that cannot be loaded, there is nothing to be seen.
Item {
    id: backdrop

    // Its size is fixed when it is made.
    required property url source

    visible: String(source).length > 0

    SizedPicture {
        pictureWidth: backdrop.width
        pictureHeight: backdrop.height
        source: backdrop.source
    }
    Rectangle {
        anchors.fill: parent
        rotation: LayoutMirroring.enabled ? 180 : 0
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop {
                position: 0.1
                color: Look.backdrop
            }
            GradientStop {
                position: 0.7
                color: Look.veil
            }
        }
    }
    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: Math.round(parent.height / 2)
        gradient: Gradient {
            GradientStop {
                position: 0
                color: "transparent"
            }
            GradientStop {
                position: 1
                color: Look.backdrop
            }
        }
    }
}
