// SPDX-License-Identifier: MIT
#include "generic/keyboardgrid.h"
#include "generic/keyboardlayouts.h"
#include "generic/keyboardstate.h"
#include "testkit/testcase.h"

#include <QtCore/qset.h>

using namespace Qt::StringLiterals;
using namespace stbgeneric;

namespace {

/*! The number of the first key of a \a kind. */
int keyOf(KeyKind kind)
{
    const QList<KeyPlace> &keys = keyboardKeys();
    for (int key = 0; key < keys.size(); ++key) {
        if (keys.at(key).kind == kind)
            return key;
    }
    return -1;
}

/*! The number of the key that types \a text, with the state as it is; -1 when none does. */
int keyTyping(const KeyboardState &state, const QString &text)
{
    const QList<KeyPlace> &keys = keyboardKeys();
    for (int key = 0; key < keys.size(); ++key) {
        if (state.text(keys.at(key)) == text)
            return key;
    }
    return -1;
}

KeyboardState stateOf(const QString &language)
{
    KeyboardState state;
    state.setLanguage(language);
    return state;
}

} // namespace

class tst_KeyboardLogic : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void keysFillAllRowsWithoutGapsAndOverlaps()
    {
        QList<int> widths(keyboardRowCount, 0);
        for (const KeyPlace &key : keyboardKeys()) {
            QCOMPARE(key.column, widths.at(key.row));
            widths[key.row] += key.span;
        }
        QCOMPARE(widths, QList<int>(keyboardRowCount, keyboardColumnCount));
    }

    void eachSymbolAndDomainHasOneKey()
    {
        QList<int> symbols;
        QList<int> domains;
        for (const KeyPlace &key : keyboardKeys()) {
            if (key.kind == KeyKind::Symbol)
                symbols.append(key.text);
            else if (key.kind == KeyKind::Domain)
                domains.append(key.text);
        }
        QCOMPARE(symbols.size(), keyboardSymbolCount);
        QCOMPARE(domains.size(), keyboardDomainCount);
        for (int i = 0; i < keyboardSymbolCount; ++i)
            QCOMPARE(symbols.at(i), i);
    }

    void eachControlKeyIsThereOnce()
    {
        for (const KeyKind kind :
             { KeyKind::Space, KeyKind::Backspace, KeyKind::CursorLeft, KeyKind::CursorRight, KeyKind::Shift,
               KeyKind::CapsLock, KeyKind::Page, KeyKind::Language }) {
            const auto isOfKind = [kind](const KeyPlace &key) { return key.kind == kind; };
            QCOMPARE(std::count_if(keyboardKeys().begin(), keyboardKeys().end(), isOfKind), 1);
        }
    }

    void onlyBackspaceAndTheCursorKeysRepeat()
    {
        for (const KeyPlace &key : keyboardKeys())
            QCOMPARE(isRepeated(key.kind), key.kind == KeyKind::Backspace || key.kind == KeyKind::CursorLeft
                                                   || key.kind == KeyKind::CursorRight);
    }

    void thereAreFourLanguages()
    {
        QStringList languages;
        for (const KeyboardLayout &layout : keyboardLayouts())
            languages.append(layout.language + u" "_s + layout.name);
        QCOMPARE(languages,
                 QStringList({ u"en English"_s, u"ru Русский"_s, u"de Deutsch"_s, u"ar العربية"_s }));
    }

    void onlyArabicRunsToTheLeft()
    {
        for (const KeyboardLayout &layout : keyboardLayouts())
            QCOMPARE(layout.isRightToLeft, layout.language == u"ar");
    }

    void eachLayoutHasATextForEachKey()
    {
        for (const KeyboardLayout &layout : keyboardLayouts()) {
            QCOMPARE(layout.normal.size(), keyboardSymbolCount);
            QCOMPARE(layout.shifted.size(), keyboardSymbolCount);
            QCOMPARE(layout.domains.size(), keyboardDomainCount);
            QVERIFY(!layout.firstLetters.isEmpty());
        }
        QCOMPARE(keyboardSymbols().size(), keyboardSymbolCount);
    }

    void noTextIsOnTwoKeys()
    {
        for (const KeyboardLayout &layout : keyboardLayouts()) {
            QCOMPARE(QSet<QString>(layout.normal.begin(), layout.normal.end()).size(), keyboardSymbolCount);
            QCOMPARE(QSet<QString>(layout.shifted.begin(), layout.shifted.end()).size(), keyboardSymbolCount);
        }
        QCOMPARE(QSet<QString>(keyboardSymbols().begin(), keyboardSymbols().end()).size(),
                 keyboardSymbolCount);
    }

    void allLettersOfTheAlphabetsCanBeTyped_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<bool>("shifted");
        QTest::addColumn<QString>("letters");
        QTest::newRow("English") << u"en"_s << false << u"abcdefghijklmnopqrstuvwxyz0123456789,.-"_s;
        QTest::newRow("English capitals") << u"en"_s << true << u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"_s;
        QTest::newRow("Russian") << u"ru"_s << false << u"абвгдеёжзийклмнопрстуфхцчшщъыьэюя0123456789,."_s;
        QTest::newRow("Russian capitals") << u"ru"_s << true << u"АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"_s;
        QTest::newRow("German") << u"de"_s << false << u"abcdefghijklmnopqrstuvwxyzäöüß0123456789,."_s;
        QTest::newRow("German capitals") << u"de"_s << true << u"ABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÜẞ"_s;
        QTest::newRow("Arabic") << u"ar"_s << false << u"ابتثجحخدذرزسشصضطظعغفقكلمنهويءئؤىة0123456789،."_s;
        QTest::newRow("Arabic with shift") << u"ar"_s << true << u"أإآ٠١٢٣٤٥٦٧٨٩؟؛"_s;
        QTest::newRow("Arabic marks")
                << u"ar"_s << true << u"\u064B\u064C\u064D\u064E\u064F\u0650\u0651\u0652"_s;
    }

    void allLettersOfTheAlphabetsCanBeTyped()
    {
        QFETCH(QString, language);
        QFETCH(bool, shifted);
        QFETCH(QString, letters);
        KeyboardState state = stateOf(language);
        state.setShifted(shifted);
        for (const QChar letter : std::as_const(letters))
            QVERIFY2(keyTyping(state, letter) >= 0, qPrintable(QString(letter)));
    }

    void whatAnAddressNeedsIsAmongTheSymbols()
    {
        KeyboardState state;
        state.setShowsSymbols(true);
        for (const QChar symbol : u"0123456789@.,-_+/:&?!#%=~'\"()*$€"_s)
            QVERIFY2(keyTyping(state, symbol) >= 0, qPrintable(QString(symbol)));
    }

    void aLayoutIsFoundByTheLanguageOfALocale_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("layout");
        QTest::newRow("language") << u"ru"_s << 1;
        QTest::newRow("locale") << u"de_AT"_s << 2;
        QTest::newRow("locale with a hyphen") << u"de-AT"_s << 2;
        QTest::newRow("script and territory") << u"ar-Arab_EG"_s << 3;
        QTest::newRow("unknown") << u"fr_FR"_s << -1;
        QTest::newRow("only the beginning") << u"arn"_s << -1;
        QTest::newRow("empty") << QString() << -1;
        QTest::newRow("no locale") << u"C"_s << -1;
    }

    void aLayoutIsFoundByTheLanguageOfALocale()
    {
        QFETCH(QString, name);
        QTEST(keyboardLayoutOf(name), "layout");
    }

    void aMarkIsShownOnABar()
    {
        QCOMPARE(keyLabel(u"\u064E"_s), u"\u0640\u064E"_s);
        QCOMPARE(keyLabel(u"a"_s), u"a"_s);
        QCOMPARE(keyLabel({}), QString());
    }

    // --- state ---

    void shiftHoldsForOneSymbol()
    {
        KeyboardState state;
        const KeyPlace q = keyboardKeys().at(keyTyping(state, u"q"_s));
        state.setShifted(true);
        QCOMPARE(state.text(q), u"Q"_s);
        state.endShift();
        QCOMPARE(state.text(q), u"q"_s);
    }

    void capsLockHoldsUntilItIsSwitchedOff()
    {
        KeyboardState state;
        const KeyPlace q = keyboardKeys().at(keyTyping(state, u"q"_s));
        state.setCapsLocked(true);
        state.endShift();
        QCOMPARE(state.text(q), u"Q"_s);
        state.setCapsLocked(false);
        QCOMPARE(state.text(q), u"q"_s);
    }

    void shiftUnderCapsLockTypesSmallLetters()
    {
        KeyboardState state;
        state.setShifted(true);
        state.setCapsLocked(true);
        QVERIFY(keyTyping(state, u"q"_s) >= 0);
    }

    void symbolsKnowNoShift()
    {
        KeyboardState state;
        state.setShowsSymbols(true);
        const int key = keyTyping(state, u"#"_s);
        state.setShifted(true);
        QCOMPARE(keyTyping(state, u"#"_s), key);
    }

    void theLanguageKeyShowsLettersWithoutShift()
    {
        KeyboardState state = stateOf(u"ru"_s);
        state.setShifted(true);
        state.setShowsSymbols(true);
        state.setCapsLocked(true);
        state.useNextLanguage();
        QVERIFY(!state.isShifted());
        QVERIFY(!state.showsSymbols());
        QVERIFY(state.isCapsLocked());
        QVERIFY(keyTyping(state, u"Ö"_s) >= 0);
    }

    void settingTheLanguageLeavesTheRestAsItIs()
    {
        KeyboardState state;
        state.setShifted(true);
        state.setShowsSymbols(true);
        QVERIFY(state.setLanguage(u"de"_s));
        QVERIFY(state.isShifted());
        QVERIFY(state.showsSymbols());
    }

    void aLanguageWithoutLayoutChangesNothing()
    {
        KeyboardState state = stateOf(u"ru"_s);
        QVERIFY(!state.setLanguage(u"fr"_s));
        QCOMPARE(state.language(), u"ru"_s);
    }

    void theLanguageKeyGoesThroughAllLanguages()
    {
        KeyboardState state;
        QStringList seen;
        for (int i = 0; i < 5; ++i) {
            seen.append(state.language());
            state.useNextLanguage();
        }
        QCOMPARE(seen, QStringList({ u"en"_s, u"ru"_s, u"de"_s, u"ar"_s, u"en"_s }));
    }

    void theLanguageKeyGoesThroughTheChosenLanguages()
    {
        KeyboardState state;
        state.setLanguages({ u"ar"_s, u"xx"_s, u"en_GB"_s, u"ar"_s });
        QCOMPARE(state.languages(), QStringList({ u"ar"_s, u"en"_s }));
        QCOMPARE(state.language(), u"en"_s);
        state.useNextLanguage();
        QCOMPARE(state.language(), u"ar"_s);
        state.useNextLanguage();
        QCOMPARE(state.language(), u"en"_s);
    }

    void aLanguageThatIsNotChosenGivesWayToTheFirstOne()
    {
        KeyboardState state = stateOf(u"ru"_s);
        state.setLanguages({ u"de"_s, u"ar"_s });
        QCOMPARE(state.language(), u"de"_s);
    }

    void withoutAKnownLanguageAllAreChosen()
    {
        KeyboardState state;
        state.setLanguages({ u"xx"_s });
        QCOMPARE(state.languages().size(), 4);
    }

    void domainsBelongToTheLanguage()
    {
        const auto domains = [](const QString &language) {
            const KeyboardState state = stateOf(language);
            const int first = keyOf(KeyKind::Domain);
            return state.text(keyboardKeys().at(first)) + state.text(keyboardKeys().at(first + 1));
        };
        QCOMPARE(domains(u"en"_s), u".com.net"_s);
        QCOMPARE(domains(u"ru"_s), u".com.ru"_s);
        QCOMPARE(domains(u"de"_s), u".com.de"_s);
    }

    void controlKeysTypeNothingButSpace()
    {
        const KeyboardState state;
        for (const KeyPlace &key : keyboardKeys()) {
            const QString text = state.text(key);
            const bool isControl = key.kind != KeyKind::Symbol && key.kind != KeyKind::Domain;
            QCOMPARE(text.isEmpty(), isControl && key.kind != KeyKind::Space);
        }
        QCOMPARE(state.text(keyboardKeys().at(keyOf(KeyKind::Space))), u" "_s);
    }

    // --- steering ---

    void rightGoesThroughTheRowAndAround()
    {
        KeyboardSteering steering(0);
        for (int key = 1; key < 12; ++key) {
            QVERIFY(steering.move(KeyDirection::Right, true));
            QCOMPARE(steering.key(), key);
        }
        QVERIFY(steering.move(KeyDirection::Right, true));
        QCOMPARE(steering.key(), 0);
    }

    void leftFromTheFirstKeyIsTheLastOfTheRow()
    {
        KeyboardSteering steering(12);
        QVERIFY(steering.move(KeyDirection::Left, true));
        QCOMPARE(keyboardKeys().at(steering.key()).kind, KeyKind::CapsLock);
        QVERIFY(steering.move(KeyDirection::Left, true));
        QCOMPARE(steering.key(), 22);
    }

    void downGoesThroughTheColumnAndAround()
    {
        KeyboardSteering steering(3);
        QList<int> seen;
        for (int i = 0; i < 5; ++i) {
            QVERIFY(steering.move(KeyDirection::Down, true));
            seen.append(steering.key());
        }
        QCOMPARE(seen, QList<int>({ 15, 27, 39, 49, 3 })); // 49: the key of a domain, two columns wide
    }

    void upFromTheFirstRowIsTheLastRow()
    {
        KeyboardSteering steering(keyOf(KeyKind::Backspace));
        QVERIFY(steering.move(KeyDirection::Up, true));
        QCOMPARE(keyboardKeys().at(steering.key()).kind, KeyKind::CursorLeft);
        QVERIFY(steering.move(KeyDirection::Down, true));
        QCOMPARE(keyboardKeys().at(steering.key()).kind, KeyKind::Backspace);
    }

    void upAndDownKeepTheirColumnAcrossWideKeys()
    {
        for (int column = 0; column < 11; ++column) {
            KeyboardSteering steering(36 + column); // the row above the wide keys
            QVERIFY(steering.move(KeyDirection::Down, true));
            QVERIFY(steering.move(KeyDirection::Up, true));
            QCOMPARE(steering.key(), 36 + column);
        }
    }

    void withoutWrappingTheEdgesHold()
    {
        KeyboardSteering steering(0);
        QVERIFY(!steering.move(KeyDirection::Left, false));
        QVERIFY(!steering.move(KeyDirection::Up, false));
        QCOMPARE(steering.key(), 0);
        const int last = static_cast<int>(keyboardKeys().size()) - 1;
        steering.setKey(last);
        QVERIFY(!steering.move(KeyDirection::Right, false));
        QVERIFY(!steering.move(KeyDirection::Down, false));
        QCOMPARE(steering.key(), last);
    }

    void everyKeyIsReachedWithArrows()
    {
        QSet<int> seen { 0 };
        QList<int> open { 0 };
        while (!open.isEmpty()) {
            const int key = open.takeFirst();
            for (const KeyDirection direction :
                 { KeyDirection::Left, KeyDirection::Right, KeyDirection::Up, KeyDirection::Down }) {
                KeyboardSteering steering(key);
                steering.move(direction, false);
                if (!seen.contains(steering.key()))
                    open.append(steering.key());
                seen.insert(steering.key());
            }
        }
        QCOMPARE(seen.size(), keyboardKeys().size());
    }
};

STB_TEST_MAIN(tst_KeyboardLogic)
#include "tst_keyboardlogic.moc"
