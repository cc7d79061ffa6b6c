// SPDX-License-Identifier: MIT
#ifndef STBUI_STBEPGVIEWDELEGATELAYOUT_H
#define STBUI_STBEPGVIEWDELEGATELAYOUT_H

#include <QtCore/qrect.h>

namespace design_system {
struct PlayerEpgDelegateStyle;
}

/*!
    Where the parts of a programme row lie, in pixels of the row. Whole numbers; halves are rounded down;
    rectangles have inclusive corners, and one that is invalid belongs to a part that shows nothing.
*/
struct StbEpgViewDelegateLayout
{
    /*! What is to be placed: the extents of the laid-out texts at (0, 0) and the size of the icon. */
    struct Content
    {
        int top = 0; //!< the height of what lies above the badge and the texts; 0 in a plain row
        bool live = false;
        QSize liveIndicatorSize;
        QRect liveText;
        QRect startTime;
        QRect title;
        QRect subtitle;
    };

    QRect startTime;
    QRect title;
    QRect subtitle;
    QRect liveBadge; //!< this and the next two are set in a live row only
    QRect liveIndicator;
    QRect liveText;
    /*!
        The row's height: the lowest bottom corner of start time, title and subtitle, never below 0. A corner is
        inclusive, so this is one pixel less than the lowest painted line; lists' spacings are tuned to it.
    */
    int height = 0;

    static StbEpgViewDelegateLayout compute(const design_system::PlayerEpgDelegateStyle &style,
                                            const Content &content);

    bool operator==(const StbEpgViewDelegateLayout &) const = default;
};

#endif // STBUI_STBEPGVIEWDELEGATELAYOUT_H
