// SPDX-License-Identifier: MIT
#ifndef STBUI_STBEPGDATELAYOUT_H
#define STBUI_STBEPGDATELAYOUT_H

#include <QtCore/qrect.h>

/*! Where the two lines of a date cell lie, in pixels of the item. */
struct StbEpgDateLayout
{
    QRect month;
    QRect day;

    /*! From the extents of the laid-out texts. The day begins on the month's last pixel row. */
    static StbEpgDateLayout compute(const QRect &monthExtent, const QRect &dayExtent);

    /*! The largest width of the texts in an item that is \a itemWidth wide: whole pixels, rounded down. */
    static int textWidth(double itemWidth);
};

#endif // STBUI_STBEPGDATELAYOUT_H
