// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Basic as STBUIQCB
import Stbui.UI.Qml.Design as STBUIQD

// Any other button, in the theme's standard style.
STBUIQCB.Button {
    id: _button

    style: STBUIQD.QmlDesignSystem.standardButtonStyle
}
