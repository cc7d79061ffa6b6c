// SPDX-License-Identifier: MIT
#include "genericscene.h"
#include "testkit/counters.h"
#include "testkit/testcase.h"

#include <QtGui/qaccessible.h>
#include <QtTest/qsignalspy.h>

namespace {

const QString hebrew = QString::fromUtf8("\xd7\x90\xd7\x91\xd7\x92");
const QString look = QStringLiteral("width: 200; font.pixelSize: 17; cursorWidth: 3; leftPadding: 11\n"
                                    "rightPadding: 17; topPadding: 5; bottomPadding: 7\n"
                                    "backgroundColors: ['#101010', '#202020', '#303030', '#404040']\n"
                                    "textColors: ['#505050', '#606060', '#707070', '#ff8080']\n"
                                    "placeholderTextColors: ['#901010', '#902020', '#903030', '#904040']\n");

QString edit(const QString &properties = {})
{
    return "LineEdit { " + look + properties + " }";
}

} // namespace

class tst_LineEdit : public stbtest::TestCase
{
    Q_OBJECT

    static QString text(const GenericScene &scene) { return scene.item->property("text").toString(); }
    static int cursor(const GenericScene &scene) { return scene.item->property("cursorPosition").toInt(); }
    static void call(const GenericScene &scene, const char *function)
    {
        QVERIFY(QMetaObject::invokeMethod(scene.item.get(), function));
    }
    static void insert(const GenericScene &scene, const QString &text)
    {
        QVERIFY(QMetaObject::invokeMethod(scene.item.get(), "insertText", Q_ARG(QString, text)));
    }
    // The rectangle that stands for the cursor is the last child.
    static QQuickItem *cursorItem(const GenericScene &scene) { return scene.item->childItems().last(); }

private Q_SLOTS:
    void aRealKeyboardWritesWhileItHasTheFocus()
    {
        GenericScene scene(edit());
        QVERIFY(scene.item);
        scene.type("no");
        QCOMPARE(text(scene), "");
        scene.item->forceActiveFocus();
        QSignalSpy edited(scene.item.get(), SIGNAL(textEdited()));
        scene.type("word");
        QCOMPARE(text(scene), "word");
        QCOMPARE(edited.count(), 4);
        scene.press(Qt::Key_Left);
        scene.press(Qt::Key_Backspace);
        QCOMPARE(text(scene), "wod");
        QCOMPARE(cursor(scene), 2);
    }

    void anOnScreenKeyboardWritesWithTheFocusElsewhere()
    {
        GenericScene scene(edit());
        insert(scene, "film");
        QCOMPARE(text(scene), "film");
        call(scene, "moveCursorLeft");
        call(scene, "moveCursorLeft");
        insert(scene, "--");
        QCOMPARE(text(scene), "fi--lm");
        call(scene, "backspace");
        call(scene, "moveCursorRight");
        insert(scene, "!");
        QCOMPARE(text(scene), "fi-l!m");
        call(scene, "selectAll");
        insert(scene, "new");
        QCOMPARE(text(scene), "new");
        call(scene, "clear");
        QCOMPARE(text(scene), "");
        call(scene, "backspace"); // nothing is left to do
        call(scene, "moveCursorLeft");
        call(scene, "moveCursorRight");
        QCOMPARE(text(scene), "");
    }

    void aBackspaceTakesAWholeCharacter()
    {
        GenericScene scene(edit());
        insert(scene, QString::fromUtf8("a\xf0\x9f\x8e\xac")); // a picture beyond the first plane
        QCOMPARE(text(scene).size(), 3);
        call(scene, "backspace");
        QCOMPARE(text(scene), "a");
    }

    void theMaximumLengthHoldsForBothKeyboards()
    {
        GenericScene scene(edit("maximumLength: 3"));
        insert(scene, "abcdef");
        QCOMPARE(text(scene), "abc");
        insert(scene, "d");
        scene.item->forceActiveFocus();
        scene.type("e");
        QCOMPARE(text(scene), "abc");
    }

    void aReadOnlyTextIsNotChangedAndHasNoCursor()
    {
        GenericScene scene(edit("readOnly: true; text: 'fixed'; editing: true"));
        insert(scene, "x");
        call(scene, "backspace");
        QCOMPARE(text(scene), "fixed");
        QVERIFY(!cursorItem(scene)->isVisible());
    }

    void aPasswordIsNotShown()
    {
        GenericScene scene(edit("echoMode: TextInput.Password; passwordCharacter: '*'"));
        insert(scene, "secret");
        QCOMPARE(text(scene), "secret");
        QCOMPARE(scene.item->property("displayText").toString(), "******");
    }

    void theArrowsAreTheScreensInRightToLeftText()
    {
        GenericScene scene(edit());
        insert(scene, hebrew);
        QCOMPARE(cursor(scene), 3);
        const double end = cursorItem(scene)->x();
        call(scene, "moveCursorRight"); // back to what was written before
        QCOMPARE(cursor(scene), 2);
        QVERIFY2(cursorItem(scene)->x() > end, "the cursor goes to the right");
        call(scene, "moveCursorLeft");
        QCOMPARE(cursorItem(scene)->x(), end);
        call(scene, "backspace");
        QCOMPARE(text(scene), hebrew.left(2));
    }

    void rightToLeftTextStandsAtTheRightPadding()
    {
        GenericScene scene(edit("text: '" + hebrew + "'; editing: true"));
        scene.item->setProperty("cursorPosition", 0);
        QCOMPARE(cursorItem(scene)->x(), 183.0);
        scene.item->setProperty("text", "abc");
        scene.item->setProperty("cursorPosition", 0);
        QCOMPARE(cursorItem(scene)->x(), 11.0);
    }

    void whatHasNoLettersBeginsWhereTheLayoutDoes_data()
    {
        QTest::addColumn<QString>("written");
        QTest::newRow("nothing") << "";
        QTest::newRow("digits") << "20";
        QTest::newRow("signs") << "?!";
    }
    void whatHasNoLettersBeginsWhereTheLayoutDoes()
    {
        QFETCH(QString, written);
        GenericScene scene(edit("editing: true; LayoutMirroring.childrenInherit: true"));
        insert(scene, written);
        const double end = cursorItem(scene)->x();
        QVERIFY2(end >= 11 && end < 50, qPrintable(QString::number(end)));
        call(scene, "clear");
        GenericScene mirrored(edit("editing: true; LayoutMirroring.enabled: true\n"
                                   "LayoutMirroring.childrenInherit: true"));
        insert(mirrored, written);
        QCOMPARE(cursorItem(mirrored)->x(), 189.0); // the paddings have changed their sides
        // Letters begin where they are read from, in either layout.
        call(mirrored, "clear");
        insert(mirrored, "7 abc");
        mirrored.item->setProperty("cursorPosition", 0);
        QCOMPARE(cursorItem(mirrored)->x(), 17.0);
        insert(scene, "7 " + hebrew);
        scene.item->setProperty("cursorPosition", 0);
        QVERIFY(cursorItem(scene)->x() > 150); // before the digit, which runs to the right
    }

    void leftAndRightLeaveItAtTheEndsAndUpAndDownAlways()
    {
        GenericScene scene(edit("text: 'ab'"));
        scene.item->forceActiveFocus();
        scene.item->setProperty("cursorPosition", 2);
        QVERIFY(!scene.press(Qt::Key_Right));
        QVERIFY(scene.press(Qt::Key_Left));
        QVERIFY(scene.press(Qt::Key_Left));
        QVERIFY(!scene.press(Qt::Key_Left));
        QVERIFY(!scene.press(Qt::Key_Up));
        QVERIFY(!scene.press(Qt::Key_Down));
        QVERIFY(!scene.press(Qt::Key_Back));
    }

    void okAcceptsTheText()
    {
        GenericScene scene(edit("text: 'ab'"));
        scene.item->forceActiveFocus();
        QSignalSpy accepted(scene.item.get(), SIGNAL(accepted()));
        scene.click(Qt::Key_Return);
        scene.click(Qt::Key_Enter);
        QCOMPARE(accepted.count(), 2);
        QCOMPARE(text(scene), "ab");
    }

    void theCursorIsThereWithTheFocusOrWhileAKeyboardWrites()
    {
        GenericScene scene(edit("text: 'ab'"));
        QVERIFY(!cursorItem(scene)->isVisible());
        scene.item->setProperty("editing", true);
        QVERIFY(cursorItem(scene)->isVisible());
        scene.item->setProperty("editing", false);
        QVERIFY(!cursorItem(scene)->isVisible());
        scene.item->forceActiveFocus();
        QVERIFY(cursorItem(scene)->isVisible());
        QCOMPARE(cursorItem(scene)->width(), 3.0);
        scene.item->setProperty("editing", true);
        scene.item->setFocus(false);
        QVERIFY(cursorItem(scene)->isVisible());
        scene.item->setEnabled(false);
        QVERIFY(!cursorItem(scene)->isVisible());
    }

    void aMovedCursorPaintsNoMoreThanTheText()
    {
        GenericScene scene(edit("text: 'a line'; editing: true"));
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(int(cursorItem(scene)->x()) + 1, 15), QColor("#ff8080"));
        call(scene, "moveCursorLeft");
        const QRegion painted = scene.stage.renderFrame();
        QVERIFY(!painted.isEmpty());
        QVERIFY(painted.boundingRect().left() >= 11);
        QVERIFY(painted.boundingRect().right() < 80);
    }

    void theColoursFollowTheState_data()
    {
        QTest::addColumn<QString>("properties");
        QTest::addColumn<bool>("focused");
        QTest::addColumn<QColor>("background");
        QTest::addColumn<QColor>("placeholder");
        QTest::newRow("normal") << "" << false << QColor("#101010") << QColor("#901010");
        QTest::newRow("disabled") << "enabled: false" << false << QColor("#303030") << QColor("#903030");
        QTest::newRow("focused") << "" << true << QColor("#404040") << QColor("#904040");
        QTest::newRow("editing") << "editing: true" << false << QColor("#404040") << QColor("#904040");
    }
    void theColoursFollowTheState()
    {
        QFETCH(QString, properties);
        QFETCH(bool, focused);
        GenericScene scene(edit("placeholderText: 'Find';" + properties));
        if (focused)
            scene.item->forceActiveFocus();
        scene.stage.renderFrame();
        QTEST(scene.pixel(5, 3), "background");
        const QQuickItem *placeholder = GenericScene::childOf(scene.item.get(), "QQuickText");
        QTEST(placeholder->property("color").value<QColor>(), "placeholder");
    }

    void thePlaceholderIsThereUntilSomethingIsWritten()
    {
        GenericScene scene(edit("placeholderText: 'Find'"));
        const QQuickItem *placeholder = GenericScene::childOf(scene.item.get(), "QQuickText");
        QVERIFY(placeholder->isVisible());
        insert(scene, "a");
        QVERIFY(!placeholder->isVisible());
        call(scene, "backspace");
        QVERIFY(placeholder->isVisible());
    }

    void anErrorIsAFrame()
    {
        GenericScene scene(edit("errorFrameWidth: 3; errorFrameColor: '#c01020'"));
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(1, 10), QColor("#101010"));
        scene.item->setProperty("error", true);
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(0, 10), QColor("#c01020"));
        QCOMPARE(scene.pixel(2, 10), QColor("#c01020"));
        QCOMPARE(scene.pixel(3, 10), QColor("#101010"));
        QCOMPARE(scene.pixel(199, 10), QColor("#c01020"));
    }

    void aLongTextStaysInsideThePaddings()
    {
        GenericScene scene(edit("text: 'WWWWWWWWWWWWWWWWWWWWWWWWWWWWW'; editing: true"));
        scene.stage.renderFrame();
        for (int y = 0; y < int(scene.item->height()); ++y) {
            for (const int x : { 3, 10, 186, 195 }) // beside the text and the cursor
                QCOMPARE(scene.pixel(x, y), QColor("#404040"));
        }
    }

    void theSizeIsThatOfTheTextAndThePaddings()
    {
        GenericScene scene(edit("placeholderText: 'A long placeholder'"));
        const QQuickItem *placeholder = GenericScene::childOf(scene.item.get(), "QQuickText");
        QCOMPARE(scene.item->implicitHeight(), 12.0 + placeholder->implicitHeight());
        QVERIFY(scene.item->implicitWidth() >= 28.0 + placeholder->implicitWidth());
    }

    void assistiveProgramsSeeRoleNameAndState()
    {
        QAccessible::setActive(true);
        GenericScene scene(edit("placeholderText: 'Find'"));
        scene.item->forceActiveFocus();
        auto *input = QAccessible::queryAccessibleInterface(scene.stage.window()->activeFocusItem());
        QVERIFY(input);
        QCOMPARE(input->role(), QAccessible::EditableText);
        QCOMPARE(input->text(QAccessible::Name), "Find");
        QVERIFY(input->state().focused && input->state().focusable && !input->state().passwordEdit);
        scene.item->setProperty("echoMode", 2); // TextInput.Password
        QVERIFY(input->state().passwordEdit);
        QCOMPARE(input->text(QAccessible::Description),
                 "Find"); // Qt keeps the name of such an input to itself
        QAccessible::setActive(false);
    }

    void atRestNothingIsPainted()
    {
        GenericScene scene(edit("text: 'a'"));
        scene.item->forceActiveFocus();
        scene.stage.renderFrame();
        scene.item->update();
        QVERIFY(scene.stage.renderFrame().isEmpty());
        QVERIFY(stbtest::itemCount(scene.item.get()) <= 6); // with the input's own empty cursor
    }
};

STB_TEST_MAIN(tst_LineEdit)
#include "tst_lineedit.moc"
