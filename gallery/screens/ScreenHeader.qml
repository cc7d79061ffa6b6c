// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// Name of the screen, day and time.
Item {
    id: header

    required property string dayText
    required property string clockText

    height: clock.height

    Label {
        id: name

        anchors.left: parent.left
        anchors.baseline: clock.baseline
        text: qsTr("TV guide")
        font: Look.headline
    }
    Label {
        anchors.left: name.right
        anchors.leftMargin: Look.medium
        anchors.right: clock.left
        anchors.rightMargin: Look.medium
        anchors.baseline: clock.baseline
        text: header.dayText
        font: Look.heading
        color: Look.quietText
    }
    Label {
        id: clock

        anchors.right: parent.right
        text: header.clockText
        font: Look.headline
    }
}
