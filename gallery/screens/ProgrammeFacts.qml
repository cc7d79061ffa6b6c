// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// All that is known of the chosen programme, one below the other.
Column {
    id: facts

    required property GuideController guide

    spacing: Look.small

    Label {
        width: parent.width
        text: facts.guide.timeRange
        color: Look.quietText
    }
    Label {
        width: parent.width
        text: facts.guide.title
        font: Look.headline
        wrapMode: Text.Wrap
        maximumLineCount: 2
    }
    Label {
        width: parent.width
        visible: text.length > 0
        text: facts.guide.subtitle
        wrapMode: Text.Wrap
        maximumLineCount: 2
    }
    ProgressLine {
        width: parent.width
        visible: facts.guide.live
        progress: facts.guide.progress
    }
    Label {
        width: parent.width
        visible: text.length > 0
        topPadding: Look.small
        text: facts.guide.description
        color: Look.quietText
        wrapMode: Text.Wrap
        maximumLineCount: 8
        lineHeight: 1.15
    }
    Label {
        width: parent.width
        visible: text.length > 0
        topPadding: Look.small
        text: facts.guide.category
        font: Look.caption
        color: Look.quietText
    }
}
