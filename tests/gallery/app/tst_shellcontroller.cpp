// SPDX-License-Identifier: MIT
#include "catalogues.h"
#include "guides.h"
#include "testkit/testcase.h"

#include "screens/shellcontroller.h"

#include <QtTest/qsignalspy.h>

using gallery::ShellController;

/*! The way through the screens. */
class tst_ShellController : public stbtest::TestCase
{
    Q_OBJECT

    void fill()
    {
        m->clock()->setFixed(guides::at(20, 5));
        m->setCatalogue(catalogues::small());
        m->guide()->setGuide(guides::five());
    }

    std::unique_ptr<ShellController> m;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m = std::make_unique<ShellController>();
    }
    void cleanup() { m.reset(); }

    void startsOnTheHomeScreen()
    {
        QCOMPARE(m->screen(), "home");
        QCOMPARE(m->openScreens(), QStringList { "home" });
    }

    void everyScreenCanBeStartedOnAboveTheHomeScreen()
    {
        fill();
        m->start("guide");
        QCOMPARE(m->openScreens(), (QStringList { "home", "guide" }));
        m->start("detail");
        QCOMPARE(m->openScreens(), (QStringList { "home", "detail" }));
        m->start("channels");
        QCOMPARE(m->openScreens(), (QStringList { "home", "channels" }));
        m->start("series");
        QCOMPARE(m->openScreens(), (QStringList { "home", "series" }));
        QCOMPARE(m->series()->title(), "S0");
        m->start("player");
        QCOMPARE(m->openScreens(), (QStringList { "home", "player" }));
        QCOMPARE(m->player()->title(), "A40");
        for (const QString screen : { "search", "settings", "about" }) {
            m->start(screen);
            QCOMPARE(m->openScreens(), (QStringList { "home", screen }));
        }
        m->start("home");
        QCOMPARE(m->openScreens(), QStringList { "home" });
    }

    void backLeadsOutOfTheSettingsAndOfWhatTheProgramTellsOfItself()
    {
        m->start("settings");
        m->settings()->press(Qt::Key_Back);
        QCOMPARE(m->screen(), "home");
        m->start("about");
        m->about()->press(Qt::Key_Back);
        QCOMPARE(m->screen(), "home");
    }

    void theDetailPageStartsWithTheFirstFilm()
    {
        fill();
        m->start("detail");
        QCOMPARE(m->detail()->title(), "F0");
        QCOMPARE(m->home()->title(), "F0");
    }

    void withoutACatalogueItStartsWithWhatIsOn()
    {
        fill();
        m->setCatalogue({});
        m->start("detail");
        QCOMPARE(m->detail()->title(), "A40");
    }

    void withoutAnythingToShowThereIsNoDetailPage()
    {
        m->start("detail");
        QCOMPARE(m->screen(), "home");
    }

    void withoutASeriesOrAChannelTheHomeScreenStandsInForThem()
    {
        m->start("series");
        QCOMPARE(m->screen(), "home");
        m->start("player");
        QCOMPARE(m->screen(), "home");
    }

    void aChannelIsPlayedAndBackLeadsToWhereItWasChosen()
    {
        fill();
        m->start("guide");
        m->openPlayer(1);
        QCOMPARE(m->openScreens(), (QStringList { "home", "guide", "player" }));
        QCOMPARE(m->player()->channelName(), "Channel b");
        m->player()->press(Qt::Key_Back);
        m->player()->press(Qt::Key_Back);
        QCOMPARE(m->screen(), "guide");
    }

    void outOfThePlayerTheGuideShowsWhatIsOnOnItsChannel()
    {
        fill();
        m->start("guide");
        for (const Qt::Key key : { Qt::Key_Down, Qt::Key_Down, Qt::Key_MediaNext })
            m->guide()->press(key);
        m->openPlayer(3);
        m->player()->press(Qt::Key_Return);
        m->player()->press(Qt::Key_End);
        QCOMPARE(m->player()->button(), gallery::PlayerController::GuideButton);
        m->player()->press(Qt::Key_Return);
        QCOMPARE(m->openScreens(), (QStringList { "home", "player", "guide" }));
        QCOMPARE(m->guide()->channelName(), "Channel c");
        QCOMPARE(m->guide()->title(), m->player()->title());
        QVERIFY(m->guide()->isLive());
        QVERIFY(!m->guide()->isInDays());
        m->guide()->press(Qt::Key_Back);
        QCOMPARE(m->screen(), "player");
    }

    void theGuideStaysAsItIsWithoutAChannelInThePlayer()
    {
        fill();
        m->guide()->press(Qt::Key_Down);
        m->guide()->show(-1);
        m->guide()->show(5);
        QCOMPARE(m->guide()->title(), "A41");
        QCOMPARE(m->guide()->channelRow(), 0);
    }

    void whatIsOverIsPlayedFromItsStartOutOfTheGuide()
    {
        fill();
        m->start("guide");
        for (const Qt::Key key : { Qt::Key_Up, Qt::Key_Up, Qt::Key_Return, Qt::Key_Return })
            m->guide()->press(key);
        QCOMPARE(m->screen(), "player");
        QCOMPARE(m->player()->title(), "A38");
        QCOMPARE(m->player()->progress(), 0.0);
        QVERIFY(!m->player()->isLive());
        m->clock()->setFixed(guides::at(20, 20));
        QCOMPARE(m->player()->title(), "A38");
        QCOMPARE(m->player()->progress(), 0.5);
    }

    void whatCannotBeCaughtUpAnyMoreIsWatchedLive()
    {
        fill();
        QVERIFY(m->player()->play(0, guides::at(20, 5).addDays(-7).addSecs(-1)));
        QVERIFY(m->player()->isLive());
        QVERIFY(m->player()->play(0, guides::at(20, 6)));
        QVERIFY(m->player()->isLive());
        QVERIFY(m->player()->play(0, guides::at(20, 5).addDays(-7)));
        QVERIFY(!m->player()->isLive());
    }

    void theChannelThatIsWatchedIsMarkedAmongTheChannels()
    {
        fill();
        m->start("channels");
        m->channels()->press(Qt::Key_Down);
        m->channels()->press(Qt::Key_Return);
        QCOMPARE(m->openScreens(), (QStringList { "home", "channels", "player" }));
        QCOMPARE(m->player()->channelName(), "Channel b");
        m->player()->press(Qt::Key_ChannelUp);
        QCOMPARE(m->channels()->playing(), 2);
    }

    void aChannelThatThereIsNotOpensNothing()
    {
        fill();
        m->openPlayer(-1);
        m->openPlayer(5);
        QCOMPARE(m->screen(), "home");
    }

    void thePlayersGuideLeadsBackToIt()
    {
        fill();
        m->openPlayer(0);
        for (const Qt::Key key : { Qt::Key_Return, Qt::Key_End, Qt::Key_Return })
            m->player()->press(key);
        QCOMPARE(m->openScreens(), (QStringList { "home", "player", "guide" }));
        m->guide()->press(Qt::Key_Back);
        QCOMPARE(m->screen(), "player");
    }

    void whatIsOnTvIsWatchedFromItsPage()
    {
        fill();
        m->home()->press(Qt::Key_Right);
        m->home()->press(Qt::Key_Return);
        m->detail()->press(Qt::Key_Return);
        QCOMPARE(m->openScreens(), (QStringList { "home", "detail", "player" }));
        QCOMPARE(m->player()->title(), "B25");
    }

    void aFavouriteChannelIsOneOnEveryScreen()
    {
        fill();
        m->openPlayer(0);
        for (const Qt::Key key : { Qt::Key_Return, Qt::Key_End, Qt::Key_Left, Qt::Key_Return })
            m->player()->press(key);
        QVERIFY(m->player()->isFavourite());
        QAbstractItemModel *programmes = m->home()->rows()->ofKind(gallery::HomeRow::NowOnTv)->tiles();
        QVERIFY(programmes->index(0, 0).data(gallery::TileModel::FavouriteRole).toBool());
        QVERIFY(!programmes->index(1, 0).data(gallery::TileModel::FavouriteRole).toBool());
    }

    void anEpisodesPageLeadsToItAmongTheOthersAndBack()
    {
        fill();
        m->home()->press(Qt::Key_Down);
        m->home()->press(Qt::Key_Down);
        m->home()->press(Qt::Key_Down);
        m->home()->press(Qt::Key_End);
        QCOMPARE(m->home()->title(), "E1");
        m->home()->press(Qt::Key_Return);
        for (const Qt::Key key : { Qt::Key_Right, Qt::Key_Right, Qt::Key_Return })
            m->detail()->press(key);
        QCOMPARE(m->openScreens(), (QStringList { "home", "detail", "series" }));
        QCOMPARE(m->series()->title(), "S1");
        QCOMPARE(m->series()->episode()->title, "E1");
        m->series()->press(Qt::Key_Back);
        QCOMPARE(m->screen(), "detail");
    }

    void anItemOpensItsPageAndBackLeadsToItsTile()
    {
        fill();
        m->home()->press(Qt::Key_Right);
        m->home()->press(Qt::Key_Return);
        QCOMPARE(m->screen(), "detail");
        QCOMPARE(m->detail()->title(), "B25");
        m->detail()->press(Qt::Key_Back);
        QCOMPARE(m->screen(), "home");
        QCOMPARE(m->home()->title(), "B25");
    }

    void theGuideLeadsBackToWhereItWasOpened()
    {
        fill();
        m->home()->press(Qt::Key_Up);
        m->home()->press(Qt::Key_Right);
        m->home()->press(Qt::Key_Return);
        QCOMPARE(m->screen(), "guide");
        m->guide()->press(Qt::Key_Back);
        QCOMPARE(m->screen(), "home");
        QVERIFY(m->home()->isInHeader());
        m->home()->press(Qt::Key_Down);
        m->home()->press(Qt::Key_Return);
        for (const Qt::Key key : { Qt::Key_Right, Qt::Key_Right, Qt::Key_Return })
            m->detail()->press(key);
        QCOMPARE(m->openScreens(), (QStringList { "home", "detail", "guide" }));
        m->guide()->press(Qt::Key_Back);
        QCOMPARE(m->screen(), "detail");
    }

    void theChannelsAreThoseOfTheGuideAndBackLeadsHome()
    {
        fill();
        for (const Qt::Key key : { Qt::Key_Up, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return })
            m->home()->press(key);
        QCOMPARE(m->screen(), "channels");
        QCOMPARE(m->channels()->channels()->rowCount(), 5);
        m->channels()->press(Qt::Key_Back);
        QCOMPARE(m->screen(), "home");
        QVERIFY(m->home()->isInHeader());
    }

    void everyMenuEntryOpensItsScreen()
    {
        fill();
        const QStringList entries = m->menu()->entries();
        QVERIFY(entries.size() >= 4);
        for (int i = 1; i < entries.size(); ++i) {
            m->start("home");
            QVERIFY(m->press(Qt::Key_Menu));
            QVERIFY(m->menu()->isOpen());
            for (int step = 0; step < i; ++step)
                m->menu()->press(Qt::Key_Right);
            m->menu()->press(Qt::Key_Return);
            QCOMPARE(m->openScreens(), (QStringList { "home", entries.at(i) }));
            QVERIFY(!m->menu()->isOpen());
            QCOMPARE(m->menu()->current(), i);
        }
    }

    void keysLeadToScreensFromAnywhere_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QStringList>("screens");
        QTest::newRow("blue") << int(Qt::Key_Blue) << QStringList { "home", "channels", "search" };
        QTest::newRow("F4") << int(Qt::Key_F4) << QStringList { "home", "channels", "search" };
        QTest::newRow("search") << int(Qt::Key_Search) << QStringList { "home", "channels", "search" };
        QTest::newRow("guide") << int(Qt::Key_Guide) << QStringList { "home", "channels", "guide" };
        QTest::newRow("home") << int(Qt::Key_HomePage) << QStringList { "home" };
    }
    void keysLeadToScreensFromAnywhere()
    {
        QFETCH(int, key);
        fill();
        m->start("channels");
        QVERIFY(m->press(key));
        QTEST(m->openScreens(), "screens");
        m->press(Qt::Key_Menu);
        QVERIFY(m->press(key));
        QVERIFY(!m->menu()->isOpen());
        QTEST(m->openScreens(), "screens");
    }

    void otherKeysMeanNothing()
    {
        for (const Qt::Key key : { Qt::Key_A, Qt::Key_Green, Qt::Key_Down, Qt::Key_Info })
            QVERIFY(!m->press(key));
        QVERIFY(!m->menu()->isOpen());
    }

    void theMenuClosesWithItsScreen()
    {
        fill();
        m->start("guide");
        m->press(Qt::Key_Menu);
        m->goBack();
        QVERIFY(!m->menu()->isOpen());
        QCOMPARE(m->menu()->current(), 0);
    }

    void theSearchStartsAnewUnlessBackLeadsToIt()
    {
        fill();
        m->press(Qt::Key_Blue);
        m->search()->setText("f");
        m->search()->press(Qt::Key_Right);
        m->search()->press(Qt::Key_Return);
        QCOMPARE(m->openScreens(), (QStringList { "home", "search", "detail" }));
        m->press(Qt::Key_Blue);
        QCOMPARE(m->openScreens(), (QStringList { "home", "detail", "search" }));
        QCOMPARE(m->search()->text(), "f");
        m->goBack();
        m->press(Qt::Key_Blue);
        QCOMPARE(m->search()->text(), QString());
    }

    void aProgrammeToComeKeepsItsPageUntilItIsOn()
    {
        fill();
        m->start("search");
        m->search()->setText("a42");
        m->search()->press(Qt::Key_Right);
        m->search()->press(Qt::Key_Return);
        QCOMPARE(m->detail()->title(), "A42");
        // It cannot be watched yet: OK sets its reminder, which the guide has too, and deletes it.
        for (const bool reminder : { true, false, true }) {
            m->detail()->press(Qt::Key_Return);
            QCOMPARE(m->screen(), "detail");
            QCOMPARE(m->detail()->hasReminder(), reminder);
        }
        m->clock()->setFixed(guides::at(20, 31));
        QCOMPARE(m->detail()->title(), "A42");
        m->clock()->setFixed(guides::at(21, 15));
        QCOMPARE(m->detail()->title(), "A42");
        QCOMPARE(m->detail()->progress(), 0.5);
        QVERIFY(!m->detail()->isToCome());
        m->clock()->setFixed(guides::at(21, 31));
        QCOMPARE(m->detail()->title(), "A43");
    }

    void aProgrammeThatIsOverKeepsItsPage()
    {
        fill();
        m->start("search");
        m->search()->setText("a39");
        m->search()->press(Qt::Key_Right);
        m->search()->press(Qt::Key_Return);
        QCOMPARE(m->detail()->title(), "A39");
        m->clock()->setFixed(guides::at(20, 31));
        QCOMPARE(m->detail()->title(), "A39");
        m->detail()->press(Qt::Key_Return); // is watched from its start
        QCOMPARE(m->screen(), "player");
        QCOMPARE(m->player()->title(), "A39");
    }

    void infoAmongTheChannelsOpensThePageOfWhatIsOn()
    {
        fill();
        m->start("channels");
        m->channels()->press(Qt::Key_ChannelUp);
        QVERIFY(m->channels()->press(Qt::Key_Info));
        QCOMPARE(m->openScreens(), (QStringList { "home", "channels", "detail" }));
        QCOMPARE(m->detail()->title(), "B25");
        m->goBack();
        m->channels()->press(Qt::Key_ChannelUp); // has nothing on
        QVERIFY(m->channels()->press(Qt::Key_F5));
        QCOMPARE(m->screen(), "channels");
    }

    void onlyTheHomeScreenLeaves()
    {
        fill();
        QSignalSpy leaving(m.get(), &ShellController::leaveRequested);
        m->start("guide");
        m->guide()->press(Qt::Key_Back);
        m->goBack();
        QCOMPARE(m->screen(), "home");
        QCOMPARE(leaving.count(), 0);
        for (int i = 0; i < 3; ++i)
            m->home()->press(Qt::Key_Back);
        QCOMPARE(leaving.count(), 1);
    }

    void aFavouriteShowsOnItsTile()
    {
        fill();
        m->start("detail");
        m->detail()->press(Qt::Key_Right);
        m->detail()->press(Qt::Key_Return);
        QAbstractItemModel *films = m->home()->rows()->ofKind(gallery::HomeRow::Films)->tiles();
        QVERIFY(films->index(0, 0).data(gallery::TileModel::FavouriteRole).toBool());
        QVERIFY(!films->index(1, 0).data(gallery::TileModel::FavouriteRole).toBool());
    }

    void theTimeGoesOnOnThePageOfAProgramme()
    {
        fill();
        m->home()->press(Qt::Key_Return);
        QCOMPARE(m->detail()->progress(), 5.0 / 30);
        m->clock()->setFixed(guides::at(20, 15));
        QCOMPARE(m->detail()->progress(), 0.5);
        m->clock()->setFixed(guides::at(20, 31));
        QCOMPARE(m->detail()->title(), "A41");
    }

    void allScreensAreMirroredTogether()
    {
        QSignalSpy changes(m.get(), &ShellController::mirroredChanged);
        m->setMirrored(true);
        m->setMirrored(true);
        QCOMPARE(changes.count(), 1);
        QVERIFY(m->home()->isMirrored() && m->detail()->isMirrored() && m->guide()->isMirrored());
        QVERIFY(m->channels()->isMirrored());
        QVERIFY(m->player()->isMirrored() && m->series()->isMirrored() && m->settings()->isMirrored());
        QVERIFY(m->menu()->isMirrored() && m->search()->isMirrored());
    }

    void aStartBringsTheGuideBackToWhatIsOn()
    {
        fill();
        m->start("guide");
        for (const Qt::Key key : { Qt::Key_Right, Qt::Key_Down, Qt::Key_Return })
            m->guide()->press(key);
        m->start("guide");
        QCOMPARE(m->guide()->title(), "A40");
        QVERIFY(!m->guide()->isDetailsOpen());
    }
};

STB_TEST_MAIN(tst_ShellController)
#include "tst_shellcontroller.moc"
