// SPDX-License-Identifier: MIT
import QtQuick

ComposedContentTile {
    id: tile

    property alias ratingText: marks.rating
    property alias rightholderImageSource: marks.logoSource
    property alias mediaPositionsTimepoint: marks.timepoint
    property alias moviePosterDuration: marks.duration

    VodMarks {
        id: marks

        x: Math.round(tile.customFocusRect.x)
        y: Math.round(tile.customFocusRect.y)
        width: Math.round(tile.customFocusRect.width)
        height: Math.round(tile.customFocusRect.height)
    }
}
