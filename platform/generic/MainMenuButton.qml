// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Generic

// An entry of the main menu: a picture in the text's colour, a text, and a picture in colours of its own (such as
// a portrait). Whoever owns the menu says which entry is checked; OK only emits clicked(). The background may be
// higher than the button, which keeps its place. A text that has no room is elided. A button that is switched off is
// half transparent. Lengths are pixels.
Pressable {
    id: control

    property string text
    property bool focused: activeFocus
    property bool checked: false

    property real baseHeight: 0 // of the button, unless its text needs more
    property real backgroundHeight: baseHeight
    property real roundingRadius: 0
    property bool animateBackgroundColors: false
    property bool animateTextColors: false
    property int backgroundColorsAnimationDuration: 0 // here and below: milliseconds
    property int textColorsAnimationDuration: 0
    property list<color> backgroundColors: ["transparent"] // here and below: normal, checked, focused
    property font textFont
    property list<color> textColors: ["white"]
    property string leftIconPath
    property list<color> leftIconColors: textColors
    property size leftIconSize
    property string rightIconPath
    property size rightIconSize
    property real rightIconRoundingRadius: 0
    property real spacing: 12 // between pictures and text
    property real leftPadding: 0
    property real rightPadding: 0
    property real topPadding: 0
    property real bottomPadding: 0

    implicitWidth: leftPadding + parts.pictureRoom + (text !== "" ? title.implicitWidth : 0) + rightPadding
    implicitHeight: Math.max(baseHeight, topPadding + parts.implicitHeight + bottomPadding)

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.focused: visible && focused // told again when it comes back into sight
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.pressed: pressed
    Accessible.onPressAction: click()

    Rectangle {
        anchors.centerIn: parent
        width: parent.width
        height: control.backgroundHeight
        radius: control.roundingRadius
        color: ColorsByState.ofMenuButton(control.backgroundColors, control.checked, control.focused)

        Behavior on color {
            enabled: control.animateBackgroundColors
            ColorAnimation {
                duration: control.backgroundColorsAnimationDuration
            }
        }
    }
    Row {
        id: parts

        // What the pictures take, with the spacing beside each.
        readonly property real pictureRoom: leftRoom + rightRoom
        readonly property real leftRoom: control.leftIconPath === "" ? 0 : control.leftIconSize.width
                                         + (control.text !== "" || control.rightIconPath !== "" ? spacing : 0)
        readonly property real rightRoom: control.rightIconPath === "" ? 0 : control.rightIconSize.width
                                          + (control.text !== "" ? spacing : 0)
        readonly property real titleRoom: control.width - control.leftPadding - control.rightPadding - pictureRoom

        anchors.verticalCenter: parent.verticalCenter
        anchors.verticalCenterOffset: (control.topPadding - control.bottomPadding) / 2
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.horizontalCenterOffset: (control.leftPadding - control.rightPadding) / 2
        spacing: control.spacing
        opacity: control.enabled ? 1 : 0.5

        TintedIcon {
            anchors.verticalCenter: parent.verticalCenter
            width: control.leftIconSize.width
            height: control.leftIconSize.height
            visible: path !== ""
            path: control.leftIconPath
            color: ColorsByState.ofMenuButton(control.leftIconColors, control.checked, control.focused)
        }
        Text {
            id: title

            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(0, Math.min(implicitWidth, parts.titleRoom))
            visible: text !== ""
            text: control.text
            textFormat: Text.PlainText
            font: control.textFont
            color: ColorsByState.ofMenuButton(control.textColors, control.checked, control.focused)
            elide: Text.ElideRight

            Behavior on color {
                enabled: control.animateTextColors
                ColorAnimation {
                    duration: control.textColorsAnimationDuration
                }
            }
        }
        TintedIcon {
            anchors.verticalCenter: parent.verticalCenter
            width: control.rightIconSize.width
            height: control.rightIconSize.height
            visible: path !== ""
            path: control.rightIconPath
            radius: control.rightIconRoundingRadius
        }
    }
}
