// SPDX-License-Identifier: MIT
#include "catalogues.h"
#include "guides.h"
#include "testkit/testcase.h"

#include "gallery/data/clock.h"
#include "screens/homecontroller.h"
#include "screens/mainmenucontroller.h"
#include "screens/marks.h"

#include <QtTest/qsignalspy.h>

using gallery::HomeController;
using gallery::HomeRow;

/*! What remote keys do on the home screen. The test runs in UTC. */
class tst_HomeController : public stbtest::TestCase
{
    Q_OBJECT

    struct Fixture
    {
        gallery::Clock clock;
        gallery::Marks favourites;
        gallery::MainMenuController menu { { "home", "guide", "channels" } };
        HomeController home { &clock, &favourites, &menu };

        Fixture()
        {
            clock.setFixed(guides::at(20, 5));
            menu.setOpenScreens({ "home" });
        }

        void fill()
        {
            home.setGuide(guides::five());
            home.setCatalogue(catalogues::small());
        }
        void press(std::initializer_list<Qt::Key> keys)
        {
            for (const Qt::Key key : keys)
                QVERIFY(home.press(key));
        }
        HomeRow *row() { return home.rows()->at(home.rowIndex()); }
        QStringList titles()
        {
            QStringList result;
            for (int i = 0; i < home.rows()->count(); ++i)
                result.append(home.rows()->at(i)->title());
            return result;
        }
        QStringList tiles(HomeRow::Kind kind)
        {
            QStringList result;
            QAbstractItemModel *model = home.rows()->ofKind(kind)->tiles();
            for (int i = 0; i < model->rowCount(); ++i)
                result.append(model->index(i, 0).data().toString());
            return result;
        }
        QVariant tile(HomeRow::Kind kind, int index, const char *role)
        {
            QAbstractItemModel *model = home.rows()->ofKind(kind)->tiles();
            return model->index(index, 0).data(model->roleNames().key(role, -1));
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

    void theRowsStandInTheirOrder()
    {
        m->fill();
        QCOMPARE(m->titles(), (QStringList { "Now on TV", "Films", "Series", "Continue watching" }));
        QCOMPARE(m->tiles(HomeRow::NowOnTv), (QStringList { "A40", "B25", "C19", "Only" }));
        QCOMPARE(m->tiles(HomeRow::Films).size(), 9);
        QCOMPARE(m->tiles(HomeRow::Series), (QStringList { "S0", "S1" }));
        QCOMPARE(m->tiles(HomeRow::ContinueWatching), (QStringList { "F1", "F4", "E1" }));
    }

    void aRowWithoutTilesIsNotShown()
    {
        m->home.setGuide(guides::five());
        QCOMPARE(m->titles(), (QStringList { "Now on TV" }));
        m->home.setCatalogue(gallery::Catalogue(catalogues::films(1)));
        QCOMPARE(m->titles(), (QStringList { "Now on TV", "Films" }));
        m->home.setCatalogue({});
        QCOMPARE(m->titles(), (QStringList { "Now on TV" }));
    }

    void aTileTellsWhatItsItemIs()
    {
        m->fill();
        QCOMPARE(m->tile(HomeRow::NowOnTv, 0, "subtitle").toString(), u"20:00 – 20:30");
        QCOMPARE(m->tile(HomeRow::NowOnTv, 0, "channel").toString(), "Channel a");
        QCOMPARE(m->tile(HomeRow::NowOnTv, 0, "progress").toDouble(), 5.0 / 30);
        QCOMPARE(m->tile(HomeRow::Films, 0, "subtitle").toString(), "Below F0");
        QCOMPARE(m->tile(HomeRow::Films, 0, "rating").toString(), "12+");
        QCOMPARE(m->tile(HomeRow::Films, 0, "favourite").toBool(), false);
        QCOMPARE(m->tile(HomeRow::Films, 4, "favourite").toBool(), true);
        QCOMPARE(m->tile(HomeRow::ContinueWatching, 1, "favourite").toBool(), true);
        QCOMPARE(m->tile(HomeRow::ContinueWatching, 2, "position").toDouble(), 600.0);
        QCOMPARE(m->tile(HomeRow::ContinueWatching, 2, "duration").toDouble(), 6480.0);
        QCOMPARE(m->tile(HomeRow::ContinueWatching, 2, "status").toString(), "1 h 38 min left");
    }

    void factsAreThoseThatAreKnown()
    {
        m->fill();
        QCOMPARE(m->home.facts(), u"Channel a · 20:00 – 20:30");
        m->press({ Qt::Key_Down });
        QCOMPARE(m->home.facts(), u"2021 · Drama · 1 h 48 min · 12+");
        m->press({ Qt::Key_Down });
        QCOMPARE(m->home.facts(), u"2021 · Drama · 12+");
        m->press({ Qt::Key_Down, Qt::Key_End });
        QCOMPARE(m->home.facts(), u"S1 · Season 2, episode 8 · 1 h 48 min · 12+");
    }

    void startsOnTheFirstTileOfTheFirstRow()
    {
        m->fill();
        QVERIFY(!m->home.isInHeader());
        QCOMPARE(m->home.rowIndex(), 0);
        QCOMPARE(m->home.title(), "A40");
        QCOMPARE(m->home.description(), "All of A40");
    }

    void leftAndRightChooseTilesAndStopAtTheEnds()
    {
        m->fill();
        m->press({ Qt::Key_Right, Qt::Key_Right });
        QCOMPARE(m->home.title(), "C19");
        m->press({ Qt::Key_Left });
        QCOMPARE(m->home.title(), "B25");
        m->press({ Qt::Key_Left, Qt::Key_Left, Qt::Key_Left });
        QCOMPARE(m->home.title(), "A40");
        QVERIFY(!m->home.isInHeader());
        m->press({ Qt::Key_End, Qt::Key_Right });
        QCOMPARE(m->home.title(), "Only");
    }

    void onAMirroredScreenTheNextTileIsOnTheLeft()
    {
        m->fill();
        m->home.setMirrored(true);
        m->press({ Qt::Key_Right });
        QCOMPARE(m->home.title(), "A40");
        m->press({ Qt::Key_Left });
        QCOMPARE(m->home.title(), "B25");
    }

    void homeAndEndChooseTheFirstAndTheLastTile()
    {
        m->fill();
        m->press({ Qt::Key_Down, Qt::Key_End });
        QCOMPARE(m->home.title(), "F8");
        m->press({ Qt::Key_Home });
        QCOMPARE(m->home.title(), "F0");
    }

    void eachRowRemembersItsTile()
    {
        m->fill();
        m->press({ Qt::Key_Right, Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Down,
                   Qt::Key_Right });
        QCOMPARE(m->home.title(), "S1");
        m->press({ Qt::Key_Up });
        QCOMPARE(m->home.title(), "F3");
        m->press({ Qt::Key_Up });
        QCOMPARE(m->home.title(), "B25");
        m->press({ Qt::Key_PageDown, Qt::Key_PageDown });
        QCOMPARE(m->home.title(), "S1");
    }

    void pageKeysStayInTheRows()
    {
        m->fill();
        m->press({ Qt::Key_PageUp });
        QVERIFY(!m->home.isInHeader());
        m->press({ Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_Down });
        QCOMPARE(m->home.rowIndex(), 3);
    }

    void upFromTheFirstRowLeadsIntoTheHeaderAndDownBack()
    {
        m->fill();
        m->press({ Qt::Key_Right, Qt::Key_Up });
        QVERIFY(m->home.isInHeader());
        QCOMPARE(m->menu.chosen(), 0);
        m->press({ Qt::Key_Up, Qt::Key_Right });
        QCOMPARE(m->menu.chosen(), 1);
        m->press({ Qt::Key_Right, Qt::Key_Right });
        QCOMPARE(m->menu.chosen(), 2);
        m->press({ Qt::Key_Left, Qt::Key_Left, Qt::Key_Left });
        QCOMPARE(m->menu.chosen(), 0);
        m->press({ Qt::Key_Down });
        QVERIFY(!m->home.isInHeader());
        QCOMPARE(m->home.title(), "B25");
    }

    void theHeaderBeginsWithItsOwnEntryAgain()
    {
        m->fill();
        m->press({ Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Up });
        QCOMPARE(m->menu.chosen(), 0);
    }

    void theMenuInTheHeaderLeadsToOtherScreens()
    {
        m->fill();
        QSignalSpy activated(&m->menu, &gallery::MainMenuController::activated);
        m->press({ Qt::Key_Up, Qt::Key_Right, Qt::Key_Return });
        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated.at(0).at(0).toString(), "guide");
    }

    void menuKeysLeadIntoTheHeaderAndBack_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("menu") << int(Qt::Key_Menu);
        QTest::newRow("red") << int(Qt::Key_Red);
        QTest::newRow("F1") << int(Qt::Key_F1);
    }
    void menuKeysLeadIntoTheHeaderAndBack()
    {
        QFETCH(int, key);
        m->fill();
        m->press({ Qt::Key_Down, Qt::Key_Right, Qt::Key(key) });
        QVERIFY(m->home.isInHeader());
        QVERIFY(!m->menu.isOpen());
        m->press({ Qt::Key(key) });
        QVERIFY(!m->home.isInHeader());
        QCOMPARE(m->home.title(), "F1");
    }

    void infoOpensTheItem()
    {
        m->fill();
        QSignalSpy opened(&m->home, &HomeController::itemOpened);
        m->press({ Qt::Key_Info, Qt::Key_F5 });
        QCOMPARE(opened.count(), 2);
    }

    void theYellowKeyMakesTheTileAFavouriteOrNone()
    {
        m->fill();
        m->press({ Qt::Key_Down, Qt::Key_Right, Qt::Key_Yellow });
        QCOMPARE(m->tile(HomeRow::Films, 1, "favourite").toBool(), true);
        QCOMPARE(m->tile(HomeRow::Films, 0, "favourite").toBool(), false);
        m->press({ Qt::Key_F3 });
        QCOMPARE(m->tile(HomeRow::Films, 1, "favourite").toBool(), false);
    }

    void returnOpensTheItem()
    {
        m->fill();
        QSignalSpy opened(&m->home, &HomeController::itemOpened);
        m->press({ Qt::Key_Right, Qt::Key_Return });
        QCOMPARE(opened.count(), 1);
        QCOMPARE(m->home.item()->title, "B25");
    }

    void backLeadsToTheFirstTileThenToTheFirstRowThenToTheHeader()
    {
        m->fill();
        m->press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Back });
        QCOMPARE(m->home.title(), "F0");
        m->press({ Qt::Key_Escape });
        QCOMPARE(m->home.rowIndex(), 0);
        QCOMPARE(m->home.title(), "C19");
        m->press({ Qt::Key_Backspace });
        QCOMPARE(m->home.title(), "A40");
        m->press({ Qt::Key_Back });
        QVERIFY(m->home.isInHeader());
    }

    void onlyBackTwiceInTheHeaderLeaves()
    {
        m->fill();
        QSignalSpy leaving(&m->home, &HomeController::leaveRequested);
        m->press({ Qt::Key_Back, Qt::Key_Back });
        QVERIFY(m->home.isLeaving());
        m->press({ Qt::Key_Up });
        QVERIFY(!m->home.isLeaving());
        m->press({ Qt::Key_Back });
        QCOMPARE(leaving.count(), 0);
        m->press({ Qt::Key_Back });
        QCOMPARE(leaving.count(), 1);
    }

    void otherKeysAreNotTaken()
    {
        m->fill();
        QVERIFY(!m->home.press(Qt::Key_A));
        m->press({ Qt::Key_Up });
        QVERIFY(!m->home.press(Qt::Key_A));
    }

    void aRowScrollsNoFurtherThanItMust()
    {
        m->fill();
        HomeRow *films = m->home.rows()->ofKind(HomeRow::Films);
        films->setColumns(4);
        m->press({ Qt::Key_Down });
        const QList<int> first { 0, 0, 0, 0, 1, 2, 3, 4, 5 };
        for (int tile = 0; tile < 9; ++tile) {
            films->setCurrent(tile);
            QCOMPARE(films->first(), first.at(tile));
        }
        films->setCurrent(6);
        QCOMPARE(films->first(), 5);
        films->setCurrent(2);
        QCOMPARE(films->first(), 2);
        films->setColumns(20);
        QCOMPARE(films->first(), 0);
        films->setColumns(0);
        QCOMPARE(films->columns(), 1);
        QCOMPARE(films->first(), 2);
    }

    void theThirdLineIsOnlyThereWhenItSaysSomething()
    {
        m->fill();
        QCOMPARE(m->home.rows()->ofKind(HomeRow::NowOnTv)->captionLines(), 2);
        QCOMPARE(m->home.rows()->ofKind(HomeRow::Series)->captionLines(), 2);
        QCOMPARE(m->home.rows()->ofKind(HomeRow::ContinueWatching)->captionLines(), 3);
    }

    void withoutAnythingToShowTheHeaderHasTheKeys()
    {
        m->home.setGuide({});
        m->home.setCatalogue({});
        QCOMPARE(m->home.rowIndex(), -1);
        QVERIFY(m->home.isInHeader());
        m->press({ Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_Right, Qt::Key_Home, Qt::Key_End,
                   Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Left });
        QVERIFY(m->home.isInHeader());
        QCOMPARE(m->home.title(), QString());
        QCOMPARE(m->home.facts(), QString());
        QVERIFY(m->home.item() == nullptr);
    }

    void theTimeMovesTheProgrammesAndNotTheFocus()
    {
        m->fill();
        m->press({ Qt::Key_Right });
        m->clock.setFixed(guides::at(20, 31));
        QCOMPARE(m->home.title(), "B26");
        QCOMPARE(m->tiles(HomeRow::NowOnTv), (QStringList { "A41", "B26", "C20", "Only" }));
    }

    void theFocusStaysWithItsChannelWhenAnotherOneEnds()
    {
        gallery::GuideBuilder builder;
        guides::addChannel(builder, "short", { { "Ends", guides::at(19, 0), guides::at(20, 10) } });
        guides::addChannel(builder, "long", { { "Goes on", guides::at(19, 0), guides::at(22, 0) } });
        m->home.setGuide(builder.take());
        m->press({ Qt::Key_Right });
        m->clock.setFixed(guides::at(20, 11));
        QCOMPARE(m->tiles(HomeRow::NowOnTv), QStringList { "Goes on" });
        QCOMPARE(m->home.title(), "Goes on");
    }

    void theFocusGoesToAnotherRowWhenItsOwnGoes()
    {
        gallery::GuideBuilder builder;
        guides::addChannel(builder, "short", { { "Ends", guides::at(19, 0), guides::at(20, 10) } });
        m->home.setGuide(builder.take());
        m->home.setCatalogue(catalogues::small());
        m->press({ Qt::Key_Right });
        m->clock.setFixed(guides::at(20, 11));
        QCOMPARE(m->home.rowIndex(), 0);
        QCOMPARE(m->home.title(), "F0");
    }

    void aRowThatComesInLaterTakesTheFocusOnlyFromWhoHasPressedNothing()
    {
        m->home.setCatalogue(catalogues::small());
        m->home.setGuide(guides::five());
        QCOMPARE(m->home.title(), "A40");

        m = std::make_unique<Fixture>();
        m->home.setCatalogue(catalogues::small());
        m->press({ Qt::Key_Right });
        m->home.setGuide(guides::five());
        QCOMPARE(m->home.title(), "F1");
        QCOMPARE(m->home.rowIndex(), 1);
    }

    void aStartForgetsWhatKeysDid()
    {
        m->fill();
        m->press({ Qt::Key_Right, Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_Up, Qt::Key_Back });
        m->home.start();
        QVERIFY(!m->home.isInHeader());
        QVERIFY(!m->home.isLeaving());
        QCOMPARE(m->home.title(), "A40");
        m->press({ Qt::Key_Down });
        QCOMPARE(m->home.title(), "F0");
    }

    void onlyTheRowsThatChangeSaySo()
    {
        m->fill();
        QAbstractItemModel *model = m->home.rows()->ofKind(HomeRow::NowOnTv)->tiles();
        QSignalSpy changes(model, &QAbstractItemModel::dataChanged);
        QSignalSpy resets(model, &QAbstractItemModel::modelReset);
        m->home.setGuide(guides::five());
        QCOMPARE(changes.count(), 0);
        QCOMPARE(resets.count(), 0);
    }
};

STB_TEST_MAIN(tst_HomeController)
#include "tst_homecontroller.moc"
