// SPDX-License-Identifier: MIT
#include "controls/epg/stbepgviewdelegatelayout.h"

#include <design_system/playerepgdelegatestyle.h>

#include <algorithm>

namespace {

// Places the badge at y; returns where the texts go on.
int placeBadge(StbEpgViewDelegateLayout &layout, const design_system::PlayerEpgDelegateStyle &style,
               const StbEpgViewDelegateLayout::Content &content)
{
    const bool extended = content.top >= 1;
    const int y = content.top + (extended ? style.liveBadgeTopMarginExtended : style.liveBadgeTopMargin);
    const int left = style.previewRect.left();
    const int padding = style.liveBadgePadding;

    QRect indicator(QPoint(0, 0), content.liveIndicatorSize);
    QRect label = content.liveText;
    const int shift = std::abs(label.height() - indicator.height()) / 2;
    const bool labelTaller = label.height() > indicator.height();
    indicator.translate(left + padding, y + padding + (labelTaller ? shift : 0));
    // From the inclusive right corner: the visible gap is one pixel less than the spacing. Styles count on it.
    label.translate(indicator.right() + style.liveBadgeIconSpacing, y + padding + (labelTaller ? 0 : shift));

    layout.liveIndicator = indicator;
    layout.liveText = label;
    layout.liveBadge = QRect(left, y,
                             label.width() + indicator.width() + 2 * padding + style.liveBadgeIconSpacing,
                             2 * padding + std::max(label.height(), indicator.height()));
    return layout.liveBadge.bottom() + 1
           + (extended ? style.liveBadgeBottomSpacingExtended : style.liveBadgeBottomSpacing);
}

} // namespace

StbEpgViewDelegateLayout StbEpgViewDelegateLayout::compute(const design_system::PlayerEpgDelegateStyle &style,
                                                           const Content &content)
{
    StbEpgViewDelegateLayout layout;
    layout.startTime = content.startTime; // stays where its renderer put it
    layout.title = content.title;
    layout.subtitle = content.subtitle;
    const int y = content.live ? placeBadge(layout, style, content) : content.top;

    const int left = style.previewRect.left();
    if (layout.title.isValid()) {
        layout.title.translate(left, y);
        if (layout.subtitle.isValid())
            layout.subtitle.translate(left, layout.title.bottom() + style.titleSubtitleSpacing);
    } else if (layout.subtitle.isValid()) {
        layout.subtitle.translate(left, y);
    }
    layout.height = std::max(
            { layout.title.bottom(), layout.subtitle.bottom(), layout.startTime.bottom(), 0 });
    return layout;
}
