// SPDX-License-Identifier: MIT
import QtQuick
import Stbui.UI.Qml.Controls.Basic as STBUIQCB
import Stbui.UI.Qml.Controls.Generic as STBUIQCG
import Stbui.UI.Qml.Design as STBUIQD

// A row of tiles that scrolls sideways, with the spacing and margins of the screen.
STBUIQCG.ScrolledListView {
    id: _mediaListView

    property QtObject mediaBlockInfo

    objectName: "contentView"
    orientation: ListView.Horizontal
    spacing: STBUIQD.QmlDesignSystem.layouts.viewHorizontalSpacing
    highlightMoveDuration: STBUIQCB.QmlSettings.layoutScrollingAnimationsEnabled ? STBUIQD.QmlDesignSystem.animation.duration : 0
    leftMargin: STBUIQD.QmlDesignSystem.layouts.viewLeftMargin
    rightMargin: STBUIQD.QmlDesignSystem.layouts.viewRightMargin
}
