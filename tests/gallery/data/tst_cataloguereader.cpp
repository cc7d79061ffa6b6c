// SPDX-License-Identifier: MIT
#include "gallery/data/cataloguereader.h"
#include "testkit/testcase.h"

#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>

#include <sys/stat.h>

using namespace gallery;

class TestCatalogueReader : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void everyValueOfAFilmIsRead();
    void everyValueOfAnEpisodeIsRead();
    void anEpisodeTakesOverWhatItLacksFromItsSeries();
    void filmsComeBeforeSeriesAndEpisodesAfterTheirs();
    void aSubtitleIsMadeOfYearAndGenre_data();
    void aSubtitleIsMadeOfYearAndGenre();
    void textsAreInTheLanguageAskedFor_data();
    void textsAreInTheLanguageAskedFor();
    void aGenreWordStandsForItsText();
    void picturesStartAtTheCataloguesFolder_data();
    void picturesStartAtTheCataloguesFolder();
    void onePictureServesForTheOther();
    void aDayThatIsNoneIsToldAndIgnored_data();
    void aDayThatIsNoneIsToldAndIgnored();
    void aWrongValueIsToldAndIgnored_data();
    void aWrongValueIsToldAndIgnored();
    void anEntryThatCannotBeUsedIsToldAndLeftOut_data();
    void anEntryThatCannotBeUsedIsToldAndLeftOut();
    void aPositionAfterTheDurationIsKept();
    void aTextThatIsTooLongIsCut();
    void anUnknownKeyIsToldOnce();
    void theNumberOfProblemsKeptIsBounded();
    void tooManyEntriesAreLeftOut();
    void aFileThatIsNoCatalogueIsTold_data();
    void aFileThatIsNoCatalogueIsTold();
    void aFileThatCannotBeReadIsTold();
    void aFileThatIsTooLargeIsTold();
    void aPipeIsNotRead();
};

namespace {

CatalogueReport read(const QByteArray &json, const char *language = "en")
{
    return readCatalogue(json, QStringLiteral("/media/list.json"), QLatin1String(language));
}

// A catalogue of one film with a title and \a values.
CatalogueReport film(const QByteArray &values)
{
    return read(R"({"films":[{"title":"A",)" + values + "}]}");
}

CatalogueEntry firstOf(const CatalogueReport &report)
{
    return report.catalogue.isEmpty() ? CatalogueEntry() : report.catalogue.entry(0);
}

QStringList messages(const CatalogueReport &report)
{
    return report.messages(QStringLiteral("f.json"));
}

QStringList titles(const Catalogue &catalogue)
{
    QStringList all;
    for (int i = 0; i < catalogue.count(); ++i)
        all.append(catalogue.entry(i).title);
    return all;
}

} // namespace

void TestCatalogueReader::everyValueOfAFilmIsRead()
{
    const CatalogueReport report = film(
            R"("subtitle":"B","status":"C","description":"D","rating":"7+","genre":"E",
        "year":1993,"duration":5431.5,"position":17,"favourite":true,"picture":"http://h/p","still":"https://h/s",
        "logo":"qrc:/l")");
    QCOMPARE(messages(report), QStringList());
    QCOMPARE(report.outcome, CatalogueReport::Outcome::Complete);
    CatalogueEntry expected;
    expected.title = QStringLiteral("A");
    expected.subtitle = QStringLiteral("B");
    expected.status = QStringLiteral("C");
    expected.description = QStringLiteral("D");
    expected.rating = QStringLiteral("7+");
    expected.genre = QStringLiteral("E");
    expected.year = 1993;
    expected.duration = 5431.5;
    expected.position = 17;
    expected.favourite = true;
    expected.picture = QUrl(QStringLiteral("http://h/p"));
    expected.still = QUrl(QStringLiteral("https://h/s"));
    expected.logo = QUrl(QStringLiteral("qrc:/l"));
    QVERIFY(firstOf(report) == expected);
}

void TestCatalogueReader::everyValueOfAnEpisodeIsRead()
{
    const CatalogueReport report = read(R"({"series":[{"title":"S","episodes":[{"title":"A","subtitle":"B",
        "status":"C","description":"D","rating":"7+","genre":"E","year":1993,"duration":2431,"position":19,
        "favourite":true,"picture":"http://h/p","still":"https://h/s","logo":"qrc:/l","season":3,"episode":11,"release":"2031-12-09"}]}]})");
    QCOMPARE(messages(report), QStringList());
    QCOMPARE(report.catalogue.count(), 2);
    CatalogueEntry expected;
    expected.kind = CatalogueEntry::Kind::Episode;
    expected.title = QStringLiteral("A");
    expected.subtitle = QStringLiteral("B");
    expected.status = QStringLiteral("C");
    expected.description = QStringLiteral("D");
    expected.rating = QStringLiteral("7+");
    expected.genre = QStringLiteral("E");
    expected.year = 1993;
    expected.duration = 2431;
    expected.position = 19;
    expected.favourite = true;
    expected.picture = QUrl(QStringLiteral("http://h/p"));
    expected.still = QUrl(QStringLiteral("https://h/s"));
    expected.logo = QUrl(QStringLiteral("qrc:/l"));
    expected.season = 3;
    expected.episode = 11;
    expected.release = QDate(2031, 12, 9);
    expected.series = 0;
    QVERIFY(report.catalogue.entry(1) == expected);
}

void TestCatalogueReader::anEpisodeTakesOverWhatItLacksFromItsSeries()
{
    const CatalogueReport report = read(
            R"({"series":[{"title":"S","subtitle":"T","status":"U","description":"V",
        "rating":"7+","genre":"E","year":1993,"favourite":true,"picture":"http://h/p","still":"http://h/s",
        "logo":"http://h/l","episodes":[{"title":"A"},{"title":"B","still":"http://h/b"}]}]})");
    QCOMPARE(messages(report), QStringList());
    const CatalogueEntry bare = report.catalogue.entry(1);
    QCOMPARE(bare.rating, QStringLiteral("7+"));
    QCOMPARE(bare.genre, QStringLiteral("E"));
    QCOMPARE(bare.year, 1993);
    QCOMPARE(bare.logo, QUrl(QStringLiteral("http://h/l")));
    QCOMPARE(bare.picture, QUrl(QStringLiteral("http://h/p")));
    QCOMPARE(bare.still, QUrl(QStringLiteral("http://h/s")));
    QCOMPARE(bare.subtitle, QStringLiteral("S"));
    QCOMPARE(bare.status, QString());
    QCOMPARE(bare.description, QString());
    QVERIFY(!bare.favourite);
    const CatalogueEntry withStill = report.catalogue.entry(2);
    QCOMPARE(withStill.picture, QUrl(QStringLiteral("http://h/p")));
    QCOMPARE(withStill.still, QUrl(QStringLiteral("http://h/b")));
}

void TestCatalogueReader::filmsComeBeforeSeriesAndEpisodesAfterTheirs()
{
    const CatalogueReport report = read(R"({"series":[{"title":"S","episodes":[{"title":"S1"},{"title":"S2"}]},
        {"title":"T","episodes":[{"title":"T1"}]}],"films":[{"title":"F"},{"title":"G"}]})");
    QCOMPARE(titles(report.catalogue).join(u' '), QStringLiteral("F G S S1 S2 T T1"));
    QCOMPARE(report.catalogue.entry(4).series, 2);
    QCOMPARE(report.catalogue.entry(6).series, 5);
    QCOMPARE(report.catalogue.entry(2).series, -1);
}

void TestCatalogueReader::aSubtitleIsMadeOfYearAndGenre_data()
{
    QTest::addColumn<QByteArray>("values");
    QTest::addColumn<QString>("subtitle");
    QTest::newRow("both") << QByteArray(R"("year":1993,"genre":"Drama")")
                          << QString::fromUtf8("1993 · Drama");
    QTest::newRow("year") << QByteArray(R"("year":1993)") << "1993";
    QTest::newRow("genre") << QByteArray(R"("genre":"Drama")") << "Drama";
    QTest::newRow("neither") << QByteArray(R"("status":"x")") << "";
    QTest::newRow("its own") << QByteArray(R"("year":1993,"subtitle":"Own")") << "Own";
}

void TestCatalogueReader::aSubtitleIsMadeOfYearAndGenre()
{
    QFETCH(QByteArray, values);
    QTEST(firstOf(film(values)).subtitle, "subtitle");
}

void TestCatalogueReader::textsAreInTheLanguageAskedFor_data()
{
    QTest::addColumn<QByteArray>("texts");
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<QString>("title");
    const auto row = [](const char *name, const char *texts, const char *language, const char *title) {
        QTest::newRow(name) << QByteArray(texts) << QByteArray(language) << QString::fromLatin1(title);
    };
    const char *texts = R"({"en":"E","pt":"P","pt-BR":"B","fi":"F"})";
    row("the language", texts, "pt", "P");
    row("the region", texts, "pt_BR", "B");
    row("another region", texts, "pt-AO", "P");
    row("a region only there", R"({"en":"E","pt-BR":"B"})", "pt", "B");
    row("English instead", texts, "ru", "E");
    row("none asked for", texts, "", "E");
    row("any instead", R"({"fi":"F"})", "ru", "F");
    row("an empty one is none", R"({"en":"E","ru":" "})", "ru", "E");
    row("one for all", R"("O")", "ru", "O");
}

void TestCatalogueReader::textsAreInTheLanguageAskedFor()
{
    QFETCH(QByteArray, texts);
    QFETCH(QByteArray, language);
    const CatalogueReport report = read(R"({"films":[{"title":)" + texts + "}]}", language);
    QCOMPARE(messages(report), QStringList());
    QTEST(firstOf(report).title, "title");
}

void TestCatalogueReader::aGenreWordStandsForItsText()
{
    const QByteArray json = QByteArray(R"({"genres":{"драма":{"en":"Drama","de":"Schauspiel"}},"films":[
        {"title":"A","genre":"драма"},{"title":"B","genre":"Western"}]})");
    const CatalogueReport report = read(json, "de");
    QCOMPARE(messages(report), QStringList());
    QCOMPARE(report.catalogue.entry(0).genre, QStringLiteral("Schauspiel"));
    QCOMPARE(report.catalogue.entry(1).genre, QStringLiteral("Western"));
}

void TestCatalogueReader::picturesStartAtTheCataloguesFolder_data()
{
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<QString>("url");
    const auto row = [](const char *title, const char *catalogue, const char *address, const char *url) {
        QTest::newRow(title) << catalogue << QByteArray(address) << url;
    };
    row("relative", "/media/list.json", "p/a.png", "file:///media/p/a.png");
    row("above", "/media/films/list.json", "../a.png", "file:///media/a.png");
    row("absolute", "/media/list.json", "/else/a.png", "file:///else/a.png");
    row("odd characters", "/media/list.json", "a #1 50%.png", "file:///media/a %231 50%25.png");
    row("http", "/media/list.json", "http://h/a?b=c", "http://h/a?b=c");
    row("https", "/media/list.json", "https://h/a", "https://h/a");
    row("file", "/media/list.json", "file:///x/a.png", "file:///x/a.png");
    row("qrc", "/media/list.json", "qrc:/x/a.png", "qrc:/x/a.png");
    row("data", "/media/list.json", "data:image/png;base64,AAAA", "data:image/png;base64,AAAA");
    row("in the resources", ":/lists/list.json", "p/a.png", "qrc:/lists/p/a.png");
}

void TestCatalogueReader::picturesStartAtTheCataloguesFolder()
{
    QFETCH(QString, catalogue);
    QFETCH(QByteArray, address);
    const QByteArray json = R"({"films":[{"title":"A","picture":")" + address + "\"}]}";
    const CatalogueReport report = readCatalogue(json, catalogue, QString());
    QCOMPARE(messages(report), QStringList());
    QTEST(firstOf(report).picture.toString(), "url");
}

void TestCatalogueReader::onePictureServesForTheOther()
{
    const QUrl url(QStringLiteral("http://h/a"));
    const CatalogueEntry withPicture = firstOf(film(R"("picture":"http://h/a")"));
    const CatalogueEntry withStill = firstOf(film(R"("still":"http://h/a")"));
    QCOMPARE(withPicture.still, url);
    QCOMPARE(withStill.picture, url);
}

void TestCatalogueReader::aDayThatIsNoneIsToldAndIgnored_data()
{
    QTest::addColumn<QString>("found");
    QTest::newRow("\"2031-02-29\"") << "\"2031-02-29\"";
    QTest::newRow("\"2031-12-09 or so\"") << "\"2031-12-09 or so\"";
    QTest::newRow("\"2031-1-1\"") << "\"2031-1-1\"";
    QTest::newRow("\"\"") << "\"\"";
    QTest::newRow("20311209") << "20311209";
    QTest::newRow("{}") << "an object";
}

void TestCatalogueReader::aDayThatIsNoneIsToldAndIgnored()
{
    QFETCH(QString, found);
    const QByteArray value = QTest::currentDataTag();
    const CatalogueReport report = read(R"({"series":[{"title":"S","episodes":[{"title":"A","release":)"
                                        + value + "}]}]}");
    QCOMPARE(messages(report),
             QStringList(QStringLiteral("f.json: series[0].episodes[0].release: expected a day such as "
                                        "\"2026-03-31\", found %1; it is ignored")
                                 .arg(found)));
    QVERIFY(!report.catalogue.entry(1).release.isValid());
}

void TestCatalogueReader::aWrongValueIsToldAndIgnored_data()
{
    QTest::addColumn<QByteArray>("values");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *values, const char *message) {
        QTest::newRow(values) << QByteArray(values)
                              << QStringLiteral("f.json: films[0].") + QString::fromUtf8(message)
                                         + QStringLiteral("; it is ignored");
    };
    row(R"("duration":"long")", "duration: expected seconds from 0 to 604800, found \"long\"");
    row(R"("duration":-1)", "duration: expected seconds from 0 to 604800, found -1");
    row(R"("duration":1e308)", "duration: expected seconds from 0 to 604800, found 1e+308");
    row(R"("position":604801)", "position: expected seconds from 0 to 604800, found 604801");
    row(R"("position":null)", "position: expected seconds from 0 to 604800, found null");
    row(R"("year":1799)", "year: expected a year from 1800 to 2200, found 1799");
    row(R"("year":1999.5)", "year: expected a year from 1800 to 2200, found 1999.5");
    row(R"("favourite":1)", "favourite: expected true or false, found 1");
    row(R"("favourite":"yes")", "favourite: expected true or false, found \"yes\"");
    row(R"("rating":12)", "rating: expected a text, or texts by language, found 12");
    row(R"("genre":false)", "genre: expected a text, or texts by language, found false");
    row(R"("subtitle":["a"])", "subtitle: expected a text, or texts by language, found a list");
    row(R"("status":{"de":7})", "status.de: expected a text, found 7");
    const char *address =
            "expected a path, or an address that begins with http, https, file, qrc or data, found ";
    row(R"("picture":{})", qPrintable(QStringLiteral("picture: ") + QLatin1String(address) + "an object"));
    row(R"("still":"")", qPrintable(QStringLiteral("still: ") + QLatin1String(address) + "\"\""));
    row(R"("logo":"ftp://h/a")",
        qPrintable(QStringLiteral("logo: ") + QLatin1String(address) + "\"ftp://h/a\""));
}

void TestCatalogueReader::aWrongValueIsToldAndIgnored()
{
    QFETCH(QByteArray, values);
    QFETCH(QString, message);
    const CatalogueReport report = film(values);
    QCOMPARE(messages(report), QStringList(message));
    QCOMPARE(report.problemCount, 1);
    QCOMPARE(report.skippedEntries, 0);
    CatalogueEntry bare;
    bare.title = QStringLiteral("A");
    QVERIFY(firstOf(report) == bare);
}

void TestCatalogueReader::anEntryThatCannotBeUsedIsToldAndLeftOut_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *entry, const char *message) {
        QTest::newRow(entry) << QByteArray(entry) << QString::fromLatin1(message);
    };
    row("{}", "films[1].title: expected a text, found nothing; the entry is left out");
    row(R"({"title":" "})", "films[1].title: expected a text, found \" \"; the entry is left out");
    row(R"({"title":{}})", "films[1].title: expected a text, found an object; the entry is left out");
    row(R"({"title":5})", "films[1].title: expected a text, or texts by language, found 5; it is ignored");
    row("7", "films[1]: expected an object, found 7; the entry is left out");
    row("null", "films[1]: expected an object, found null; the entry is left out");
}

void TestCatalogueReader::anEntryThatCannotBeUsedIsToldAndLeftOut()
{
    QFETCH(QByteArray, entry);
    QFETCH(QString, message);
    const CatalogueReport report = read(R"({"films":[{"title":"A"},)" + entry + R"(,{"title":"C"}]})");
    QCOMPARE(titles(report.catalogue).join(u' '), QStringLiteral("A C"));
    QCOMPARE(messages(report), QStringList(QStringLiteral("f.json: ") + message));
    QCOMPARE(report.skippedEntries, 1);
}

void TestCatalogueReader::aPositionAfterTheDurationIsKept()
{
    const CatalogueReport report = film(R"("duration":100,"position":101)");
    QCOMPARE(messages(report), QStringList());
    QCOMPARE(firstOf(report).position, 101);
    QVERIFY(!firstOf(report).isStarted());
}

void TestCatalogueReader::aTextThatIsTooLongIsCut()
{
    const CatalogueReport report = film("\"description\":\"" + QByteArray(4001, 'x') + "\"");
    QCOMPARE(firstOf(report).description, QString(4000, u'x'));
    QCOMPARE(messages(report), QStringList(QStringLiteral(
                                       "f.json: films[0].description: expected at most 4000 characters, found "
                                       "4001; the rest is left out")));
    QCOMPARE(film("\"description\":\"" + QByteArray(4000, 'x') + "\"").problemCount, 0);
}

void TestCatalogueReader::anUnknownKeyIsToldOnce()
{
    const CatalogueReport report = read(R"({"extra":1,"series":[{"title":"S","durration":1,
        "episodes":[{"title":"A","sason":1}]}]})");
    const QStringList lines = messages(report);
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[0], QStringLiteral("f.json: extra: this key is not known, expected one of films, series, "
                                      "genres; it is ignored"));
    QVERIFY(lines[1].startsWith(QStringLiteral("f.json: series[0].durration: this key is not known, ")));
    QVERIFY(lines[2].startsWith(
            QStringLiteral("f.json: series[0].episodes[0].sason: this key is not known, ")));
    QCOMPARE(report.catalogue.count(), 2);
}

void TestCatalogueReader::theNumberOfProblemsKeptIsBounded()
{
    QByteArray films;
    for (int i = 0; i < 50; ++i)
        films += R"({"title":"A","year":0},)";
    films.chop(1);
    const CatalogueReport report = read("{\"films\":[" + films + "]}");
    QCOMPARE(report.problems.size(), 20);
    QCOMPARE(report.problemCount, 50);
    QCOMPARE(messages(report).size(), 21);
    QCOMPARE(messages(report).constLast(), QStringLiteral("f.json: and 30 more problems"));
    QCOMPARE(report.catalogue.count(), 50);
}

void TestCatalogueReader::tooManyEntriesAreLeftOut()
{
    QByteArray films;
    for (int i = 0; i < 5003; ++i)
        films += R"({"title":"A"},)";
    films.chop(1);
    const CatalogueReport report = read("{\"films\":[" + films + "]}");
    QCOMPARE(report.catalogue.count(), 5000);
    QCOMPARE(report.skippedEntries, 3);
    QCOMPARE(messages(report),
             QStringList(QStringLiteral(
                     "f.json: films[5000]: a catalogue has at most 5000 entries; this and those "
                     "after it are left out")));
}

void TestCatalogueReader::aFileThatIsNoCatalogueIsTold_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray("") << "the file is empty";
    QTest::newRow("blank") << QByteArray(" \n ") << "the file is empty";
    QTest::newRow("cut off") << QByteArray("{\n  \"films\": [") << "line 2, column ";
    QTest::newRow("text") << QByteArray("hello") << "line 1, column ";
    QTest::newRow("a list") << QByteArray("[]") << "is no catalogue";
    QTest::newRow("other JSON") << QByteArray(R"({"colors":{}})") << "is no catalogue";
    QTest::newRow("very deep") << QByteArray(100000, '[') << "line 1, column ";
}

void TestCatalogueReader::aFileThatIsNoCatalogueIsTold()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, reason);
    const CatalogueReport report = read(json);
    QCOMPARE(report.outcome, CatalogueReport::Outcome::Unreadable);
    QVERIFY2(report.error.startsWith(QStringLiteral("/media/list.json: ") + reason), qPrintable(report.error));
    QVERIFY(report.error.endsWith(
            QStringLiteral("; expected a catalogue in JSON format with \"films\" or \"series\"")));
    QCOMPARE(report.messages(QStringLiteral("x")), QStringList(report.error));
    QVERIFY(report.catalogue.isEmpty());
}

void TestCatalogueReader::aFileThatCannotBeReadIsTold()
{
    QTemporaryDir folder;
    const QString missing = folder.filePath(QStringLiteral("none.json"));
    QVERIFY(readCatalogue(missing, QString()).error.startsWith(missing + QStringLiteral(": no such file; ")));
    QVERIFY(readCatalogue(folder.path(), QString())
                    .error.startsWith(folder.path() + QStringLiteral(": is a folder")));
}

void TestCatalogueReader::aFileThatIsTooLargeIsTold()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("large.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"films":[{"title":"A"}]})");
    QVERIFY(file.resize(CatalogueReport::maximumFileSize + 1));
    file.close();
    QVERIFY(readCatalogue(file.fileName(), QString())
                    .error.startsWith(file.fileName() + QStringLiteral(": is larger than 8 MB; ")));
}

void TestCatalogueReader::aPipeIsNotRead()
{
    QTemporaryDir folder;
    const QString pipe = folder.filePath(QStringLiteral("pipe.json"));
    QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
    QVERIFY(readCatalogue(pipe, QString()).error.startsWith(pipe + QStringLiteral(": is no ordinary file; ")));
}

STB_TEST_MAIN(TestCatalogueReader)
#include "tst_cataloguereader.moc"
