// SPDX-License-Identifier: MIT
#ifndef STBUI_STBHORIZONTALEPGVIEWDELEGATELAYOUT_H
#define STBUI_STBHORIZONTALEPGVIEWDELEGATELAYOUT_H

#include <QtCore/qrect.h>

namespace design_system {
struct PlayerHorizontalEpgViewStyle;
}

/*! Where the parts of a programme in the player's list lie, in pixels of the item; vertically not rounded. */
struct StbHorizontalEpgViewDelegateLayout
{
    /*! The extents of the laid-out texts. One that is empty takes no room, but the gap below it stays. */
    struct Texts
    {
        QSize date;
        QSize title;
        QSize description;
    };

    QRectF image;
    QRectF date;
    QRectF title;
    QRectF description;

    /*! What the style leaves for the texts; 0 or less when that is nothing. */
    static int textWidth(const design_system::PlayerHorizontalEpgViewStyle &style);

    static StbHorizontalEpgViewDelegateLayout compute(const design_system::PlayerHorizontalEpgViewStyle &style,
                                                      double itemHeight, const Texts &texts);
};

#endif // STBUI_STBHORIZONTALEPGVIEWDELEGATELAYOUT_H
