// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// One line of plain text that ends in an ellipsis when it is too long.
Text {
    color: Look.text
    font: Look.body
    textFormat: Text.PlainText
    elide: Text.ElideRight
    maximumLineCount: 1
    // The reading direction of the screen decides the side, not the script of the text.
    horizontalAlignment: Text.AlignLeft
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
