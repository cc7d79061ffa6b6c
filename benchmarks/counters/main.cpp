// SPDX-License-Identifier: MIT
#include "budgets.h"
#include "figures.h"
#include "forms/forms.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <QtCore/qcommandlineparser.h>

#include <cstdio>

using namespace stbbench;

namespace {

const QString rowKey = QStringLiteral("epgRow");
const QString composedKey = QStringLiteral("composedRow");

void printTable(const QList<Figure> &row, const QList<Figure> &composed)
{
    std::printf("%-36s %10s %14s\n", "", "EPG row", "composed row");
    for (qsizetype i = 0; i < row.size(); ++i) {
        std::printf("%-36s %10lld %14lld\n", qPrintable(row.at(i).name), row.at(i).value,
                    composed.at(i).value);
    }
}

/*! Exit code 1 when a figure of the module's own row breaks its budget; the composed row is for comparison. */
int compare(const QList<Figure> &row, const QString &file)
{
    QString error;
    const QJsonObject budgets = readBudgets(file, &error).value(rowKey).toObject();
    if (!error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 2;
    }
    for (const QString &line : savings(row, budgets))
        std::printf("%s\n", qPrintable(line));
    const QStringList lines = overruns(row, budgets);
    for (const QString &line : lines)
        std::fprintf(stderr, "%s: %s\n", qPrintable(file), qPrintable(line));
    return lines.isEmpty() ? 0 : 1;
}

int run(const QCommandLineParser &parser)
{
    Forms forms;
    const QList<Figure> row = countRow(forms.row());
    const QList<Figure> composed = countRow(forms.composedRow());
    printTable(row, composed);
    if (parser.isSet(QStringLiteral("pictures"))) {
        for (Form *form : { &forms.row(), &forms.composedRow() })
            std::printf("%s\n", qPrintable(stbtest::savePicture(picture(*form), form->name())));
    }
    const QJsonObject all { { rowKey, toJson(row) }, { composedKey, toJson(composed) } };
    if (parser.isSet(QStringLiteral("json")) && !writeJson(parser.value(QStringLiteral("json")), all))
        return 2;
    if (!parser.isSet(QStringLiteral("budgets")))
        return 0;
    const QString file = parser.value(QStringLiteral("budgets"));
    if (parser.isSet(QStringLiteral("update")))
        return writeJson(file, { { rowKey, toJson(row) } }) ? 0 : 2;
    return compare(row, file);
}

} // namespace

int main(int argc, char **argv)
{
    stbtest::setUpEnvironment();
    const auto app = stbtest::makeApplication(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Counts what a control costs; each run gives the same."));
    parser.addHelpOption();
    parser.addOptions({
            { QStringLiteral("json"), QStringLiteral("Write the figures to <file>."), QStringLiteral("file") },
            { QStringLiteral("budgets"), QStringLiteral("Fail when a figure is above its budget in <file>."),
              QStringLiteral("file") },
            { QStringLiteral("pictures"), QStringLiteral("Save a picture of each form and print its path.") },
            { QStringLiteral("update"), QStringLiteral("Write the figures as budgets instead.") },
    });
    parser.process(*app);
    return run(parser);
}
