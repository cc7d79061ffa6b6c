// SPDX-License-Identifier: MIT
import QtQuick

Rectangle {
    width: label.width + indicator.width + 15
    height: label.height + 8
    color: "#c02030"

    Line {
        id: label

        x: indicator.x + indicator.width + 6
        y: 4
        text: "NOW_IN_LIVE"
        font.pixelSize: 14
    }

    Image {
        id: indicator

        x: 4
        y: 4 + Math.floor((label.height - height) / 2)
        source: "qrc:/resources/icons/live_status_on.png"
    }
}
