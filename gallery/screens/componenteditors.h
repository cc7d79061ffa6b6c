// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_COMPONENTEDITORS_H
#define GALLERY_SCREENS_COMPONENTEDITORS_H

#include "screens/componentpages.h"

namespace gallery {

/*! The pages of rows, cells and tiles, which are written in C++; the table joins them with the others. */
QList<ComponentPage> componentItemPages();

} // namespace gallery

/*! The kinds of editors that the table of controls is made of. They begin with the default unless told otherwise. */
namespace gallery::editors {

ComponentEditor flag(const QString &name, bool defaultValue = false);
ComponentEditor number(const QString &name, double defaultValue, double from, double to, double step);
/*! A width or height, 0 by default, in pixels of a screen 720 pixels high. */
ComponentEditor length(const QString &name, double start, double from, double to, double step);
/*! A part of a whole, 0 by default. */
ComponentEditor share(const QString &name, double start);
/*! No text, \a start or one of \a others; no text by default. */
ComponentEditor texts(const QString &name, const QString &start, const QStringList &others);
/*! The same with a short text, a long one, and one that runs from right to left. */
ComponentEditor text(const QString &name, const QString &start = {});
/*! The address of a file of the gallery's pictures, or of its icons. */
ComponentEditor picture(const QString &name, const QString &start, const QString &other);
ComponentEditor icon(const QString &name, const QString &start = {});
ComponentEditor choice(const QString &name, const QVariant &defaultValue,
                       const QList<ComponentChoice> &choices);
/*! The name of a state; none by default. */
ComponentEditor state(const QStringList &names);
/*! A colour of the theme, \a start by its name; whatever the control has by default. */
ComponentEditor color(const QString &name, const QString &start = {});

/*! The style, or another property, decides what the default is. */
ComponentEditor byStyle(ComponentEditor editor);
ComponentEditor begun(ComponentEditor editor, const QVariant &start);
ComponentEditor written(ComponentEditor editor);
ComponentEditor late(ComponentEditor editor);
ComponentEditor fedBack(ComponentEditor editor);

/*! The line that gives a control the style \a name of the theme. */
QString styleLine(const QString &name);

} // namespace gallery::editors

#endif // GALLERY_SCREENS_COMPONENTEDITORS_H
