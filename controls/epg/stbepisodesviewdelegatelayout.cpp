// SPDX-License-Identifier: MIT
#include "controls/epg/stbepisodesviewdelegatelayout.h"

#include "controls/wholepixels.h"

#include <design_system/playerepisodesitemstyle.h>

using qml_basic_plugin::farAway;
using qml_basic_plugin::wholePixels;
using Style = design_system::PlayerEpisodesItemStyle;
using Layout = StbEpisodesViewDelegateLayout;

namespace {

int contentLeft(const Style &style)
{
    return style.contentLeftMargin + style.tileRect.left();
}

// The corner is inclusive and the sizes are not: boxes and bar lie one pixel higher than their margin says.
QRect cornerBox(const Style &style, const QSize &text, int above)
{
    if (text.isEmpty())
        return {}; // paddings alone would be a coloured stub
    const design_system::TextStyle &status = style.statusTextStyle;
    const QSize box(text.width() + status.leftPadding + status.rightPadding,
                    text.height() + status.topPadding + status.bottomPadding);
    const QPoint corner(style.tileRect.right() - box.width() - style.contentRightMargin,
                        style.tileRect.bottom() - box.height() - above - style.contentBottomMargin);
    return { corner, box };
}

} // namespace

QRect Layout::title(const Style &style, const QSize &text)
{
    return { QPoint(style.tileRect.width() + style.textLeftSpacing, 0), text };
}

QRect Layout::subtitle(const Style &style, const QSize &title, const QSize &text)
{
    return { QPoint(style.tileRect.width() + style.textLeftSpacing,
                    title.height() + style.titleSubtitleSpacing),
             text };
}

QRect Layout::playIcon(const Style &style)
{
    const QSize rest = style.tileRect.size() - style.playIconSize;
    return { QPoint(rest.width() / 2, rest.height() / 2), style.playIconSize };
}

QRect Layout::badge(const Style &style, const QSize &text)
{
    return cornerBox(style, text, 0);
}

QRect Layout::boxAboveBar(const Style &style, const QSize &text)
{
    return cornerBox(style, text, style.statusSpacing + style.progressBarRect.height());
}

QRect Layout::insideBadge(const Style &style, const QRect &badge)
{
    if (badge.isNull())
        return {};
    const design_system::TextStyle &status = style.statusTextStyle;
    return badge.adjusted(status.leftPadding, status.topPadding, -status.rightPadding, -status.bottomPadding);
}

QRect Layout::lowerDate(const Style &style, const QSize &text)
{
    const int top = (style.tileRect.bottom() - style.tileRect.top()) - (text.height() - 1)
                    - style.contentBottomMargin;
    return { QPoint(contentLeft(style), top), text };
}

QRect Layout::upperDate(const Style &style, const QSize &text, const QSize &lower)
{
    return lowerDate(style, text).translated(0, -lower.height());
}

double Layout::fraction(qint64 position, qint64 duration)
{
    return duration > 0 ? double(position) / double(duration) : 0.0;
}

Layout::Progress Layout::progress(const Style &style, double fraction)
{
    const int left = contentLeft(style);
    const int track = style.tileRect.width() - style.contentLeftMargin - style.contentRightMargin;
    const int bar = style.progressBarRect.height();
    const int top = style.tileRect.bottom() - bar - style.contentBottomMargin;
    const int viewed = wholePixels(track * fraction, farAway);
    return { QRect(left, top, viewed, bar), QRect(left + viewed - 1, top, track - viewed, bar) };
}
