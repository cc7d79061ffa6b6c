// SPDX-License-Identifier: MIT
#include "controls/buttons/stbbuttonlayout.h"

#include "controls/wholepixels.h"

#include <design_system/buttonstyle.h>

#include <algorithm>
#include <cmath>

using qml_basic_plugin::wholePixels;

namespace {

using Style = design_system::QmlButtonStyle;
using Content = StbButtonLayout::Content;

constexpr int maxThrobberSide = 2048;

bool isShown(const QSize &size)
{
    return size.width() > 0 && size.height() > 0;
}

QRect placed(qint64 x, qint64 y, const QSize &size)
{
    return isShown(size) ? QRect(QPoint(wholePixels(x), wholePixels(y)), size) : QRect();
}

qint64 padding(double own, int ofStyle)
{
    return own > 0 ? wholePixels(own) : ofStyle;
}

// What the parts are placed between, from left to right.
struct Columns
{
    qint64 leftIcon = 0;
    qint64 text = 0; // with the space after a left icon and the text's left margin
    qint64 textWidth = 0;
    qint64 right = 0; // the limit of the text column with its right margin
    qint64 rightPadding = 0;
};

Columns columns(const Style &style, const Content &content)
{
    Columns result;
    result.rightPadding = padding(content.rightPadding, style.rightPadding);
    if (content.fixed) {
        result.right = content.width;
        if (isShown(content.rightIcon))
            result.right -= qint64(content.rightIcon.width()) + style.iconSpacing;
    } else {
        result.leftIcon = padding(content.leftPadding, style.leftPadding);
        result.right = content.width - result.rightPadding;
    }
    result.text = result.leftIcon + style.textMarginLeft;
    if (isShown(content.leftIcon))
        result.text += qint64(content.leftIcon.width()) + style.iconSpacing;
    result.textWidth = result.right - result.text - style.textMarginRight;
    return result;
}

qint64 centred(const design_system::TextStyle &style, const Columns &columns, const QSize &line)
{
    const bool center = style.alignment.testFlag(Qt::AlignHCenter);
    return columns.text + (center ? (columns.textWidth - line.width()) / 2 : 0);
}

void placeTexts(StbButtonLayout &layout, const Style &style, const Content &content, const Columns &columns)
{
    const qint64 middle = content.height / 2;
    qint64 total = qint64(content.title.height()) + content.subtitle.height();
    if (content.hasTitle && content.hasSubtitle)
        total += style.titleSubtitleSpacing;
    const qint64 top = middle - total / 2;
    if (content.fixed) {
        layout.title = placed(centred(style.titleStyle, columns, content.title), top, content.title);
        layout.subtitle = placed(centred(style.subtitleStyle, columns, content.subtitle),
                                 middle + total / 2 - content.subtitle.height(), content.subtitle);
    } else {
        // A growing button is meant for one line: a second one lies over the first.
        layout.title = placed(columns.text, top, content.title);
        layout.subtitle = placed(columns.text, top, content.subtitle);
    }
}

// Where a growing button goes on behind its left icon and its texts.
qint64 endOfTexts(const Style &style, const Content &content, const Columns &columns)
{
    if (content.hasTitle || content.hasSubtitle)
        return columns.text + std::max(content.title.width(), content.subtitle.width())
               + style.textMarginRight;
    return columns.leftIcon + (isShown(content.leftIcon) ? content.leftIcon.width() : 0);
}

} // namespace

StbButtonLayout StbButtonLayout::compute(const Style &style, const Content &content)
{
    const Columns columns = ::columns(style, content);
    const qint64 middle = content.height / 2;
    const bool hasText = content.hasTitle || content.hasSubtitle;

    StbButtonLayout layout;
    const bool alone = content.fixed && !hasText;
    layout.leftIcon = placed(alone ? content.width / 2 - content.leftIcon.width() / 2 : columns.leftIcon,
                             middle - content.leftIcon.height() / 2, content.leftIcon);
    if (hasText)
        placeTexts(layout, style, content, columns);

    if (content.fixed) {
        layout.rightIcon = placed(columns.right, style.iconTopOffset, content.rightIcon);
        layout.implicitWidth = content.width;
        return layout;
    }
    qint64 x = endOfTexts(style, content, columns);
    if (isShown(content.rightIcon)) {
        if (isShown(content.title))
            x += style.iconSpacing;
        layout.rightIcon = placed(x, middle - content.rightIcon.height() / 2, content.rightIcon);
        x += content.rightIcon.width();
    }
    layout.implicitWidth = wholePixels(x + columns.rightPadding);
    return layout;
}

int StbButtonLayout::textWidth(const Style &style, const Content &content)
{
    return wholePixels(columns(style, content).textWidth);
}

int StbButtonLayout::throbberSide(double height)
{
    constexpr double heightsPerSide = 2.5;
    return std::min(wholePixels(std::ceil(height / heightsPerSide)), maxThrobberSide);
}
