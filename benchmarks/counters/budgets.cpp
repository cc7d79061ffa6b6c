// SPDX-License-Identifier: MIT
#include "budgets.h"

#include <QtCore/qfile.h>
#include <QtCore/qjsondocument.h>
#include <QtCore/qset.h>

namespace stbbench {
namespace {

QString label(const QString &name, const QString &step, const QString &what)
{
    return QStringLiteral("%1, %2, %3").arg(name, step, what);
}

QJsonValue budgetOf(const Figure &figure, const QJsonObject &budgets)
{
    return budgets.value(figure.step).toObject().value(figure.what);
}

QByteArray quoted(const QString &text)
{
    return '"' + text.toUtf8() + '"'; // the names are ours: no quotation marks in them
}

/*! "step": { "what": 1, "what": 2 } for each step. */
QByteArrayList stepLines(const QList<Figure> &figures)
{
    QByteArrayList lines;
    for (qsizetype i = 0; i < figures.size();) {
        const QString step = figures.at(i).step;
        QByteArrayList values;
        for (; i < figures.size() && figures.at(i).step == step; ++i) {
            if (figures.at(i).value >= 0)
                values.append(quoted(figures.at(i).what) + ": " + QByteArray::number(figures.at(i).value));
        }
        lines.append("        " + quoted(step) + ": { " + values.join(", ") + " }");
    }
    return lines;
}

} // namespace

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

QStringList overruns(const QString &name, const QList<Figure> &figures, const QJsonObject &budgets)
{
    QStringList lines;
    QSet<QString> known;
    for (const Figure &figure : figures) {
        const QString text = label(name, figure.step, figure.what);
        known.insert(text);
        const QJsonValue budget = budgetOf(figure, budgets);
        if (figure.value >= 0 && !budget.isDouble())
            lines.append(QStringLiteral("\"%1\" is %2 and has no budget").arg(text).arg(figure.value));
        else if (figure.value > budget.toInteger())
            lines.append(QStringLiteral("\"%1\" is %2, its budget is %3")
                                 .arg(text)
                                 .arg(figure.value)
                                 .arg(budget.toInteger()));
    }
    for (const QString &step : budgets.keys()) {
        for (const QString &what : budgets.value(step).toObject().keys()) {
            if (!known.contains(label(name, step, what)))
                lines.append(
                        QStringLiteral("\"%1\" has a budget and is not counted").arg(label(name, step, what)));
        }
    }
    return lines;
}

QStringList savings(const QString &name, const QList<Figure> &figures, const QJsonObject &budgets)
{
    QStringList lines;
    for (const Figure &figure : figures) {
        const QJsonValue budget = budgetOf(figure, budgets);
        if (budget.isDouble() && figure.value >= 0 && figure.value < budget.toInteger()) {
            lines.append(QStringLiteral("\"%1\" is %2, its budget of %3 can be lowered")
                                 .arg(label(name, figure.step, figure.what))
                                 .arg(figure.value)
                                 .arg(budget.toInteger()));
        }
    }
    return lines;
}

QByteArray toJson(const NamedFigures &all)
{
    QByteArrayList objects;
    for (const auto &[name, figures] : all)
        objects.append("    " + quoted(name) + ": {\n" + stepLines(figures).join(",\n") + "\n    }");
    return "{\n" + objects.join(",\n") + "\n}\n";
}

} // namespace stbbench
