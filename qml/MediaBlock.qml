// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Generic as STBUIQCG
import Stbui.UI.Qml.Design as STBUIQD

// A title above content, such as a row of tiles, as wide as the screen.
STBUIQCG.MediaBlock {
    id: _mediaBlock

    implicitWidth: STBUIQD.QmlDesignSystem.layouts.screenWidth
}
