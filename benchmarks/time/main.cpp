// SPDX-License-Identifier: MIT
#include "forms/form.h"
#include "instructions.h"
#include "measure.h"
#include "testkit/testcase.h"

#include <QtCore/qcommandlineparser.h>

#include <cstdio>

using namespace stbbench;

namespace {

/*! What one form took: a value for each round, or only one. */
struct Series
{
    QString form;
    QList<double> create;
    QList<double> firstFrame;
    QList<double> pictureFrame;
    QList<double> all;

    void add(const ItemTime &time)
    {
        create.append(time.create);
        firstFrame.append(time.firstFrame);
        pictureFrame.append(time.pictureFrame);
        all.append(time.create + time.firstFrame + time.pictureFrame);
    }
};

/*! How many times what the module's form takes; the median over the rounds, which the forms have in common. */
double timesTheModule(const QList<double> &values, const QList<double> &own)
{
    QList<double> ratios;
    for (qsizetype i = 0; i < values.size(); ++i)
        ratios.append(values.at(i) / own.at(i));
    return median(ratios);
}

void printLine(const char *name, const QList<Series> &forms, QList<double> Series::*values, int decimals)
{
    const QList<double> &own = forms.first().*values;
    std::printf("%-28s %12.*f", name, decimals, median(own));
    for (qsizetype i = 1; i < forms.size(); ++i) {
        const QList<double> &other = forms.at(i).*values;
        std::printf(" %12.*f %6.2f x", decimals, median(other), timesTheModule(other, own));
    }
    std::printf("\n");
}

void printTable(const Subject &subject, const QList<Series> &forms, int decimals)
{
    std::printf("\n%-28s", qPrintable(subject.key));
    for (const Series &series : forms)
        std::printf(&series == &forms.first() ? " %12s" : " %12s         ", qPrintable(series.form));
    std::printf("\n");
    printLine("create", forms, &Series::create, decimals);
    printLine("first frame", forms, &Series::firstFrame, decimals);
    if (!subject.pictureProperty.isEmpty())
        printLine("frame with the picture", forms, &Series::pictureFrame, decimals);
    printLine("all", forms, &Series::all, decimals);
    std::fflush(stdout);
}

/*! The forms take turns in each round, and the one to begin changes, so that a slow moment meets all. */
QList<Series> timeForms(const Bench &bench, int rounds, int items)
{
    const int formCount = int(bench.forms.size());
    QList<Series> forms(formCount);
    int next = 1;
    for (int round = -1; round < rounds; ++round) {
        for (int turn = 0; turn < formCount; ++turn) {
            const int index = (round + 1 + turn) % formCount;
            Form &form = *bench.forms.at(size_t(index));
            const ItemTime time = timeItems(bench.subject, form, next, items);
            next += items;
            forms[index].form = form.name();
            if (round >= 0) // the first round warms up
                forms[index].add(time);
        }
    }
    return forms;
}

int printTimes(const std::vector<Bench> &benches, int rounds, int items)
{
    std::printf("microseconds of processor time for one item; medians of %d rounds of %d items\n", rounds,
                items);
    for (const Bench &bench : benches)
        printTable(bench.subject, timeForms(bench, rounds, items), 1);
    return 0;
}

int printInstructions(const std::vector<Bench> &benches, int items)
{
    if (!canCollect()) {
        std::fprintf(stderr, "built without valgrind/callgrind.h (package valgrind)\n");
        return 2;
    }
    std::printf("instructions for one item; means of %d items\n", items);
    for (const Bench &bench : benches) {
        QList<Series> forms;
        for (const auto &form : bench.forms) {
            QString error;
            const auto counts = instructionsPerItem(bench.subject, int(forms.size()), items, &error);
            if (!counts) {
                std::fprintf(stderr, "%s\n", qPrintable(error));
                return 2;
            }
            forms.append({ form->name(), {}, {}, {}, {} });
            forms.last().add(*counts);
        }
        printTable(bench.subject, forms, 0);
    }
    return 0;
}

int run(const QCommandLineParser &parser)
{
    const int rounds = parser.value(QStringLiteral("rounds")).toInt();
    const int items = parser.value(QStringLiteral("items")).toInt();
    if (rounds < 1 || items < 1) {
        std::fprintf(stderr, "--rounds and --items have to be 1 or more\n");
        return 2;
    }
    Workshop workshop;
    const QString only = parser.value(QStringLiteral("only"));
    const std::vector<Bench> benches = workshop.benches(only);
    if (benches.empty()) {
        std::fprintf(stderr, "--only: there is no \"%s\"\n", qPrintable(only));
        return 2;
    }
    if (parser.isSet(QStringLiteral("instructions")))
        return printInstructions(benches, items);
    if (parser.isSet(QStringLiteral("collect"))) {
        const Bench &bench = benches.front();
        collectItems(bench.subject, *bench.forms.at(parser.value(QStringLiteral("collect")).toUInt()),
                     Phase(parser.value(QStringLiteral("phase")).toInt()), items);
        return 0;
    }
    return printTimes(benches, rounds, items);
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
            QStringLiteral("What creating one control and painting its first frame costs."));
    parser.addHelpOption();
    parser.addOptions({
            { QStringLiteral("only"), QStringLiteral("Only the control <key> of the budgets' file."),
              QStringLiteral("key") },
            { QStringLiteral("rounds"), QStringLiteral("Rounds to measure (21)."), QStringLiteral("count"),
              QStringLiteral("21") },
            { QStringLiteral("items"), QStringLiteral("Items in a round (25)."), QStringLiteral("count"),
              QStringLiteral("25") },
            { QStringLiteral("instructions"), QStringLiteral("Count instructions with callgrind instead.") },
            hiddenOption(QStringLiteral("collect")),
            hiddenOption(QStringLiteral("phase")),
    });
    parser.process(*app);
    return run(parser);
}
