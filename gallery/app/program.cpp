// SPDX-License-Identifier: MIT
#include "app/program.h"

#include "app/application.h"

#include <QtCore/qtextstream.h>
#include <QtGui/qguiapplication.h>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

/*! Ends the program with one line, where Qt would dump core because there is no display to show a window on. */
void endWithoutDisplay(QtMsgType type, const QMessageLogContext &, const QString &)
{
    if (type != QtFatalMsg)
        return;
    printError(u"there is no display; --screenshots writes pictures without one, by the software renderer"_s);
    std::_Exit(int(ExitCode::Failure));
}

QStringList textsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

int tell(const CommandLine &commandLine)
{
    if (*commandLine.exitCode == ExitCode::Success)
        QTextStream(stdout) << commandLine.message << Qt::endl;
    else
        printError(commandLine.message);
    return int(*commandLine.exitCode);
}

} // namespace

void prepareEnvironment(const Options &options)
{
    const bool pictures = !options.screenshotsFolder.isEmpty();
    if (options.backend == "software"_L1 || (options.backend.isEmpty() && pictures))
        qputenv("QT_QUICK_BACKEND", "software");
    else if (options.backend == "rhi"_L1)
        qunsetenv("QT_QUICK_BACKEND");
    if (!pictures)
        return;
    // Without a display there is only the software renderer; another one needs the display there is.
    if (options.backend != "rhi"_L1)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char *name : { "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_USE_PHYSICAL_DPI" })
        qunsetenv(name);
    qputenv("QT_FONT_DPI", "96");
}

int runGallery(int &argc, char **argv)
{
    const CommandLine commandLine = parseCommandLine(textsOf(argc, argv));
    if (commandLine.exitCode)
        return tell(commandLine);

    prepareEnvironment(commandLine.options);
    const QtMessageHandler handler = qInstallMessageHandler(endWithoutDisplay);
    QGuiApplication app(argc, argv);
    qInstallMessageHandler(handler);
    QCoreApplication::setApplicationName(u"stbui-gallery"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(STBUI_VERSION));

    Application gallery(commandLine.options);
    QObject::connect(
            &gallery, &Application::finished, &app, [](ExitCode code) { QCoreApplication::exit(int(code)); },
            Qt::QueuedConnection);
    if (!gallery.start()) {
        printError(gallery.error());
        return int(ExitCode::Failure);
    }
    return QCoreApplication::exec();
}

} // namespace gallery
