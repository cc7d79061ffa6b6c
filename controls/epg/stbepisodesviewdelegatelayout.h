// SPDX-License-Identifier: MIT
#ifndef STBUI_STBEPISODESVIEWDELEGATELAYOUT_H
#define STBUI_STBEPISODESVIEWDELEGATELAYOUT_H

#include <QtCore/qrect.h>

namespace design_system {
struct PlayerEpisodesItemStyle;
}

/*!
    Where the parts of an episode lie, in pixels of the item: the style's numbers and the extents of the laid-out
    texts make the rectangles. A text that shows nothing has the extent 0 x 0.

    A rectangle that comes out with a width or height below 0 is for nothing to be painted.
*/
struct StbEpisodesViewDelegateLayout
{
    using Style = design_system::PlayerEpisodesItemStyle;

    /*! The two parts of the progress bar. The remaining one begins on the last pixel of the viewed one. */
    struct Progress
    {
        QRect viewed;
        QRect remaining;
    };

    /*! Right of the tile's width, wherever the tile lies; at the top of the item. */
    static QRect title(const Style &style, const QSize &text);
    /*! Below the title. The gap stays when there is none. */
    static QRect subtitle(const Style &style, const QSize &title, const QSize &text);

    /*! In the middle of a tile that lies at 0, 0. */
    static QRect playIcon(const Style &style);

    /*! The status with its paddings in the tile's lower right corner; null without a text. */
    static QRect badge(const Style &style, const QSize &text);
    /*! The same above the progress bar. */
    static QRect boxAboveBar(const Style &style, const QSize &text);
    /*! The text inside a badge(). */
    static QRect insideBadge(const Style &style, const QRect &badge);

    /*! The two lines of a date, which stand on the bottom margin of a tile whose top is 0. */
    static QRect lowerDate(const Style &style, const QSize &text);
    static QRect upperDate(const Style &style, const QSize &text, const QSize &lower);

    /*! How much of \a duration is over at \a position, without bounds; 0 for a duration of 0 or less. */
    static double fraction(qint64 position, qint64 duration);
    /*! A \a fraction outside 0 and 1 makes one part longer than the bar and the other one's width negative. */
    static Progress progress(const Style &style, double fraction);
};

#endif // STBUI_STBEPISODESVIEWDELEGATELAYOUT_H
