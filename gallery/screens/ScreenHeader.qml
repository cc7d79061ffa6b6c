// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// Name of the screen, day and time.
Item {
    id: header

    required property string dayText
    // Takes the place of the day where that does not fit.
    required property string shortDayText
    required property string clockText
    property string title: qsTr("TV guide")

    height: clock.height

    Label {
        id: name

        anchors.left: parent.left
        anchors.baseline: clock.baseline
        width: Math.min(implicitWidth, header.width - clock.width - Look.medium)
        text: header.title
        font: Look.headline
    }
    Label {
        anchors.left: name.right
        anchors.leftMargin: Look.medium
        anchors.right: clock.left
        anchors.rightMargin: Look.medium
        anchors.baseline: clock.baseline
        // Of texts with this character between them, Text shows the first one that fits.
        text: header.dayText + "\u009C" + header.shortDayText
        Accessible.name: header.dayText
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
