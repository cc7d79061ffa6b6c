// SPDX-License-Identifier: MIT
import QtQuick

Image {
    x: 123
    y: 64
    source: "qrc:/resources/icons/player/status/play.png"
}
