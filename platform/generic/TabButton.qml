// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Stbui.UI.Qml.Controls.Generic

// A tab: OK selects it, alone among the tabs of its parent. The focus is shown before the selection. A tab that is
// switched off is half transparent. Lengths are pixels.
T.TabButton {
    id: control

    property bool animateBackgroundColors: false
    property bool animateTextColors: false
    property int backgroundColorsAnimationDuration: 200 // here and below: milliseconds
    property int textColorsAnimationDuration: 200
    property color backgroundColor: "transparent"
    property color backgroundFocusedColor: "white"
    property color backgroundSelectedColor: "gray"
    property color textColor: "gray"
    property color textFocusedColor: "black"
    property color textSelectedColor: "white"
    property real roundingRadius: 0
    property real minimumWidth: 0
    property real minimumHeight: 0
    property string iconPath
    property size iconSize: Qt.size(24, 24) // the icon takes the text's colour

    readonly property color shownTextColor: activeFocus ? textFocusedColor : checked ? textSelectedColor : textColor

    implicitWidth: Math.max(minimumWidth, leftPadding + (icon.visible ? iconSize.width : 0)
                            + (icon.visible && title.visible ? spacing : 0)
                            + (title.visible ? title.implicitWidth : 0) + rightPadding)
    implicitHeight: Math.max(minimumHeight, topPadding + Math.max(icon.visible ? iconSize.height : 0,
                                                                  title.implicitHeight) + bottomPadding)
    spacing: 12

    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.selectable: true
    Accessible.selected: checked

    background: Rectangle {
        radius: control.roundingRadius
        color: control.activeFocus ? control.backgroundFocusedColor
                                   : control.checked ? control.backgroundSelectedColor : control.backgroundColor

        Behavior on color {
            enabled: control.animateBackgroundColors
            ColorAnimation {
                duration: control.backgroundColorsAnimationDuration
            }
        }
    }
    Row {
        id: parts

        readonly property real titleRoom: control.availableWidth - (icon.visible ? icon.width + spacing : 0)

        anchors.centerIn: parent
        anchors.horizontalCenterOffset: (control.leftPadding - control.rightPadding) / 2
        anchors.verticalCenterOffset: (control.topPadding - control.bottomPadding) / 2
        spacing: control.spacing
        opacity: control.enabled ? 1 : 0.5

        TintedIcon {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            width: control.iconSize.width
            height: control.iconSize.height
            visible: path !== ""
            path: control.iconPath
            color: control.shownTextColor
        }
        Text {
            id: title

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parts.titleRoom)
            visible: text !== ""
            text: control.text
            textFormat: Text.PlainText
            font: control.font
            color: control.shownTextColor
            elide: Text.ElideRight

            Behavior on color {
                enabled: control.animateTextColors
                ColorAnimation {
                    duration: control.textColorsAnimationDuration
                }
            }
        }
    }
    OkKey {
        target: control
    }
}
