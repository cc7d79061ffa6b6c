// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// All that is known of the chosen programme, one below the other.
Column {
    id: facts

    required property GuideController guide
    // How high all of it may be.
    required property real room
    // Longer titles leave room for fewer lines, and so do larger texts.
    readonly property real others: channel.height + times.height + title.height + 4 * spacing
                                   + (subtitle.visible ? subtitle.height + spacing : 0)
                                   + (line.visible ? line.height + spacing : 0)
                                   + (category.visible ? category.height + spacing : 0)
    readonly property int linesPerPage: Math.max(1, Math.min(8 - Number(title.lineCount > 1) - Number(subtitle.lineCount > 1),
                                                             Math.floor((room - others) / description.lineHeight)))
    readonly property int pages: Math.ceil(description.lineCount / linesPerPage)
    // The last page is as full as the others.
    readonly property int firstLine: Math.max(0, Math.min(guide.detailsPage * linesPerPage, description.lineCount - linesPerPage))

    spacing: Look.small

    Label {
        id: channel

        width: parent.width
        text: facts.guide.channelName
        color: Look.accent
    }
    Label {
        id: times

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
        id: line

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
                // Nobody reads it while the details are not seen.
                text: facts.visible ? facts.guide.description : ""
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
        id: category

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
