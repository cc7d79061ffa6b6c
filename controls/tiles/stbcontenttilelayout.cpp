// SPDX-License-Identifier: MIT
#include "controls/tiles/stbcontenttilelayout.h"

#include "controls/wholepixels.h"

#include <algorithm>

namespace {

// Icon and title, the smaller one centred beside the other. Returns where the next line starts.
int placeFirstLine(StbContentTileLayout &layout, int top, int spacing,
                   const StbContentTileLayout::Content &content)
{
    if (!content.icon && !content.title)
        return top;
    QRect icon(QPoint(0, top), content.icon.value_or(QSize(0, 0)));
    QRect title = content.title.value_or(QRect());
    const int lineHeight = std::max(icon.height(), title.height());
    // The inclusive edge, on purpose: -1 without an icon.
    title.translate(icon.right() + (icon.isEmpty() ? 0 : spacing), top);
    if (icon.height() < lineHeight)
        icon.moveTop(top + (lineHeight - icon.height()) / 2);
    else
        title.translate(0, (lineHeight - title.height()) / 2);
    if (content.icon)
        layout.icon = icon;
    if (content.title)
        layout.title = title;
    return top + lineHeight + spacing;
}

// A whole line of its own at the left edge; only its size counts.
QRect placeLine(int &top, int spacing, const std::optional<QRect> &text)
{
    if (!text)
        return {};
    const QRect line(QPoint(0, top), text->size());
    top += spacing + text->height();
    return line;
}

} // namespace

StbContentTileLayout StbContentTileLayout::compute(int pictureBottom, int spacing, const Content &content)
{
    StbContentTileLayout layout;
    const int bottom = qml_basic_plugin::wholePixels(pictureBottom, qml_basic_plugin::farAway);
    int top = placeFirstLine(layout, bottom + spacing, spacing, content);
    layout.subtitle = placeLine(top, spacing, content.subtitle);
    layout.status = placeLine(top, spacing, content.status);
    return layout;
}

int StbContentTileLayout::titleWidth(int tileWidth, int iconWidth, int spacing)
{
    return tileWidth - iconWidth - (iconWidth > 0 ? spacing : 0);
}
