// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic as STBUIQCB
import Stbui.UI.Qml.Controls.Generic as STBUIQCG
import Stbui.UI.Qml.Design as STBUIQD

// Fades the left and the right edge of the main menu's strip where there is more of it.
STBUIQCG.HorizontalFadeEffect {
    leftGradientWidth: STBUIQD.QmlDesignSystem.mainMenu.shadowWidth
    rightGradientWidth: STBUIQD.QmlDesignSystem.mainMenu.shadowWidth

    Behavior on leftGradientOpacity {
        enabled: STBUIQCB.QmlSettings.fadeAnimationsEnabled

        NumberAnimation {
            duration: STBUIQD.QmlDesignSystem.animation.duration
        }
    }
    Behavior on rightGradientOpacity {
        enabled: STBUIQCB.QmlSettings.fadeAnimationsEnabled

        NumberAnimation {
            duration: STBUIQD.QmlDesignSystem.animation.duration
        }
    }
}
