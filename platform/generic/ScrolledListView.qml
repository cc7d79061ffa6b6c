// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Stbui.UI.Qml.Controls.Generic

// A ListView for a remote control: each press of an arrow key, and each repetition of a key that is held, goes on by
// one item; the current item stays in view and within the margins. highlightMoveDuration is about how long the view
// takes to follow by a step (milliseconds; 0 follows at once).
//
// Delegates are used again for other items (reuseItems). Switch that off for a delegate that keeps what it was given
// first. No items are made ahead of need: those cost the software renderer in every frame.
ListView {
    id: control

    // Vertical lists show it when not all items fit. Another one, such as one in a theme's colours, can be assigned.
    property T.ScrollBar scrollBar: ScrollBar {
        policy: control.orientation === ListView.Vertical ? T.ScrollBar.AsNeeded : T.ScrollBar.AlwaysOff
    }

    readonly property bool isVertical: orientation === ListView.Vertical
    readonly property bool isMirrored: effectiveLayoutDirection === Qt.RightToLeft

    keyNavigationEnabled: true
    reuseItems: true
    cacheBuffer: 0
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 200
    highlightMoveVelocity: -1
    highlightResizeDuration: 0
    highlightRangeMode: ListView.ApplyRange
    preferredHighlightBegin: isVertical ? topMargin : isMirrored ? rightMargin : leftMargin
    preferredHighlightEnd: isVertical ? height - bottomMargin : width - (isMirrored ? leftMargin : rightMargin)

    T.ScrollBar.vertical: isVertical ? scrollBar : null
    T.ScrollBar.horizontal: isVertical ? null : scrollBar

    Accessible.role: Accessible.List
    Accessible.name: qsTr("List")

    FollowCurrentItem {
        view: control
    }
}
