// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Basic as STBUIQCB
import Stbui.UI.Qml.Design as STBUIQD

STBUIQCB.Button {
    id: _button

    style: STBUIQD.QmlDesignSystem.standardButtonStyle
}
