// SPDX-License-Identifier: MIT
#include "generic/keyboardkey.h"
#include "generic/keyboardpad.h"
#include "testkit/testcase.h"
#include "viewscene.h"

#include <QtTest/qsignalspy.h>

using namespace Qt::StringLiterals;
using namespace stbgeneric;

namespace {

constexpr int firstLetter = 12; // "q"
constexpr int backspace = 11;
constexpr int capsLock = 23;
constexpr int shift = 35;
constexpr int page = 47;
constexpr int language = 48;
constexpr int domain = 49;
constexpr int space = 51;
constexpr int cursorLeft = 54;
constexpr int cursorRight = 55;

struct Scene : stbtest::ViewScene
{
    /*! A keyboard with these \a properties, which has the focus. */
    bool showKeyboard(const QString &properties = {})
    {
        return show(u"Keyboard { focus: true; "_s + properties + u"}"_s);
    }

    KeyboardPad *pad() const { return qobject_cast<KeyboardPad *>(item.get()); }

    KeyboardKey *key(int index) const
    {
        const QList<QQuickItem *> children = item->childItems();
        for (QQuickItem *child : children) {
            auto *key = qobject_cast<KeyboardKey *>(child);
            if (key && key->index() == index)
                return key;
        }
        return nullptr;
    }

    /*! A line of text above a keyboard that writes into it. */
    bool showLineAndKeyboard(const QString &text)
    {
        return show(u"FocusScope { focus: true\n"
                    "property alias line: line\n"
                    "property alias keyboard: keyboard\n"
                    "LineEdit { id: line; width: 400; height: 40; text: '"_s
                    + text
                    + u"' }\n"
                      "Keyboard { id: keyboard; y: 50; focus: true; target: line }\n"
                      "Item { id: other; objectName: 'other'; width: 9; height: 9 } }"_s);
    }
    QObject *line() const { return item->property("line").value<QObject *>(); }
    KeyboardPad *keyboard() const { return item->property("keyboard").value<KeyboardPad *>(); }
};

QStringList texts(const QSignalSpy &spy)
{
    QStringList result;
    for (const QList<QVariant> &arguments : spy)
        result.append(arguments.at(0).toString());
    return result;
}

} // namespace

class tst_Keyboard : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
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
        Scene scene;
        QVERIFY(scene.showKeyboard());
        QSignalSpy typed(scene.pad(), &KeyboardPad::textEntered);
        QVERIFY(scene.press(key));
        QCOMPARE(texts(typed), QStringList { u"q"_s });
    }

    void theFirstLetterIsCurrentAtFirst()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        QCOMPARE(scene.pad()->currentKey(), firstLetter);
        QCOMPARE(scene.focusItem(), scene.key(firstLetter));
    }

    void arrowsSteerAndTheCurrentKeyHasTheFocus()
    {
        Scene scene;
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
        Scene scene;
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
        Scene scene;
        QVERIFY(scene.showKeyboard());
        scene.hold(Qt::Key_Right, 4);
        QCOMPARE(scene.pad()->currentKey(), firstLetter + 5);
    }

    void withoutWrappingAnArrowAtTheEdgeIsLeftToOthers()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard(u"wrapsHorizontally: false; wrapsVertically: false; currentKey: 0; "_s));
        QVERIFY(!scene.press(Qt::Key_Left));
        QVERIFY(!scene.press(Qt::Key_Up));
        QCOMPARE(scene.pad()->currentKey(), 0);
        QVERIFY(scene.press(Qt::Key_Right));
        scene.pad()->setCurrentKey(cursorRight);
        QVERIFY(!scene.press(Qt::Key_Right));
        QVERIFY(!scene.press(Qt::Key_Down));
    }

    void theFocusLeavesWhereWrappingIsOff()
    {
        Scene scene;
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
        Scene scene;
        QVERIFY(scene.showKeyboard());
        QVERIFY(!scene.press(key));
    }

    // --- what keys do ---

    void eachKindOfKeyTellsWhatItDoes()
    {
        Scene scene;
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
        Scene scene;
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
        Scene scene;
        QVERIFY(scene.showKeyboard());
        scene.pad()->setCurrentKey(key);
        QSignalSpy spy(scene.pad(), signal.constData());
        scene.hold(Qt::Key_Return, 4);
        QTEST(int(spy.size()), "times");
    }

    void shiftCapsLockSymbolsAndLanguageSwitchTheKeys()
    {
        Scene scene;
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
        Scene scene;
        QVERIFY(scene.showKeyboard());
        scene.pad()->pressKey(shift);
        scene.pad()->pressKey(domain);
        scene.pad()->pressKey(space);
        scene.pad()->pressKey(backspace);
        QVERIFY(scene.pad()->isShifted());
    }

    void propertiesSetTheState()
    {
        Scene scene;
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
        Scene scene;
        QVERIFY(scene.showKeyboard());
        QSignalSpy typed(scene.pad(), &KeyboardPad::textEntered);
        QSignalSpy erased(scene.pad(), &KeyboardPad::backspacePressed);
        QVERIFY(scene.press(Qt::Key_A, u"a"_s));
        QVERIFY(scene.press(Qt::Key_Space, u" "_s));
        QVERIFY(scene.press(Qt::Key_7, u"7"_s));
        QVERIFY(scene.press(Qt::Key_Backspace, u"\b"_s));
        QVERIFY(!scene.press(Qt::Key_Delete, u"\x7f"_s));
        QCOMPARE(texts(typed), QStringList({ u"a"_s, u" "_s, u"7"_s }));
        QCOMPARE(erased.size(), 1);
    }

    void aClickPressesAKeyAndTakesTheFocus()
    {
        Scene scene;
        QVERIFY(scene.show(u"Keyboard { }"_s));
        QSignalSpy typed(scene.pad(), &KeyboardPad::textEntered);
        const QPointF place = scene.key(14)->mapToScene({ 5, 5 });
        QTest::mouseClick(scene.stage.window(), Qt::LeftButton, {}, place.toPoint());
        QCOMPARE(texts(typed), QStringList { u"e"_s });
        QCOMPARE(scene.focusItem(), scene.key(14));
    }

    // --- into a line of text ---

    void keysWriteIntoTheTarget()
    {
        Scene scene;
        QVERIFY(scene.showLineAndKeyboard(u"ab"_s));
        for (const int key : { firstLetter, cursorLeft, space, cursorRight, domain, backspace })
            scene.keyboard()->pressKey(key);
        QCOMPARE(scene.line()->property("text").toString(), u"ab q.co"_s);
    }

    void leftIsLeftOnTheScreenInArabicToo()
    {
        Scene scene;
        QVERIFY(scene.showLineAndKeyboard(u"ابت"_s));
        scene.line()->setProperty("cursorPosition", 0); // at the right
        scene.keyboard()->pressKey(cursorLeft);
        QCOMPARE(scene.line()->property("cursorPosition").toInt(), 1);
        scene.keyboard()->pressKey(cursorRight);
        QCOMPARE(scene.line()->property("cursorPosition").toInt(), 0);
    }

    void theTargetIsBeingEditedWhileTheKeyboardHasTheFocus()
    {
        Scene scene;
        QVERIFY(scene.showLineAndKeyboard({}));
        QCOMPARE(scene.line()->property("editing").toBool(), true);
        scene.item->findChild<QQuickItem *>(u"other"_s)->forceActiveFocus();
        QCOMPARE(scene.line()->property("editing").toBool(), false);
    }

    void withoutTargetNothingIsWritten()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        for (const int key : { firstLetter, cursorLeft, cursorRight, backspace })
            scene.pad()->pressKey(key);
    }

    // --- places ---

    void theSizeFollowsFromKeysAndSpacing()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard(u"keyWidth: 31; keyHeight: 23; columnSpacing: 7; rowSpacing: 5;"_s));
        QCOMPARE(scene.item->implicitWidth(), 13 * 31 + 12 * 7);
        QCOMPARE(scene.item->implicitHeight(), 5 * 23 + 4 * 5);
        QCOMPARE(QRectF(scene.key(14)->position(), scene.key(14)->size()), QRectF(2 * 38, 28, 31, 23));
        QCOMPARE(QRectF(scene.key(space)->position(), scene.key(space)->size()),
                 QRectF(6 * 38, 4 * 28, 107, 23));
        QCOMPARE(scene.key(cursorRight)->x() + 31, scene.item->implicitWidth());
    }

    void keysKeepTheirPlacesInAMirroredLayout()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard(u"LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true;"
                                   "language: 'ar';"_s));
        QVERIFY(scene.key(12)->x() < scene.key(13)->x());
        QVERIFY(scene.press(Qt::Key_Right));
        QVERIFY(scene.press(Qt::Key_Left));
        QVERIFY(scene.press(Qt::Key_Right));
        QCOMPARE(scene.pad()->currentKey(), 13);
    }

    void aKeyWithAnOddIndexCountsAsTheFirstOne()
    {
        KeyboardKey key;
        key.setIndex(3);
        key.setIndex(77);
        QCOMPARE(key.index(), 0);
        QVERIFY(key.name().isEmpty()); // without a keyboard
        key.press();
    }

    void aKeyMayOutliveItsKeyboard()
    {
        KeyboardKey key;
        {
            KeyboardPad pad;
            key.setParentItem(&pad);
            QCOMPARE(key.name(), u"1"_s);
        }
        QVERIFY(key.name().isEmpty());
    }

    // --- for people who do not see it ---

    void keysAreButtonsWithNames()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        for (int index = 0; index < KeyboardPad::keyCount(); ++index) {
            QAccessibleInterface *key = stbtest::accessible(scene.key(index));
            QVERIFY(key);
            QCOMPARE(key->role(), QAccessible::Button);
            QVERIFY2(!key->text(QAccessible::Name).isEmpty(), qPrintable(QString::number(index)));
            QVERIFY(key->state().focusable);
        }
    }

    void controlKeysSayWhatTheyDo()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        const auto name = [&scene](int key) {
            return stbtest::accessible(scene.key(key))->text(QAccessible::Name);
        };
        QCOMPARE(name(backspace), u"Backspace"_s);
        QCOMPARE(name(capsLock), u"Caps lock"_s);
        QCOMPARE(name(shift), u"Shift"_s);
        QCOMPARE(name(page), u"Symbols"_s);
        QCOMPARE(name(language), u"Language: English"_s);
        QCOMPARE(name(space), u"Space"_s);
        QCOMPARE(name(cursorLeft), u"Cursor left"_s);
        QCOMPARE(name(cursorRight), u"Cursor right"_s);
        QCOMPARE(name(firstLetter), u"q"_s);
        scene.pad()->pressKey(page);
        QCOMPARE(name(page), u"Letters"_s);
        QCOMPARE(name(firstLetter), u"!"_s);
    }

    void shiftAndCapsLockTellWhetherTheyAreOn()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        const auto state = [&scene](int key) { return stbtest::accessible(scene.key(key))->state(); };
        for (const int key : { shift, capsLock }) {
            QVERIFY(state(key).checkable);
            QVERIFY(!state(key).checked);
            scene.pad()->pressKey(key);
            QVERIFY(state(key).checked);
        }
        QVERIFY(!state(firstLetter).checkable);
    }

    void theCurrentKeyIsFocusedAndAScreenReaderCanPressIt()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        QVERIFY(stbtest::accessible(scene.key(firstLetter))->state().focused);
        QVERIFY(!stbtest::accessible(scene.key(13))->state().focused);
        QSignalSpy typed(scene.pad(), &KeyboardPad::textEntered);
        stbtest::accessible(scene.key(13))
                ->actionInterface()
                ->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(texts(typed), QStringList { u"w"_s });
    }

    void theKeyboardIsAGroupWithAName()
    {
        Scene scene;
        QVERIFY(scene.showKeyboard());
        QAccessibleInterface *keyboard = stbtest::accessible(scene.item.get());
        QVERIFY(keyboard);
        QCOMPARE(keyboard->role(), QAccessible::Grouping);
        QCOMPARE(keyboard->text(QAccessible::Name), u"Keyboard"_s);
    }
};

STB_TEST_MAIN(tst_Keyboard)
#include "tst_keyboard.moc"
