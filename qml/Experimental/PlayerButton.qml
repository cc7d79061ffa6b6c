// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Basic as STBUIQCB
import Stbui.UI.Qml.Design as STBUIQD

STBUIQCB.ButtonWithCheckIndicator {
    style: STBUIQD.QmlDesignSystem.playerButtonStyle
    isFixedWidth: false
}
