// SPDX-License-Identifier: MIT
#include "catalogues.h"
#include "channels.h"
#include "screentest.h"

#include <algorithm>

/*! What the guide, its details and other screens say that keys do. */
class tst_GuideHints : public ScreenTest
{
    Q_OBJECT

    gallery::GuideController *guide() const { return shell()->guide(); }

    void start(const QString &screen = QStringLiteral("guide"), const QString &resolution = {})
    {
        gallery::Options options;
        options.screen = screen;
        options.resolution = resolution;
        ScreenTest::start(options);
    }

    /*! One channel with one programme that has \a words of description. */
    static gallery::Guide described(int words)
    {
        gallery::GuideBuilder builder;
        builder.addChannel({ "a", "Channel a", {}, {} });
        gallery::NewProgramme programme;
        programme.channelId = "a";
        programme.title = "Long";
        programme.start = guides::at(20, 0).toSecsSinceEpoch();
        programme.stop = guides::at(21, 0).toSecsSinceEpoch();
        for (int i = 0; i < words; ++i)
            programme.description += QStringLiteral("word%1 ").arg(i);
        builder.addProgramme(programme);
        return builder.take();
    }

private Q_SLOTS:
    void cleanup() { end(); }

    void whatBackDoesIsSaid()
    {
        start();
        QVERIFY(texts().contains("Leave"));
        QVERIFY(!texts().contains("On now"));
        press(Qt::Key_Down);
        QVERIFY(texts().contains("On now"));
        QVERIFY(!texts().contains("Leave"));
        press(Qt::Key_Info);
        QVERIFY(texts().contains("Close"));
        QVERIFY(!texts().contains("On now"));
    }

    void theDetailsNameChannelAndDay()
    {
        start();
        press(Qt::Key_Return);
        QVERIFY(texts().contains("Wednesday, 4 March · 20:00 – 20:30"));
        press(Qt::Key_Right);
        QCOMPARE(texts().count("Channel b"), 2); // in the list as well
    }

    void theDetailsSayWhatOkDoes()
    {
        start();
        press(Qt::Key_Return);
        QVERIFY(texts().contains("Watch"));
        press(Qt::Key_Up);
        QVERIFY(texts().contains("From the start"));
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        QVERIFY(!texts().contains("Watch"));
        QVERIFY(!texts().contains("From the start"));
    }

    void aLongDescriptionCanBeReadToItsEnd_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::newRow("hd") << "hd";
        QTest::newRow("fullhd") << "fullhd";
        QTest::newRow("sd") << "sd";
    }
    void aLongDescriptionCanBeReadToItsEnd()
    {
        QFETCH(QString, resolution);
        start("guide", resolution);
        guide()->setGuide(described(300));
        press(Qt::Key_Return);
        const QQuickItem *text = item("description");
        QVERIFY(text);
        const QRectF place = sceneRect(text->parentItem());
        QVERIFY(place.top() > 0 && place.bottom() < view()->height());
        QTRY_VERIFY(guide()->detailsPages() > 2);
        QVERIFY(texts().contains("Read on"));
        QCOMPARE(sceneRect(text).top(), place.top());
        for (int page = 1; page < guide()->detailsPages(); ++page) {
            const qreal before = sceneRect(text).top();
            press(Qt::Key_Down);
            QVERIFY(sceneRect(text).top() < before);
            // No line is left out.
            QVERIFY(before - sceneRect(text).top() <= place.height());
        }
        QCOMPARE(sceneRect(text).bottom(), place.bottom());
        press(Qt::Key_Down);
        QCOMPARE(guide()->detailsPage(), guide()->detailsPages() - 1);
    }

    void theDetailsAndTheirHintsLieApart_data() { aLongDescriptionCanBeReadToItsEnd_data(); }
    void theDetailsAndTheirHintsLieApart()
    {
        QFETCH(QString, resolution);
        start("guide", resolution);
        gallery::GuideBuilder builder;
        builder.addChannel({ "a", "Channel a", {}, {} });
        gallery::NewProgramme programme;
        programme.channelId = "a";
        programme.title = QStringLiteral("A long title ").repeated(20);
        programme.subTitle = QStringLiteral("A long subtitle ").repeated(20);
        programme.description = QStringLiteral("A long description ").repeated(100);
        programme.category = QStringLiteral("Category");
        programme.start = guides::at(20, 0).toSecsSinceEpoch();
        programme.stop = guides::at(21, 0).toSecsSinceEpoch();
        builder.addProgramme(programme);
        guide()->setGuide(builder.take());
        press(Qt::Key_Return);
        QTRY_VERIFY(guide()->detailsPages() > 1);
        const QRectF card = sceneRect(item("focusPlate"));
        QVERIFY2(card.top() >= 10, qPrintable(QString::number(card.top())));
        QVERIFY(item("detailsHints") != nullptr);
        QVERIFY(card.bottom() < sceneRect(item("detailsHints")).top());
    }

    void aShortDescriptionHasOnePage()
    {
        start();
        guide()->setGuide(described(5));
        press(Qt::Key_Return);
        QCOMPARE(guide()->detailsPages(), 1);
        QVERIFY(!texts().contains("Read on"));
    }

    void aLockedChannelIsSaidInTheGuideAndItsDetails()
    {
        start();
        guide()->setGuide(channels::guide({ { "k", "1", {}, {}, true } }));
        QCOMPARE(items("lock").size(), 1);
        press(Qt::Key_Play);
        QVERIFY(texts().contains("This channel is locked"));
        QVERIFY(!texts().contains("Details"));
        press(Qt::Key_Return);
        QVERIFY(!texts().contains("This channel is locked"));
        press(Qt::Key_Return);
        QVERIFY(texts().contains("This channel is locked"));
        QVERIFY(!texts().contains("Close"));
    }

    void onlyKeysThatDoSomethingHaveHints()
    {
        start();
        guide()->setGuide({});
        for (const char *hint : { "Channel", "Programme", "Day", "Details" })
            QVERIFY2(!texts().contains(QLatin1String(hint)), hint);
        guide()->setGuide(described(1));
        QVERIFY(!texts().contains("Channel"));
        QVERIFY(texts().contains("Programme"));
        press(Qt::Key_MediaNext);
        QCOMPARE(guide()->programmeRow(), -1);
        QVERIFY(!texts().contains("Programme"));
        QCOMPARE(texts().count("Day"), 2); // one hint, and the label in it
        press(Qt::Key_Up);
        QVERIFY(guide()->isInDays());
    }

    void behindTheDetailsTheListStaysWhereItIs()
    {
        start();
        QTRY_COMPARE(items("card").size(), 1);
        const QRectF before = sceneRect(item("card"));
        press(Qt::Key_Return);
        QVERIFY(guide()->isDetailsOpen());
        QCoreApplication::processEvents();
        QCOMPARE(items("card").size(), 1);
        QCOMPARE(sceneRect(item("card")), before);
        QCOMPARE(items("focusPlate").size(), 1);
    }

    void aFocusedDayWithoutProgrammesCanBeRead()
    {
        start();
        press(Qt::Key_Home);
        press(Qt::Key_Up);
        QVERIFY(guide()->isInDays());
        press(Qt::Key_Right);
        const QQuickItem *day = item("days")->property("currentItem").value<QQuickItem *>();
        QVERIFY(day != nullptr);
        const QList<QQuickItem *> children = day->childItems();
        const auto date = std::find_if(children.cbegin(), children.cend(), [](const QQuickItem *child) {
            return child->property("isActive").isValid();
        });
        QVERIFY(date != children.cend());
        QVERIFY((*date)->opacity() < 1);
        QVERIFY((*date)->opacity() >= 0.7);
    }

    void thePlayerSaysWhatArrowsAndBackDo()
    {
        start("player");
        shell()->openPlayer(0);
        for (const char *hint : { "Programme", "Channel", "Actions", "Hide" })
            QVERIFY2(texts().contains(QLatin1String(hint)), hint);
        press(Qt::Key_Return);
        for (const char *hint : { "Action", "Programmes", "Hide" })
            QVERIFY2(texts().contains(QLatin1String(hint)), hint);
    }

    void thePlayerOfTheOnlyChannelHasNoHintForOthers()
    {
        start("player");
        guide()->setGuide(described(1));
        shell()->openPlayer(0);
        QVERIFY(!shell()->player()->canZap());
        QVERIFY(!texts().contains("Channel"));
    }

    void theEpisodesHaveHints()
    {
        start("series");
        shell()->setCatalogue(catalogues::seasons());
        shell()->start("series");
        QCOMPARE(shell()->screen(), "series");
        for (const char *hint : { "Episode", "Watch", "Leave" })
            QVERIFY2(texts().contains(QLatin1String(hint)), hint);
        press(Qt::Key_Home);
        press(Qt::Key_Up);
        QVERIFY(shell()->series()->isInSeasons());
        for (const char *hint : { "Season", "Episodes", "Leave" })
            QVERIFY2(texts().contains(QLatin1String(hint)), hint);
    }
};

STB_TEST_MAIN(tst_GuideHints)
#include "tst_guidehints.moc"
