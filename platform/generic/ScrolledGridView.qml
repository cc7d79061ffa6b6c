// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Stbui.UI.Qml.Controls.Generic

// A GridView for a remote control, scrolled up and down: each press of an arrow key, and each repetition of a key
// that is held, goes on by one item; the current item stays in view and within the margins. Down goes to the last item
// where the last row has none below the current one. At the edges the keys are left to others, at the sides too: no
// row goes on in the next one unless keyNavigationWraps is true. Delegates are of the size itemWidth x itemHeight;
// spacing comes between them and takes no room at the end of a row.
// highlightMoveDuration is about how long the view takes to follow by a step (milliseconds; 0 follows at once).
// Lengths are pixels.
//
// Delegates see the attached properties of a GridView. They are used again for other items (reuseItems); switch
// that off for a delegate that keeps what it was given first. No items are made ahead of need: those cost the
// software renderer in every frame.
FocusScope {
    id: control

    property alias model: grid.model
    property alias delegate: grid.delegate
    property alias count: grid.count
    property alias currentIndex: grid.currentIndex
    property alias currentItem: grid.currentItem
    property alias highlight: grid.highlight
    property alias highlightMoveDuration: grid.highlightMoveDuration
    property alias header: grid.header
    property alias footer: grid.footer
    property alias keyNavigationWraps: grid.keyNavigationWraps
    property alias reuseItems: grid.reuseItems
    property alias cacheBuffer: grid.cacheBuffer
    property alias interactive: grid.interactive
    property alias layoutDirection: grid.layoutDirection
    property alias contentY: grid.contentY
    property alias contentHeight: grid.contentHeight
    property alias moving: grid.moving

    property real itemWidth: 100
    property real itemHeight: 100
    property real horizontalSpacing: 0
    property real verticalSpacing: 0
    property real leftMargin: 0
    property real rightMargin: 0
    property alias topMargin: grid.topMargin
    property real bottomMargin: 0

    // Shown when not all rows fit. Another one, such as one in a theme's colours, can be assigned.
    property T.ScrollBar scrollBar: ScrollBar {}

    readonly property GridView view: grid

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Grid")

    GridView {
        id: grid

        // The grid knows no margins at its sides, where a mirrored one would be out of place by a column. The
        // spacing after a row's last item hangs over.
        LayoutMirroring.enabled: control.LayoutMirroring.enabled
        x: control.leftMargin
        width: control.width - control.leftMargin - control.rightMargin + control.horizontalSpacing
        height: control.height
        bottomMargin: control.bottomMargin - control.verticalSpacing
        focus: true
        cellWidth: control.itemWidth + control.horizontalSpacing
        cellHeight: control.itemHeight + control.verticalSpacing
        keyNavigationEnabled: true
        reuseItems: true
        cacheBuffer: 0
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 200
        highlightRangeMode: GridView.ApplyRange
        preferredHighlightBegin: topMargin
        preferredHighlightEnd: height - bottomMargin

        T.ScrollBar.vertical: control.scrollBar
    }
    FollowCurrentItem {
        view: grid
    }
    GridSteering {
        view: grid
    }
    // Beside the last column, in the margin as far as that is wide enough.
    Item {
        id: barArea

        readonly property real barWidth: control.scrollBar ? control.scrollBar.implicitWidth : 0
        readonly property bool hasBar: control.scrollBar !== null && control.scrollBar.parent === barArea
        readonly property real gap: Math.round(control.horizontalSpacing / 2)

        x: grid.effectiveLayoutDirection === Qt.RightToLeft
           ? Math.max(0, control.leftMargin - gap - barWidth)
           : Math.min(control.width - barWidth, control.width - control.rightMargin + gap)
        width: barWidth
        height: control.height
    }
    // While it is still within the grid, that gives it a place.
    Binding {
        target: control.scrollBar
        property: "parent"
        value: barArea
    }
    Binding {
        target: control.scrollBar
        when: barArea.hasBar
        property: "x"
        value: 0
    }
    Binding {
        target: control.scrollBar
        when: barArea.hasBar
        property: "height"
        value: barArea.height
    }
}
