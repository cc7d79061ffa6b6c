// SPDX-License-Identifier: MIT
#ifndef STBUI_STBBUTTONWITHCHECKINDICATOR_H
#define STBUI_STBBUTTONWITHCHECKINDICATOR_H

#include "controls/buttons/stbbutton.h"

class StbButtonWithCheckIndicatorPrivate;

/*!
    A button with a small solid mark above its lower edge while it is checked, the QML element
    \c ButtonWithCheckIndicator. The mark is there while the button shows any content or its throbber.

    Its place follows the style and the button's height. Its colour is taken from the style when the mark
    appears: another style's colour shows when the button is unchecked and checked again. Without a colour, or with
    a width or height of 0 or less, nothing of it is painted.
*/
class StbButtonWithCheckIndicator : public StbButton
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ButtonWithCheckIndicator)
public:
    explicit StbButtonWithCheckIndicator(QQuickItem *parent = nullptr);
    ~StbButtonWithCheckIndicator() override;

private:
    Q_DISABLE_COPY_MOVE(StbButtonWithCheckIndicator)
    Q_DECLARE_PRIVATE(StbButtonWithCheckIndicator)
};

#endif // STBUI_STBBUTTONWITHCHECKINDICATOR_H
