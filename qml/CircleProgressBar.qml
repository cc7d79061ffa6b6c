// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Generic as STBUIQCG
import Stbui.UI.Qml.Design as STBUIQD

// Progress as an arc of a circle, in the colours of the theme.
STBUIQCG.CircleProgressBar {
    id: _circleProgress

    barWidth: 10
    barBackgroundColor: STBUIQD.QmlDesignSystem.colors.sochi20
    barColor: STBUIQD.QmlDesignSystem.colors.berlin
}
