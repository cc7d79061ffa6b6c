// SPDX-License-Identifier: MIT
#ifndef STBTEST_TILESTYLES_H
#define STBTEST_TILESTYLES_H

#include <design_system/tilestyle.h>

inline design_system::TextStyle tileText(int pixelSize, int maxLineCount, Qt::Alignment alignment)
{
    design_system::TextStyle style;
    style.font = QFont(QStringLiteral("DejaVu Sans"));
    style.font.setPixelSize(pixelSize);
    style.maxLineCount = maxLineCount;
    style.alignment = alignment;
    return style;
}

/*!
    Every number odd and used once, every colour another one: two swapped fields cannot pass. Resting
    tile 201 x 113; focused it sticks out by 23 to the left, 17 above, 29 to the right and 31 below. In the
    font sizes a line of DejaVu Sans has the same height in all versions of Qt: up to 6.7 it is the sum of ascent
    and descent rounded up, from then on of both rounded to whole pixels (at 25 pixels 30 and 29), and an ascent of
    half a pixel, as at 21, is rounded up or down. 15, 17, 20, 24, 28 and 29 agree.
*/
inline design_system::TileStyle oddTileStyle()
{
    design_system::TileStyle style;
    style.tileRect = QRect(0, 0, 201, 113);
    style.backgroundColor = QColor(41, 83, 127);
    style.overlayColor = QColor(255, 207, 31, 51);
    style.focusedRect = QRect(-23, -17, 23 + 201 + 29, 17 + 113 + 31);
    style.borderPen = QPen(QColor(211, 37, 151), 3);
    style.favouriteIconColor = QColor(239, 67, 71);
    style.captionSpacing = 7;
    style.titleStyle = tileText(20, 1, Qt::AlignLeft);
    style.titleColor = QColor(19, 21, 23);
    style.subtitleStyle = tileText(17, 1, Qt::AlignLeft);
    style.subtitleColor = QColor(91, 103, 107);
    style.statusStyle = tileText(15, 1, Qt::AlignLeft);
    style.statusColor = QColor(1, 131, 61);
    style.ratingStyle = tileText(29, 1, Qt::AlignLeft);
    style.ratingColor = QColor(251, 253, 247);
    style.ratingBadgeColor = QColor(161, 11, 13);
    style.ratingBadgeOffset = QPoint(9, 11);
    style.ratingBadgePadding = QMargins(5, 13, 15, 1);
    style.rightholderRightMargin = 19;
    style.rightholderBottomMargin = 21;
    style.rightholderLift = 25;
    style.progressBarRect = QRect(27, 401, 403, 35); // left: the inset; height: the bar's
    style.progressValueColor = QColor(77, 199, 89);
    style.progressTrackColor = QColor(137, 139, 149);
    return style;
}

/*! Another value for every field. */
inline design_system::TileStyle otherTileStyle()
{
    design_system::TileStyle style;
    style.tileRect = QRect(0, 0, 143, 181);
    style.backgroundColor = QColor(113, 47, 29);
    style.overlayColor = QColor(3, 5, 173, 77);
    style.focusedRect = QRect(-11, -33, 11 + 143 + 37, 33 + 181 + 5);
    style.borderPen = QPen(QColor(7, 219, 223), 5);
    style.favouriteIconColor = QColor(59, 227, 233);
    style.captionSpacing = 3;
    style.titleStyle = tileText(29, 2, Qt::AlignRight);
    style.titleColor = QColor(101, 1, 97);
    style.subtitleStyle = tileText(15, 2, Qt::AlignHCenter);
    style.subtitleColor = QColor(43, 109, 3);
    style.statusStyle = tileText(17, 2, Qt::AlignRight);
    style.statusColor = QColor(163, 61, 0);
    style.ratingStyle = tileText(20, 1, Qt::AlignHCenter);
    style.ratingColor = QColor(17, 15, 9);
    style.ratingBadgeColor = QColor(241, 193, 59);
    style.ratingBadgeOffset = QPoint(15, 1);
    style.ratingBadgePadding = QMargins(9, 7, 17, 21);
    style.rightholderRightMargin = 27;
    style.rightholderBottomMargin = 13;
    style.rightholderLift = 43;
    style.progressBarRect = QRect(19, 405, 407, 23);
    style.progressValueColor = QColor(231, 49, 179);
    style.progressTrackColor = QColor(53, 57, 65);
    return style;
}

/*! The same without the overlay and the border. */
inline design_system::TileStyle withoutFrame(design_system::TileStyle style)
{
    style.overlayColor = QColor();
    style.borderPen = QPen(QBrush(QColor()), 0);
    return style;
}

#endif // STBTEST_TILESTYLES_H
