// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Basic as STBUIQCB
import Stbui.UI.Qml.Design as STBUIQD

// A check box that is always round: OK checks it, alone among its siblings.
STBUIQCB.CheckBox {
    id: _radioButton

    forceRounding: true
    roundingRadius: STBUIQD.QmlDesignSystem.standardCheckBoxStyle.icon.width / 2
    iconPath: "qrc:/resources/icons/radio_button_mark.png"
}
