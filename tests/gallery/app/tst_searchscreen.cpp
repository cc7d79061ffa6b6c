// SPDX-License-Identifier: MIT
#include "catalogues.h"
#include "screentest.h"

#include <QtCore/qset.h>

/*! The search in its window, steered with key events. */
class tst_SearchScreen : public ScreenTest
{
    Q_OBJECT

    void start(gallery::Options options = {})
    {
        options.screen = "search";
        // Without movements: each key leads to its end at once.
        options.screenshotsFolder = "unused";
        ScreenTest::start(options);
        shell()->setCatalogue(catalogues::small());
        shell()->start("search");
    }

    gallery::SearchController *search() const { return shell()->search(); }
    void type(const QString &text) const
    {
        for (const QChar c : text) {
            QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, c);
            QCoreApplication::sendEvent(view(), &event);
        }
    }
    /*! Presses \a key until it leads to the results. */
    void enterResults(Qt::Key key) const
    {
        for (int i = 0; i < 20 && !search()->isInResults(); ++i)
            press(key);
        QVERIFY(search()->isInResults());
    }
    QQuickItem *keyboard() const { return item("searchKeyboard"); }

    /*! Why the focus cannot be seen, or nothing when it can. */
    QString focusProblem() const
    {
        if (search()->isInResults())
            return plateProblem(sceneRect(item("results")));
        const QQuickItem *focus = view()->activeFocusItem();
        if (focus == nullptr || focus->parentItem() != keyboard())
            return "no key of the keyboard has the focus";
        if (!items("focusPlate").isEmpty())
            return "there is a focus plate beside the focused key";
        return sceneRect(view()->rootObject()).contains(sceneRect(focus)) ? QString()
                                                                          : "the key is not in sight";
    }

private Q_SLOTS:
    void cleanup() { end(); }

    void startsOnTheKeyboardAndSaysWhatToDo()
    {
        start();
        QTRY_COMPARE(focusProblem(), QString());
        QVERIFY(texts().contains("Type the name of a programme, a film or a series"));
        QCOMPARE(item("searchText")->property("text").toString(), QString());
        QCOMPARE(item("searchText")->property("editing").toBool(), true);
    }

    void okTypesTheKeyAndTheResultsFollow()
    {
        start();
        press(Qt::Key_Return); // the first letter
        QCOMPARE(search()->text(), "q");
        QCOMPARE(item("searchText")->property("text").toString(), "q");
        QVERIFY(texts().contains("Nothing found for “q”"));
        press(Qt::Key_Backspace);
        QCOMPARE(search()->text(), QString());
    }

    void aRealKeyboardTypesAndItsBackspaceDeletes()
    {
        start();
        type("onl");
        QCOMPARE(search()->text(), "onl");
        QCOMPARE(search()->cursor(), 3);
        QCOMPARE(items("tile").size(), 1);
        QCOMPARE(item("tile")->property("itemTitle").toString(), "Only");
        press(Qt::Key_Backspace);
        QCOMPARE(search()->text(), "on");
    }

    void digitsOfARemoteControlTypeAtTheCursor()
    {
        start();
        type("ab");
        QMetaObject::invokeMethod(item("searchText"), "moveCursorLeft");
        QCOMPARE(search()->cursor(), 1);
        press(Qt::Key_5);
        QCOMPARE(search()->text(), "a5b");
        QCOMPARE(item("searchText")->property("cursorPosition").toInt(), 2);
        type("c");
        QCOMPARE(search()->text(), "a5cb");
    }

    void theArrowBeyondTheLastKeyLeadsToTheResultsAndBack()
    {
        start();
        type("f");
        for (int i = 0; i < 12 && !search()->isInResults(); ++i) {
            QTRY_COMPARE(focusProblem(), QString());
            press(Qt::Key_Right);
        }
        QVERIFY(search()->isInResults());
        QTRY_COMPARE(focusProblem(), QString());
        QCOMPARE(item("searchText")->property("editing").toBool(), false);
        press(Qt::Key_Left);
        QVERIFY(!search()->isInResults());
        QTRY_COMPARE(focusProblem(), QString());
    }

    void theKeyboardGoesAroundWhileNothingIsFound_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("count");
        for (const QString resolution : { "hd", "sd" }) {
            const auto add = [&](const char *name, Qt::Key key, int count) {
                QTest::addRow("%s %s", qPrintable(resolution), name) << resolution << key << count;
            };
            add("up", Qt::Key_Up, 5);
            add("down", Qt::Key_Down, 5);
            add("left", Qt::Key_Left, 12);
            add("right", Qt::Key_Right, 12);
        }
    }
    void theKeyboardGoesAroundWhileNothingIsFound()
    {
        QFETCH(QString, resolution);
        QFETCH(Qt::Key, key);
        QFETCH(int, count);
        gallery::Options options;
        options.resolution = resolution;
        start(options);
        const int first = keyboard()->property("currentKey").toInt();
        QSet<int> keys;
        for (int i = 0; i < count; ++i) {
            press(key);
            keys.insert(keyboard()->property("currentKey").toInt());
        }
        QCOMPARE(int(keys.size()), count);
        QCOMPARE(keyboard()->property("currentKey").toInt(), first);
        QVERIFY(!search()->isInResults());
    }

    void upGoesAroundTheKeyboardBesideTheResults()
    {
        start();
        type("f");
        const auto current = [this] { return keyboard()->property("currentKey").toInt(); };
        QList<int> keys { current() };
        for (int row = 0; row < 5; ++row) {
            press(Qt::Key_Up);
            QVERIFY(!search()->isInResults());
            keys.append(current());
        }
        QCOMPARE(QSet<int>(keys.cbegin(), keys.cend()).size(), 5);
        QCOMPARE(keys.constLast(), keys.constFirst());
    }

    void fromEveryKeyThreeArrowsLeadToTheResults_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::newRow("beside") << "hd";
        QTest::newRow("below") << "sd";
    }
    void fromEveryKeyThreeArrowsLeadToTheResults()
    {
        QFETCH(QString, resolution);
        gallery::Options options;
        options.resolution = resolution;
        start(options);
        type("f");
        for (int key = 0; key < keyboard()->property("keyCount").toInt(); ++key) {
            int fewest = 99;
            for (int ups = 0; ups < 3; ++ups) {
                keyboard()->setProperty("currentKey", key);
                int presses = 0;
                for (; presses < ups; ++presses)
                    press(Qt::Key_Up);
                for (; presses < 9 && !search()->isInResults(); ++presses)
                    press(Qt::Key_Down);
                QVERIFY(search()->isInResults());
                press(Qt::Key_Back);
                QVERIFY(!search()->isInResults());
                fewest = std::min(fewest, presses);
            }
            QVERIFY2(fewest <= 3, qPrintable(QString::number(key)));
        }
    }

    void theHintTellsTheKeyThatLeadsToTheResults_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::newRow("beside") << "hd";
        QTest::newRow("below") << "sd";
    }
    void theHintTellsTheKeyThatLeadsToTheResults()
    {
        QFETCH(QString, resolution);
        gallery::Options options;
        options.resolution = resolution;
        start(options);
        QVERIFY(!texts().contains("Results"));
        type("f");
        const QHash<QString, Qt::Key> keys { { "▶", Qt::Key_Right },
                                             { "▼", Qt::Key_Down },
                                             { "CH −", Qt::Key_ChannelDown } };
        QSet<QString> seen;
        for (int key = 0; key < keyboard()->property("keyCount").toInt(); ++key) {
            keyboard()->setProperty("currentKey", key);
            const QStringList shown = texts();
            const qsizetype place = shown.indexOf("Results");
            QVERIFY(place >= 0);
            const QString hint = shown.at(place + 1); // the key of what has this text
            QVERIFY2(keys.contains(hint), qPrintable(hint));
            seen.insert(hint);
            press(keys.value(hint));
            QVERIFY2(search()->isInResults(), qPrintable(QString::number(key)));
            QVERIFY(!texts().contains("Results"));
            press(Qt::Key_Back);
        }
        QCOMPARE(int(seen.size()), resolution == "hd" ? 3 : 2);
    }

    void theDayAndTimeOfALateResultAreToldInFull_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QString>("language");
        for (const QString resolution : { "hd", "fullhd", "sd" }) {
            for (const QString language : { "en", "ru", "de", "ar" })
                QTest::addRow("%s %s", qPrintable(resolution), qPrintable(language))
                        << resolution << language;
        }
    }
    void theDayAndTimeOfALateResultAreToldInFull()
    {
        QFETCH(QString, resolution);
        QFETCH(QString, language);
        gallery::Options options;
        options.resolution = resolution;
        options.language = language;
        start(options);
        gallery::GuideBuilder builder;
        const QDateTime later = guides::at(9, 30).addDays(4);
        guides::addChannel(builder, "A channel",
                           { { "A long title of a programme to come", later, later.addSecs(600) } });
        shell()->guide()->setGuide(builder.take());
        shell()->setCatalogue({});
        type("long");
        press(Qt::Key_PageDown);
        QVERIFY(search()->isInResults());
        const auto *facts = item("resultFacts");
        QVERIFY(facts->property("text").toString().contains("09:30"));
        QVERIFY(!facts->property("truncated").toBool());
        QVERIFY(facts->property("contentWidth").toReal() <= facts->width());
        QVERIFY(sceneRect(facts).bottom() <= view()->height() * 0.95);
    }

    void aLockedChannelIsRefusedInWords()
    {
        start();
        type("f");
        press(Qt::Key_PageDown);
        search()->refuse();
        QVERIFY(texts().contains("This channel is locked"));
        QVERIFY(!texts().contains("BACK"));
        press(Qt::Key_Down);
        QVERIFY(!texts().contains("This channel is locked"));
        QVERIFY(texts().contains("BACK"));
    }

    void yellowIsSaidToMakeTheChannelAFavourite()
    {
        start();
        type("onl"); // a programme
        press(Qt::Key_PageDown);
        QVERIFY(texts().contains("Favourite channel"));
        press(Qt::Key_Back);
        search()->setText("f"); // films
        press(Qt::Key_PageDown);
        QVERIFY(!texts().contains("Favourite channel"));
        QVERIFY(texts().contains("Favourite"));
    }

    void onANarrowScreenTheResultsAreBelow()
    {
        gallery::Options options;
        options.resolution = "sd";
        start(options);
        type("f");
        for (int i = 0; i < 20; ++i)
            press(Qt::Key_Right);
        QVERIFY(!search()->isInResults());
        enterResults(Qt::Key_Down);
        QTRY_COMPARE(focusProblem(), QString());
        press(Qt::Key_Up);
        QVERIFY(!search()->isInResults());
    }

    void inArabicTheResultsAreAtTheLeft()
    {
        gallery::Options options;
        options.language = "ar";
        start(options);
        type("f");
        QVERIFY(sceneRect(item("results")).right() < sceneRect(keyboard()).left() + 20);
        enterResults(Qt::Key_Left);
        press(Qt::Key_Left);
        QCOMPARE(search()->resultRow(), 1);
        press(Qt::Key_Right);
        press(Qt::Key_Right);
        QVERIFY(!search()->isInResults());
    }

    void capsLockAndSymbolsHoldFromTheFirstPressOn()
    {
        start();
        press(Qt::Key_Left); // around to caps lock
        press(Qt::Key_Return);
        QVERIFY(keyboard()->property("capsLock").toBool());
        QVERIFY(search()->property("keyboardCapsLock").toBool());
        press(Qt::Key_Right);
        press(Qt::Key_Return);
        press(Qt::Key_Return);
        QCOMPARE(search()->text(), "QQ");
        press(Qt::Key_Left);
        press(Qt::Key_Down);
        press(Qt::Key_Return); // shift
        QVERIFY(view()->build({ { "controller", QVariant::fromValue(shell()) } }));
        QVERIFY(keyboard()->property("capsLock").toBool() && keyboard()->property("shift").toBool());
        search()->start();
        QVERIFY(!keyboard()->property("capsLock").toBool() && !keyboard()->property("shift").toBool());
        keyboard()->setProperty("symbols", true);
        QVERIFY(keyboard()->property("symbols").toBool());
        QVERIFY(search()->property("keyboardSymbols").toBool());
    }

    void theKeyboardHasTheLettersOfTheLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("letters"); // the first and the sixth of the first row
        QTest::newRow("en") << "en"
                            << "qy";
        QTest::newRow("ru") << "ru"
                            << "йн";
        QTest::newRow("de") << "de"
                            << "qz";
        QTest::newRow("ar") << "ar"
                            << "ضغ";
    }
    void theKeyboardHasTheLettersOfTheLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, letters);
        gallery::Options options;
        options.language = language;
        start(options);
        QCOMPARE(keyboard()->property("language").toString(), language);
        press(Qt::Key_Return);
        for (int i = 0; i < 5; ++i)
            press(Qt::Key_Right);
        press(Qt::Key_Return);
        QCOMPARE(search()->text(), letters);
    }

    void everyResultIsWhollySeenWhileItIsChosen_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QString>("language");
        for (const QString resolution : { "hd", "fullhd", "sd" }) {
            for (const QString language : { "en", "ar" })
                QTest::addRow("%s %s", qPrintable(resolution), qPrintable(language))
                        << resolution << language;
        }
    }
    void everyResultIsWhollySeenWhileItIsChosen()
    {
        QFETCH(QString, resolution);
        QFETCH(QString, language);
        gallery::Options options;
        options.resolution = resolution;
        options.language = language;
        start(options);
        shell()->setCatalogue(gallery::Catalogue(catalogues::films(18)));
        type("f");
        enterResults(resolution == "sd" ? Qt::Key_Down : language == "ar" ? Qt::Key_Left : Qt::Key_Right);
        QVERIFY(search()->columns() >= 2);
        for (const Qt::Key key :
             { Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up,
               Qt::Key_End, Qt::Key_Up, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home }) {
            press(key);
            QVERIFY(search()->isInResults());
            QTRY_COMPARE(focusProblem(), QString());
            const auto *grid = item("results");
            const qreal line = grid->property("itemHeight").toReal()
                               + grid->property("verticalSpacing").toReal();
            QTRY_COMPARE(grid->property("contentY").toReal(),
                         search()->firstLine() * line - grid->property("topMargin").toReal());
        }
        const QRectF safe = sceneRect(view()->rootObject())
                                    .adjusted(view()->width() / 20.0 - 20, view()->height() / 20.0,
                                              20 - view()->width() / 20.0, -view()->height() / 20.0);
        QCOMPARE(plateProblem(safe), QString());
    }

    void okOpensThePageAndBackReturnsToTheResult()
    {
        start();
        type("f");
        enterResults(Qt::Key_Right);
        press(Qt::Key_Right);
        press(Qt::Key_Return);
        QCOMPARE(shell()->openScreens(), (QStringList { "home", "search", "detail" }));
        QCOMPARE(shell()->detail()->title(), "F1");
        press(Qt::Key_Back);
        QCOMPARE(shell()->screen(), "search");
        QVERIFY(search()->isInResults());
        QTRY_COMPARE(focusProblem(), QString());
        press(Qt::Key_Back);
        QTRY_COMPARE(focusProblem(), QString());
        press(Qt::Key_Back);
        QCOMPARE(shell()->screen(), "home");
    }

    void aScreenThatIsMadeAnewLooksTheSame()
    {
        start();
        shell()->setCatalogue(gallery::Catalogue(catalogues::films(18)));
        type("fx");
        press(Qt::Key_Backspace);
        press(Qt::Key_Down); // another key
        enterResults(Qt::Key_Right);
        press(Qt::Key_End);
        press(Qt::Key_Up);
        QTRY_COMPARE(focusProblem(), QString());
        const QRectF plate = sceneRect(item("focusPlate"));
        const int key = keyboard()->property("currentKey").toInt();
        QVERIFY(view()->build({ { "controller", QVariant::fromValue(shell()) } }));
        QTRY_COMPARE(focusProblem(), QString());
        QCOMPARE(sceneRect(item("focusPlate")), plate);
        QCOMPARE(keyboard()->property("currentKey").toInt(), key);
        QCOMPARE(item("searchText")->property("text").toString(), "f");
        QCOMPARE(item("searchText")->property("cursorPosition").toInt(), 1);
    }

    void theMenuLeavesTheTextAlone()
    {
        start();
        type("f");
        press(Qt::Key_Menu);
        QCOMPARE(menuProblem(), QString());
        type("x");
        press(Qt::Key_5);
        press(Qt::Key_Menu);
        QCOMPARE(search()->text(), "f");
        QTRY_COMPARE(focusProblem(), QString());
        type("1");
        QCOMPARE(search()->text(), "f1");
    }

    void theFocusIsSeenAfterAnyKeys_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QString>("language");
        QTest::newRow("beside") << "hd"
                                << "en";
        QTest::newRow("mirrored") << "hd"
                                  << "ar";
        QTest::newRow("below") << "sd"
                               << "en";
    }
    void theFocusIsSeenAfterAnyKeys()
    {
        QFETCH(QString, resolution);
        QFETCH(QString, language);
        gallery::Options options;
        options.resolution = resolution;
        options.language = language;
        start(options);
        QRandomGenerator random(20261123);
        QList<Qt::Key> keys = remoteKeys();
        keys.removeOne(Qt::Key_Back); // leads to the home screen
        keys.append({ Qt::Key_Backspace, Qt::Key_Backspace, Qt::Key_1, Qt::Key_Down, Qt::Key_Right });
        for (int step = 0; step < 1000; ++step) {
            if (random.bounded(12) == 0)
                type(QString("fsao").at(random.bounded(4)));
            else
                press(keys.at(random.bounded(int(keys.size()))));
            if (shell()->screen() != "search")
                shell()->goBack();
            QString problem;
            QVERIFY2(QTest::qWaitFor([&] { return (problem = focusProblem()).isEmpty(); }),
                     qPrintable(QStringLiteral("step %1: %2").arg(step).arg(problem)));
        }
    }
};

STB_TEST_MAIN(tst_SearchScreen)
#include "tst_searchscreen.moc"
