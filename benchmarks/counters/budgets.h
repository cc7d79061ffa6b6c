// SPDX-License-Identifier: MIT
#ifndef STBBENCH_BUDGETS_H
#define STBBENCH_BUDGETS_H

#include "figures.h"

#include <QtCore/qjsonobject.h>
#include <QtCore/qstringlist.h>

namespace stbbench {

/*! The budgets in \a file, or an error text in \a error. */
QJsonObject readBudgets(const QString &file, QString *error);

/*! What is wrong with \a figures beside \a budgets: grown, without a budget, or a budget without its figure. */
QStringList overruns(const QList<Figure> &figures, const QJsonObject &budgets);

/*! The figures below their budget, which can be lowered. */
QStringList savings(const QList<Figure> &figures, const QJsonObject &budgets);

QJsonObject toJson(const QList<Figure> &figures);

/*! Writes \a object, indented; false when that fails. */
bool writeJson(const QString &file, const QJsonObject &object);

} // namespace stbbench

#endif // STBBENCH_BUDGETS_H
