// SPDX-License-Identifier: MIT
#include "galleryprocess.h"
#include "testkit/testcase.h"

#include "app/options.h"
#include "app/remotekeys.h"
#include "app/runconfiguration.h"
#include "screens/themes.h"

#include <QtCore/qdir.h>
#include <QtCore/qtemporarydir.h>
#include <QtCore/qtimezone.h>

using gallery::CommandLine;
using gallery::ExitCode;
using gallery::parseCommandLine;
using gallery::parseRemoteKeys;

class tst_CommandLine : public stbtest::TestCase
{
    Q_OBJECT

    static CommandLine parse(const QStringList &arguments)
    {
        return parseCommandLine(QStringList { QStringLiteral("stbui-gallery") } + arguments);
    }

    QString file(const QString &name, const QByteArray &content = "x") const
    {
        const QString path = m_folder.filePath(name);
        QFile opened(path);
        if (!opened.open(QIODevice::WriteOnly) || opened.write(content) != content.size())
            return {};
        return path;
    }

    QTemporaryDir m_folder;

private Q_SLOTS:
    void withoutArgumentsThereIsSomethingToRun()
    {
        const CommandLine line = parse({});
        QVERIFY(!line.exitCode);
        QVERIFY(!line.options.now.isValid());
        QVERIFY(line.options.guideFile.isEmpty());
    }

    void everyOptionArrives()
    {
        const QString guide = file(QStringLiteral("guide.xml"));
        const QString theme = file(QStringLiteral("theme.json"));
        const QString catalogue = file(QStringLiteral("catalogue.json"));
        const QString playlist = file(QStringLiteral("tv.m3u"));
        const CommandLine line = parse({ "--guide",       guide,
                                         "--playlist",    playlist,
                                         "--catalogue",   catalogue,
                                         "--now",         "2015-11-26T20:05:00Z",
                                         "--screen",      "guide",
                                         "--keys",        "Down Right",
                                         "--screenshots", m_folder.filePath("shots"),
                                         "--theme",       theme,
                                         "--resolution",  "sd",
                                         "--backend",     "software",
                                         "--language",    "ru" });
        QVERIFY2(!line.exitCode, qPrintable(line.message));
        QCOMPARE(line.options.guideFile, guide);
        QCOMPARE(line.options.playlistFile, playlist);
        QCOMPARE(line.options.catalogueFile, catalogue);
        QCOMPARE(line.options.now, QDateTime(QDate(2015, 11, 26), QTime(20, 5), QTimeZone::utc()));
        QCOMPARE(line.options.screen, "guide");
        QCOMPARE(line.options.keys, (QList { Qt::Key_Down, Qt::Key_Right }));
        QCOMPARE(line.options.screenshotsFolder, m_folder.filePath("shots"));
        QVERIFY(QDir(m_folder.filePath("shots")).exists());
        QCOMPARE(line.options.theme, theme);
        QVERIFY(!line.options.watchTheme);
        QCOMPARE(line.options.resolution, "sd");
        QCOMPARE(line.options.backend, "software");
        QCOMPARE(line.options.language, "ru");
    }

    void aThemeIsANameOrAFile()
    {
        QCOMPARE(gallery::themeNames(), (QStringList { "default", "light", "contrast", "copper" }));
        for (const QString &name : gallery::themeNames()) {
            const CommandLine line = parse({ "--theme", name });
            QVERIFY2(!line.exitCode, qPrintable(line.message));
            QCOMPARE(line.options.theme, name);
            QCOMPARE(gallery::configuredTheme(name), gallery::themePath(name));
        }
        const QString theme = file(QStringLiteral("own.json"));
        QCOMPARE(parse({ "--theme", theme }).options.theme, theme);
        QCOMPARE(gallery::configuredTheme(theme), theme);
        QCOMPARE(gallery::configuredTheme("own.json"), QDir::current().absoluteFilePath("own.json"));
    }

    void anUnknownThemeIsToldWithTheNamesThatThereAre()
    {
        const CommandLine line = parse({ "--theme", "sepia" });
        QCOMPARE(int(line.exitCode.value()), int(ExitCode::Usage));
        QCOMPARE(line.message,
                 "unknown theme \"sepia\"; expected default, light, contrast, copper or a readable file");
    }

    void aThemeFileCanBeWatched()
    {
        const QString theme = file(QStringLiteral("watched.json"));
        const CommandLine line = parse({ "--theme", theme, "--watch-theme" });
        QVERIFY2(!line.exitCode, qPrintable(line.message));
        QVERIFY(line.options.watchTheme);
    }

    void theThemeFileOfTheConfigurationCanBeWatched()
    {
        const QString theme = file(QStringLiteral("configured.json"));
        gallery::RunConfiguration configuration;
        configuration.setForRun("UI", "theme", theme);
        QVERIFY(parse({ "--watch-theme" }).options.watchTheme);
        QCOMPARE(int(parse({ "--watch-theme", "--theme", "default" }).exitCode.value()), int(ExitCode::Usage));
        configuration.setForRun("UI", "theme", gallery::themePath("copper"));
        QCOMPARE(int(parse({ "--watch-theme" }).exitCode.value()), int(ExitCode::Usage));
    }

    void anOffsetInTheTimeCounts()
    {
        const CommandLine line = parse({ "--now", "2015-11-26T20:05:00+02:00" });
        QCOMPARE(line.options.now, QDateTime(QDate(2015, 11, 26), QTime(18, 5), QTimeZone::utc()));
    }

    void aWrongArgumentIsAnErrorInOneLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("names");
        const QString folder = m_folder.path();
        const QString plain = file(QStringLiteral("plain"));
        QTest::newRow("unknown option") << QStringList { "--frobnicate" } << "frobnicate";
        QTest::newRow("missing value") << QStringList { "--guide" } << "guide";
        QTest::newRow("stray argument") << QStringList { "guide.xml" } << "guide.xml";
        QTest::newRow("unknown key") << QStringList { "--keys", "Down Sideways" } << "Sideways";
        QTest::newRow("bad date") << QStringList { "--now", "tomorrow" } << "tomorrow";
        QTest::newRow("day that does not exist")
                << QStringList { "--now", "2015-02-30T10:00:00Z" } << "2015-02-30";
        QTest::newRow("empty date") << QStringList { "--now", "" } << "date";
        QTest::newRow("unknown screen") << QStringList { "--screen", "kitchen" } << "kitchen";
        QTest::newRow("unknown resolution") << QStringList { "--resolution", "4k" } << "4k";
        QTest::newRow("unknown backend") << QStringList { "--backend", "abacus" } << "abacus";
        QTest::newRow("unknown language") << QStringList { "--language", "xx" } << "xx";
        QTest::newRow("missing guide")
                << QStringList { "--guide", "/does/not/exist.xml" } << "/does/not/exist.xml";
        QTest::newRow("missing catalogue")
                << QStringList { "--catalogue", "/does/not/exist.json" } << "/does/not/exist.json";
        QTest::newRow("folder as catalogue") << QStringList { "--catalogue", folder } << folder;
        QTest::newRow("missing playlist")
                << QStringList { "--playlist", "/does/not/exist.m3u" } << "/does/not/exist.m3u";
        QTest::newRow("folder as playlist") << QStringList { "--playlist", folder } << folder;
        QTest::newRow("folder as guide") << QStringList { "--guide", folder } << folder;
        QTest::newRow("missing theme")
                << QStringList { "--theme", "/does/not/exist.json" } << "/does/not/exist.json";
        QTest::newRow("folder as theme") << QStringList { "--theme", folder } << folder;
        QTest::newRow("theme without a name") << QStringList { "--theme", "" } << "contrast";
        QTest::newRow("no theme file to watch") << QStringList { "--watch-theme" } << "--theme";
        QTest::newRow("compiled-in theme to watch")
                << QStringList { "--watch-theme", "--theme", "light" } << "file to watch";
        QTest::newRow("pictures of a watched theme")
                << QStringList { "--watch-theme", "--theme", plain, "--screenshots", folder }
                << "--screenshots";
        QTest::newRow("pictures into a file") << QStringList { "--screenshots", plain } << plain;
        QTest::newRow("pictures below a file") << QStringList { "--screenshots", plain + "/in" } << plain;
        QTest::newRow("pictures nowhere") << QStringList { "--screenshots", "" } << "pictures";
    }
    void aWrongArgumentIsAnErrorInOneLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, names);
        const CommandLine line = parse(arguments);
        QVERIFY(line.exitCode);
        QCOMPARE(int(*line.exitCode), int(ExitCode::Usage));
        QVERIFY2(line.message.contains(names), qPrintable(line.message));
        QVERIFY2(!line.message.contains(u'\n'), qPrintable(line.message));
    }

    void noFolderIsMadeForAWrongArgument()
    {
        parse({ "--screenshots", m_folder.filePath("early"), "--screen", "kitchen" });
        QVERIFY(!QFile::exists(m_folder.filePath("early")));
    }

    void keysAreReadInAnyCaseAndSeparatedByBlanksOrCommas()
    {
        const gallery::RemoteKeys keys = parseRemoteKeys(QStringLiteral(" down,PAGEUP\tReturn  back "));
        QCOMPARE(keys.unknown, QString());
        QCOMPARE(keys.keys, (QList { Qt::Key_Down, Qt::Key_PageUp, Qt::Key_Return, Qt::Key_Back }));
    }

    void everyNamedKeyIsKnown()
    {
        const QStringList names = gallery::remoteKeyNames();
        QVERIFY(names.contains("Up") && names.contains("End"));
        QCOMPARE(parseRemoteKeys(names.join(u' ')).keys.size(), names.size());
    }

    void digitsAreKeys()
    {
        QCOMPARE(parseRemoteKeys(QStringLiteral("0 7 9")).keys, (QList { Qt::Key_0, Qt::Key_7, Qt::Key_9 }));
    }

    void readingStopsAtAnUnknownKey()
    {
        const gallery::RemoteKeys keys = parseRemoteKeys(QStringLiteral("Up Nonsense Down"));
        QCOMPARE(keys.unknown, "Nonsense");
        QCOMPARE(keys.keys, QList { Qt::Key_Up });
    }

    void helpListsEveryOption()
    {
        const GalleryRun run = runGallery({ "--help" });
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.errors, QString());
        for (const char *option :
             { "--guide", "--playlist", "--catalogue", "--now", "--screen", "--keys", "--screenshots",
               "--theme", "--watch-theme", "--resolution", "--backend", "--language", "--help", "--version" })
            QVERIFY2(run.output.contains(QLatin1String(option)), option);
    }

    void versionIsOneLine()
    {
        const GalleryRun run = runGallery({ "--version" });
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.output.startsWith("stbui-gallery ") && run.output.count(u'\n') == 1,
                 qPrintable(run.output));
    }

    void theProgramEndsWithTwoAndOneLineForAWrongArgument()
    {
        const GalleryRun run = runGallery({ "--resolution", "4k" });
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.output, QString());
        QCOMPARE(run.errors, "stbui-gallery: unknown resolution \"4k\"; expected hd or fullhd or sd\n");
    }

    void aFileThatIsNoGuideEndsTheProgramWithTwo()
    {
        const QString path = file(QStringLiteral("no-guide.xml"), "this is no guide\n");
        const GalleryRun run = runGallery({ "--guide", path, "--screenshots", m_folder.filePath("none") });
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.output, QString());
        QVERIFY2(run.errors.contains("no-guide.xml") && run.errors.count(u'\n') == 1, qPrintable(run.errors));
    }

    void aFileThatIsNoPlaylistEndsTheProgramWithTwo()
    {
        const QString path = file(QStringLiteral("no-playlist.m3u"), "this is no playlist\n");
        const GalleryRun run = runGallery({ "--playlist", path, "--screenshots", m_folder.filePath("none") });
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.output, QString());
        QVERIFY2(run.errors.startsWith("stbui-gallery: ") && run.errors.contains("no-playlist.m3u")
                         && run.errors.count(u'\n') == 1,
                 qPrintable(run.errors));
    }

    void eachOddLineOfAPlaylistIsToldOnceAndTheRestIsShown()
    {
        const QString path = file(QStringLiteral("odd.m3u"),
                                  "#EXTM3U\n"
                                  "#EXTINF:-1 tvg-id=\"news\" tvg-chno=\"x\",News\n"
                                  "udp://1\n"
                                  "nonsense\n"
                                  "#EXTINF:-1 tvg-id=\"sport\",Sport\n"
                                  "udp://2\n");
        const QString folder = m_folder.filePath("odd");
        // Read again for each language, and told all the same only once.
        const GalleryRun run = runGallery({ "--playlist", path, "--screen", "guide", "--theme", "default",
                                            "--resolution", "hd", "--now", "2026-03-04T20:05:00Z",
                                            "--screenshots", folder });
        QCOMPARE(run.exitCode, 0);
        QString output;
        for (const char *language : { "en", "ru", "de", "ar" })
            output += folder + "/" + language + "/guide.png\n";
        QCOMPARE(run.output, output);
        const QStringList lines = run.errors.split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines[0].startsWith("stbui-gallery: " + path + ": line 2: "), qPrintable(lines[0]));
        QVERIFY2(lines[1].startsWith("stbui-gallery: " + path + ": line 4: "), qPrintable(lines[1]));
    }

    void aFileThatIsNoCatalogueEndsTheProgramWithTwo()
    {
        const QString path = file(QStringLiteral("no-catalogue.json"), "{ \"films\": [");
        const GalleryRun run = runGallery({ "--catalogue", path, "--screenshots", m_folder.filePath("none") });
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.output, QString());
        QVERIFY2(run.errors.startsWith("stbui-gallery: ") && run.errors.contains("no-catalogue.json")
                         && run.errors.count(u'\n') == 1,
                 qPrintable(run.errors));
    }

    void everyScreenCanBeNamed()
    {
        QCOMPARE(gallery::screenNames(),
                 (QStringList { "home", "detail", "series", "guide", "channels", "player", "search",
                                "settings", "components", "about" }));
        for (const QString &name : gallery::screenNames())
            QCOMPARE(parse({ "--screen", name }).options.screen, name);
    }

    void withoutADisplayTheProgramSaysSo()
    {
        const GalleryRun run = runGallery({});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.errors,
                 "stbui-gallery: there is no display; --screenshots writes pictures without one, by "
                 "the software renderer\n");
    }
};

STB_TEST_MAIN(tst_CommandLine)
#include "tst_commandline.moc"
