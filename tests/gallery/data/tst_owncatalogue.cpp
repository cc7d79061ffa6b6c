// SPDX-License-Identifier: MIT
#include "gallery/data/cataloguereader.h"
#include "gallery/data/guidebuilder.h"
#include "gallery/data/ownguide.h"
#include "gallery/data/programmemodel.h"
#include "gallery/data/programmestills.h"
#include "testkit/testcase.h"

#include <QtCore/qset.h>
#include <QtGui/qimagereader.h>

using namespace gallery;

class TestOwnCatalogue : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void itIsReadWithoutAProblem();
    void itHasFilmsSeriesAndEpisodes();
    void everyEntryHasItsTextsInEveryLanguage_data();
    void everyEntryHasItsTextsInEveryLanguage();
    void everyTitleAndDescriptionIsTranslated();
    void someEntriesOfEachKindAreStarted();
    void everyEpisodeHasItsNumbers();
    void oneEpisodeIsToComeWhateverDayItIs();
    void oneSeriesHasSeveralSeasons();
    void everyPictureIsThereInItsShape();
    void everyFilmAndSeriesHasAPictureOfItsOwn();
    void everyProgrammeOfOurGuideHasAStillOfItsCategory_data();
    void everyProgrammeOfOurGuideHasAStillOfItsCategory();
    void categoriesOfOtherGuidesHaveTheirStill_data();
    void categoriesOfOtherGuidesHaveTheirStill();
    void anUnknownCategoryHasAStillByTitle();
    void aProgrammeShowsItsPictureOrTheStill();
};

namespace {

const QDate today(2026, 5, 13);

QList<CatalogueEntry> entriesIn(const char *language)
{
    const Catalogue catalogue = ownCatalogue(QLatin1String(language), today);
    QList<CatalogueEntry> entries;
    for (int i = 0; i < catalogue.count(); ++i)
        entries.append(catalogue.entry(i));
    return entries;
}

qsizetype countOf(CatalogueEntry::Kind kind)
{
    const QList<CatalogueEntry> entries = entriesIn("en");
    return std::count_if(entries.cbegin(), entries.cend(),
                         [kind](const CatalogueEntry &entry) { return entry.kind == kind; });
}

// Null when there is no picture.
QSize sizeOf(const QUrl &url)
{
    QImageReader reader(u':' + url.path());
    return reader.read().size();
}

QString nameOf(const QUrl &url)
{
    return url.fileName().section(u'.', 0, 0);
}

} // namespace

void TestOwnCatalogue::itIsReadWithoutAProblem()
{
    const QString file = QStringLiteral(":/gallery/data/owncatalogue.json");
    QCOMPARE(readCatalogue(file, QStringLiteral("en")).messages(file), QStringList());
}

void TestOwnCatalogue::itHasFilmsSeriesAndEpisodes()
{
    QCOMPARE(countOf(CatalogueEntry::Kind::Film), 12);
    QCOMPARE(countOf(CatalogueEntry::Kind::Series), 4);
    QCOMPARE(countOf(CatalogueEntry::Kind::Episode), 13);
}

void TestOwnCatalogue::everyEntryHasItsTextsInEveryLanguage_data()
{
    QTest::addColumn<QByteArray>("language");
    for (const char *language : { "en", "de", "ru", "ar" })
        QTest::newRow(language) << QByteArray(language);
}

void TestOwnCatalogue::everyEntryHasItsTextsInEveryLanguage()
{
    QFETCH(QByteArray, language);
    const QList<CatalogueEntry> entries = entriesIn(language);
    QSet<QString> titles;
    for (const CatalogueEntry &entry : entries) {
        titles.insert(entry.title);
        QVERIFY2(!entry.subtitle.isEmpty(), qPrintable(entry.title));
        QVERIFY2(!entry.description.isEmpty(), qPrintable(entry.title));
        QVERIFY2(!entry.genre.isEmpty(), qPrintable(entry.title));
        QVERIFY2(!entry.rating.isEmpty(), qPrintable(entry.title));
        QVERIFY2(entry.kind == CatalogueEntry::Kind::Series || entry.duration > 0, qPrintable(entry.title));
    }
    QCOMPARE(titles.size(), entries.size());
}

void TestOwnCatalogue::everyTitleAndDescriptionIsTranslated()
{
    QSet<QString> texts;
    qsizetype all = 0;
    for (const char *language : { "en", "de", "ru", "ar" }) {
        const QList<CatalogueEntry> entries = entriesIn(language);
        for (const CatalogueEntry &entry : entries)
            texts << entry.title << entry.description;
        all += 2 * entries.size();
    }
    QCOMPARE(texts.size(), all);
}

void TestOwnCatalogue::someEntriesOfEachKindAreStarted()
{
    QHash<CatalogueEntry::Kind, int> started;
    const QList<CatalogueEntry> entries = entriesIn("en");
    for (const CatalogueEntry &entry : entries)
        started[entry.kind] += entry.isStarted() ? 1 : 0;
    QVERIFY(started[CatalogueEntry::Kind::Film] >= 3);
    QVERIFY(started[CatalogueEntry::Kind::Episode] >= 2);
}

void TestOwnCatalogue::everyEpisodeHasItsNumbers()
{
    const QList<CatalogueEntry> entries = entriesIn("en");
    for (const CatalogueEntry &entry : entries) {
        const bool isEpisode = entry.kind == CatalogueEntry::Kind::Episode;
        QCOMPARE(entry.season > 0, isEpisode);
        QCOMPARE(entry.episode > 0, isEpisode);
        QCOMPARE(entry.series >= 0, isEpisode);
    }
}

void TestOwnCatalogue::oneEpisodeIsToComeWhateverDayItIs()
{
    for (const QDate day : { QDate(2015, 11, 26), today, QDate(2040, 2, 29) }) {
        const Catalogue catalogue = ownCatalogue(QStringLiteral("en"), day);
        QList<QDate> releases;
        for (int i = 0; i < catalogue.count(); ++i) {
            if (catalogue.entry(i).release.isValid())
                releases.append(catalogue.entry(i).release);
        }
        QCOMPARE(releases, QList { day.addDays(9) });
    }
}

void TestOwnCatalogue::oneSeriesHasSeveralSeasons()
{
    QHash<int, QSet<int>> seasons;
    const QList<CatalogueEntry> entries = entriesIn("en");
    for (const CatalogueEntry &entry : entries)
        seasons[entry.series].insert(entry.season);
    seasons.remove(-1);
    QCOMPARE(std::count_if(seasons.cbegin(), seasons.cend(),
                           [](const QSet<int> &of) { return of.size() > 1; }),
             1);
}

void TestOwnCatalogue::everyPictureIsThereInItsShape()
{
    const QList<CatalogueEntry> entries = entriesIn("en");
    for (const CatalogueEntry &entry : entries) {
        QCOMPARE(sizeOf(entry.picture), QSize(400, 600));
        const bool isEpisode = entry.kind == CatalogueEntry::Kind::Episode;
        QCOMPARE(sizeOf(entry.still), isEpisode ? QSize(480, 270) : QSize(640, 360));
        QCOMPARE(sizeOf(entry.logo), QSize(120, 80));
    }
}

void TestOwnCatalogue::everyFilmAndSeriesHasAPictureOfItsOwn()
{
    QSet<QUrl> pictures;
    QSet<QUrl> stills;
    const QList<CatalogueEntry> entries = entriesIn("en");
    for (const CatalogueEntry &entry : entries) {
        pictures.insert(entry.picture);
        stills.insert(entry.still);
    }
    QCOMPARE(pictures.size(), 16); // episodes have that of their series
    QCOMPARE(stills.size(), entries.size());
}

void TestOwnCatalogue::everyProgrammeOfOurGuideHasAStillOfItsCategory_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : { "en", "de", "ru", "ar" })
        QTest::newRow(language) << language;
}

void TestOwnCatalogue::everyProgrammeOfOurGuideHasAStillOfItsCategory()
{
    QFETCH(QString, language);
    const QDateTime now = QDateTime::fromString(QStringLiteral("2026-05-13T20:05:00"), Qt::ISODate);
    const Guide english = ownGuide(now, QStringLiteral("en"));
    const Guide guide = ownGuide(now, language);
    QSet<QUrl> stills;
    for (int channel = 0; channel < guide.channelCount(); ++channel) {
        for (int i = 0; i < guide.programmeCount(channel); ++i) {
            const QUrl still = programmeStill(guide.programme(channel, i).category, QString());
            QCOMPARE(nameOf(still),
                     QLatin1String("still_") + english.programme(channel, i).category.toLower());
            stills.insert(still);
        }
    }
    QCOMPARE(stills.size(), 15);
    for (const QUrl &still : stills)
        QCOMPARE(sizeOf(still), QSize(480, 270));
}

void TestOwnCatalogue::categoriesOfOtherGuidesHaveTheirStill_data()
{
    QTest::addColumn<QString>("still");
    const auto row = [](const char *category, const char *still) { QTest::newRow(category) << still; };
    row("Movie", "still_film");
    row("TV Series", "still_series");
    row("Sports news", "still_sport");
    row("  CHILDREN'S film ", "still_children");
    row("Fußball", "still_sport");
    row("Spielfilm", "still_film");
    row("Dokumentation", "still_science");
    row("Художественный фильм", "still_film");
    row("Мультфильм", "still_children");
    row("أخبار", "still_news");
}

void TestOwnCatalogue::categoriesOfOtherGuidesHaveTheirStill()
{
    const QString category = QString::fromUtf8(QTest::currentDataTag());
    QTEST(nameOf(programmeStill(category, QString())), "still");
}

void TestOwnCatalogue::anUnknownCategoryHasAStillByTitle()
{
    QSet<QUrl> stills;
    for (const char *title : { "A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L" }) {
        const QUrl still = programmeStill(QStringLiteral("Sonstiges"), QLatin1String(title));
        QCOMPARE(programmeStill(QString(), QLatin1String(title)), still);
        QVERIFY(!sizeOf(still).isEmpty());
        stills.insert(still);
    }
    QVERIFY(stills.size() > 1);
}

void TestOwnCatalogue::aProgrammeShowsItsPictureOrTheStill()
{
    const QDateTime start = QDateTime::fromString(QStringLiteral("2026-05-13T20:05:00"), Qt::ISODate);
    const QUrl own(QStringLiteral("https://h/a.png"));
    NewProgramme programme;
    programme.channelId = QStringLiteral("c");
    programme.title = QStringLiteral("A");
    programme.category = QStringLiteral("Weather");
    GuideBuilder builder;
    for (const QUrl &picture : { own, QUrl() }) {
        programme.start = start.toSecsSinceEpoch() + (picture.isEmpty() ? 600 : 0);
        programme.picture = picture;
        builder.addProgramme(programme);
    }
    ProgrammeModel model;
    model.setGuide(builder.take());
    model.setChannel(0);
    model.setDate(start.date());
    QCOMPARE(model.index(0).data(ProgrammeModel::PictureRole).toUrl(), own);
    QCOMPARE(model.index(1).data(ProgrammeModel::PictureRole).toUrl(),
             programmeStill(programme.category, QString()));
}

STB_TEST_MAIN(TestOwnCatalogue)
#include "tst_owncatalogue.moc"
