// SPDX-License-Identifier: MIT
#ifndef STBCORE_TEXTRENDERER_H
#define STBCORE_TEXTRENDERER_H

#include <stbcore/stbcoreglobal.h>

#include <QtCore/qnamespace.h>
#include <QtCore/qrect.h>
#include <QtCore/qshareddata.h>
#include <QtGui/qfont.h>
#include <QtGui/qpen.h>

class QPainter;

namespace stbcore {

class TextRendererData;

/*!
    A plain text of one or several lines, laid out for painting. A value: copies share their contents,
    layout included, until one of them is changed, and a changed copy keeps showing the shared layout until
    its own relayout().

    The text is shown as written: markup and "&" have no meaning. "\n" (also "\r\n", "\r" and the Unicode
    line and paragraph separators) starts a new line. Lines break at word boundaries, inside a word only
    when the word alone is wider than the maximum width. When the text needs more than the allowed lines, the
    last one ends in "…"; white space at the end of the text needs no line. Right-to-left text, combining
    marks, emoji and missing glyphs come out as QTextLayout lays them out; the first character with a
    direction decides that of the whole text.

    A renderer may be used by one thread at a time. Copies of it count as the same renderer.
*/
class STBCORE_EXPORT TextRenderer
{
public:
    TextRenderer();
    TextRenderer(const TextRenderer &other);
    TextRenderer &operator=(const TextRenderer &other);
    ~TextRenderer();

    QString text() const;
    void setText(const QString &text);

    /*! The application's font by default. */
    QFont textFont() const;
    void setTextFont(const QFont &font);

    /*!
        Pixels that the lines may take; 2147483647, the default, is unlimited (lines of more than 8388607
        pixels break all the same). 0 and less: there is no room for any text.
    */
    int maxTextWidth() const;
    void setMaxTextWidth(int width);

    /*! Lines that the text may take, 1 by default. A number below 1 is taken and returned as 1. */
    int maxLineCount() const;
    void setMaxLineCount(int count);

    /*!
        Where in boundingRect() the lines stand, Qt::AlignLeft | Qt::AlignTop by default. Qt::AlignLeft and
        Qt::AlignRight mean the side where lines begin and end: in right-to-left text they are mirrored, as Qt
        does it, unless Qt::AlignAbsolute is set too. Qt::AlignJustify places lines where they begin and
        stretches none. The vertical flags are kept but have no effect.
    */
    Qt::Alignment textAlignment() const;
    void setTextAlignment(Qt::Alignment alignment);

    /*!
        False for a new renderer, true once a setter changed something that the layout depends on (also when
        it was changed back since), false again after relayout().
    */
    bool isNeedRelayout() const;

    /*!
        Lays the text out for the present values. Does nothing when isNeedRelayout() is false; glyphs and lines
        that the last layout made are kept where the change leaves them as they are.
    */
    void relayout();

    /*!
        The rectangle that the last relayout() found, in pixels from (0, 0): the width of the widest line,
        rounded up, with the ink that stands out of it, but not more than the maximum width; the height of
        all lines. The null rectangle QRect() before the first layout, for an empty text and for a maximum
        width of 0 or less.
    */
    QRect boundingRect() const;

private:
    friend STBCORE_EXPORT void drawTextRenderer(QPainter &painter, const TextRenderer &renderer,
                                                const QPen &pen);
    QSharedDataPointer<TextRendererData> d;
};

/*!
    Paints the layout of the last relayout() with the colour of \a pen, the top left corner of boundingRect()
    at the painter's origin, and leaves the painter's state as it was. Paints nothing where the bounding
    rectangle is null. Only a character that is wider than the maximum width all alone is cut off.
*/
STBCORE_EXPORT void drawTextRenderer(QPainter &painter, const TextRenderer &renderer, const QPen &pen);

} // namespace stbcore

#endif // STBCORE_TEXTRENDERER_H
