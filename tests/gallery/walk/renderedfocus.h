// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_RENDEREDFOCUS_H
#define STBUI_TEST_RENDEREDFOCUS_H

#include <QtGui/qimage.h>

#include <optional>

class GalleryWindow;

/*!
    How well what has the focus stands out from what surrounds it, measured on pictures: \a focused, and \a unfocused of
    the same state with nothing of the focus. Nothing when they are the same.

    The pixels that differ are what shows the focus. Each pixel just outside of them is compared with the best of them
    within three pixels, for corners and edges are smoothed; the smallest ratio around is the result.
*/
std::optional<double> focusContrast(const QImage &focused, const QImage &unfocused);

/*!
    The same for what is shown in \a window. Nothing of the focus means: the window is not the one that has the keys,
    no focus plate is seen, and buttons and tiles that a controller gives the focus are in their state without it.
*/
std::optional<double> focusContrast(GalleryWindow &window);

#endif // STBUI_TEST_RENDEREDFOCUS_H
