// SPDX-License-Identifier: MIT
import QtQuick

Item {
    id: cell

    property date date
    property bool isActive: true

    implicitWidth: 96
    implicitHeight: 56

    Line {
        id: month

        width: 96
        text: Qt.locale().standaloneMonthName(cell.date.getMonth(), Locale.ShortFormat)
        font.pixelSize: 16
        color: "#a0b0c0"
    }

    Line {
        y: month.height - 1
        width: 96
        text: cell.date.getDate()
        font.pixelSize: 28
        color: cell.isActive ? "white" : "#8090a0"
    }
}
