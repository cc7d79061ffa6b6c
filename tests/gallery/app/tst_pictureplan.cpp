// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include "app/languages.h"
#include "app/pictureplan.h"
#include "screens/themes.h"

#include <QtCore/qset.h>

using gallery::Picture;
using gallery::picturePlan;

/*! Which pictures a run writes, and where. */
class tst_PicturePlan : public stbtest::TestCase
{
    Q_OBJECT

    static gallery::Options into(const QString &folder)
    {
        gallery::Options options;
        options.screenshotsFolder = folder;
        return options;
    }

    static QStringList paths(const QList<Picture> &plan)
    {
        QStringList result;
        for (const Picture &picture : plan)
            result.append(picture.path);
        return result;
    }

private Q_SLOTS:
    void withoutAFolderThereIsNothingToWrite() { QVERIFY(picturePlan({}).isEmpty()); }

    void allIsEveryScreenInEveryThemeSizeAndLanguage()
    {
        const QList<Picture> plan = picturePlan(into("out"));
        const qsizetype screens = gallery::screenNames().size();
        QCOMPARE(gallery::themeNames().size(), 4);
        QCOMPARE(gallery::languageCodes().size(), 4);
        QCOMPARE(plan.size(), screens * 4 * 3 * 4);
        const QStringList all = paths(plan);
        QCOMPARE(QSet<QString>(all.begin(), all.end()).size(), plan.size());
        QVERIFY(all.contains("out/default/hd/en/home.png"));
        QVERIFY(all.contains("out/copper/sd/ar/player.png"));
        for (const Picture &picture : plan) {
            QCOMPARE(picture.path, "out/" + picture.theme + "/" + picture.resolution + "/" + picture.language
                                           + "/" + picture.screen + ".png");
        }
    }

    void whatIsGivenHasNoFolderAndIsTheSameInAll_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("screen");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("last");
        const int all = int(gallery::screenNames().size());
        const QString lastScreen = gallery::screenNames().constLast();
        QTest::newRow("theme") << "light"
                               << ""
                               << ""
                               << "" << 12 * all << "out/sd/ar/" + lastScreen + ".png";
        QTest::newRow("theme file") << "/some/theme.json"
                                    << ""
                                    << ""
                                    << "guide" << 12 << "out/sd/ar/guide.png";
        QTest::newRow("resolution") << ""
                                    << "hd"
                                    << ""
                                    << "" << 16 * all << "out/copper/ar/" + lastScreen + ".png";
        QTest::newRow("language") << ""
                                  << ""
                                  << "ru"
                                  << "" << 12 * all << "out/copper/sd/" + lastScreen + ".png";
        QTest::newRow("screen") << ""
                                << ""
                                << ""
                                << "guide" << 48 << "out/copper/sd/ar/guide.png";
        QTest::newRow("everything") << "default"
                                    << "hd"
                                    << "en"
                                    << "guide" << 1 << "out/guide.png";
    }
    void whatIsGivenHasNoFolderAndIsTheSameInAll()
    {
        QFETCH(QString, theme);
        QFETCH(QString, resolution);
        QFETCH(QString, language);
        QFETCH(QString, screen);
        QFETCH(int, count);
        QFETCH(QString, last);
        gallery::Options options = into("out");
        options.theme = theme;
        options.resolution = resolution;
        options.language = language;
        options.screen = screen;
        const QList<Picture> plan = picturePlan(options);
        QCOMPARE(plan.size(), count);
        QCOMPARE(plan.constLast().path, last);
        for (const Picture &picture : plan) {
            QCOMPARE(picture.theme.isEmpty(), !theme.isEmpty());
            QCOMPARE(picture.resolution.isEmpty(), !resolution.isEmpty());
            QCOMPARE(picture.language.isEmpty(), !language.isEmpty());
            QVERIFY(!picture.screen.isEmpty());
        }
    }

    void theLanguageChangesAsSeldomAsPossible()
    {
        const QList<Picture> plan = picturePlan(into("out"));
        int changes = 0;
        for (qsizetype i = 1; i < plan.size(); ++i)
            changes += plan.at(i).language == plan.at(i - 1).language ? 0 : 1;
        QCOMPARE(changes, 3);
        // And the screen most often, because nothing is made anew for it.
        QCOMPARE(plan.at(0).resolution, plan.at(1).resolution);
        QVERIFY(plan.at(0).screen != plan.at(1).screen);
    }
};

STB_TEST_MAIN(tst_PicturePlan)
#include "tst_pictureplan.moc"
