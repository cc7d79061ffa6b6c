// SPDX-License-Identifier: MIT
import QtQuick

Rectangle {
    property alias text: label.text

    x: 257 - width
    y: 141 - height
    width: label.width + 16
    height: label.height + 6
    color: "#304860"

    Line {
        id: label

        x: 8
        y: 3
        font.pixelSize: 16
    }
}
