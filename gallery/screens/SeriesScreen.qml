// SPDX-License-Identifier: MIT
import QtQuick
import Gallery

// The episodes of a series, a season at a time.
FocusScope {
    id: screen

    required property SeriesController series

    focus: true
    Keys.onPressed: event => event.accepted = series.press(event.key)

    Binding {
        screen.series.rowsPerPage: episodes.visibleRows
    }
    Backdrop {
        anchors.top: parent.top
        anchors.right: parent.right
        // Beside the texts of the list; a narrow screen has no room there.
        width: Math.round(0.35 * Look.screenWidth)
        height: Math.round(0.6 * Look.screenHeight)
        source: Look.wide ? screen.series.still : ""
    }
    Column {
        id: heading

        anchors.top: parent.top
        anchors.topMargin: Look.safeY
        anchors.left: parent.left
        anchors.leftMargin: Look.safeX
        anchors.right: parent.right
        anchors.rightMargin: Look.safeX
        spacing: Look.tiny

        Label {
            width: parent.width
            text: screen.series.title
            font: Look.headline
        }
        Label {
            objectName: "facts"
            width: parent.width
            visible: text.length > 0
            text: screen.series.facts
            font: Look.caption
            color: Look.quietText
        }
        Flow {
            width: parent.width
            visible: screen.series.seasons.length > 0

            Repeater {
                model: screen.series.seasons

                // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
                // qmllint disable unqualified
                CheckableButton {
                    required property int index
                    required property string modelData

                    objectName: "season"
                    titleText: modelData
                    focused: screen.series.inSeasons && checked
                    checked: screen.series.seasonRow === index
                }
                // qmllint enable unqualified
            }
        }
    }
    EpisodeList {
        id: episodes

        objectName: "episodes"
        anchors.top: heading.bottom
        anchors.topMargin: Look.medium
        anchors.bottom: hints.top
        anchors.bottomMargin: Look.small
        anchors.left: heading.left
        anchors.leftMargin: -Look.frame
        active: !screen.series.inSeasons
        model: screen.series.episodes
        currentIndex: screen.series.episodeRow
    }
    EdgeFade {
        anchors.left: episodes.left
        anchors.right: episodes.right
        anchors.bottom: episodes.bottom
        rotation: 180
    }
    FocusPlate {
        anchors.top: episodes.top
        anchors.left: heading.left
        width: Math.round(0.6 * parent.width)
        height: nothing.height + 2 * Look.medium
        visible: screen.series.episodeRow < 0
        Accessible.role: Accessible.StaticText
        Accessible.name: nothing.text
        Accessible.focusable: true
        Accessible.focused: visible && Told.screenFocus

        Label {
            id: nothing

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: Look.medium
            text: qsTr("There are no episodes yet")
            color: Look.textOnFocus
        }
    }
    Rectangle {
        anchors.left: heading.left
        anchors.right: heading.right
        anchors.bottom: episodes.bottom
        height: message.height + Look.medium
        visible: message.text.length > 0
        color: Look.backdrop

        Label {
            id: message

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            text: screen.series.message
            font: Look.caption
        }
    }
    Row {
        id: hints

        anchors.bottom: parent.bottom
        anchors.bottomMargin: Look.safeY
        anchors.right: heading.right
        spacing: Look.large

        KeyHint {
            visible: screen.series.inSeasons
            key: "◀ ▶"
            text: qsTr("Season")
        }
        KeyHint {
            visible: screen.series.episodeRow >= 0
            key: screen.series.inSeasons ? "▼" : "▲ ▼"
            text: screen.series.inSeasons ? qsTr("Episodes") : qsTr("Episode")
        }
        KeyHint {
            visible: screen.series.episodeRow >= 0 && !screen.series.inSeasons
            key: qsTr("OK", "a key of the remote control")
            text: qsTr("Watch")
        }
        KeyHint {
            key: qsTr("BACK", "a key of the remote control")
            text: qsTr("Leave")
        }
    }
}
