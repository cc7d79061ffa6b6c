// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_TEXTSTYLE_H
#define DESIGN_SYSTEM_TEXTSTYLE_H

#include <design_system/statescolors.h>

#include <QtCore/qrect.h>
#include <QtGui/qfont.h>

namespace design_system {

/*! The look of one text. A control reads either color or colors, and says which. Pixels; 0 when new. */
struct STBDESIGN_EXPORT TextStyle
{
    Q_GADGET
    Q_PROPERTY(QRect rect MEMBER rect)
    Q_PROPERTY(QColor backgroundColor MEMBER backgroundColor)
    Q_PROPERTY(QFont font MEMBER font)
    Q_PROPERTY(int maxLineCount MEMBER maxLineCount)
    Q_PROPERTY(Qt::Alignment alignment MEMBER alignment)
    Q_PROPERTY(QColor color MEMBER color)
    Q_PROPERTY(design_system::StatesColors colors MEMBER colors)
    Q_PROPERTY(int leftPadding MEMBER leftPadding)
    Q_PROPERTY(int topPadding MEMBER topPadding)
    Q_PROPERTY(int rightPadding MEMBER rightPadding)
    Q_PROPERTY(int bottomPadding MEMBER bottomPadding)
    Q_CLASSINFO("unscaled", "maxLineCount")
    QML_ANONYMOUS
public:
    QRect rect; //!< its width bounds the text where the control says so
    QColor backgroundColor; //!< of the badge around the text, where there is one
    QFont font; //!< of the text
    int maxLineCount = 0; //!< below 1 counts as 1
    Qt::Alignment alignment; //!< where the text stands in its rectangle
    QColor color; //!< of the text, where it has one colour
    StatesColors colors; //!< of the text, where it depends on the state
    int leftPadding = 0; //!< this and the next three: inside the badge around the text
    int topPadding = 0;
    int rightPadding = 0;
    int bottomPadding = 0;

    bool operator==(const TextStyle &) const = default;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_TEXTSTYLE_H
