// SPDX-License-Identifier: MIT
#include "genericscene.h"
#include "testkit/counters.h"
#include "testkit/testcase.h"

#include <QtCore/qlibraryinfo.h>
#include <QtCore/qversionnumber.h>
#include <QtGui/qaccessible.h>

namespace {

// A box of 21 pixels, a different colour for each state; the mark has a clear frame.
const QString colors = QStringLiteral("indicatorSize: Qt.size(21, 21); iconPath: ':/icons/mark.png'\n"
                                      "indicatorColors: ['#101010', '#202020', '#303030', '#404040']\n"
                                      "iconColors: ['#505050', '#606060', '#707070', '#808080']\n"
                                      "titleColors: ['#901010', '#902020', '#903030', '#904040']\n");

const QString box = "CheckBox { " + colors + " }";

} // namespace

class tst_CheckBox : public stbtest::TestCase
{
    Q_OBJECT

    static void addKeys()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
        QTest::newRow("Select") << int(Qt::Key_Select);
        QTest::newRow("Space") << int(Qt::Key_Space);
    }

private Q_SLOTS:
    void everyOkKeyTogglesOnceHoweverLongItIsHeld_data() { addKeys(); }
    void everyOkKeyTogglesOnceHoweverLongItIsHeld()
    {
        QFETCH(int, key);
        GenericScene scene(box);
        QVERIFY(scene.item);
        scene.item->forceActiveFocus();
        QVERIFY(scene.click(key));
        QCOMPARE(scene.item->property("checked"), QVariant(true));
        QVERIFY(scene.click(key));
        QCOMPARE(scene.item->property("checked"), QVariant(false));
        scene.hold(key);
        QCOMPARE(scene.item->property("checked"), QVariant(true));
    }

    void otherKeysPassThrough()
    {
        GenericScene scene(box);
        scene.item->forceActiveFocus();
        for (const int key : { Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Back })
            QVERIFY(!scene.click(key));
        QCOMPARE(scene.item->property("checked"), QVariant(false));
    }

    void aPressEndsWithoutATickWhenTheBoxIsHidden_data() { addKeys(); }
    void aPressEndsWithoutATickWhenTheBoxIsHidden()
    {
        QFETCH(int, key);
        GenericScene scene(box);
        scene.item->forceActiveFocus();
        scene.press(key);
        QCOMPARE(scene.item->property("pressed"), QVariant(true));
        scene.item->setVisible(false);
        QCOMPARE(scene.item->property("pressed"), QVariant(false));
        scene.release(key);
        QCOMPARE(scene.item->property("checked"), QVariant(false));
        scene.item->setVisible(true);
        scene.item->forceActiveFocus();
        scene.click(key);
        QCOMPARE(scene.item->property("checked"), QVariant(true));
    }

    void aDisabledBoxDoesNotToggle()
    {
        GenericScene scene("Item { T.Pane { objectName: 'other'; focusPolicy: Qt.StrongFocus }\n" + box + "}");
        QQuickItem *checkBox = scene.item->childItems().last();
        checkBox->forceActiveFocus();
        checkBox->setEnabled(false);
        scene.click(Qt::Key_Return);
        QCOMPARE(checkBox->property("checked"), QVariant(false));
    }

    void radioButtonsOfOneParentExcludeEachOther()
    {
        GenericScene scene("Item {\n"
                           "CheckBox { objectName: 'a'; forceRounding: true }\n"
                           "CheckBox { objectName: 'b'; forceRounding: true }\n"
                           "CheckBox { objectName: 'free' } }");
        for (const char *name : { "free", "a", "b" }) {
            scene.find(name)->forceActiveFocus();
            scene.click(Qt::Key_Return);
        }
        QCOMPARE(scene.find("a")->property("checked"), QVariant(false));
        QCOMPARE(scene.find("b")->property("checked"), QVariant(true));
        QCOMPARE(scene.find("free")->property("checked"), QVariant(true));
        scene.click(Qt::Key_Return); // the chosen one stays chosen
        QCOMPARE(scene.find("b")->property("checked"), QVariant(true));
    }

    void radioButtonsOfOneGroupExcludeEachOther()
    {
        GenericScene scene(
                "Item { T.ButtonGroup { id: one }\n"
                "CheckBox { objectName: 'a'; forceRounding: true; T.ButtonGroup.group: one }\n"
                "Item { CheckBox { objectName: 'b'; forceRounding: true; T.ButtonGroup.group: one } }\n"
                "CheckBox { objectName: 'other'; forceRounding: true } }");
        for (const char *name : { "other", "a", "b" }) {
            scene.find(name)->forceActiveFocus();
            scene.click(Qt::Key_Return);
        }
        QCOMPARE(scene.find("a")->property("checked"), QVariant(false));
        QCOMPARE(scene.find("b")->property("checked"), QVariant(true));
        QCOMPARE(scene.find("other")->property("checked"), QVariant(true));
    }

    void theColoursFollowTheState_data()
    {
        QTest::addColumn<QString>("properties");
        QTest::addColumn<bool>("focused");
        QTest::addColumn<QColor>("edge");
        QTest::addColumn<QColor>("within"); // nothing unless the box is checked
        QTest::addColumn<QColor>("middle"); // of the mark, if it is there
        const auto row = [](const char *name, const char *properties, bool focused, const char *edge,
                            const char *within, const char *middle) {
            QTest::newRow(name) << QString::fromLatin1(properties) << focused << QColor(edge)
                                << QColor(within) << QColor(middle);
        };
        row("normal", "", false, "#101010", "#ffffff", "#ffffff");
        row("checked", "checked: true", false, "#202020", "#202020", "#606060");
        row("disabled", "enabled: false", false, "#303030", "#ffffff", "#ffffff");
        row("disabled, checked", "enabled: false; checked: true", false, "#303030", "#303030", "#707070");
        row("focused", "", true, "#404040", "#ffffff", "#ffffff");
        row("focused, checked", "checked: true", true, "#404040", "#202020", "#606060");
    }
    void theColoursFollowTheState()
    {
        QFETCH(QString, properties);
        QFETCH(bool, focused);
        QFETCH(QColor, edge);
        QFETCH(QColor, within);
        QFETCH(QColor, middle);
        GenericScene scene("CheckBox { " + colors + properties + " }");
        QVERIFY(scene.item);
        if (focused)
            scene.item->forceActiveFocus();
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(1, 10), edge);
        QCOMPARE(scene.pixel(4, 4), within);
        QCOMPARE(scene.pixel(10, 10), middle);
    }

    void aCheckedBoxShowsTheFocusByAFrame()
    {
        GenericScene scene("CheckBox { " + colors + " checked: true; focusFrameWidth: 3 }");
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(1, 10), QColor("#202020"));
        scene.item->forceActiveFocus();
        const QRegion painted = scene.stage.renderFrame();
        QCOMPARE(scene.pixel(0, 10), QColor("#404040"));
        QCOMPARE(scene.pixel(2, 10), QColor("#404040"));
        QCOMPARE(scene.pixel(3, 10), QColor("#202020"));
        QVERIFY2(QRect(0, 0, 22, 22).contains(painted.boundingRect()), "no more than the box");
    }

    void aBoxThatIsNotCheckedIsAFrameOfItsOwnWidth()
    {
        GenericScene scene("CheckBox { " + colors + " frameWidth: 2; focusFrameWidth: 5 }");
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(1, 10), QColor("#101010"));
        QCOMPARE(scene.pixel(2, 10), QColor(Qt::white));
        scene.item->forceActiveFocus();
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(4, 10), QColor("#404040"));
        QCOMPARE(scene.pixel(5, 10), QColor(Qt::white));
    }

    void anUnchosenRadioButtonIsARingWithTheFocusToo()
    {
        GenericScene scene("CheckBox { " + colors + " forceRounding: true }");
        for (const char *color : { "#101010", "#404040" }) {
            scene.stage.renderFrame();
            QCOMPARE(scene.pixel(1, 10), QColor(color));
            QCOMPARE(scene.pixel(10, 10), QColor(Qt::white));
            scene.item->forceActiveFocus();
        }
    }

    void onlyARadioButtonIsRoundWhateverItsRadius()
    {
        GenericScene square("CheckBox { " + colors + " }");
        GenericScene round("CheckBox { " + colors + " forceRounding: true }");
        GenericScene radius("CheckBox { " + colors + " roundingRadius: 5 }");
        for (GenericScene *scene : { &square, &round, &radius })
            scene->stage.renderFrame();
        QCOMPARE(square.pixel(0, 0), QColor("#101010"));
        QCOMPARE(round.pixel(1, 1), QColor(Qt::white));
        QCOMPARE(radius.pixel(0, 0), QColor(Qt::white));
        QCOMPARE(radius.pixel(2, 2), QColor("#101010")); // of the frame
    }

    void theTitleStandsBesideTheBox()
    {
        GenericScene scene("CheckBox { " + colors + " text: 'Text'; spacing: 13; titleFont.pixelSize: 25 }");
        const QQuickItem *title = GenericScene::childOf(scene.item.get(), "QQuickText");
        QCOMPARE(title->x(), 34.0);
        QCOMPARE(scene.item->implicitWidth(), 34.0 + title->implicitWidth());
        QCOMPARE(scene.item->implicitHeight(), title->implicitHeight());
        QCOMPARE(title->property("color").value<QColor>(), QColor("#901010"));
        scene.item->setWidth(60); // it is cut, not the box
        QCOMPARE(title->width(), 26.0);
        scene.item->setProperty("text", QString());
        QCOMPARE(scene.item->implicitWidth(), 21.0);
    }

    void inAMirroredLayoutTheBoxIsOnTheRight()
    {
        GenericScene scene("CheckBox { LayoutMirroring.enabled: true; width: 200; text: 'Text'; spacing: 13\n"
                           + colors + " }");
        const QQuickItem *rectangle = GenericScene::childOf(scene.item.get(), "QQuickRectangle");
        const QQuickItem *title = GenericScene::childOf(scene.item.get(), "QQuickText");
        QCOMPARE(rectangle->x(), 179.0);
        QCOMPARE(title->x() + title->width(), 166.0);
    }

    void assistiveProgramsSeeRoleNameAndState()
    {
        QAccessible::setActive(true);
        GenericScene scene("Item { CheckBox { text: 'Subtitles'; checked: true }\n"
                           "CheckBox { text: 'Mono'; forceRounding: true } }");
        auto *checkBox = QAccessible::queryAccessibleInterface(scene.item->childItems().first());
        QVERIFY(checkBox);
        QCOMPARE(checkBox->role(), QAccessible::CheckBox);
        QCOMPARE(checkBox->text(QAccessible::Name), "Subtitles");
        QVERIFY(checkBox->state().checkable && checkBox->state().checked && checkBox->state().focusable);
        auto *radio = QAccessible::queryAccessibleInterface(scene.item->childItems().last());
        // The templates of Qt 6.4 do not let the role be set.
        QCOMPARE(radio->role(), QLibraryInfo::version() < QVersionNumber(6, 8) ? QAccessible::CheckBox
                                                                               : QAccessible::RadioButton);
        QCOMPARE(radio->text(QAccessible::Name), "Mono");
        QVERIFY(!radio->state().checked);
        QAccessible::setActive(false);
    }

    void aBoxIsFourItemsAndPaintsNothingAtRest()
    {
        GenericScene scene("CheckBox { " + colors + " text: 'Text' }");
        QCOMPARE(stbtest::itemCount(scene.item.get()), 4);
        scene.stage.renderFrame();
        scene.item->update();
        QVERIFY(scene.stage.renderFrame().isEmpty());
    }
};

STB_TEST_MAIN(tst_CheckBox)
#include "tst_checkbox.moc"
