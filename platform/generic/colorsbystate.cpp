// SPDX-License-Identifier: MIT
#include "colorsbystate.h"

namespace stbgeneric {

namespace {

QColor colorAt(const QList<QColor> &colors, qsizetype index)
{
    const QColor color = colors.value(index < colors.size() ? index : 0);
    return color.isValid() ? color : QColor(Qt::transparent);
}

} // namespace

QColor ColorsByState::ofControl(const QList<QColor> &colors, bool enabled, bool checked, bool focused) const
{
    enum { Normal, Checked, Disabled, Focused };
    if (!enabled)
        return colorAt(colors, Disabled);
    if (checked)
        return colorAt(colors, Checked);
    return colorAt(colors, focused ? Focused : Normal);
}

QColor ColorsByState::ofMenuButton(const QList<QColor> &colors, bool checked, bool focused) const
{
    enum { Normal, Checked, Focused };
    if (focused)
        return colorAt(colors, Focused);
    return colorAt(colors, checked ? Checked : Normal);
}

} // namespace stbgeneric
