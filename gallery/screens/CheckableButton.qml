// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Gallery

// A button that shows that it is checked by its mark, and that it has the focus too: by itself a checked button has
// the colours of one that is checked, wherever the focus is.
PlayerButton {
    id: button

    // Whether OK checks it and takes the check back.
    property bool checkable: true

    forceTitleColor: focused
    titleForcedColor: Look.textOnFocus
    // Narrow screens have no room for the style's.
    leftPadding: Look.wide ? 0 : Look.medium + Look.tiny
    rightPadding: leftPadding
    Accessible.role: Accessible.Button
    Accessible.name: titleText
    Accessible.focusable: true
    Accessible.focused: visible && focused && Told.screenFocus
    Accessible.checkable: checkable
    Accessible.checked: checked

    FocusPlate {
        anchors.fill: parent
        objectName: "buttonPlate"
        z: -1
        radius: 0
        visible: button.focused && button.checked
    }
}
