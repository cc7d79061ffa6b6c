// SPDX-License-Identifier: MIT
#include "controls/epg/stbepgdatelayout.h"

#include <algorithm>
#include <limits>

StbEpgDateLayout StbEpgDateLayout::compute(const QRect &monthExtent, const QRect &dayExtent)
{
    return { QRect(QPoint(0, 0), monthExtent.size()),
             QRect(QPoint(0, monthExtent.bottom()), dayExtent.size()) };
}

int StbEpgDateLayout::textWidth(double itemWidth)
{
    return int(std::min<double>(itemWidth, std::numeric_limits<int>::max()));
}
