// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Generic

// A title above content, such as a row of tiles. The items declared in it are the content. It is a focus scope
// that remembers which of them had the focus; at first, and when that one cannot have it, it is the first one
// that can. Lengths are pixels.
FocusMemory {
    id: control

    default property alias content: contentArea.data
    property string title // without one its line is not there
    property alias titleFont: titleText.font
    property color titleColor: "white"
    property color focusedTitleColor: titleColor // while the focus is in the block
    property real titleSpacing: 12 // pixels between title and content
    property real leftMargin: 0 // of the title
    property real rightMargin: 0

    readonly property real contentY: titleText.visible ? titleText.height + titleSpacing : 0

    implicitHeight: contentY + contentHeight
    area: contentArea

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Text {
        id: titleText

        anchors.left: parent.left
        anchors.leftMargin: control.leftMargin
        anchors.right: parent.right
        anchors.rightMargin: control.rightMargin
        visible: text
        text: control.title
        textFormat: Text.PlainText
        color: control.activeFocus ? control.focusedTitleColor : control.titleColor
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        Accessible.ignored: true
    }
    Item {
        id: contentArea

        y: control.contentY
        width: parent.width
        height: control.height - y
    }
}
