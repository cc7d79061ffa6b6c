// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Basic as STBUIQCB
import Stbui.UI.Qml.Design as STBUIQD

// The button for what a screen is about, in the theme's primary style.
STBUIQCB.Button {
    id: _button

    style: STBUIQD.QmlDesignSystem.primaryButtonStyle
}
