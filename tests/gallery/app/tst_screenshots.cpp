// SPDX-License-Identifier: MIT
#include "galleryprocess.h"
#include "testkit/testcase.h"

#include "app/options.h"

#include <QtCore/qcryptographichash.h>
#include <QtCore/qdir.h>
#include <QtCore/qset.h>
#include <QtCore/qtemporarydir.h>
#include <QtGui/qimage.h>

class tst_Screenshots : public stbtest::TestCase
{
    Q_OBJECT

    QImage picture(const QString &folder, const QStringList &arguments, const QString &screen = "guide")
    {
        const QString path = m_folder.filePath(folder + "/" + screen + ".png");
        QStringList all = QStringList { "--now", "2026-03-04T20:05:00Z", "--screen",
                                        screen,  "--screenshots",        m_folder.filePath(folder) }
                          + arguments;
        for (const auto &[option, usual] :
             { std::pair { "--theme", "default" }, { "--resolution", "hd" }, { "--language", "en" } }) {
            if (!all.contains(QLatin1StringView(option)))
                all += { option, usual };
        }
        const GalleryRun run = runGallery(all);
        if (run.exitCode != 0 || !run.errors.isEmpty() || run.output != path + "\n") {
            QTest::qFail(qPrintable(run.output + run.errors), __FILE__, __LINE__);
            return {};
        }
        return QImage(path);
    }

    static QSize sizeOf(const QString &resolution)
    {
        if (resolution == "sd")
            return { 720, 576 };
        return resolution == "hd" ? QSize(1280, 720) : QSize(1920, 1080);
    }

    /*! A guide of one channel with titles in two languages. */
    QString guideFile() const
    {
        QFile file(m_folder.filePath("guide.xml"));
        if (!file.open(QIODevice::WriteOnly))
            return {};
        file.write("<tv><channel id=\"a\"><display-name>A</display-name></channel>"
                   "<programme channel=\"a\" start=\"20260304190000 +0000\" stop=\"20260304220000 +0000\">"
                   "<title lang=\"en\">Rivers</title><title lang=\"de\">Die Flüsse</title></programme></tv>");
        return file.fileName();
    }

    static qsizetype colours(const QImage &image)
    {
        QSet<QRgb> seen;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                seen.insert(image.pixel(x, y));
        }
        return seen.size();
    }

    QTemporaryDir m_folder;

private Q_SLOTS:
    void thePictureHasTheSizeOfTheResolution_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QSize>("size");
        QTest::newRow("hd") << "hd" << QSize(1280, 720);
        QTest::newRow("fullhd") << "fullhd" << QSize(1920, 1080);
        QTest::newRow("sd") << "sd" << QSize(720, 576);
    }
    void thePictureHasTheSizeOfTheResolution()
    {
        QFETCH(QString, resolution);
        QFETCH(QSize, size);
        const QImage image = picture(resolution, { "--resolution", resolution });
        QCOMPARE(image.size(), size);
        QVERIFY(colours(image) > 50);
    }

    void theSafeAreaStaysEmpty_data() { thePictureHasTheSizeOfTheResolution_data(); }
    void theSafeAreaStaysEmpty()
    {
        QFETCH(QString, resolution);
        QImage image = picture("safe-" + resolution, { "--resolution", resolution });
        const int x = image.width() / 20;
        const int y = image.height() / 20;
        const QRgb backdrop = image.pixel(0, 0);
        for (int row = 0; row < image.height(); ++row) {
            for (int column = 0; column < image.width(); ++column) {
                const bool inside = row >= y && row < image.height() - y && column >= x
                                    && column < image.width() - x;
                if (!inside && image.pixel(column, row) != backdrop)
                    QFAIL(qPrintable(QStringLiteral("something at %1, %2").arg(column).arg(row)));
            }
        }
    }

    void theSameRunGivesTheSamePicture()
    {
        const QStringList keys { "--keys", "Down Right Down" };
        const QImage first = picture("first", keys);
        QVERIFY(!first.isNull());
        QCOMPARE(picture("second", keys), first);
    }

    void keysChangeThePicture() { QVERIFY(picture("before", {}) != picture("after", { "--keys", "Down" })); }

    void returnAndBackLeadToThePictureThereWas()
    {
        QCOMPARE(picture("there-and-back", { "--keys", "Up Return Back Down" }), picture("still", {}));
    }

    void backFromTheGuideLeadsHome()
    {
        QCOMPARE(picture("out", { "--keys", "Back" }), picture("home", {}, "home"));
    }

    void leavingStillGivesAPicture()
    {
        QVERIFY(!picture("leaving", { "--keys", "Back Back Back Back" }, "home").isNull());
    }

    void withoutAScreenEachOneHasItsPicture()
    {
        const QString folder = m_folder.filePath("all");
        const GalleryRun run = runGallery({ "--now", "2026-03-04T20:05:00Z", "--theme", "default",
                                            "--resolution", "hd", "--language", "en", "--screenshots",
                                            folder });
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.exitCode, 0);
        QList<QImage> pictures;
        QString output;
        for (const QString &screen : gallery::screenNames()) {
            const QString path = folder + "/" + screen + ".png";
            output += path + "\n";
            const QImage image(path);
            QVERIFY2(colours(image) > 50, qPrintable(screen));
            QVERIFY(!pictures.contains(image));
            QCOMPARE(image, picture("one-" + screen, {}, screen));
            pictures.append(image);
        }
        QCOMPARE(run.output, output);
    }

    void everyScreenHasItsPictureInEverySizeAndLanguage()
    {
        const QString folder = m_folder.filePath("varied");
        const GalleryRun run = runGallery(
                { "--now", "2026-03-04T20:05:00Z", "--theme", "default", "--screenshots", folder });
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.exitCode, 0);
        QSet<QByteArray> seen;
        for (const QString resolution : { "hd", "fullhd", "sd" }) {
            for (const QString language : { "en", "ru", "de", "ar" }) {
                for (const QString &screen : gallery::screenNames()) {
                    const QString path = folder + "/" + resolution + "/" + language + "/" + screen + ".png";
                    QVERIFY2(run.output.contains(path + "\n"), qPrintable(path));
                    const QImage image(path);
                    QCOMPARE(image.size(), sizeOf(resolution));
                    QVERIFY(colours(image) > 50);
                    seen.insert(
                            QCryptographicHash::hash(QByteArray::fromRawData(reinterpret_cast<const char *>(
                                                                                     image.constBits()),
                                                                             image.sizeInBytes()),
                                                     QCryptographicHash::Sha1));
                }
            }
        }
        QCOMPARE(seen.size(), 12 * gallery::screenNames().size());
        QCOMPARE(run.output.count(u'\n'), seen.size());
    }

    void aPictureOfManyIsThatOfARunOfItsOwn()
    {
        const QString folder = m_folder.filePath("many");
        const GalleryRun run = runGallery({ "--now", "2026-03-04T20:05:00Z", "--screen", "guide", "--keys",
                                            "Down Info", "--screenshots", folder });
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.output.count(u'\n'), 48);
        for (const auto &[theme, resolution, language] : { std::tuple { "default", "hd", "en" },
                                                           { "contrast", "fullhd", "ru" },
                                                           { "light", "hd", "de" },
                                                           { "copper", "sd", "ar" } }) {
            const QString one = QStringLiteral("%1/%2/%3").arg(theme, resolution, language);
            const QImage alone = picture("alone/" + one, { "--theme", theme, "--resolution", resolution,
                                                           "--language", language, "--keys", "Down Info" });
            QVERIFY(!alone.isNull());
            QVERIFY2(QImage(folder + "/" + one + "/guide.png") == alone, qPrintable(one));
        }
    }

    void aGuideFileIsReadOnceForEachLanguage()
    {
        const QString guide = guideFile();
        const QString folder = m_folder.filePath("guide-file");
        const QStringList arguments {
            "--now",   "2026-03-04T20:05:00Z", "--guide", guide, "--screen", "guide", "--theme",
            "default", "--resolution",         "hd"
        };
        const GalleryRun run = runGallery(arguments + QStringList { "--screenshots", folder });
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.exitCode, 0);
        for (const QString language : { "en", "de" }) {
            const QImage alone = picture("guide-alone-" + language,
                                         { "--guide", guide, "--language", language });
            QVERIFY(!alone.isNull());
            QVERIFY2(QImage(folder + "/" + language + "/guide.png") == alone, qPrintable(language));
        }
    }

    void aCatalogueWithBrokenEntriesIsShownAsFarAsItGoes()
    {
        QFile catalogue(m_folder.filePath("broken.json"));
        QVERIFY(catalogue.open(QIODevice::WriteOnly));
        catalogue.write("{ \"films\": [ { \"title\": 7 }, { \"title\": \"Kept\", \"duration\": \"long\", "
                        "\"picture\": \"does-not-exist.jpg\" }, null ] }");
        catalogue.close();
        const QString folder = m_folder.filePath("broken");
        const GalleryRun run = runGallery(
                { "--now", "2026-03-04T20:05:00Z", "--screen", "home", "--catalogue", catalogue.fileName(),
                  "--theme", "default", "--resolution", "hd", "--language", "en", "--screenshots", folder });
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.output, folder + "/home.png\n");
        const QStringList lines = run.errors.split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 3);
        for (const QString &line : lines)
            QVERIFY2(line.startsWith("stbui-gallery: ") && line.contains("broken.json"), qPrintable(line));
        QVERIFY(colours(QImage(folder + "/home.png")) > 50);
    }

    void everyLanguageHasItsPicture()
    {
        QList<QImage> pictures;
        for (const QString language : { "en", "ru", "de", "ar" }) {
            const QImage image = picture("language-" + language, { "--language", language });
            QVERIFY(colours(image) > 50);
            QVERIFY(!pictures.contains(image));
            pictures.append(image);
        }
    }

    void aThemeFileChangesThePicture()
    {
        QFile theme(m_folder.filePath("theme.json"));
        QVERIFY(theme.open(QIODevice::WriteOnly));
        theme.write("{ \"colors\": { \"oslo\": \"#FF402010\" } }");
        theme.close();
        const QImage image = picture("themed", { "--theme", theme.fileName() });
        QCOMPARE(image.pixelColor(0, 0), QColor(0x40, 0x20, 0x10));
    }

    void aNamedThemeChangesThePicture()
    {
        const QImage light = picture("light", { "--theme", "light" });
        QVERIFY(light.pixelColor(0, 0).lightness() > 200);
    }

    void theUsersConfigurationCountsAndIsNotWritten()
    {
        const QByteArray content = "[UI]\nlanguage=de\nresolution=sd\ntextScale=1.3\n";
        const QString path = m_folder.filePath("store.ini");
        QFile store(path);
        QVERIFY(store.open(QIODevice::WriteOnly));
        store.write(content);
        store.close();
        const QImage usual = picture("usual", { "--resolution", "hd", "--language", "ru" });
        qputenv("STBUI_CONFIG", path.toLocal8Bit());
        const QImage configured = picture("configured", { "--resolution", "hd", "--language", "ru" });
        qunsetenv("STBUI_CONFIG");
        QCOMPARE(configured.size(), QSize(1280, 720));
        QVERIFY(configured != usual);
        QVERIFY(store.open(QIODevice::ReadOnly));
        QCOMPARE(store.readAll(), content);
    }

    void aRealGuideIsShown()
    {
        const QString data = qEnvironmentVariable("STBUI_TEST_DATA");
        if (data.isEmpty())
            QSKIP("STBUI_TEST_DATA does not name a folder with real guide files");
        const QStringList guide { "--guide", data + "/xmltv/uk-two-weeks.xml", "--now",
                                  "2015-11-26T20:05:00Z" };
        const QImage start = picture("real", guide);
        QVERIFY(colours(start) > 50);
        QVERIFY(picture("real-down", guide + QStringList { "--keys", "Down Down" }) != start);
    }
};

STB_TEST_MAIN(tst_Screenshots)
#include "tst_screenshots.moc"
