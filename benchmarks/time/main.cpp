// SPDX-License-Identifier: MIT
#include "forms/forms.h"
#include "instructions.h"
#include "measure.h"
#include "testkit/testcase.h"

#include <QtCore/qcommandlineparser.h>

#include <cstdio>

using namespace stbbench;

namespace {

struct Series
{
    QList<double> create;
    QList<double> firstFrame;
    QList<double> total;

    void add(const RowTime &time)
    {
        create.append(time.create);
        firstFrame.append(time.firstFrame);
        total.append(time.total());
    }
};

QList<double> ratios(const QList<double> &numerators, const QList<double> &denominators)
{
    QList<double> result;
    for (qsizetype i = 0; i < numerators.size(); ++i)
        result.append(numerators.at(i) / denominators.at(i));
    return result;
}

void printLine(const char *name, const QList<double> &row, const QList<double> &composed)
{
    std::printf("%-14s %12.1f %14.1f %8.2f\n", name, median(row), median(composed),
                median(ratios(row, composed)));
}

/*! The forms take turns in each round, and the one to begin changes, so that a slow moment meets both. */
int printTimes(Forms &forms, int rounds, int rows)
{
    Series row;
    Series composed;
    int next = 1;
    for (int round = -1; round < rounds; ++round) {
        for (int turn = 0; turn < 2; ++turn) {
            const bool isRow = (turn == 0) == (round % 2 == 0);
            const RowTime time = timeRows(isRow ? forms.row() : forms.composedRow(), next, rows);
            next += rows;
            if (round >= 0) // the first round warms up
                (isRow ? row : composed).add(time);
        }
    }
    std::printf("microseconds of processor time for one row; medians of %d rounds of %d rows\n", rounds, rows);
    std::printf("%-14s %12s %14s %8s\n", "", "EPG row", "composed row", "ratio");
    printLine("create", row.create, composed.create);
    printLine("first frame", row.firstFrame, composed.firstFrame);
    printLine("both", row.total, composed.total);
    return 0;
}

int printInstructions(int rows)
{
    if (!canCollect()) {
        std::fprintf(stderr, "built without valgrind/callgrind.h (package valgrind)\n");
        return 2;
    }
    std::printf("instructions for one row; means of %d rows\n%-14s %12s %14s %8s\n", rows, "", "EPG row",
                "composed row", "ratio");
    double sums[2] = {};
    for (const Phase phase : { Phase::Create, Phase::FirstFrame }) {
        double counts[2] = {};
        for (int form = 0; form < 2; ++form) {
            QString error;
            const auto count = instructionsPerRow(form == 0 ? QStringLiteral("row")
                                                            : QStringLiteral("composed"),
                                                  phase, rows, &error);
            if (!count) {
                std::fprintf(stderr, "%s\n", qPrintable(error));
                return 2;
            }
            counts[form] = *count;
            sums[form] += *count;
        }
        std::printf("%-14s %12.0f %14.0f %8.2f\n", phase == Phase::Create ? "create" : "first frame",
                    counts[0], counts[1], counts[0] / counts[1]);
    }
    std::printf("%-14s %12.0f %14.0f %8.2f\n", "both", sums[0], sums[1], sums[0] / sums[1]);
    return 0;
}

int run(const QCommandLineParser &parser)
{
    const int rounds = parser.value(QStringLiteral("rounds")).toInt();
    const int rows = parser.value(QStringLiteral("rows")).toInt();
    if (rounds < 1 || rows < 1) {
        std::fprintf(stderr, "--rounds and --rows have to be 1 or more\n");
        return 2;
    }
    if (parser.isSet(QStringLiteral("instructions")))
        return printInstructions(rows);
    Forms forms;
    if (parser.isSet(QStringLiteral("collect"))) {
        const bool isRow = parser.value(QStringLiteral("collect")) == QLatin1String("row");
        collectRows(isRow ? forms.row() : forms.composedRow(),
                    Phase(parser.value(QStringLiteral("phase")).toInt()), rows);
        return 0;
    }
    return printTimes(forms, rounds, rows);
}

QCommandLineOption hiddenOption(const QString &name)
{
    QCommandLineOption option(name, QString(), QStringLiteral("value"));
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    return option;
}

} // namespace

int main(int argc, char **argv)
{
    stbtest::setUpEnvironment();
    const auto app = stbtest::makeApplication(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
            QStringLiteral("What creating one programme row and painting its first frame costs."));
    parser.addHelpOption();
    parser.addOptions({
            { QStringLiteral("rounds"), QStringLiteral("Rounds to measure (21)."), QStringLiteral("count"),
              QStringLiteral("21") },
            { QStringLiteral("rows"), QStringLiteral("Rows in a round (25)."), QStringLiteral("count"),
              QStringLiteral("25") },
            { QStringLiteral("instructions"), QStringLiteral("Count instructions with callgrind instead.") },
            hiddenOption(QStringLiteral("collect")),
            hiddenOption(QStringLiteral("phase")),
    });
    parser.process(*app);
    return run(parser);
}
