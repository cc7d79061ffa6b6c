// SPDX-License-Identifier: MIT
#include "controls/epg/stbhorizontalepgviewdelegatelayout.h"

#include <design_system/playerhorizontalepgviewstyle.h>

int StbHorizontalEpgViewDelegateLayout::textWidth(const design_system::PlayerHorizontalEpgViewStyle &style)
{
    return style.delegateRect.width() - style.leftPadding - style.rightPadding - style.imageTextSpacing
           - style.imageRect.width();
}

StbHorizontalEpgViewDelegateLayout StbHorizontalEpgViewDelegateLayout::compute(
        const design_system::PlayerHorizontalEpgViewStyle &style, double itemHeight, const Texts &texts)
{
    const QSizeF imageSize = style.imageRect.size();
    const double top = (itemHeight - imageSize.height()) * 0.5;
    // The column stays where it is without a picture too: cells with and without one stand side by side.
    const double column = imageSize.width() + style.leftPadding + style.imageTextSpacing;

    StbHorizontalEpgViewDelegateLayout layout;
    layout.image = QRectF(QPointF(style.leftPadding, top), imageSize);
    layout.date = QRectF(QPointF(column, top), texts.date);
    layout.title = QRectF(QPointF(column, layout.date.bottom() + style.dateTitleGap), texts.title);
    layout.description = QRectF(QPointF(column, layout.title.bottom() + style.titleDescriptionGap),
                                texts.description);
    return layout;
}
