// SPDX-License-Identifier: MIT
#ifndef STBUI_STBCONTENTTILELAYOUT_H
#define STBUI_STBCONTENTTILELAYOUT_H

#include <QtCore/qrect.h>

#include <optional>

/*!
    Where the caption of a content tile lies, in pixels of the tile. Whole numbers; halves are rounded down;
    rectangles have inclusive corners, and one that is invalid belongs to a part that shows nothing.
*/
struct StbContentTileLayout
{
    /*! What is to be placed. A part without a value has no node and takes no room. */
    struct Content
    {
        std::optional<QSize> icon; //!< the size of the favourite icon; empty when its file could not be read
        std::optional<QRect> title; //!< the extents of the laid-out texts, null for an empty text
        std::optional<QRect> subtitle;
        std::optional<QRect> status;
    };

    QRect icon;
    QRect title;
    QRect subtitle;
    QRect status;

    /*!
        The caption below a picture whose inclusive bottom is \a pictureBottom. \a spacing is added to that,
        between icon and title, and between the lines.

        Two odd things are what styles are tuned to. The title starts at the inclusive right edge of what is
        before it, one pixel left of the plain sum: at -1 when it stands alone. A line whose text became empty
        still takes its spacing.
    */
    static StbContentTileLayout compute(int pictureBottom, int spacing, const Content &content);

    /*! The width that the title may take beside an icon of \a iconWidth, 0 for none. */
    static int titleWidth(int tileWidth, int iconWidth, int spacing);

    bool operator==(const StbContentTileLayout &) const = default;
};

#endif // STBUI_STBCONTENTTILELAYOUT_H
