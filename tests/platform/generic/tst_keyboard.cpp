// SPDX-License-Identifier: MIT
#include "keyboardscene.h"
#include "testkit/testcase.h"

using namespace Qt::StringLiterals;
using namespace keyboard;

class tst_Keyboard : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    // --- steering ---

    void okTypesTheCurrentKey_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Enter") << Qt::Key_Enter;
        QTest::newRow("Select") << Qt::Key_Select;
    }

    void okTypesTheCurrentKey()
    {
        QFETCH(Qt::Key, key);
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        QSignalSpy typed(scene.pad(), &KeyboardPad::textEntered);
        QVERIFY(scene.press(key));
        QCOMPARE(texts(typed), QStringList { u"q"_s });
    }

    void theFirstLetterIsCurrentAtFirst()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        QCOMPARE(scene.pad()->currentKey(), firstLetter);
        QCOMPARE(scene.focusItem(), scene.key(firstLetter));
    }

    void arrowsSteerAndTheCurrentKeyHasTheFocus()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        QSignalSpy changed(scene.pad(), &KeyboardPad::currentKeyChanged);
        const QList<std::pair<Qt::Key, int>> steps {
            { Qt::Key_Right, 13 }, { Qt::Key_Down, 25 }, { Qt::Key_Left, 24 }, { Qt::Key_Up, 12 }
        };
        for (const auto &[key, expected] : steps) {
            QVERIFY(scene.press(key));
            QCOMPARE(scene.pad()->currentKey(), expected);
            QCOMPARE(scene.focusItem(), scene.key(expected));
        }
        QCOMPARE(changed.size(), steps.size());
    }

    void steeringGoesAround()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        QVERIFY(scene.press(Qt::Key_Left));
        QCOMPARE(scene.pad()->currentKey(), capsLock);
        QVERIFY(scene.press(Qt::Key_Right));
        QVERIFY(scene.press(Qt::Key_Up));
        QVERIFY(scene.press(Qt::Key_Up));
        QCOMPARE(scene.pad()->currentKey(), language);
    }

    void anArrowThatIsHeldGoesOn()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        scene.hold(Qt::Key_Right, 4);
        QCOMPARE(scene.pad()->currentKey(), firstLetter + 5);
    }

    void withoutWrappingAnArrowAtTheEdgeIsLeftToOthers()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard(u"wrapsHorizontally: false; wrapsVertically: false; currentKey: 0; "_s));
        QVERIFY(!scene.press(Qt::Key_Left));
        QVERIFY(!scene.press(Qt::Key_Up));
        QCOMPARE(scene.pad()->currentKey(), 0);
        QVERIFY(scene.press(Qt::Key_Right));
        scene.pad()->setCurrentKey(cursorRight);
        QVERIFY(!scene.press(Qt::Key_Right));
        QVERIFY(!scene.press(Qt::Key_Down));
    }

    void anArrowBeyondAnOpenEdgeIsLeftToOthersAndTheOthersGoAround()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard(u"openEdges: Qt.RightEdge | Qt.BottomEdge; currentKey: 0; "_s));
        QVERIFY(scene.press(Qt::Key_Up));
        QCOMPARE(scene.pad()->currentKey(), language);
        QVERIFY(!scene.press(Qt::Key_Down));
        QVERIFY(scene.press(Qt::Key_Left));
        QCOMPARE(scene.pad()->currentKey(), cursorRight);
        QVERIFY(!scene.press(Qt::Key_Right));
        QCOMPARE(scene.pad()->currentKey(), cursorRight);
        scene.pad()->setProperty("openEdges", int(Qt::TopEdge | Qt::LeftEdge));
        QVERIFY(scene.press(Qt::Key_Down));
        QVERIFY(!scene.press(Qt::Key_Up));
        scene.pad()->setCurrentKey(0);
        QVERIFY(!scene.press(Qt::Key_Left));
    }

    void theKeyboardTellsTheEdgesThatAKeyIsAt()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        QCOMPARE(scene.pad()->currentEdges(), int(Qt::LeftEdge));
        QSignalSpy changes(scene.pad(), &KeyboardPad::currentKeyChanged);
        const QList<std::pair<int, int>> keys { { 0, Qt::TopEdge | Qt::LeftEdge },
                                                { 1, Qt::TopEdge },
                                                { firstLetter + 1, 0 },
                                                { capsLock, Qt::RightEdge },
                                                { language, Qt::BottomEdge | Qt::LeftEdge },
                                                { cursorRight, Qt::BottomEdge | Qt::RightEdge } };
        for (const auto &[key, edges] : keys) {
            scene.pad()->setCurrentKey(key);
            QCOMPARE(scene.pad()->currentEdges(), edges);
        }
        QCOMPARE(changes.count(), keys.size());
    }

    void theFocusLeavesWhereWrappingIsOff()
    {
        KeyboardScene scene;
        QVERIFY(scene.show(u"FocusScope { focus: true\n"
                           "Keyboard { id: keyboard; focus: true; wrapsVertically: false; currentKey: 48\n"
                           "KeyNavigation.down: below; KeyNavigation.priority: KeyNavigation.AfterItem }\n"
                           "Item { id: below; objectName: 'below'; width: 9; height: 9\n"
                           "KeyNavigation.up: keyboard } }"_s));
        scene.press(Qt::Key_Down);
        QCOMPARE(scene.focusItem()->objectName(), u"below"_s);
        scene.press(Qt::Key_Up);
        QCOMPARE(qobject_cast<KeyboardKey *>(scene.focusItem())->index(), language);
    }

    void otherKeysAreLeftToOthers_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Back") << Qt::Key_Back;
        QTest::newRow("Escape") << Qt::Key_Escape;
        QTest::newRow("Page up") << Qt::Key_PageUp;
        QTest::newRow("a colour key") << Qt::Key_Red;
    }

    void otherKeysAreLeftToOthers()
    {
        QFETCH(Qt::Key, key);
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        QVERIFY(!scene.press(key));
    }

    // --- what keys do ---

    void eachKindOfKeyTellsWhatItDoes()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        KeyboardPad *pad = scene.pad();
        QSignalSpy typed(pad, &KeyboardPad::textEntered);
        QSignalSpy erased(pad, &KeyboardPad::backspacePressed);
        QSignalSpy left(pad, &KeyboardPad::cursorLeftPressed);
        QSignalSpy right(pad, &KeyboardPad::cursorRightPressed);
        for (const int key : { firstLetter, domain, space, backspace, cursorLeft, cursorRight })
            pad->pressKey(key);
        QCOMPARE(texts(typed), QStringList({ u"q"_s, u".com"_s, u" "_s }));
        QCOMPARE(erased.size(), 1);
        QCOMPARE(left.size(), 1);
        QCOMPARE(right.size(), 1);
    }

    void aPressedKeyBecomesTheCurrentOne()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        scene.pad()->pressKey(space);
        QCOMPARE(scene.pad()->currentKey(), space);
        scene.pad()->pressKey(-1);
        scene.pad()->pressKey(KeyboardPad::keyCount());
        QCOMPARE(scene.pad()->currentKey(), space);
    }

    void heldOkRepeatsBackspaceAndTheCursorKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<int>("times");
        QTest::newRow("backspace") << backspace << QByteArray(SIGNAL(backspacePressed())) << 5;
        QTest::newRow("cursor left") << cursorLeft << QByteArray(SIGNAL(cursorLeftPressed())) << 5;
        QTest::newRow("cursor right") << cursorRight << QByteArray(SIGNAL(cursorRightPressed())) << 5;
        QTest::newRow("a letter once") << firstLetter << QByteArray(SIGNAL(textEntered(QString))) << 1;
        QTest::newRow("space once") << space << QByteArray(SIGNAL(textEntered(QString))) << 1;
        QTest::newRow("shift once") << shift << QByteArray(SIGNAL(stateChanged())) << 1;
        QTest::newRow("language once") << language << QByteArray(SIGNAL(stateChanged())) << 1;
    }

    void heldOkRepeatsBackspaceAndTheCursorKeys()
    {
        QFETCH(int, key);
        QFETCH(QByteArray, signal);
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        scene.pad()->setCurrentKey(key);
        QSignalSpy spy(scene.pad(), signal.constData());
        scene.hold(Qt::Key_Return, 4);
        QTEST(int(spy.size()), "times");
    }

    void shiftCapsLockSymbolsAndLanguageSwitchTheKeys()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        KeyboardPad *pad = scene.pad();
        QSignalSpy typed(pad, &KeyboardPad::textEntered);
        const auto press = [pad](std::initializer_list<int> keys) {
            for (const int key : keys)
                pad->pressKey(key);
        };
        press({ shift, 12, 12 });
        QCOMPARE(texts(typed), QStringList({ u"Q"_s, u"q"_s }));
        typed.clear();
        press({ capsLock, 12, space, 12, shift, 12, 12, capsLock, 12 });
        QCOMPARE(texts(typed), QStringList({ u"Q"_s, u" "_s, u"Q"_s, u"q"_s, u"Q"_s, u"q"_s }));
        typed.clear();
        press({ page, 12, page, 12 });
        QCOMPARE(texts(typed), QStringList({ u"!"_s, u"q"_s }));
        typed.clear();
        press({ language, 12, language, 12, language, 12, language, 12 });
        QCOMPARE(texts(typed), QStringList({ u"й"_s, u"q"_s, u"ض"_s, u"q"_s }));
    }

    void aDomainDoesNotEndShift()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        scene.pad()->pressKey(shift);
        scene.pad()->pressKey(domain);
        scene.pad()->pressKey(space);
        scene.pad()->pressKey(backspace);
        QVERIFY(scene.pad()->isShifted());
    }

    void propertiesSetTheState()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard(u"languages: ['de', 'ru']; language: 'de'; capsLock: true; shift: true;"
                                   "symbols: true; "_s));
        const KeyboardPad *pad = scene.pad();
        QCOMPARE(pad->language(), u"de"_s);
        QCOMPARE(pad->languages(), QStringList({ u"de"_s, u"ru"_s }));
        QVERIFY(pad->isCapsLocked());
        QVERIFY(pad->isShifted());
        QVERIFY(pad->showsSymbols());
    }

    void theFirstLanguageIsTheLocales_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("language");
        QTest::newRow("Russian") << QLocale(QLocale::Russian) << u"ru"_s;
        QTest::newRow("Austrian German") << QLocale(QLocale::German, QLocale::Austria) << u"de"_s;
        QTest::newRow("Arabic") << QLocale(QLocale::Arabic) << u"ar"_s;
        QTest::newRow("without layout") << QLocale(QLocale::Finnish) << u"en"_s;
    }

    void theFirstLanguageIsTheLocales()
    {
        QFETCH(QLocale, locale);
        const QLocale before;
        QLocale::setDefault(locale);
        const KeyboardPad pad;
        QLocale::setDefault(before);
        QTEST(pad.language(), "language");
    }

    void aStateThatIsSetAgainIsNoChange()
    {
        KeyboardPad pad;
        QSignalSpy changed(&pad, &KeyboardPad::stateChanged);
        pad.setLanguage(u"en_US"_s);
        pad.setLanguage(u"xx"_s);
        pad.setShifted(false);
        pad.setCapsLocked(false);
        pad.setShowsSymbols(false);
        pad.setLanguages({ u"en"_s, u"ru"_s, u"de"_s, u"ar"_s });
        QCOMPARE(changed.size(), 0);
        pad.setShifted(true);
        QCOMPARE(changed.size(), 1);
    }

    void aRealKeyboardTypesToo()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        QSignalSpy typed(scene.pad(), &KeyboardPad::textEntered);
        QSignalSpy erased(scene.pad(), &KeyboardPad::backspacePressed);
        QVERIFY(scene.press(Qt::Key_A, u"a"_s));
        QVERIFY(scene.press(Qt::Key_Space, u" "_s));
        QVERIFY(scene.press(Qt::Key_7, u"7"_s));
        QVERIFY(scene.press(Qt::Key_Backspace, u"\b"_s));
        QVERIFY(!scene.press(Qt::Key_Delete, u"\x7f"_s));
        QVERIFY(scene.press(Qt::Key_unknown, u"\U0001F3AC"_s)); // beyond the first plane
        QCOMPARE(texts(typed), QStringList({ u"a"_s, u" "_s, u"7"_s, u"\U0001F3AC"_s }));
        QCOMPARE(erased.size(), 1);
    }

    void aClickPressesAKeyAndTakesTheFocus()
    {
        KeyboardScene scene;
        QVERIFY(scene.show(u"Keyboard { }"_s));
        QSignalSpy typed(scene.pad(), &KeyboardPad::textEntered);
        const QPointF place = scene.key(14)->mapToScene({ 5, 5 });
        QTest::mouseClick(scene.stage.window(), Qt::LeftButton, {}, place.toPoint());
        QCOMPARE(texts(typed), QStringList { u"e"_s });
        QCOMPARE(scene.focusItem(), scene.key(14));
    }
};

STB_TEST_MAIN(tst_Keyboard)
#include "tst_keyboard.moc"
