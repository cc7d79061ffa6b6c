// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include "screens/componentscontroller.h"

#include <QtGui/qclipboard.h>
#include <QtGui/qfontinfo.h>
#include <QtTest/qabstractitemmodeltester.h>
#include <QtTest/qsignalspy.h>

using gallery::ComponentsController;
using gallery::ComponentValues;

/*! The pages of controls, their values, and the way of the keys through them. */
class tst_ComponentsController : public stbtest::TestCase
{
    Q_OBJECT

    std::unique_ptr<ComponentsController> m;

    void press(std::initializer_list<int> keys) const
    {
        for (const int key : keys)
            QVERIFY(m->press(key));
    }
    /*! Shows the page \a name, with the keys among the pages. */
    void show(const QString &name) const
    {
        while (m->area() != ComponentsController::Pages)
            press({ Qt::Key_Back });
        press({ Qt::Key_Home });
        while (m->pageName() != name)
            press({ Qt::Key_Down });
    }
    /*! Leads the keys to the editor of \a property. */
    void edit(const QString &property) const
    {
        press({ Qt::Key_Right, Qt::Key_Down });
        while (m->editors()->editor(m->editorRow()).name != property)
            press({ Qt::Key_Down });
    }
    QVariant value() const { return m->editors()->value(m->editorRow()); }
    QVariant shown(int role) const { return m->editors()->data(m->editors()->index(m->editorRow()), role); }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m = std::make_unique<ComponentsController>();
    }

    void startsAmongThePagesWithTheButton()
    {
        QCOMPARE(m->area(), ComponentsController::Pages);
        QCOMPARE(m->pageName(), "Button");
        QVERIFY(!m->isEntered());
        QVERIFY(!m->isCopied());
        QCOMPARE(m->pages().size(), gallery::componentPages().size());
    }

    void upAndDownChooseThePageAndStopAtTheEnds()
    {
        press({ Qt::Key_Up });
        QCOMPARE(m->pageName(), "BusyIndicator");
        press({ Qt::Key_Up });
        QCOMPARE(m->pageRow(), 0);
        press({ Qt::Key_Down });
        QCOMPARE(m->pageName(), "Button");
        press({ Qt::Key_End });
        QCOMPARE(m->pageName(), "ScrolledListView");
        press({ Qt::Key_Down });
        QCOMPARE(m->pageName(), "ScrolledListView");
        m->setRowsPerPage(7);
        press({ Qt::Key_PageUp });
        QCOMPARE(m->pageRow(), int(m->pages().size()) - 1 - 7);
        press({ Qt::Key_Home, Qt::Key_PageDown });
        QCOMPARE(m->pageRow(), 7);
    }

    void rightAndOkLeadToTheControlAndLeftAndBackFromIt()
    {
        for (const int there : { Qt::Key_Right, Qt::Key_Return }) {
            for (const int back : { Qt::Key_Left, Qt::Key_Back }) {
                press({ there });
                QCOMPARE(m->area(), ComponentsController::Preview);
                QVERIFY(!m->isEntered());
                press({ back });
                QCOMPARE(m->area(), ComponentsController::Pages);
            }
        }
    }

    void inAMirroredLayoutLeftLeadsToTheControl()
    {
        m->setMirrored(true);
        press({ Qt::Key_Right });
        QCOMPARE(m->area(), ComponentsController::Pages);
        press({ Qt::Key_Left });
        QCOMPARE(m->area(), ComponentsController::Preview);
        press({ Qt::Key_Right });
        QCOMPARE(m->area(), ComponentsController::Pages);
        show("CircleProgressBar");
        press({ Qt::Key_Left, Qt::Key_Down, Qt::Key_Left });
        QCOMPARE(value(), 0.4);
    }

    void upAndDownLeadThroughControlEditorsAndLine()
    {
        show("BusyIndicator");
        press({ Qt::Key_Right, Qt::Key_Up });
        QCOMPARE(m->area(), ComponentsController::Preview);
        const int count = m->editors()->rowCount();
        for (int row = 0; row < count; ++row) {
            press({ Qt::Key_Down });
            QCOMPARE(m->area(), ComponentsController::Editors);
            QCOMPARE(m->editorRow(), row);
        }
        press({ Qt::Key_Down });
        QCOMPARE(m->area(), ComponentsController::Line);
        press({ Qt::Key_Down });
        QCOMPARE(m->area(), ComponentsController::Line);
        for (int row = count - 1; row >= 0; --row) {
            press({ Qt::Key_Up });
            QCOMPARE(m->area(), ComponentsController::Editors);
            QCOMPARE(m->editorRow(), row);
        }
        press({ Qt::Key_Up });
        QCOMPARE(m->area(), ComponentsController::Preview);
    }

    void backLeadsToThePagesFromAnywhereAndThenAsksToLeave()
    {
        QSignalSpy leave(m.get(), &ComponentsController::leaveRequested);
        press({ Qt::Key_Right, Qt::Key_Down, Qt::Key_Back });
        QCOMPARE(m->area(), ComponentsController::Pages);
        show("BusyIndicator");
        edit("descriptionColor");
        press({ Qt::Key_Down });
        QCOMPARE(m->area(), ComponentsController::Line);
        press({ Qt::Key_Back });
        QCOMPARE(m->area(), ComponentsController::Pages);
        QCOMPARE(leave.count(), 0);
        press({ Qt::Key_Back });
        QCOMPARE(leave.count(), 1);
    }

    void okGivesTheKeysToAControlThatUsesThem()
    {
        show("CheckBox");
        press({ Qt::Key_Right, Qt::Key_Return });
        QVERIFY(m->isEntered());
        // What comes here the control does not use.
        press({ Qt::Key_Left, Qt::Key_Up, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return });
        QVERIFY(m->isEntered());
        press({ Qt::Key_Back });
        QVERIFY(!m->isEntered());
        QCOMPARE(m->area(), ComponentsController::Preview);
    }

    void okLeavesTheKeysHereWhenAControlHasNoUseForThem()
    {
        show("CircleProgressBar");
        press({ Qt::Key_Right, Qt::Key_Return });
        QVERIFY(!m->isEntered());
        QCOMPARE(m->area(), ComponentsController::Preview);
    }

    void leftAndRightChooseAValueAndStopAtTheEnds()
    {
        show("CircleProgressBar");
        edit("barWidth");
        QCOMPARE(value(), 10.0);
        press({ Qt::Key_Right });
        QCOMPARE(value(), 12.0);
        for (int i = 0; i < 20; ++i)
            press({ Qt::Key_Left });
        QCOMPARE(value(), 2.0);
    }

    void okOnANumberMakesItTheDefault()
    {
        show("CircleProgressBar");
        edit("barWidth");
        press({ Qt::Key_Right, Qt::Key_Return });
        QCOMPARE(value(), 10.0);
        QVERIFY(!m->qmlText().contains("barWidth"));
    }

    void okOnALengthThatWouldHideTheControlMakesItWhatItWasAtFirst()
    {
        show("EpgViewDelegate");
        edit("width");
        press({ Qt::Key_Left, Qt::Key_Left, Qt::Key_Return });
        QCOMPARE(value(), 760.0);
    }

    void okOnAFlagTurnsItOver()
    {
        show("CheckBox");
        edit("checked");
        press({ Qt::Key_Return });
        QCOMPARE(value(), true);
        QCOMPARE(shown(ComponentValues::CheckedRole), true);
        QVERIFY(m->qmlText().contains("checked: true"));
        press({ Qt::Key_Return });
        QCOMPARE(value(), false);
        QVERIFY(!m->qmlText().contains("checked"));
    }

    void okOnTextsAndChoicesGoesAround()
    {
        show("LineEdit");
        edit("echoMode");
        for (const int mode : { 1, 2, 3, 0 }) {
            press({ Qt::Key_Return });
            QCOMPARE(value(), mode);
        }
        QCOMPARE(shown(ComponentValues::TextRole), "TextInput.Normal");
    }

    void aTextIsChosenFromShortLongEmptyAndRightToLeft()
    {
        show("Button");
        edit("titleText");
        QSet<QString> seen;
        bool rightToLeft = false;
        for (int i = 0; i < 6; ++i) {
            seen.insert(value().toString());
            rightToLeft = rightToLeft || value().toString().isRightToLeft();
            press({ Qt::Key_Return });
        }
        QVERIFY(seen.contains(""));
        QVERIFY(rightToLeft);
        QVERIFY(std::any_of(seen.cbegin(), seen.cend(), [](const QString &text) { return text.size() > 60; }));
    }

    void aColourIsToldByItsNameAndUnsetByDefault()
    {
        show("CircleProgressBar");
        edit("barColor");
        QCOMPARE(shown(ComponentValues::TextRole), "Default");
        QCOMPARE(shown(ComponentValues::SetRole), false);
        press({ Qt::Key_Right });
        QCOMPARE(shown(ComponentValues::TextRole), "sochi");
        QCOMPARE(shown(ComponentValues::SwatchRole), "sochi");
        QVERIFY(m->qmlText().contains("barColor: QmlDesignSystem.colors.sochi"));
        QVERIFY(m->qmlText().contains("import Stbui.UI.Qml.Design;"));
        press({ Qt::Key_Left });
        QVERIFY(!m->qmlText().contains("barColor"));
    }

    void whatIsEmptyAndWhatIsAFileIsToldSo()
    {
        show("PlayerButton");
        edit("leftIconSource");
        QCOMPARE(shown(ComponentValues::TextRole), "favorite_small.png");
        press({ Qt::Key_Left });
        QCOMPARE(shown(ComponentValues::TextRole), "Empty");
    }

    void whatOkDoesIsSaidWhereItDoesSomething()
    {
        QSignalSpy changes(m.get(), &ComponentsController::okTextChanged);
        QCOMPARE(m->okText(), "Open"); // a button takes no keys here
        press({ Qt::Key_Right });
        QCOMPARE(m->okText(), QString());
        QCOMPARE(changes.count(), 1);
        show("CheckBox");
        QCOMPARE(m->okText(), "Try out");
        press({ Qt::Key_Return });
        QCOMPARE(m->okText(), "Use the control");
        press({ Qt::Key_Return });
        QCOMPARE(m->okText(), QString());
        press({ Qt::Key_Back, Qt::Key_Down });
        QCOMPARE(m->okText(), "Switch");
        press({ Qt::Key_Down });
        QCOMPARE(m->okText(), "Next");
        press({ Qt::Key_Down, Qt::Key_Down });
        QCOMPARE(m->okText(), "Reset");
        press({ Qt::Key_Down, Qt::Key_Down });
        QCOMPARE(m->okText(), "Copy");
    }

    void everyPageKeepsItsValues()
    {
        show("CheckBox");
        edit("checked");
        press({ Qt::Key_Return });
        const QString line = m->qmlText();
        show("RadioButton");
        QVERIFY(!m->qmlText().contains("checked"));
        show("CheckBox");
        QCOMPARE(m->qmlText(), line);
    }

    void startForgetsEverything()
    {
        const QString first = m->qmlText();
        edit("focused");
        press({ Qt::Key_Return });
        show("CheckBox");
        press({ Qt::Key_Right, Qt::Key_Return });
        m->start();
        QCOMPARE(m->area(), ComponentsController::Pages);
        QVERIFY(!m->isEntered());
        QCOMPARE(m->qmlText(), first);
    }

    void okOnTheLineCopiesItAndSaysSoUntilTheNextKey()
    {
        show("CheckBox");
        edit("forceRounding");
        press({ Qt::Key_Down, Qt::Key_Return });
        QVERIFY(m->isCopied());
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 "import Stbui.UI.Qml.Controls.Basic; CheckBox { text: \"Subtitles\" }");
        press({ Qt::Key_Up });
        QVERIFY(!m->isCopied());
    }

    void whatTheControlChangesIsAValueToo()
    {
        show("LineEdit");
        QSignalSpy chosen(m.get(), &ComponentsController::valueChosen);
        QSignalSpy line(m.get(), &ComponentsController::qmlTextChanged);
        m->takeValue(0, QStringLiteral("a \"b\""));
        QVERIFY(m->qmlText().contains("text: \"a \\\"b\\\"\""));
        m->takeValue(0, QStringLiteral("a \"b\""));
        QCOMPARE(line.count(), 1);
        // The control has it already.
        QCOMPARE(chosen.count(), 0);
        edit("text");
        press({ Qt::Key_Right });
        QCOMPARE(value(), "");
    }

    void whatAControlIsNotSaidToChangeIsNotTaken()
    {
        show("LineEdit");
        const QString line = m->qmlText();
        m->takeValue(1, QStringLiteral("x"));
        m->takeValue(99, QStringLiteral("x"));
        m->takeValue(-1, QStringLiteral("x"));
        QCOMPARE(m->qmlText(), line);
    }

    void aTileIsMadeInItsFirstStateAndBroughtIntoTheOther()
    {
        show("ContentTile");
        edit("state");
        press({ Qt::Key_Right });
        QVERIFY(m->qmlText().contains("state: \"focused\""));
        QVERIFY(m->creationQml().contains("state: \"normal\""));
    }

    void lengthsFollowTheUnit()
    {
        show("EpgViewDelegate");
        QSignalSpy line(m.get(), &ComponentsController::qmlTextChanged);
        m->setUnit(1.5);
        QVERIFY(m->qmlText().contains("width: 1140"));
        QCOMPARE(line.count(), 1);
        m->setUnit(1.5);
        m->setUnit(0);
        QCOMPARE(line.count(), 1);
        edit("width");
        QCOMPARE(shown(ComponentValues::TextRole), "1140");
    }

    void keysThatMeanNothingAreLeftToOthers()
    {
        for (const int key : { Qt::Key_A, Qt::Key_Menu }) {
            show("CheckBox");
            QVERIFY(!m->press(key)); // pages
            press({ Qt::Key_Right });
            QVERIFY(!m->press(key)); // control
            press({ Qt::Key_Return });
            QVERIFY(!m->press(key)); // within the control
            press({ Qt::Key_Back, Qt::Key_Down });
            QVERIFY(!m->press(key)); // editors
        }
    }

    void theRowsAreAModel()
    {
        const QAbstractItemModelTester tester(m->editors(),
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        for (const QString &name : m->pages()) {
            show(name);
            press({ Qt::Key_Right, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return });
        }
        m->start();
    }

    void theCodeFontHasTheSizeOfTheOther()
    {
        QFont font;
        font.setPixelSize(18);
        const QFont code = ComponentsController::codeFont(font);
        QCOMPARE(code.pixelSize(), 18);
        QVERIFY(QFontInfo(code).fixedPitch());
    }
};

STB_TEST_MAIN(tst_ComponentsController)
#include "tst_componentscontroller.moc"
