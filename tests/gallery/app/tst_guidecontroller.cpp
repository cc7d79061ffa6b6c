// SPDX-License-Identifier: MIT
#include "guides.h"
#include "testkit/testcase.h"

#include "gallery/data/clock.h"
#include "screens/guidecontroller.h"

#include <QtTest/qsignalspy.h>

using gallery::GuideController;

/*! What remote keys do to the choice of channel and programme. The test runs in UTC. */
class tst_GuideController : public stbtest::TestCase
{
    Q_OBJECT

    // 20:05: "A40" from 20:00 on a, "B25" from 19:35 on b, "C19" from 19:19 on c.
    void setUp(const QDateTime &now = guides::at(20, 5))
    {
        m_clock = std::make_unique<gallery::Clock>();
        m_clock->setFixed(now);
        m_guide = std::make_unique<GuideController>(m_clock.get());
        m_guide->setGuide(guides::five());
    }

    void press(std::initializer_list<Qt::Key> keys)
    {
        for (const Qt::Key key : keys)
            QVERIFY(m_guide->press(key));
    }

    int lastRow() const { return m_guide->programmes()->rowCount() - 1; }

    std::unique_ptr<gallery::Clock> m_clock;
    std::unique_ptr<GuideController> m_guide;

private Q_SLOTS:
    void cleanup()
    {
        m_guide.reset();
        m_clock.reset();
    }

    void startsOnTheProgrammeThatIsOn()
    {
        setUp();
        QCOMPARE(m_guide->channelRow(), 0);
        QCOMPARE(m_guide->title(), "A40");
        QVERIFY(m_guide->isLive());
        QCOMPARE(m_guide->timeRange(), u"20:00 – 20:30");
        QCOMPARE(m_guide->progress(), 5.0 / 30);
    }

    void startsOnTheFirstChannelThatHasSomethingOn()
    {
        gallery::GuideBuilder builder;
        guides::addChannel(builder, QStringLiteral("none"), {});
        guides::addChannel(builder, QStringLiteral("b"), guides::wholeDay(QStringLiteral("B"), 47));
        m_clock = std::make_unique<gallery::Clock>();
        m_clock->setFixed(guides::at(20, 5));
        m_guide = std::make_unique<GuideController>(m_clock.get());
        m_guide->setGuide(builder.take());
        QCOMPARE(m_guide->channelRow(), 1);
        QCOMPARE(m_guide->title(), "B25");
    }

    void upAndDownChooseTheNeighbours()
    {
        setUp();
        press({ Qt::Key_Down, Qt::Key_Down });
        QCOMPARE(m_guide->title(), "A42");
        press({ Qt::Key_Up });
        QCOMPARE(m_guide->title(), "A41");
    }

    void homeAndEndChooseTheFirstAndTheLastOfTheDay()
    {
        setUp();
        press({ Qt::Key_Home });
        QCOMPARE(m_guide->title(), "A0");
        press({ Qt::Key_End });
        QCOMPARE(m_guide->title(), "A47");
    }

    void upStopsAtTheFirstAndDownAtTheLast()
    {
        setUp();
        press({ Qt::Key_Home, Qt::Key_Up });
        QCOMPARE(m_guide->programmeRow(), 0);
        press({ Qt::Key_End, Qt::Key_Down });
        QCOMPARE(m_guide->programmeRow(), lastRow());
    }

    void pageKeysMoveByTheRowsThatFit()
    {
        setUp();
        m_guide->setRowsPerPage(7);
        press({ Qt::Key_PageUp });
        QCOMPARE(m_guide->title(), "A33");
        press({ Qt::Key_PageDown, Qt::Key_PageDown });
        QCOMPARE(m_guide->title(), "A47");
        press({ Qt::Key_Home, Qt::Key_PageUp });
        QCOMPARE(m_guide->programmeRow(), 0);
    }

    void aPageHasAtLeastOneRow()
    {
        setUp();
        m_guide->setRowsPerPage(-3);
        QCOMPARE(m_guide->rowsPerPage(), 1);
    }

    void rightChoosesTheNextChannelAtTheSameTime()
    {
        setUp();
        press({ Qt::Key_Right });
        QCOMPARE(m_guide->channelName(), "Channel b");
        QCOMPARE(m_guide->title(), "B25");
        press({ Qt::Key_Left });
        QCOMPARE(m_guide->title(), "A40");
    }

    void aLaterProgrammeKeepsItsTimeOnAnotherChannel()
    {
        setUp();
        press({ Qt::Key_Down, Qt::Key_Down, Qt::Key_Right }); // A42 starts at 21:00, B26 at 20:22
        QCOMPARE(m_guide->title(), "B26");
    }

    void goingThroughChannelsAndBackDoesNotDrift()
    {
        setUp();
        press({ Qt::Key_Down, Qt::Key_Down, Qt::Key_Down }); // A43 from 21:30
        for (int round = 0; round < 10; ++round) {
            press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right });
            QCOMPARE(m_guide->title(), "Only");
            press({ Qt::Key_Left, Qt::Key_Left, Qt::Key_Left, Qt::Key_Left });
            QCOMPARE(m_guide->title(), "A43");
        }
    }

    void aChannelWithoutProgrammesIsPassedWithoutLosingTheTime()
    {
        setUp();
        press({ Qt::Key_Right, Qt::Key_Right });
        QCOMPARE(m_guide->channelName(), "Channel none");
        QCOMPARE(m_guide->programmeRow(), -1);
        QCOMPARE(m_guide->title(), QString());
        QCOMPARE(m_guide->timeRange(), QString());
        press({ Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown });
        QCOMPARE(m_guide->programmeRow(), -1);
        press({ Qt::Key_Right });
        QCOMPARE(m_guide->title(), "C19");
    }

    void leftAndRightStopAtTheFirstAndLastChannel()
    {
        setUp();
        press({ Qt::Key_Left });
        QCOMPARE(m_guide->channelRow(), 0);
        for (int i = 0; i < 9; ++i)
            press({ Qt::Key_Right });
        QCOMPARE(m_guide->channelRow(), 4);
    }

    void theNeighboursAreNamed()
    {
        setUp();
        press({ Qt::Key_Right });
        QCOMPARE(m_guide->leftChannelName(), "Channel a");
        QCOMPARE(m_guide->rightChannelName(), "Channel none");
        press({ Qt::Key_Left });
        QCOMPARE(m_guide->leftChannelName(), QString());
    }

    void onAMirroredScreenTheNextChannelIsOnTheLeft()
    {
        setUp();
        m_guide->setMirrored(true);
        press({ Qt::Key_Right });
        QCOMPARE(m_guide->channelRow(), 0);
        press({ Qt::Key_Left });
        QCOMPARE(m_guide->channelRow(), 1);
        QCOMPARE(m_guide->rightChannelName(), "Channel a");
    }

    void returnShowsAndHidesTheDetails()
    {
        setUp();
        QSignalSpy changes(m_guide.get(), &GuideController::detailsOpenChanged);
        press({ Qt::Key_Return });
        QVERIFY(m_guide->isDetailsOpen());
        press({ Qt::Key_Select });
        QVERIFY(!m_guide->isDetailsOpen());
        QCOMPARE(changes.count(), 2);
    }

    void withoutAProgrammeThereAreNoDetails()
    {
        setUp();
        press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Return });
        QVERIFY(!m_guide->isDetailsOpen());
    }

    void detailsCloseOnTheWayToAChannelWithoutProgrammes()
    {
        setUp();
        press({ Qt::Key_Right, Qt::Key_Return, Qt::Key_Right });
        QVERIFY(!m_guide->isDetailsOpen());
    }

    void backClosesTheDetailsThenReturnsToWhatIsOnThenLeaves()
    {
        setUp();
        QSignalSpy leaving(m_guide.get(), &GuideController::leaveRequested);
        press({ Qt::Key_Down, Qt::Key_Return, Qt::Key_Back });
        QVERIFY(!m_guide->isDetailsOpen());
        QCOMPARE(m_guide->title(), "A41");
        press({ Qt::Key_Escape });
        QCOMPARE(m_guide->title(), "A40");
        QCOMPARE(leaving.count(), 0);
        press({ Qt::Key_Backspace });
        QCOMPARE(leaving.count(), 1);
        QCOMPARE(m_guide->title(), "A40");
    }

    void theDayIsWrittenLongAndShort()
    {
        setUp();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        QCOMPARE(m_guide->dayText(), "Wednesday, 4 March");
        QCOMPARE(m_guide->shortDayText(), "Wed, 4 Mar");
        QCOMPARE(m_guide->clockText(), "20:05");
    }

    void otherKeysAreNotTaken()
    {
        setUp();
        QVERIFY(!m_guide->press(Qt::Key_A));
        QVERIFY(!m_guide->press(Qt::Key_VolumeUp));
    }

    void theClockMovesTheLiveProgrammeAndNotTheChoice()
    {
        setUp();
        QSignalSpy changes(m_guide.get(), &GuideController::nowChanged);
        m_clock->setFixed(guides::at(20, 31));
        QVERIFY(changes.count() > 0);
        QCOMPARE(m_guide->title(), "A40");
        QVERIFY(!m_guide->isLive());
        QCOMPARE(m_guide->clockText(), "20:31");
        const QModelIndex first = m_guide->channels()->index(0, 0);
        QCOMPARE(first.data(m_guide->channels()->roleNames().key("nowTitle")).toString(), "A41");
    }

    void atMidnightTheNextDayIsShown()
    {
        gallery::GuideBuilder builder;
        guides::addChannel(builder, QStringLiteral("a"),
                           { { QStringLiteral("Late"), guides::at(23, 0), guides::at(23, 0).addSecs(3600) },
                             { QStringLiteral("Tomorrow"), guides::at(0, 0).addDays(1),
                               guides::at(2, 0).addDays(1) } });
        m_clock = std::make_unique<gallery::Clock>();
        m_clock->setFixed(guides::at(23, 59));
        m_guide = std::make_unique<GuideController>(m_clock.get());
        m_guide->setGuide(builder.take());
        QCOMPARE(m_guide->title(), "Late");
        m_clock->setFixed(guides::at(0, 0).addDays(1));
        QCOMPARE(m_guide->title(), "Tomorrow");
        QVERIFY(m_guide->isLive());
    }

    void aProgrammeFromYesterdayKeepsTheStartOfTheDay()
    {
        gallery::GuideBuilder builder;
        const QDateTime midnight = guides::at(0, 0);
        guides::addChannel(builder, QStringLiteral("a"),
                           { { QStringLiteral("Over midnight"), midnight.addSecs(-3600),
                               midnight.addSecs(3600) },
                             { QStringLiteral("Then"), midnight.addSecs(3600), guides::at(23, 0) } });
        guides::addChannel(builder, QStringLiteral("b"),
                           { { QStringLiteral("Till one"), midnight, midnight.addSecs(3600) },
                             { QStringLiteral("Rest"), midnight.addSecs(3600), guides::at(23, 0) } });
        m_clock = std::make_unique<gallery::Clock>();
        m_clock->setFixed(guides::at(12, 0));
        m_guide = std::make_unique<GuideController>(m_clock.get());
        m_guide->setGuide(builder.take());
        press({ Qt::Key_Home });
        QCOMPARE(m_guide->title(), "Over midnight");
        press({ Qt::Key_Right });
        QCOMPARE(m_guide->title(), "Till one");
    }

    void anEmptyGuideHasNothingChosenAndTakesKeys()
    {
        m_clock = std::make_unique<gallery::Clock>();
        m_guide = std::make_unique<GuideController>(m_clock.get());
        QSignalSpy shown(m_guide.get(), &GuideController::guideShown);
        m_guide->setGuide({});
        QCOMPARE(shown.count(), 1);
        QCOMPARE(m_guide->channelRow(), -1);
        press({ Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End,
                Qt::Key_Return });
        QCOMPARE(m_guide->channelRow(), -1);
        QCOMPARE(m_guide->programmeRow(), -1);
        QCOMPARE(m_guide->channelName(), QString());
        QCOMPARE(m_guide->channelNumber(), QString());
    }
};

STB_TEST_MAIN(tst_GuideController)
#include "tst_guidecontroller.moc"
