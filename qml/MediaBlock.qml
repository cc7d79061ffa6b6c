// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Generic as STBUIQCG
import Stbui.UI.Qml.Design as STBUIQD

STBUIQCG.MediaBlock {
    id: _mediaBlock

    implicitWidth: STBUIQD.QmlDesignSystem.layouts.screenWidth
}
