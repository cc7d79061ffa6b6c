// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Controls.Basic

ItemDelegate {
    property alias date: content.date
    property alias isActive: content.isActive

    padding: 0
    horizontalPadding: 0
    background: null

    // qmllint disable deferred-property-id
    contentItem: ComposedEpgDate {
        id: content
    }
}
