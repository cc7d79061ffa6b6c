// SPDX-License-Identifier: MIT
#include <QtCore/qcommandlineparser.h>
#include <QtCore/qcoreapplication.h>
#include <QtCore/qprocess.h>
#include <QtCore/qtemporarydir.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <optional>

namespace {

/*! Milliseconds. */
struct Start
{
    double wall = 0;
    double processor = 0;
};

struct Program
{
    const char *name;
    QString file;
    QStringList arguments;
    QList<Start> starts;
};

double now()
{
    timespec time {};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/*! Nobody's settings and reminders, no display, fonts and language as in the tests. */
QProcessEnvironment environment(const QString &home)
{
    QProcessEnvironment environment;
    for (const char *name :
         { "HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR" })
        environment.insert(QString::fromLatin1(name), home);
    environment.insert(QStringLiteral("PATH"), qEnvironmentVariable("PATH"));
    environment.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
    return environment;
}

std::optional<Start> startOnce(const Program &program, const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const double begin = now();
    process.start(program.file, program.arguments);
    if (!process.waitForFinished(30000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    const QList<QByteArray> words = process.readAllStandardOutput().simplified().split(' ');
    if (process.exitCode() != 0 || words.size() != 2)
        return {};
    return Start { words.at(0).toDouble() / 1e6 - begin, words.at(1).toDouble() / 1e6 };
}

double median(const QList<Start> &starts, double Start::*value)
{
    QList<double> values;
    for (const Start &start : starts)
        values.append(start.*value);
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

int run(int rounds)
{
    const QTemporaryDir home;
    const QProcessEnvironment variables = environment(home.path());
    QList<Program> programs {
        { "empty window", QStringLiteral(STBBENCH_WINDOW), {}, {} },
        { "empty window in QML", QStringLiteral(STBBENCH_QML), {}, {} },
        { "gallery",
          QStringLiteral(STBBENCH_GALLERY),
          { QStringLiteral("--language"), QStringLiteral("en") },
          {} },
    };
    for (int round = -1; round < rounds; ++round) { // the first one fills the system's caches
        for (int turn = 0; turn < programs.size(); ++turn) {
            Program &program = programs[(round + 1 + turn) % programs.size()];
            const std::optional<Start> start = startOnce(program, variables);
            if (!start) {
                std::fprintf(stderr, "%s painted no frame\n", qPrintable(program.file));
                return 1;
            }
            if (round >= 0)
                program.starts.append(*start);
        }
    }
    std::printf("milliseconds from the start of the process to its first frame; medians of %d rounds\n",
                rounds);
    std::printf("%-22s %10s %16s\n", "", "wall clock", "processor time");
    for (const Program &program : std::as_const(programs))
        std::printf("%-22s %10.0f %16.0f\n", program.name, median(program.starts, &Start::wall),
                    median(program.starts, &Start::processor));
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("How soon the gallery paints its first frame."));
    parser.addHelpOption();
    parser.addOption({ QStringLiteral("rounds"), QStringLiteral("Rounds to measure (15)."),
                       QStringLiteral("count"), QStringLiteral("15") });
    parser.process(app);
    const int rounds = parser.value(QStringLiteral("rounds")).toInt();
    if (rounds < 1) {
        std::fprintf(stderr, "--rounds has to be 1 or more\n");
        return 2;
    }
    return run(rounds);
}
