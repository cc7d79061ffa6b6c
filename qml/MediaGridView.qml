// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Generic as STBUIQCG
import Stbui.UI.Qml.Design as STBUIQD

// A grid of tiles that scrolls up and down, with the spacing and margins of the screen.
STBUIQCG.ScrolledGridView {
    id: _mediaGridView

    objectName: "contentView"
    horizontalSpacing: STBUIQD.QmlDesignSystem.layouts.viewHorizontalSpacing
    verticalSpacing: STBUIQD.QmlDesignSystem.layouts.viewVerticalSpacing
    highlightMoveDuration: STBUIQD.QmlDesignSystem.animation.duration
    leftMargin: STBUIQD.QmlDesignSystem.layouts.viewLeftMargin
    rightMargin: STBUIQD.QmlDesignSystem.layouts.viewRightMargin
}
