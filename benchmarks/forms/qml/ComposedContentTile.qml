// SPDX-License-Identifier: MIT
import QtQuick

ComposedTile {
    id: tile

    property alias itemTitle: caption.title
    property alias itemSubtitle: caption.subtitle
    property alias itemStatus: caption.status
    property alias itemIsFavourite: caption.favourite

    TileCaption {
        id: caption

        y: Math.round(tile.customFocusRect.y) + Math.round(tile.customFocusRect.height) + 7
    }
}
