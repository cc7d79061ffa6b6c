// SPDX-License-Identifier: MIT
#include "controls/epg/stbtvchannelviewdelegatelayout.h"

#include "controls/wholepixels.h"

#include <design_system/playertvchannelitemstyle.h>

#include <algorithm>
#include <cmath>

namespace {

using Layout = StbTvChannelViewDelegateLayout;
using Style = design_system::PlayerTvChannelItemStyle;
using design_system::TextStyle;
using qml_basic_plugin::farAway;

// Where a text in a box begins, from the box's place on.
QPoint paddingOf(const TextStyle &style)
{
    return { style.leftPadding, style.topPadding };
}

QRect boxAround(const QRect &text, const TextStyle &style)
{
    return text.adjusted(-style.leftPadding, -style.topPadding, style.rightPadding, style.bottomPadding);
}

QPoint textColumn(const Style &style)
{
    return { style.logoRect.width() + style.leftMargin + style.logoTextSpacing, style.textTopOffset };
}

void placeNumber(Layout &layout, const Style &style, const QRect &number)
{
    if (!number.isValid())
        return;
    const TextStyle &text = style.channelNumberTextStyle;
    layout.numberText = number.translated(text.rect.topLeft() + style.logoRect.topLeft() + paddingOf(text));
    layout.numberBox = boxAround(layout.numberText, text);
}

QRect qualityTextRect(const Style &style, const QRect &quality)
{
    return quality.isValid() ? quality.translated(textColumn(style) + paddingOf(style.qualityTextStyle))
                             : QRect();
}

// Paddings below 0 may leave no box around a text either.
QRect qualityBoxRect(const Style &style, const QRect &quality)
{
    const QRect box = quality.isValid() ? boxAround(qualityTextRect(style, quality), style.qualityTextStyle)
                                        : QRect();
    return box.isValid() ? box : QRect(textColumn(style), QSize(0, 0));
}

void placeNames(Layout &layout, const Style &style, const Layout::Content &content)
{
    const QRect &box = layout.qualityBox;
    int bottom = box.bottom();
    if (content.name.isValid()) {
        layout.name = box.isValid() ? content.name.translated(box.right() + style.nameQualitySpacing, 0)
                                    : content.name.translated(box.right(), 0);
        layout.name.moveTop(box.isValid() ? box.top() + (box.height() - content.name.height()) / 2
                                          : box.top());
        bottom = std::max(bottom, layout.name.bottom());
    }
    if (content.program.isValid())
        layout.program = content.program.translated(box.left(), bottom + style.programNameSpacing);
}

void placeLock(Layout &layout, const Style &style, const QSize &icon)
{
    const TextStyle &number = style.channelNumberTextStyle;
    layout.lockIcon = QRect(QPoint(style.logoRect.right() - icon.width() - number.rightPadding,
                                   style.logoRect.top() + number.topPadding),
                            icon);
}

void placePlaying(Layout &layout, const Style &style, const Layout::Content &content)
{
    const QRect &text = content.playing;
    const QSize &icon = content.playingIcon;
    const int shift = std::abs(icon.height() - text.height()) >> 1;
    const int textLeft = content.row.width() - style.rightMargin - text.width() + text.left();
    if (text.isValid())
        layout.playingText = QRect(QPoint(textLeft, style.topMargin + text.top()
                                                            + (text.height() < icon.height() ? shift : 0)),
                                   text.size());
    layout.playingIcon = QRect(QPoint(textLeft - style.playingIconSpacing - icon.width(),
                                      style.topMargin + (icon.height() < text.height() ? shift : 0)),
                               icon);
}

void placeProgress(Layout &layout, const Style &style, const Layout::Content &content)
{
    const int left = style.progressBarRect.left();
    const int barWidth = std::max(0, content.row.width() - left - style.rightMargin);
    const int barHeight = std::max(0, style.progressBarRect.height());
    const int top = content.row.height() - style.bottomMargin - barHeight;
    const double progress = content.progress > 0 ? std::min(content.progress, 1.) : 0.;
    const int end = left + int(barWidth * progress);
    layout.progressPlayed = QRect(left, top, end - left, barHeight);
    layout.progressRemainder = QRect(end - 1, top, barWidth - (end - left), barHeight);
}

} // namespace

Layout Layout::compute(const Style &style, const Content &content)
{
    StbTvChannelViewDelegateLayout layout;
    placeNumber(layout, style, content.number);
    layout.qualityText = qualityTextRect(style, content.quality);
    layout.qualityBox = qualityBoxRect(style, content.quality);
    placeNames(layout, style, content);
    placeLock(layout, style, content.lockIcon);
    if (content.live)
        placePlaying(layout, style, content);
    placeProgress(layout, style, content);
    return layout;
}

int StbTvChannelViewDelegateLayout::textWidth(const Style &style, int rowWidth)
{
    return rowWidth - textColumn(style).x() - style.rightMargin;
}

int StbTvChannelViewDelegateLayout::nameWidth(const Style &style, const Content &content, int textWidth)
{
    const int mark = content.live ? content.playing.width() + content.playingIcon.width()
                                            + style.playingIconSpacing
                                  : 0;
    return textWidth - qualityBoxRect(style, content.quality).width() - style.nameQualitySpacing - mark;
}

int StbTvChannelViewDelegateLayout::wholePixels(double value)
{
    return qml_basic_plugin::wholePixels(value, farAway);
}
