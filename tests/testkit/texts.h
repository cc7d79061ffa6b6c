// SPDX-License-Identifier: MIT
#ifndef STBTEST_TEXTS_H
#define STBTEST_TEXTS_H

#include <QtCore/qrect.h>
#include <QtCore/qstring.h>
#include <stbcore/textrenderer.h>

#include <limits>

namespace stbtest {

/*! Lays \a text out with \a renderer in a style's font, lines and alignment, and in \a width at the most. */
template <typename TextStyle>
void layOutText(stbcore::TextRenderer &renderer, const TextStyle &style, const QString &text, int width)
{
    renderer.setTextFont(style.font);
    renderer.setMaxLineCount(style.maxLineCount);
    renderer.setTextAlignment(style.alignment);
    renderer.setMaxTextWidth(width);
    renderer.setText(text);
    renderer.relayout();
}

/*! The extent of \a text laid out by itself. */
template <typename TextStyle>
QRect textExtent(const TextStyle &style, const QString &text, int width = std::numeric_limits<int>::max())
{
    stbcore::TextRenderer renderer;
    layOutText(renderer, style, text, width);
    return renderer.boundingRect();
}

} // namespace stbtest

#endif // STBTEST_TEXTS_H
