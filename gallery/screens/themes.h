// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_THEMES_H
#define GALLERY_SCREENS_THEMES_H

#include <QtCore/qstringlist.h>

namespace gallery {

/*! The names of the themes that the design library has built in: "default", which is the first, "light" and so on. */
QStringList themeNames();

/*!
    The path of the theme \a name, as the configuration ("UI"/"theme") takes it: empty for "default", and also for a
    name that is none of themeNames().
*/
QString themePath(const QString &name);

/*! The name of the theme at \a path; "default" for an empty path, nothing for a file that is not built in. */
QString themeName(const QString &path);

} // namespace gallery

#endif // GALLERY_SCREENS_THEMES_H
