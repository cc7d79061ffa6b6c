// SPDX-License-Identifier: MIT
#ifndef STBTEST_BUTTONSTYLES_H
#define STBTEST_BUTTONSTYLES_H

#include "testkit/texts.h"

#include <design_system/buttonstyle.h>

#include <limits>

inline QFont pixelFont(int pixelSize)
{
    QFont result(QStringLiteral("DejaVu Sans"));
    result.setPixelSize(pixelSize);
    return result;
}

/*!
    Every number odd, every colour another one: two swapped fields cannot pass. In the font sizes
    a line of DejaVu Sans has the same height in all versions of Qt; see tilestyles.h.
*/
inline design_system::QmlButtonStyle oddButtonStyle()
{
    design_system::QmlButtonStyle style;
    style.size = QRect(501, 503, 313, 87);
    style.leftPadding = 19;
    style.iconTopOffset = 29;
    style.rightPadding = 23;
    style.iconSpacing = 13;
    style.backgroundColors = { QColor(40, 60, 90), QColor(20, 90, 60), QColor(50, 50, 50),
                               QColor(230, 235, 240) };
    style.leftIconColors = { QColor(201, 11, 12), QColor(202, 21, 22), QColor(203, 31, 32),
                             QColor(204, 41, 42) };
    style.rightIconColors = { QColor(11, 201, 12), QColor(21, 202, 22), QColor(31, 203, 32),
                              QColor(41, 204, 42) };
    style.textMarginLeft = 7;
    style.textMarginRight = 11;
    style.titleSubtitleSpacing = 5;
    style.titleStyle.font = pixelFont(20);
    style.titleStyle.maxLineCount = 1;
    style.titleStyle.colors = { QColor(251, 252, 253), QColor(151, 252, 253), QColor(151, 152, 153),
                                QColor(1, 2, 3) };
    style.subtitleStyle.font = pixelFont(17);
    style.subtitleStyle.maxLineCount = 1;
    style.subtitleStyle.colors = { QColor(251, 202, 3), QColor(151, 202, 3), QColor(151, 152, 103),
                                   QColor(101, 2, 3) };
    style.checkIndicatorSize = QRect(601, 603, 37, 9);
    style.checkIndicatorColor = QColor(255, 120, 0);
    style.checkIndicatorLeft = 17;
    style.checkIndicatorBottomMargin = 3;
    return style;
}

/*! Another value for every field, with centred lines. */
inline design_system::QmlButtonStyle otherButtonStyle()
{
    design_system::QmlButtonStyle style = oddButtonStyle();
    style.size = QRect(1, 3, 251, 65);
    style.leftPadding = 31;
    style.iconTopOffset = 9;
    style.rightPadding = 37;
    style.iconSpacing = 21;
    style.backgroundColors = { QColor(90, 60, 40), QColor(60, 90, 20), QColor(70, 70, 70),
                               QColor(240, 200, 230, 200) };
    std::swap(style.leftIconColors, style.rightIconColors);
    style.textMarginLeft = 3;
    style.textMarginRight = 1;
    style.titleSubtitleSpacing = 9;
    style.titleStyle.font = pixelFont(17);
    style.titleStyle.maxLineCount = 2;
    style.titleStyle.alignment = Qt::AlignHCenter;
    style.titleStyle.colors = { QColor(250, 22, 253), QColor(15, 252, 253), QColor(11, 152, 153),
                                QColor(1, 92, 3) };
    style.subtitleStyle.font = pixelFont(15);
    style.subtitleStyle.alignment = Qt::AlignHCenter | Qt::AlignTop;
    style.checkIndicatorSize = QRect(0, 0, 11, 5);
    style.checkIndicatorColor = QColor(0, 120, 255);
    style.checkIndicatorLeft = 27;
    style.checkIndicatorBottomMargin = 13;
    return style;
}

/*! The size of \a text laid out by itself. */
inline QSize textSize(const design_system::TextStyle &style, const QString &text,
                      int width = std::numeric_limits<int>::max())
{
    return stbtest::textExtent(style, text, width).size();
}

#endif // STBTEST_BUTTONSTYLES_H
