// SPDX-License-Identifier: MIT
#ifndef STBTEST_EPGTEXTS_H
#define STBTEST_EPGTEXTS_H

#include "testkit/pictures.h"
#include "testkit/texts.h"

using stbtest::textExtent;

/*! Whether every opaque pixel is of this colour, and there is one. */
inline bool isInkOf(const QPixmap &pixmap, const QColor &color)
{
    return stbtest::isPaintedIn(pixmap, color);
}

#endif // STBTEST_EPGTEXTS_H
