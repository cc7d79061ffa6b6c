// SPDX-License-Identifier: MIT
#ifndef STBUI_STBEPGVIEWDELEGATEFOCUSEDLAYOUT_H
#define STBUI_STBEPGVIEWDELEGATEFOCUSEDLAYOUT_H

#include <QtCore/qrect.h>

namespace design_system {
struct PlayerEpgDelegateStyle;
}

/*!
    Where the parts on the card of a focused programme row lie, in pixels of the row: left edges from the card's,
    heights from the row's top. Whole numbers; halves are rounded towards zero; rectangles have inclusive corners.
*/
struct StbEpgViewDelegateFocusedLayout
{
    /*! What is to be placed: the extents of the laid-out texts at (0, 0) and the sizes of the icons. */
    struct Content
    {
        double progress = 0; //!< anything; painted within 0 to 1
        QSize playIcon; //!< this and the next are empty for a missing icon
        QSize reminderIcon;
        QRect status;
        QRect startsAt;
        QRect reminderAction; //!< the action bar's label
    };

    QRect played; //!< the progress bar's first part
    QRect remainder; //!< the rest of it; begins one pixel inside the played part, on purpose
    QRect playIcon;
    QRect notice; //!< the status text of a programme that cannot be watched, alone on the card
    QRect reminderIcon; //!< this and the next two: a stack in the middle of what the action bar leaves free
    QRect status;
    QRect startsAt;
    QRect reminderBar;
    QRect reminderAction;

    static StbEpgViewDelegateFocusedLayout compute(const design_system::PlayerEpgDelegateStyle &style,
                                                   const Content &content);

    bool operator==(const StbEpgViewDelegateFocusedLayout &) const = default;
};

#endif // STBUI_STBEPGVIEWDELEGATEFOCUSEDLAYOUT_H
