// SPDX-License-Identifier: MIT
#include "genericscene.h"
#include "testkit/counters.h"
#include "testkit/testcase.h"

#include <QtGui/qaccessible.h>
#include <QtQml/qqmlproperty.h>
#include <QtTest/qsignalspy.h>

namespace {

const QString menuLook = QStringLiteral(
        "text: 'Menu'; textFont.pixelSize: 17; baseHeight: 41; width: 121\n"
        "leftPadding: 11; rightPadding: 17; topPadding: 3; bottomPadding: 5; spacing: 7\n"
        "backgroundColors: ['#101010', '#202020', '#303030']\n"
        "textColors: ['#501010', '#502020', '#503030']\n");
const QString tabLook = QStringLiteral(
        "text: 'Tab'; font.pixelSize: 17; minimumWidth: 91; minimumHeight: 43\n"
        "leftPadding: 11; rightPadding: 17; topPadding: 3; bottomPadding: 5; spacing: 7\n"
        "backgroundColor: '#101010'; backgroundSelectedColor: '#202020'\n"
        "backgroundFocusedColor: '#303030'\n"
        "textColor: '#501010'; textSelectedColor: '#502020'; textFocusedColor: '#503030'\n");

QString menu(const QString &properties = {})
{
    return "MainMenuButton { " + menuLook + properties + " }";
}

QString tab(const QString &properties = {})
{
    return "TabButton { " + tabLook + properties + " }";
}

QColor colorOf(const QQuickItem *item)
{
    return item->property("color").value<QColor>();
}

/*! For how many milliseconds the colour of \a item changes; -1 when it changes at once. */
int colorAnimationTime(const QQuickItem *item)
{
    for (const QObject *child : item->children()) {
        if (child->inherits("QQuickBehavior") && child->property("enabled").toBool())
            return QQmlProperty::read(child, "animation.duration").toInt();
    }
    return -1;
}

} // namespace

class tst_MenuButtons : public stbtest::TestCase
{
    Q_OBJECT

    static const QQuickItem *backgroundOf(const GenericScene &scene)
    {
        return GenericScene::childOf(scene.item.get(), "QQuickRectangle");
    }
    static const QQuickItem *titleOf(const GenericScene &scene)
    {
        return GenericScene::childOf(scene.item.get(), "QQuickText");
    }

private Q_SLOTS:
    void everyOkKeyClicksTheMenuOnceHoweverLongItIsHeld_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
        QTest::newRow("Select") << int(Qt::Key_Select);
        QTest::newRow("Space") << int(Qt::Key_Space);
    }
    void everyOkKeyClicksTheMenuOnceHoweverLongItIsHeld()
    {
        QFETCH(int, key);
        GenericScene scene(menu());
        QVERIFY(scene.item);
        scene.item->forceActiveFocus();
        QSignalSpy clicked(scene.item.get(), SIGNAL(clicked()));
        QVERIFY(scene.press(key));
        QCOMPARE(scene.item->property("pressed"), QVariant(true));
        QCOMPARE(clicked.count(), 0);
        QVERIFY(scene.release(key));
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(scene.item->property("pressed"), QVariant(false));
        scene.hold(key);
        QCOMPARE(clicked.count(), 2);
        QCOMPARE(scene.item->property("checked"), QVariant(false)); // that is for the menu to say
    }

    void aKeyPressedElsewhereDoesNotClickHere()
    {
        GenericScene scene(menu());
        scene.item->forceActiveFocus();
        QSignalSpy clicked(scene.item.get(), SIGNAL(clicked()));
        scene.release(Qt::Key_Return);
        scene.press(Qt::Key_Return);
        scene.item->setFocus(false); // the focus leaves before the key is up
        scene.item->forceActiveFocus();
        scene.release(Qt::Key_Return);
        QCOMPARE(clicked.count(), 0);
        QVERIFY(!scene.press(Qt::Key_Left));
        QVERIFY(!scene.release(Qt::Key_Back));
    }

    void aPressEndsWithoutAClickWhenTheButtonIsSwitchedOffOrHidden_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::newRow("enabled") << QByteArray("enabled");
        QTest::newRow("visible") << QByteArray("visible");
    }
    void aPressEndsWithoutAClickWhenTheButtonIsSwitchedOffOrHidden()
    {
        QFETCH(QByteArray, property);
        GenericScene scene(menu());
        scene.item->forceActiveFocus();
        QSignalSpy clicked(scene.item.get(), SIGNAL(clicked()));
        scene.press(Qt::Key_Return);
        scene.item->setProperty(property, false);
        QCOMPARE(scene.item->property("pressed"), QVariant(false));
        scene.item->setProperty(property, true);
        scene.item->forceActiveFocus();
        scene.release(Qt::Key_Return);
        QCOMPARE(clicked.count(), 0);
    }

    void aDisabledButtonIsNotPressedByAnAssistiveProgramEither()
    {
        QAccessible::setActive(true);
        GenericScene scene(menu());
        QSignalSpy clicked(scene.item.get(), SIGNAL(clicked()));
        auto *button = QAccessible::queryAccessibleInterface(scene.item.get());
        QVERIFY(button && button->actionInterface());
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.count(), 1);
        for (const char *property : { "enabled", "visible" }) {
            scene.item->setProperty(property, false);
            button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            QCOMPARE(clicked.count(), 1);
            scene.item->setProperty(property, true);
        }
        QAccessible::setActive(false);
    }

    void aTabThatIsHiddenWhileItIsPressedIsNotSelected()
    {
        GenericScene scene(tab());
        scene.item->forceActiveFocus();
        scene.press(Qt::Key_Return);
        scene.item->setVisible(false);
        QCOMPARE(scene.item->property("pressed"), QVariant(false));
        scene.release(Qt::Key_Return);
        QCOMPARE(scene.item->property("checked"), QVariant(false));
    }

    void theMouseClicksAndTakesTheFocus()
    {
        GenericScene scene(menu());
        QSignalSpy clicked(scene.item.get(), SIGNAL(clicked()));
        const auto mouse = [&scene](QEvent::Type type, const QPointF &at) {
            QMouseEvent event(type, at, at, Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(scene.stage.window(), &event);
        };
        mouse(QEvent::MouseButtonPress, QPointF(20, 20));
        QVERIFY(scene.item->hasActiveFocus());
        mouse(QEvent::MouseButtonRelease, QPointF(20, 20));
        QCOMPARE(clicked.count(), 1);
        mouse(QEvent::MouseButtonPress, QPointF(20, 20));
        mouse(QEvent::MouseButtonRelease, QPointF(20, 150));
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(scene.item->property("pressed"), QVariant(false));
    }

    void theMenuButtonsColoursFollowTheState_data()
    {
        QTest::addColumn<QString>("properties");
        QTest::addColumn<QColor>("background");
        QTest::addColumn<QColor>("text");
        QTest::newRow("normal") << "" << QColor("#101010") << QColor("#501010");
        QTest::newRow("checked") << "checked: true" << QColor("#202020") << QColor("#502020");
        QTest::newRow("focused") << "focused: true" << QColor("#303030") << QColor("#503030");
        QTest::newRow("both") << "focused: true; checked: true" << QColor("#303030") << QColor("#503030");
    }
    void theMenuButtonsColoursFollowTheState()
    {
        QFETCH(QString, properties);
        QFETCH(QColor, background);
        QFETCH(QColor, text);
        GenericScene scene(
                menu("leftIconPath: ':/icons/mark.png'; leftIconSize: Qt.size(19, 21);" + properties));
        QCOMPARE(colorOf(backgroundOf(scene)), background);
        QCOMPARE(colorOf(titleOf(scene)), text);
        QCOMPARE(colorOf(GenericScene::childOf(scene.item.get(), "stbgeneric::TintedIcon")), text);
    }

    void withoutAWordFromOutsideTheMenuButtonIsFocusedWhenItHasTheFocus()
    {
        GenericScene scene(menu());
        QCOMPARE(scene.item->property("focused"), QVariant(false));
        scene.item->forceActiveFocus();
        QCOMPARE(scene.item->property("focused"), QVariant(true));
    }

    void theMenuButtonKeepsItsPlaceWhenItsBackgroundGrows()
    {
        GenericScene scene(menu());
        QCOMPARE(scene.item->implicitHeight(), 41.0);
        QCOMPARE(backgroundOf(scene)->height(), 41.0);
        scene.item->setProperty("backgroundHeight", 61);
        QCOMPARE(backgroundOf(scene)->height(), 61.0);
        QCOMPARE(backgroundOf(scene)->y(), -10.0);
        QCOMPARE(scene.item->implicitHeight(), 41.0);
        scene.item->setProperty("baseHeight", 7);
        QCOMPARE(scene.item->implicitHeight(), 8.0 + titleOf(scene)->implicitHeight());
    }

    void theMenuButtonIsAsWideAsItsPartsAndPaddings()
    {
        GenericScene plain(menu());
        const double title = titleOf(plain)->implicitWidth();
        QCOMPARE(plain.item->implicitWidth(), 28.0 + title);
        GenericScene icons(menu("leftIconPath: ':/icons/mark.png'; leftIconSize: Qt.size(19, 21)\n"
                                "rightIconPath: ':/icons/wide.png'; rightIconSize: Qt.size(23, 23)"));
        QCOMPARE(icons.item->implicitWidth(), 28.0 + 19 + 7 + title + 7 + 23);
    }

    void aTextWithoutRoomIsElidedBetweenThePictures_data()
    {
        QTest::addColumn<QString>("pictures");
        QTest::addColumn<int>("room"); // of 121 - 11 - 17
        QTest::newRow("none") << "" << 93;
        QTest::newRow("left") << "leftIconPath: ':/icons/mark.png'; leftIconSize: Qt.size(21, 21)" << 93 - 28;
        QTest::newRow("right") << "rightIconPath: ':/icons/mark.png'; rightIconSize: Qt.size(19, 19)"
                               << 93 - 26;
        QTest::newRow("both") << "leftIconPath: ':/icons/mark.png'; leftIconSize: Qt.size(21, 21)\n"
                                 "rightIconPath: ':/icons/mark.png'; rightIconSize: Qt.size(19, 19)"
                              << 93 - 28 - 26;
    }
    void aTextWithoutRoomIsElidedBetweenThePictures()
    {
        QFETCH(QString, pictures);
        QFETCH(int, room);
        QString look = menuLook;
        GenericScene scene("MainMenuButton { " + look.replace("'Menu'", "'The menu of the whole house'")
                           + pictures + "}");
        QVERIFY(scene.item);
        scene.stage.renderFrame();
        const QQuickItem *title = titleOf(scene);
        QCOMPARE(title->width(), room);
        QVERIFY(title->property("truncated").toBool());
        QCOMPARE(title->parentItem()->mapRectToItem(scene.item.get(), title->parentItem()->boundingRect()).x(),
                 11.0);
        QVERIFY(scene.item->implicitWidth() > 200);
        scene.item->setWidth(scene.item->implicitWidth());
        scene.stage.renderFrame();
        QVERIFY(!title->property("truncated").toBool());
        scene.item->setWidth(20);
        QCOMPARE(title->width(), 0.0);
    }

    void theRightPictureKeepsItsColoursAndIsRound()
    {
        GenericScene scene(menu("rightIconPath: ':/icons/wide.png'; rightIconRoundingRadius: 13\n"
                                "rightIconSize: Qt.size(26, 26)"));
        scene.item->setProperty("text", QString());
        scene.item->setWidth(54);
        scene.stage.renderFrame();
        const int middle = int(scene.item->height()) / 2 - 1;
        QCOMPARE(scene.pixel(11 + 5, middle), QColor(Qt::red));
        QCOMPARE(scene.pixel(11 + 21, middle), QColor(Qt::blue));
        QCOMPARE(scene.pixel(11 + 1, middle - 12), QColor("#101010")); // the corner is cut off
    }

    void coloursAreAnimatedOnlyWhereTheSwitchesSaySo_data()
    {
        QTest::addColumn<bool>("isMenu");
        QTest::addColumn<bool>("background");
        QTest::addColumn<bool>("text");
        for (const bool isMenu : { true, false }) {
            const char *kind = isMenu ? "menu" : "tab";
            QTest::addRow("%s, neither", kind) << isMenu << false << false;
            QTest::addRow("%s, background", kind) << isMenu << true << false;
            QTest::addRow("%s, text", kind) << isMenu << false << true;
        }
    }
    void coloursAreAnimatedOnlyWhereTheSwitchesSaySo()
    {
        QFETCH(bool, isMenu);
        QFETCH(bool, background);
        QFETCH(bool, text);
        const QString properties = QStringLiteral("animateBackgroundColors: %1; animateTextColors: %2\n"
                                                  "backgroundColorsAnimationDuration: 487\n"
                                                  "textColorsAnimationDuration: 613")
                                           .arg(background ? "true" : "false", text ? "true" : "false");
        GenericScene scene(isMenu ? menu(properties) : tab(properties));
        scene.item->forceActiveFocus();
        QCOMPARE(colorOf(backgroundOf(scene)), QColor(background ? "#101010" : "#303030"));
        QCOMPARE(colorOf(titleOf(scene)), QColor(text ? "#501010" : "#503030"));
        QCOMPARE(colorAnimationTime(backgroundOf(scene)), background ? 487 : -1);
        QCOMPARE(colorAnimationTime(titleOf(scene)), text ? 613 : -1);
    }

    void aTabIsSelectedByOkAloneAmongItsSiblings()
    {
        GenericScene scene(
                "Item { TabButton { objectName: 'a'; checked: true } TabButton { objectName: 'b' } }");
        QVERIFY(scene.item);
        scene.find("b")->forceActiveFocus();
        for (const int key : { Qt::Key_Return, Qt::Key_Enter, Qt::Key_Select, Qt::Key_Space }) {
            QVERIFY(scene.click(key));
            QCOMPARE(scene.find("a")->property("checked"), QVariant(false));
            QCOMPARE(scene.find("b")->property("checked"), QVariant(true));
        }
        QVERIFY(!scene.click(Qt::Key_Right));
    }

    void theTabsColoursFollowTheState_data()
    {
        QTest::addColumn<bool>("checked");
        QTest::addColumn<bool>("focused");
        QTest::addColumn<QColor>("background");
        QTest::addColumn<QColor>("text");
        QTest::newRow("normal") << false << false << QColor("#101010") << QColor("#501010");
        QTest::newRow("selected") << true << false << QColor("#202020") << QColor("#502020");
        QTest::newRow("focused") << false << true << QColor("#303030") << QColor("#503030");
        QTest::newRow("both") << true << true << QColor("#303030") << QColor("#503030");
    }
    void theTabsColoursFollowTheState()
    {
        QFETCH(bool, checked);
        QFETCH(bool, focused);
        QFETCH(QColor, background);
        QFETCH(QColor, text);
        GenericScene scene(tab("iconPath: ':/icons/mark.png'; iconSize: Qt.size(19, 19)"));
        scene.item->setProperty("checked", checked);
        if (focused)
            scene.item->forceActiveFocus();
        QCOMPARE(colorOf(backgroundOf(scene)), background);
        QCOMPARE(colorOf(titleOf(scene)), text);
        QCOMPARE(colorOf(GenericScene::childOf(scene.item.get(), "stbgeneric::TintedIcon")), text);
    }

    void aTabHasItsSmallestSizeAndGrowsWithItsParts()
    {
        GenericScene small(tab());
        QCOMPARE(small.item->implicitWidth(), 91.0);
        QCOMPARE(small.item->implicitHeight(), 43.0);
        GenericScene large(tab("iconPath: ':/icons/mark.png'; iconSize: Qt.size(19, 51)"));
        large.item->setProperty("text", "A longer title");
        const double title = titleOf(large)->implicitWidth();
        QCOMPARE(large.item->implicitWidth(), 28.0 + 19 + 7 + title);
        QCOMPARE(large.item->implicitHeight(), 8.0 + 51);
        large.item->setWidth(91);
        QCOMPARE(titleOf(large)->width(), 91.0 - 28 - 19 - 7);
    }

    void aButtonThatIsOffIsPaler_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("menu") << menu();
        QTest::newRow("tab") << tab();
    }
    void aButtonThatIsOffIsPaler()
    {
        QFETCH(QString, text);
        GenericScene scene(text);
        QCOMPARE(titleOf(scene)->parentItem()->opacity(), 1.0);
        scene.item->setEnabled(false);
        QCOMPARE(titleOf(scene)->parentItem()->opacity(), 0.5);
    }

    void assistiveProgramsSeeRoleNameAndState()
    {
        QAccessible::setActive(true);
        GenericScene scene("Item { " + menu("checked: true") + tab("checked: true") + "}");
        const auto *button = QAccessible::queryAccessibleInterface(scene.item->childItems().first());
        QVERIFY(button);
        QCOMPARE(button->role(), QAccessible::Button);
        QCOMPARE(button->text(QAccessible::Name), "Menu");
        QVERIFY(button->state().checked && button->state().focusable && !button->state().focused);
        const auto *page = QAccessible::queryAccessibleInterface(scene.item->childItems().last());
        QCOMPARE(page->role(), QAccessible::PageTab);
        QCOMPARE(page->text(QAccessible::Name), "Tab");
        QVERIFY(page->state().selectable && page->state().selected);
        QAccessible::setActive(false);
    }

    void atRestNothingIsPainted_data() { aButtonThatIsOffIsPaler_data(); }
    void atRestNothingIsPainted()
    {
        QFETCH(QString, text);
        GenericScene scene(text);
        scene.stage.renderFrame();
        scene.item->update();
        QVERIFY(scene.stage.renderFrame().isEmpty());
        QVERIFY(stbtest::itemCount(scene.item.get()) <= 6);
    }
};

STB_TEST_MAIN(tst_MenuButtons)
#include "tst_menubuttons.moc"
