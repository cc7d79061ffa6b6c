// SPDX-License-Identifier: MIT
#ifndef STBUI_WHOLEPIXELS_H
#define STBUI_WHOLEPIXELS_H

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace qml_basic_plugin {

/*! Half of what an int holds: a corner and an extent within it still add up to an int. */
constexpr int maxCoordinate = 1 << 30;

/*! Beyond any screen; a few style numbers more or less still add up to an int. */
constexpr int farAway = 1 << 24;

/*!
    \a value without its fraction and within -\a most and \a most; no number is 0. Sizes of items are reals and
    numbers of styles are any an int can be: a layout makes its sums in a wider type and comes back through this.
*/
template <typename Number>
int wholePixels(Number value, int most = maxCoordinate)
{
    if constexpr (std::is_floating_point_v<Number>) {
        if (std::isnan(value))
            return 0;
    }
    return int(std::clamp<Number>(value, -most, most));
}

} // namespace qml_basic_plugin

#endif // STBUI_WHOLEPIXELS_H
