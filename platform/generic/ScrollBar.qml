// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// Shows which part of a view is seen: attached to a Flickable (T.ScrollBar.vertical) or with "size" and "position"
// set. It is not there when all fits, unless its policy says otherwise.
T.ScrollBar {
    id: control

    property color backgroundColor: Qt.alpha(sliderColor, 0.3)
    property color sliderColor: "gray"
    property real thickness: 6 // pixels across
    property real roundingRadius: 0

    // What assistive programs read: how far the view can scroll, and has scrolled, as shares of its content.
    readonly property real minimumValue: 0
    readonly property real maximumValue: Math.max(0, 1 - size)
    readonly property real value: position

    implicitWidth: leftPadding + implicitContentWidth + rightPadding
    implicitHeight: topPadding + implicitContentHeight + bottomPadding
    visible: policy === T.ScrollBar.AlwaysOn || (policy === T.ScrollBar.AsNeeded && size > 0 && size < 1)
    // The slider of a very long list is still as long as it is thick.
    minimumSize: orientation === Qt.Horizontal ? height / width : width / height

    Accessible.name: qsTr("Scroll bar")

    background: Rectangle {
        color: control.backgroundColor
        radius: control.roundingRadius
    }
    contentItem: Rectangle {
        implicitWidth: control.thickness
        implicitHeight: control.thickness
        color: control.sliderColor
        radius: control.roundingRadius
    }
}
