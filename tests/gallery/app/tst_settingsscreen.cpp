// SPDX-License-Identifier: MIT
#include "screentest.h"
#include "settingsstores.h"

#include <QtGui/qaccessible.h>

/*! The screen of settings in its window, steered with key events. */
class tst_SettingsScreen : public ScreenTest
{
    Q_OBJECT

    void start(const QString &language = "en", const QString &resolution = "hd")
    {
        gallery::Options options;
        options.screen = "settings";
        options.language = language;
        options.resolution = resolution;
        ScreenTest::start(options);
        m_store.clear();
        // The controller's own store: this test writes to no configuration.
        settings()->setStore(&m_store);
        shell()->start("settings");
        settle();
    }

    /*! Positioners arrange their items in the next frame, and rows that are no more go. */
    void settle() const
    {
        QVERIFY(!view()->grabWindow().isNull());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void press(Qt::Key key) const
    {
        ScreenTest::press(key);
        settle();
    }
    void press(std::initializer_list<Qt::Key> keys) const
    {
        for (const Qt::Key key : keys)
            press(key);
    }

    gallery::SettingsController *settings() const { return shell()->settings(); }
    QString textOf(const QQuickItem *item) const { return item->property("text").toString(); }
    QString focusedText() const { return textOf(view()->activeFocusItem()); }
    QRectF safeArea() const
    {
        const QSizeF size = view()->size();
        return QRectF(size.width() / 20, size.height() / 20, size.width() * 0.9, size.height() * 0.9);
    }

    QStringList checkedTexts() const
    {
        QStringList result;
        const QList<QQuickItem *> rows = items("value");
        for (const QQuickItem *row : rows) {
            if (row->property("checked").toBool())
                result.append(textOf(row));
        }
        return result;
    }

    /*! Why it cannot be seen what keys act on, or nothing when it can. */
    QString focusProblem() const
    {
        const QQuickItem *focused = view()->activeFocusItem();
        if (focused == nullptr || !focused->isVisible())
            return "nothing that is seen has the focus";
        const QString expected = settings()->isInValues() ? "value" : "group";
        if (focused->objectName() != expected)
            return "the focus is on " + focused->objectName() + ", not on a " + expected;
        if (!safeArea().adjusted(-1, -1, 1, 1).contains(sceneRect(focused)))
            return focusedText() + " is outside of the safe area";
        if (!settings()->isInValues())
            return items("focusPlate").isEmpty() ? QString() : "a plate beside the group's own look";
        if (!sceneRect(item("values")).adjusted(-1, -1, 1, 1).contains(sceneRect(focused)))
            return focusedText() + " is scrolled away";
        return plateProblem(sceneRect(focused));
    }

    RecordingStore m_store;

private Q_SLOTS:
    void cleanup() { end(); }

    void startsOnTheFirstGroupBesideItsValues()
    {
        start();
        QCOMPARE(focusedText(), "Picture");
        QCOMPARE(focusProblem(), QString());
        QCOMPARE(items("group").size(), 4);
        QVERIFY(texts().contains("Resolution"));
        QVERIFY(texts().contains("Theme"));
        QCOMPARE(checkedTexts(), (QStringList { "HD, 1280 × 720", "Standard", "100 %" }));
    }

    void aChosenValueIsMarkedAtOnceAndKeepsTheFocus()
    {
        start();
        press({ Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down });
        QCOMPARE(focusedText(), "Light");
        press(Qt::Key_Return);
        QCOMPARE(checkedTexts(), (QStringList { "HD, 1280 × 720", "Light", "100 %" }));
        QCOMPARE(m_store.written, QStringList { "UI/theme=:/stbui/design/themes/light.json" });
        QCOMPARE(focusedText(), "Light");
        QCOMPARE(focusProblem(), QString());
        // Once more changes nothing.
        press(Qt::Key_Return);
        QCOMPARE(checkedTexts(), (QStringList { "HD, 1280 × 720", "Light", "100 %" }));
        QCOMPARE(m_store.written.size(), 1);
    }

    void aSwitchIsTurnedOverByEveryOkKey()
    {
        start();
        press({ Qt::Key_End, Qt::Key_Return });
        QCOMPARE(focusedText(), "Tiles grow smoothly");
        QCOMPARE(checkedTexts().size(), 5);
        for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter, Qt::Key_Select }) {
            const qsizetype before = checkedTexts().size();
            press(key);
            QVERIFY(checkedTexts().size() != before);
        }
        QCOMPARE(m_store.values.value("Animations/focusingEnabled"), QVariant(false));
        QCOMPARE(focusProblem(), QString());
    }

    void everyRowIsReachedByArrowsAlone()
    {
        start();
        QStringList reached;
        for (int group = 0; group < 4; ++group) {
            reached.append(focusedText());
            press(Qt::Key_Right);
            for (int i = 0; i < 20; ++i) // back to the first one
                ScreenTest::press(Qt::Key_Up);
            for (qsizetype i = settings()->checked().size(); i > 0; --i) {
                settle();
                QCOMPARE(focusProblem(), QString());
                reached.append(focusedText());
                ScreenTest::press(Qt::Key_Down);
            }
            press({ Qt::Key_Left, Qt::Key_Down });
        }
        QCOMPARE(reached.size(), 4 + 12 + 4 + 1 + 5);
        QCOMPARE(reached.removeDuplicates(), 0);
    }

    void theHeadingAboveTheFirstRowIsSeen()
    {
        start();
        press({ Qt::Key_Right, Qt::Key_End, Qt::Key_Home });
        QCOMPARE(focusedText(), "HD, 1280 × 720");
        QVERIFY(sceneRect(view()->activeFocusItem()).top() > sceneRect(item("values")).top() + 20);
    }

    void languagesAreNamedInThemselves()
    {
        start("ar");
        press(Qt::Key_Down);
        for (const QString name : { "English", "Русский", "Deutsch", "العربية" })
            QVERIFY(texts().contains(name));
    }

    void aValueThatCannotBeStoredIsToldOf()
    {
        start();
        m_store.full = true;
        press({ Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return });
        QCOMPARE(checkedTexts(), QStringList { "Rounded corners" });
        QVERIFY(texts().contains("This could not be stored: it holds until you leave"));
        press(Qt::Key_Back);
        QVERIFY(!texts().contains("This could not be stored: it holds until you leave"));
    }

    void backLeadsToTheGroupsAndThenHome()
    {
        start();
        press({ Qt::Key_Down, Qt::Key_Right, Qt::Key_Back });
        QCOMPARE(focusedText(), "Language");
        QCOMPARE(focusProblem(), QString());
        press(Qt::Key_Back);
        QCOMPARE(shell()->screen(), "home");
    }

    void aScreenMadeAnewLooksTheSame()
    {
        start();
        press({ Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down });
        const QString focused = focusedText();
        const QImage before = view()->grabWindow();
        QVERIFY(view()->build({ { "controller", QVariant::fromValue(shell()) } }));
        settle();
        QCOMPARE(focusedText(), focused);
        QCOMPARE(focusProblem(), QString());
        QCOMPARE(view()->grabWindow(), before);
    }

    void aNarrowScreenShowsOneThingAtATime()
    {
        start("en", "sd");
        QCOMPARE(focusProblem(), QString());
        QVERIFY(item("values") == nullptr);
        press({ Qt::Key_Down, Qt::Key_Right });
        QVERIFY(items("group").isEmpty());
        QVERIFY(texts().contains("Language"));
        QCOMPARE(focusedText(), "English");
        QCOMPARE(focusProblem(), QString());
        press(Qt::Key_Back);
        QCOMPARE(focusedText(), "Language");
        QCOMPARE(focusProblem(), QString());
    }

    void inArabicTheGroupsAreOnTheRight()
    {
        start("ar");
        QVERIFY(sceneRect(items("group").constFirst()).left() > sceneRect(item("values")).right());
        press(Qt::Key_Left);
        QVERIFY(settings()->isInValues());
        QCOMPARE(focusProblem(), QString());
        press(Qt::Key_Right);
        QVERIFY(!settings()->isInValues());
        QCOMPARE(focusProblem(), QString());
    }

    void assistiveProgramsHearEachRow()
    {
        start();
        QAccessible::setActive(true);
        const QList<QQuickItem *> groups = items("group");
        for (QQuickItem *group : groups) {
            QAccessibleInterface *tab = QAccessible::queryAccessibleInterface(group);
            QCOMPARE(tab->role(), QAccessible::PageTab);
            QCOMPARE(tab->text(QAccessible::Name), textOf(group));
            QCOMPARE(bool(tab->state().selected), group == groups.constFirst());
        }
        press(Qt::Key_Right);
        int checked = 0;
        const QList<QQuickItem *> rows = items("value");
        QCOMPARE(rows.size(), 12);
        for (QQuickItem *row : rows) {
            QAccessibleInterface *value = QAccessible::queryAccessibleInterface(row);
            QVERIFY(value->role() == QAccessible::RadioButton || value->role() == QAccessible::CheckBox);
            QCOMPARE(value->text(QAccessible::Name), textOf(row));
            QVERIFY(value->state().checkable && value->state().focusable);
            QCOMPARE(bool(value->state().focused), row == view()->activeFocusItem());
            QCOMPARE(bool(value->state().checked), row->property("checked").toBool());
            checked += value->state().checked ? 1 : 0;
        }
        QCOMPARE(checked, 3);
        QAccessible::setActive(false);
    }

    void aPressByAnAssistiveProgramCounts()
    {
        start();
        QAccessible::setActive(true);
        QAccessibleInterface *value = QAccessible::queryAccessibleInterface(items("value").at(5));
        value->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        settle();
        QCOMPARE(m_store.written, QStringList { "UI/theme=:/stbui/design/themes/contrast.json" });
        QCOMPARE(focusedText(), "High contrast");
        QCOMPARE(focusProblem(), QString());
        QCOMPARE(checkedTexts().at(1), "High contrast");
        QAccessibleInterface *group = QAccessible::queryAccessibleInterface(items("group").constLast());
        group->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        settle();
        QCOMPARE(focusedText(), "Tiles grow smoothly");
        value = QAccessible::queryAccessibleInterface(items("value").at(3));
        value->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        settle();
        QCOMPARE(m_store.written.constLast(), "Animations/fadeEffectEnabled=false");
        QCOMPARE(checkedTexts().size(), 4);
        QAccessible::setActive(false);
    }

    void theFocusIsSeenAfterAnyKeys_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QString>("language");
        QTest::newRow("hd") << "hd"
                            << "en";
        QTest::newRow("mirrored") << "hd"
                                  << "ar";
        QTest::newRow("sd") << "sd"
                            << "de";
        QTest::newRow("fullhd") << "fullhd"
                                << "ru";
    }
    void theFocusIsSeenAfterAnyKeys()
    {
        QFETCH(QString, resolution);
        QFETCH(QString, language);
        start(language, resolution);
        QList<Qt::Key> keys = remoteKeys();
        keys.removeOne(Qt::Key_Back); // leads to the home screen
        QRandomGenerator random(20261121);
        for (int step = 0; step < 300; ++step) {
            const Qt::Key key = keys.at(random.bounded(int(keys.size())));
            press(key == Qt::Key_Up && random.bounded(4) == 0 ? Qt::Key_Left : key);
            const QString problem = focusProblem();
            QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(problem)));
        }
    }
};

STB_TEST_MAIN(tst_SettingsScreen)
#include "tst_settingsscreen.moc"
