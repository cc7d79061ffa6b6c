// SPDX-License-Identifier: MIT
#include "screentest.h"

/*! The player in its window, steered with key events. */
class tst_PlayerScreen : public ScreenTest
{
    Q_OBJECT

    void start(const QString &language = "en", const QString &resolution = "hd")
    {
        gallery::Options options;
        options.screen = "player";
        options.language = language;
        options.resolution = resolution;
        // Pictures are taken without movements: each key leads to its end at once.
        options.screenshotsFolder = "unused";
        ScreenTest::start(options);
        shell()->start("player");
        settle();
    }

    /*! Positioners and lists arrange their items in the next frame. */
    void settle() const { QVERIFY(!view()->grabWindow().isNull()); }
    void press(Qt::Key key) const
    {
        ScreenTest::press(key);
        settle();
    }

    gallery::PlayerController *player() const { return shell()->player(); }

    /*! Why it cannot be seen what keys act on, or nothing when it can. */
    QString focusProblem() const
    {
        if (view()->activeFocusItem() == nullptr)
            return "nothing has the focus";
        int focused = 0;
        const QList<QQuickItem *> buttons = items("button");
        for (const QQuickItem *button : buttons) {
            focused += button->property("focused").toBool() ? 1 : 0;
            if (!sceneRect(view()->rootObject()).contains(sceneRect(button)))
                return "a button is not wholly on the screen";
        }
        const bool onButtons = player()->area() == gallery::PlayerController::Buttons;
        if (focused != (onButtons ? 1 : 0))
            return QStringLiteral("%1 of %2 buttons focused").arg(focused).arg(buttons.size());
        if (player()->area() == gallery::PlayerController::Programmes)
            return plateProblem(sceneRect(view()->rootObject()));
        return items("focusPlate").isEmpty() ? QString() : "a plate where keys act on no programme";
    }

    /*! The cell of the programme \a title, or none. */
    QQuickItem *cell(const QString &title) const
    {
        const QList<QQuickItem *> cells = items("programme");
        for (QQuickItem *cell : cells) {
            if (cell->property("itemTitle").toString() == title)
                return cell;
        }
        return nullptr;
    }

private Q_SLOTS:
    void cleanup() { end(); }

    void startsWithTheProgrammeThatIsOn()
    {
        start();
        QCOMPARE(shell()->screen(), "player");
        QVERIFY(texts().contains("A40"));
        QVERIFY(texts().contains("Channel a"));
        QCOMPARE(focusProblem(), QString());
        QVERIFY(cell("A40") != nullptr);
        QVERIFY(cell("A41") != nullptr);
    }

    void theChosenProgrammeHasThePlate()
    {
        start();
        press(Qt::Key_Right);
        QCOMPARE(focusProblem(), QString());
        const QRectF plate = sceneRect(item("focusPlate"));
        QVERIFY(plate.contains(sceneRect(cell("A41"))));
        QVERIFY(!plate.intersects(sceneRect(cell("A42"))));
    }

    void theNextProgrammeStandsWhereReadingGoesOn()
    {
        start();
        QVERIFY(sceneRect(cell("A41")).left() > sceneRect(cell("A40")).right());
        start("ar");
        QVERIFY(sceneRect(cell("A41")).right() < sceneRect(cell("A40")).left());
        press(Qt::Key_Left);
        QCOMPARE(player()->programmeRow(), 41);
        QCOMPARE(focusProblem(), QString());
    }

    void theChosenProgrammeIsWhollyWithinTheSafeArea_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QString>("language");
        for (const QString resolution : { "hd", "fullhd", "sd" }) {
            for (const QString language : { "en", "ar" })
                QTest::addRow("%s %s", qPrintable(resolution), qPrintable(language))
                        << resolution << language;
        }
    }
    void theChosenProgrammeIsWhollyWithinTheSafeArea()
    {
        QFETCH(QString, resolution);
        QFETCH(QString, language);
        start(language, resolution);
        const qreal x = view()->width() / 20.0 - 10;
        const qreal y = view()->height() / 20.0;
        const QRectF safe = sceneRect(view()->rootObject()).adjusted(x, y, -x, -y);
        for (const Qt::Key key :
             { Qt::Key_Home, Qt::Key_Right, Qt::Key_End, Qt::Key_Left, Qt::Key_Up, Qt::Key_Up }) {
            press(key);
            QCOMPARE(plateProblem(safe), QString());
        }
        press(Qt::Key_Return);
        QCOMPARE(focusProblem(), QString());
    }

    void onlyWhatCanBeSeenExists()
    {
        start();
        QVERIFY2(items("programme").size() <= 5, qPrintable(QString::number(items("programme").size())));
        press(Qt::Key_End);
        press(Qt::Key_Home);
        QVERIFY2(items("programme").size() <= 5, qPrintable(QString::number(items("programme").size())));
    }

    void backLeavesOnlyThePicture()
    {
        start();
        press(Qt::Key_Back);
        QCOMPARE(items("programme").size(), 0);
        QCOMPARE(items("button").size(), 0);
        QCOMPARE(focusProblem(), QString());
        press(Qt::Key_Return);
        QCOMPARE(items("button").size(), 5);
        QCOMPARE(focusProblem(), QString());
        press(Qt::Key_Back);
        press(Qt::Key_Back);
        QCOMPARE(shell()->screen(), "home");
    }

    void theOverlayHidesByItself()
    {
        start();
        player()->hideOverlay();
        QCOMPARE(items("programme").size(), 0);
        QVERIFY(view()->activeFocusItem() != nullptr);
    }

    void whatIsPausedIsMarkedOnItsButton()
    {
        start();
        press(Qt::Key_Return);
        QVERIFY(!items("button").at(0)->property("checked").toBool());
        press(Qt::Key_Return);
        QVERIFY(items("button").at(0)->property("checked").toBool());
        QVERIFY(!items("button").at(2)->property("checked").toBool());
    }

    void aChannelWithoutProgrammesSaysSoAndKeepsTheFocus()
    {
        start();
        press(Qt::Key_Up);
        press(Qt::Key_Up);
        QVERIFY(texts().contains("This channel has no programme guide"));
        QVERIFY(texts().contains("There is nothing on now"));
        QCOMPARE(focusProblem(), QString());
        QCOMPARE(items("button").size(), 4);
    }

    void anEmptyGuideSaysSoAndKeepsTheFocus()
    {
        start();
        shell()->guide()->setGuide({});
        settle();
        QVERIFY(texts().contains("There are no channels to watch"));
        QCOMPARE(focusProblem(), QString());
    }

    void theCellsFollowTheTime()
    {
        start();
        QCOMPARE(cell("A41")->property("tvProgramExactDate").toString(), u"Today, 20:30 – 21:00");
        shell()->clock()->setFixed(guides::at(20, 30));
        settle();
        QCOMPARE(cell("A41")->property("tvProgramExactDate").toString(), u"Now, 20:30 – 21:00");
        QCOMPARE(focusProblem(), QString());
    }

    void theFocusIsSeenAfterAnyKeysAndChanges_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("from left to right") << "en";
        QTest::newRow("from right to left") << "ar";
    }
    void theFocusIsSeenAfterAnyKeysAndChanges()
    {
        QFETCH(QString, language);
        start(language);
        QList<Qt::Key> keys = remoteKeys();
        keys << Qt::Key_Right << Qt::Key_Left;
        QRandomGenerator random(20260304);
        for (int step = 0; step < 1500; ++step) {
            const int what = random.bounded(100);
            if (shell()->screen() != "player")
                shell()->openPlayer(random.bounded(5));
            if (what < 1)
                shell()->guide()->setGuide(random.bounded(4) == 0 ? gallery::Guide() : guides::five());
            else if (what < 4)
                shell()->clock()->setFixed(guides::at(random.bounded(24), random.bounded(60)));
            else
                ScreenTest::press(keys.at(random.bounded(int(keys.size()))));
            if (shell()->screen() != "player")
                continue;
            QString problem = focusProblem();
            if (!problem.isEmpty()) {
                settle();
                problem = focusProblem();
            }
            QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(problem)));
        }
    }
};

STB_TEST_MAIN(tst_PlayerScreen)
#include "tst_playerscreen.moc"
