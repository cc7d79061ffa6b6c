// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Generic as STBUIQCG
import Stbui.UI.Qml.Design as STBUIQD

// Shows which part of a view is seen, in the colours of the theme.
STBUIQCG.ScrollBar {
    id: _control

    backgroundColor: STBUIQD.QmlDesignSystem.colors.bamako
    sliderColor: STBUIQD.QmlDesignSystem.colors.sochi50
}
