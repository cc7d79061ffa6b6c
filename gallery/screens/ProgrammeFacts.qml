// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// What is known of the chosen programme, one below the other; the description fills what height is left.
Item {
    id: facts

    required property GuideController guide
    property font titleFont: Look.heading

    Column {
        id: head

        anchors.left: parent.left
        anchors.right: parent.right
        spacing: Look.small

        Label {
            width: parent.width
            text: facts.guide.timeRange
            color: Look.quietText
        }
        Label {
            width: parent.width
            text: facts.guide.title
            font: facts.titleFont
            wrapMode: Text.Wrap
            maximumLineCount: 3
        }
        Label {
            width: parent.width
            visible: text.length > 0
            text: facts.guide.subtitle
            wrapMode: Text.Wrap
            maximumLineCount: 2
        }
        Label {
            width: parent.width
            visible: text.length > 0
            text: facts.guide.category
            font: Look.caption
            color: Look.quietText
        }
        ProgressLine {
            width: parent.width
            visible: facts.guide.live
            progress: facts.guide.progress
        }
    }
    Label {
        anchors.top: head.bottom
        anchors.topMargin: Look.medium
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        text: facts.guide.description
        color: Look.quietText
        wrapMode: Text.Wrap
        maximumLineCount: 100
        lineHeight: 1.15
    }
}
