// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Generic

Column { x: 10; y: 10; spacing: 10
    component Edit: LineEdit {
        width: 260; font.pixelSize: 24; roundingRadius: 8; cursorWidth: 3; errorFrameWidth: 3
        leftPadding: 20; rightPadding: 20; topPadding: 9; bottomPadding: 9; errorFrameColor: '#d02030'
        backgroundColors: ['#263445', '#263445', '#16202b', '#ffffff']
        textColors: ['#ffffff', '#ffffff', '#7f8894', '#0a1118']
        placeholderTextColors: ['#a0b0c0', '#a0b0c0', '#7f8894', '#5a6876']
    }
    Edit { placeholderText: 'Title or person' }
    Edit { placeholderText: 'Title or person'; editing: true }
    Edit { text: 'A text that is too long for it'; editing: true }
    Edit { text: 'secret'; echoMode: TextInput.Password; error: true }
    Edit { text: 'Switched off'; enabled: false }
}
