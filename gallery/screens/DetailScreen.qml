// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Gallery

// One item on its own: what is known of it, and what can be done with it.
FocusScope {
    id: screen

    required property DetailController detail

    focus: true
    Keys.onPressed: event => event.accepted = detail.press(event.key)

    Backdrop {
        anchors.top: parent.top
        anchors.right: parent.right
        width: Math.round(0.75 * Look.screenWidth)
        height: Math.round(0.75 * Look.screenHeight)
        source: screen.detail.still
    }
    Column {
        id: texts

        anchors.left: parent.left
        anchors.leftMargin: Look.safeX
        anchors.bottom: buttons.top
        anchors.bottomMargin: Look.large
        width: Math.round((Look.wide ? 0.6 : 0.8) * parent.width)
        spacing: Look.small

        Label {
            id: title

            width: parent.width
            text: screen.detail.title
            font: Look.headline
            wrapMode: Text.Wrap
            maximumLineCount: 2
        }
        Label {
            id: subtitle

            width: parent.width
            visible: text.length > 0
            text: screen.detail.subtitle
            font: Look.heading
            wrapMode: Text.Wrap
            maximumLineCount: 2
        }
        Label {
            id: facts

            width: parent.width
            text: screen.detail.facts
            color: Look.quietText
            wrapMode: Text.Wrap
            maximumLineCount: 2
        }
        Row {
            id: progress

            visible: screen.detail.started
            spacing: Look.medium

            ProgressLine {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.round(240 * Look.unit)
                progress: screen.detail.progress
            }
            Label {
                text: screen.detail.timeLeft
                font: Look.caption
                color: Look.quietText
            }
        }
        Label {
            id: description

            // What is above it leaves room for as many lines; large texts for fewer.
            readonly property real room: buttons.y - Look.large - Look.safeY - Look.small
                                         - title.height - Look.small - facts.height - Look.small
                                         - (subtitle.visible ? subtitle.height + Look.small : 0)
                                         - (progress.visible ? progress.height + Look.small : 0)
            readonly property int lines: Math.min(5, Math.floor(room / (1.15 * metrics.lineSpacing)))

            objectName: "description"
            width: parent.width
            // Whole pixels for what is below and above.
            bottomPadding: Math.ceil(contentHeight) - contentHeight
            visible: text.length > 0 && lines > 0
            topPadding: Look.small
            text: screen.detail.description
            wrapMode: Text.Wrap
            maximumLineCount: Math.max(1, lines)
            lineHeight: 1.15
        }
    }
    FontMetrics {
        id: metrics

        font: Look.body
    }
    Flow {
        id: buttons

        anchors.left: texts.left
        anchors.right: parent.right
        anchors.rightMargin: Look.safeX
        anchors.bottom: message.top
        anchors.bottomMargin: Look.medium
        spacing: Look.medium

        PrimaryButton {
            objectName: "button"
            leftIconSource: screen.detail.toCome ? "qrc:/resources/icons/reminder_small.png"
                                                 : "qrc:/resources/icons/player/status/play.png"
            titleText: screen.detail.toCome ? screen.detail.reminder ? qsTr("Reminder is set") : qsTr("Remind me")
                                            : screen.detail.programme ? qsTr("Watch")
                                                                      : screen.detail.started ? qsTr("Continue")
                                                                                              : qsTr("Play")
            isFixedWidth: false
            focused: screen.detail.button === DetailController.PlayButton
            throbberVisible: screen.detail.opening === DetailController.PlayButton
            Accessible.role: Accessible.Button
            Accessible.name: titleText
            Accessible.focusable: true
            Accessible.focused: visible && focused && Told.screenFocus
        }
        StandardButton {
            objectName: "button"
            leftIconSource: "qrc:/resources/icons/favorite_small.png"
            titleText: screen.detail.favourite ? qsTr("In favourites") : qsTr("Add to favourites")
            isFixedWidth: false
            focused: screen.detail.button === DetailController.FavouriteButton
            checked: screen.detail.favourite && !focused
            Accessible.role: Accessible.Button
            Accessible.name: titleText
            Accessible.focusable: true
            Accessible.focused: visible && focused && Told.screenFocus
            Accessible.checkable: true
            Accessible.checked: screen.detail.favourite
        }
        PlayerButton {
            objectName: "button"
            visible: !screen.detail.programme && !screen.detail.ofSeries
            titleText: qsTr("Trailer")
            focused: screen.detail.button === DetailController.TrailerButton
            throbberVisible: screen.detail.opening === DetailController.TrailerButton
            Accessible.role: Accessible.Button
            Accessible.name: titleText
            Accessible.focusable: true
            Accessible.focused: visible && focused && Told.screenFocus
        }
        PlayerButton {
            objectName: "button"
            visible: screen.detail.programme
            titleText: qsTr("TV guide")
            focused: screen.detail.button === DetailController.GuideButton
            Accessible.role: Accessible.Button
            Accessible.name: titleText
            Accessible.focusable: true
            Accessible.focused: visible && focused && Told.screenFocus
        }
        PlayerButton {
            objectName: "button"
            visible: screen.detail.ofSeries
            titleText: qsTr("Episodes")
            focused: screen.detail.button === DetailController.EpisodesButton
            Accessible.role: Accessible.Button
            Accessible.name: titleText
            Accessible.focusable: true
            Accessible.focused: visible && focused && Told.screenFocus
        }
        CheckableButton {
            objectName: "button"
            titleText: qsTr("Like")
            focused: screen.detail.button === DetailController.RateButton
            checked: screen.detail.liked
        }
    }
    Label {
        id: message

        anchors.left: texts.left
        anchors.right: parent.right
        anchors.rightMargin: Look.safeX
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Look.safeY
        text: screen.detail.message
        font: Look.caption
        color: Look.quietText
    }
}
