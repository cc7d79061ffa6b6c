// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Generic as STBUIQCG
import Stbui.UI.Qml.Design as STBUIQD

STBUIQCG.ScrollBar {
    id: _control

    backgroundColor: STBUIQD.QmlDesignSystem.colors.bamako
    sliderColor: STBUIQD.QmlDesignSystem.colors.sochi50
}
