// SPDX-License-Identifier: MIT
#include "gallery/data/playlistmatch.h"
#include "gallery/data/playlistreader.h"
#include "testkit/testcase.h"

#include <QtCore/qset.h>

#include <random>

using namespace gallery;

/*! Damaged playlists: whatever comes, the reader ends, and what it gives is whole in itself. */
class TestPlaylistFuzz : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFileCutAnywhereKeepsTheChannelsBefore();
    void changedBytesDoNoHarm();
    void linesOfSpecialCharactersDoNoHarm();

private:
    static QByteArray sample();
    static void check(const PlaylistReport &report);
};

QByteArray TestPlaylistFuzz::sample()
{
    return "\xef\xbb\xbf#EXTM3U\r\n"
           "#EXTINF:-1 tvg-id=\"a\" tvg-name='B, c' tvg-logo=\"http://a/l.png\" tvg-chno=\"7\" "
           "group-title=\"The \"Best\", x\",One HD\r\n#EXTGRP:x\r\nhttp://a/b c\r\n"
           "#EXTINF:-1 tvg-id=\"a\" tvg-chno=7,Zw\xc3\xb6lf\nhttp://b\n"
           "#EXTINF:0 group-title=\"open,Dr\xe9i\nhttp://c\n"
           "http://d/e\n";
}

// Whatever was read has names, addresses and numbers of its own, and can be shown.
void TestPlaylistFuzz::check(const PlaylistReport &report)
{
    QSet<QString> numbers;
    for (const PlaylistChannel &channel : report.playlist) {
        QVERIFY(!channel.name.isEmpty());
        QVERIFY(!channel.address.isEmpty());
        QVERIFY(channel.number.isEmpty() || !numbers.contains(channel.number));
        numbers.insert(channel.number);
    }
    qint64 line = 0;
    for (const PlaylistProblem &problem : report.problems) {
        QVERIFY(problem.line > line); // one for each line, in their order
        QVERIFY(!problem.text.isEmpty());
        line = problem.line;
    }
    QVERIFY(report.problemCount >= report.problems.size());
    QCOMPARE(report.error.isEmpty(), report.outcome == PlaylistReport::Outcome::Complete);
    const Guide guide = matchedGuide(report.playlist, Guide()).guide;
    QCOMPARE(guide.channelCount(), int(report.playlist.size()));
    for (int i = 0; i < guide.channelCount(); ++i)
        QCOMPARE(guide.channelIndex(guide.channel(i).id), i);
}

void TestPlaylistFuzz::aFileCutAnywhereKeepsTheChannelsBefore()
{
    const QByteArray whole = sample();
    qsizetype last = 0;
    for (qsizetype size = 0; size <= whole.size(); ++size) {
        const PlaylistReport report = readPlaylist(whole.left(size), QStringLiteral("cut.m3u"));
        check(report);
        QVERIFY(report.playlist.size() >= last); // nothing that was there goes away again
        last = report.playlist.size();
    }
    QCOMPARE(last, 4);
}

void TestPlaylistFuzz::changedBytesDoNoHarm()
{
    std::mt19937 random(20151126); // NOLINT(cert-msc51-cpp): the same every time
    for (int round = 0; round < 5000; ++round) {
        QByteArray changed = sample();
        const unsigned changes = 1 + random() % 6;
        for (unsigned change = 0; change < changes; ++change)
            changed[qsizetype(random() % unsigned(changed.size()))] = char(random());
        check(readPlaylist(changed, QStringLiteral("changed.m3u")));
    }
}

void TestPlaylistFuzz::linesOfSpecialCharactersDoNoHarm()
{
    static const QByteArray alphabet("\"'\\=, \ta#\r\n:-1\0\xff\xc3", 17);
    std::mt19937 random(20151209); // NOLINT(cert-msc51-cpp): the same every time
    for (int round = 0; round < 3000; ++round) {
        QByteArray file = "#EXTM3U\n#EXTINF:-1 tvg-id=";
        for (int i = 0; i < 60; ++i)
            file += alphabet[qsizetype(random() % unsigned(alphabet.size()))];
        check(readPlaylist(file + ",One\nhttp://a\n", QStringLiteral("odd.m3u")));
    }
}

STB_TEST_MAIN(TestPlaylistFuzz)
#include "tst_playlistfuzz.moc"
