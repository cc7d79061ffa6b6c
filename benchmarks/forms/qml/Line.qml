// SPDX-License-Identifier: MIT
import QtQuick

Text {
    textFormat: Text.PlainText
    elide: Text.ElideRight
    font.family: "DejaVu Sans"
    color: "white"
}
