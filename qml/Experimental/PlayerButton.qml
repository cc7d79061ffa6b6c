// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Basic as STBUIQCB
import Stbui.UI.Qml.Design as STBUIQD

// A button of the player's controls, as wide as its content; a checked one has an indicator.
STBUIQCB.ButtonWithCheckIndicator {
    style: STBUIQD.QmlDesignSystem.playerButtonStyle
    isFixedWidth: false
}
