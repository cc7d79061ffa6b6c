// SPDX-License-Identifier: MIT
#ifndef STBBENCH_FIGURES_H
#define STBBENCH_FIGURES_H

#include <QtCore/qlist.h>
#include <QtCore/qstring.h>
#include <QtGui/qimage.h>

namespace stbbench {

class Form;

/*! One counted number, the same on each run of one build; -1 for texts of a platform that does not count them. */
struct Figure
{
    QString name;
    qint64 value = 0;
};

/*!
    Counts what one row of \a form costs: objects, items and nodes, texts laid out, pixels painted per change. Ends
    the program when the form's frames do not add up to the picture that they show when painted in whole.
*/
QList<Figure> countRow(Form &form);

/*! One live row of \a form above one that is not. */
QImage picture(Form &form);

} // namespace stbbench

#endif // STBBENCH_FIGURES_H
