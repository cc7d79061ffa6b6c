// SPDX-License-Identifier: MIT
#ifndef STBUI_STBTVCHANNELVIEWDELEGATELAYOUT_H
#define STBUI_STBTVCHANNELVIEWDELEGATELAYOUT_H

#include <QtCore/qrect.h>

namespace design_system {
struct PlayerTvChannelItemStyle;
}

/*!
    Where the parts of a channel's row lie, in pixels of the row. Whole numbers; halves are cut off; rectangles have
    inclusive corners, and one that is invalid belongs to a part that shows nothing.
*/
struct StbTvChannelViewDelegateLayout
{
    /*! What is to be placed: the row's size, the extents of the laid-out texts and the sizes of the icons. */
    struct Content
    {
        QSize row;
        QRect number;
        QRect quality;
        QRect name;
        QRect program;
        bool live = false;
        QRect playing; //!< this and the next are looked at in a live row only
        QSize playingIcon;
        QSize lockIcon;
        double progress = 0; //!< 0 to 1; what lies outside is bounded, what is no number is 0
    };

    QRect numberText;
    QRect numberBox;
    QRect qualityText;
    /*! The quality badge. Without quality it is empty, but its place is where the texts' column begins. */
    QRect qualityBox;
    QRect name;
    QRect program;
    QRect lockIcon;
    QRect playingText; //!< this and the next are set in a live row only
    QRect playingIcon;
    /*! Both parts of the bar overlap by one pixel: the remainder begins on the last played one. */
    QRect progressPlayed;
    QRect progressRemainder;

    static StbTvChannelViewDelegateLayout compute(const design_system::PlayerTvChannelItemStyle &style,
                                                  const Content &content);

    /*! The width that the logo's column and the margins leave for texts in a row \a rowWidth pixels wide. */
    static int textWidth(const design_system::PlayerTvChannelItemStyle &style, int rowWidth);

    /*! What quality badge, spacing and "playing" mark leave of \a textWidth; the name's extent is not looked at. */
    static int nameWidth(const design_system::PlayerTvChannelItemStyle &style, const Content &content,
                         int textWidth);

    /*! \a value without its fraction; no number is 0, and what lies beyond any screen is bounded. */
    static int wholePixels(double value);

    bool operator==(const StbTvChannelViewDelegateLayout &) const = default;
};

#endif // STBUI_STBTVCHANNELVIEWDELEGATELAYOUT_H
