// SPDX-License-Identifier: MIT
#include "gallery/data/channelmodel.h"
#include "gallery/data/guidebuilder.h"
#include "gallery/data/playlistmatch.h"
#include "gallery/data/playlistreader.h"
#include "gallery/data/programmemodel.h"
#include "guidetext.h"
#include "testkit/testcase.h"

using namespace gallery;
using guidetext::at;

class TestPlaylistMatch : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void idsAreFoundBeforeNames();
    void namesAreTheSameForAViewer_data();
    void namesAreTheSameForAViewer();
    void aNameOfSeveralChannelsFindsNone();
    void thePlaylistNamesNumbersAndOrders();
    void aChannelThatTheGuideLacksStaysWithoutProgrammes();
    void aChannelThatThePlaylistLacksIsLeftOut();
    void channelsOfOneIdShowTheSameProgrammes();
    void withoutLogoTheGuidesIsTaken();
    void theModelsShowTheMatch();
    void aMatchStaysWhenItsGuideGoes();
    void aMatchOfAMatchIsOneToo();
    void manyProgrammesAreSharedNotCopied();
    void theRealGuideIsMatched();
};

namespace {

NewProgramme programme(const QString &channel, const char *start, const char *title)
{
    NewProgramme programme;
    programme.channelId = channel;
    programme.start = at(start);
    programme.stop = programme.start + 3600;
    programme.title = QLatin1String(title);
    return programme;
}

// Four channels, two of one name; each has one programme with its id as the title.
Guide sample()
{
    GuideBuilder builder;
    const QUrl icon(QStringLiteral("https://example.org/guide.png"));
    builder.addChannel({ QStringLiteral("a"), QStringLiteral("Café  One"), QStringLiteral("11"), icon });
    builder.addChannel({ QStringLiteral("b"), QStringLiteral("Two"), {}, {} });
    builder.addChannel({ QStringLiteral("c"), QStringLiteral("Same"), {}, {} });
    builder.addChannel({ QStringLiteral("d"), QStringLiteral("SAME"), {}, {} });
    builder.addProgramme(programme(QStringLiteral("a"), "2015-11-26T20:00:00Z", "a"));
    builder.addProgramme(programme(QStringLiteral("b"), "2015-11-26T21:00:00Z", "b"));
    builder.addProgramme(programme(QStringLiteral("c"), "2015-11-26T22:00:00Z", "c"));
    builder.addProgramme(programme(QStringLiteral("d"), "2015-11-26T23:00:00Z", "d"));
    return builder.take();
}

PlaylistChannel channel(const QString &id, const QString &name, const QString &guideName = {})
{
    PlaylistChannel channel;
    channel.id = id;
    channel.name = name;
    channel.guideName = guideName;
    channel.address = QStringLiteral("http://example.org/") + name;
    return channel;
}

// The title of the first programme of each channel, "-" for a channel without.
QStringList titles(const Guide &guide)
{
    QStringList titles;
    for (int i = 0; i < guide.channelCount(); ++i)
        titles.append(guide.programmeCount(i) > 0 ? guide.programme(i, 0).title : QStringLiteral("-"));
    return titles;
}

QStringList ids(const Guide &guide)
{
    QStringList ids;
    for (int i = 0; i < guide.channelCount(); ++i)
        ids.append(guide.channel(i).id);
    return ids;
}

} // namespace

void TestPlaylistMatch::idsAreFoundBeforeNames()
{
    const PlaylistMatch match = matchedGuide({ channel(QStringLiteral("a"), QStringLiteral("Two")),
                                               channel(QStringLiteral("none"), QStringLiteral("Two")),
                                               channel({}, QStringLiteral("Two"), QStringLiteral("café one")),
                                               channel(QStringLiteral("A"), QStringLiteral("Other")) },
                                             sample());
    QCOMPARE(titles(match.guide), QStringList({ "a", "b", "a", "-" }));
    QCOMPARE(match.foundById, 1);
    QCOMPARE(match.foundByName, 2);
    QCOMPARE(match.notInGuide, 1);
    QCOMPARE(match.notInPlaylist, 2);
    QCOMPARE(match.summary(),
             QStringLiteral(
                     "4 channels: 1 found in the guide by id, 2 by name, 1 not; 2 channels of the guide are "
                     "not in the playlist and are left out"));
}

void TestPlaylistMatch::namesAreTheSameForAViewer_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title");
    QTest::newRow("case") << QStringLiteral("CAFÉ ONE") << "a";
    QTest::newRow("blanks") << QStringLiteral("  Café One\t") << "a";
    QTest::newRow("composed otherwise") << QStringLiteral("Cafe\u0301 One") << "a";
    QTest::newRow("no-break space") << QStringLiteral("Café\u00a0One") << "a";
    QTest::newRow("other letters") << QStringLiteral("Cafe One") << "-";
    QTest::newRow("only a part") << QStringLiteral("Café") << "-";
    QTest::newRow("only blanks") << QStringLiteral("  ") << "-";
}

void TestPlaylistMatch::namesAreTheSameForAViewer()
{
    QFETCH(QString, name);
    QFETCH(QString, title);
    QCOMPARE(titles(matchedGuide({ channel({}, name) }, sample()).guide), QStringList(title));
}

void TestPlaylistMatch::aNameOfSeveralChannelsFindsNone()
{
    const PlaylistMatch match = matchedGuide({ channel({}, QStringLiteral("Same")),
                                               channel(QStringLiteral("d"), QStringLiteral("Same")) },
                                             sample());
    QCOMPARE(titles(match.guide), QStringList({ "-", "d" }));
}

void TestPlaylistMatch::thePlaylistNamesNumbersAndOrders()
{
    PlaylistChannel one = channel(QStringLiteral("a"), QStringLiteral("Mine HD"));
    one.number = QStringLiteral("7");
    one.group = QStringLiteral("News");
    one.quality = QStringLiteral("HD");
    one.locked = true;
    one.logo = QUrl(QStringLiteral("https://example.org/mine.png"));
    const Guide guide = matchedGuide({ channel(QStringLiteral("b"), QStringLiteral("First")), one }, sample())
                                .guide;
    QCOMPARE(ids(guide), QStringList({ "b", "a" }));
    QCOMPARE(guide.channel(0).name, QStringLiteral("First"));
    QCOMPARE(guide.channel(0).number, QString());
    QCOMPARE(guide.channel(1).name, QStringLiteral("Mine HD"));
    QCOMPARE(guide.channel(1).number, QStringLiteral("7"));
    QCOMPARE(guide.channel(1).group, QStringLiteral("News"));
    QCOMPARE(guide.channel(1).quality, QStringLiteral("HD"));
    QVERIFY(guide.channel(1).locked);
    QVERIFY(!guide.channel(0).locked);
    QCOMPARE(guide.channel(1).icon, QUrl(QStringLiteral("https://example.org/mine.png")));
    QCOMPARE(guide.programmeCount(), 2);
    QCOMPARE(guide.timeSpan(), TimeSpan({ at("2015-11-26T20:00:00Z"), at("2015-11-26T22:00:00Z") }));
}

void TestPlaylistMatch::aChannelThatTheGuideLacksStaysWithoutProgrammes()
{
    const Guide guide = matchedGuide({ channel({}, QStringLiteral("b")), channel({}, QStringLiteral("New")),
                                       channel(QStringLiteral("b"), QStringLiteral("Two")) },
                                     sample())
                                .guide;
    // The guide's channel keeps its id, whatever others are called.
    QCOMPARE(ids(guide), QStringList({ "b (2)", "New", "b" }));
    QCOMPARE(titles(guide), QStringList({ "-", "-", "b" }));
    QCOMPARE(guide.programmeAt(1, at("2015-11-26T20:30:00Z")), -1);
    QCOMPARE(guide.nextProgramme(1, 0), -1);
    QCOMPARE(guide.previousProgramme(1, at("2015-11-26T20:30:00Z")), -1);
    QVERIFY(guide.programmesIn(1, localDay(QDate(2015, 11, 26))).isEmpty());
}

void TestPlaylistMatch::aChannelThatThePlaylistLacksIsLeftOut()
{
    const Guide guide = matchedGuide({ channel(QStringLiteral("b"), QStringLiteral("Two")) }, sample()).guide;
    QCOMPARE(guide.channelCount(), 1);
    QCOMPARE(guide.channelIndex(QStringLiteral("a")), -1);
    const PlaylistMatch nothing = matchedGuide({}, sample());
    QVERIFY(nothing.guide.isEmpty());
    QCOMPARE(nothing.guide.timeSpan(), TimeSpan());
    QCOMPARE(nothing.notInPlaylist, 4);
}

void TestPlaylistMatch::channelsOfOneIdShowTheSameProgrammes()
{
    const Guide guide = matchedGuide({ channel(QStringLiteral("a"), QStringLiteral("One")),
                                       channel(QStringLiteral("a"), QStringLiteral("One HD")),
                                       channel(QStringLiteral("a"), QStringLiteral("One 4K")) },
                                     sample())
                                .guide;
    QCOMPARE(titles(guide), QStringList({ "a", "a", "a" }));
    QCOMPARE(ids(guide), QStringList({ "a", "a (2)", "a (3)" }));
    QVERIFY(guide.sharesProgrammes(0, guide, 2));
}

void TestPlaylistMatch::withoutLogoTheGuidesIsTaken()
{
    const Guide guide = matchedGuide({ channel(QStringLiteral("a"), QStringLiteral("One")) }, sample()).guide;
    QCOMPARE(guide.channel(0).icon, QUrl(QStringLiteral("https://example.org/guide.png")));
}

void TestPlaylistMatch::theModelsShowTheMatch()
{
    PlaylistChannel one = channel(QStringLiteral("a"), QStringLiteral("Mine"));
    one.number = QStringLiteral("7");
    one.group = QStringLiteral("News");
    one.quality = QStringLiteral("4K");
    one.locked = true;
    one.logo = QUrl(QStringLiteral("https://example.org/mine.png"));
    const Guide guide = matchedGuide({ channel({}, QStringLiteral("New")), one }, sample()).guide;
    ChannelModel channels;
    channels.setGuide(guide);
    QCOMPARE(channels.rowOf(QStringLiteral("a")), 1);
    const auto value = [&channels](int row, int role) { return channels.data(channels.index(row), role); };
    QCOMPARE(value(1, ChannelModel::NameRole), QVariant(QStringLiteral("Mine")));
    QCOMPARE(value(1, ChannelModel::NumberRole), QVariant(QStringLiteral("7")));
    QCOMPARE(value(1, ChannelModel::LogoRole), QVariant(one.logo));
    QCOMPARE(value(1, ChannelModel::GroupRole), QVariant(QStringLiteral("News")));
    QCOMPARE(value(1, ChannelModel::QualityRole), QVariant(QStringLiteral("4K")));
    QCOMPARE(value(0, ChannelModel::GroupRole), QVariant(QString()));
    QCOMPARE(value(0, ChannelModel::QualityRole), QVariant(QString()));
    QCOMPARE(channels.roleNames().value(ChannelModel::GroupRole), QByteArray("group"));
    QCOMPARE(channels.roleNames().value(ChannelModel::QualityRole), QByteArray("quality"));
    QCOMPARE(value(1, ChannelModel::LockedRole), QVariant(true));
    QCOMPARE(value(0, ChannelModel::LockedRole), QVariant(false));
    QCOMPARE(channels.roleNames().value(ChannelModel::LockedRole), QByteArray("locked"));
    ProgrammeModel programmes;
    programmes.setGuide(guide);
    programmes.select(0, QDate(2015, 11, 26));
    QCOMPARE(programmes.rowCount(), 0);
    programmes.select(1, QDate(2015, 11, 26));
    QCOMPARE(programmes.data(programmes.index(0), ProgrammeModel::TitleRole), QVariant(QStringLiteral("a")));
}

void TestPlaylistMatch::aMatchStaysWhenItsGuideGoes()
{
    Guide guide = sample();
    guide = matchedGuide({ channel(QStringLiteral("b"), QStringLiteral("Two")) }, guide).guide;
    QCOMPARE(titles(guide), QStringList(QStringLiteral("b")));
}

void TestPlaylistMatch::aMatchOfAMatchIsOneToo()
{
    const Guide guide = sample();
    const Playlist playlist = { channel(QStringLiteral("b"), QStringLiteral("Two")) };
    const Guide twice = matchedGuide(playlist, matchedGuide(playlist, guide).guide).guide;
    QCOMPARE(titles(twice), QStringList(QStringLiteral("b")));
    QVERIFY(twice.sharesProgrammes(0, guide, 1));
}

void TestPlaylistMatch::manyProgrammesAreSharedNotCopied()
{
    constexpr int channelCount = 1000;
    constexpr int programmesEach = 250;
    GuideBuilder builder;
    Playlist playlist;
    NewProgramme added;
    for (int i = 0; i < channelCount; ++i) {
        added.channelId = QString::number(i);
        builder.addChannel({ added.channelId, QStringLiteral("Name %1").arg(i), {}, {} });
        playlist.prepend(channel(i % 2 == 0 ? added.channelId : QString(), QStringLiteral("name %1").arg(i)));
        for (int j = 0; j < programmesEach; ++j) {
            added.start = qint64(j) * 1800;
            added.stop = added.start + 1800;
            builder.addProgramme(added);
        }
    }
    const Guide guide = builder.take();
    const PlaylistMatch match = matchedGuide(playlist, guide);
    QCOMPARE(match.foundById, 500);
    QCOMPARE(match.foundByName, 500);
    QCOMPARE(match.guide.programmeCount(), channelCount * programmesEach);
    for (int i = 0; i < channelCount; ++i)
        QVERIFY(match.guide.sharesProgrammes(i, guide, channelCount - 1 - i));
    // All that is new is the list of channels.
    QVERIFY(match.guide.memoryUsage() - guide.memoryUsage() < 1000 * channelCount);
}

void TestPlaylistMatch::theRealGuideIsMatched()
{
    if (qEnvironmentVariableIsEmpty("STBUI_TEST_DATA"))
        QSKIP("left out: STBUI_TEST_DATA does not name the folder with the real guides");
    const GuideReport guide = readGuide(qEnvironmentVariable("STBUI_TEST_DATA")
                                        + QLatin1String("/xmltv/uk-two-weeks.xml"));
    QCOMPARE(guide.error, QString());
    const PlaylistReport playlist =
            readPlaylist("#EXTM3U\n"
                         "#EXTINF:-1 tvg-id=\"UK_RT_134\" tvg-chno=\"5\",Five\nhttp://5\n"
                         "#EXTINF:-1 tvg-chno=\"1\",bbc1 hd\nhttp://1\n"
                         "#EXTINF:-1 tvg-chno=\"9\",Nine\nhttp://9\n"
                         "#EXTINF:-1 tvg-name=\"ITV1 HD\" tvg-chno=\"3\",Three\nhttp://3\n",
                         QStringLiteral("uk.m3u"));
    QCOMPARE(playlist.messages(QStringLiteral("uk.m3u")), QStringList());
    const PlaylistMatch match = matchedGuide(playlist.playlist, guide.guide);
    QCOMPARE(ids(match.guide), QStringList({ "UK_RT_134", "UK_RT_2667", "Nine", "UK_RT_2118" }));
    QCOMPARE(match.guide.programmeCount(0), 501);
    QCOMPARE(match.guide.programmeCount(1), 330);
    QCOMPARE(match.guide.programmeCount(2), 0);
    QCOMPARE(match.guide.programmeCount(3), 413);
    QCOMPARE(match.guide.programme(1, 0).title, QStringLiteral("Breakfast"));
    QCOMPARE(match.guide.channel(1).quality, QStringLiteral("HD"));
    QCOMPARE(match.notInPlaylist, 2);
}

STB_TEST_MAIN(TestPlaylistMatch)
#include "tst_playlistmatch.moc"
