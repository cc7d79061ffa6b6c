// SPDX-License-Identifier: MIT
#include "screentest.h"

#include "screens/componentpreview.h"

#include <QtGui/qaccessible.h>
#include <QtGui/qclipboard.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtQml/qqmlproperty.h>

/*! The screen of components in its window, steered with key events. */
class tst_ComponentsScreen : public ScreenTest
{
    Q_OBJECT

    void start(gallery::Options options = {})
    {
        options.screen = "components";
        ScreenTest::start(options);
    }

    gallery::ComponentsController *controller() const { return shell()->components(); }
    gallery::ComponentPreview *preview() const
    {
        return qobject_cast<gallery::ComponentPreview *>(item("preview"));
    }
    QQuickItem *control() const { return preview()->control(); }
    int pageCount() const { return int(controller()->pages().size()); }

    void press(std::initializer_list<Qt::Key> keys) const
    {
        for (const Qt::Key key : keys)
            ScreenTest::press(key);
    }
    void show(const QString &name) const
    {
        while (controller()->area() != gallery::ComponentsController::Pages)
            press({ Qt::Key_Back });
        press({ Qt::Key_Home });
        while (controller()->pageName() != name)
            press({ Qt::Key_Down });
    }
    bool controlHasKeys() const
    {
        const QQuickItem *focused = view()->activeFocusItem();
        return focused != nullptr && (focused == control() || control()->isAncestorOf(focused));
    }

    /*! Why the focus cannot be seen, or nothing when it can. */
    QString focusProblem() const
    {
        if (controller()->isEntered())
            return controlHasKeys() && items("focusPlate").isEmpty() ? QString() : "the control has no focus";
        static const QHash<int, QString> places { { gallery::ComponentsController::Pages, "pages" },
                                                  { gallery::ComponentsController::Preview, "stage" },
                                                  { gallery::ComponentsController::Editors, "editors" } };
        const QString name = places.value(controller()->area());
        return plateProblem(sceneRect(name.isEmpty() ? view()->rootObject() : item(name)));
    }

    /*! What of the control is not as in one made from the line, or nothing. */
    QString differenceToTheLine() const
    {
        QQmlComponent component(view()->engine());
        component.setData(controller()->qmlText().toUtf8(), {});
        const std::unique_ptr<QObject> made(component.create());
        if (made == nullptr || control() == nullptr)
            return controller()->qmlText() + ": " + component.errorString();
        const QObject *fresh = made.get();
        if (!controller()->page().surroundings.isEmpty())
            fresh = qobject_cast<QQuickItem *>(made.get())->childItems().constLast();
        for (const gallery::ComponentEditor &editor : controller()->page().editors) {
            const QVariant expected = QQmlProperty::read(fresh, editor.name);
            const QVariant found = QQmlProperty::read(control(), editor.name);
            if (expected != found)
                return controller()->qmlText() + ": " + editor.name + " is " + found.toString();
        }
        return {};
    }

    static QAccessibleInterface *accessible(QObject *object)
    {
        return QAccessible::queryAccessibleInterface(object);
    }

private Q_SLOTS:
    void cleanup() { end(); }

    void startsWithTheFocusAmongThePages()
    {
        start();
        QCOMPARE(focusProblem(), QString());
        QVERIFY(control() != nullptr);
        QVERIFY(texts().contains(controller()->qmlText()));
    }

    void fourArrowsOkAndBackReachEverythingAndComeBack()
    {
        start();
        press({ Qt::Key_Home });
        for (int row = 0; row < pageCount(); ++row, press({ Qt::Key_Down })) {
            QCOMPARE(controller()->pageRow(), row);
            press({ Qt::Key_Right });
            QCOMPARE(focusProblem(), QString());
            for (int editor = 0; editor < controller()->editors()->rowCount(); ++editor) {
                press({ Qt::Key_Down });
                QCOMPARE(controller()->editorRow(), editor);
                QCOMPARE(focusProblem(), QString());
                press({ Qt::Key_Return });
            }
            press({ Qt::Key_Down });
            QCOMPARE(controller()->area(), gallery::ComponentsController::Line);
            QCOMPARE(focusProblem(), QString());
            press({ Qt::Key_Return });
            QCOMPARE(QGuiApplication::clipboard()->text(), controller()->qmlText());
            QVERIFY(texts().contains("The line was copied"));
            press({ Qt::Key_Back });
            QCOMPARE(controller()->area(), gallery::ComponentsController::Pages);
            QCOMPARE(focusProblem(), QString());
        }
        press({ Qt::Key_Back });
        QCOMPARE(shell()->screen(), "home");
    }

    void everyControlThatUsesKeysIsLeftAgain()
    {
        start();
        press({ Qt::Key_Home });
        int entered = 0;
        for (int row = 0; row < pageCount(); ++row, press({ Qt::Key_Down })) {
            QCOMPARE(controller()->pageRow(), row);
            for (const Qt::Key back : { Qt::Key_Back, Qt::Key_Escape }) {
                press({ Qt::Key_Right, Qt::Key_Return });
                QCOMPARE(controller()->isEntered(), controller()->takesKeys());
                QCOMPARE(controlHasKeys(), controller()->takesKeys());
                QCOMPARE(focusProblem(), QString());
                if (!controller()->isEntered()) {
                    press({ back });
                    continue;
                }
                ++entered;
                press({ Qt::Key_Right, Qt::Key_Down, Qt::Key_Return, Qt::Key_Left, Qt::Key_Up,
                        Qt::Key_Return });
                QVERIFY2(controlHasKeys(), qPrintable(controller()->pageName()));
                press({ back });
                QVERIFY2(!controller()->isEntered(), qPrintable(controller()->pageName()));
                QVERIFY(!controlHasKeys());
                QCOMPARE(focusProblem(), QString());
                press({ back });
                QCOMPARE(controller()->area(), gallery::ComponentsController::Pages);
            }
        }
        QCOMPARE(entered, 2 * 11);
    }

    void onlyTheControlOfTheShownPageExists()
    {
        start();
        press({ Qt::Key_Home });
        for (int row = 0; row < pageCount(); ++row) {
            const QPointer<QQuickItem> shown = control();
            QCOMPARE(preview()->childItems(), QList<QQuickItem *> { shown });
            press({ Qt::Key_Down });
            if (row + 1 < pageCount())
                QVERIFY(shown.isNull());
        }
    }

    void withoutTheScreenThereIsNoControl()
    {
        start();
        const QPointer<QQuickItem> shown = control();
        press({ Qt::Key_Back });
        QCOMPARE(shell()->screen(), "home");
        QTRY_VERIFY(shown.isNull());
    }

    void theControlIsAsInTheLineAfterAnyKeys()
    {
        start();
        QRandomGenerator random(20261121);
        for (int row = 0; row < pageCount(); ++row) {
            show(controller()->pages().at(row));
            press({ Qt::Key_Right, Qt::Key_Down });
            for (int step = 0; step < 60; ++step) {
                const QList<Qt::Key> keys { Qt::Key_Left, Qt::Key_Right, Qt::Key_Return, Qt::Key_Down };
                if (controller()->area() != gallery::ComponentsController::Editors)
                    press({ Qt::Key_Up });
                press({ keys.at(random.bounded(int(keys.size()))) });
                // Some go to their values by and by.
                QTRY_VERIFY2(differenceToTheLine().isEmpty(), qPrintable(differenceToTheLine()));
            }
        }
    }

    void whatTheControlChangesIsInTheLine()
    {
        start();
        show("CheckBox");
        press({ Qt::Key_Right, Qt::Key_Return, Qt::Key_Return });
        QVERIFY(controller()->qmlText().contains("checked: true"));
        show("MediaGridView");
        press({ Qt::Key_Right, Qt::Key_Return, Qt::Key_Right, Qt::Key_Right });
        QVERIFY(controller()->qmlText().contains("currentIndex: 2"));
    }

    void theKeyboardTypesIntoALine()
    {
        start();
        show("Keyboard");
        press({ Qt::Key_Right, Qt::Key_Return, Qt::Key_Return, Qt::Key_Right, Qt::Key_Return });
        QVERIFY2(texts().contains("qw"), qPrintable(texts().join(' ')));
        press({ Qt::Key_Back });
        show("LineEdit");
        QVERIFY(!texts().contains("qw"));
    }

    void aRealKeyboardWritesIntoTheLineEdit()
    {
        start();
        show("LineEdit");
        press({ Qt::Key_Right, Qt::Key_Return });
        QTest::keyClick(view(), 'r');
        QTest::keyClick(view(), 'x');
        press({ Qt::Key_Backspace });
        QVERIFY(controller()->isEntered());
        QVERIFY(controller()->qmlText().contains("text: \"r\""));
        press({ Qt::Key_Back });
        QVERIFY(!controller()->isEntered());
    }

    void everyControlFitsOnItsStage_data()
    {
        QTest::addColumn<QString>("resolution");
        for (const char *resolution : { "hd", "fullhd", "sd" })
            QTest::addRow("%s", resolution) << resolution;
    }
    void everyControlFitsOnItsStage()
    {
        QFETCH(QString, resolution);
        gallery::Options options;
        options.resolution = resolution;
        start(options);
        press({ Qt::Key_Home });
        for (int row = 0; row < pageCount(); ++row, press({ Qt::Key_Down })) {
            const QRectF place = preview()->controlRect();
            QVERIFY2(place.width() >= 4 && place.height() >= 4, qPrintable(controller()->pageName()));
            QVERIFY2(QRectF(0, 0, preview()->width(), preview()->height())
                             .adjusted(-1, -1, 1, 1)
                             .contains(place),
                     qPrintable(controller()->pageName()));
        }
    }

    void whatIsShownOfAGridAreWholeRows_data() { everyControlFitsOnItsStage_data(); }
    void whatIsShownOfAGridAreWholeRows()
    {
        QFETCH(QString, resolution);
        gallery::Options options;
        options.resolution = resolution;
        start(options);
        for (const QString name : { "MediaGridView", "ScrolledGridView" }) {
            show(name);
            const QRectF view = sceneRect(control());
            QList<QRectF> seen;
            collectButtons(control(), view, seen);
            QVERIFY(seen.size() >= 6);
            for (qsizetype i = 0; i < seen.size(); ++i) {
                QVERIFY2(view.adjusted(-1, -1, 1, 1).contains(seen.at(i)), qPrintable(name));
                for (qsizetype j = 0; j < i; ++j)
                    QVERIFY2(!seen.at(i).intersects(seen.at(j)), qPrintable(name));
            }
        }
    }

    void theLastPageIsNotUnderAFade_data() { everyControlFitsOnItsStage_data(); }
    void theLastPageIsNotUnderAFade()
    {
        QFETCH(QString, resolution);
        gallery::Options options;
        options.resolution = resolution;
        start(options);
        for (const Qt::Key key : { Qt::Key_End, Qt::Key_Home }) {
            press({ key });
            const QRectF row = sceneRect(item("focusPlate"));
            const QList<QQuickItem *> fades = items("edgeFade");
            QVERIFY(!fades.isEmpty());
            for (const QQuickItem *fade : fades)
                QVERIFY(!sceneRect(fade).intersects(row));
        }
    }

    void namesOfPropertiesAreToldInFull_data() { everyControlFitsOnItsStage_data(); }
    void namesOfPropertiesAreToldInFull()
    {
        QFETCH(QString, resolution);
        gallery::Options options;
        options.resolution = resolution;
        start(options);
        press({ Qt::Key_Home });
        for (int row = 0; row < pageCount(); ++row, press({ Qt::Key_Down })) {
            press({ Qt::Key_Right });
            const auto *pageLabel = item("pages")->property("currentItem").value<QQuickItem *>();
            QStringList elided;
            collectElided(pageLabel, elided);
            for (int editor = 0; editor < controller()->editors()->rowCount(); ++editor) {
                press({ Qt::Key_Down });
                collectElided(item("editors")->property("currentItem").value<QQuickItem *>(), elided);
            }
            // A value may be as long as it likes.
            elided.removeIf([this](const QString &text) {
                return std::none_of(controller()->page().editors.cbegin(),
                                    controller()->page().editors.cend(),
                                    [&text](const gallery::ComponentEditor &one) { return one.name == text; });
            });
            QCOMPARE(elided, QStringList());
            press({ Qt::Key_Back });
        }
    }

    void hintsTellWhatTheKeysDo()
    {
        start();
        QVERIFY(texts().contains("Open") && texts().contains("Leave"));
        QVERIFY(!texts().contains("Try out"));
        press({ Qt::Key_Right });
        QVERIFY(!texts().contains("OK") && texts().contains("Properties") && texts().contains("Controls"));
        press({ Qt::Key_Down });
        QVERIFY(texts().contains("OK") && texts().contains("Next"));
        show("CheckBox");
        QVERIFY(texts().contains("Try out"));
    }

    void madeAnewItLooksTheSame()
    {
        start();
        show("CheckBox");
        press({ Qt::Key_Right, Qt::Key_Return, Qt::Key_Return });
        QImage before = view()->grabWindow();
        makeAnew();
        QCOMPARE(view()->grabWindow(), before);
        QVERIFY(controlHasKeys());
        press({ Qt::Key_Back, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return });
        before = view()->grabWindow();
        makeAnew();
        QCOMPARE(view()->grabWindow(), before);
        QCOMPARE(controller()->editorRow(), 2);
        QVERIFY(!control()->isEnabled());
    }

    void madeAnewAFocusedTileIsLarge()
    {
        start();
        show("ContentTile");
        const QRect small = control()->property("customFocusRect").toRect();
        press({ Qt::Key_Right, Qt::Key_Down, Qt::Key_Right });
        QTRY_VERIFY(control()->property("customFocusRect").toRect().width() > small.width() + 10);
        makeAnew();
        QTRY_VERIFY(control()->property("customFocusRect").toRect().width() > small.width() + 10);
    }

    void madeAnewAGridKeepsItsPlace()
    {
        start();
        show("MediaGridView");
        press({ Qt::Key_Right, Qt::Key_Return, Qt::Key_Right, Qt::Key_Down });
        const int chosen = control()->property("currentIndex").toInt();
        QVERIFY(chosen > 1);
        makeAnew();
        QCOMPARE(control()->property("currentIndex").toInt(), chosen);
        QVERIFY(controlHasKeys());
    }

    void whatHasTheFocusIsToldToAssistivePrograms()
    {
        start();
        show("CheckBox");
        const auto *rows = item("pages");
        auto *page = rows->property("currentItem").value<QQuickItem *>();
        QCOMPARE(accessible(page)->text(QAccessible::Name), "CheckBox");
        QCOMPARE(accessible(page)->role(), QAccessible::ListItem);
        QVERIFY(accessible(page)->state().focused);
        press({ Qt::Key_Right });
        QVERIFY(!accessible(page)->state().focused);
        QVERIFY(accessible(page)->state().selected);
        QVERIFY(accessible(item("stage"))->state().focused);
        QCOMPARE(accessible(item("stage"))->text(QAccessible::Name), "CheckBox");
        press({ Qt::Key_Down });
        auto *editor = item("editors")->property("currentItem").value<QQuickItem *>();
        QVERIFY(accessible(editor)->state().focused);
        QCOMPARE(accessible(editor)->role(), QAccessible::CheckBox);
        QCOMPARE(accessible(editor)->text(QAccessible::Name), "checked");
        QVERIFY(!accessible(editor)->state().checked);
        press({ Qt::Key_Return });
        QVERIFY(accessible(editor)->state().checked);
        press({ Qt::Key_Down });
        editor = item("editors")->property("currentItem").value<QQuickItem *>();
        QCOMPARE(accessible(editor)->text(QAccessible::Name), "text: Subtitles");
    }

    void inArabicThePagesAreOnTheRight()
    {
        gallery::Options arabic;
        arabic.language = "ar";
        start(arabic);
        QVERIFY(sceneRect(item("pages")).left() > sceneRect(item("stage")).right());
        press({ Qt::Key_Left });
        QCOMPARE(controller()->area(), gallery::ComponentsController::Preview);
        QCOMPARE(focusProblem(), QString());
    }

    void theFocusIsSeenAfterAnyKeys()
    {
        start();
        QList<Qt::Key> keys = remoteKeys();
        QRandomGenerator random(20261121);
        for (int step = 0; step < 3000; ++step) {
            const Qt::Key key = keys.at(random.bounded(int(keys.size())));
            if (key == Qt::Key_Back && controller()->area() == gallery::ComponentsController::Pages)
                continue; // leads to the home screen
            press({ key });
            const QString problem = focusProblem();
            QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("step %1, %2: %3")
                                                           .arg(step)
                                                           .arg(controller()->pageName(), problem)));
        }
    }

private:
    static void collectButtons(const QQuickItem *item, const QRectF &view, QList<QRectF> &seen)
    {
        const QRectF place = sceneRect(item);
        if (item->isVisible() && item->property("titleText").isValid() && place.intersects(view))
            seen.append(place);
        const QList<QQuickItem *> children = item->childItems();
        for (const QQuickItem *child : children)
            collectButtons(child, view, seen);
    }

    static void collectElided(const QQuickItem *item, QStringList &elided)
    {
        if (item->property("truncated").toBool())
            elided.append(item->property("text").toString());
        const QList<QQuickItem *> children = item->childItems();
        for (const QQuickItem *child : children)
            collectElided(child, elided);
    }

    /*! Throws the screens away and makes them anew from the same controllers. */
    void makeAnew()
    {
        QVERIFY(view()->build({ { "controller", QVariant::fromValue(shell()) } }));
        QVERIFY(control() != nullptr);
        QCOMPARE(focusProblem(), QString());
    }
};

STB_TEST_MAIN(tst_ComponentsScreen)
#include "tst_componentsscreen.moc"
