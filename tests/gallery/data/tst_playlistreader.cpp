// SPDX-License-Identifier: MIT
#include "gallery/data/playlistreader.h"
#include "testkit/testcase.h"

#include <QtCore/qfile.h>
#include <QtCore/qstringconverter.h>
#include <QtCore/qtemporarydir.h>

using namespace gallery;

class TestPlaylistReader : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aWholeEntryGivesAllItsFields();
    void valuesHaveCommasAndQuotesInThem_data();
    void valuesHaveCommasAndQuotesInThem();
    void aBrokenEntryIsToldOnceAndUsed_data();
    void aBrokenEntryIsToldOnceAndUsed();
    void linesEndInAnyWay_data();
    void linesEndInAnyWay();
    void everyEncodingIsRead_data();
    void everyEncodingIsRead();
    void aFileWithoutHeaderIsReadAndToldOnce();
    void directivesAndBlankLinesAreSkipped();
    void addressesKeepTheirBlanks();
    void anEntryWithoutAddressIsLeftOut();
    void anAddressWithoutEntryIsNamedByItsLastPart();
    void aLineThatIsNothingIsLeftOut();
    void anEntryWaitsForItsAddressOverPlainTexts();
    void anEntryDoesNotWaitForEver();
    void anAddressMayDoWithoutAScheme_data();
    void anAddressMayDoWithoutAScheme();
    void aRepeatedIdStaysAndIsTold();
    void aRepeatedNumberIsIgnored();
    void anEqualChannelIsThereOnce();
    void withoutAnyNumberPlacesCount();
    void longTextsAreCut();
    void moreChannelsThanTheLimitAreLeftOut();
    void aLargerFileIsReadUpToTheLimit();
    void moreProblemsThanTheLimitAreCounted();
    void aParentCodeLocksTheChannel_data();
    void aParentCodeLocksTheChannel();
    void logosStartAtThePlaylistsFolder();
    void whatIsNoPlaylistGivesOneMessage_data();
    void whatIsNoPlaylistGivesOneMessage();
    void whatIsNoOrdinaryFileIsNotRead();
    void messagesNameFileAndLine();
    void theLastWordOfANameTellsTheQuality_data();
    void theLastWordOfANameTellsTheQuality();
    void aNameWithoutItsQualityKeepsTheRest_data();
    void aNameWithoutItsQualityKeepsTheRest();
};

namespace {

PlaylistReport read(const QByteArray &file)
{
    return readPlaylist(file, QStringLiteral("test.m3u"));
}

QByteArray list(const QByteArray &body)
{
    return "#EXTM3U\n" + body;
}

PlaylistReport readEntry(const QByteArray &entry)
{
    return read(list(entry + "\nhttp://example.org/stream\n"));
}

QStringList problems(const PlaylistReport &report)
{
    QStringList lines;
    for (const PlaylistProblem &problem : report.problems)
        lines.append(QString::number(problem.line) + QLatin1String(": ") + problem.text);
    return lines;
}

QStringList names(const PlaylistReport &report)
{
    QStringList names;
    for (const PlaylistChannel &channel : report.playlist)
        names.append(channel.name);
    return names;
}

} // namespace

void TestPlaylistReader::aWholeEntryGivesAllItsFields()
{
    const PlaylistReport report = readEntry(
            R"(#EXTINF:-1 tvg-id="one.example" tvg-name="One Guide" tvg-logo="https://example.org/l.png" )"
            R"(tvg-chno="7-1" group-title="News" other="x",One HD)");
    QCOMPARE(problems(report), QStringList());
    QCOMPARE(report.outcome, PlaylistReport::Outcome::Complete);
    QCOMPARE(report.playlist.size(), 1);
    const PlaylistChannel &channel = report.playlist.constFirst();
    QCOMPARE(channel.id, QStringLiteral("one.example"));
    QCOMPARE(channel.guideName, QStringLiteral("One Guide"));
    QCOMPARE(channel.name, QStringLiteral("One HD"));
    QCOMPARE(channel.number, QStringLiteral("7-1"));
    QCOMPARE(channel.group, QStringLiteral("News"));
    QCOMPARE(channel.quality, QStringLiteral("HD"));
    QCOMPARE(channel.logo, QUrl(QStringLiteral("https://example.org/l.png")));
    QCOMPARE(channel.address, QStringLiteral("http://example.org/stream"));
}

void TestPlaylistReader::valuesHaveCommasAndQuotesInThem_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *what, const char *entry, const char *group, const char *name) {
        QTest::newRow(what) << QByteArray(entry) << QString::fromUtf8(group) << QString::fromUtf8(name);
    };
    row("comma", R"(#EXTINF:-1 group-title="News, Talk",One)", "News, Talk", "One");
    row("comma in the name", R"(#EXTINF:-1 group-title="A",One, Two)", "A", "One, Two");
    row("quotes", R"(#EXTINF:-1 group-title="The "Best" News" tvg-chno="3",One)", "The \"Best\" News", "One");
    row("escaped", R"(#EXTINF:-1 group-title="The \"Best\"" ,One)", "The \"Best\"", "One");
    row("single", R"(#EXTINF:-1 group-title='Kids' tvg-chno='3',One)", "Kids", "One");
    row("apostrophe", R"(#EXTINF:-1 group-title='Kid's own',One)", "Kid's own", "One");
    row("double in single", R"(#EXTINF:-1 group-title='a "b", c',One)", "a \"b\", c", "One");
    row("bare", R"(#EXTINF:-1 group-title=News tvg-chno=3,One)", "News", "One");
    row("no blank between", R"(#EXTINF:-1 group-title="A"tvg-chno="3",One)", "A", "One");
    row("empty", R"(#EXTINF:-1 group-title="" tvg-chno="",One)", "", "One");
    row("quotes in the name", R"(#EXTINF:-1 group-title="A",The "One")", "A", "The \"One\"");
    row("capital key", R"(#extinf:-1 Group-Title="A",One)", "A", "One");
    row("blanks", "#EXTINF: -1\t group-title=\" A  B \"  ,  One   Two  ", "A B", "One Two");
    row("decimal duration", R"(#EXTINF:12.5 group-title="A",One)", "A", "One");
    row("no attributes", "#EXTINF:0,One", "", "One");
}

void TestPlaylistReader::valuesHaveCommasAndQuotesInThem()
{
    QFETCH(QByteArray, entry);
    const PlaylistReport report = readEntry(entry);
    QCOMPARE(problems(report), QStringList());
    QCOMPARE(report.playlist.size(), 1);
    QTEST(report.playlist.constFirst().group, "group");
    QTEST(report.playlist.constFirst().name, "name");
}

void TestPlaylistReader::aBrokenEntryIsToldOnceAndUsed_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *entry, const char *name, const char *group, const char *problem) {
        QTest::newRow(problem) << QByteArray(entry) << QString::fromUtf8(name) << QString::fromUtf8(group)
                               << QString::fromUtf8(problem);
    };
    row(R"(#EXTINF:-1 group-title="A,One)", "One", "A", "the value of group-title has no closing quote");
    row(R"(#EXTINF:-1 tvg-name="B group-title="A",One)", "One", "A",
        "the value of tvg-name has no closing quote");
    row(R"(#EXTINF:-1 group-title="A" One Two)", "One Two", "A", "there is no comma before the name");
    row(R"(#EXTINF:-1 group-title="A" odd,One)", "One", "A", "\"odd,One\" is no attribute");
    row(R"(#EXTINF group-title="A",One)", "One", "A", "expected a duration, found \"group-title=\"A\",One\"");
    row(R"(#EXTINF:-1 group-title="A" group-title="B",One)", "One", "A",
        "group-title is there twice; the first counts");
    row(R"(#EXTINF:-1 tvg-chno="none",One)", "One", "",
        "tvg-chno \"none\" is no channel number of up to 9 characters; it is ignored");
    row(R"(#EXTINF:-1 tvg-chno="-5",One)", "One", "",
        "tvg-chno \"-5\" is no channel number of up to 9 characters; it is ignored");
    row(R"(#EXTINF:-1 tvg-chno="99999999999999999999",One)", "One", "",
        "tvg-chno \"99999999999999999999\" is no channel number of up to 9 characters; it is ignored");
    row(R"(#EXTINF:-1 tvg-logo="nowhere.png",One)", "One", "",
        "tvg-logo \"nowhere.png\" is neither a web address nor a file; it is ignored");
    row(R"(#EXTINF:-1 tvg-logo="file:///a%00b",One)", "One", "",
        "tvg-logo \"file:///a%00b\" is neither a web address nor a file; it is ignored");
    row(R"(#EXTINF:-1 tvg-id="one.example",)", "one.example", "",
        "there is no name; the channel is called \"one.example\"");
    row("#EXTINF:-1", "stream", "", "there is no name; the channel is called \"stream\"");
    row(R"(#EXTINF:-1,One group-title="A")", "One", "A", "attributes stand behind the comma");
    row(R"(#EXTINF:-1,group-title="A" tvg-id="b",One, Two)", "One, Two", "A",
        "attributes stand behind the comma");
    row(R"(#EXTINF:-1 group-title="A",One group-title="B",Two)", "One", "A",
        "attributes stand behind the comma; group-title is there twice; the first counts");
    row(R"(#EXTINF:x,One)", "One", "", "expected a duration, found \"x,One\"; \"x,One\" is no attribute");
}

void TestPlaylistReader::aBrokenEntryIsToldOnceAndUsed()
{
    QFETCH(QByteArray, entry);
    QFETCH(QString, problem);
    const PlaylistReport report = readEntry(entry);
    QCOMPARE(problems(report), QStringList(QLatin1String("2: ") + problem));
    QCOMPARE(report.problemCount, 1);
    QCOMPARE(report.playlist.size(), 1);
    QTEST(report.playlist.constFirst().name, "name");
    QTEST(report.playlist.constFirst().group, "group");
}

void TestPlaylistReader::linesEndInAnyWay_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("line feed") << QByteArray("\n");
    QTest::newRow("both") << QByteArray("\r\n");
    QTest::newRow("carriage return") << QByteArray("\r");
}

void TestPlaylistReader::linesEndInAnyWay()
{
    QFETCH(QByteArray, end);
    QByteArray file = list("#EXTINF:-1,One\nhttp://a\n\n#EXTINF:-1,Two\nhttp://b\nodd");
    const PlaylistReport report = read(file.replace('\n', end));
    QCOMPARE(names(report), QStringList({ QStringLiteral("One"), QStringLiteral("Two") }));
    QCOMPARE(report.playlist.constLast().address, QStringLiteral("http://b"));
    QCOMPARE(problems(report),
             QStringList(QStringLiteral(
                     "7: expected #EXTINF or an address, found \"odd\"; the line is left out")));
}

void TestPlaylistReader::everyEncodingIsRead_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("told");
    const QString text = QStringLiteral("#EXTM3U\n#EXTINF:-1,Télé\nhttp://a\n#EXTINF:-1,Früh\nhttp://b\n");
    const auto encoded = [&text](QStringConverter::Encoding encoding, QStringConverter::Flags flags) {
        QStringEncoder encoder(encoding, flags);
        return QByteArray(encoder(text));
    };
    const auto plain = QStringConverter::Flag::Default;
    const auto mark = QStringConverter::Flag::WriteBom;
    QTest::newRow("UTF-8") << text.toUtf8() << QStringList();
    QTest::newRow("UTF-8 with mark") << encoded(QStringConverter::Utf8, mark) << QStringList();
    QTest::newRow("UTF-16LE") << encoded(QStringConverter::Utf16LE, plain) << QStringList();
    QTest::newRow("UTF-16LE with mark") << encoded(QStringConverter::Utf16LE, mark) << QStringList();
    QTest::newRow("UTF-16BE") << encoded(QStringConverter::Utf16BE, plain) << QStringList();
    QTest::newRow("UTF-16BE with mark") << encoded(QStringConverter::Utf16BE, mark) << QStringList();
    const QStringList told { QStringLiteral("2: the line is no UTF-8; it is read as Latin-1"),
                             QStringLiteral("4: the line is no UTF-8; it is read as Latin-1") };
    QTest::newRow("Latin-1") << text.toLatin1() << told;
    QTest::newRow("Latin-1 in lines that are skipped")
            << QByteArray("#EXTM3U\n# \xe9\n" + text.toUtf8().mid(8)) << QStringList();
    QByteArray mixed = text.toUtf8();
    mixed.replace("Télé", "T\xe9l\xe9");
    QTest::newRow("Latin-1 and UTF-8") << mixed << told.mid(0, 1);
}

void TestPlaylistReader::everyEncodingIsRead()
{
    QFETCH(QByteArray, file);
    const PlaylistReport report = read(file);
    QCOMPARE(names(report), QStringList({ QStringLiteral("Télé"), QStringLiteral("Früh") }));
    QTEST(problems(report), "told");
}

void TestPlaylistReader::aFileWithoutHeaderIsReadAndToldOnce()
{
    const PlaylistReport report = read("#EXTINF:-1,One\nhttp://a\n#EXTINF:-1,Two\nhttp://b\n");
    QCOMPARE(names(report), QStringList({ QStringLiteral("One"), QStringLiteral("Two") }));
    QCOMPARE(problems(report), QStringList(QStringLiteral("1: expected #EXTM3U before anything else")));
}

void TestPlaylistReader::directivesAndBlankLinesAreSkipped()
{
    const PlaylistReport report = read(
            "#EXTM3U url-tvg=\"x\"\n\n#EXTINF:-1,One\n#EXTGRP:News\n \t\n"
            "#EXTVLCOPT:network-caching=1000\n#KODIPROP:a=b\n# a remark\nhttp://a\n");
    QCOMPARE(names(report), QStringList(QStringLiteral("One")));
    QCOMPARE(report.playlist.constFirst().group, QString());
    QCOMPARE(problems(report), QStringList());
}

void TestPlaylistReader::addressesKeepTheirBlanks()
{
    const PlaylistReport report = read(list("#EXTINF:-1,One\n  http://a/my  stream.ts \n"));
    QCOMPARE(report.playlist.constFirst().address, QStringLiteral("http://a/my  stream.ts"));
    QCOMPARE(problems(report), QStringList());
}

void TestPlaylistReader::anEntryWithoutAddressIsLeftOut()
{
    const PlaylistReport report = read(
            list("#EXTINF:-1 odd,One\n#EXTINF:-1,Two\nhttp://b\n#EXTINF:-1,Three\n"));
    QCOMPARE(names(report), QStringList(QStringLiteral("Two")));
    QCOMPARE(problems(report),
             QStringList(
                     { QStringLiteral(
                               "2: \"odd,One\" is no attribute; no address follows; the channel is left out"),
                       QStringLiteral("5: no address follows; the channel is left out") }));
}

void TestPlaylistReader::anAddressWithoutEntryIsNamedByItsLastPart()
{
    const PlaylistReport report = read(list("http://example.org/a/one.ts?x=/y\nudp://@239.0.0.1:1234/\n"));
    QCOMPARE(names(report), QStringList({ QStringLiteral("one.ts"), QStringLiteral("@239.0.0.1:1234") }));
    QCOMPARE(report.problemCount, 2);
    QCOMPARE(problems(report).constFirst(),
             QStringLiteral(
                     "2: there is no #EXTINF before the address; there is no name; the channel is called "
                     "\"one.ts\""));
}

void TestPlaylistReader::aLineThatIsNothingIsLeftOut()
{
    const PlaylistReport report = read(list("\x1b[31m<html>\n#EXTINF:-1,One\nhttp://a\n"));
    QCOMPARE(names(report), QStringList(QStringLiteral("One")));
    QCOMPARE(problems(report),
             QStringList(QStringLiteral(
                     "2: expected #EXTINF or an address, found \"\ufffd[31m<html>\"; the line is "
                     "left out")));
}

void TestPlaylistReader::anEntryWaitsForItsAddressOverPlainTexts()
{
    const PlaylistReport report = read(
            list("#EXTINF:-1 tvg-chno=\"x\",One\n# remark\nlorem ipsum\nhttp://a\n"));
    QCOMPARE(names(report), QStringList(QStringLiteral("One")));
    QCOMPARE(report.playlist.constFirst().address, QStringLiteral("http://a"));
    QCOMPARE(problems(report),
             QStringList(
                     { QStringLiteral(
                               "2: tvg-chno \"x\" is no channel number of up to 9 characters; it is ignored"),
                       QStringLiteral("4: expected #EXTINF or an address, found \"lorem ipsum\"; the line "
                                      "is left out") }));
}

void TestPlaylistReader::anEntryDoesNotWaitForEver()
{
    const PlaylistReport report = read(list("#EXTINF:-1,One\n" + QByteArray("text\n").repeated(5000)
                                            + "http://a\n#EXTINF:-1,Two\nhttp://b\n"));
    QCOMPARE(names(report), QStringList({ QStringLiteral("a"), QStringLiteral("Two") }));
    // Each text, the entry, and the address without one.
    QCOMPARE(report.problemCount, 5002);
    QVERIFY(problems(report).constFirst().startsWith(QLatin1String("2: no address follows")));
}

void TestPlaylistReader::anAddressMayDoWithoutAScheme_data()
{
    QTest::addColumn<QByteArray>("address");
    for (const char *address : { "one.ts", "/media/one two", "folder/one", "rtp:@239.0.0.1", "C:\\tv\\one" })
        QTest::newRow(address) << QByteArray(address);
}

void TestPlaylistReader::anAddressMayDoWithoutAScheme()
{
    QFETCH(QByteArray, address);
    const PlaylistReport report = read(list("#EXTINF:-1,One\n" + address + "\n"));
    QCOMPARE(report.playlist.size(), 1);
    QCOMPARE(report.playlist.constFirst().address, QString::fromUtf8(address));
    QCOMPARE(problems(report), QStringList());
}

void TestPlaylistReader::aRepeatedIdStaysAndIsTold()
{
    const PlaylistReport report = read(
            list("#EXTINF:-1 tvg-id=\"a\",One\nhttp://a\n#EXTINF:-1 tvg-id=\"a\",One HD\nhttp://b\n"));
    QCOMPARE(names(report), QStringList({ QStringLiteral("One"), QStringLiteral("One HD") }));
    QCOMPARE(report.playlist.constLast().id, QStringLiteral("a"));
    QCOMPARE(problems(report),
             QStringList(
                     QStringLiteral("4: tvg-id \"a\" is that of line 2 too; both show the same programmes")));
}

void TestPlaylistReader::aRepeatedNumberIsIgnored()
{
    const PlaylistReport report = read(
            list("#EXTINF:-1 tvg-chno=\"007\",One\nhttp://a\n#EXTINF:-1 tvg-chno=7,Two\nhttp://b\n"));
    QCOMPARE(report.playlist.constFirst().number, QStringLiteral("7"));
    QCOMPARE(report.playlist.constLast().number, QString());
    QCOMPARE(problems(report),
             QStringList(QStringLiteral("4: tvg-chno \"7\" is that of line 2 already; it is ignored")));
}

void TestPlaylistReader::anEqualChannelIsThereOnce()
{
    const PlaylistReport report = read(list("#EXTINF:-1 tvg-id=a tvg-chno=3,One\nhttp://a\n"
                                            "#EXTINF:-1 tvg-id=a tvg-chno=3,One\nhttp://a\n"));
    QCOMPARE(names(report), QStringList(QStringLiteral("One")));
    QCOMPARE(problems(report),
             QStringList(
                     QStringLiteral("4: the channel is there with the same address before; it is left out")));
}

void TestPlaylistReader::withoutAnyNumberPlacesCount()
{
    const PlaylistReport report = read(list("#EXTINF:-1,One\nhttp://a\n#EXTINF:-1,Two\nhttp://b\n"));
    QCOMPARE(report.playlist.constFirst().number, QStringLiteral("1"));
    QCOMPARE(report.playlist.constLast().number, QStringLiteral("2"));
    const PlaylistReport some = read(list("#EXTINF:-1,One\nhttp://a\n#EXTINF:-1 tvg-chno=1,Two\nhttp://b\n"));
    QCOMPARE(some.playlist.constFirst().number, QString());
    QCOMPARE(some.playlist.constLast().number, QStringLiteral("1"));
}

void TestPlaylistReader::longTextsAreCut()
{
    const QByteArray text(100000, 'x');
    const PlaylistReport report = readEntry("#EXTINF:-1 group-title=\"" + text + "\"," + text);
    QCOMPARE(report.playlist.constFirst().name.size(), 300);
    QCOMPARE(report.playlist.constFirst().group.size(), 300);
    QCOMPARE(problems(report),
             QStringList(QStringLiteral(
                     "2: group-title has 100000 characters; the rest is left out; the name has "
                     "100000 characters; the rest is left out")));
    const PlaylistReport address = read(
            list("#EXTINF:-1,One\nhttp://" + text + "\n#EXTINF:-1,Two\nhttp://b\n"));
    QCOMPARE(names(address), QStringList(QStringLiteral("Two")));
    QCOMPARE(problems(address),
             QStringList(QStringLiteral("3: the address has 100007 characters; its channel is left out")));
}

void TestPlaylistReader::moreChannelsThanTheLimitAreLeftOut()
{
    QByteArray file = list({});
    for (int i = 0; i < PlaylistReport::maximumChannels + 7; ++i)
        file += "#EXTINF:-1,One\nhttp://" + QByteArray::number(i) + '\n';
    const PlaylistReport report = read(file);
    QCOMPARE(report.playlist.size(), PlaylistReport::maximumChannels);
    QCOMPARE(problems(report),
             QStringList(QStringLiteral("20003: there are more than 10000 channels; the rest is left out")));
}

void TestPlaylistReader::aLargerFileIsReadUpToTheLimit()
{
    QByteArray file = list("#EXTINF:-1,One\nhttp://a\n");
    const QByteArray remark = "#" + QByteArray(1000, 'x') + '\n';
    while (file.size() <= PlaylistReport::maximumFileSize)
        file += remark;
    file += "#EXTINF:-1,Two\nhttp://b\n";
    const PlaylistReport report = read(file);
    QCOMPARE(names(report), QStringList(QStringLiteral("One")));
    QCOMPARE(report.problemCount, 1);
    QVERIFY(report.problems.constFirst().text.contains(QLatin1String("larger than 16 MB")));
}

void TestPlaylistReader::moreProblemsThanTheLimitAreCounted()
{
    const PlaylistReport report = read(list(QByteArray("odd\n").repeated(57) + "#EXTINF:-1,One\nhttp://a\n"));
    QCOMPARE(report.playlist.size(), 1);
    QCOMPARE(report.problemCount, 57);
    QCOMPARE(report.problems.size(), PlaylistReport::maximumProblems);
    QCOMPARE(report.messages(QStringLiteral("f")).size(), PlaylistReport::maximumProblems + 1);
    QCOMPARE(report.messages(QStringLiteral("f")).constLast(), QStringLiteral("f: and 37 more problems"));
}

void TestPlaylistReader::aParentCodeLocksTheChannel_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<bool>("locked");
    QTest::newRow("code") << QByteArray(R"(#EXTINF:-1 parent-code="1234",One)") << true;
    QTest::newRow("empty") << QByteArray(R"(#EXTINF:-1 parent-code="",One)") << false;
    QTest::newRow("none") << QByteArray("#EXTINF:-1,One") << false;
}

void TestPlaylistReader::aParentCodeLocksTheChannel()
{
    QFETCH(QByteArray, entry);
    const PlaylistReport report = readEntry(entry);
    QCOMPARE(problems(report), QStringList());
    QTEST(report.playlist.constFirst().locked, "locked");
}

void TestPlaylistReader::logosStartAtThePlaylistsFolder()
{
    const QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const QString logo = folder.filePath(QStringLiteral("my logo.png"));
    const QString name = folder.filePath(QStringLiteral("list.m3u"));
    QFile picture(logo);
    QVERIFY(picture.open(QIODevice::WriteOnly));
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(list("#EXTINF:-1 tvg-logo=\"my logo.png\",One\nhttp://a\n#EXTINF:-1 tvg-logo=\""
                    + logo.toUtf8() + "\",Two\nhttp://b\n"));
    file.close();
    const PlaylistReport report = readPlaylist(name);
    QCOMPARE(problems(report), QStringList());
    QCOMPARE(report.playlist.constFirst().logo, QUrl::fromLocalFile(logo));
    QCOMPARE(report.playlist.constLast().logo, QUrl::fromLocalFile(logo));
}

void TestPlaylistReader::whatIsNoPlaylistGivesOneMessage_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray() << "the file is empty";
    QTest::newRow("blank") << QByteArray(" \r\n\n") << "the file is empty";
    QTest::newRow("page") << QByteArray("<html>\n<body>Not found</body>\n</html>\n") << "is no playlist";
    QTest::newRow("binary") << QByteArray("\x1f\x8b\0\0\xff\n\0", 7) << "is no playlist";
}

void TestPlaylistReader::whatIsNoPlaylistGivesOneMessage()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, reason);
    const PlaylistReport report = read(file);
    QCOMPARE(report.outcome, PlaylistReport::Outcome::Unreadable);
    QVERIFY(report.playlist.isEmpty());
    const QString message = QLatin1String("test.m3u: ") + reason
                            + QLatin1String(
                                    "; expected a playlist in extended M3U format, which begins with #EXTM3U");
    QCOMPARE(report.messages(QStringLiteral("test.m3u")), QStringList(message));
}

void TestPlaylistReader::whatIsNoOrdinaryFileIsNotRead()
{
    const QTemporaryDir folder;
    QVERIFY(readPlaylist(folder.path()).error.contains(QLatin1String(": is a folder; ")));
    QVERIFY(readPlaylist(folder.filePath(QStringLiteral("none")))
                    .error.contains(QLatin1String(": no such file; ")));
    QVERIFY(readPlaylist(QStringLiteral("/dev/zero")).error.contains(QLatin1String(": is no ordinary file; ")));
}

void TestPlaylistReader::messagesNameFileAndLine()
{
    const PlaylistReport report = read(list("\nodd\n#EXTINF:-1,One\nhttp://a\n"));
    QCOMPARE(report.messages(QStringLiteral("tv.m3u")),
             QStringList(QStringLiteral(
                     "tv.m3u: line 3: expected #EXTINF or an address, found \"odd\"; the line is "
                     "left out")));
    QCOMPARE(problems(read("#EXTM3U\n")),
             QStringList(QStringLiteral("1: there is no channel in the playlist")));
}

void TestPlaylistReader::theLastWordOfANameTellsTheQuality_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("quality");
    QTest::newRow("HD") << "One HD"
                        << "SD"
                        << "HD";
    QTest::newRow("small") << "One fhd"
                           << ""
                           << "FHD";
    QTest::newRow("brackets") << "One [4K]"
                              << ""
                              << "4K";
    QTest::newRow("round") << "One (uhd) "
                           << ""
                           << "UHD";
    QTest::newRow("inside") << "HD One"
                            << ""
                            << "";
    QTest::newRow("part of a word") << "OneHD"
                                    << ""
                                    << "";
    QTest::newRow("nothing else") << "4K"
                                  << ""
                                  << "";
    QTest::newRow("group") << "One"
                           << "Sport SD"
                           << "SD";
    QTest::newRow("whole group") << "One"
                                 << "8K"
                                 << "8K";
    QTest::newRow("nothing") << ""
                             << ""
                             << "";
}

void TestPlaylistReader::theLastWordOfANameTellsTheQuality()
{
    QFETCH(QString, name);
    QFETCH(QString, group);
    QTEST(channelQuality(name, group), "quality");
}

void TestPlaylistReader::aNameWithoutItsQualityKeepsTheRest_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("rest");
    QTest::newRow("quality") << "Late Films HD"
                             << "Late Films";
    QTest::newRow("in brackets") << "Films [4K]"
                                 << "Films";
    QTest::newRow("none") << "Late  Films"
                          << "Late  Films";
    QTest::newRow("in the middle") << "The HD Show"
                                   << "The HD Show";
    QTest::newRow("nothing else") << "HD"
                                  << "HD";
    QTest::newRow("empty") << ""
                           << "";
}

void TestPlaylistReader::aNameWithoutItsQualityKeepsTheRest()
{
    QFETCH(QString, name);
    QTEST(withoutQuality(name), "rest");
}

STB_TEST_MAIN(TestPlaylistReader)
#include "tst_playlistreader.moc"
