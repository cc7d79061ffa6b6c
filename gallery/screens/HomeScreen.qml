// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Gallery

// The first screen: what is chosen, large, above rows of what there is to watch.
FocusScope {
    id: screen

    required property HomeController home
    required property MainMenuController menu
    required property GuideController guide

    // What the rows need: the highest one with one line below its tiles, and with all. The lines may reach a little into
    // what television sets may hide.
    property real leastRowHeight: 0
    property real fullRowHeight: 0
    readonly property real end: height - Look.safeY / 2
    readonly property real heroRoom: end - hero.y - Look.small

    focus: true
    Keys.onPressed: event => event.accepted = home.press(event.key)

    Backdrop {
        anchors.top: parent.top
        anchors.right: parent.right
        // On a narrow screen the texts reach further under it.
        width: Math.round((Look.wide ? 0.6 : 0.35) * Look.screenWidth)
        height: Math.round(0.45 * Look.screenHeight)
        source: screen.home.still
    }
    // The menu and the time are above the picture, not on it.
    Rectangle {
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        height: header.y + header.height + Look.huge
        gradient: Gradient {
            GradientStop {
                position: 0.7
                color: Look.backdrop
            }
            GradientStop {
                position: 1
                color: Look.clear
            }
        }
    }
    HomeHeader {
        id: header

        anchors.top: parent.top
        anchors.topMargin: Look.safeY
        anchors.left: parent.left
        anchors.leftMargin: Look.safeX
        anchors.right: parent.right
        anchors.rightMargin: Look.safeX
        menu: screen.menu
        active: screen.home.inHeader
        clockText: screen.guide.clockText
        question: screen.home.leaving ? qsTr("Press BACK again to leave") : ""
    }
    Column {
        id: hero

        anchors.top: header.bottom
        anchors.topMargin: Look.medium
        anchors.left: header.left
        width: Math.round((Look.wide ? 0.54 : 0.7) * parent.width)
        spacing: Look.tiny

        Label {
            id: title

            width: parent.width
            text: screen.home.title
            font: Look.headline
        }
        Label {
            id: facts

            objectName: "heroFacts"
            width: parent.width
            visible: title.height + hero.spacing + height <= screen.heroRoom - screen.leastRowHeight
            text: screen.home.facts
            font: Look.caption
            color: Look.quietText
        }
        Label {
            readonly property real room: screen.heroRoom - screen.fullRowHeight - title.height - facts.height
                                         - 2 * hero.spacing
            readonly property int lines: Math.max(0, Math.min(Look.wide ? 2 : 1, Math.floor(room / metrics.lineSpacing)))

            width: parent.width
            objectName: "heroDescription"
            visible: facts.visible && lines > 0
            // A line of text may be a little higher than its font says.
            height: Math.ceil((lines + 0.1) * metrics.lineSpacing)
            text: screen.home.description
            font: Look.caption
            wrapMode: Text.Wrap
            maximumLineCount: Math.max(1, lines)
        }
        FontMetrics {
            id: metrics

            font: Look.caption
        }
    }
    ListView {
        id: rows

        objectName: "rows"
        anchors.top: hero.bottom
        anchors.topMargin: Look.small
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        interactive: false
        clip: true
        // There are few rows, and with all of them made their places are exact.
        cacheBuffer: 0
        displayMarginBeginning: 10 * height
        displayMarginEnd: 10 * height
        bottomMargin: height
        highlightFollowsCurrentItem: false
        model: screen.home.rows
        currentIndex: screen.home.rowIndex
        // The row that keys act on is at the top.
        contentY: currentItem ? currentItem.y : 0
        // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
        delegate: TileRow {
            width: ListView.view.width
            // qmllint disable unqualified
            active: ListView.isCurrentItem && !screen.home.inHeader
            room: screen.end - rows.y
            onLeastHeightChanged: screen.leastRowHeight = Math.max(screen.leastRowHeight, leastHeight)
            onFullHeightChanged: screen.fullRowHeight = Math.max(screen.fullRowHeight, fullHeight)
            // qmllint enable unqualified
        }

        Behavior on contentY {
            enabled: QmlSettings.viewportScrollingAnimationsEnabled
            SmoothedAnimation {
                duration: Look.scrollTime
                velocity: -1
            }
        }
    }
    EdgeFade {
        anchors.bottom: parent.bottom
        rotation: 180
    }
    LoadingView {
        anchors.fill: parent
        visible: screen.guide.loading && rows.count === 0
        progress: screen.guide.loadProgress
    }
    Label {
        anchors.centerIn: parent
        width: parent.width - 2 * Look.safeX
        visible: !screen.guide.loading && rows.count === 0
        text: qsTr("There is nothing on TV now, and the catalogue is empty")
        font: Look.heading
        color: Look.quietText
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        maximumLineCount: 3
    }
}
