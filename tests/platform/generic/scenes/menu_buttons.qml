// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Generic

Column { x: 10; y: 20; spacing: 30
    // The linter of Qt 6.4 takes sizes of whole numbers for another type.
    // qmllint disable type
    component Entry: MainMenuButton {
        baseHeight: 48; textFont.pixelSize: 24; leftPadding: 24; rightPadding: 24; roundingRadius: 24
        leftIconSize: Qt.size(32, 32); rightIconSize: Qt.size(32, 32); rightIconRoundingRadius: 16
        backgroundColors: ['transparent', '#263445', '#ffffff']
        textColors: ['#a0b0c0', '#ffffff', '#0a1118']
    }
    // qmllint enable type
    component Tab: TabButton {
        font.family: 'DejaVu Sans'; font.pixelSize: 24
        leftPadding: 24; rightPadding: 24; minimumHeight: 56; roundingRadius: 8
        backgroundFocusedColor: '#ffffff'; backgroundSelectedColor: '#263445'
        textColor: '#a0b0c0'; textSelectedColor: '#ffffff'; textFocusedColor: '#0a1118'
    }
    Row { spacing: 10
        Entry { text: 'Home' }
        Entry { text: 'Guide'; checked: true; leftIconPath: ':/icons/mark.png' }
        Entry { text: 'Me'; focused: true; backgroundHeight: 64; roundingRadius: 32; rightIconPath: ':/icons/wide.png' }
        Entry { text: 'Off'; enabled: false }
    }
    Row { spacing: 10
        Tab { text: 'All' }
        Tab { text: 'Films'; checked: true; iconPath: ':/icons/mark.png' }
        Tab { objectName: 'focus'; text: 'Series' }
        Tab { text: 'Off'; enabled: false }
        Tab { text: 'A long title'; width: 120 }
    }
}
