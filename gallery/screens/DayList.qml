// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic
import Stbui.UI.Qml.Design
import Gallery

// The days that the guide can show, the chosen one in the middle as far as the ends of the row allow.
ListView {
    id: list

    // An odd number, so that the chosen day has whole days on both sides.
    readonly property int columns: 2 * Math.floor((parent.width / (Look.dayWidth + Look.small) - 1) / 2) + 1

    objectName: "days"
    // Whole pixels for each cell.
    width: columns * Math.floor(parent.width / columns)
    height: Math.ceil(month.height + day.height) + 2 * Look.tiny
    orientation: ListView.Horizontal
    interactive: false
    clip: true
    // Cells made ahead of need would still be on their way when the model is reset, which Qt warns of.
    cacheBuffer: 0
    highlightFollowsCurrentItem: false
    // With Qt 6.4 a component cannot say that it belongs where it stands; the linter asks for that.
    // qmllint disable unqualified
    delegate: Item {
        id: cell

        readonly property bool chosen: ListView.isCurrentItem
        readonly property bool focused: chosen && ListView.view.focus
        required property date day
        required property bool hasProgrammes
        required property bool isToday

        objectName: "day"
        width: list.width / list.columns
        height: list.height

        FocusPlate {
            anchors.fill: parent
            visible: cell.focused
        }
        Rectangle {
            anchors.fill: parent
            visible: cell.chosen && !cell.focused
            color: Look.raised
            radius: Look.radius
        }
        EpgDate {
            id: date

            anchors.horizontalCenter: parent.horizontalCenter
            y: Look.tiny
            width: Look.dayWidth
            height: parent.height - 2 * Look.tiny
            // There is nothing on that day: quiet, and on the bright plate faint.
            opacity: cell.focused && !cell.hasProgrammes ? 0.7 : 1
            style: cell.focused ? Look.focusedDate
                                : cell.hasProgrammes ? QmlDesignSystem.playerEpgDateStyle : Look.quietDate
            // qmllint disable type
            date: cell.day
            // qmllint enable type
            isActive: cell.chosen
            Accessible.role: Accessible.ListItem
            Accessible.name: cell.day.toLocaleDateString(Qt.locale(), Locale.LongFormat)
            Accessible.focusable: true
            Accessible.focused: visible && cell.focused && Told.screenFocus
            Accessible.selectable: true
            Accessible.selected: cell.chosen
        }
        Rectangle {
            // The texts of a day begin on the left in every language.
            x: date.x
            anchors.bottom: parent.bottom
            width: Look.large
            height: Look.barHeight
            visible: cell.isToday
            color: cell.focused ? Look.textOnFocus : Look.accent
        }
    }
    // qmllint enable unqualified

    MiddleKeeper {
        list: list
    }
    // qmllint disable type
    FontMetrics {
        id: month

        font: QmlDesignSystem.playerEpgDateStyle.style.monthStyle.font
    }
    FontMetrics {
        id: day

        font: QmlDesignSystem.playerEpgDateStyle.style.dayStyle.font
    }
    // qmllint enable type
}
