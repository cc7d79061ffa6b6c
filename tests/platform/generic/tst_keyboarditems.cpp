// SPDX-License-Identifier: MIT
#include "keyboardscene.h"
#include "testkit/testcase.h"

#include <QtCore/qset.h>
#include <QtCore/qtranslator.h>
#include <QtQml/qqmlexpression.h>

using namespace Qt::StringLiterals;
using namespace keyboard;

namespace {

/*! Knows every text of the keyboard, and keeps account. */
class Capitals : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        if (qstrcmp(context, "Keyboard") != 0 && qstrcmp(context, "stbgeneric::KeyboardPad") != 0)
            return {};
        asked.insert(QString::fromLatin1(text));
        return QString::fromLatin1(text).toUpper();
    }
    bool isEmpty() const override { return false; }

    mutable QSet<QString> asked;
};

} // namespace

class tst_KeyboardItems : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    // --- into a line of text ---

    void keysWriteIntoTheTarget()
    {
        KeyboardScene scene;
        QVERIFY(scene.showLineAndKeyboard(u"ab"_s));
        for (const int key : { firstLetter, cursorLeft, space, cursorRight, domain, backspace })
            scene.keyboard()->pressKey(key);
        QCOMPARE(scene.line()->property("text").toString(), u"ab q.co"_s);
    }

    void leftIsLeftOnTheScreenInArabicToo()
    {
        KeyboardScene scene;
        QVERIFY(scene.showLineAndKeyboard(u"ابت"_s));
        scene.line()->setProperty("cursorPosition", 0); // at the right
        scene.keyboard()->pressKey(cursorLeft);
        QCOMPARE(scene.line()->property("cursorPosition").toInt(), 1);
        scene.keyboard()->pressKey(cursorRight);
        QCOMPARE(scene.line()->property("cursorPosition").toInt(), 0);
    }

    void theTargetIsBeingEditedWhileTheKeyboardHasTheFocus()
    {
        KeyboardScene scene;
        QVERIFY(scene.showLineAndKeyboard({}));
        QCOMPARE(scene.line()->property("editing").toBool(), true);
        scene.item->findChild<QQuickItem *>(u"other"_s)->forceActiveFocus();
        QCOMPARE(scene.line()->property("editing").toBool(), false);
    }

    void aTargetThatIsGivenUpIsNotBeingEdited_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("the keyboard is hidden") << u"hidden"_s;
        QTest::newRow("the keyboard is destroyed") << u"destroyed"_s;
        QTest::newRow("the keyboard has another target") << u"other"_s;
    }

    void aTargetThatIsGivenUpIsNotBeingEdited()
    {
        QFETCH(QString, how);
        KeyboardScene scene;
        QVERIFY(scene.showLineAndKeyboard({}));
        QCOMPARE(scene.line()->property("editing").toBool(), true);
        if (how == u"hidden")
            scene.keyboard()->setVisible(false);
        else if (how == u"destroyed")
            delete scene.keyboard();
        else
            QQmlExpression(qmlContext(scene.keyboard()), scene.keyboard(), u"target = null"_s).evaluate();
        QCOMPARE(scene.line()->property("editing").toBool(), false);
    }

    void aKeyboardThatComesBackEditsAgain()
    {
        KeyboardScene scene;
        QVERIFY(scene.showLineAndKeyboard({}));
        scene.keyboard()->setVisible(false);
        scene.keyboard()->setVisible(true);
        QCOMPARE(scene.line()->property("editing").toBool(), true);
    }

    void aTargetMayGoBeforeTheKeyboard()
    {
        KeyboardScene scene;
        QVERIFY(scene.showLineAndKeyboard({}));
        delete scene.line();
        scene.press(Qt::Key_Return);
        scene.item->findChild<QQuickItem *>(u"other"_s)->forceActiveFocus();
        QVERIFY(!scene.keyboard()->hasActiveFocus());
    }

    void aKeyboardThatIsHiddenOrDisabledTypesNothing_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::newRow("hidden") << QByteArray("visible");
        QTest::newRow("disabled") << QByteArray("enabled");
    }

    void aKeyboardThatIsHiddenOrDisabledTypesNothing()
    {
        QFETCH(QByteArray, property);
        KeyboardScene scene;
        QVERIFY(scene.showLineAndKeyboard({}));
        QSignalSpy typed(scene.keyboard(), &KeyboardPad::textEntered);
        scene.keyboard()->setProperty(property, false);
        QVERIFY(!scene.press(Qt::Key_Return));
        QVERIFY(!scene.press(Qt::Key_A, u"a"_s));
        QVERIFY(!scene.press(Qt::Key_Right));
        scene.keyboard()->pressKey(13);
        QCOMPARE(texts(typed), QStringList());
        QCOMPARE(scene.keyboard()->currentKey(), firstLetter);
        scene.keyboard()->setProperty(property, true);
        scene.keyboard()->pressKey(13);
        QCOMPARE(texts(typed), QStringList { u"w"_s });
    }

    void withoutTargetNothingIsWritten()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        for (const int key : { firstLetter, cursorLeft, cursorRight, backspace })
            scene.pad()->pressKey(key);
    }

    // --- places ---

    void theSizeFollowsFromKeysAndSpacing()
    {
        KeyboardScene scene;
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
        KeyboardScene scene;
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
        KeyboardScene scene;
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
        KeyboardScene scene;
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

    void theNamesAreTranslated()
    {
        Capitals capitals;
        QCoreApplication::installTranslator(&capitals);
        KeyboardScene scene;
        const bool isShown = scene.showKeyboard();
        QCoreApplication::removeTranslator(&capitals);
        QVERIFY(isShown);
        QCOMPARE(capitals.asked, QSet<QString>({ u"Keyboard"_s, u"Space"_s, u"Backspace"_s, u"Cursor left"_s,
                                                 u"Cursor right"_s, u"Shift"_s, u"Caps lock"_s, u"Symbols"_s,
                                                 u"Language: %1"_s }));
    }

    void theNamesFollowAChangeOfTheTranslator()
    {
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        QCOMPARE(stbtest::accessible(scene.key(space))->text(QAccessible::Name), u"Space"_s);
        const QImage before = scene.stage.picture();
        Capitals capitals;
        QCoreApplication::installTranslator(&capitals);
        QCoreApplication::sendPostedEvents();
        scene.stage.renderFrame();
        QCOMPARE(stbtest::accessible(scene.key(space))->text(QAccessible::Name), u"SPACE"_s);
        QVERIFY(scene.stage.picture() != before);
        QCoreApplication::removeTranslator(&capitals);
        QCoreApplication::sendPostedEvents();
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), before);
    }

    void shiftAndCapsLockTellWhetherTheyAreOn()
    {
        KeyboardScene scene;
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
        KeyboardScene scene;
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
        KeyboardScene scene;
        QVERIFY(scene.showKeyboard());
        QAccessibleInterface *keyboard = stbtest::accessible(scene.item.get());
        QVERIFY(keyboard);
        QCOMPARE(keyboard->role(), QAccessible::Grouping);
        QCOMPARE(keyboard->text(QAccessible::Name), u"Keyboard"_s);
    }
};

STB_TEST_MAIN(tst_KeyboardItems)
#include "tst_keyboarditems.moc"
