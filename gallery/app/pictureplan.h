// SPDX-License-Identifier: MIT
#ifndef GALLERY_APP_PICTUREPLAN_H
#define GALLERY_APP_PICTUREPLAN_H

#include "app/options.h"

namespace gallery {

/*! One picture that a run is to write. What the command line has fixed is empty, but for the screen. */
struct Picture
{
    QString language;
    /*! The name of a compiled-in theme. */
    QString theme;
    QString resolution;
    QString screen;
    /*! The file. */
    QString path;

    friend bool operator==(const Picture &, const Picture &) = default;
};

/*!
    The pictures that \a options ask for: of each screen in each theme, resolution and language, but what is given
    there is the same in all. The files are FOLDER/THEME/RESOLUTION/LANGUAGE/SCREEN.png; what is given has no folder. The
    language changes last, because files are read again for it. Empty when no pictures are asked for.
*/
QList<Picture> picturePlan(const Options &options);

} // namespace gallery

#endif // GALLERY_APP_PICTUREPLAN_H
