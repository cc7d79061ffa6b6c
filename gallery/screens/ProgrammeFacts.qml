// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// All that is known of the chosen programme, one below the other.
Column {
    id: facts

    required property GuideController guide
    // Longer titles leave room for fewer lines.
    readonly property int linesPerPage: 8 - Number(title.lineCount > 1) - Number(subtitle.lineCount > 1)
    readonly property int pages: Math.ceil(description.lineCount / linesPerPage)
    // The last page is as full as the others.
    readonly property int firstLine: Math.max(0, Math.min(guide.detailsPage * linesPerPage, description.lineCount - linesPerPage))

    spacing: Look.small

    Label {
        width: parent.width
        text: facts.guide.channelName
        color: Look.accent
    }
    Label {
        width: parent.width
        text: facts.guide.dayText + " · " + facts.guide.timeRange
        color: Look.quietText
    }
    Label {
        id: title

        width: parent.width
        text: facts.guide.title
        font: Look.headline
        wrapMode: Text.Wrap
        maximumLineCount: 2
    }
    Label {
        id: subtitle

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
    Item {
        width: parent.width
        height: Look.small + Math.min(description.lineCount, facts.linesPerPage) * description.lineHeight
        visible: description.text.length > 0

        Item {
            anchors.fill: parent
            anchors.topMargin: Look.small
            clip: true

            Label {
                id: description

                objectName: "description"
                y: -facts.firstLine * lineHeight
                width: parent.width
                // Nobody reads it while the details are closed.
                text: facts.guide.detailsOpen ? facts.guide.description : ""
                color: Look.quietText
                wrapMode: Text.Wrap
                elide: Text.ElideNone
                maximumLineCount: 10000
                lineHeightMode: Text.FixedHeight
                lineHeight: Math.ceil(1.15 * bodyFont.height)
            }
        }
    }
    Label {
        width: parent.width
        visible: text.length > 0
        topPadding: Look.small
        text: facts.guide.category
        font: Look.caption
        color: Look.quietText
    }

    FontMetrics {
        id: bodyFont

        font: Look.body
    }
    Binding {
        facts.guide.detailsPages: facts.pages
    }
}
