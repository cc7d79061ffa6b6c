// SPDX-License-Identifier: MIT
#include "controls/epg/stbepgviewdelegatefocusedlayout.h"

#include <design_system/playerepgdelegatestyle.h>

#include <algorithm>

using Layout = StbEpgViewDelegateFocusedLayout;
using Style = design_system::PlayerEpgDelegateStyle;

namespace {

// Where something of this length begins in the middle of that much room.
int centred(int room, int length)
{
    return (room - length) / 2;
}

void placeProgress(Layout &layout, const Style &style, double progress)
{
    const QRect &card = style.previewRect;
    const int margin = style.progressBarRect.left();
    const int barHeight = style.progressBarRect.height();
    const int barWidth = card.width() - 2 * margin;
    const int left = card.left() + margin;
    const int top = card.height() - margin - barHeight;
    const double share = progress > 0 ? std::min(progress, 1.0) : 0.0; // not-a-number is 0
    const int filled = int(barWidth * share);
    layout.played = QRect(left, top, filled, barHeight);
    // One pixel inside the played part, which hides the seam; its width does not make up for it.
    layout.remainder = QRect(left + filled - 1, top, barWidth - filled, barHeight);
}

void placeReminderBlock(Layout &layout, const Style &style, const Layout::Content &content)
{
    const QRect &card = style.previewRect;
    const int left = card.left();
    const int barHeight = style.reminderActionTextStyle.rect.height();
    layout.reminderBar = QRect(left, card.height() - barHeight, card.width(), barHeight);
    layout.reminderAction =
            content.reminderAction.translated(left + centred(card.width(), content.reminderAction.width()),
                                              layout.reminderBar.top()
                                                      + centred(barHeight, content.reminderAction.height()));

    const QSize icon = content.reminderIcon.expandedTo(QSize(0, 0));
    const int iconBlock = icon.height() + (icon.isEmpty() ? 0 : style.reminderIconSpacing);
    const int stack = content.startsAt.height() + content.status.height() + iconBlock;
    const int top = centred(card.height() - barHeight, stack);
    layout.reminderIcon = QRect(QPoint(left + centred(card.width(), icon.width()), top), icon);
    // The spacing is here even without an icon, which the stack's height leaves out.
    layout.status = QRect(QPoint(left + centred(card.width(), content.status.width()),
                                 top + icon.height() + style.reminderIconSpacing),
                          content.status.size());
    layout.startsAt = QRect(QPoint(left + centred(card.width(), content.startsAt.width()),
                                   layout.status.top() + content.status.height()),
                            content.startsAt.size());
}

} // namespace

Layout Layout::compute(const Style &style, const Content &content)
{
    Layout layout;
    const QRect &card = style.previewRect;
    placeProgress(layout, style, content.progress);
    placeReminderBlock(layout, style, content);
    const QSize icon = content.playIcon.expandedTo(QSize(0, 0));
    layout.playIcon = QRect(QPoint(card.left() + centred(card.width(), icon.width()),
                                   centred(card.height(), icon.height())),
                            icon);
    layout.notice = content.status.translated(card.left() + centred(card.width(), content.status.width()),
                                              centred(card.height(), content.status.height()));
    return layout;
}
