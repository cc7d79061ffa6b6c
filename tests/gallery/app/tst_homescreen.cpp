// SPDX-License-Identifier: MIT
#include "catalogues.h"
#include "screentest.h"

#include <QtCore/qtemporaryfile.h>

/*! The home screen and the detail page in their window, steered with key events. */
class tst_HomeScreen : public ScreenTest
{
    Q_OBJECT

    void start(gallery::Options options = {})
    {
        ScreenTest::start(options);
        home()->setCatalogue(catalogues::small());
        home()->start();
    }
    void startMirrored()
    {
        gallery::Options options;
        options.language = "ar";
        start(options);
    }

    gallery::HomeController *home() const { return shell()->home(); }
    gallery::DetailController *detail() const { return shell()->detail(); }

    /*! Why the focus cannot be seen, or nothing when it can. */
    QString focusProblem() const
    {
        if (view()->activeFocusItem() == nullptr)
            return "nothing has the focus";
        // The others have tests of their own.
        if (!QStringList { "home", "detail", "guide", "channels" }.contains(shell()->screen()))
            return {};
        if (shell()->screen() == "home" && home()->isInHeader())
            return menuProblem();
        if (shell()->screen() != "detail")
            return plateProblem(sceneRect(view()->rootObject()));
        int focused = 0;
        const QList<QQuickItem *> buttons = items("button");
        for (const QQuickItem *button : buttons) {
            if (button->property("focused").toBool())
                ++focused;
            if (!sceneRect(view()->rootObject()).contains(sceneRect(button)))
                return "a button is not wholly on the screen";
        }
        return focused == 1 ? QString()
                            : QStringLiteral("%1 of %2 buttons focused").arg(focused).arg(buttons.size());
    }

    /*! The place of the tile that has the focus, as it is painted. */
    QRectF focusedTile() const
    {
        const QList<QQuickItem *> tiles = items("tile");
        for (const QQuickItem *tile : tiles) {
            if (tile->property("state").toString() == "focused")
                return tile->mapRectToScene(tile->property("customFocusRect").toRectF());
        }
        return {};
    }

private Q_SLOTS:
    void cleanup() { end(); }

    void startsWithTheFocusOnTheFirstTile()
    {
        start();
        QCOMPARE(focusProblem(), QString());
        QVERIFY(texts().contains("A40"));
    }

    void rightMovesTheFocusToTheRight()
    {
        start();
        const qreal before = focusedTile().left();
        press(Qt::Key_Right);
        QTRY_VERIFY(focusedTile().left() > before + 50);
        QCOMPARE(home()->title(), "B25");
        press(Qt::Key_Left);
        QTRY_VERIFY(focusedTile().left() <= before); // it may have been growing still
    }

    void inArabicLeftMovesTheFocusToTheLeft()
    {
        startMirrored();
        const qreal before = focusedTile().left();
        QVERIFY(before > view()->width() / 2);
        press(Qt::Key_Left);
        QTRY_VERIFY(focusedTile().left() < before - 50);
        QCOMPARE(home()->title(), "B25");
        QTRY_COMPARE(focusProblem(), QString());
    }

    void theRowsNameStandsOnTheSideWhereReadingStarts()
    {
        start();
        QVERIFY(sceneRect(items("rowName").constFirst()).left() < view()->width() / 4.0);
        startMirrored();
        QVERIFY(sceneRect(items("rowName").constFirst()).right() > view()->width() * 3 / 4.0);
    }

    void everyFocusedTileIsWhollyOnTheScreen_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QString>("language");
        for (const QString resolution : { "hd", "fullhd", "sd" }) {
            for (const QString language : { "en", "ar" })
                QTest::addRow("%s %s", qPrintable(resolution), qPrintable(language))
                        << resolution << language;
        }
    }
    void everyFocusedTileIsWhollyOnTheScreen()
    {
        QFETCH(QString, resolution);
        QFETCH(QString, language);
        gallery::Options options;
        options.resolution = resolution;
        options.language = language;
        // Pictures are taken without movements: each key leads to its end at once.
        options.screenshotsFolder = "unused";
        start(options);
        const QRectF safe = sceneRect(view()->rootObject())
                                    .adjusted(view()->width() / 20.0 - 20, view()->height() / 20.0,
                                              20 - view()->width() / 20.0, -view()->height() / 20.0);
        for (int row = 0; row < home()->rows()->count(); ++row) {
            for (int tile = 0; tile < home()->rows()->at(row)->count(); ++tile) {
                QString problem;
                QVERIFY2(QTest::qWaitFor([&] { return (problem = plateProblem(safe)).isEmpty(); }),
                         qPrintable(QStringLiteral("%1, %2: %3").arg(row).arg(tile).arg(problem)));
                press(language == "ar" ? Qt::Key_Left : Qt::Key_Right);
            }
            press(Qt::Key_Down);
        }
    }

    void theDescriptionUsesTheLinesThatItHas_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<int>("lines");
        QTest::newRow("hd") << "hd" << 2;
        QTest::newRow("fullhd") << "fullhd" << 2;
        QTest::newRow("sd") << "sd" << 1;
    }
    void theDescriptionUsesTheLinesThatItHas()
    {
        QFETCH(QString, resolution);
        QFETCH(int, lines);
        gallery::Options options;
        options.resolution = resolution;
        start(options);
        gallery::CatalogueEntry wordy = catalogues::film("Wordy");
        wordy.description = QString("a few more words ").repeated(40);
        home()->setCatalogue(gallery::Catalogue({ wordy }));
        press(Qt::Key_Down);
        QCOMPARE(item("heroDescription")->property("lineCount").toInt(), lines);
        QVERIFY(item("heroDescription")->property("truncated").toBool());
    }

    void aRowRemembersItsTile()
    {
        start();
        for (const Qt::Key key : { Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Right, Qt::Key_Up })
            press(key);
        QCOMPARE(home()->title(), "C19");
        QTRY_COMPARE(focusProblem(), QString());
        press(Qt::Key_Down);
        QCOMPARE(home()->title(), "F1");
    }

    void aTileOpensItsPageAndBackReturnsToIt()
    {
        start();
        press(Qt::Key_Down);
        press(Qt::Key_Right);
        press(Qt::Key_Return);
        QCOMPARE(shell()->screen(), "detail");
        QVERIFY(texts().contains("All of F1"));
        QCOMPARE(focusProblem(), QString());
        press(Qt::Key_Back);
        QCOMPARE(shell()->screen(), "home");
        QCOMPARE(home()->title(), "F1");
        QTRY_COMPARE(focusProblem(), QString());
    }

    void theGuideIsReachedThroughTheHeaderAndLeftWithBack()
    {
        start();
        press(Qt::Key_Up);
        QCOMPARE(focusProblem(), QString());
        press(Qt::Key_Right);
        QCOMPARE(focusProblem(), QString());
        press(Qt::Key_Return);
        QCOMPARE(shell()->screen(), "guide");
        QCOMPARE(focusProblem(), QString());
        press(Qt::Key_Down);
        QCOMPARE(shell()->guide()->title(), "A41");
        press(Qt::Key_Back);
        press(Qt::Key_Back);
        QCOMPARE(shell()->screen(), "home");
        QCOMPARE(focusProblem(), QString());
    }

    void theMenuIsInTheHeader()
    {
        start();
        const QList<QQuickItem *> entries = items("menuEntry");
        QVERIFY(entries.size() >= 3);
        QCOMPARE(entries.at(0)->property("text"), "Home");
        QCOMPARE(entries.at(0)->state(), "checked");
        QCOMPARE(entries.at(1)->property("text"), "TV guide");
        QCOMPARE(entries.at(1)->state(), "normal");
        press(Qt::Key_Up);
        QCOMPARE(entries.at(0)->state(), "focused");
        press(Qt::Key_Right);
        QCOMPARE(entries.at(0)->state(), "checked");
        QCOMPARE(entries.at(1)->state(), "focused");
        QCOMPARE(items("menuOverlay").size(), 0);
    }

    void leavingIsAnnounced()
    {
        start();
        press(Qt::Key_Back);
        QVERIFY(!texts().contains("Press BACK again to leave"));
        press(Qt::Key_Back);
        QVERIFY(texts().contains("Press BACK again to leave"));
        press(Qt::Key_Down);
        QVERIFY(!texts().contains("Press BACK again to leave"));
    }

    void withoutAnythingToShowItSaysSoAndKeepsTheFocus()
    {
        start();
        home()->setCatalogue({});
        shell()->guide()->setGuide({});
        QVERIFY(texts().contains("There is nothing on TV now, and the catalogue is empty"));
        QCOMPARE(focusProblem(), QString());
        for (const Qt::Key key : { Qt::Key_Down, Qt::Key_Return, Qt::Key_Right, Qt::Key_Up })
            press(key);
        QCOMPARE(focusProblem(), QString());
    }

    void theFocusIsSeenAfterAnyKeys_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("from left to right") << "en";
        QTest::newRow("from right to left") << "ar";
    }
    void theFocusIsSeenAfterAnyKeys()
    {
        QFETCH(QString, language);
        gallery::Options options;
        options.language = language;
        options.screenshotsFolder = "unused";
        start(options);
        QRandomGenerator random(20260304);
        for (int step = 0; step < 3000; ++step) {
            const Qt::Key key = remoteKeys().at(random.bounded(int(remoteKeys().size())));
            press(key);
            const QString problem = focusProblem();
            QVERIFY2(problem.isEmpty(),
                     qPrintable(QStringLiteral("step %1, key %2: %3").arg(step).arg(key).arg(problem)));
        }
    }

    void theFocusIsSeenWhenItemsComeAndGo()
    {
        gallery::Options options;
        options.screenshotsFolder = "unused";
        start(options);
        QRandomGenerator random(7);
        for (int step = 0; step < 300; ++step) {
            home()->setCatalogue(gallery::Catalogue(catalogues::films(random.bounded(12))));
            shell()->clock()->setFixed(guides::at(random.bounded(24), random.bounded(60)));
            press(remoteKeys().at(random.bounded(int(remoteKeys().size()))));
            const QString problem = focusProblem();
            QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(problem)));
        }
    }

    void aFavouriteShowsOnItsTile()
    {
        start();
        for (const Qt::Key key : { Qt::Key_Down, Qt::Key_Return, Qt::Key_Right, Qt::Key_Return, Qt::Key_Back })
            press(key);
        int favourites = 0;
        const QList<QQuickItem *> tiles = items("tile");
        for (const QQuickItem *tile : tiles) {
            if (tile->property("itemIsFavourite").toBool() && tile->property("itemTitle").toString() == "F0")
                ++favourites;
        }
        QCOMPARE(favourites, 1);
    }

    void theThrobberShowsWhileSomethingOpens()
    {
        start();
        for (const Qt::Key key : { Qt::Key_Down, Qt::Key_Return, Qt::Key_Return })
            press(key);
        const auto busy = [this] {
            int count = 0;
            const QList<QQuickItem *> buttons = items("button");
            for (const QQuickItem *button : buttons)
                count += button->property("throbberVisible").toBool() ? 1 : 0;
            return count;
        };
        QCOMPARE(busy(), 1);
        detail()->finishOpening();
        QCOMPARE(busy(), 0);
        QVERIFY(texts().contains("There is no film to play in this gallery."));
    }
};

STB_TEST_MAIN(tst_HomeScreen)
#include "tst_homescreen.moc"
