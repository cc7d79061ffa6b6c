// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Basic as STBUIQCB
import Stbui.UI.Qml.Controls.Generic as STBUIQCG
import Stbui.UI.Qml.Design as STBUIQD

// A box that OK checks and unchecks, with a title beside it, in the look of "style".
STBUIQCG.CheckBox {
    id: _checkBox

    property STBUIQD.CheckBoxQmlStyle style: STBUIQD.QmlDesignSystem.standardCheckBoxStyle

    roundingRadius: STBUIQCB.QmlSettings.roundingEnabled ? style.roundingRadius : 0
    indicatorSize: style.icon.size
    indicatorColors: style.indicatorColors()
    iconPath: style.icon.path
    iconColors: style.iconColors()
    titleFont: style.title.font
    titleColors: style.titleColors()
    spacing: style.spacing
}
