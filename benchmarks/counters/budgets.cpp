// SPDX-License-Identifier: MIT
#include "budgets.h"

#include <QtCore/qfile.h>
#include <QtCore/qjsondocument.h>
#include <QtCore/qset.h>

namespace stbbench {

QJsonObject readBudgets(const QString &file, QString *error)
{
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1 cannot be read").arg(file);
        return QJsonObject();
    }
    QJsonParseError parsing;
    const QJsonDocument document = QJsonDocument::fromJson(device.readAll(), &parsing);
    if (!document.isObject())
        *error = QStringLiteral("%1: %2").arg(file, parsing.errorString());
    return document.object();
}

QStringList overruns(const QList<Figure> &figures, const QJsonObject &budgets)
{
    QStringList lines;
    QSet<QString> known;
    for (const Figure &figure : figures) {
        known.insert(figure.name);
        const QJsonValue budget = budgets.value(figure.name);
        if (!budget.isDouble()) {
            lines.append(QStringLiteral("\"%1\" is %2 and has no budget").arg(figure.name).arg(figure.value));
        } else if (figure.value > budget.toInteger()) {
            lines.append(QStringLiteral("\"%1\" is %2, its budget is %3")
                                 .arg(figure.name)
                                 .arg(figure.value)
                                 .arg(budget.toInteger()));
        }
    }
    for (const QString &name : budgets.keys()) {
        if (!known.contains(name))
            lines.append(QStringLiteral("\"%1\" has a budget and is not counted").arg(name));
    }
    return lines;
}

QStringList savings(const QList<Figure> &figures, const QJsonObject &budgets)
{
    QStringList lines;
    for (const Figure &figure : figures) {
        const QJsonValue budget = budgets.value(figure.name);
        if (budget.isDouble() && figure.value >= 0 && figure.value < budget.toInteger()) {
            lines.append(QStringLiteral("\"%1\" is %2, its budget of %3 can be lowered")
                                 .arg(figure.name)
                                 .arg(figure.value)
                                 .arg(budget.toInteger()));
        }
    }
    return lines;
}

QJsonObject toJson(const QList<Figure> &figures)
{
    QJsonObject object;
    for (const Figure &figure : figures)
        object.insert(figure.name, figure.value);
    return object;
}

bool writeJson(const QString &file, const QJsonObject &object)
{
    QFile device(file);
    return device.open(QIODevice::WriteOnly) && device.write(QJsonDocument(object).toJson()) >= 0;
}

} // namespace stbbench
