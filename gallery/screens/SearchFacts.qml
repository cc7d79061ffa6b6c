// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// All of the chosen result's title, and what is known of it; on a narrow screen in one line, without the title unless
// both fit.
Column {
    id: box

    required property SearchController search
    readonly property string title: search.inResults ? search.title : ""
    readonly property string facts: search.inResults ? search.facts : ""

    spacing: Look.tiny

    Label {
        width: parent.width
        visible: Look.wide
        text: box.title
        font: Look.heading
    }
    Label {
        objectName: "resultFacts"
        width: parent.width
        text: Look.wide || whole.advanceWidth > width ? box.facts : whole.text
        font: Look.caption
        color: Look.quietText
    }
    TextMetrics {
        id: whole

        text: box.search.inResults ? box.title + " · " + box.facts : ""
        font: Look.caption
    }
}
