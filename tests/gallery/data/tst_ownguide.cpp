// SPDX-License-Identifier: MIT
#include "gallery/data/ownguide.h"
#include "guidetext.h"
#include "testkit/testcase.h"

#include <QtCore/qfile.h>
#include <QtCore/qjsondocument.h>
#include <QtCore/qjsonobject.h>
#include <QtCore/qset.h>

using namespace gallery;
using guidetext::at;
using guidetext::setZone;

class TestOwnGuide : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void everyMinuteOfFifteenDaysHasItsProgramme_data();
    void everyMinuteOfFifteenDaysHasItsProgramme();
    void itHasEightChannelsWithNumbersAndNames();
    void itsChannelsAreInGroupsAndOneIsLocked();
    void itsLogosAreThere();
    void everyProgrammeOfTheTemplateIsOn();
    void everyProgrammeHasItsTexts_data();
    void everyProgrammeHasItsTexts();
    void titlesAreInTheLanguageAskedFor_data();
    void titlesAreInTheLanguageAskedFor();
    void everyTitleIsTranslated();
    void everyDescriptionIsTranslated();
    void everyCategoryIsTranslated();
    void theSameTimeGivesTheSameGuide();
    void theNextDaysGuideHasTheSameProgrammes();
    void cleanup();
};

namespace {

QDateTime local(const char *iso)
{
    return QDateTime::fromString(QLatin1String(iso), Qt::ISODate);
}

QList<Programme> programmesIn(const QString &language)
{
    const Guide guide = ownGuide(local("2026-05-13T20:05:00"), language);
    QList<Programme> programmes;
    for (int channel = 0; channel < guide.channelCount(); ++channel) {
        for (int i = 0; i < guide.programmeCount(channel); ++i)
            programmes.append(guide.programme(channel, i));
    }
    return programmes;
}

// All titles, descriptions or categories in a language, each once.
QSet<QString> textsIn(const char *language, QString Programme::*text)
{
    QSet<QString> texts;
    const QList<Programme> programmes = programmesIn(QLatin1String(language));
    for (const Programme &programme : programmes)
        texts.insert(programme.*text);
    return texts;
}

// The texts that two or more of the languages share.
QSet<QString> sharedTexts(QString Programme::*text)
{
    QSet<QString> all;
    QSet<QString> shared;
    for (const char *language : { "en", "de", "ru", "ar" }) {
        const QSet<QString> texts = textsIn(language, text);
        shared += all & texts;
        all += texts;
    }
    return shared;
}

} // namespace

void TestOwnGuide::cleanup()
{
    setZone("UTC");
}

void TestOwnGuide::everyMinuteOfFifteenDaysHasItsProgramme_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("now");
    QTest::addColumn<qint64>("start");
    QTest::addColumn<qint64>("stop");
    const auto row = [](const char *title, const char *zone, const char *now, const char *start,
                        const char *stop) {
        QTest::newRow(title) << QByteArray(zone) << QString::fromLatin1(now) << at(start) << at(stop);
    };
    const char *london = "GMT0BST,M3.5.0/1,M10.5.0";
    row("UTC", "UTC", "2026-05-13T20:05:00", "2026-05-06T00:00:00Z", "2026-05-21T00:00:00Z");
    row("just after midnight", "UTC", "2026-05-13T00:00:00", "2026-05-06T00:00:00Z", "2026-05-21T00:00:00Z");
    row("east", "EST-7:30", "2026-05-13T23:59:59", "2026-05-05T16:30:00Z", "2026-05-20T16:30:00Z");
    row("clocks go forward", london, "2026-03-29T12:00:00", "2026-03-22T00:00:00Z", "2026-04-05T23:00:00Z");
    row("clocks go back", london, "2026-10-25T12:00:00", "2026-10-17T23:00:00Z", "2026-11-02T00:00:00Z");
}

void TestOwnGuide::everyMinuteOfFifteenDaysHasItsProgramme()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, now);
    QFETCH(qint64, start);
    QFETCH(qint64, stop);
    setZone(zone);
    const Guide guide = ownGuide(local(qPrintable(now)), QStringLiteral("en"));
    for (int channel = 0; channel < guide.channelCount(); ++channel) {
        const int last = guide.programmeCount(channel) - 1;
        QVERIFY(guide.timeSpan(channel, 0).start <= start);
        QVERIFY(guide.timeSpan(channel, 0).stop > start);
        QVERIFY(guide.timeSpan(channel, last).stop >= stop);
        QVERIFY(guide.timeSpan(channel, last).start < stop);
        for (int i = 0; i < last; ++i)
            QCOMPARE(guide.timeSpan(channel, i).stop, guide.timeSpan(channel, i + 1).start);
    }
}

void TestOwnGuide::itHasEightChannelsWithNumbersAndNames()
{
    const Guide guide = ownGuide(local("2026-05-13T20:05:00"), QStringLiteral("en"));
    QCOMPARE(guide.channelCount(), 8);
    QCOMPARE(guide.channel(0).name, QStringLiteral("News"));
    for (int channel = 0; channel < 8; ++channel)
        QCOMPARE(guide.channel(channel).number, QString::number(channel + 1));
}

void TestOwnGuide::itsChannelsAreInGroupsAndOneIsLocked()
{
    QSet<QString> all;
    for (const char *language : { "en", "de", "ru", "ar" }) {
        const Guide guide = ownGuide(local("2026-05-13T20:05:00"), QLatin1String(language));
        QSet<QString> groups;
        int locked = 0;
        int withQuality = 0;
        for (int channel = 0; channel < guide.channelCount(); ++channel) {
            QVERIFY(!guide.channel(channel).group.isEmpty());
            groups.insert(guide.channel(channel).group);
            locked += int(guide.channel(channel).locked);
            withQuality += int(!guide.channel(channel).quality.isEmpty());
        }
        QCOMPARE(groups.size(), 4);
        QVERIFY(!all.intersects(groups));
        all += groups;
        QCOMPARE(locked, 1);
        QCOMPARE(withQuality, 6);
    }
}

void TestOwnGuide::itsLogosAreThere()
{
    const Guide guide = ownGuide(local("2026-05-13T20:05:00"), QStringLiteral("en"));
    int logos = 0;
    for (int channel = 0; channel < guide.channelCount(); ++channel) {
        const QUrl logo = guide.channel(channel).icon;
        logos += int(!logo.isEmpty());
        QVERIFY(logo.isEmpty() || QFile::exists(u':' + logo.path()));
    }
    QCOMPARE(logos, 6);
}

void TestOwnGuide::everyProgrammeOfTheTemplateIsOn()
{
    QFile file(QStringLiteral(":/gallery/data/ownguide.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonDocument pattern = QJsonDocument::fromJson(file.readAll());
    const QJsonObject programmes = pattern[QLatin1String("programmes")].toObject();
    QVERIFY(!programmes.isEmpty());
    QCOMPARE(textsIn("en", &Programme::title).size(), programmes.size());
}

void TestOwnGuide::everyProgrammeHasItsTexts_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : { "en", "de", "ru", "ar" })
        QTest::newRow(language) << language;
}

void TestOwnGuide::everyProgrammeHasItsTexts()
{
    QFETCH(QString, language);
    const QList<Programme> programmes = programmesIn(language);
    QVERIFY(!programmes.isEmpty());
    for (const Programme &programme : programmes) {
        QVERIFY(!programme.title.isEmpty());
        QVERIFY2(!programme.description.isEmpty(), qPrintable(programme.title));
        QVERIFY2(programme.description != programme.title, qPrintable(programme.title));
        QVERIFY2(!programme.category.isEmpty(), qPrintable(programme.title));
    }
}

void TestOwnGuide::titlesAreInTheLanguageAskedFor_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("channel");
    QTest::addColumn<QString>("title");
    QTest::newRow("English") << "en"
                             << "Cinema"
                             << "The Lighthouse Keeper's Daughter";
    QTest::newRow("German") << "de"
                            << "Kino" << QString::fromUtf8("Die Tochter des Leuchtturmwärters");
    QTest::newRow("a region") << "de_AT"
                              << "Kino" << QString::fromUtf8("Die Tochter des Leuchtturmwärters");
    QTest::newRow("Russian") << "ru" << QString::fromUtf8("Кино")
                             << QString::fromUtf8("Дочь смотрителя маяка");
    QTest::newRow("Arabic") << "ar" << QString::fromUtf8("سينما") << QString::fromUtf8("ابنة حارس المنارة");
    QTest::newRow("another") << "fi"
                             << "Cinema"
                             << "The Lighthouse Keeper's Daughter";
    QTest::newRow("none") << ""
                          << "Cinema"
                          << "The Lighthouse Keeper's Daughter";
}

void TestOwnGuide::titlesAreInTheLanguageAskedFor()
{
    QFETCH(QString, language);
    const Guide guide = ownGuide(local("2026-05-13T20:05:00"), language);
    const int channel = guide.channelIndex(QStringLiteral("cinema"));
    QTEST(guide.channel(channel).name, "channel");
    const int row = guide.programmeAt(channel, at("2026-05-13T20:05:00Z"));
    QTEST(guide.programme(channel, row).title, "title");
}

void TestOwnGuide::everyTitleIsTranslated()
{
    // The same word in English and German.
    QCOMPARE(sharedTexts(&Programme::title), QSet<QString>({ QStringLiteral("Tennis") }));
}

void TestOwnGuide::everyDescriptionIsTranslated()
{
    QCOMPARE(sharedTexts(&Programme::description), QSet<QString>());
    const qsizetype titles = textsIn("en", &Programme::title).size();
    for (const char *language : { "en", "de", "ru", "ar" })
        QCOMPARE(textsIn(language, &Programme::description).size(), titles); // each has one of its own
}

void TestOwnGuide::everyCategoryIsTranslated()
{
    // The same words in English and German.
    QCOMPARE(sharedTexts(&Programme::category),
             QSet<QString>({ QStringLiteral("Film"), QStringLiteral("Quiz"), QStringLiteral("Sport") }));
}

void TestOwnGuide::theNextDaysGuideHasTheSameProgrammes()
{
    const Guide before = ownGuide(local("2026-05-13T20:05:00"), QStringLiteral("en"));
    const Guide after = ownGuide(local("2026-05-14T20:05:00"), QStringLiteral("en"));
    for (int channel = 0; channel < before.channelCount(); ++channel) {
        const int last = before.programmeCount(channel) - 1;
        int row = before.nextProgramme(channel, after.timeSpan(channel, 0).start - 1);
        QVERIFY(row > 0);
        for (int other = 0; row <= last; ++row, ++other) {
            const Programme programme = before.programme(channel, row);
            QCOMPARE(after.programme(channel, other).time, programme.time);
            QCOMPARE(after.programme(channel, other).title, programme.title);
            QCOMPARE(after.programme(channel, other).subTitle, programme.subTitle);
        }
    }
}

void TestOwnGuide::theSameTimeGivesTheSameGuide()
{
    const Guide a = ownGuide(local("2026-05-13T20:05:00"), QStringLiteral("en"));
    const Guide b = ownGuide(local("2026-05-13T20:05:00"), QStringLiteral("en"));
    QCOMPARE(a.programmeCount(), b.programmeCount());
    for (int i = 0; i < a.programmeCount(3); ++i)
        QCOMPARE(a.programme(3, i).subTitle, b.programme(3, i).subTitle);
}

STB_TEST_MAIN(TestOwnGuide)
#include "tst_ownguide.moc"
