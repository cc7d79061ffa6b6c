// SPDX-License-Identifier: MIT
#include "accessibletree.h"
#include "gallerywindow.h"
#include "testkit/qmlscene.h"
#include "testkit/testcase.h"

#include <QtCore/qset.h>
#include <QtGui/qaccessible.h>

using namespace Qt::StringLiterals;

namespace {

/*! Key after key from every screen's start; plus what each of them has further inside. */
QList<QList<Qt::Key>> walks(const QString &screen)
{
    const QList<Qt::Key> keys { Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Return };
    QList<QList<Qt::Key>> result { {} };
    for (const Qt::Key first : keys) {
        result.append(QList<Qt::Key> { first });
        for (const Qt::Key second : keys)
            result.append(QList<Qt::Key> { first, second });
    }
    static const QMap<QString, QList<QList<Qt::Key>>> further {
        { "guide",
          { { Qt::Key_Home, Qt::Key_Up },
            { Qt::Key_Home, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down },
            { Qt::Key_Info },
            { Qt::Key_Down, Qt::Key_Return, Qt::Key_Return },
            { Qt::Key_PageUp, Qt::Key_PageUp } } },
        { "player",
          { { Qt::Key_Back },
            { Qt::Key_Return, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return },
            { Qt::Key_Return, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return } } },
        { "detail", { { Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return } } },
        { "channels", { { Qt::Key_1 }, { Qt::Key_Right, Qt::Key_Right, Qt::Key_Down } } },
        { "home",
          { { Qt::Key_Up, Qt::Key_Right, Qt::Key_Right }, { Qt::Key_End, Qt::Key_Down, Qt::Key_Down } } },
    };
    // The home screen has the menu itself.
    if (screen != "home"_L1) {
        result << QList<Qt::Key> { Qt::Key_Menu } << QList<Qt::Key> { Qt::Key_Menu, Qt::Key_Right }
               << QList<Qt::Key> { Qt::Key_Menu, Qt::Key_Menu }
               << QList<Qt::Key> { Qt::Key_Menu, Qt::Key_Down }
               << QList<Qt::Key> { Qt::Key_Right, Qt::Key_Down, Qt::Key_Menu }
               << QList<Qt::Key> { Qt::Key_Return, Qt::Key_Menu }
               << QList<Qt::Key> { Qt::Key_Info, Qt::Key_Menu };
    }
    return result + further.value(screen);
}

} // namespace

/*! What assistive programs are told of the gallery's screens. */
class tst_Accessibility : public stbtest::TestCase
{
    Q_OBJECT

    // The problems of an item in a window, given as QML.
    static QStringList problemsOf(const QString &text)
    {
        stbtest::QmlScene scene;
        QQuickWindow window;
        window.resize(300, 200);
        window.show();
        const auto item = scene.createItem("import QtQuick\nimport QtQuick.Templates as T\n"
                                           "import Stbui.UI.Qml.Controls.Basic\n"
                                           "Item { width: 300; height: 200; "_L1
                                                   + text + " }"_L1,
                                           window.contentItem());
        if (!item || !QTest::qWaitForWindowActive(&window))
            return { u"no window"_s };
        return accessibilityProblems(&window);
    }

    static bool haveOne(const QStringList &problems, const QString &part)
    {
        if (problems.size() != 1 || !problems.constFirst().contains(part))
            qInfo("%s", qPrintable(problems.join(u'\n')));
        return problems.size() == 1 && problems.constFirst().contains(part);
    }

    static inline const QString focused =
            u"Item { width: 20; height: 20; Accessible.role: Accessible.Button; Accessible.name: \"A\"\n"
            "Accessible.focused: true }\n"_s;

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }
    void cleanupTestCase() { QAccessible::setActive(false); }

    void everythingIsNamedAndOneThingHasTheKeys_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("language");
        const QStringList screens = gallery::ShellController::screenNames();
        for (const QString &screen : screens) {
            for (const QString language : { "en", "ar" })
                QTest::addRow("%s %s", qPrintable(screen), qPrintable(language)) << screen << language;
        }
    }
    void everythingIsNamedAndOneThingHasTheKeys()
    {
        QFETCH(QString, screen);
        QFETCH(QString, language);
        GalleryWindow window({ {}, {}, language });
        window.showOwnContent();
        QStringList problems;
        QSet<QString> heard;
        const QList<QList<Qt::Key>> all = walks(screen);
        for (const QList<Qt::Key> &keys : all) {
            window.start(screen, keys);
            const QStringList found = accessibilityProblems(window.window());
            for (const QString &problem : found)
                problems.append(u"%1 after %2: %3"_s.arg(screen, keyNames(keys), problem));
            const QList<AccessibleThing> chosen = chosenThings(focusedThings(window.window()));
            for (const AccessibleThing &thing : chosen)
                heard.insert(thing.name);
        }
        QVERIFY2(problems.isEmpty(), qPrintable(problems.mid(0, 25).join(u'\n')));
        // Otherwise the walk would not have got anywhere.
        QVERIFY2(heard.size() >= (screen == "about"_L1 ? 1 : 4),
                 qPrintable(QStringList(heard.values()).join(u'\n')));
    }

    void whatIsHeardOfTheOpenMenuIsItsEntry_data()
    {
        QTest::addColumn<QString>("screen");
        QStringList screens = gallery::ShellController::screenNames();
        screens.removeOne(u"home"_s);
        for (const QString &screen : std::as_const(screens))
            QTest::addRow("%s", qPrintable(screen)) << screen;
    }
    void whatIsHeardOfTheOpenMenuIsItsEntry()
    {
        QFETCH(QString, screen);
        GalleryWindow window;
        window.showOwnContent();
        window.start(screen);
        const auto heard = [&window] {
            QStringList names;
            const QList<AccessibleThing> chosen = chosenThings(focusedThings(window.window()));
            for (const AccessibleThing &thing : chosen)
                names.append(thing.name);
            return names;
        };
        const QStringList before = heard();
        QCOMPARE(before.size(), 1);
        window.press(Qt::Key_Menu);
        const auto *menu = window.shell()->menu();
        QVERIFY(menu->isOpen());
        QCOMPARE(heard(), QStringList { menu->text(menu->entries().at(menu->chosen())) });
        window.press(Qt::Key_Menu);
        QCOMPARE(heard(), before);
    }

    void withoutGuideAndCatalogueSomethingHasTheKeysToo()
    {
        GalleryWindow window;
        for (const QString screen : { "home", "guide", "channels", "player" }) {
            window.start(screen);
            QCOMPARE(accessibilityProblems(window.window()), QStringList());
        }
    }

    void whatIsInOrderIsNotReported() { QCOMPARE(problemsOf(focused), QStringList()); }
    void aScreenOnWhichNothingIsChosenIsReported() { QVERIFY(haveOne(problemsOf({}), u"nothing says"_s)); }
    void twoChosenThingsAreReported()
    {
        QVERIFY(haveOne(problemsOf(focused + focused), u"several things"_s));
    }
    void ofThingsWithinEachOtherTheInnermostIsChosen()
    {
        QCOMPARE(problemsOf("Item { width: 99; height: 99; Accessible.role: Accessible.List\n"
                            "Accessible.name: \"List\"; Accessible.focused: true\n"_L1
                            + focused + "}"_L1),
                 QStringList());
    }
    void whatIsHiddenIsNotChosen()
    {
        QVERIFY(haveOne(problemsOf("Item { visible: false\n"_L1 + focused + "}"_L1), u"nothing says"_s));
        QVERIFY(haveOne(problemsOf("Item { width: 9; height: 9; x: 400\n"_L1 + focused + "}"_L1),
                        u"nothing says"_s));
        QVERIFY(haveOne(problemsOf("Item { width: 2; height: 9; clip: true\n"_L1 + focused + "}"_L1),
                        u"hardly seen"_s));
    }
    void aThingWithoutANameIsReported()
    {
        QVERIFY(haveOne(problemsOf(focused
                                   + "Item { width: 9; height: 9; Accessible.role: Accessible.Button }"_L1),
                        u"has no name"_s));
    }
    void aThingWithoutARoleIsReported()
    {
        QVERIFY(haveOne(problemsOf(focused + "Item { width: 9; height: 9; Accessible.name: \"B\" }"_L1),
                        u"has no role"_s));
    }
    void aControlThatIsNotToldOfIsReported()
    {
        QVERIFY(haveOne(problemsOf(focused + "Button { width: 20; height: 20 }"_L1),
                        u"not in the accessibility tree"_s));
    }
    void anOrnamentIsNot()
    {
        QCOMPARE(problemsOf(focused + "ExpandableTile { width: 20; height: 20; Accessible.ignored: true }"_L1),
                 QStringList());
    }
    void statesThatAreNotToldAreReported()
    {
        const auto button = [](const QString &text) {
            return focused
                   + "Button { width: 20; height: 20; Accessible.role: Accessible.Button\n"
                     "Accessible.name: \"B\"\n"_L1
                   + text + '}'_L1;
        };
        QVERIFY(haveOne(problemsOf(button(u"focused: true"_s)), u"shows the focus"_s));
        QVERIFY(haveOne(problemsOf(button(u"checked: true"_s)), u"is checked and"_s));
        QVERIFY(haveOne(problemsOf(button(u"Accessible.checked: true"_s)), u"says that it is checked"_s));
        QVERIFY(haveOne(problemsOf(button(u"Accessible.selected: true"_s)), u"says that it is selected"_s));
    }
};

STB_TEST_MAIN(tst_Accessibility)
#include "tst_accessibility.moc"
