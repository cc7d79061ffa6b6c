// SPDX-License-Identifier: MIT
#include "guides.h"
#include "testkit/testcase.h"

#include "gallery/data/clock.h"
#include "screens/daymodel.h"
#include "screens/guidecontroller.h"

#include <QtTest/qsignalspy.h>

#include <ctime>

using gallery::DayModel;
using gallery::GuideController;

/*! The row of days, and the keys that choose a day or a channel from anywhere. The test runs in UTC. */
class tst_GuideDays : public stbtest::TestCase
{
    Q_OBJECT

    // "A4-20:00": the show of channel A that starts on the 4th at 20:00.
    static QList<guides::Show> shows(const QString &name, int firstDay, int days, int minutes)
    {
        QList<guides::Show> result;
        const QDateTime begin = guides::at(0, 0).addDays(firstDay);
        for (int i = 0; i < days * 24 * 60 / minutes; ++i) {
            const QDateTime start = begin.addSecs(qint64(i) * minutes * 60);
            result.append({ name + start.toString(u"d-HH:mm"), start, start.addSecs(qint64(minutes) * 60) });
        }
        return result;
    }

    // It is 20:05 on Wednesday, 4 March. A has shows from the 2nd to the 6th, B only on the 4th.
    void setUp()
    {
        gallery::GuideBuilder builder;
        guides::addChannel(builder, QStringLiteral("a"), shows(QStringLiteral("A"), -2, 5, 30));
        guides::addChannel(builder, QStringLiteral("b"), shows(QStringLiteral("B"), 0, 1, 40));
        show(builder.take(), guides::at(20, 5));
    }
    void show(const gallery::Guide &guide, const QDateTime &now)
    {
        m_guide.reset();
        m_clock = std::make_unique<gallery::Clock>();
        m_clock->setFixed(now);
        m_guide = std::make_unique<GuideController>(m_clock.get());
        m_guide->setGuide(guide);
    }

    void press(std::initializer_list<Qt::Key> keys)
    {
        for (const Qt::Key key : keys)
            QVERIFY(m_guide->press(key));
    }

    QVariant day(int row, DayModel::Role role) const { return m_guide->days()->index(row, 0).data(role); }

    std::unique_ptr<gallery::Clock> m_clock;
    std::unique_ptr<GuideController> m_guide;

private Q_SLOTS:
    void cleanup()
    {
        m_guide.reset();
        m_clock.reset();
    }

    void thereAreFifteenDaysFromAWeekAgoToAWeekAhead()
    {
        setUp();
        QCOMPARE(m_guide->days()->rowCount(), 15);
        QCOMPARE(day(0, DayModel::DayRole).toDate(), QDate(2026, 2, 25));
        QCOMPARE(day(14, DayModel::DayRole).toDate(), QDate(2026, 3, 11));
        QCOMPARE(m_guide->dayRow(), 7);
        for (int row = 0; row < 15; ++row)
            QCOMPARE(day(row, DayModel::IsTodayRole).toBool(), row == 7);
    }

    void aDayIsTheSameOneInEveryTimeZone()
    {
        setUp();
        const QDateTime noon = day(7, DayModel::DayRole).toDateTime();
        QCOMPARE(noon.toOffsetFromUtc(-11 * 3600).date(), guides::day);
        QCOMPARE(noon.toOffsetFromUtc(11 * 3600).date(), guides::day);
    }

    void daysWithoutProgrammesOfTheChannelAreTold()
    {
        setUp();
        for (int row = 0; row < 15; ++row)
            QCOMPARE(day(row, DayModel::HasProgrammesRole).toBool(), row >= 5 && row <= 9);
        QSignalSpy changes(m_guide->days(), &QAbstractItemModel::dataChanged);
        press({ Qt::Key_Right });
        QCOMPARE(changes.count(), 1);
        for (int row = 0; row < 15; ++row)
            QCOMPARE(day(row, DayModel::HasProgrammesRole).toBool(), row == 7);
    }

    void aDayHasWhatRunsOverItsBeginning()
    {
        gallery::GuideBuilder builder;
        const QDateTime midnight = guides::at(0, 0);
        guides::addChannel(builder, QStringLiteral("a"),
                           { { QStringLiteral("Late"), midnight.addSecs(-60), midnight.addSecs(60) },
                             { QStringLiteral("To the end"), guides::at(23, 0), midnight.addDays(1) } });
        show(builder.take(), guides::at(20, 5));
        QVERIFY(day(6, DayModel::HasProgrammesRole).toBool());
        QVERIFY(day(7, DayModel::HasProgrammesRole).toBool());
        QVERIFY(!day(8, DayModel::HasProgrammesRole).toBool());
    }

    void upFromTheFirstProgrammeLeadsToTheDays()
    {
        setUp();
        press({ Qt::Key_Home, Qt::Key_Down, Qt::Key_Up });
        QVERIFY(!m_guide->isInDays());
        QSignalSpy changes(m_guide.get(), &GuideController::inDaysChanged);
        press({ Qt::Key_Up });
        QVERIFY(m_guide->isInDays());
        press({ Qt::Key_Up, Qt::Key_PageUp });
        QVERIFY(m_guide->isInDays());
        QCOMPARE(changes.count(), 1);
    }

    void pageUpAndHomeDoNotLeaveTheProgrammes()
    {
        setUp();
        press({ Qt::Key_Home, Qt::Key_Home, Qt::Key_PageUp, Qt::Key_PageUp });
        QVERIFY(!m_guide->isInDays());
    }

    void downAndOkLeadIntoTheProgrammes_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("down") << int(Qt::Key_Down);
        QTest::newRow("ok") << int(Qt::Key_Return);
        QTest::newRow("green") << int(Qt::Key_Green);
    }
    void downAndOkLeadIntoTheProgrammes()
    {
        QFETCH(int, key);
        setUp();
        press({ Qt::Key_Green });
        QVERIFY(m_guide->isInDays());
        QVERIFY(m_guide->press(key));
        QVERIFY(!m_guide->isInDays());
        QVERIFY(!m_guide->isDetailsOpen());
        QCOMPARE(m_guide->title(), "A4-20:00");
    }

    void leftAndRightChooseTheDayAndKeepTheTime()
    {
        setUp();
        press({ Qt::Key_Green, Qt::Key_Right });
        QCOMPARE(m_guide->title(), "A5-20:00");
        QCOMPARE(m_guide->dayRow(), 8);
        QCOMPARE(m_guide->dayText(), QLocale().toString(QDate(2026, 3, 5), u"dddd, d MMMM"));
        press({ Qt::Key_Left, Qt::Key_Left });
        QCOMPARE(m_guide->title(), "A3-20:00");
        QCOMPARE(m_guide->channelRow(), 0);
        QVERIFY(m_guide->isInDays());
    }

    void onAMirroredScreenTheNextDayIsOnTheLeft()
    {
        setUp();
        m_guide->setMirrored(true);
        press({ Qt::Key_Green, Qt::Key_Left });
        QCOMPARE(m_guide->dayRow(), 8);
    }

    void homeAndEndChooseTheFirstAndTheLastDayWhereTheRowStops()
    {
        setUp();
        press({ Qt::Key_Green, Qt::Key_End, Qt::Key_Right });
        QCOMPARE(m_guide->dayRow(), 14);
        QCOMPARE(m_guide->programmeRow(), -1);
        press({ Qt::Key_Home, Qt::Key_Left });
        QCOMPARE(m_guide->dayRow(), 0);
    }

    void theKeysThatSkipChooseTheDayFromAnywhere()
    {
        setUp();
        press({ Qt::Key_Down, Qt::Key_MediaNext });
        QCOMPARE(m_guide->title(), "A5-20:30");
        QVERIFY(!m_guide->isInDays());
        press({ Qt::Key_MediaPrevious, Qt::Key_MediaPrevious });
        QCOMPARE(m_guide->title(), "A3-20:30");
    }

    void goingThroughDaysAndBackDoesNotDrift()
    {
        setUp();
        press({ Qt::Key_Down });
        for (int round = 0; round < 5; ++round) {
            for (int i = 0; i < 9; ++i)
                press({ Qt::Key_MediaNext });
            QCOMPARE(m_guide->programmeRow(), -1);
            for (int i = 0; i < 7; ++i)
                press({ Qt::Key_MediaPrevious });
            QCOMPARE(m_guide->title(), "A4-20:30");
        }
    }

    void channelUpAndDownKeepTimeAndDayFromAnywhere()
    {
        setUp();
        press({ Qt::Key_ChannelUp });
        QCOMPARE(m_guide->title(), "B4-20:00");
        press({ Qt::Key_ChannelUp });
        QCOMPARE(m_guide->channelRow(), 1);
        press({ Qt::Key_Green, Qt::Key_Right, Qt::Key_ChannelDown });
        QCOMPARE(m_guide->title(), "A5-20:00");
        QVERIFY(m_guide->isInDays());
    }

    void fromADayWithoutProgrammesUpLeadsToTheDays()
    {
        setUp();
        press({ Qt::Key_ChannelUp, Qt::Key_MediaNext, Qt::Key_Down, Qt::Key_Return });
        QVERIFY(!m_guide->isInDays() && !m_guide->isDetailsOpen());
        press({ Qt::Key_Up });
        QVERIFY(m_guide->isInDays());
    }

    void backReturnsToWhatIsOnTodayThenLeaves()
    {
        setUp();
        QSignalSpy leaving(m_guide.get(), &GuideController::leaveRequested);
        press({ Qt::Key_Green, Qt::Key_End, Qt::Key_Back });
        QVERIFY(!m_guide->isInDays());
        QCOMPARE(m_guide->title(), "A4-20:00");
        press({ Qt::Key_MediaNext, Qt::Key_Back });
        QCOMPARE(m_guide->title(), "A4-20:00");
        QCOMPARE(leaving.count(), 0);
        press({ Qt::Key_Back });
        QCOMPARE(leaving.count(), 1);
    }

    void theDetailsCloseOnTheWayToTheDays()
    {
        setUp();
        press({ Qt::Key_Return, Qt::Key_Green });
        QVERIFY(m_guide->isInDays() && !m_guide->isDetailsOpen());
        press({ Qt::Key_Info });
        QVERIFY(!m_guide->isDetailsOpen());
    }

    void upLeavesTheDetailsOpenAtTheFirstProgramme()
    {
        setUp();
        press({ Qt::Key_Home, Qt::Key_Info, Qt::Key_Up });
        QVERIFY(m_guide->isDetailsOpen() && !m_guide->isInDays());
    }

    void withoutChannelsTheDaysCannotBeReached()
    {
        setUp();
        press({ Qt::Key_Green });
        m_guide->setGuide({});
        QVERIFY(!m_guide->isInDays());
        press({ Qt::Key_Green, Qt::Key_Up, Qt::Key_MediaNext });
        QVERIFY(!m_guide->isInDays());
        QCOMPARE(m_guide->dayRow(), 7);
    }

    void atMidnightAnotherDayStaysAndTheRowMovesOn()
    {
        setUp();
        press({ Qt::Key_MediaNext });
        m_clock->setFixed(guides::at(0, 1).addDays(1));
        QCOMPARE(m_guide->title(), "A5-20:00");
        QCOMPARE(m_guide->dayRow(), 7);
        QCOMPARE(day(0, DayModel::DayRole).toDate(), QDate(2026, 2, 26));
        QVERIFY(day(7, DayModel::IsTodayRole).toBool());
    }

    void atMidnightTheFirstDayIsNotLostSightOf()
    {
        setUp();
        press({ Qt::Key_Green, Qt::Key_Home });
        m_clock->setFixed(guides::at(0, 1).addDays(1));
        QCOMPARE(m_guide->date(), QDate(2026, 2, 26));
        QCOMPARE(m_guide->dayRow(), 0);
        QVERIFY(m_guide->isInDays());
    }

    void aProgrammeThatRunsOverMidnightStaysChosen()
    {
        gallery::GuideBuilder builder;
        const QDateTime late = guides::at(23, 30);
        guides::addChannel(builder, QStringLiteral("a"),
                           { { QStringLiteral("Film"), late, late.addSecs(7200) },
                             { QStringLiteral("Short"), late.addSecs(1800), late.addSecs(1860) } });
        show(builder.take(), guides::at(23, 40));
        press({ Qt::Key_Info });
        m_clock->setFixed(guides::at(0, 0).addDays(1));
        QCOMPARE(m_guide->title(), "Film");
        QVERIFY(m_guide->isDetailsOpen());
        QCOMPARE(m_guide->date(), guides::day.addDays(1));
    }

    void aTimeThatTheClocksLeaveOutIsKeptForTheDayAfter()
    {
        qputenv("TZ", "Europe/Berlin"); // from 02:00 to 03:00 on 29 March
        tzset();
        const QDateTime first(QDate(2026, 3, 28), QTime(0, 0));
        QList<guides::Show> all;
        for (int i = 0; i < 3 * 48; ++i) {
            const QDateTime start = first.addSecs(i * 1800);
            all.append({ start.toString(u"d-HH:mm"), start, start.addSecs(1800) });
        }
        gallery::GuideBuilder builder;
        guides::addChannel(builder, QStringLiteral("a"), all);
        show(builder.take(), QDateTime(QDate(2026, 3, 28), QTime(2, 40)));
        QCOMPARE(m_guide->title(), "28-02:30");
        press({ Qt::Key_MediaNext });
        QCOMPARE(m_guide->title(), "29-03:30");
        press({ Qt::Key_MediaNext });
        QCOMPARE(m_guide->title(), "30-02:30");
        qputenv("TZ", "UTC");
        tzset();
    }
};

STB_TEST_MAIN(tst_GuideDays)
#include "tst_guidedays.moc"
