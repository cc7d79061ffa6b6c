// SPDX-License-Identifier: MIT
#ifndef STBUI_STBVODTILELAYOUT_H
#define STBUI_STBVODTILELAYOUT_H

#include <QtCore/qrect.h>

namespace design_system {
struct TileStyle;
}

/*!
    Where the marks on the picture of a video-on-demand tile lie, in pixels of the tile. Whole numbers;
    rectangles have inclusive corners, and one that is invalid paints nothing.
*/
struct StbVodTileLayout
{
    struct Content
    {
        QRect picture; //!< the rectangle that the picture fills now
        QSize rightholder; //!< the logo
        QSize rating; //!< the laid-out rating text
        double timepoint = 0; //!< the watched position, in the unit of the duration
        double duration = 0;
    };

    QRect rightholder;
    QRect ratingBadge;
    QRect ratingText;
    /*! Whether the bar shows: both times are above 0. The logo makes room for it. */
    bool progressShown = false;
    /*! Whether the bar has a part that was not watched yet. */
    bool trackShown = false;
    QRect progressValue;
    /*!
        Starts on the last column of the watched part, which is painted above it, and is as wide as what is left:
        the bar's last column stays uncovered, on purpose.
    */
    QRect progressTrack;

    /*!
        A position that is not a number shows no bar, one beyond the duration a full one. As soon as something
        was watched one column at least is filled, however long the duration is. A picture that has no room for
        the bar between its insets gets a bar of no width.
    */
    static StbVodTileLayout compute(const design_system::TileStyle &style, const Content &content);

    bool operator==(const StbVodTileLayout &) const = default;
};

#endif // STBUI_STBVODTILELAYOUT_H
