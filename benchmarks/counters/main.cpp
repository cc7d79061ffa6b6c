// SPDX-License-Identifier: MIT
#include "budgets.h"
#include "figures.h"
#include "forms/form.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <QtCore/qcommandlineparser.h>
#include <QtCore/qfile.h>

#include <cstdio>

using namespace stbbench;

namespace {

// A text that is painted into a pixmap is blended twice, one that is painted straight once: its edges may be
// rounded otherwise. Nothing else may differ.
constexpr int roundedTwice = 2; // of 255, in a channel

constexpr int failed = 1; // exit codes
constexpr int noResult = 2;

struct Counted
{
    Subject subject;
    QStringList forms;
    QList<Count> counts; // of the forms
};

QByteArray cell(qint64 value)
{
    return value < 0 ? QByteArray("-") : QByteArray::number(value);
}

void printTable(const Counted &counted)
{
    std::printf("\n%-44s", qPrintable(counted.subject.key));
    for (const QString &form : counted.forms)
        std::printf("%14s", qPrintable(form));
    std::printf("\n");
    const QList<Figure> &own = counted.counts.first().figures;
    for (qsizetype i = 0; i < own.size(); ++i) {
        std::printf("%-44s", qPrintable(own.at(i).step + QStringLiteral(", ") + own.at(i).what));
        for (const Count &count : counted.counts)
            std::printf("%14s", cell(count.figures.at(i).value).constData());
        std::printf("\n");
    }
}

/*! The forms are worth comparing only when they show the same. */
bool showTheSame(const Counted &counted)
{
    bool same = true;
    const Count &own = counted.counts.first();
    for (qsizetype form = 1; form < counted.counts.size(); ++form) {
        for (qsizetype i = 0; i < own.steps.size(); ++i) {
            const auto difference = stbtest::comparePictures(counted.counts.at(form).pictures.at(i),
                                                             own.pictures.at(i), roundedTwice);
            if (difference.pixels == 0 && !difference.sizesDiffer)
                continue;
            same = false;
            std::fprintf(stderr, "%s, %s, %s: %s\n", qPrintable(counted.subject.key),
                         qPrintable(counted.forms.at(form)), qPrintable(own.steps.at(i)),
                         qPrintable(difference.text()));
        }
    }
    return same;
}

void savePictures(const Counted &counted)
{
    for (qsizetype form = 0; form < counted.counts.size(); ++form) {
        const Count &count = counted.counts.at(form);
        for (qsizetype i = 0; i < count.steps.size(); ++i) {
            const QString name = QStringList { counted.subject.key, QString::number(i),
                                               counted.forms.at(form) }
                                         .join(QLatin1Char('-'));
            std::printf("%s: %s\n", qPrintable(count.steps.at(i)),
                        qPrintable(stbtest::savePicture(count.pictures.at(i), name)));
        }
    }
}

QList<Counted> countAll(const QString &key)
{
    QList<Counted> all;
    Workshop workshop;
    for (const Bench &bench : workshop.benches(key)) {
        Counted counted { bench.subject, {}, {} };
        for (const auto &form : bench.forms) {
            const int first = 1 + textNumbers * int(counted.forms.size());
            counted.forms.append(form->name());
            counted.counts.append(count(bench.subject, *form, first));
        }
        all.append(counted);
    }
    return all;
}

NamedFigures moduleFigures(const QList<Counted> &all)
{
    NamedFigures figures;
    for (const Counted &counted : all)
        figures.append({ counted.subject.key, counted.counts.first().figures });
    return figures;
}

NamedFigures allFigures(const QList<Counted> &all)
{
    NamedFigures figures;
    for (const Counted &counted : all) {
        for (qsizetype i = 0; i < counted.forms.size(); ++i) {
            figures.append({ counted.subject.key + QStringLiteral(", ") + counted.forms.at(i),
                             counted.counts.at(i).figures });
        }
    }
    return figures;
}

int write(const QString &file, const QByteArray &content)
{
    QFile device(file);
    if (device.open(QIODevice::WriteOnly) && device.write(content) == content.size())
        return 0;
    std::fprintf(stderr, "%s cannot be written\n", qPrintable(file));
    return noResult;
}

/*! Only the module's own figures have budgets; the other forms are there for comparison. */
int compare(const NamedFigures &all, const QString &file, bool isComplete)
{
    QString error;
    const QJsonObject budgets = readBudgets(file, &error);
    if (!error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return noResult;
    }
    QStringList lines;
    QStringList known;
    for (const auto &[name, figures] : all) {
        const QJsonObject own = budgets.value(name).toObject();
        for (const QString &line : savings(name, figures, own))
            std::printf("%s\n", qPrintable(line));
        lines += overruns(name, figures, own);
        known.append(name);
    }
    for (const QString &name : budgets.keys()) {
        if (isComplete && !known.contains(name))
            lines.append(QStringLiteral("\"%1\" has budgets and is not counted").arg(name));
    }
    for (const QString &line : lines)
        std::fprintf(stderr, "%s: %s\n", qPrintable(file), qPrintable(line));
    return lines.isEmpty() ? 0 : failed;
}

int run(const QCommandLineParser &parser)
{
    const QString only = parser.value(QStringLiteral("only"));
    if (!only.isEmpty() && parser.isSet(QStringLiteral("update"))) {
        std::fprintf(stderr, "--update writes the whole file: not with --only\n");
        return noResult;
    }
    const QList<Counted> all = countAll(only);
    if (all.isEmpty()) {
        std::fprintf(stderr, "--only: there is no \"%s\"\n", qPrintable(only));
        return noResult;
    }
    for (const Counted &counted : all) {
        printTable(counted);
        if (parser.isSet(QStringLiteral("pictures")))
            savePictures(counted);
    }
    int result = 0;
    if (parser.isSet(QStringLiteral("json")))
        result = write(parser.value(QStringLiteral("json")), toJson(allFigures(all)));
    const QString budgets = parser.value(QStringLiteral("budgets"));
    if (budgets.isEmpty())
        return result;
    for (const Counted &counted : all)
        result = qMax(result, showTheSame(counted) ? 0 : failed);
    return qMax(result, parser.isSet(QStringLiteral("update"))
                                ? write(budgets, toJson(moduleFigures(all)))
                                : compare(moduleFigures(all), budgets, only.isEmpty()));
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
            { QStringLiteral("only"), QStringLiteral("Only the control <key> of the budgets' file."),
              QStringLiteral("key") },
            { QStringLiteral("json"), QStringLiteral("Write the figures of all forms to <file>."),
              QStringLiteral("file") },
            { QStringLiteral("budgets"),
              QStringLiteral("Fail when a figure is above its budget in <file>, or a form's picture another."),
              QStringLiteral("file") },
            { QStringLiteral("pictures"),
              QStringLiteral("Save a picture of each form and step; print its path.") },
            { QStringLiteral("update"), QStringLiteral("Write the figures as budgets instead.") },
    });
    parser.process(*app);
    return run(parser);
}
