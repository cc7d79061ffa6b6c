// SPDX-License-Identifier: MIT
#ifndef STBBENCH_FIGURES_H
#define STBBENCH_FIGURES_H

#include <QtCore/qlist.h>
#include <QtCore/qstring.h>
#include <QtGui/qimage.h>

namespace stbbench {

class Form;
struct Subject;

/*! One counted number, the same on each run of one build; -1 for what cannot be counted here. */
struct Figure
{
    QString step; // "title changed"
    QString what; // "pixels"
    qint64 value = 0;
};

/*! What one item of a form costs, and what it looked like at each step that all forms show in one way. */
struct Count
{
    QList<Figure> figures;
    QStringList steps; // of the pictures
    QList<QImage> pictures;
};

/*!
    Counts what one item of \a form costs when it is made, when it is painted first and at each change of
    \a subject. Ends the program when the form's frames do not add up to the picture that they show when painted
    in whole, or when a picture or a throbber that should ask for a frame does not. \a first is the number of the
    item; its pictures must not have been shown before, so that they arrive.
*/
Count count(const Subject &subject, Form &form, int first);

} // namespace stbbench

#endif // STBBENCH_FIGURES_H
