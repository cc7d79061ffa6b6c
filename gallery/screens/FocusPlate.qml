// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The bright plate under what remote keys act on. There is one on the screen at any time.
Rectangle {
    objectName: "focusPlate"
    color: Look.focus
    radius: Look.radius
}
