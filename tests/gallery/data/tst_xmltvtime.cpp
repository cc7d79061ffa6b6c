// SPDX-License-Identifier: MIT
#include "gallery/data/xmltvtime.h"
#include "guidetext.h"
#include "testkit/testcase.h"

using gallery::parseXmltvTime;
using guidetext::at;
using guidetext::setZone;

class TestXmltvTime : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aWrittenTimeIsThatInstant_data();
    void aWrittenTimeIsThatInstant();
    void aTimeWithoutZoneIsUtcWhateverTheZoneHere();
    void anUnknownZoneNameIsUtcAndSaysSo();
    void whatIsNoTimeGivesNothing_data();
    void whatIsNoTimeGivesNothing();
};

void TestXmltvTime::aWrittenTimeIsThatInstant_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("seconds");
    const auto row = [](const char *text, const char *iso) {
        QTest::newRow(text) << QString::fromLatin1(text) << at(iso);
    };
    row("20151126200543 +0000", "2015-11-26T20:05:43Z");
    row("20151126200543", "2015-11-26T20:05:43Z");
    row("20151126200543 Z", "2015-11-26T20:05:43Z");
    row("20151126200543Z", "2015-11-26T20:05:43Z");
    row("20151126200543 +0100", "2015-11-26T19:05:43Z");
    row("20151126200543+0100", "2015-11-26T19:05:43Z");
    row("20151126200543 +01:00", "2015-11-26T19:05:43Z");
    row("20151126200543 -01", "2015-11-26T21:05:43Z");
    row("20151126200543 -0330", "2015-11-26T23:35:43Z");
    row("20151126200543 +0545", "2015-11-26T14:20:43Z");
    row("20150726200543 BST", "2015-07-26T19:05:43Z");
    row("20150726200543 bst", "2015-07-26T19:05:43Z");
    row("20150726200543   BST  ", "2015-07-26T19:05:43Z");
    row("20151126200543 GMT", "2015-11-26T20:05:43Z");
    row("20151126200543 UTC", "2015-11-26T20:05:43Z");
    row("20151126200543 CET", "2015-11-26T19:05:43Z");
    row("20150726200543 CEST", "2015-07-26T18:05:43Z");
    row("20151126200543 EET", "2015-11-26T18:05:43Z");
    row("20150726200543 EEST", "2015-07-26T17:05:43Z");
    row("20151126200543 MSK", "2015-11-26T17:05:43Z");
    row("20151126200543 WET", "2015-11-26T20:05:43Z");
    row("20150726200543 WEST", "2015-07-26T19:05:43Z");
    row("20151126200543 EST", "2015-11-27T01:05:43Z");
    row("20150726200543 EDT", "2015-07-27T00:05:43Z");
    row("20151126200543 CST", "2015-11-27T02:05:43Z");
    row("20150726200543 CDT", "2015-07-27T01:05:43Z");
    row("20151126200543 MST", "2015-11-27T03:05:43Z");
    row("20150726200543 MDT", "2015-07-27T02:05:43Z");
    row("20151126200543 PST", "2015-11-27T04:05:43Z");
    row("20150726200543 PDT", "2015-07-27T03:05:43Z");
    row("20151126200543 JST", "2015-11-26T11:05:43Z");
    row("2015", "2015-01-01T00:00:00Z");
    row("201511", "2015-11-01T00:00:00Z");
    row("20151126", "2015-11-26T00:00:00Z");
    row("2015112620", "2015-11-26T20:00:00Z");
    row("201511262005", "2015-11-26T20:05:00Z");
    row("201511262005 +0200", "2015-11-26T18:05:00Z");
    row("20160229", "2016-02-29T00:00:00Z");
    row("20151126240000", "2015-11-27T00:00:00Z");
    row("20161231235960", "2017-01-01T00:00:00Z");
    row("19691231235959", "1969-12-31T23:59:59Z");
}

void TestXmltvTime::aWrittenTimeIsThatInstant()
{
    QFETCH(QString, text);
    QFETCH(qint64, seconds);
    const auto time = parseXmltvTime(text);
    QVERIFY(time);
    QCOMPARE(time->seconds, seconds);
    QVERIFY(time->zoneKnown);
}

void TestXmltvTime::aTimeWithoutZoneIsUtcWhateverTheZoneHere()
{
    setZone("EST-7:30");
    const auto second = parseXmltvTime(u"20151126200543");
    const auto day = parseXmltvTime(u"20151126");
    setZone("UTC");
    QVERIFY(second && day);
    QCOMPARE(second->seconds, at("2015-11-26T20:05:43Z"));
    QCOMPARE(day->seconds, at("2015-11-26T00:00:00Z"));
}

void TestXmltvTime::anUnknownZoneNameIsUtcAndSaysSo()
{
    const auto time = parseXmltvTime(u"20151126200543 XYZT");
    QVERIFY(time);
    QCOMPARE(time->seconds, at("2015-11-26T20:05:43Z"));
    QVERIFY(!time->zoneKnown);
}

void TestXmltvTime::whatIsNoTimeGivesNothing_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : { "",
                              "  ",
                              "soon",
                              "201",
                              "20151",
                              "2015112",
                              "201511262005431",
                              "2015112620054312",
                              "20151301",
                              "20150229",
                              "2015113124",
                              "20151126250000",
                              "20151126240001",
                              "20151126206000",
                              "20151126200561",
                              "00000101",
                              "20151126 +1",
                              "20151126 +01:",
                              "20151126 +010",
                              "20151126 +0160",
                              "20151126 +1600",
                              "20151126 + 0100",
                              "20151126 +01:0x",
                              "20151126 C3T",
                              "20151126 20:05" })
        QTest::newRow(*text ? text : "nothing") << QString::fromLatin1(text);
}

void TestXmltvTime::whatIsNoTimeGivesNothing()
{
    QFETCH(QString, text);
    QVERIFY(!parseXmltvTime(text));
}

STB_TEST_MAIN(TestXmltvTime)
#include "tst_xmltvtime.moc"
