// SPDX-License-Identifier: MIT
#include "genericscene.h"
#include "testkit/testcase.h"

#include <QtGui/qaccessible.h>
#include <QtTest/qsignalspy.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int echoOnEdit = 3; // TextInput.PasswordEchoOnEdit

const QString film = u"\U0001F3AC"_s; // two units
const QString family = u"\U0001F468\u200D\U0001F469\u200D\U0001F467"_s; // one character of eight units

QString edit(const QString &properties = {})
{
    return u"LineEdit { width: 200; font.pixelSize: 17; passwordCharacter: '*'\n"_s + properties + u"}"_s;
}

} // namespace

class tst_LineKeys : public stbtest::TestCase
{
    Q_OBJECT

    static QString read(const GenericScene &scene, const char *property = "text")
    {
        return scene.item->property(property).toString();
    }
    static void insert(const GenericScene &scene, const QString &text)
    {
        QVERIFY(QMetaObject::invokeMethod(scene.item.get(), "insertText", Q_ARG(QString, text)));
    }
    static void call(const GenericScene &scene, const char *function)
    {
        QVERIFY(QMetaObject::invokeMethod(scene.item.get(), function));
    }

private Q_SLOTS:
    // --- passwords ---

    void aPasswordWrittenWithAKeyboardOnTheScreenIsHiddenWhenThatIsLeft()
    {
        GenericScene scene(edit("echoMode: TextInput.PasswordEchoOnEdit"));
        scene.item->setProperty("editing", true);
        insert(scene, "sec");
        insert(scene, "ret");
        QCOMPARE(read(scene, "displayText"), "secret");
        scene.item->setProperty("editing", false);
        QCOMPARE(read(scene, "displayText"), "******");
        QCOMPARE(read(scene), "secret");
    }

    void aPasswordStaysShownWhenTheFocusGoesOnToTheLine()
    {
        GenericScene scene(edit("echoMode: TextInput.PasswordEchoOnEdit"));
        scene.item->setProperty("editing", true);
        insert(scene, "abc");
        scene.item->forceActiveFocus();
        scene.item->setProperty("editing", false);
        QCOMPARE(read(scene, "displayText"), "abc");
        scene.item->setFocus(false);
        QCOMPARE(read(scene, "displayText"), "***");
    }

    void aHiddenPasswordIsWrittenAnewWhateverItsLength()
    {
        GenericScene scene(edit("echoMode: TextInput.PasswordEchoOnEdit; maximumLength: 3; text: 'abc'"));
        QCOMPARE(scene.item->property("echoMode").toInt(), echoOnEdit);
        scene.item->setProperty("editing", true);
        insert(scene, "xy");
        QCOMPARE(read(scene), "xy");
        insert(scene, "zw");
        QCOMPARE(read(scene), "xyz");
    }

    // --- what is not written ---

    void aDisabledLineIsNotWrittenTo()
    {
        GenericScene scene(edit("text: 'ab'; enabled: false"));
        insert(scene, "c");
        call(scene, "backspace");
        QCOMPARE(read(scene), "ab");
        const int cursor = scene.item->property("cursorPosition").toInt();
        call(scene, "moveCursorLeft");
        QCOMPARE(scene.item->property("cursorPosition").toInt(), cursor);
        scene.item->setEnabled(true);
        insert(scene, "c");
        QCOMPARE(read(scene), "abc");
    }

    void theMaximumLengthCutsBetweenCharacters_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("result");
        QTest::newRow("two units do not fit into one") << 2 << QString("a" + film) << "a";
        QTest::newRow("two units fit into two") << 3 << QString("a" + film) << QString("a" + film);
        QTest::newRow("the second picture does not fit") << 3 << QString(film + film) << film;
        QTest::newRow("a family stays together") << 7 << family << "";
        QTest::newRow("a family that fits") << 8 << QString(family + "b") << family;
        QTest::newRow("a letter keeps its mark") << 2 << u"abe\u0301"_s << "ab";
        QTest::newRow("a letter with its mark fits") << 3 << u"ae\u0301b"_s << u"ae\u0301"_s;
    }

    void theMaximumLengthCutsBetweenCharacters()
    {
        QFETCH(int, length);
        QFETCH(QString, written);
        QFETCH(QString, result);
        GenericScene scene(edit(u"maximumLength: %1"_s.arg(length)));
        insert(scene, written);
        QCOMPARE(read(scene), result);
    }

    void theRoomOfASelectionIsFree()
    {
        GenericScene scene(edit("maximumLength: 4; text: 'abcd'"));
        insert(scene, "x");
        QCOMPARE(read(scene), "abcd");
        call(scene, "selectAll");
        insert(scene, film + film + film);
        QCOMPARE(read(scene), film + film);
    }

    void aMaskTakesWhatFitsIt()
    {
        GenericScene scene(edit("inputMask: '99-99'"));
        scene.item->setProperty("cursorPosition", 0);
        insert(scene, "1234");
        QCOMPARE(read(scene), "12-34");
    }

    void aLineStaysOneLine_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("result");
        QTest::newRow("line feed") << "a\nb"
                                   << "a b";
        QTest::newRow("both") << "a\r\nb"
                              << "a b";
        QTest::newRow("two lines") << "a\n\nb"
                                   << "a  b";
        QTest::newRow("tab") << "a\tb"
                             << "a b";
        QTest::newRow("separators") << u"a\u2028b\u2029c"_s << "a b c";
    }

    void aLineStaysOneLine()
    {
        QFETCH(QString, written);
        QFETCH(QString, result);
        GenericScene scene(edit());
        insert(scene, written);
        QCOMPARE(read(scene), result);
    }

    // --- OK ---

    void okAcceptsTheTextOnceHoweverLongItIsHeld_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
        QTest::newRow("Select") << int(Qt::Key_Select);
    }

    void okAcceptsTheTextOnceHoweverLongItIsHeld()
    {
        QFETCH(int, key);
        GenericScene scene(edit("text: 'ab'"));
        scene.item->forceActiveFocus();
        QSignalSpy accepted(scene.item.get(), SIGNAL(accepted()));
        scene.click(key);
        QCOMPARE(accepted.count(), 1);
        scene.hold(key);
        QCOMPARE(accepted.count(), 2);
        QCOMPARE(read(scene), "ab");
    }

    void okDoesNotAcceptWhatTheValidatorDoesNot()
    {
        GenericScene scene(edit("text: '7'; validator: IntValidator { bottom: 10; top: 99 }"));
        scene.item->forceActiveFocus();
        QSignalSpy accepted(scene.item.get(), SIGNAL(accepted()));
        scene.click(Qt::Key_Select);
        QCOMPARE(accepted.count(), 0);
        scene.item->setProperty("text", "70");
        scene.click(Qt::Key_Select);
        QCOMPARE(accepted.count(), 1);
    }

    void theSpaceBarWritesASpaceAgainAndAgain()
    {
        GenericScene scene(edit("text: ''"));
        scene.item->forceActiveFocus();
        QSignalSpy accepted(scene.item.get(), SIGNAL(accepted()));
        scene.press(Qt::Key_Space, false, " ");
        scene.press(Qt::Key_Space, true, " ");
        QCOMPARE(read(scene), "  ");
        QCOMPARE(accepted.count(), 0);
    }

    // --- the placeholder ---

    void theCursorOfAnEmptyLineStandsApartFromThePlaceholder()
    {
        GenericScene scene(edit("cursorWidth: 3; leftPadding: 11; placeholderText: 'Find'; editing: true"));
        const QQuickItem *placeholder = GenericScene::childOf(scene.item.get(), "QQuickText");
        QCOMPARE(placeholder->x() + placeholder->property("leftPadding").toDouble(), 11.0 + 3 + 3);
        QCOMPARE(placeholder->property("rightPadding").toDouble(), 0.0);
    }

    // --- for people who do not see it ---

    void aLineWithoutPlaceholderHasANameToo()
    {
        QAccessible::setActive(true);
        GenericScene scene(edit());
        scene.item->forceActiveFocus();
        auto *input = QAccessible::queryAccessibleInterface(scene.stage.window()->activeFocusItem());
        QVERIFY(input);
        QCOMPARE(input->text(QAccessible::Name), "Text field");
        scene.item->setProperty("echoMode", 2); // TextInput.Password
        QCOMPARE(input->text(QAccessible::Description), "Text field");
        QAccessible::setActive(false);
    }
};

STB_TEST_MAIN(tst_LineKeys)
#include "tst_linekeys.moc"
