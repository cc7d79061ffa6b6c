// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Basic as STBUIQCB
import Stbui.UI.Qml.Controls.Generic as STBUIQCG
import Stbui.UI.Qml.Design as STBUIQD

// A tab: OK selects it, alone among its siblings, in the look of "style".
STBUIQCG.TabButton {
    id: _button

    property STBUIQD.TabButtonQmlStyle style: STBUIQD.QmlDesignSystem.tabButtonStyle

    animateBackgroundColors: STBUIQCB.QmlSettings.colorAnimationsEnabled
    animateTextColors: STBUIQCB.QmlSettings.colorAnimationsEnabled
    backgroundColor: style.backgroundNormalColor
    backgroundFocusedColor: style.backgroundFocusedColor
    backgroundSelectedColor: style.backgroundSelectedColor
    textColor: style.textNormalColor
    textFocusedColor: style.textFocusedColor
    textSelectedColor: style.textSelectedColor
    topPadding: style.marginTop
    bottomPadding: style.marginBottom
    leftPadding: style.marginLeft
    rightPadding: style.marginRight
    roundingRadius: STBUIQCB.QmlSettings.roundingEnabled ? style.roundingRadius : 0
    minimumWidth: style.minSize.width
    minimumHeight: style.minSize.height
    font: style.font
}
