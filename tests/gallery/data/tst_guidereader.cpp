// SPDX-License-Identifier: MIT
#include "gallery/data/guidereader.h"
#include "guidetext.h"
#include "testkit/testcase.h"

#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>

using namespace gallery;
using guidetext::at;
using guidetext::programme;
using guidetext::read;
using guidetext::tv;
using Outcome = GuideReport::Outcome;

class TestGuideReader : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aProgrammeHasItsTimesAndTexts();
    void aMissingStopIsTheNextStart();
    void aMissingStopPassesOverProgrammesThatStartTogether();
    void theLastProgrammeWithoutStopLastsAnHour();
    void theLastProgrammeWithoutStopLastsItsGivenLength_data();
    void theLastProgrammeWithoutStopLastsItsGivenLength();
    void aStopBeforeTheStartCountsAsMissingAndIsReported();
    void anInvalidStopCountsAsMissingAndIsReported();
    void programmesInAnyOrderAreSorted();
    void overlappingProgrammesAreKept();
    void aProgrammeOfNoLengthIsKept();
    void clumpsAreKeptInTheOrderOfTheirIndex();
    void equalProgrammesAreThereOnceAndCounted();
    void programmesThatDifferInOneTextAreBothThere();
    void aProgrammeWithoutChannelElementMakesItsChannel();
    void aChannelWithoutProgrammesIsThere();
    void theNameOfAChannelTellsItsQuality();
    void aChannelThatComesAfterItsProgrammesNamesThem();
    void aSecondChannelElementFillsInWhatTheFirstLacks();
    void aProgrammeWithAnInvalidStartIsCountedAndReportedWithItsPlace();
    void aProgrammeWithoutChannelIsCountedAndReported();
    void moreProblemsThanAreKeptAreStillCounted();
    void anUnknownZoneIsUtcAndReported();
    void textsAreChosenByLanguage_data();
    void textsAreChosenByLanguage();
    void channelNamesAreChosenByLanguage();
    void anEmptyTextGivesWayToAnother();
    void aNumericNameIsTheNumber_data();
    void aNumericNameIsTheNumber();
    void aPictureBesideTheFileIsFound();
    void aWebPictureIsKeptAsItIs();
    void aProgrammeHasThePictureOfItsGuide();
    void textOfDeeperElementsStaysOut();
    void entitiesAndCharacterDataAreText();
    void anEntityThatNobodyDeclaresStaysAsWritten();
    void aDocumentTypeIsNotFetched();
    void expandingEntitiesStopTheReading();
    void everyEncodingGivesTheSameText_data();
    void everyEncodingGivesTheSameText();
    void anUnknownEncodingIsNamed();
    void compressedFilesReadTheSame();
    void severalCompressedFilesInARowAreOne();
    void aCompressedFileThatEndsEarlyShowsItsBeginning();
    void aDamagedCompressedFileIsAnError();
    void aMalformedFileShowsItsBeginningAndNamesThePlace();
    void aProgrammeCutOffAfterItsTitleIsShown();
    void aFileThatEndsEarlyShowsItsBeginning();
    void anEmptyGuideIsComplete();
    void unreadableFilesNameThemselvesAndWhatIsExpected_data();
    void unreadableFilesNameThemselvesAndWhatIsExpected();
    void deepNestingStopsTheReading();
    void anEndlessTextStopsTheReading_data();
    void anEndlessTextStopsTheReading();
    void aCancelledReadingGivesNothing();
};

namespace {

QStringList titles(const Guide &guide, int channel = 0)
{
    QStringList list;
    for (int i = 0; i < guide.programmeCount(channel); ++i)
        list.append(guide.programme(channel, i).title);
    return list;
}

} // namespace

void TestGuideReader::aProgrammeHasItsTimesAndTexts()
{
    const GuideReport report = read(tv(R"(<channel id="c1"><display-name>One</display-name></channel>
        <programme start="20151126200543 +0100" stop="20151126211749 +0100" channel="c1">
        <title>The  title</title><sub-title> The subtitle</sub-title><desc>The
        description</desc><category>Kind</category><category>Other</category></programme>)"));
    QCOMPARE(report.outcome, Outcome::Complete);
    QCOMPARE(report.error, QString());
    QCOMPARE(report.problemCount, 0);
    QCOMPARE(report.guide.channelCount(), 1);
    QCOMPARE(report.guide.channel(0).name, QStringLiteral("One"));
    const Programme shown = report.guide.programme(0, 0);
    QCOMPARE(shown.time, (TimeSpan { at("2015-11-26T19:05:43Z"), at("2015-11-26T20:17:49Z") }));
    QCOMPARE(shown.title, QStringLiteral("The title"));
    QCOMPARE(shown.subTitle, QStringLiteral("The subtitle"));
    QCOMPARE(shown.description, QStringLiteral("The description"));
    QCOMPARE(shown.category, QStringLiteral("Kind"));
}

void TestGuideReader::aMissingStopIsTheNextStart()
{
    const GuideReport report = read(tv(programme("c", R"(start="20151126200500")", "A")
                                       + programme("other", R"(start="20151126200700")", "Other")
                                       + programme("c", R"(start="20151126201900")", "B")));
    QCOMPARE(report.guide.timeSpan(0, 0).stop, at("2015-11-26T20:19:00Z"));
}

void TestGuideReader::aMissingStopPassesOverProgrammesThatStartTogether()
{
    const GuideReport report = read(tv(programme("c", R"(start="2015112620" clumpidx="0/2")", "A")
                                       + programme("c", R"(start="2015112620" clumpidx="1/2")", "B")
                                       + programme("c", R"(start="2015112621")", "C")));
    QCOMPARE(report.guide.timeSpan(0, 0).stop, at("2015-11-26T21:00:00Z"));
    QCOMPARE(report.guide.timeSpan(0, 1).stop, at("2015-11-26T21:00:00Z"));
}

void TestGuideReader::theLastProgrammeWithoutStopLastsAnHour()
{
    const GuideReport report = read(tv(programme("c", R"(start="20151126200500")", "A")));
    QCOMPARE(report.guide.timeSpan(0, 0).stop, at("2015-11-26T21:05:00Z"));
}

void TestGuideReader::theLastProgrammeWithoutStopLastsItsGivenLength_data()
{
    QTest::addColumn<QByteArray>("length");
    QTest::addColumn<qint64>("stop");
    QTest::newRow("minutes") << QByteArray(R"(<length units="minutes">47</length>)")
                             << at("2015-11-26T20:52:00Z");
    QTest::newRow("hours") << QByteArray(R"(<length units="hours">3</length>)") << at("2015-11-26T23:05:00Z");
    QTest::newRow("seconds") << QByteArray(R"(<length units="seconds">61</length>)")
                             << at("2015-11-26T20:06:01Z");
    QTest::newRow("no units") << QByteArray("<length>47</length>") << at("2015-11-26T21:05:00Z");
    QTest::newRow("no number") << QByteArray(R"(<length units="hours">long</length>)")
                               << at("2015-11-26T21:05:00Z");
    QTest::newRow("negative") << QByteArray(R"(<length units="hours">-2</length>)")
                              << at("2015-11-26T21:05:00Z");
}

void TestGuideReader::theLastProgrammeWithoutStopLastsItsGivenLength()
{
    QFETCH(QByteArray, length);
    const GuideReport report = read(
            tv(R"(<programme start="201511262005" channel="c"><title>A</title>)" + length + "</programme>"));
    QTEST(report.guide.timeSpan(0, 0).stop, "stop");
}

void TestGuideReader::aStopBeforeTheStartCountsAsMissingAndIsReported()
{
    const GuideReport report = read(tv(programme("c", R"(start="2015112620" stop="2015112619")", "A")
                                       + programme("c", R"(start="2015112622" stop="2015112623")", "B")));
    QCOMPARE(report.guide.timeSpan(0, 0).stop, at("2015-11-26T22:00:00Z"));
    QCOMPARE(report.problemCount, 1);
    QCOMPARE(report.skippedProgrammes, 0);
}

void TestGuideReader::anInvalidStopCountsAsMissingAndIsReported()
{
    const GuideReport report = read(tv(programme("c", R"(start="2015112620" stop="late")", "A")));
    QCOMPARE(report.guide.timeSpan(0, 0).stop, at("2015-11-26T21:00:00Z"));
    QCOMPARE(report.problemCount, 1);
    QCOMPARE(report.problems.constFirst().text,
             QStringLiteral("the stop \"late\" of a programme is not a time; the stop is left out"));
    QCOMPARE(report.skippedProgrammes, 0);
}

void TestGuideReader::programmesInAnyOrderAreSorted()
{
    const GuideReport report = read(tv(
            programme("c", R"(start="2015112622")", "C") + programme("c", R"(start="2015112620")", "A")
            + programme("c", R"(start="2015112623")", "D") + programme("c", R"(start="2015112621")", "B")));
    QCOMPARE(titles(report.guide), QStringList({ "A", "B", "C", "D" }));
    QCOMPARE(report.guide.timeSpan(0, 1).stop, at("2015-11-26T22:00:00Z"));
}

void TestGuideReader::overlappingProgrammesAreKept()
{
    const GuideReport report = read(tv(programme("c", R"(start="2015112620" stop="2015112623")", "A")
                                       + programme("c", R"(start="2015112621" stop="2015112622")", "B")));
    QCOMPARE(titles(report.guide), QStringList({ "A", "B" }));
    QCOMPARE(report.guide.timeSpan(0, 0).stop, at("2015-11-26T23:00:00Z"));
    QCOMPARE(report.guide.programmeAt(0, at("2015-11-26T20:30:00Z")), 0);
    QCOMPARE(report.guide.programmeAt(0, at("2015-11-26T21:30:00Z")), 1);
    QCOMPARE(report.guide.programmeAt(0, at("2015-11-26T22:30:00Z")), 0);
    QCOMPARE(report.guide.programmeAt(0, at("2015-11-26T23:00:00Z")), -1);
}

void TestGuideReader::aProgrammeOfNoLengthIsKept()
{
    const GuideReport report = read(tv(programme("c", R"(start="2015112620" stop="2015112620")", "A")
                                       + programme("c", R"(start="2015112620" stop="2015112621")", "B")));
    QCOMPARE(titles(report.guide), QStringList({ "A", "B" }));
    QCOMPARE(report.guide.timeSpan(0, 0).stop, at("2015-11-26T20:00:00Z"));
    QCOMPARE(report.guide.programmeAt(0, at("2015-11-26T20:00:00Z")), 1);
    QCOMPARE(report.problemCount, 0);
}

void TestGuideReader::clumpsAreKeptInTheOrderOfTheirIndex()
{
    const QByteArray times = R"(start="2015112620" stop="2015112621" )";
    const GuideReport report = read(tv(programme("c", times + R"(clumpidx="2/3")", "C")
                                       + programme("c", times + R"(clumpidx="0/3")", "A")
                                       + programme("c", times + R"(clumpidx="1/3")", "B")));
    QCOMPARE(titles(report.guide), QStringList({ "A", "B", "C" }));
    QCOMPARE(report.guide.programmeAt(0, at("2015-11-26T20:30:00Z")), 0);
    QCOMPARE(report.duplicateProgrammes, 0);
}

void TestGuideReader::equalProgrammesAreThereOnceAndCounted()
{
    const QByteArray a = programme("c", R"(start="2015112620" stop="2015112621")", "A");
    const QByteArray b = programme("c", R"(start="2015112620" stop="2015112621")", "B");
    const GuideReport report = read(tv(a + b + a + b + a));
    QCOMPARE(titles(report.guide), QStringList({ "A", "B" }));
    QCOMPARE(report.guide.programmeCount(), 2);
    QCOMPARE(report.duplicateProgrammes, 3);
    QCOMPARE(report.skippedProgrammes, 0);
}

void TestGuideReader::programmesThatDifferInOneTextAreBothThere()
{
    const QByteArray start = R"(<programme channel="c" start="2015112620" stop="2015112621"><title>A</title>)";
    const QByteArray end = "</programme>";
    const GuideReport report = read(tv(start + "<desc>x</desc>" + end + start + "<desc>y</desc>" + end + start
                                       + "<sub-title>x</sub-title>" + end + start + "<category>x</category>"
                                       + end + start + end));
    QCOMPARE(report.guide.programmeCount(0), 5);
    QCOMPARE(report.duplicateProgrammes, 0);
}

void TestGuideReader::aProgrammeWithoutChannelElementMakesItsChannel()
{
    const GuideReport report = read(tv(programme("late.example", R"(start="2015112620")", "A")
                                       + R"(<channel id="c"><display-name>C</display-name></channel>)"
                                       + programme("c", R"(start="2015112620")", "B")));
    QCOMPARE(report.guide.channelCount(), 2);
    QCOMPARE(report.guide.channel(0).id, QStringLiteral("c"));
    QCOMPARE(report.guide.channel(1).id, QStringLiteral("late.example"));
    QCOMPARE(report.guide.channel(1).name, QStringLiteral("late.example"));
    QCOMPARE(titles(report.guide, 1), QStringList({ "A" }));
    QCOMPARE(report.guide.channelIndex(QStringLiteral("late.example")), 1);
    QCOMPARE(report.guide.channelIndex(QStringLiteral("nobody")), -1);
}

void TestGuideReader::aChannelWithoutProgrammesIsThere()
{
    const GuideReport report = read(tv(R"(<channel id="c"/><channel id="d"><display-name/></channel>)"));
    QCOMPARE(report.guide.channelCount(), 2);
    QCOMPARE(report.guide.channel(0).name, QStringLiteral("c"));
    QCOMPARE(report.guide.channel(1).name, QStringLiteral("d"));
    QCOMPARE(report.guide.programmeCount(0), 0);
    QCOMPARE(report.guide.programmeAt(0, 0), -1);
    QCOMPARE(report.guide.nextProgramme(0, 0), -1);
    QCOMPARE(report.guide.previousProgramme(0, 0), -1);
    QCOMPARE(report.guide.programmesIn(0, { 0, 86400 }), QList<int>());
    QCOMPARE(report.guide.timeSpan(), TimeSpan());
}

void TestGuideReader::theNameOfAChannelTellsItsQuality()
{
    const GuideReport report = read(tv(R"(<channel id="c"><display-name>One HD</display-name></channel>
        <channel id="d"><display-name>Two</display-name></channel>)"));
    QCOMPARE(report.guide.channel(0).name, QStringLiteral("One HD"));
    QCOMPARE(report.guide.channel(0).quality, QStringLiteral("HD"));
    QCOMPARE(report.guide.channel(1).quality, QString());
}

void TestGuideReader::aChannelThatComesAfterItsProgrammesNamesThem()
{
    const GuideReport report = read(tv(programme("c", R"(start="2015112620")", "A")
                                       + R"(<channel id="c"><display-name>Cee</display-name></channel>)"));
    QCOMPARE(report.guide.channelCount(), 1);
    QCOMPARE(report.guide.channel(0).name, QStringLiteral("Cee"));
    QCOMPARE(report.guide.programmeCount(0), 1);
}

void TestGuideReader::aSecondChannelElementFillsInWhatTheFirstLacks()
{
    const GuideReport report = read(tv(R"(<channel id="c"><display-name>First</display-name></channel>
        <channel id="c"><display-name>Second</display-name><display-name>12</display-name></channel>)"));
    QCOMPARE(report.guide.channelCount(), 1);
    QCOMPARE(report.guide.channel(0).name, QStringLiteral("First"));
    QCOMPARE(report.guide.channel(0).number, QStringLiteral("12"));
}

void TestGuideReader::aProgrammeWithAnInvalidStartIsCountedAndReportedWithItsPlace()
{
    const GuideReport report = read(
            "<tv>\n<programme channel=\"c\" start=\"20151399\"><title>A</title>\n"
            "</programme>\n<programme channel=\"c\"><title>B</title></programme>\n"
            "<programme channel=\"c\" start=\"2015\"><title>C</title></programme></tv>");
    QCOMPARE(report.outcome, Outcome::Complete);
    QCOMPARE(titles(report.guide), QStringList({ "C" }));
    QCOMPARE(report.skippedProgrammes, 2);
    QCOMPARE(report.problemCount, 2);
    QCOMPARE(report.problems.size(), 2);
    QCOMPARE(report.problems.at(0).line, 2);
    QCOMPARE(report.problems.at(0).column, 40); // the end of the start tag
    QCOMPARE(report.problems.at(0).text,
             QStringLiteral("the start \"20151399\" of a programme is not a time; the programme is left out"));
    QCOMPARE(report.problems.at(1).line, 4);
}

void TestGuideReader::aProgrammeWithoutChannelIsCountedAndReported()
{
    const GuideReport report = read(tv(R"(<programme start="2015"><title>A</title></programme>
        <channel><display-name>X</display-name></channel>)"));
    QCOMPARE(report.guide.channelCount(), 0);
    QCOMPARE(report.skippedProgrammes, 1);
    QCOMPARE(report.problemCount, 2);
}

void TestGuideReader::moreProblemsThanAreKeptAreStillCounted()
{
    const GuideReport report = read(tv(programme("c", R"(start="never")", "A").repeated(71)));
    QCOMPARE(report.problemCount, 71);
    QCOMPARE(report.skippedProgrammes, 71);
    QCOMPARE(report.problems.size(), qsizetype(GuideReport::maximumProblems));
}

void TestGuideReader::anUnknownZoneIsUtcAndReported()
{
    const GuideReport report = read(tv(programme("c", R"(start="2015112620 QQT")", "A")));
    QCOMPARE(report.guide.timeSpan(0, 0).start, at("2015-11-26T20:00:00Z"));
    QCOMPARE(report.problemCount, 1);
}

void TestGuideReader::textsAreChosenByLanguage_data()
{
    QTest::addColumn<QByteArray>("texts");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("chosen");
    const QByteArray two = R"(<title lang="en">Red</title><title lang="de">Rot</title>)";
    QTest::newRow("first of two") << two << "en"
                                  << "Red";
    QTest::newRow("second of two") << two << "de"
                                   << "Rot";
    QTest::newRow("neither") << two << "ru"
                             << "Red";
    QTest::newRow("no language asked") << two << ""
                                       << "Red";
    QTest::newRow("a region of a language") << two << "de-AT"
                                            << "Rot";
    QTest::newRow("a region with underscore") << two << "de_AT"
                                              << "Rot";
    QTest::newRow("upper case") << two << "DE"
                                << "Rot";
    const QByteArray regions =
            R"(<title lang="en">E</title><title lang="pt-PT">P</title><title lang="pt_BR">B</title>)";
    QTest::newRow("the exact region") << regions << "pt-BR"
                                      << "B";
    QTest::newRow("the first region") << regions << "pt"
                                      << "P";
    QTest::newRow("another region") << regions << "pt-AO"
                                    << "P";
    const QByteArray none =
            R"(<title>Plain</title><title lang="ru">Красный</title><title lang="ru">Второй</title>)";
    QTest::newRow("first of the language") << none << "ru" << QString::fromUtf8("Красный");
    QTest::newRow("text without language") << none << "de"
                                           << "Plain";
    QTest::newRow("a longer name") << QByteArray(R"(<title>A</title><title lang="deu">B</title>)") << "de"
                                   << "A";
}

void TestGuideReader::textsAreChosenByLanguage()
{
    QFETCH(QByteArray, texts);
    QFETCH(QString, language);
    QFETCH(QString, chosen);
    QByteArray all = texts;
    for (const char *tag : { "sub-title", "desc", "category" })
        all += QByteArray(texts).replace("title", tag);
    const GuideReport report = read(tv(R"(<programme channel="c" start="2015">)" + all + "</programme>"),
                                    language);
    const Programme shown = report.guide.programme(0, 0);
    QCOMPARE(shown.title, chosen);
    QCOMPARE(shown.subTitle, chosen);
    QCOMPARE(shown.description, chosen);
    QCOMPARE(shown.category, chosen);
}

void TestGuideReader::channelNamesAreChosenByLanguage()
{
    const QByteArray file = tv(R"(<channel id="c"><display-name lang="en">Red</display-name>
        <display-name>5</display-name><display-name lang="de">Rot</display-name></channel>)");
    QCOMPARE(read(file, QStringLiteral("de")).guide.channel(0).name, QStringLiteral("Rot"));
    QCOMPARE(read(file, QStringLiteral("ar")).guide.channel(0).name, QStringLiteral("Red"));
}

void TestGuideReader::anEmptyTextGivesWayToAnother()
{
    const QByteArray file = tv(R"(<programme channel="c" start="2015"><title lang="de"> </title>
        <title lang="en">Red</title></programme>)");
    QCOMPARE(titles(read(file, QStringLiteral("de")).guide), QStringList({ "Red" }));
}

void TestGuideReader::aNumericNameIsTheNumber_data()
{
    QTest::addColumn<QByteArray>("names");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("number");
    const auto row = [](const char *title, std::initializer_list<const char *> names, const char *name,
                        const char *number) {
        QByteArray xml;
        for (const char *text : names)
            xml += QByteArray("<display-name>") + text + "</display-name>";
        QTest::newRow(title) << xml << QString::fromLatin1(name) << QString::fromLatin1(number);
    };
    row("after the name", { "One", "7" }, "One", "7");
    row("before the name", { "7", "One" }, "One", "7");
    row("with a dash", { "One", "7-13" }, "One", "7-13");
    row("with a dot", { "One", "7.13" }, "One", "7.13");
    row("a number with a name", { "201 One", "201" }, "201 One", "201");
    row("only a number", { "24" }, "24", "24");
    row("two numbers", { "24", "25", "One" }, "One", "24");
    row("no number", { "One" }, "One", "");
    row("not quite a number", { "7-", "-7", "1-2-3" }, "7-", "");
}

void TestGuideReader::aNumericNameIsTheNumber()
{
    QFETCH(QByteArray, names);
    const GuideReport report = read(tv("<channel id=\"c\">" + names + "</channel>"));
    QTEST(report.guide.channel(0).name, "name");
    QTEST(report.guide.channel(0).number, "number");
}

void TestGuideReader::aPictureBesideTheFileIsFound()
{
    const QTemporaryDir folder;
    const QString picture = folder.filePath(QStringLiteral("one.png"));
    QFile pictureFile(picture);
    QVERIFY(pictureFile.open(QIODevice::WriteOnly));
    QFile file(folder.filePath(QStringLiteral("guide.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(tv(R"(<channel id="a"><icon src="one.png"/><icon src="two.png"/></channel>
        <channel id="b"><icon src="two.png"/></channel><channel id="c"><icon src=")"
                  + picture.toUtf8() + R"("/></channel>)"));
    file.close();
    const Guide guide = readGuide(file.fileName()).guide;
    QCOMPARE(guide.channel(0).icon, QUrl::fromLocalFile(picture));
    QCOMPARE(guide.channel(1).icon, QUrl());
    QCOMPARE(guide.channel(2).icon, QUrl::fromLocalFile(picture));
}

void TestGuideReader::aWebPictureIsKeptAsItIs()
{
    const Guide guide = read(tv(R"(<channel id="a"><icon src="https://example.com/a.png?x=1"/></channel>)"))
                                .guide;
    QCOMPARE(guide.channel(0).icon, QUrl(QStringLiteral("https://example.com/a.png?x=1")));
}

void TestGuideReader::aProgrammeHasThePictureOfItsGuide()
{
    const Guide guide = read(tv(R"(<programme start="2015" channel="c"><title>A</title>
        <icon src="https://h/Ж a.png?x=1&amp;y=%20"/></programme>
        <programme start="2016" channel="c"><title>B</title></programme>
        <programme start="2017" channel="c"><title>C</title><icon src="none.png"/></programme>
        <programme start="2018" channel="c"><title>D</title><icon src="https://h/1"/></programme>
        <programme start="2018" channel="c"><title>D</title><icon src="https://h/2"/></programme>)"))
                                .guide;
    const QUrl first(QString::fromUtf8("https://h/Ж a.png?x=1&y=%20"));
    QCOMPARE(guide.programme(0, 0).picture, first);
    QCOMPARE(guide.programme(0, 1).picture, QUrl());
    QCOMPARE(guide.programme(0, 2).picture, QUrl());
    QCOMPARE(guide.programmeCount(0), 5); // the last two differ in their pictures
}

void TestGuideReader::textOfDeeperElementsStaysOut()
{
    const GuideReport report = read(
            tv(R"(<programme channel="c" start="2015"><credits><title>No</title></credits>
        <title>Yes</title><video><desc>No</desc></video><review><title>No</title></review></programme>
        <other><programme channel="d" start="2015"><title>No</title></programme></other>)"));
    QCOMPARE(report.guide.channelCount(), 1);
    QCOMPARE(titles(report.guide), QStringList({ "Yes" }));
    QCOMPARE(report.guide.programme(0, 0).description, QString());
}

void TestGuideReader::entitiesAndCharacterDataAreText()
{
    const GuideReport report = read("<!DOCTYPE tv [<!ENTITY house \"The House\">]><tv>"
                                    + programme("a&amp;b", R"(start="2015")",
                                                "&house; &amp; &#x41;&#66; <![CDATA[<b> & ]]><!-- no --> end")
                                    + "</tv>");
    QCOMPARE(report.error, QString());
    QCOMPARE(report.guide.channel(0).id, QStringLiteral("a&b"));
    QCOMPARE(titles(report.guide), QStringList({ "The House & AB <b> & end" }));
}

void TestGuideReader::anEntityThatNobodyDeclaresStaysAsWritten()
{
    for (const QByteArray &type : { QByteArray(), QByteArray("<!DOCTYPE tv SYSTEM \"xmltv.dtd\">") }) {
        const GuideReport report = read(type + "<tv>" + programme("c", R"(start="2015")", "Caf&eacute; 1")
                                        + "</tv>");
        QCOMPARE(report.error, QString());
        QCOMPARE(titles(report.guide), QStringList({ "Caf&eacute; 1" }));
    }
    const GuideReport report = read("<tv>" + programme("c&uuml;1", R"(start="2015")", "A&nbsp;B") + "</tv>");
    QCOMPARE(report.error, QString());
    QCOMPARE(report.guide.channel(0).id, QStringLiteral("c&uuml;1"));
    QCOMPARE(titles(report.guide), QStringList({ "A B" })); // blanks are simplified
}

void TestGuideReader::aDocumentTypeIsNotFetched()
{
    const QTemporaryDir folder;
    QFile type(folder.filePath(QStringLiteral("xmltv.dtd")));
    QVERIFY(type.open(QIODevice::WriteOnly));
    type.write("<!ENTITY house \"fetched\">");
    type.close();
    QFile file(folder.filePath(QStringLiteral("guide.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<?xml version=\"1.0\"?><!DOCTYPE tv SYSTEM \"xmltv.dtd\"><tv>"
               + programme("c", R"(start="2015")", "A &house;") + "</tv>");
    file.close();
    const GuideReport report = readGuide(file.fileName());
    QCOMPARE(report.error, QString());
    QCOMPARE(titles(report.guide), QStringList({ "A &house;" }));
}

void TestGuideReader::expandingEntitiesStopTheReading()
{
    QByteArray type = "<!DOCTYPE tv [<!ENTITY e0 \"hahahahaha\">";
    for (int i = 1; i < 10; ++i) {
        const QByteArray inner = "&e" + QByteArray::number(i - 1) + ';';
        type += "<!ENTITY e" + QByteArray::number(i) + " \"" + inner.repeated(10) + "\">";
    }
    const GuideReport report = read(type + "]><tv>" + programme("c", R"(start="2015")", "A")
                                    + programme("c", R"(start="2016")", "&e9;") + "</tv>");
    QCOMPARE(report.outcome, Outcome::Partial);
    QCOMPARE(titles(report.guide).constFirst(), QStringLiteral("A"));
}

void TestGuideReader::everyEncodingGivesTheSameText_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const QString latin = QString::fromUtf8("Café");
    const QString russian = QString::fromUtf8("Мир");
    QTest::newRow("ISO-8859-1") << QByteArray("ISO-8859-1") << QByteArray() << QByteArray("Caf\xe9") << latin;
    QTest::newRow("iso-8859-1") << QByteArray("iso-8859-1") << QByteArray() << QByteArray("Caf\xe9") << latin;
    QTest::newRow("ISO-8859-15") << QByteArray("ISO-8859-15") << QByteArray() << QByteArray("Caf\xe9 \xa4")
                                 << QString::fromUtf8("Café €");
    QTest::newRow("windows-1252") << QByteArray("windows-1252") << QByteArray() << QByteArray("Caf\xe9 \x80")
                                  << QString::fromUtf8("Café €");
    QTest::newRow("windows-1251") << QByteArray("windows-1251") << QByteArray() << QByteArray("\xcc\xe8\xf0")
                                  << russian;
    QTest::newRow("KOI8-R") << QByteArray("KOI8-R") << QByteArray() << QByteArray("\xed\xc9\xd2") << russian;
    QTest::newRow("Shift_JIS") << QByteArray("Shift_JIS") << QByteArray() << QByteArray("\x93\xfa\x96\x7b")
                               << QString::fromUtf8("日本");
    QTest::newRow("UTF-8") << QByteArray("UTF-8") << QByteArray() << QByteArray("Caf\xc3\xa9") << latin;
    QTest::newRow("UTF-8 with mark") << QByteArray("utf-8") << QByteArray("\xef\xbb\xbf")
                                     << QByteArray("Caf\xc3\xa9") << latin;
    QTest::newRow("mark alone") << QByteArray() << QByteArray("\xef\xbb\xbf") << QByteArray("Caf\xc3\xa9")
                                << latin;
    QTest::newRow("US-ASCII") << QByteArray("US-ASCII") << QByteArray() << QByteArray("Cafe")
                              << QStringLiteral("Cafe");
}

void TestGuideReader::everyEncodingGivesTheSameText()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    // Enough programmes that characters of several bytes lie across the ends of blocks.
    const int count = 3001;
    QByteArray file = start;
    if (!name.isEmpty())
        file += "<?xml version='1.0' encoding='" + name + "' standalone='no'?>\n";
    file += "<tv>";
    for (int i = 0; i < count; ++i)
        file += "<programme channel='c' start='2015' clumpidx='" + QByteArray::number(i) + "'><title>" + bytes
                + "</title></programme>";
    const GuideReport report = read(file + "</tv>");
    QCOMPARE(report.error, QString());
    QCOMPARE(report.guide.programmeCount(0), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(report.guide.programme(0, i).title, text);
}

void TestGuideReader::anUnknownEncodingIsNamed()
{
    const GuideReport report = read("<?xml version=\"1.0\" encoding=\"x-nowhere-7\"?><tv></tv>");
    QCOMPARE(report.outcome, Outcome::Unreadable);
    QVERIFY2(report.error.startsWith(QLatin1String("test.xml: ")), qPrintable(report.error));
    QVERIFY2(report.error.contains(QLatin1String("x-nowhere-7")), qPrintable(report.error));
    QVERIFY(!report.error.contains(u'\n'));
}

void TestGuideReader::compressedFilesReadTheSame()
{
    const GuideReport report = read(guidetext::gzip(tv(programme("c", R"(start="2015")", "A"))));
    QCOMPARE(report.outcome, Outcome::Complete);
    QCOMPARE(titles(report.guide), QStringList({ "A" }));
}

void TestGuideReader::severalCompressedFilesInARowAreOne()
{
    const QByteArray file = tv(programme("c", R"(start="2015")", "A")
                               + programme("c", R"(start="2016")", "B"));
    const GuideReport report = read(guidetext::gzip(file.left(83)) + guidetext::gzip(file.mid(83))
                                    + QByteArray(1000, '\0')); // as tapes pad
    QCOMPARE(report.error, QString());
    QCOMPARE(titles(report.guide), QStringList({ "A", "B" }));
}

void TestGuideReader::aCompressedFileThatEndsEarlyShowsItsBeginning()
{
    const QByteArray file = tv(programme("c", R"(start="2015")", "A")
                               + programme("c", R"(start="2016")", "B"));
    const QByteArray packed = guidetext::gzip(file);
    const GuideReport report = read(packed.left(packed.size() - 9));
    QCOMPARE(report.outcome, Outcome::Partial);
    QCOMPARE(titles(report.guide).constFirst(), QStringLiteral("A"));
    QVERIFY2(report.error.endsWith(QLatin1String(": the compressed data ends too early")),
             qPrintable(report.error));
    QVERIFY2(report.error.startsWith(QLatin1String("test.xml: line ")), qPrintable(report.error));
}

void TestGuideReader::aDamagedCompressedFileIsAnError()
{
    QByteArray packed = guidetext::gzip(tv(programme("c", R"(start="2015")", "A")));
    packed.replace(10, 1, "\x07"); // a kind of block that does not exist
    const GuideReport report = read(packed);
    QCOMPARE(report.outcome, Outcome::Unreadable);
    QVERIFY2(report.error.contains(QLatin1String("the compressed data is damaged")), qPrintable(report.error));
}

void TestGuideReader::aMalformedFileShowsItsBeginningAndNamesThePlace()
{
    const GuideReport report = read("<tv>\n" + programme("c", R"(start="2015")", "A")
                                    + "  <programme <\n</tv>");
    QCOMPARE(report.outcome, Outcome::Partial);
    QCOMPARE(titles(report.guide), QStringList({ "A" }));
    QVERIFY2(report.error.startsWith(QLatin1String("test.xml: line 3, column 14: ")),
             qPrintable(report.error));
    QVERIFY(!report.error.contains(u'\n'));
}

void TestGuideReader::aProgrammeCutOffAfterItsTitleIsShown()
{
    const GuideReport report = read(R"(<tv><programme channel="c" start="2015"><title>A</title><desc>cut)");
    QCOMPARE(report.outcome, Outcome::Partial);
    QCOMPARE(titles(report.guide), QStringList({ "A" }));
}

void TestGuideReader::aFileThatEndsEarlyShowsItsBeginning()
{
    const GuideReport report = read("<tv>" + programme("c", R"(start="2015")", "A"));
    QCOMPARE(report.outcome, Outcome::Partial);
    QCOMPARE(titles(report.guide), QStringList({ "A" }));
    QVERIFY(!report.error.isEmpty());
}

void TestGuideReader::anEmptyGuideIsComplete()
{
    const GuideReport report = read("<tv/>");
    QCOMPARE(report.outcome, Outcome::Complete);
    QVERIFY(report.guide.isEmpty());
    QCOMPARE(report.guide.programmeCount(), 0);
}

void TestGuideReader::unreadableFilesNameThemselvesAndWhatIsExpected_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray("") << "the file is empty";
    QTest::newRow("missing") << QByteArray() << "no such file";
    QTest::newRow("folder") << QByteArray("/") << "is a folder";
    QTest::newRow("other XML") << QByteArray("<rss><channel id=\"c\"/></rss>") << "<rss>";
    QTest::newRow("not XML") << QByteArray("#EXTM3U\n") << "line 1, column ";
    QTest::newRow("only space") << QByteArray("  \n ") << "line 2, column ";
    QTest::newRow("binary") << QByteArray("\x89PNG\r\n\x1a\n\0\0", 10) << "line 1, column ";
    QTest::newRow("half a compressed header")
            << QByteArray("\x1f\x8b") << "the compressed data ends too early";
}

void TestGuideReader::unreadableFilesNameThemselvesAndWhatIsExpected()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    const QTemporaryDir folder;
    QString name = folder.filePath(QStringLiteral("guide.xml"));
    if (content == "/")
        name = folder.path();
    else if (!content.isNull()) {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    const GuideReport report = readGuide(name);
    QCOMPARE(report.outcome, Outcome::Unreadable);
    QVERIFY(report.guide.isEmpty());
    QVERIFY2(report.error.startsWith(name + QLatin1String(": ")), qPrintable(report.error));
    QVERIFY2(report.error.contains(reason), qPrintable(report.error));
    QVERIFY2(report.error.contains(QLatin1String("expected a programme guide in XMLTV format")),
             qPrintable(report.error));
    QVERIFY2(!report.error.contains(u'\n'), qPrintable(report.error));
}

void TestGuideReader::deepNestingStopsTheReading()
{
    const GuideReport report = read("<tv>" + programme("c", R"(start="2015")", "A")
                                    + QByteArray("<a>").repeated(1000000));
    QCOMPARE(report.outcome, Outcome::Partial);
    QCOMPARE(titles(report.guide), QStringList({ "A" }));
    QVERIFY2(report.error.contains(QLatin1String("nested")), qPrintable(report.error));
}

void TestGuideReader::anEndlessTextStopsTheReading_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("repeated");
    QTest::newRow("text") << QByteArray("<programme><desc>") << QByteArray("abc ");
    QTest::newRow("character data") << QByteArray("<programme><desc><![CDATA[") << QByteArray("<a> ");
    QTest::newRow("comment") << QByteArray("<!--") << QByteArray("<a> ");
    QTest::newRow("attribute") << QByteArray("<programme channel='") << QByteArray("abc ");
    QTest::newRow("attributes") << QByteArray("<programme ") << QByteArray("a='' ");
}

void TestGuideReader::anEndlessTextStopsTheReading()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, repeated);
    const GuideReport report = read("<tv>" + programme("c", R"(start="2015")", "A") + before
                                    + repeated.repeated(2000000));
    QCOMPARE(report.outcome, Outcome::Partial);
    QCOMPARE(titles(report.guide), QStringList({ "A" }));
    QVERIFY(!report.error.isEmpty());
}

void TestGuideReader::aCancelledReadingGivesNothing()
{
    const std::atomic<bool> cancelled = true;
    QByteArray file = tv(programme("c", R"(start="2015")", "A"));
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    const GuideReport report = readGuide(&buffer, QStringLiteral("x"), { {}, &cancelled, nullptr });
    QCOMPARE(report.outcome, Outcome::Cancelled);
    QVERIFY(report.guide.isEmpty());
    QCOMPARE(report.error, QString());
}

STB_TEST_MAIN(TestGuideReader)
#include "tst_guidereader.moc"
