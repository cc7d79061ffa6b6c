// SPDX-License-Identifier: MIT
#include "app/options.h"

#include "app/languages.h"
#include "app/remotekeys.h"
#include "app/themewatcher.h"
#include "screens/shellcontroller.h"
#include "screens/themes.h"

#include <stbconfig/configurationmanager.h>

#include <QtCore/qcommandlineparser.h>
#include <QtCore/qdir.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qtemporaryfile.h>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

// The option texts are for a terminal and stay English, as the messages of the tools around it do.
struct OptionText
{
    QLatin1StringView names;
    QLatin1StringView description;
    QLatin1StringView valueName;
};

constexpr OptionText guideOption { "guide"_L1, "Programme guide to show: XMLTV, plain or .gz."_L1, "file"_L1 };
constexpr OptionText playlistOption { "playlist"_L1, "Channels to show, in this order: extended M3U."_L1,
                                      "file"_L1 };
constexpr OptionText catalogueOption { "catalogue"_L1, "Films and series to show: JSON."_L1, "file"_L1 };
constexpr OptionText nowOption { "now"_L1, "Take this ISO 8601 time for the present."_L1, "date-time"_L1 };
constexpr OptionText screenOption { "screen"_L1,
                                    "Screen to show: home, detail, series, guide, channels, player, search, "
                                    "settings, components or about."_L1,
                                    "name"_L1 };
constexpr OptionText keysOption { "keys"_L1, "Press these remote keys at start: \"Down Down Return\"."_L1,
                                  "keys"_L1 };
constexpr OptionText screenshotsOption { "screenshots"_L1,
                                         "Write PNGs of all screens in all themes, resolutions and "
                                         "languages, or of those given, and end."_L1,
                                         "folder"_L1 };
constexpr OptionText themeOption { "theme"_L1,
                                   "Theme to use: default, light, contrast, copper or a theme file."_L1,
                                   "name or file"_L1 };
constexpr OptionText watchThemeOption { "watch-theme"_L1,
                                        "Show what becomes of the theme file when it is edited."_L1, ""_L1 };
constexpr OptionText resolutionOption { "resolution"_L1, "Design size: hd, fullhd or sd."_L1, "name"_L1 };
constexpr OptionText backendOption { "backend"_L1, "Qt Quick's renderer: software or rhi."_L1, "name"_L1 };
constexpr OptionText languageOption { "language"_L1, "Language of the screens: en, ru, de or ar."_L1,
                                      "code"_L1 };
constexpr OptionText helpOption { "help,h"_L1, "Print this help."_L1, ""_L1 };
constexpr OptionText versionOption { "version,v"_L1, "Print the version."_L1, ""_L1 };

QStringList names(const OptionText &option)
{
    return QString(option.names).split(u',');
}

void addOption(QCommandLineParser &parser, const OptionText &option)
{
    parser.addOption(QCommandLineOption(names(option), option.description, option.valueName));
}

bool isSet(const QCommandLineParser &parser, const OptionText &option)
{
    return parser.isSet(names(option).constFirst());
}

QString value(const QCommandLineParser &parser, const OptionText &option)
{
    return parser.value(names(option).constFirst());
}

CommandLine finished(ExitCode code, const QString &message)
{
    CommandLine result;
    result.exitCode = code;
    result.message = message.simplified();
    return result;
}

QString helpText(const QCommandLineParser &parser)
{
    // Without an application object Qt has no program name to put into its usage line.
    return parser.helpText().replace("<executable_name>"_L1, "stbui-gallery"_L1).trimmed();
}

/*! Why \a path cannot be read as a file, or nothing when it can. */
QString unreadable(const QString &path)
{
    if (path.isEmpty())
        return u"no name"_s;
    if (QFileInfo(path).isDir())
        return u"is a folder"_s;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}

/*! Why no file can be written into \a folder, which is created when missing, or nothing when one can. */
QString unwritable(const QString &folder)
{
    if (!QDir().mkpath(folder))
        return QFileInfo::exists(folder) ? u"is no folder"_s : u"cannot be created"_s;
    QTemporaryFile probe(QDir(folder).filePath(u"stbui-gallery-XXXXXX"_s));
    return probe.open() ? QString() : probe.errorString();
}

/*! Collects the first thing that is wrong, so that one line tells it. */
class Checker
{
public:
    explicit Checker(const QCommandLineParser &parser)
        : m_parser(parser)
    {
    }

    QString error() const { return m_error; }

    QString choice(const OptionText &option, const QStringList &choices)
    {
        const QString given = value(m_parser, option);
        if (isSet(m_parser, option) && !choices.contains(given))
            fail(u"unknown %1 \"%2\"; expected %3"_s.arg(name(option), given, choices.join(" or "_L1)));
        return given;
    }

    QString readableFile(const OptionText &option)
    {
        const QString given = value(m_parser, option);
        if (isSet(m_parser, option))
            failIf(unreadable(given), u"cannot read the %1 file"_s.arg(name(option)), given);
        return given;
    }

    QString theme(const OptionText &option)
    {
        const QString given = value(m_parser, option);
        if (isSet(m_parser, option) && !themeNames().contains(given) && !unreadable(given).isEmpty())
            fail(u"unknown theme \"%1\"; expected %2 or a readable file"_s.arg(given,
                                                                               themeNames().join(", "_L1)));
        return given;
    }

    bool watchedTheme(const OptionText &option, const QString &theme)
    {
        if (!isSet(m_parser, option))
            return false;
        if (isSet(m_parser, screenshotsOption))
            fail(u"--%1 is for a window and does not go with --screenshots"_s.arg(name(option)));
        if (!ThemeWatcher::canWatch(themeInUse(theme)))
            fail(u"--%1 needs a theme file to watch; name one with --theme"_s.arg(name(option)));
        return true;
    }

    QString writableFolder(const OptionText &option)
    {
        const QString given = value(m_parser, option);
        // The folder is only created for a run that is otherwise right.
        if (isSet(m_parser, option) && m_error.isEmpty())
            failIf(given.isEmpty() ? u"no name"_s : unwritable(given), u"cannot write pictures to"_s, given);
        return given;
    }

    QDateTime dateTime(const OptionText &option)
    {
        if (!isSet(m_parser, option))
            return {};
        const QString given = value(m_parser, option);
        const QDateTime result = QDateTime::fromString(given, Qt::ISODate);
        if (!result.isValid())
            fail(u"bad date and time \"%1\"; expected one such as 2015-11-26T20:05:00Z"_s.arg(given));
        return result;
    }

    QList<Qt::Key> keys(const OptionText &option)
    {
        const RemoteKeys result = parseRemoteKeys(value(m_parser, option));
        if (!result.unknown.isEmpty()) {
            fail(u"unknown key \"%1\"; known are %2"_s.arg(result.unknown, remoteKeyNames().join(", "_L1)));
        }
        return result.keys;
    }

private:
    static QString themeInUse(const QString &given)
    {
        if (!given.isEmpty())
            return configuredTheme(given);
        const stbconfig::ConfigurationManager *manager = stbconfig::qmlConfigManager();
        return manager == nullptr ? QString() : manager->value(u"UI"_s, u"theme"_s, QString()).toString();
    }

    static QString name(const OptionText &option) { return names(option).constFirst(); }

    void fail(const QString &message)
    {
        if (m_error.isEmpty())
            m_error = message;
    }

    void failIf(const QString &reason, const QString &what, const QString &value)
    {
        if (!reason.isEmpty())
            fail(u"%1 \"%2\": %3"_s.arg(what, value, reason));
    }

    const QCommandLineParser &m_parser;
    QString m_error;
};

CommandLine checked(const QCommandLineParser &parser)
{
    if (!parser.positionalArguments().isEmpty()) {
        const QString first = parser.positionalArguments().constFirst();
        return finished(ExitCode::Usage, u"unexpected argument \"%1\"; --help lists the options"_s.arg(first));
    }
    Checker check(parser);
    CommandLine result;
    Options &options = result.options;
    options.now = check.dateTime(nowOption);
    options.screen = check.choice(screenOption, screenNames());
    options.keys = check.keys(keysOption);
    options.resolution = check.choice(resolutionOption, resolutionNames());
    options.backend = check.choice(backendOption, { u"software"_s, u"rhi"_s });
    options.language = check.choice(languageOption, languageCodes());
    options.guideFile = check.readableFile(guideOption);
    options.playlistFile = check.readableFile(playlistOption);
    options.catalogueFile = check.readableFile(catalogueOption);
    options.theme = check.theme(themeOption);
    options.watchTheme = check.watchedTheme(watchThemeOption, options.theme);
    options.screenshotsFolder = check.writableFolder(screenshotsOption);
    return check.error().isEmpty() ? result : finished(ExitCode::Usage, check.error());
}

} // namespace

QStringList screenNames()
{
    return ShellController::screenNames();
}

QStringList resolutionNames()
{
    return { u"hd"_s, u"fullhd"_s, u"sd"_s };
}

QString configuredTheme(const QString &theme)
{
    return themeNames().contains(theme) ? themePath(theme) : QFileInfo(theme).absoluteFilePath();
}

CommandLine parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Shows the controls of Stbui.UI.Qml.Controls.Basic as a TV application."_s);
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (const OptionText &option :
         { guideOption, playlistOption, catalogueOption, nowOption, screenOption, keysOption,
           screenshotsOption, themeOption, watchThemeOption, resolutionOption, backendOption, languageOption,
           helpOption, versionOption })
        addOption(parser, option);
    if (!parser.parse(arguments))
        return finished(ExitCode::Usage, parser.errorText());
    if (isSet(parser, helpOption)) {
        CommandLine help;
        help.exitCode = ExitCode::Success;
        help.message = helpText(parser);
        return help;
    }
    if (isSet(parser, versionOption))
        return finished(ExitCode::Success, u"stbui-gallery " STBUI_VERSION ""_s);
    return checked(parser);
}

} // namespace gallery
