// SPDX-License-Identifier: MIT
#include "guides.h"
#include "testkit/testcase.h"

#include "gallery/data/clock.h"
#include "screens/marks.h"
#include "screens/playercontroller.h"

#include <QtTest/qsignalspy.h>

using gallery::PlayerController;
using gallery::PlayerProgrammes;

/*! What remote keys and time do in the player. The test runs in UTC. */
class tst_PlayerController : public stbtest::TestCase
{
    Q_OBJECT

    struct Fixture
    {
        gallery::Clock clock;
        gallery::Marks favourites;
        PlayerController player { &clock, &favourites };

        Fixture()
        {
            clock.setFixed(guides::at(20, 5));
            player.setGuide(guides::five());
        }
        void press(std::initializer_list<Qt::Key> keys)
        {
            for (const Qt::Key key : keys)
                QVERIFY(player.press(key));
        }
        QString chosen()
        {
            return player.programmes()
                    ->index(player.programmeRow(), 0)
                    .data(PlayerProgrammes::TitleRole)
                    .toString();
        }
        /*! Chooses the button, with the keys on the buttons. */
        void chooseButton(PlayerController::Button button)
        {
            if (player.area() == PlayerController::Programmes)
                press({ Qt::Key_Return });
            QCOMPARE(player.area(), PlayerController::Buttons);
            press({ Qt::Key_Home });
            while (player.button() != button && player.button() != player.buttons().constLast())
                press({ Qt::Key_Right });
            QCOMPARE(player.button(), button);
        }
    };

    std::unique_ptr<Fixture> m;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m = std::make_unique<Fixture>();
    }
    void cleanup() { m.reset(); }

    void aChannelIsPlayedLiveWithWhatIsOnChosen()
    {
        QVERIFY(m->player.play(1));
        QCOMPARE(m->player.channelName(), "Channel b");
        QCOMPARE(m->player.title(), "B25");
        QCOMPARE(m->player.facts(), "About B25");
        QCOMPARE(m->player.startText(), "19:35");
        QCOMPARE(m->player.stopText(), "20:22");
        QCOMPARE(m->player.progress(), 30.0 / 47);
        QCOMPARE(m->player.clockText(), "20:05");
        QVERIFY(m->player.isLive());
        QCOMPARE(m->player.area(), PlayerController::Programmes);
        QCOMPARE(m->chosen(), "B25");
    }

    void aChannelThatThereIsNotIsNotPlayed()
    {
        QVERIFY(m->player.play(0));
        QVERIFY(!m->player.play(-1));
        QVERIFY(!m->player.play(5));
        QCOMPARE(m->player.channelName(), "Channel a");
    }

    void aChannelWithoutProgrammesIsPlayedToo()
    {
        QVERIFY(m->player.play(2));
        QCOMPARE(m->player.title(), QString());
        QCOMPARE(m->player.progress(), 0.0);
        QCOMPARE(m->player.programmeRow(), -1);
        QVERIFY(!m->player.canStartOver());
        m->press({ Qt::Key_Left, Qt::Key_Home, Qt::Key_End });
        QCOMPARE(m->player.programmeRow(), -1);
    }

    void backHidesTheOverlayThenLeaves()
    {
        m->player.play(0);
        QSignalSpy leaving(&m->player, &PlayerController::leaveRequested);
        m->press({ Qt::Key_Return, Qt::Key_Back });
        QCOMPARE(m->player.area(), PlayerController::Picture);
        QCOMPARE(leaving.count(), 0);
        m->press({ Qt::Key_Escape });
        QCOMPARE(leaving.count(), 1);
    }

    void returnShowsTheButtonsAndArrowsTheProgrammes()
    {
        m->player.play(0);
        for (const Qt::Key key : { Qt::Key_Left, Qt::Key_Right }) {
            m->press({ Qt::Key_Back, key });
            QCOMPARE(m->player.area(), PlayerController::Programmes);
            QCOMPARE(m->chosen(), "A40");
        }
        m->press({ Qt::Key_Back, Qt::Key_Return });
        QCOMPARE(m->player.area(), PlayerController::Buttons);
        QCOMPARE(m->player.button(), PlayerController::PauseButton);
        m->press({ Qt::Key_Up });
        QCOMPARE(m->player.area(), PlayerController::Programmes);
        m->press({ Qt::Key_Select });
        QCOMPARE(m->player.area(), PlayerController::Buttons);
    }

    void whatIsWatchedIsChosenWheneverTheOverlayIsShown()
    {
        m->player.play(0);
        m->press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Back });
        m->clock.setFixed(guides::at(20, 35));
        m->press({ Qt::Key_Left });
        QCOMPARE(m->chosen(), "A41");
        m->press({ Qt::Key_End, Qt::Key_Return, Qt::Key_End, Qt::Key_Back, Qt::Key_Return });
        QCOMPARE(m->chosen(), "A41");
        QCOMPARE(m->player.button(), PlayerController::PauseButton);
    }

    void overThePictureUpAndDownGoToTheNextAndThePreviousChannel()
    {
        m->player.play(1);
        m->press({ Qt::Key_Back, Qt::Key_Up });
        QCOMPARE(m->player.channelName(), "Channel none");
        QCOMPARE(m->player.area(), PlayerController::Programmes);
        m->press({ Qt::Key_Back, Qt::Key_Down });
        QCOMPARE(m->player.channelName(), "Channel b");
    }

    void afterTheLastChannelComesTheFirst()
    {
        m->player.play(4);
        m->press({ Qt::Key_ChannelUp });
        QCOMPARE(m->player.channelRow(), 0);
        m->press({ Qt::Key_ChannelDown });
        QCOMPARE(m->player.channelRow(), 4);
    }

    void theChannelKeysWorkEverywhereAndLeaveTheKeysWhereTheyAre_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("row");
        QTest::newRow("channel up") << int(Qt::Key_ChannelUp) << 2;
        QTest::newRow("page up") << int(Qt::Key_PageUp) << 2;
        QTest::newRow("channel down") << int(Qt::Key_ChannelDown) << 0;
        QTest::newRow("page down") << int(Qt::Key_PageDown) << 0;
    }
    void theChannelKeysWorkEverywhereAndLeaveTheKeysWhereTheyAre()
    {
        QFETCH(int, key);
        QFETCH(int, row);
        m->player.play(1);
        QVERIFY(m->player.press(key));
        QCOMPARE(m->player.channelRow(), row);
        QCOMPARE(m->player.area(), PlayerController::Programmes);
        m->player.play(1);
        m->press({ Qt::Key_Return });
        QVERIFY(m->player.press(key));
        QCOMPARE(m->player.channelRow(), row);
        QCOMPARE(m->player.area(), PlayerController::Buttons);
        m->player.play(1);
        m->press({ Qt::Key_Back });
        QVERIFY(m->player.press(key));
        QCOMPARE(m->player.channelRow(), row);
    }

    void anotherChannelKeepsTheTimeHoweverManyArePassed()
    {
        m->player.play(0);
        m->press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right });
        QCOMPARE(m->chosen(), "A44");
        m->press({ Qt::Key_Up });
        QCOMPARE(m->chosen(), "B28");
        m->press({ Qt::Key_Up });
        QCOMPARE(m->player.programmeRow(), -1);
        m->press({ Qt::Key_Up });
        QCOMPARE(m->chosen(), "C21");
        m->press({ Qt::Key_Up });
        QCOMPARE(m->chosen(), "Only");
        QCOMPARE(m->player.title(), "Only");
        m->press({ Qt::Key_Down, Qt::Key_Down, Qt::Key_ChannelDown, Qt::Key_ChannelDown });
        QCOMPARE(m->chosen(), "A44");
        QCOMPARE(m->player.title(), "A40");
    }

    void whoIsAtThePresentStaysThereAsItGoesOn()
    {
        m->player.play(0);
        m->press({ Qt::Key_Right, Qt::Key_Left });
        m->clock.setFixed(guides::at(20, 25));
        m->press({ Qt::Key_Up });
        QCOMPARE(m->chosen(), "B26");
    }

    void thePresentPassesUnderAChosenProgramme()
    {
        m->player.play(0);
        m->clock.setFixed(guides::at(20, 31));
        QCOMPARE(m->player.title(), "A41");
        QCOMPARE(m->chosen(), "A40");
    }

    void leftAndRightStopAtTheEnds()
    {
        m->player.play(0);
        m->press({ Qt::Key_Home, Qt::Key_Left });
        QCOMPARE(m->chosen(), "A0");
        m->press({ Qt::Key_End, Qt::Key_Right });
        QCOMPARE(m->chosen(), "A47");
        m->press({ Qt::Key_Return, Qt::Key_Left });
        QCOMPARE(m->player.button(), PlayerController::PauseButton);
        m->press({ Qt::Key_End, Qt::Key_Right });
        QCOMPARE(m->player.button(), PlayerController::GuideButton);
        m->press({ Qt::Key_Down });
        QCOMPARE(m->player.area(), PlayerController::Buttons);
    }

    void onAMirroredScreenTheNextOneIsOnTheLeft()
    {
        m->player.setMirrored(true);
        m->player.play(0);
        m->press({ Qt::Key_Left });
        QCOMPARE(m->chosen(), "A41");
        m->press({ Qt::Key_Right, Qt::Key_Right });
        QCOMPARE(m->chosen(), "A39");
        m->press({ Qt::Key_Return, Qt::Key_Left });
        QCOMPARE(m->player.button(), PlayerController::StartOverButton);
    }

    void whatIsPausedStaysWhereItIs()
    {
        m->player.play(0);
        m->chooseButton(PlayerController::PauseButton);
        m->press({ Qt::Key_Return });
        QVERIFY(m->player.isPaused() && !m->player.isLive());
        QCOMPARE(m->player.facts(), u"Paused · About A40");
        m->clock.setFixed(guides::at(20, 45));
        QCOMPARE(m->player.title(), "A40");
        QCOMPARE(m->player.progress(), 5.0 / 30);
        QCOMPARE(m->player.facts(), u"Paused · About A40 · 40 min behind live");
    }

    void whatIsContinuedStaysBehind()
    {
        m->player.play(0);
        m->chooseButton(PlayerController::PauseButton);
        m->press({ Qt::Key_Return });
        m->clock.setFixed(guides::at(20, 15));
        m->press({ Qt::Key_Return });
        QVERIFY(!m->player.isPaused() && !m->player.isLive());
        m->clock.setFixed(guides::at(20, 25));
        QCOMPARE(m->player.progress(), 0.5);
        QCOMPARE(m->player.facts(), u"About A40 · 10 min behind live");
        m->clock.setFixed(guides::at(20, 40));
        QCOMPARE(m->player.title(), "A41");
        m->chooseButton(PlayerController::LiveButton);
        m->press({ Qt::Key_Return });
        QVERIFY(m->player.isLive());
        QCOMPARE(m->player.progress(), 10.0 / 30);
    }

    void aClockThatIsSetBackDoesNotLeadIntoTheFuture()
    {
        m->player.play(0);
        m->chooseButton(PlayerController::PauseButton);
        m->press({ Qt::Key_Return });
        m->clock.setFixed(guides::at(19, 50));
        QCOMPARE(m->player.title(), "A39");
        QCOMPARE(m->player.facts(), u"Paused · About A39");
    }

    void theChosenProgrammeIsWatchedFromItsStart()
    {
        m->player.play(0);
        m->press({ Qt::Key_Left, Qt::Key_Left });
        m->chooseButton(PlayerController::StartOverButton);
        m->press({ Qt::Key_Return });
        QCOMPARE(m->player.title(), "A38");
        QCOMPARE(m->player.progress(), 0.0);
        QCOMPARE(m->player.facts(), u"About A38 · 1 h 5 min behind live");
        m->press({ Qt::Key_Back, Qt::Key_Left });
        QCOMPARE(m->chosen(), "A38");
    }

    void onlyWhatHasBegunCanBeWatchedFromItsStart()
    {
        m->player.play(0);
        QVERIFY(m->player.canStartOver());
        m->press({ Qt::Key_Right });
        QVERIFY(!m->player.canStartOver());
        m->press({ Qt::Key_Return, Qt::Key_Right });
        QCOMPARE(m->player.button(), PlayerController::LiveButton);
        m->clock.setFixed(guides::at(20, 30));
        QVERIFY(m->player.canStartOver());
    }

    void afterAWeekNothingCanBeWatchedFromItsStart()
    {
        m->player.play(0);
        m->press({ Qt::Key_Home });
        m->clock.setFixed(guides::at(0, 0).addDays(7));
        QVERIFY(m->player.canStartOver());
        m->clock.setFixed(guides::at(0, 0).addDays(7).addSecs(1));
        QVERIFY(!m->player.canStartOver());
    }

    void aButtonThatGoesHandsTheKeysToTheFirst()
    {
        m->player.play(1);
        m->chooseButton(PlayerController::StartOverButton);
        m->press({ Qt::Key_ChannelUp });
        QCOMPARE(m->player.area(), PlayerController::Buttons);
        QCOMPARE(m->player.button(), PlayerController::PauseButton);
    }

    void anotherChannelIsWatchedLive()
    {
        m->player.play(0);
        m->chooseButton(PlayerController::StartOverButton);
        m->press({ Qt::Key_Return, Qt::Key_ChannelUp });
        QVERIFY(m->player.isLive());
        QCOMPARE(m->player.title(), "B25");
        m->chooseButton(PlayerController::PauseButton);
        m->press({ Qt::Key_Return });
        m->player.play(1);
        QVERIFY(m->player.isLive());
    }

    void theOnlyChannelStaysAsItIsWatched()
    {
        gallery::GuideBuilder builder;
        guides::addChannel(builder, "a", guides::wholeDay("A", 30));
        m->player.setGuide(builder.take());
        m->player.play(0);
        m->chooseButton(PlayerController::PauseButton);
        m->press({ Qt::Key_Return, Qt::Key_ChannelUp, Qt::Key_ChannelDown });
        QVERIFY(m->player.isPaused());
    }

    void aChannelThatGetsLockedHasProgrammesButNoPicture()
    {
        QVERIFY(m->player.play(0));
        gallery::GuideBuilder builder;
        gallery::Channel channel;
        channel.id = "a";
        channel.locked = true;
        builder.addChannel(channel);
        guides::addChannel(builder, "a", guides::wholeDay("A", 30));
        guides::addChannel(builder, "b", guides::wholeDay("B", 30));
        m->player.setGuide(builder.take());
        QVERIFY(!m->player.play(0));
        QVERIFY(m->player.isLocked());
        QCOMPARE(m->player.title(), "A40");
        QCOMPARE(m->player.picture(), QUrl());
        m->press({ Qt::Key_ChannelUp });
        QVERIFY(!m->player.isLocked());
        QVERIFY(!m->player.picture().isEmpty());
    }

    void theChannelBecomesAFavourite()
    {
        m->player.play(1);
        QSignalSpy changes(&m->player, &PlayerController::marksChanged);
        m->chooseButton(PlayerController::FavouriteButton);
        m->press({ Qt::Key_Return });
        QCOMPARE(changes.count(), 1);
        QVERIFY(m->player.isFavourite());
        QVERIFY(m->favourites.contains("tv:b"));
        m->press({ Qt::Key_ChannelUp });
        QVERIFY(!m->player.isFavourite());
    }

    void theGuideIsAskedFor()
    {
        m->player.play(0);
        QSignalSpy requests(&m->player, &PlayerController::guideRequested);
        m->chooseButton(PlayerController::GuideButton);
        m->press({ Qt::Key_Return });
        QCOMPARE(requests.count(), 1);
    }

    void theOverlayHidesWhenNoKeyIsPressed()
    {
        QVERIFY(!m->player.hidesWhenIdle());
        m->player.play(0);
        QVERIFY(m->player.hidesWhenIdle());
        m->player.hideOverlay();
        QCOMPARE(m->player.area(), PlayerController::Picture);
        QVERIFY(!m->player.hidesWhenIdle());
        m->press({ Qt::Key_Return });
        QVERIFY(m->player.hidesWhenIdle());
    }

    void theOverlayStaysWhileThePlayingPauses()
    {
        m->player.play(0);
        m->chooseButton(PlayerController::PauseButton);
        m->press({ Qt::Key_Return });
        QVERIFY(!m->player.hidesWhenIdle());
        m->press({ Qt::Key_Return });
        QVERIFY(m->player.hidesWhenIdle());
    }

    void playAndPauseDoWhatTheySayFromAnywhere()
    {
        m->player.play(0);
        m->press({ Qt::Key_MediaPlay });
        QVERIFY(!m->player.isPaused());
        m->press({ Qt::Key_MediaPause, Qt::Key_MediaPause });
        QVERIFY(m->player.isPaused());
        m->press({ Qt::Key_Play });
        QVERIFY(!m->player.isPaused());
        m->press({ Qt::Key_MediaTogglePlayPause });
        QVERIFY(m->player.isPaused());
        m->press({ Qt::Key_Space });
        QVERIFY(!m->player.isPaused());
    }

    void pausingOnThePictureShowsIt()
    {
        m->player.play(0);
        m->player.hideOverlay();
        m->press({ Qt::Key_MediaPause });
        QCOMPARE(m->player.area(), PlayerController::Buttons);
        QCOMPARE(m->player.button(), PlayerController::PauseButton);
    }

    void infoShowsTheProgrammesAndHidesThem()
    {
        m->player.play(0);
        m->press({ Qt::Key_Info });
        QCOMPARE(m->player.area(), PlayerController::Picture);
        m->press({ Qt::Key_F5 });
        QCOMPARE(m->player.area(), PlayerController::Programmes);
        m->press({ Qt::Key_Return, Qt::Key_Info });
        QCOMPARE(m->player.area(), PlayerController::Programmes);
    }

    void theYellowKeyMakesTheChannelAFavouriteOrNone()
    {
        m->player.play(1);
        m->press({ Qt::Key_Yellow });
        QVERIFY(m->favourites.contains("tv:b"));
        QCOMPARE(m->player.area(), PlayerController::Programmes);
        m->press({ Qt::Key_F3 });
        QVERIFY(!m->player.isFavourite());
    }

    void otherKeysAreNotTaken()
    {
        m->player.play(0);
        QVERIFY(!m->player.press(Qt::Key_A));
        m->press({ Qt::Key_Return });
        QVERIFY(!m->player.press(Qt::Key_A));
        m->press({ Qt::Key_Back });
        QVERIFY(!m->player.press(Qt::Key_A));
        QCOMPARE(m->player.area(), PlayerController::Picture);
    }
};

STB_TEST_MAIN(tst_PlayerController)
#include "tst_playercontroller.moc"
