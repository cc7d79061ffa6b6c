// SPDX-License-Identifier: MIT
#ifndef STBUI_STBBUTTONLAYOUT_H
#define STBUI_STBBUTTONLAYOUT_H

#include <QtCore/qrect.h>

namespace design_system {
struct QmlButtonStyle;
}

/*!
    Where the parts of a button lie, in pixels of the button. Whole numbers; every division truncates toward
    zero; rectangles have inclusive corners, and one that is invalid belongs to a part that shows nothing.

    A button of fixed width elides or wraps its texts, and its content begins at the left edge; any other grows
    with its content and keeps its paddings.
*/
struct StbButtonLayout
{
    /*! What is to be placed, and in what. Sizes of parts that are not there are empty. */
    struct Content
    {
        bool fixed = true;
        int width = 0; //!< of the button
        int height = 0;
        double leftPadding = 0; //!< the button's own; 0 or less, or no number, means the style's
        double rightPadding = 0;
        QSize leftIcon;
        QSize rightIcon;
        bool hasTitle = false;
        bool hasSubtitle = false;
        /*!
            The extents of the laid-out lines. A line that became empty keeps taking the room that it took last,
            so that the other one does not jump.
        */
        QSize title;
        QSize subtitle;
    };

    QRect leftIcon;
    QRect rightIcon;
    QRect title;
    QRect subtitle;
    /*! The width that a growing button needs, paddings included; of a fixed one its own width. */
    int implicitWidth = 0;

    static StbButtonLayout compute(const design_system::QmlButtonStyle &style, const Content &content);

    /*! The width that the lines of a fixed button may take; the lines' own extents are not looked at. */
    static int textWidth(const design_system::QmlButtonStyle &style, const Content &content);

    /*! The side of the throbber's square in a button \a height pixels high; bounded, as it costs memory. */
    static int throbberSide(double height);

    bool operator==(const StbButtonLayout &) const = default;
};

#endif // STBUI_STBBUTTONLAYOUT_H
