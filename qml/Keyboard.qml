// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Basic as STBUIQCB
import Stbui.UI.Qml.Controls.Generic as STBUIQCG
import Stbui.UI.Qml.Design as STBUIQD

// The on-screen keyboard. Its sizes come from "style", its colours and fonts from the theme itself.
STBUIQCG.Keyboard {
    id: _keyboard

    property STBUIQD.KeyboardQmlStyle style: STBUIQD.QmlDesignSystem.keyboardStyle

    keyRoundingRadius: STBUIQCB.QmlSettings.roundingEnabled ? style.keyRoundingRadius : 0

    // The colours of keys are tokens, not values of the style.
    keyBackgroundColor: STBUIQD.QmlDesignSystem.colors.bogota
    keyTextColor: STBUIQD.QmlDesignSystem.colors.sochi

    symbolKeysFont: STBUIQD.QmlDesignSystem.unscaledFont(STBUIQD.FontHd.Subhead, STBUIQD.FontSd.H4)
    controlKeysFont: STBUIQD.QmlDesignSystem.unscaledFont(STBUIQD.FontHd.Caption1, STBUIQD.FontSd.H5)
    domainKeysFont: STBUIQD.QmlDesignSystem.unscaledFont(STBUIQD.FontHd.Caption2, STBUIQD.FontSd.H6)

    backspaceIconPath: "qrc:/resources/icons/keyboard/delete.png"
    leftIconPath: "qrc:/resources/icons/keyboard/left.png"
    rightIconPath: "qrc:/resources/icons/keyboard/right.png"
    capslockEnabledIconPath: "qrc:/resources/icons/keyboard/capslock_enabled.png"
    capslockDisabledIconPath: "qrc:/resources/icons/keyboard/capslock_disabled.png"

    rowSpacing: style.keySpacing
    columnSpacing: style.keySpacing
    keyHeight: style.keyHeight
    keyWidth: style.keyWidth
}
