// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include "screens/mainmenucontroller.h"

#include <QtTest/qsignalspy.h>

using gallery::MainMenuController;

/*! What remote keys do in the main menu. */
class tst_MainMenuController : public stbtest::TestCase
{
    Q_OBJECT

    static QStringList allScreens()
    {
        return {
            "about", "home", "detail", "search", "guide", "channels", "player", "settings", "components"
        };
    }

    std::unique_ptr<MainMenuController> m;

    void press(std::initializer_list<Qt::Key> keys)
    {
        for (const Qt::Key key : keys)
            QVERIFY(m->press(key));
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m = std::make_unique<MainMenuController>(allScreens());
    }
    void cleanup() { m.reset(); }

    void theEntriesHaveAnOrderOfTheirOwn()
    {
        QCOMPARE(m->entries(),
                 (QStringList { "home", "guide", "channels", "search", "settings", "components", "about" }));
    }

    void onlyScreensThatThereAreHaveEntries()
    {
        const MainMenuController menu({ "guide", "detail", "home", "nonsense" });
        QCOMPARE(menu.entries(), (QStringList { "home", "guide" }));
    }

    void everyEntryHasItsWords()
    {
        QSet<QString> texts;
        for (const QString &entry : m->entries())
            texts.insert(MainMenuController::text(entry));
        QCOMPARE(texts.size(), 7);
        QCOMPARE(MainMenuController::text("guide"), "TV guide");
        QCOMPARE(MainMenuController::text("nonsense"), QString());
    }

    void theCurrentEntryIsThatOfTheScreenThatIsShown()
    {
        QCOMPARE(m->current(), -1);
        QSignalSpy changes(m.get(), &MainMenuController::currentChanged);
        m->setOpenScreens({ "home" });
        QCOMPARE(m->current(), 0);
        m->setOpenScreens({ "home", "channels" });
        QCOMPARE(m->current(), 2);
        m->setOpenScreens({ "home", "channels" });
        QCOMPARE(changes.count(), 2);
    }

    void aScreenWithoutAnEntryBelongsToTheOneBelowIt()
    {
        m->setOpenScreens({ "home", "channels", "player" });
        QCOMPARE(m->current(), 2);
        m->setOpenScreens({ "home", "detail", "guide", "player" });
        QCOMPARE(m->current(), 1);
        m->setOpenScreens({ "detail" });
        QCOMPARE(m->current(), -1);
    }

    void opensOnTheCurrentEntry()
    {
        m->setOpenScreens({ "home", "channels" });
        m->open();
        QVERIFY(m->isOpen());
        QCOMPARE(m->chosen(), 2);
        press({ Qt::Key_Right, Qt::Key_Back });
        m->open();
        QCOMPARE(m->chosen(), 2);
    }

    void withoutACurrentEntryItOpensOnTheFirst()
    {
        press({ Qt::Key_End });
        m->open();
        QCOMPARE(m->chosen(), 0);
    }

    void leftAndRightChooseAndStopAtTheEnds()
    {
        press({ Qt::Key_Right, Qt::Key_Right });
        QCOMPARE(m->chosen(), 2);
        press({ Qt::Key_Left });
        QCOMPARE(m->chosen(), 1);
        press({ Qt::Key_Left, Qt::Key_Left });
        QCOMPARE(m->chosen(), 0);
        for (int i = 0; i < 9; ++i)
            press({ Qt::Key_Right });
        QCOMPARE(m->chosen(), 6);
    }

    void mirroredTheNextEntryIsOnTheLeft()
    {
        QSignalSpy changes(m.get(), &MainMenuController::mirroredChanged);
        m->setMirrored(true);
        m->setMirrored(true);
        QCOMPARE(changes.count(), 1);
        press({ Qt::Key_Left });
        QCOMPARE(m->chosen(), 1);
        press({ Qt::Key_Right });
        QCOMPARE(m->chosen(), 0);
    }

    void homeAndEndChooseTheFirstAndTheLast()
    {
        press({ Qt::Key_End });
        QCOMPARE(m->chosen(), 6);
        press({ Qt::Key_Home });
        QCOMPARE(m->chosen(), 0);
    }

    void okOpensTheScreenOfTheEntry()
    {
        QSignalSpy activated(m.get(), &MainMenuController::activated);
        press({ Qt::Key_Right, Qt::Key_Return, Qt::Key_Right, Qt::Key_Select });
        QCOMPARE(activated.count(), 2);
        QCOMPARE(activated.at(0).at(0).toString(), "guide");
        QCOMPARE(activated.at(1).at(0).toString(), "channels");
    }

    void backMenuAndDownCloseIt_data()
    {
        QTest::addColumn<int>("key");
        for (const Qt::Key key : { Qt::Key_Back, Qt::Key_Escape, Qt::Key_Backspace, Qt::Key_Menu, Qt::Key_Red,
                                   Qt::Key_F1, Qt::Key_Down, Qt::Key_PageDown })
            QTest::addRow("%x", key) << int(key);
    }
    void backMenuAndDownCloseIt()
    {
        QFETCH(int, key);
        m->open();
        QSignalSpy changes(m.get(), &MainMenuController::openChanged);
        QVERIFY(m->press(key));
        QVERIFY(!m->isOpen());
        QCOMPARE(changes.count(), 1);
    }

    void whereItLiesOverNothingThoseKeysAreNotItsOwn()
    {
        for (const Qt::Key key : { Qt::Key_Back, Qt::Key_Menu, Qt::Key_Red, Qt::Key_Down })
            QVERIFY(!m->press(key));
    }

    void otherKeysAreNotTaken()
    {
        m->open();
        QVERIFY(!m->press(Qt::Key_A));
        QVERIFY(!m->press(Qt::Key_Blue));
        press({ Qt::Key_Up, Qt::Key_PageUp });
        QVERIFY(m->isOpen());
    }

    void withoutEntriesNothingHappens()
    {
        MainMenuController menu({});
        QSignalSpy activated(&menu, &MainMenuController::activated);
        menu.open();
        for (const Qt::Key key : { Qt::Key_Right, Qt::Key_End, Qt::Key_Return, Qt::Key_Left })
            QVERIFY(menu.press(key));
        QCOMPARE(menu.chosen(), 0);
        QCOMPARE(activated.count(), 0);
    }
};

STB_TEST_MAIN(tst_MainMenuController)
#include "tst_mainmenucontroller.moc"
