// SPDX-License-Identifier: MIT
#include "galleryprocess.h"
#include "testkit/testcase.h"

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
        const GalleryRun run = runGallery(QStringList { "--now", "2026-03-04T20:05:00Z", "--screen", screen,
                                                        "--screenshots", m_folder.filePath(folder) }
                                          + arguments);
        if (run.exitCode != 0 || !run.errors.isEmpty() || run.output != path + "\n") {
            QTest::qFail(qPrintable(run.output + run.errors), __FILE__, __LINE__);
            return {};
        }
        return QImage(path);
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
    QList<QImage> m_seen;

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
        const GalleryRun run = runGallery({ "--now", "2026-03-04T20:05:00Z", "--screenshots", folder });
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.exitCode, 0);
        QList<QImage> pictures;
        QString output;
        for (const QString screen : { "home", "detail", "series", "guide", "channels", "player", "search",
                                      "settings", "components", "about" }) {
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

    void everyScreenHasItsPictureInEverySizeAndLanguage_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QString>("language");
        for (const QString resolution : { "hd", "fullhd", "sd" }) {
            for (const QString language : { "en", "ru", "de", "ar" })
                QTest::addRow("%s %s", qPrintable(resolution), qPrintable(language))
                        << resolution << language;
        }
    }
    void everyScreenHasItsPictureInEverySizeAndLanguage()
    {
        QFETCH(QString, resolution);
        QFETCH(QString, language);
        const QString folder = m_folder.filePath(resolution + language);
        const GalleryRun run = runGallery({ "--now", "2026-03-04T20:05:00Z", "--resolution", resolution,
                                            "--language", language, "--screenshots", folder });
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.exitCode, 0);
        for (const QString screen : { "home", "detail", "series", "guide", "channels", "player", "search",
                                      "settings", "components", "about" }) {
            const QImage image(folder + "/" + screen + ".png");
            QVERIFY(colours(image) > 50);
            QVERIFY(!m_seen.contains(image));
            m_seen.append(image);
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
        const GalleryRun run = runGallery({ "--now", "2026-03-04T20:05:00Z", "--screen", "home",
                                            "--catalogue", catalogue.fileName(), "--screenshots", folder });
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

    void theUsersConfigurationIsNotWritten()
    {
        const QString path = m_folder.filePath("store.ini");
        QFile store(path);
        QVERIFY(store.open(QIODevice::WriteOnly));
        store.write("[UI]\nresolution=sd\nlanguage=de\n");
        store.close();
        qputenv("STBUI_CONFIG", path.toLocal8Bit());
        const QImage configured = picture("configured", {});
        const QImage overridden = picture("overridden", { "--resolution", "hd", "--language", "ru" });
        qunsetenv("STBUI_CONFIG");
        QCOMPARE(configured.size(), QSize(720, 576));
        QCOMPARE(overridden.size(), QSize(1280, 720));
        QVERIFY(store.open(QIODevice::ReadOnly));
        QCOMPARE(store.readAll(), "[UI]\nresolution=sd\nlanguage=de\n");
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
