// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Basic as STBUIQCB
import Stbui.UI.Qml.Controls.Generic as STBUIQCG
import Stbui.UI.Qml.Design as STBUIQD

// A line of text input with placeholder, cursor and error frame, in the look of "style".
STBUIQCG.LineEdit {
    id: _lineEdit

    property STBUIQD.LineEditQmlStyle style: STBUIQD.QmlDesignSystem.lineEditStyle

    roundingRadius: STBUIQCB.QmlSettings.roundingEnabled ? style.roundingRadius : 0
    backgroundColors: style.backgroundColors()
    textColors: style.textColors()
    placeholderTextColors: style.placeholderTextColors()
    errorFrameWidth: style.errorFrameWidth
    errorFrameColor: style.errorFrameColor
    font: style.font
    leftPadding: style.marginLeft
    topPadding: style.marginTop
    rightPadding: style.marginRight
    bottomPadding: style.marginBottom
    cursorWidth: style.cursorWidth
}
