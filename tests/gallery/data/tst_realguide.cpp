// SPDX-License-Identifier: MIT
#include "gallery/data/guidereader.h"
#include "guidetext.h"
#include "testkit/testcase.h"

#include <QtCore/qfile.h>

using namespace gallery;
using guidetext::at;

/*! Real guide files; the expected values were counted in the files with another XML parser. */
class TestRealGuide : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void twoWeeksHaveAllChannelsAndProgrammes();
    void eachChannelHasItsProgrammes_data();
    void eachChannelHasItsProgrammes();
    void whatIsOnAtFivePastEight_data();
    void whatIsOnAtFivePastEight();
    void programmesOfNoLengthAreKept();
    void theGuideReadsTheSameWhenCompressed();
    void aNumericNameIsTheChannelsNumber();
    void aFileWithAByteOrderMarkShowsItsProgramme();

private:
    static QString file(const char *name);
    static GuideReport read(const char *name);
};

QString TestRealGuide::file(const char *name)
{
    return qEnvironmentVariable("STBUI_TEST_DATA") + QLatin1String("/xmltv/") + QLatin1String(name);
}

GuideReport TestRealGuide::read(const char *name)
{
    GuideReport report = readGuide(file(name));
    [&report] {
        QCOMPARE(report.error, QString());
        QCOMPARE(report.outcome, GuideReport::Outcome::Complete);
    }();
    return report;
}

void TestRealGuide::initTestCase()
{
    if (qEnvironmentVariableIsEmpty("STBUI_TEST_DATA"))
        QSKIP("left out: STBUI_TEST_DATA does not name the folder with the real guides");
}

void TestRealGuide::twoWeeksHaveAllChannelsAndProgrammes()
{
    const GuideReport report = read("uk-two-weeks.xml");
    QCOMPARE(report.guide.channelCount(), 5);
    QCOMPARE(report.guide.programmeCount(), 1964);
    QCOMPARE(report.problemCount, 0);
    QCOMPARE(report.skippedProgrammes, 0);
    QCOMPARE(report.duplicateProgrammes, 0);
    QCOMPARE(report.guide.timeSpan().start, at("2015-11-26T06:00:00Z"));
    QCOMPARE(report.guide.timeSpan().stop, at("2015-12-09T06:00:00Z"));
}

void TestRealGuide::eachChannelHasItsProgrammes_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("programmes");
    QTest::newRow("first") << "UK_RT_2667"
                           << "BBC1 HD" << 330;
    QTest::newRow("second") << "UK_RT_105"
                            << "BBC2" << 287;
    QTest::newRow("third") << "UK_RT_2118"
                           << "ITV1 HD" << 413;
    QTest::newRow("fourth") << "UK_RT_2056"
                            << "Channel 4 HD" << 433;
    QTest::newRow("fifth") << "UK_RT_134"
                           << "Channel 5" << 501;
}

void TestRealGuide::eachChannelHasItsProgrammes()
{
    const GuideReport report = read("uk-two-weeks.xml");
    QFETCH(QString, id);
    QFETCH(QString, name);
    const int channel = report.guide.channelIndex(id);
    QVERIFY(channel >= 0);
    QCOMPARE(report.guide.channel(channel).name, name);
    QTEST(report.guide.programmeCount(channel), "programmes");
}

void TestRealGuide::whatIsOnAtFivePastEight_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("subTitle");
    QTest::addColumn<qint64>("start");
    QTest::addColumn<qint64>("stop");
    const qint64 eight = at("2015-11-26T20:00:00Z");
    const qint64 nine = at("2015-11-26T21:00:00Z");
    QTest::newRow("first") << "UK_RT_2667"
                           << "Watchdog"
                           << "" << at("2015-11-26T19:30:00Z") << at("2015-11-26T20:30:00Z");
    QTest::newRow("second") << "UK_RT_105"
                            << "MasterChef: The Professionals"
                            << "" << eight << nine;
    QTest::newRow("third") << "UK_RT_2118"
                           << "Coronation Street"
                           << "8781" << eight << at("2015-11-26T20:30:00Z");
    QTest::newRow("fourth") << "UK_RT_2056"
                            << "The Secret Life of"
                            << "The Secret Life of 5 Year Olds" << eight << nine;
    QTest::newRow("fifth") << "UK_RT_134"
                           << "Alex Polizzi's Italian Islands"
                           << "Sardinia" << eight << nine;
}

void TestRealGuide::whatIsOnAtFivePastEight()
{
    const GuideReport report = read("uk-two-weeks.xml");
    QFETCH(QString, id);
    const int channel = report.guide.channelIndex(id);
    const int row = report.guide.programmeAt(channel, at("2015-11-26T20:05:00Z"));
    QVERIFY(row >= 0);
    const Programme programme = report.guide.programme(channel, row);
    QTEST(programme.title, "title");
    QTEST(programme.subTitle, "subTitle");
    QTEST(programme.time.start, "start");
    QTEST(programme.time.stop, "stop");
}

void TestRealGuide::programmesOfNoLengthAreKept()
{
    const GuideReport report = read("uk-two-weeks.xml");
    int empty = 0;
    for (int channel = 0; channel < report.guide.channelCount(); ++channel) {
        for (int i = 0; i < report.guide.programmeCount(channel); ++i) {
            const TimeSpan time = report.guide.timeSpan(channel, i);
            empty += time.start == time.stop ? 1 : 0;
        }
    }
    QCOMPARE(empty, 49);
}

void TestRealGuide::theGuideReadsTheSameWhenCompressed()
{
    const GuideReport plain = read("uk-two-weeks.xml");
    QFile source(file("uk-two-weeks.xml"));
    QVERIFY(source.open(QIODevice::ReadOnly));
    const GuideReport packed = guidetext::read(guidetext::gzip(source.readAll()));
    QCOMPARE(packed.outcome, GuideReport::Outcome::Complete);
    QCOMPARE(packed.guide.programmeCount(), 1964);
    for (int channel = 0; channel < 5; ++channel) {
        QCOMPARE(packed.guide.programmeCount(channel), plain.guide.programmeCount(channel));
        const int last = packed.guide.programmeCount(channel) - 1;
        QCOMPARE(packed.guide.programme(channel, last).description,
                 plain.guide.programme(channel, last).description);
    }
}

void TestRealGuide::aNumericNameIsTheChannelsNumber()
{
    const GuideReport report = read("uk-two-weeks.xml");
    QCOMPARE(report.guide.channel(0).number, QStringLiteral("7-1"));
    QCOMPARE(report.guide.channel(1).number, QString());
}

void TestRealGuide::aFileWithAByteOrderMarkShowsItsProgramme()
{
    const GuideReport report = read("custom.xml");
    QCOMPARE(report.guide.channelCount(), 1);
    const Channel channel = report.guide.channel(0);
    QCOMPARE(channel.id, QStringLiteral("EPG123.10108.schedulesdirect.org"));
    QCOMPARE(channel.name, QStringLiteral("CFTO"));
    QCOMPARE(channel.number, QStringLiteral("201"));
    QCOMPARE(channel.icon, QUrl()); // its picture is not beside the file
    QCOMPARE(report.guide.programmeCount(), 1);
    const Programme programme = report.guide.programme(0, 0);
    QCOMPARE(programme.title, QStringLiteral("Unforgettable"));
    QCOMPARE(programme.subTitle, QStringLiteral("Trajectories"));
    QCOMPARE(programme.category, QStringLiteral("Series"));
    QCOMPARE(programme.time, (TimeSpan { at("2020-07-29T01:00:00Z"), at("2020-07-29T02:01:00Z") }));
}

STB_TEST_MAIN(TestRealGuide)
#include "tst_realguide.moc"
