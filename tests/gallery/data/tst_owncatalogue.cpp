// SPDX-License-Identifier: MIT
#include "gallery/data/cataloguereader.h"
#include "testkit/testcase.h"

#include <QtCore/qset.h>

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
};

namespace {

QList<CatalogueEntry> entriesIn(const char *language)
{
    const Catalogue catalogue = ownCatalogue(QLatin1String(language));
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
    QCOMPARE(countOf(CatalogueEntry::Kind::Episode), 10);
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

STB_TEST_MAIN(TestOwnCatalogue)
#include "tst_owncatalogue.moc"
