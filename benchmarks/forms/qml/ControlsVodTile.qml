// SPDX-License-Identifier: MIT
import QtQuick

ControlsContentTile {
    id: tile

    property alias ratingText: marks.rating
    property alias rightholderImageSource: marks.logoSource
    property alias mediaPositionsTimepoint: marks.timepoint
    property alias moviePosterDuration: marks.duration

    VodMarks {
        id: marks

        z: 1 // the picture is the content item, which is above what is added
        x: Math.round(tile.customFocusRect.x)
        y: Math.round(tile.customFocusRect.y)
        width: Math.round(tile.customFocusRect.width)
        height: Math.round(tile.customFocusRect.height)
    }
}
