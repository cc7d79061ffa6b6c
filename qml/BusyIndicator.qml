// SPDX-License-Identifier: MIT
import Stbui.UI.Qml.Controls.Generic as STBUIQCG
import Stbui.UI.Qml.Design as STBUIQD

// Tells that a long operation is under way: a turning circle with a header and a description.
STBUIQCG.BusyIndicator {
    id: _busyindicator

    animationInterval: 17

    headerFont: STBUIQD.QmlDesignSystem.busyIndicatorStyle.header.font
    headerColor: STBUIQD.QmlDesignSystem.busyIndicatorStyle.header.color
    headerLeftMargin: STBUIQD.QmlDesignSystem.busyIndicatorStyle.header.marginLeft
    headerRightMargin: STBUIQD.QmlDesignSystem.busyIndicatorStyle.header.marginRight

    descriptionFont: STBUIQD.QmlDesignSystem.busyIndicatorStyle.description.font
    descriptionColor: STBUIQD.QmlDesignSystem.busyIndicatorStyle.description.color
    descriptionLeftMargin: STBUIQD.QmlDesignSystem.busyIndicatorStyle.description.marginLeft
    descriptionRightMargin: STBUIQD.QmlDesignSystem.busyIndicatorStyle.description.marginRight

    throbberWidth: STBUIQD.QmlDesignSystem.busyIndicatorStyle.width
    throbberHeight: STBUIQD.QmlDesignSystem.busyIndicatorStyle.height
    throbberPenWidth: STBUIQD.QmlDesignSystem.busyIndicatorStyle.penWidth
}
