// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Generic as STBUIQCG
import Stbui.UI.Qml.Design as STBUIQD

// An entry of the main menu. Whoever owns the menu sets its state: "focused", "checked" or "normal".
STBUIQCG.MainMenuButton {
    id: _button

    property STBUIQD.MainMenuButtonQmlStyle style: STBUIQD.QmlDesignSystem.mainMenuButtonQmlStyle

    baseHeight: style.backgroundCheckedHeight

    // The main menu of the box's other user interface has no colour animations.
    animateBackgroundColors: false
    animateTextColors: false
    backgroundColorsAnimationDuration: STBUIQD.QmlDesignSystem.animation.duration
    textColorsAnimationDuration: STBUIQD.QmlDesignSystem.animation.duration

    backgroundColors: [style.normalBackgroundColor, style.checkedBackgroundColor, style.focusedBackgroundColor]

    textFont: style.text.font
    textColors: [style.normalTextColor, style.checkedTextColor, style.focusedTextColor]

    leftIconColors: textColors
    leftIconSize: Qt.size(style.decorationGeometry.width, style.decorationGeometry.height)
    rightIconSize: Qt.size(style.decorationGeometry.width, style.decorationGeometry.height)
    rightIconRoundingRadius: rightIconSize.width / 2

    leftPadding: style.leftPadding
    rightPadding: style.rightPadding
    topPadding: style.topPadding
    bottomPadding: style.bottomPadding

    states: [
        State {
            name: "focused"

            PropertyChanges {
                _button.focused: true
                _button.backgroundHeight: _button.style.backgroundFocusedHeight
                _button.roundingRadius: _button.style.focusedRoundingRadius
            }
        },
        State {
            name: "checked"

            PropertyChanges {
                _button.checked: true
                _button.backgroundHeight: _button.style.backgroundCheckedHeight
                _button.roundingRadius: _button.style.checkedRoundingRadius
            }
        },
        State {
            name: "normal"

            PropertyChanges {
                _button.focused: false
                _button.checked: false
                _button.backgroundHeight: _button.style.backgroundCheckedHeight
                _button.roundingRadius: _button.style.checkedRoundingRadius
            }
        }
    ]
}
