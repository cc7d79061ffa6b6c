// SPDX-License-Identifier: MIT
#include "guidetext.h"
#include "testkit/testcase.h"

#include <random>

using namespace gallery;

/*! Damaged files: whatever comes, the reader ends, and what it gives is whole in itself. */
class TestGuideFuzz : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFileCutAnywhereShowsWhatComesBefore();
    void aCompressedFileCutAnywhereShowsWhatComesBefore();
    void changedBytesDoNoHarm_data();
    void changedBytesDoNoHarm();

private:
    static QByteArray sample();
    static void check(const GuideReport &report);
};

QByteArray TestGuideFuzz::sample()
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE tv SYSTEM "xmltv.dtd" [<!ENTITY own "text">]>
<tv generator-info-name="x">
  <channel id="a"><display-name lang="en">One</display-name><display-name>1</display-name>
    <icon src="a.png"/></channel>
  <channel id="b"><display-name lang="ru">Два</display-name></channel>
  <!-- the evening -->
  <programme start="20151126200543 +0100" stop="20151126211749 BST" channel="a" clumpidx="0/2">
    <title lang="en">A &amp; B &own; &#x41;</title><sub-title><![CDATA[<c>]]></sub-title>
    <desc>Long</desc><length units="minutes">7</length></programme>
  <programme start="201511262117" channel="a"><title>C</title></programme>
  <programme start="2015" channel="c"><title>D</title><category>K</category></programme>
</tv>
)";
}

// Whatever was read is sorted, findable, and consistent in its numbers.
void TestGuideFuzz::check(const GuideReport &report)
{
    const Guide &guide = report.guide;
    qint64 count = 0;
    for (int channel = 0; channel < guide.channelCount(); ++channel) {
        QVERIFY(!guide.channel(channel).id.isEmpty());
        QVERIFY(!guide.channel(channel).name.isEmpty());
        QCOMPARE(guide.channelIndex(guide.channel(channel).id), channel);
        for (int i = 0; i < guide.programmeCount(channel); ++i) {
            const Programme programme = guide.programme(channel, i);
            QVERIFY(programme.time.stop >= programme.time.start);
            QVERIFY(i == 0 || guide.timeSpan(channel, i - 1).start <= programme.time.start);
            ++count;
        }
    }
    QCOMPARE(guide.programmeCount(), count);
    QCOMPARE(report.error.isEmpty(), report.outcome == GuideReport::Outcome::Complete);
}

void TestGuideFuzz::aFileCutAnywhereShowsWhatComesBefore()
{
    const QByteArray whole = sample();
    const qsizetype end = whole.indexOf("</tv>") + 5;
    qint64 last = 0;
    for (qsizetype size = 0; size <= whole.size(); ++size) {
        const GuideReport report = guidetext::read(whole.left(size));
        check(report);
        QCOMPARE(report.outcome == GuideReport::Outcome::Complete, size >= end);
        QVERIFY(report.guide.programmeCount() >= last); // nothing that was there goes away again
        last = report.guide.programmeCount();
    }
    QCOMPARE(last, 3);
}

void TestGuideFuzz::aCompressedFileCutAnywhereShowsWhatComesBefore()
{
    const QByteArray whole = guidetext::gzip(sample());
    for (qsizetype size = 0; size < whole.size(); ++size) {
        const GuideReport report = guidetext::read(whole.left(size));
        check(report);
        QVERIFY(report.outcome == GuideReport::Outcome::Partial
                || report.outcome == GuideReport::Outcome::Unreadable);
    }
    QCOMPARE(guidetext::read(whole).guide.programmeCount(), 3);
}

void TestGuideFuzz::changedBytesDoNoHarm_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("plain") << sample();
    QTest::newRow("compressed") << guidetext::gzip(sample());
    QTest::newRow("recoded") << QByteArray(sample()).replace("UTF-8", "windows-1251");
}

void TestGuideFuzz::changedBytesDoNoHarm()
{
    QFETCH(QByteArray, file);
    std::mt19937 random(20151126); // NOLINT(cert-msc51-cpp): the same every time
    for (int round = 0; round < 3000; ++round) {
        QByteArray changed = file;
        const unsigned changes = 1 + random() % 4;
        for (unsigned change = 0; change < changes; ++change)
            changed[qsizetype(random() % unsigned(changed.size()))] = char(random());
        check(guidetext::read(changed));
    }
}

STB_TEST_MAIN(TestGuideFuzz)
#include "tst_guidefuzz.moc"
