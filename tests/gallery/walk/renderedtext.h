// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_RENDEREDTEXT_H
#define STBUI_TEST_RENDEREDTEXT_H

#include <QtCore/qlist.h>
#include <QtCore/qstring.h>

class GalleryWindow;

/*! How well a text that is shown stands out. */
struct TextFigure
{
    QString what; // the text, and whose it is
    double contrast = 0; // the smallest one of its pixels
    bool isCovered = false; // something translucent lies over it
    bool isIcon = false; // a control's, in one colour: no text, but a graphical sign
};

/*!
    Measures every text that is seen in \a window on its rendered picture.

    The picture is taken as it is, and once more with nothing of the texts: of each text the one has what is painted, the
    other what is behind it, pixel by pixel. A text's colour is known from its item or, where a control paints it, from
    its pixmap, which has one colour and transparency. A pixel belongs to the text where the picture is that colour over
    what is behind it for more than half; the contrast is that of the whole colour to what is behind just this pixel, so
    that thin strokes, whose edges are smoothed, count as what they are, and pictures behind a text count where the text
    is and nowhere else. A text none of whose pixels comes near its colour lies under something translucent.

    Left out are texts that are switched off, logos, and what is under the fade at a list's edge. Icons that a control
    paints in one colour are square; those of other items are not measured.
*/
QList<TextFigure> textFigures(GalleryWindow &window);

#endif // STBUI_TEST_RENDEREDTEXT_H
