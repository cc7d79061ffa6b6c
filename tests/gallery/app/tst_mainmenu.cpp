// SPDX-License-Identifier: MIT
#include "screentest.h"

/*! The main menu over the screens, in its window and steered with key events. */
class tst_MainMenu : public ScreenTest
{
    Q_OBJECT

    void start(const QString &screen, gallery::Options options = {})
    {
        options.screen = screen;
        // Without movements: each key leads to its end at once.
        options.screenshotsFolder = "unused";
        ScreenTest::start(options);
        shell()->start(screen);
    }

    gallery::MainMenuController *menu() const { return shell()->menu(); }
    bool isShown() const { return items("menuOverlay").size() == 1; }
    QQuickItem *entry(int index) const { return items("menuEntry").at(index); }

    /*!
        Why what \a fades make of the picture \a plain, \a faded, is not right: towards an edge where the menu goes on,
        something has to fade into the ground, and all else has to stay as it is.
    */
    static QString fadeProblem(const QQuickItem *fades, const QImage &faded, const QImage &plain)
    {
        const QRect all = sceneRect(fades).toRect();
        const int width = fades->property("leftGradientWidth").toInt();
        const bool left = fades->property("leftGradientOpacity").toReal() > 0;
        const bool right = fades->property("rightGradientOpacity").toReal() > 0;
        const QColor ground = fades->property("color").value<QColor>();
        int fadedLeft = 0;
        int fadedRight = 0;
        for (int row = all.top(); row <= all.bottom(); ++row) {
            for (int column = 0; column < plain.width(); ++column) {
                const QColor is = faded.pixelColor(column, row);
                const QColor was = plain.pixelColor(column, row);
                // From the edge of the strip that it is in, in parts of its width: how much is left of it.
                qreal rest = 1;
                const QPointF place(column + 0.5, row + 0.5);
                const bool inLeft = left && place.x() < all.x() + width && all.contains(column, row);
                const bool inRight = right && place.x() > all.x() + all.width() - width
                                     && all.contains(column, row);
                if (inLeft)
                    rest = (place.x() - all.x()) / width;
                else if (inRight)
                    rest = (all.x() + all.width() - place.x()) / width;
                const qreal expected = ground.lightness() + rest * (was.lightness() - ground.lightness());
                if (std::abs(is.lightness() - expected) > 8)
                    return QStringLiteral("at %1, %2").arg(column).arg(row);
                fadedLeft += int(inLeft && is != was);
                fadedRight += int(inRight && is != was);
            }
        }
        // A letter or two at the least.
        if ((left && fadedLeft < 40) || (right && fadedRight < 40))
            return QStringLiteral("nothing fades out: %1 pixels, %2 pixels").arg(fadedLeft).arg(fadedRight);
        return {};
    }

private Q_SLOTS:
    void cleanup() { end(); }

    void comesOverEveryScreenAndGoes_data()
    {
        QTest::addColumn<QString>("screen");
        const QStringList screens = gallery::ShellController::screenNames();
        for (const QString &screen : screens) {
            if (screen != "home") // has it in its header
                QTest::newRow(qPrintable(screen)) << screen;
        }
    }
    void comesOverEveryScreenAndGoes()
    {
        QFETCH(QString, screen);
        start(screen);
        QVERIFY(!isShown());
        press(Qt::Key_Menu);
        QVERIFY(isShown());
        QCOMPARE(menuProblem(), QString());
        press(Qt::Key_Menu);
        QVERIFY(!isShown());
        press(Qt::Key_Red);
        QVERIFY(isShown());
        press(Qt::Key_Back);
        QVERIFY(!isShown());
        QCOMPARE(shell()->screen(), screen);
    }

    void marksTheScreenThatIsShown()
    {
        start("channels");
        press(Qt::Key_Menu);
        const int current = int(menu()->entries().indexOf("channels"));
        QCOMPARE(entry(current)->state(), "focused");
        QCOMPARE(entry(current)->property("checked").toBool(), true);
        press(Qt::Key_Left);
        QCOMPARE(entry(current)->state(), "checked");
        QCOMPARE(entry(current - 1)->state(), "focused");
        QCOMPARE(entry(current - 1)->property("checked").toBool(), false);
        QCOMPARE(entry(0)->state(), "normal");
    }

    void theScreenBelowGetsNoKeysAndStaysAsItIs()
    {
        start("guide");
        press(Qt::Key_Down);
        const QString title = shell()->guide()->title();
        const QRectF plate = sceneRect(item("focusPlate"));
        press(Qt::Key_Menu);
        for (const Qt::Key key : { Qt::Key_Right, Qt::Key_Left, Qt::Key_Up, Qt::Key_End, Qt::Key_Home,
                                   Qt::Key_Info, Qt::Key_Green, Qt::Key_ChannelUp, Qt::Key_PageUp })
            press(key);
        QVERIFY(isShown());
        QVERIFY(!shell()->guide()->isDetailsOpen());
        press(Qt::Key_Down);
        QVERIFY(!isShown());
        QCOMPARE(shell()->guide()->title(), title);
        QCOMPARE(sceneRect(item("focusPlate")), plate);
        press(Qt::Key_Down);
        QVERIFY(shell()->guide()->title() != title);
    }

    void anEntryOpensItsScreen()
    {
        start("channels");
        press(Qt::Key_Menu);
        press(Qt::Key_Left);
        press(Qt::Key_Return);
        QCOMPARE(shell()->openScreens(), (QStringList { "home", "channels", "guide" }));
        QVERIFY(!isShown());
        press(Qt::Key_Down);
        QCOMPARE(shell()->guide()->title(), "A41");
    }

    void afterAWayThroughScreensOneEntryIsMarked()
    {
        start("guide");
        for (const QString screen : { "guide", "channels", "search", "guide", "home" }) {
            shell()->start(screen);
            if (screen != "home")
                press(Qt::Key_Menu);
            QStringList marked;
            const QList<QQuickItem *> entries = items("menuEntry");
            for (int i = 0; i < entries.size(); ++i) {
                if (entries.at(i)->property("checked").toBool())
                    marked.append(menu()->entries().at(i));
            }
            QCOMPARE(marked, QStringList { screen });
            QCOMPARE(entries.at(menu()->current())->state(), screen == "home" ? "checked" : "focused");
        }
    }

    void theEntryOfTheScreenThatIsShownOnlyCloses()
    {
        start("guide");
        press(Qt::Key_Down);
        press(Qt::Key_Menu);
        press(Qt::Key_Return);
        QVERIFY(!isShown());
        QCOMPARE(shell()->openScreens(), (QStringList { "home", "guide" }));
        QCOMPARE(shell()->guide()->title(), "A41");
    }

    void theFirstEntryLeadsHomeFromAnywhere()
    {
        start("channels");
        press(Qt::Key_Return);
        QCOMPARE(shell()->screen(), "player");
        for (const Qt::Key key : { Qt::Key_Menu, Qt::Key_Home, Qt::Key_Return })
            press(key);
        QCOMPARE(shell()->openScreens(), QStringList { "home" });
        QVERIFY(!shell()->home()->isInHeader());
        QVERIFY(!isShown());
    }

    void everyEntryIsWhollySeenWhileItIsChosen_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QString>("language");
        for (const QString resolution : { "hd", "fullhd", "sd" }) {
            for (const QString language : { "en", "ru", "de", "ar" })
                QTest::addRow("%s %s", qPrintable(resolution), qPrintable(language))
                        << resolution << language;
        }
    }
    void everyEntryIsWhollySeenWhileItIsChosen()
    {
        QFETCH(QString, resolution);
        QFETCH(QString, language);
        gallery::Options options;
        options.resolution = resolution;
        options.language = language;
        start("guide", options);
        press(Qt::Key_Menu);
        press(Qt::Key_Home);
        const Qt::Key onward = language == "ar" ? Qt::Key_Left : Qt::Key_Right;
        for (int i = 0; i < menu()->entries().size(); ++i) {
            QCOMPARE(menu()->chosen(), i);
            QCOMPARE(menuProblem(), QString());
            press(onward);
        }
    }

    void fadesWhereEntriesGoBeyondTheEdge()
    {
        gallery::Options options;
        options.resolution = "sd";
        options.language = "ru";
        start("guide", options);
        press(Qt::Key_Menu);
        press(Qt::Key_Home);
        const QQuickItem *fades = item("menuFades");
        QVERIFY(fades != nullptr);
        QCOMPARE(fades->property("leftGradientOpacity").toReal(), 0.0);
        QCOMPARE(fades->property("rightGradientOpacity").toReal(), 1.0);
        QCOMPARE(sceneRect(entry(0)).left(), sceneRect(item("menuEntries")).left());
        press(Qt::Key_End);
        QCOMPARE(fades->property("leftGradientOpacity").toReal(), 1.0);
        QCOMPARE(fades->property("rightGradientOpacity").toReal(), 0.0);
    }

    void theEdgesFadeWhatLiesBelowThem_data() { everyEntryIsWhollySeenWhileItIsChosen_data(); }
    void theEdgesFadeWhatLiesBelowThem()
    {
        QFETCH(QString, resolution);
        QFETCH(QString, language);
        gallery::Options options;
        options.resolution = resolution;
        options.language = language;
        start("guide", options);
        press(Qt::Key_Menu);
        press(Qt::Key_Home);
        const Qt::Key onward = language == "ar" ? Qt::Key_Left : Qt::Key_Right;
        QQuickItem *fades = item("menuFades");
        for (int i = 0; i < menu()->entries().size(); ++i, press(onward)) {
            const QImage faded = view()->grabWindow();
            fades->setVisible(false);
            const QImage plain = view()->grabWindow();
            fades->setVisible(true);
            const QString problem = fadeProblem(fades, faded, plain);
            QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("entry %1: %2").arg(i).arg(problem)));
        }
    }

    void inArabicTheFirstEntryIsAtTheRight()
    {
        gallery::Options options;
        options.language = "ar";
        start("guide", options);
        press(Qt::Key_Menu);
        QCOMPARE(sceneRect(entry(0)).right(), sceneRect(item("menuEntries")).right());
        QVERIFY(sceneRect(entry(1)).right() < sceneRect(entry(0)).left());
    }

    void theFocusIsSeenAfterAnyKeys()
    {
        start("channels");
        QRandomGenerator random(20261122);
        QList<Qt::Key> keys = remoteKeys() + QList<Qt::Key> { Qt::Key_Menu, Qt::Key_Red, Qt::Key_Menu };
        keys.removeOne(Qt::Key_Return); // leads to screens that have tests of their own
        for (int step = 0; step < 1000; ++step) {
            press(keys.at(random.bounded(int(keys.size()))));
            if (shell()->screen() != "channels")
                shell()->start("channels");
            const QString problem = menu()->isOpen() ? menuProblem()
                                                     : plateProblem(sceneRect(view()->rootObject()));
            QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(problem)));
        }
    }
};

STB_TEST_MAIN(tst_MainMenu)
#include "tst_mainmenu.moc"
