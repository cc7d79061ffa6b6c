// SPDX-License-Identifier: MIT
#include "controls/tiles/stbvodtilelayout.h"

#include "controls/wholepixels.h"

#include <design_system/tilestyle.h>

#include <algorithm>
#include <cmath>

using design_system::TileStyle;
using qml_basic_plugin::farAway;
using qml_basic_plugin::wholePixels;

namespace {

QRect boundedRect(const QRect &rect)
{
    const auto bounded = [](int edge) { return wholePixels(edge, farAway); };
    return QRect(QPoint(bounded(rect.left()), bounded(rect.top())),
                 QPoint(bounded(rect.right()), bounded(rect.bottom())));
}

// Both times are above 0, so that the ratio lies within 0 and 1; an infinite duration makes it 0.
int filledWidth(double timepoint, double duration, int barWidth)
{
    if (timepoint >= duration)
        return barWidth;
    const int filled = int(std::ceil(timepoint / duration * barWidth));
    return std::max(filled, std::min(1, barWidth));
}

void placeProgress(StbVodTileLayout &layout, const TileStyle &style, const QRect &picture,
                   const StbVodTileLayout::Content &content)
{
    layout.progressShown = content.duration > 0 && content.timepoint > 0;
    if (!layout.progressShown)
        return;
    const int inset = style.progressBarRect.left();
    const int barWidth = std::max(0, picture.width() - 2 * inset);
    const int barHeight = std::max(0, style.progressBarRect.height());
    const int left = picture.left() + inset;
    const int top = picture.bottom() - barHeight - inset;
    const int filled = filledWidth(content.timepoint, content.duration, barWidth);
    layout.progressValue = QRect(left, top, filled, barHeight);
    layout.trackShown = content.timepoint < content.duration;
    if (layout.trackShown)
        layout.progressTrack = QRect(left + filled - 1, top, barWidth - filled, barHeight);
}

} // namespace

StbVodTileLayout StbVodTileLayout::compute(const TileStyle &style, const Content &content)
{
    StbVodTileLayout layout;
    const QRect picture = boundedRect(content.picture);
    placeProgress(layout, style, picture, content);

    const int lift = layout.progressShown ? style.rightholderLift : 0;
    layout.rightholder = QRect(QPoint(picture.right() - style.rightholderRightMargin
                                              - content.rightholder.width(),
                                      picture.bottom() - style.rightholderBottomMargin - lift
                                              - content.rightholder.height()),
                               content.rightholder);

    const QMargins &padding = style.ratingBadgePadding;
    const QPoint badgeOrigin = picture.topLeft() + style.ratingBadgeOffset;
    layout.ratingText = QRect(badgeOrigin + QPoint(padding.left(), padding.top()), content.rating);
    layout.ratingBadge = QRect(badgeOrigin, content.rating.grownBy(padding).expandedTo(QSize(0, 0)));
    return layout;
}
