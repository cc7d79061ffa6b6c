// SPDX-License-Identifier: MIT
#include "gallery/data/channelmodel.h"
#include "gallery/data/clock.h"
#include "gallery/data/guidebuilder.h"
#include "gallery/data/programmemodel.h"
#include "guidetext.h"
#include "testkit/testcase.h"

#include <QtTest/qabstractitemmodeltester.h>
#include <QtTest/qsignalspy.h>

using namespace gallery;
using guidetext::at;
using guidetext::setZone;

class TestGuideModels : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void channelRowsTellWhatTheGuideHas();
    void aNewGuideResetsTheChannels();
    void aDayHasWhatRunsOrStartsInIt();
    void aDayOfChangedClocksHasItsHours_data();
    void aDayOfChangedClocksHasItsHours();
    void timesAreLocalAndInTwentyFourHours();
    void rolesHaveTheirNames();
    void aRowTellsItsTexts();
    void stateFollowsTheTime_data();
    void stateFollowsTheTime();
    void withoutATimeEverythingIsFuture();
    void playableEndsWithTheCatchUpTime();
    void aMinuteInsideAProgrammeChangesOnlyItsProgress();
    void theNextProgrammeChangesTwoRows();
    void aTimeThatChangesNothingTellsNothing();
    void ofOverlappingProgrammesTheLatestIsTheLiveRow();
    void aProgrammeOfNoLengthIsNeverLive();
    void anotherChannelResetsOnce();
    void anotherDayWithTheSameRowsDoesNotReset();
    void theSameSelectionDoesNothing();
    void anotherGuideResets();
    void aChannelThatIsNotThereHasNoRows();
    void indexAtFindsOnlyWhatIsOnThatDay();
    void nearestRowAlwaysFindsOne();
    void theClockStandsWhereItIsSet();
    void theClockRunsAgainWithoutATime();
    void theClockWaitsForTheFullMinute_data();
    void theClockWaitsForTheFullMinute();
};

namespace {

QDateTime time(const char *iso)
{
    return QDateTime::fromString(QLatin1String(iso), Qt::ISODate);
}

NewProgramme entry(const char *channel, const char *start, const char *stop, const char *title)
{
    NewProgramme programme;
    programme.channelId = QLatin1String(channel);
    programme.start = at(start);
    programme.stop = at(stop);
    programme.title = QLatin1String(title);
    return programme;
}

// Channel 0: a day with a programme over each midnight; channel 1: one programme; channel 2: nothing.
Guide sample()
{
    GuideBuilder guide;
    guide.addChannel({ QStringLiteral("a"), QStringLiteral("One"), QStringLiteral("7"),
                       QUrl(QStringLiteral("https://example.com/a.png")) });
    guide.addChannel({ QStringLiteral("b"), QStringLiteral("Two"), {}, {} });
    guide.addChannel({ QStringLiteral("c"), QStringLiteral("Three"), {}, {} });
    guide.addProgramme(entry("a", "2015-11-25T22:30:00Z", "2015-11-25T23:45:00Z", "before"));
    guide.addProgramme(entry("a", "2015-11-25T23:45:00Z", "2015-11-26T00:35:00Z", "over"));
    guide.addProgramme(entry("a", "2015-11-26T00:35:00Z", "2015-11-26T19:30:00Z", "day"));
    NewProgramme evening = entry("a", "2015-11-26T19:30:00Z", "2015-11-26T20:30:00Z", "evening");
    evening.subTitle = QStringLiteral("sub");
    evening.description = QStringLiteral("desc");
    evening.category = QStringLiteral("cat");
    guide.addProgramme(evening);
    guide.addProgramme(entry("a", "2015-11-26T20:30:00Z", "2015-11-27T01:10:00Z", "late"));
    guide.addProgramme(entry("a", "2015-11-27T01:10:00Z", "2015-11-27T02:00:00Z", "after"));
    guide.addProgramme(entry("b", "2015-11-25T12:00:00Z", "2015-11-28T12:00:00Z", "long"));
    return guide.take();
}

struct Fixture
{
    ProgrammeModel model;
    QAbstractItemModelTester tester { &model, QAbstractItemModelTester::FailureReportingMode::QtTest };

    explicit Fixture(const Guide &guide = sample(), const char *now = "2015-11-26T20:05:00Z")
    {
        model.setGuide(guide);
        model.setNow(time(now));
        model.select(0, QDate(2015, 11, 26));
    }
    QVariant value(int row, ProgrammeModel::Role role) const { return model.data(model.index(row), role); }
    QStringList titles() const
    {
        QStringList list;
        for (int row = 0; row < model.rowCount(); ++row)
            list.append(value(row, ProgrammeModel::TitleRole).toString());
        return list;
    }
};

// Row and roles of a dataChanged signal as one string: "2: isLive progress".
QStringList changes(const QSignalSpy &spy, const ProgrammeModel &model)
{
    QStringList list;
    for (const QList<QVariant> &signal : spy) {
        const auto first = signal.at(0).toModelIndex();
        QStringList roles;
        for (const int role : signal.at(2).value<QList<int>>())
            roles.append(QString::fromLatin1(model.roleNames().value(role)));
        list.append(QString::number(first.row()) + u'-' + QString::number(signal.at(1).toModelIndex().row())
                    + QLatin1String(": ") + roles.join(u' '));
    }
    return list;
}

} // namespace

void TestGuideModels::cleanup()
{
    setZone("UTC");
}

void TestGuideModels::channelRowsTellWhatTheGuideHas()
{
    ChannelModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.rowCount(), 0);
    model.setGuide(sample());
    QCOMPARE(model.count(), 3);
    const QModelIndex first = model.index(0);
    QCOMPARE(model.data(first, ChannelModel::ChannelIdRole), QVariant(QStringLiteral("a")));
    QCOMPARE(model.data(first, ChannelModel::NameRole), QVariant(QStringLiteral("One")));
    QCOMPARE(model.data(first, Qt::DisplayRole), QVariant(QStringLiteral("One")));
    QCOMPARE(model.data(first, ChannelModel::NumberRole), QVariant(QStringLiteral("7")));
    QCOMPARE(model.data(first, ChannelModel::LogoRole),
             QVariant(QUrl(QStringLiteral("https://example.com/a.png"))));
    QCOMPARE(model.rowOf(QStringLiteral("c")), 2);
    QCOMPARE(model.rowOf(QStringLiteral("x")), -1);
    const QHash<int, QByteArray> names = model.roleNames();
    QCOMPARE(names.value(ChannelModel::ChannelIdRole), "channelId");
    QCOMPARE(names.value(ChannelModel::NameRole), "name");
    QCOMPARE(names.value(ChannelModel::NumberRole), "number");
    QCOMPARE(names.value(ChannelModel::LogoRole), "logo");
}

void TestGuideModels::aNewGuideResetsTheChannels()
{
    ChannelModel model;
    QSignalSpy reset(&model, &ChannelModel::modelReset);
    QSignalSpy count(&model, &ChannelModel::countChanged);
    model.setGuide(sample());
    QCOMPARE(reset.size(), 1);
    QCOMPARE(count.size(), 1);
    model.setGuide(sample());
    QCOMPARE(reset.size(), 2);
    QCOMPARE(count.size(), 1);
}

void TestGuideModels::aDayHasWhatRunsOrStartsInIt()
{
    Fixture f;
    QCOMPARE(f.titles(), QStringList({ "over", "day", "evening", "late" }));
    f.model.setDate(QDate(2015, 11, 25));
    QCOMPARE(f.titles(), QStringList({ "before", "over" }));
    f.model.setDate(QDate(2015, 11, 27));
    QCOMPARE(f.titles(), QStringList({ "late", "after" }));
    f.model.setDate(QDate(2015, 11, 28));
    QCOMPARE(f.titles(), QStringList());
}

void TestGuideModels::aDayOfChangedClocksHasItsHours_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("programmes");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::newRow("clocks go forward") << QDate(2015, 3, 29) << 23 << "00:00"
                                       << "23:00";
    QTest::newRow("clocks go back") << QDate(2015, 10, 25) << 25 << "00:00"
                                    << "23:00";
    QTest::newRow("summer") << QDate(2015, 7, 1) << 24 << "00:00"
                            << "23:00";
}

void TestGuideModels::aDayOfChangedClocksHasItsHours()
{
    setZone("GMT0BST,M3.5.0/1,M10.5.0");
    QFETCH(QDate, date);
    QFETCH(int, programmes);
    GuideBuilder guide; // one programme an hour
    for (qint64 start = at("2015-03-01T00:00:00Z"); start < at("2015-11-01T00:00:00Z"); start += 3600) {
        NewProgramme programme;
        programme.channelId = QStringLiteral("c");
        programme.start = start;
        programme.title = QStringLiteral("x");
        guide.addProgramme(programme);
    }
    Fixture f(guide.take());
    f.model.setDate(date);
    QCOMPARE(f.model.count(), programmes);
    QTEST(f.value(0, ProgrammeModel::StartTimeTextRole).toString(), "first");
    QTEST(f.value(programmes - 1, ProgrammeModel::StartTimeTextRole).toString(), "last");
    QCOMPARE(localDay(date).stop - localDay(date).start, qint64(programmes) * 3600);
}

void TestGuideModels::timesAreLocalAndInTwentyFourHours()
{
    setZone("EST-5:30");
    Fixture f;
    QCOMPARE(f.titles(), QStringList({ "before", "over", "day" })); // from 18:30 UTC on
    QCOMPARE(f.value(2, ProgrammeModel::StartTimeTextRole), QVariant(QStringLiteral("06:05")));
    QCOMPARE(f.value(2, ProgrammeModel::StopTimeTextRole), QVariant(QStringLiteral("01:00")));
}

void TestGuideModels::rolesHaveTheirNames()
{
    const ProgrammeModel model;
    QStringList names;
    for (int role = ProgrammeModel::TitleRole; role <= ProgrammeModel::PictureRole; ++role)
        names.append(QString::fromLatin1(model.roleNames().value(role)));
    QCOMPARE(names.join(u' '),
             QStringLiteral(
                     "title subtitle startTimeText stopTimeText isLive isFuture isPast isPlayable start stop "
                     "progress description category picture"));
}

void TestGuideModels::aRowTellsItsTexts()
{
    const Fixture f;
    QCOMPARE(f.value(2, ProgrammeModel::TitleRole), QVariant(QStringLiteral("evening")));
    QCOMPARE(f.value(2, ProgrammeModel::SubtitleRole), QVariant(QStringLiteral("sub")));
    QCOMPARE(f.value(2, ProgrammeModel::DescriptionRole), QVariant(QStringLiteral("desc")));
    QCOMPARE(f.value(2, ProgrammeModel::CategoryRole), QVariant(QStringLiteral("cat")));
    QCOMPARE(f.value(2, ProgrammeModel::StartRole).toDateTime(), time("2015-11-26T19:30:00Z"));
    QCOMPARE(f.value(2, ProgrammeModel::StopRole).toDateTime(), time("2015-11-26T20:30:00Z"));
    QCOMPARE(f.value(2, ProgrammeModel::StartRole).toDateTime().timeSpec(), Qt::LocalTime);
    QVERIFY(!f.model.data(f.model.index(2), Qt::DecorationRole).isValid());
    QVERIFY(!f.model.data(QModelIndex(), ProgrammeModel::TitleRole).isValid());
}

void TestGuideModels::stateFollowsTheTime_data()
{
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("state");
    QTest::addColumn<double>("progress");
    QTest::newRow("before") << "2015-11-26T19:29:59Z"
                            << "future" << 0.0;
    QTest::newRow("at the start") << "2015-11-26T19:30:00Z"
                                  << "live playable" << 0.0;
    QTest::newRow("after a quarter") << "2015-11-26T19:45:00Z"
                                     << "live playable" << 0.25;
    QTest::newRow("the last second") << "2015-11-26T20:29:59Z"
                                     << "live playable" << 3599.0 / 3600;
    QTest::newRow("at the stop") << "2015-11-26T20:30:00Z"
                                 << "past playable" << 1.0;
    QTest::newRow("a week after the start") << "2015-12-03T19:30:00Z"
                                            << "past playable" << 1.0;
    QTest::newRow("later") << "2015-12-03T19:30:01Z"
                           << "past" << 1.0;
}

void TestGuideModels::stateFollowsTheTime()
{
    QFETCH(QString, now);
    const Fixture f(sample(), qPrintable(now));
    QStringList state;
    if (f.value(2, ProgrammeModel::IsLiveRole).toBool())
        state.append(QStringLiteral("live"));
    if (f.value(2, ProgrammeModel::IsFutureRole).toBool())
        state.append(QStringLiteral("future"));
    if (f.value(2, ProgrammeModel::IsPastRole).toBool())
        state.append(QStringLiteral("past"));
    if (f.value(2, ProgrammeModel::IsPlayableRole).toBool())
        state.append(QStringLiteral("playable"));
    QTEST(state.join(u' '), "state");
    QTEST(f.value(2, ProgrammeModel::ProgressRole).toDouble(), "progress");
}

void TestGuideModels::withoutATimeEverythingIsFuture()
{
    const Fixture f(sample(), "");
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(f.value(row, ProgrammeModel::IsFutureRole), QVariant(true));
        QCOMPARE(f.value(row, ProgrammeModel::IsPlayableRole), QVariant(false));
    }
    QCOMPARE(f.model.liveRow(), -1);
}

void TestGuideModels::playableEndsWithTheCatchUpTime()
{
    Fixture f; // 20:05: "day" began 19.5 hours ago
    QSignalSpy data(&f.model, &ProgrammeModel::dataChanged);
    f.model.setCatchUpHours(19);
    QCOMPARE(changes(data, f.model), QStringList({ "0-0: isPlayable", "1-1: isPlayable" }));
    f.model.setCatchUpHours(20);
    QCOMPARE(changes(data, f.model).mid(2), QStringList({ "1-1: isPlayable" }));
    f.model.setCatchUpHours(-3);
    QCOMPARE(f.model.catchUpHours(), 0);
    QCOMPARE(f.value(2, ProgrammeModel::IsPlayableRole), QVariant(true)); // live
}

void TestGuideModels::aMinuteInsideAProgrammeChangesOnlyItsProgress()
{
    Fixture f;
    QSignalSpy data(&f.model, &ProgrammeModel::dataChanged);
    QSignalSpy live(&f.model, &ProgrammeModel::liveRowChanged);
    f.model.setNow(time("2015-11-26T20:06:00Z"));
    QCOMPARE(changes(data, f.model), QStringList({ "2-2: progress" }));
    QCOMPARE(live.size(), 0);
}

void TestGuideModels::theNextProgrammeChangesTwoRows()
{
    Fixture f;
    QCOMPARE(f.model.liveRow(), 2);
    QSignalSpy data(&f.model, &ProgrammeModel::dataChanged);
    QSignalSpy live(&f.model, &ProgrammeModel::liveRowChanged);
    QSignalSpy reset(&f.model, &ProgrammeModel::modelReset);
    f.model.setNow(time("2015-11-26T20:30:00Z"));
    QCOMPARE(changes(data, f.model),
             QStringList({ "2-2: isLive isPast progress", "3-3: isLive isFuture isPlayable" }));
    QCOMPARE(live.size(), 1);
    QCOMPARE(f.model.liveRow(), 3);
    QCOMPARE(reset.size(), 0);
}

void TestGuideModels::aTimeThatChangesNothingTellsNothing()
{
    Fixture f(sample(), "2015-11-29T20:05:00Z");
    QSignalSpy data(&f.model, &ProgrammeModel::dataChanged);
    QSignalSpy now(&f.model, &ProgrammeModel::nowChanged);
    f.model.setNow(time("2015-11-29T20:06:00Z"));
    QCOMPARE(now.size(), 1);
    f.model.setNow(time("2015-11-29T20:06:00Z"));
    QCOMPARE(now.size(), 1);
    QCOMPARE(data.size(), 0);
}

void TestGuideModels::ofOverlappingProgrammesTheLatestIsTheLiveRow()
{
    GuideBuilder guide;
    guide.addProgramme(entry("c", "2015-11-26T19:00:00Z", "2015-11-26T21:00:00Z", "A"));
    guide.addProgramme(entry("c", "2015-11-26T20:00:00Z", "2015-11-26T20:10:00Z", "B"));
    Fixture f(guide.take());
    QCOMPARE(f.model.liveRow(), 1);
    QCOMPARE(f.value(0, ProgrammeModel::IsLiveRole), QVariant(true));
    QCOMPARE(f.value(1, ProgrammeModel::IsLiveRole), QVariant(true));
    f.model.setNow(time("2015-11-26T20:10:00Z"));
    QCOMPARE(f.model.liveRow(), 0);
}

void TestGuideModels::aProgrammeOfNoLengthIsNeverLive()
{
    GuideBuilder guide;
    guide.addProgramme(entry("c", "2015-11-26T20:05:00Z", "2015-11-26T20:05:00Z", "A"));
    Fixture f(guide.take(), "2015-11-26T20:04:59Z");
    QCOMPARE(f.value(0, ProgrammeModel::IsFutureRole), QVariant(true));
    QCOMPARE(f.value(0, ProgrammeModel::ProgressRole), QVariant(0.0));
    f.model.setNow(time("2015-11-26T20:05:00Z"));
    QCOMPARE(f.value(0, ProgrammeModel::IsLiveRole), QVariant(false));
    QCOMPARE(f.value(0, ProgrammeModel::IsPastRole), QVariant(true));
    QCOMPARE(f.value(0, ProgrammeModel::ProgressRole), QVariant(1.0));
}

void TestGuideModels::anotherChannelResetsOnce()
{
    Fixture f;
    QSignalSpy reset(&f.model, &ProgrammeModel::modelReset);
    QSignalSpy channel(&f.model, &ProgrammeModel::channelChanged);
    QSignalSpy date(&f.model, &ProgrammeModel::dateChanged);
    QSignalSpy count(&f.model, &ProgrammeModel::countChanged);
    f.model.select(1, QDate(2015, 11, 27));
    QCOMPARE(reset.size(), 1);
    QCOMPARE(channel.size(), 1);
    QCOMPARE(date.size(), 1);
    QCOMPARE(count.size(), 1);
    QCOMPARE(f.titles(), QStringList({ "long" }));
    QCOMPARE(f.model.liveRow(), 0);
}

void TestGuideModels::anotherDayWithTheSameRowsDoesNotReset()
{
    Fixture f;
    f.model.setChannel(1);
    QSignalSpy reset(&f.model, &ProgrammeModel::modelReset);
    QSignalSpy date(&f.model, &ProgrammeModel::dateChanged);
    f.model.setDate(QDate(2015, 11, 27));
    QCOMPARE(reset.size(), 0);
    QCOMPARE(date.size(), 1);
    QCOMPARE(f.model.date(), QDate(2015, 11, 27));
    f.model.select(2, QDate(2015, 11, 27)); // no rows any more
    QCOMPARE(reset.size(), 1);
    f.model.setDate(QDate(2015, 11, 28));
    QCOMPARE(reset.size(), 1);
}

void TestGuideModels::theSameSelectionDoesNothing()
{
    Fixture f;
    QSignalSpy reset(&f.model, &ProgrammeModel::modelReset);
    QSignalSpy channel(&f.model, &ProgrammeModel::channelChanged);
    QSignalSpy date(&f.model, &ProgrammeModel::dateChanged);
    f.model.select(0, QDate(2015, 11, 26));
    QCOMPARE(reset.size() + channel.size() + date.size(), 0);
}

void TestGuideModels::anotherGuideResets()
{
    Fixture f;
    QSignalSpy reset(&f.model, &ProgrammeModel::modelReset);
    f.model.setGuide(f.model.guide());
    QCOMPARE(reset.size(), 0);
    f.model.setGuide(sample());
    QCOMPARE(reset.size(), 1);
    f.model.setGuide(Guide());
    QCOMPARE(reset.size(), 2);
    QCOMPARE(f.model.count(), 0);
    QCOMPARE(f.model.liveRow(), -1);
}

void TestGuideModels::aChannelThatIsNotThereHasNoRows()
{
    Fixture f;
    f.model.setChannel(-1);
    QCOMPARE(f.model.count(), 0);
    f.model.setChannel(0);
    QCOMPARE(f.model.count(), 4);
    f.model.setChannel(3);
    QCOMPARE(f.model.count(), 0);
    QCOMPARE(f.model.nearestRow(time("2015-11-26T20:05:00Z")), -1);
    QCOMPARE(f.model.indexAt(time("2015-11-26T20:05:00Z")), -1);
}

void TestGuideModels::indexAtFindsOnlyWhatIsOnThatDay()
{
    const Fixture f;
    QCOMPARE(f.model.indexAt(time("2015-11-25T23:44:59Z")), -1); // not one of the day's rows
    QCOMPARE(f.model.indexAt(time("2015-11-25T23:45:00Z")), 0);
    QCOMPARE(f.model.indexAt(time("2015-11-26T00:34:59Z")), 0);
    QCOMPARE(f.model.indexAt(time("2015-11-26T00:35:00Z")), 1);
    QCOMPARE(f.model.indexAt(time("2015-11-26T20:30:00Z")), 3);
    QCOMPARE(f.model.indexAt(time("2015-11-27T01:10:00Z")), -1);
    QCOMPARE(f.model.indexAt(QDateTime()), -1);
}

void TestGuideModels::nearestRowAlwaysFindsOne()
{
    GuideBuilder guide;
    guide.addProgramme(entry("c", "2015-11-26T10:00:00Z", "2015-11-26T11:00:00Z", "A"));
    guide.addProgramme(entry("c", "2015-11-26T13:00:00Z", "2015-11-26T14:00:00Z", "B"));
    const Fixture f(guide.take());
    QCOMPARE(f.model.nearestRow(time("2015-11-26T09:00:00Z")), 0);
    QCOMPARE(f.model.nearestRow(time("2015-11-26T10:30:00Z")), 0);
    QCOMPARE(f.model.nearestRow(time("2015-11-26T12:00:00Z")), 0);
    QCOMPARE(f.model.nearestRow(time("2015-11-26T13:00:00Z")), 1);
    QCOMPARE(f.model.nearestRow(time("2015-11-28T00:00:00Z")), 1);
    QCOMPARE(f.model.nearestRow(QDateTime()), 0);
}

void TestGuideModels::theClockStandsWhereItIsSet()
{
    Clock clock;
    QVERIFY(!clock.isFixed());
    QSignalSpy now(&clock, &Clock::nowChanged);
    QSignalSpy fixed(&clock, &Clock::fixedChanged);
    clock.setFixed(time("2015-11-26T20:05:43Z"));
    QVERIFY(clock.isFixed());
    QCOMPARE(clock.now(), time("2015-11-26T20:05:43Z"));
    QCOMPARE(clock.now().timeSpec(), Qt::LocalTime);
    clock.setFixed(time("2015-11-26T20:05:43Z"));
    QCOMPARE(now.size(), 1);
    QCOMPARE(fixed.size(), 1);
}

void TestGuideModels::theClockRunsAgainWithoutATime()
{
    Clock clock;
    clock.setFixed(time("2015-11-26T20:05:43Z"));
    QSignalSpy now(&clock, &Clock::nowChanged);
    const QDateTime before = QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch());
    clock.setFixed(QDateTime());
    QVERIFY(!clock.isFixed());
    QVERIFY(clock.now() >= before);
    QVERIFY(clock.now() <= QDateTime::currentDateTime());
    QCOMPARE(now.size(), 1);
}

void TestGuideModels::theClockWaitsForTheFullMinute_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("a full minute") << QTime(20, 5, 0, 0) << 60000;
    QTest::newRow("just after") << QTime(20, 5, 0, 1) << 59999;
    QTest::newRow("within") << QTime(20, 5, 43, 217) << 16783;
    QTest::newRow("just before") << QTime(23, 59, 59, 999) << 1;
}

void TestGuideModels::theClockWaitsForTheFullMinute()
{
    QFETCH(QTime, time);
    QTEST(Clock::millisecondsToNextMinute(time), "milliseconds");
}

STB_TEST_MAIN(TestGuideModels)
#include "tst_guidemodels.moc"
