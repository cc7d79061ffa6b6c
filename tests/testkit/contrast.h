// SPDX-License-Identifier: MIT
#ifndef STBTEST_CONTRAST_H
#define STBTEST_CONTRAST_H

#include <QtGui/qcolor.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace stbtest {

/*! What a colour channel of 0 to 255 contributes to brightness. */
inline double linearChannel(int channel)
{
    static const std::array<double, 256> values = [] {
        std::array<double, 256> table {};
        for (size_t i = 0; i < table.size(); ++i) {
            const double part = double(i) / 255;
            table[i] = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        }
        return table;
    }();
    return values[size_t(channel)];
}

/*! Relative luminance as the web's accessibility guidelines define it, for opaque colours. */
inline double luminance(const QColor &c)
{
    return 0.2126 * linearChannel(c.red()) + 0.7152 * linearChannel(c.green())
           + 0.0722 * linearChannel(c.blue());
}

/*! Contrast ratio of two opaque colours, from 1 to 21, as the same guidelines define it. */
inline double contrast(const QColor &a, const QColor &b)
{
    const double dark = std::min(luminance(a), luminance(b));
    const double light = std::max(luminance(a), luminance(b));
    return (light + 0.05) / (dark + 0.05);
}

/*! What a translucent colour looks like over another one. */
inline QColor blended(const QColor &c, const QColor &ground)
{
    const auto mixed = [&](int over, int under) { return under + (over - under) * c.alpha() / 255; };
    return QColor(mixed(c.red(), ground.red()), mixed(c.green(), ground.green()),
                  mixed(c.blue(), ground.blue()));
}

} // namespace stbtest

#endif // STBTEST_CONTRAST_H
