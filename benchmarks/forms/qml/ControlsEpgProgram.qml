// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Controls.Basic

ItemDelegate {
    property alias tvProgramExactDate: content.tvProgramExactDate
    property alias itemTitle: content.itemTitle
    property alias tvProgramDescription: content.tvProgramDescription
    property alias imageSource: content.imageSource

    padding: 0
    horizontalPadding: 0
    background: null

    // qmllint disable deferred-property-id
    contentItem: ComposedEpgProgram {
        id: content
    }
}
