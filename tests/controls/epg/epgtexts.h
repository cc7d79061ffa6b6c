// SPDX-License-Identifier: MIT
#ifndef STBTEST_EPGTEXTS_H
#define STBTEST_EPGTEXTS_H

#include <design_system/textstyle.h>
#include <stbcore/textrenderer.h>

#include <QtGui/qpixmap.h>

#include <algorithm>

/*! The extent that \a text takes in \a style and \a width. */
inline QRect textExtent(const design_system::TextStyle &style, const QString &text, int width)
{
    stbcore::TextRenderer renderer;
    renderer.setTextFont(style.font);
    renderer.setMaxLineCount(style.maxLineCount);
    renderer.setTextAlignment(style.alignment);
    renderer.setMaxTextWidth(width);
    renderer.setText(text);
    renderer.relayout();
    return renderer.boundingRect();
}

/*! Whether every opaque pixel is of this colour, and there is one. */
inline bool isInkOf(const QPixmap &pixmap, const QColor &color)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    bool inked = false;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) < 255)
                continue;
            if (pixel != color.rgb())
                return false;
            inked = true;
        }
    }
    return inked;
}

#endif // STBTEST_EPGTEXTS_H
