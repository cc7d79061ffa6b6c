// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Generic

// Tells that a long operation is under way: a turning arc with a header and a description below it, in the middle
// of the item. When it does not run, nothing is to be seen. Lengths are pixels.
Item {
    id: control

    property bool running: true
    property string header
    property string description

    property int animationInterval: 17 // milliseconds from one step of the arc to the next
    property int throbberWidth: 48
    property int throbberHeight: 48
    property int throbberPenWidth: 4
    property color throbberColor: headerColor // on a ring of the same colour, nearly clear
    property int spacing: 16 // between the arc and the texts

    property font headerFont
    property color headerColor: "white"
    property int headerLeftMargin: 0
    property int headerRightMargin: 0
    property font descriptionFont
    property color descriptionColor: "white"
    property int descriptionLeftMargin: 0
    property int descriptionRightMargin: 0

    implicitWidth: Math.max(throbberWidth,
                            header !== "" ? headerText.implicitWidth + headerLeftMargin + headerRightMargin : 0,
                            description !== "" ? descriptionText.implicitWidth + descriptionLeftMargin
                                          + descriptionRightMargin : 0)
    implicitHeight: parts.implicitHeight

    Accessible.role: Accessible.Indicator
    Accessible.name: header !== "" ? header : qsTr("Please wait")
    Accessible.description: description
    Accessible.ignored: !running

    Column {
        id: parts

        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        spacing: control.spacing
        visible: control.running

        Throbber {
            anchors.horizontalCenter: parent.horizontalCenter
            width: control.throbberWidth
            height: control.throbberHeight
            running: control.running
            interval: control.animationInterval
            penWidth: control.throbberPenWidth
            color: control.throbberColor
            trackColor: Qt.alpha(control.throbberColor, 0.2)
        }
        Text {
            id: headerText

            x: control.headerLeftMargin
            width: parent.width - control.headerLeftMargin - control.headerRightMargin
            visible: text !== ""
            text: control.header
            textFormat: Text.PlainText
            font: control.headerFont
            color: control.headerColor
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
        Text {
            id: descriptionText

            x: control.descriptionLeftMargin
            width: parent.width - control.descriptionLeftMargin - control.descriptionRightMargin
            visible: text !== ""
            text: control.description
            textFormat: Text.PlainText
            font: control.descriptionFont
            color: control.descriptionColor
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
    }
}
