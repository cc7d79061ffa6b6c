// SPDX-License-Identifier: MIT
#include "catalogues.h"
#include "screentest.h"

/*! The episodes of a series in their window, steered with key events. */
class tst_SeriesScreen : public ScreenTest
{
    Q_OBJECT

    void start(const QString &language = "en", const QString &resolution = "hd")
    {
        gallery::Options options;
        options.screen = "series";
        options.language = language;
        options.resolution = resolution;
        // Pictures are taken without movements: each key leads to its end at once.
        options.screenshotsFolder = "unused";
        ScreenTest::start(options);
        shell()->setCatalogue(catalogues::seasons());
        shell()->start("series");
        settle();
    }

    /*! Positioners and lists arrange their items in the next frame. */
    void settle() const { QVERIFY(!view()->grabWindow().isNull()); }
    void press(Qt::Key key) const
    {
        ScreenTest::press(key);
        settle();
    }

    gallery::SeriesController *series() const { return shell()->series(); }

    QString focusProblem() const
    {
        if (!series()->isInSeasons())
            return plateProblem(sceneRect(view()->rootObject()));
        if (!items("focusPlate").isEmpty())
            return "a plate where keys act on the seasons";
        int focused = 0;
        const QList<QQuickItem *> seasons = items("season");
        for (const QQuickItem *season : seasons)
            focused += season->property("focused").toBool() ? 1 : 0;
        return view()->activeFocusItem() != nullptr && focused == 1
                       ? QString()
                       : QStringLiteral("%1 of %2 seasons focused").arg(focused).arg(seasons.size());
    }

    /*! What is shown of the cell \a title, for example "viewedTile/Viewed". */
    QString cell(const QString &title) const
    {
        const QList<QQuickItem *> cells = items("episode");
        for (const QQuickItem *cell : cells) {
            if (cell->property("itemTitle").toString() == title)
                return cell->property("listItemType").toString() + u'/'
                       + cell->property("itemStatus").toString();
        }
        return {};
    }

private Q_SLOTS:
    void cleanup() { end(); }

    void everyKindOfEpisodeHasItsCell()
    {
        start();
        QCOMPARE(cell("1. S2E1"), "viewedTile/Viewed");
        QCOMPARE(cell("2. S2E2"), "defaultTile/40 min left");
        QCOMPARE(cell("3. S2E3"), "unViewedTile/50 min");
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        // The day stands in two lines; the cell gives no status back.
        QCOMPARE(cell("4. S2E4"), "comingSoonTile/");
        QCOMPARE(focusProblem(), QString());
    }

    void onlyWhatCanBeSeenExists()
    {
        start();
        QVERIFY2(items("episode").size() <= 4, qPrintable(QString::number(items("episode").size())));
        press(Qt::Key_End);
        QVERIFY2(items("episode").size() <= 4, qPrintable(QString::number(items("episode").size())));
        QVERIFY(!cell("7. S2E7").isEmpty());
    }

    void theKeysAreOnTheEpisodeThatIsGoneOnWith()
    {
        start();
        QVERIFY(texts().contains("Many"));
        QVERIFY(texts().contains(u"Season 2, episode 2 · 50 min · 12+"));
        QCOMPARE(focusProblem(), QString());
        press(Qt::Key_Home);
        press(Qt::Key_Up);
        QCOMPARE(focusProblem(), QString());
        QCOMPARE(items("season").size(), 3);
    }

    void aPageIsWhatFitsIntoTheList()
    {
        start();
        QCOMPARE(series()->rowsPerPage(), 2);
    }

    void theChosenEpisodeIsWhollyWithinTheSafeArea_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QString>("language");
        for (const QString resolution : { "hd", "fullhd", "sd" }) {
            for (const QString language : { "en", "de", "ar" })
                QTest::addRow("%s %s", qPrintable(resolution), qPrintable(language))
                        << resolution << language;
        }
    }
    void theChosenEpisodeIsWhollyWithinTheSafeArea()
    {
        QFETCH(QString, resolution);
        QFETCH(QString, language);
        start(language, resolution);
        const qreal x = view()->width() / 20.0 - 10;
        const qreal y = view()->height() / 20.0;
        const QRectF safe = sceneRect(view()->rootObject()).adjusted(x, y, -x, -y);
        press(Qt::Key_Home);
        for (int i = 0; i < 8; ++i) {
            QCOMPARE(plateProblem(safe), QString());
            QVERIFY(sceneRect(item("episodes")).adjusted(-1, -1, 1, 1).contains(sceneRect(item("focusPlate"))));
            press(Qt::Key_Down);
        }
        for (const QQuickItem *episode : items("episode"))
            QVERIFY(safe.left() <= sceneRect(episode).left() && sceneRect(episode).right() <= safe.right());
    }

    void inArabicTheNextSeasonIsOnTheLeft()
    {
        start("ar");
        press(Qt::Key_Home);
        press(Qt::Key_Up);
        QVERIFY(sceneRect(items("season").at(1)).right() <= sceneRect(items("season").at(0)).left());
        press(Qt::Key_Left);
        QCOMPARE(series()->seasonRow(), 2);
        QCOMPARE(focusProblem(), QString());
    }

    // A cell is filled once: what has come out needs another one.
    void anEpisodeThatHasComeOutGetsAnotherCell()
    {
        start();
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        shell()->clock()->setFixed(guides::at(20, 5).addDays(8));
        settle();
        QCOMPARE(cell("4. S2E4"), "unViewedTile/50 min");
        QCOMPARE(series()->episode()->title, "S2E4");
        QCOMPARE(focusProblem(), QString());
    }

    void aSeriesWithoutEpisodesSaysSoAndKeepsTheFocus()
    {
        start();
        shell()->setCatalogue({});
        settle();
        QVERIFY(texts().contains("There are no episodes yet"));
        QCOMPARE(focusProblem(), QString());
    }

    void returnTellsWhatComesOfIt()
    {
        start();
        press(Qt::Key_Return);
        QVERIFY(texts().contains(u"Opening “S2E2”…"));
        series()->finishOpening();
        QVERIFY(texts().contains("There is no film to play in this gallery."));
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
        keys.removeOne(Qt::Key_Back);
        QRandomGenerator random(20260304);
        for (int step = 0; step < 1500; ++step) {
            const int what = random.bounded(100);
            if (what < 1)
                shell()->setCatalogue(random.bounded(3) == 0 ? gallery::Catalogue() : catalogues::seasons());
            else if (what < 3)
                series()->show(random.bounded(16), random.bounded(16));
            else if (what < 5)
                shell()->clock()->setFixed(guides::at(20, 5).addDays(random.bounded(20)));
            else
                ScreenTest::press(keys.at(random.bounded(int(keys.size()))));
            QString problem = focusProblem();
            if (!problem.isEmpty()) {
                settle();
                problem = focusProblem();
            }
            QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(problem)));
        }
    }
};

STB_TEST_MAIN(tst_SeriesScreen)
#include "tst_seriesscreen.moc"
