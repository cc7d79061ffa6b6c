// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Stbui.UI.Qml.Controls.Generic

// A check box, and with forceRounding a radio button: round, and exclusive among the buttons of its parent (or of
// its ButtonGroup). A box that is not checked is an empty frame, a checked one is filled and has the mark. The colours
// follow the state, checked before focused; so that a checked box shows the focus too, its indicator then has a frame
// in the focused colour. Lengths are pixels.
T.AbstractButton { // the template's CheckBox does not know autoExclusive
    id: control

    property real roundingRadius: 0
    property bool forceRounding: false
    property alias indicatorSize: mark.pictureSize
    property list<color> indicatorColors: ["gray"] // here and below: normal, checked, disabled, focused
    property string iconPath
    property list<color> iconColors: ["white"]
    property font titleFont
    property list<color> titleColors: ["gray"]
    property real frameWidth: 3 // while it is not checked
    property real focusFrameWidth: 3

    implicitWidth: leftPadding + box.width + (text ? spacing + title.implicitWidth : 0) + rightPadding
    implicitHeight: topPadding + Math.max(box.height, title.implicitHeight) + bottomPadding
    checkable: true
    autoExclusive: forceRounding

    // The template of Qt 6.4 tells assistive programs of a check box, whatever stands here.
    Accessible.role: forceRounding ? Accessible.RadioButton : Accessible.CheckBox
    Accessible.name: text

    Rectangle {
        id: box

        x: control.mirrored ? control.width - width - control.rightPadding : control.leftPadding
        y: control.topPadding + (control.availableHeight - height) / 2
        width: mark.implicitWidth
        height: mark.implicitHeight
        radius: control.forceRounding ? Math.min(width, height) / 2 : control.roundingRadius
        color: control.checked ? ColorsByState.ofControl(control.indicatorColors, control.enabled, true, false)
                               : "transparent"
        border.width: Math.max(control.checked ? 0 : control.frameWidth,
                               control.activeFocus ? control.focusFrameWidth : 0)
        border.color: ColorsByState.ofControl(control.indicatorColors, control.enabled, false, control.activeFocus)

        TintedIcon {
            id: mark

            visible: control.checked
            path: control.iconPath
            color: ColorsByState.ofControl(control.iconColors, control.enabled, control.checked,
                                           control.activeFocus)
        }
    }
    Text {
        id: title

        x: control.mirrored ? box.x - control.spacing - width : box.x + box.width + control.spacing
        y: control.topPadding
        width: Math.min(implicitWidth, control.availableWidth - box.width - control.spacing)
        height: control.availableHeight
        text: control.text
        textFormat: Text.PlainText
        font: control.titleFont
        color: ColorsByState.ofControl(control.titleColors, control.enabled, control.checked,
                                       control.activeFocus)
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }
    OkKey {
        target: control
    }
}
