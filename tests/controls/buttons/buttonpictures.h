// SPDX-License-Identifier: MIT
#ifndef STBTEST_BUTTONPICTURES_H
#define STBTEST_BUTTONPICTURES_H

#include "buttonstyles.h"

#include <controls/buttons/stbbuttonwithcheckindicator.h>

#include <QtCore/qlist.h>

/*! The pictures that a button is compared with, and what makes a fresh button show each. */
struct ButtonPicture
{
    const char *name;
    bool otherStyle;
    void (*set)(StbButtonWithCheckIndicator &);
};

inline const QList<ButtonPicture> &buttonPictures()
{
    using Button = StbButtonWithCheckIndicator;
    static const auto fill = [](Button &button) {
        button.setTitleText("Watch now");
        button.setSubtitleText("From the start");
        button.setLeftIconSource(":/icons/left.png");
        button.setRightIconSource(":/icons/right.png");
    };
    static const QList<ButtonPicture> pictures {
        { "normal", false, [](Button &button) { fill(button); } },
        { "focused", false,
          [](Button &button) {
              fill(button);
              button.setFocused(true);
          } },
        { "checked", false,
          [](Button &button) {
              fill(button);
              button.setChecked(true);
          } },
        { "disabled", false,
          [](Button &button) {
              fill(button);
              button.setEnabled(false);
          } },
        { "busy", false,
          [](Button &button) {
              fill(button);
              button.setChecked(true);
              button.setThrobberVisible(true);
          } },
        { "title", false, [](Button &button) { button.setTitleText("Watch now"); } },
        { "icon", false, [](Button &button) { button.setLeftIconSource(":/icons/left.png"); } },
        { "centred", true,
          [](Button &button) {
              button.setTitleText("Watch now, from the very beginning");
              button.setSubtitleText("or later");
          } },
        { "growing", false,
          [](Button &button) {
              button.setIsFixedWidth(false);
              button.setTitleText("Watch now, from the very beginning");
              button.setLeftIconSource(":/icons/left.png");
              button.setRightIconSource(":/icons/right.png");
          } },
    };
    return pictures;
}

#endif // STBTEST_BUTTONPICTURES_H
