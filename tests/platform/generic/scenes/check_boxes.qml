// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Generic

Grid { x: 10; y: 10; columns: 2; spacing: 14
    // The linter of Qt 6.4 takes sizes of whole numbers for another type.
    // qmllint disable type
    component Box: CheckBox {
        indicatorSize: Qt.size(36, 36); iconPath: ':/icons/mark.png'; roundingRadius: 6; spacing: 16
        indicatorColors: ['#263445', '#5cc2f2', '#16202b', '#ffffff']
        iconColors: ['white', '#0a1118', '#7f8894', '#0a1118']
        titleFont.pixelSize: 24; titleColors: ['#ffffff', '#f0f0ff', '#7f8894', '#ffe0a0']
    }
    // qmllint enable type
    Box { text: 'Normal' } Box { text: 'Checked'; checked: true }
    Box { text: 'Off'; enabled: false } Box { text: 'Off, checked'; enabled: false; checked: true }
    Box { text: 'Radio'; forceRounding: true } Box { text: 'Chosen'; forceRounding: true; checked: true }
    Box { text: 'Mirrored'; LayoutMirroring.enabled: true }
    Box { objectName: 'focus'; text: 'Focused'; checked: true }
}
