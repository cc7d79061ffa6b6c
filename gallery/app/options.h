// SPDX-License-Identifier: MIT
#ifndef GALLERY_APP_OPTIONS_H
#define GALLERY_APP_OPTIONS_H

#include <QtCore/qdatetime.h>
#include <QtCore/qlist.h>
#include <QtCore/qnamespace.h>
#include <QtCore/qstringlist.h>

#include <optional>

namespace gallery {

/*! What one run of the program is asked to do. An empty text means that the option was not given. */
struct Options
{
    QString guideFile;
    QString playlistFile;
    QString catalogueFile;
    /*! The time that the screens take for the present; the clock stands still then. Invalid: the real time. */
    QDateTime now;
    /*! Empty: the first one, and pictures of all; so for theme, resolution and language too. */
    QString screen;
    QList<Qt::Key> keys;
    QString screenshotsFolder;
    /*! A name of themeNames(), or else a file. */
    QString theme;
    /*! The theme is a file, and is read again whenever that changes. */
    bool watchTheme = false;
    QString resolution;
    QString backend;
    QString language;
};

/*! Exit codes of the program. */
enum class ExitCode {
    Success = 0,
    /*! The run failed, though the arguments were right. */
    Failure = 1,
    /*! A wrong argument or a file that cannot be read. */
    Usage = 2
};

struct CommandLine
{
    Options options;
    /*! Set when the program has nothing to run: it prints \c message and ends with this code. */
    std::optional<ExitCode> exitCode;
    /*! Help or version (for standard output) or an error in one line (for standard error). */
    QString message;
};

/*! The names that "--screen" takes, in the order in which pictures are written. */
QStringList screenNames();
/*! The names that "--resolution" takes. */
QStringList resolutionNames();
/*! What the configuration ("UI"/"theme") takes for \a theme, a name of themeNames() or a file. */
QString configuredTheme(const QString &theme);

/*!
    Reads the program's arguments; the first one is the program's name. Files that are named must be readable
    and the folder for pictures is created: what comes back without an exit code can be run. Needs no
    application object.
*/
CommandLine parseCommandLine(const QStringList &arguments);

} // namespace gallery

#endif // GALLERY_APP_OPTIONS_H
