// SPDX-License-Identifier: MIT
#ifndef STBBENCH_BUDGETS_H
#define STBBENCH_BUDGETS_H

#include "figures.h"

#include <QtCore/qjsonobject.h>
#include <QtCore/qpair.h>
#include <QtCore/qstringlist.h>

namespace stbbench {

/*! Figures under the name of what they are the figures of. */
using NamedFigures = QList<QPair<QString, QList<Figure>>>;

/*! The budgets in \a file, or an error text in \a error. */
QJsonObject readBudgets(const QString &file, QString *error);

/*!
    What is wrong with the figures of \a name beside \a budgets: grown, without a budget, or a budget without its
    figure.
*/
QStringList overruns(const QString &name, const QList<Figure> &figures, const QJsonObject &budgets);

/*! The figures below their budget, which can be lowered. */
QStringList savings(const QString &name, const QList<Figure> &figures, const QJsonObject &budgets);

/*! An object for each name, in it a line for each step, in the order of the steps. What was not counted is left out. */
QByteArray toJson(const NamedFigures &all);

} // namespace stbbench

#endif // STBBENCH_BUDGETS_H
