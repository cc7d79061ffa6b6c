// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// What is on the chosen channel, and what comes next.
Item {
    id: facts

    required property ChannelsController controller

    Rectangle {
        id: frame

        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        height: Math.round(width * 9 / 16)
        color: Look.surface

        Image {
            anchors.fill: parent
            source: Pictures.filling(facts.controller.still, width, height)
        }
    }
    Label {
        id: times

        anchors.top: frame.bottom
        anchors.topMargin: Look.small
        anchors.left: parent.left
        anchors.right: parent.right
        text: facts.controller.timeRange
        font: Look.caption
        color: Look.quietText
    }
    Label {
        id: title

        anchors.top: times.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        text: facts.controller.title.length > 0 ? facts.controller.title : qsTr("Nothing is known of what is on")
        font: Look.heading
        color: facts.controller.title.length > 0 ? Look.text : Look.quietText
        wrapMode: Text.Wrap
        maximumLineCount: 2
    }
    Label {
        anchors.top: title.bottom
        anchors.topMargin: Look.tiny
        anchors.bottom: next.top
        anchors.bottomMargin: Look.small
        anchors.left: parent.left
        anchors.right: parent.right
        text: facts.controller.description
        font: Look.caption
        color: Look.quietText
        wrapMode: Text.Wrap
        maximumLineCount: 6
    }
    Item {
        id: next

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        height: nextTime.height
        visible: facts.controller.nextTitle.length > 0

        Label {
            id: nextTime

            anchors.left: parent.left
            text: facts.controller.nextTime
            font: Look.caption
            color: Look.accent
        }
        Label {
            anchors.left: nextTime.right
            anchors.leftMargin: Look.small
            anchors.right: parent.right
            text: facts.controller.nextTitle
            font: Look.caption
        }
    }
}
