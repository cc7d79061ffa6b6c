// SPDX-License-Identifier: MIT
#include "screentest.h"

#include <QtCore/qtemporaryfile.h>
#include <QtGui/qimage.h>
#include <QtQml/qqmlengine.h>

/*! The guide screen in its window, steered with key events. */
class tst_GuideScreen : public ScreenTest
{
    Q_OBJECT

    void start(gallery::Options options = {})
    {
        options.screen = "guide";
        ScreenTest::start(options);
    }

    gallery::GuideController *guide() const { return shell()->guide(); }

    /*! Why the focus cannot be seen, or nothing when it can. */
    QString focusProblem() const
    {
        const QString list = guide()->isInDays() ? "days" : "programmes";
        return plateProblem(sceneRect(guide()->isDetailsOpen() ? view()->rootObject() : item(list)));
    }

private Q_SLOTS:
    void cleanup() { end(); }

    void startsWithTheFocusOnTheProgrammeThatIsOn()
    {
        start();
        QCOMPARE(guide()->title(), "A40");
        QCOMPARE(item("programmes")->property("currentIndex").toInt(), 40);
        QCOMPARE(focusProblem(), QString());
    }

    void aPageIsWhatFitsIntoTheList()
    {
        start();
        QVERIFY2(guide()->rowsPerPage() >= 4 && guide()->rowsPerPage() <= 8,
                 qPrintable(QString::number(guide()->rowsPerPage())));
    }

    /*! Where the row of the chosen programme is. */
    QRectF chosenRow() const
    {
        return sceneRect(item("programmes")->property("currentItem").value<QQuickItem *>());
    }

    void theProgrammeThatIsOnIsInTheMiddleHoweverTheGuideIsOpened()
    {
        start();
        const QRectF atOnce = chosenRow();
        shell()->start("home");
        for (const Qt::Key key : { Qt::Key_Up, Qt::Key_Right, Qt::Key_Return })
            press(key);
        QCOMPARE(shell()->screen(), "guide");
        QVERIFY(QTest::qWaitFor([this, &atOnce] { return chosenRow() == atOnce; }));
        const QRectF list = sceneRect(item("programmes"));
        QVERIFY(std::abs(atOnce.center().y() - list.center().y()) < 2);
    }

    void keysReachTheControllerOnce()
    {
        start();
        press(Qt::Key_Down);
        QCOMPARE(guide()->title(), "A41");
        press(Qt::Key_Right);
        QCOMPARE(guide()->title(), "B26");
        press(Qt::Key_Home);
        QCOMPARE(guide()->programmeRow(), 0);
        QCOMPARE(focusProblem(), QString());
        press(Qt::Key_End);
        QCOMPARE(focusProblem(), QString());
    }

    void theChosenRowIsShownAfterAChangeOfChannel()
    {
        start();
        for (const Qt::Key key : { Qt::Key_End, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right }) {
            press(key);
            QCOMPARE(item("programmes")->property("currentIndex").toInt(), guide()->programmeRow());
            QCOMPARE(item("channels")->property("currentIndex").toInt(), guide()->channelRow());
            QCOMPARE(focusProblem(), QString());
        }
    }

    void aChannelWithoutProgrammesSaysSoAndKeepsTheFocus()
    {
        start();
        press(Qt::Key_Right);
        press(Qt::Key_Right);
        QVERIFY(texts().contains("No programmes on this day"));
        QCOMPARE(focusProblem(), QString());
    }

    void theChosenProgrammeAloneShowsItsCard()
    {
        start();
        for (const Qt::Key key : { Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Home, Qt::Key_End }) {
            press(key);
            QCOMPARE(items("card").size(), 1);
            QCOMPARE(item("card")->property("itemTitle").toString(), guide()->title());
            const QRectF row = chosenRow();
            QVERIFY(row.contains(sceneRect(item("card"))));
            QVERIFY(sceneRect(item("programmes")).adjusted(-1, -1, 1, 1).contains(row));
        }
    }

    void theCardTellsWhatCanBeDoneWithTheProgramme()
    {
        start();
        const auto card = [this](const char *property) { return item("card")->property(property); };
        QCOMPARE(card("tvProgramPlayable").toBool(), true);
        QCOMPARE(card("tvProgramIsLive").toBool(), true);
        QCOMPARE(card("tvProgramProgress").toDouble(), 5.0 / 30);
        QVERIFY(card("imageSource").toUrl().isValid());
        press(Qt::Key_Up);
        QCOMPARE(card("tvProgramPlayable").toBool(), true);
        QCOMPARE(card("tvProgramIsPast").toBool(), true);
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        QCOMPARE(card("tvProgramPlayable").toBool(), false);
        QCOMPARE(card("tvProgramIsFuture").toBool(), true);
        QCOMPARE(card("tvProgramHasReminder").toBool(), false);
        press(Qt::Key_Return);
        QCOMPARE(card("tvProgramHasReminder").toBool(), true);
        press(Qt::Key_Return);
        QCOMPARE(card("tvProgramHasReminder").toBool(), false);
    }

    void aReminderIsMarkedInTheRow()
    {
        start();
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        QCOMPARE(items("reminderMark").size(), 0); // the card tells it
        press(Qt::Key_Down);
        QCOMPARE(items("reminderMark").size(), 1);
        press(Qt::Key_Up);
        press(Qt::Key_Return);
        press(Qt::Key_Down);
        QCOMPARE(items("reminderMark").size(), 0);
    }

    void theDaysAreShownAndTheChosenOneIsInTheMiddle_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<int>("width");
        QTest::newRow("hd") << "hd" << 92;
        QTest::newRow("fullhd") << "fullhd" << 138;
        QTest::newRow("sd") << "sd" << 72;
    }
    void theDaysAreShownAndTheChosenOneIsInTheMiddle()
    {
        QFETCH(QString, resolution);
        QFETCH(int, width);
        gallery::Options options;
        options.resolution = resolution;
        start(options);
        const QQuickItem *days = item("days");
        const QRectF row = sceneRect(days);
        const QRectF today = sceneRect(days->property("currentItem").value<QQuickItem *>());
        QCOMPARE(days->property("count").toInt(), 15);
        QVERIFY(std::abs(today.center().x() - row.center().x()) < 1);
        QVERIFY2(today.width() >= width, qPrintable(QString::number(today.width())));
        const QList<QQuickItem *> cells = items("day");
        QVERIFY(cells.size() >= 7);
        for (const QQuickItem *cell : cells) {
            const QRectF place = sceneRect(cell);
            const QRectF seen = place & row; // whole, or not at all
            QVERIFY(seen.width() < 1 || seen.width() > place.width() - 1);
        }
    }

    void theDaysTakeTheFocusAndGiveItBack()
    {
        start();
        press(Qt::Key_Home);
        press(Qt::Key_Up);
        QVERIFY(guide()->isInDays());
        QCOMPARE(focusProblem(), QString());
        QCOMPARE(items("card").size(), 0);
        press(Qt::Key_Right);
        QVERIFY(texts().contains("No programmes on this day"));
        QCOMPARE(item("days")->property("currentIndex").toInt(), 8);
        QCOMPARE(focusProblem(), QString());
        press(Qt::Key_Left);
        press(Qt::Key_Down);
        QVERIFY(!guide()->isInDays());
        QCOMPARE(focusProblem(), QString());
        QCOMPARE(items("card").size(), 1);
    }

    void aRefreshLeavesTheChosenRowWhereItWas_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("title");
        QTest::addColumn<int>("row");
        QTest::newRow("first") << int(Qt::Key_Home) << "A0" << 0;
        QTest::newRow("second") << int(Qt::Key_Down) << "A1" << 1;
        QTest::newRow("middle") << 0 << "A40" << 33;
        QTest::newRow("last") << int(Qt::Key_End) << "A47" << 40;
    }
    void aRefreshLeavesTheChosenRowWhereItWas()
    {
        QFETCH(int, key);
        start();
        if (key == Qt::Key_Down)
            press(Qt::Key_Home);
        if (key != 0)
            press(Qt::Key(key));
        QTest::qWait(0);
        const QRectF before = chosenRow();
        gallery::GuideBuilder builder;
        guides::addChannel(builder, QStringLiteral("first"), guides::wholeDay(QStringLiteral("F"), 20));
        QList<guides::Show> shows = guides::wholeDay(QStringLiteral("A"), 30);
        shows.remove(3, 7);
        guides::addChannel(builder, QStringLiteral("a"), shows);
        guide()->setGuide(builder.take());
        QTEST(guide()->title(), "title");
        QTEST(guide()->programmeRow(), "row");
        QCOMPARE(chosenRow(), before);
        QCOMPARE(focusProblem(), QString());
    }

    void anEmptyGuideSaysSoAndKeepsTheFocus()
    {
        start();
        guide()->setGuide({});
        QVERIFY(texts().contains("There are no channels in this guide"));
        QCOMPARE(focusProblem(), QString());
    }

    void theDetailsTakeTheFocusAndGiveItBack()
    {
        start();
        press(Qt::Key_Return);
        QVERIFY(guide()->isDetailsOpen());
        QCOMPARE(focusProblem(), QString());
        press(Qt::Key_Back);
        QVERIFY(!guide()->isDetailsOpen());
        QCOMPARE(focusProblem(), QString());
    }

    void anotherLanguageIsShownAtOnce()
    {
        start();
        QVERIFY(texts().contains("TV guide"));
        QVERIFY(gallery::installLanguage(QStringLiteral("de")));
        view()->engine()->retranslate();
        QVERIFY(texts().contains("TV-Programm"));
        QVERIFY(!texts().contains("TV guide"));
    }

    void inArabicTheChannelsAreOnTheRight()
    {
        start();
        QVERIFY(sceneRect(item("channels")).right() < sceneRect(item("programmes")).left());
        gallery::Options arabic;
        arabic.language = "ar";
        start(arabic);
        QVERIFY(sceneRect(item("channels")).left() > sceneRect(item("programmes")).right());
        press(Qt::Key_Left);
        QCOMPARE(guide()->channelName(), "Channel b");
        QCOMPARE(focusProblem(), QString());
    }

    void aMalformedGuideShowsWhatThereIsAndWhereItEnds()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write("<tv>\n<channel id=\"c\"><display-name>Kept</display-name></channel>\n"
                   "<programme start=\"20260304200000 +0000\" stop=\"20260304210000 +0000\" channel=\"c\">"
                   "<title>Also kept</title></programme>\n"
                   "<programme start=\"20260304210000 +0000\" <broken>\n");
        file.close();
        gallery::Options options;
        options.guideFile = file.fileName();
        options.screen = "guide";
        options.now = guides::at(20, 5);
        options.language = "en";
        m_application = std::make_unique<gallery::Application>(options);
        QVERIFY2(m_application->start(), qPrintable(m_application->error()));
        QVERIFY(texts().contains("Reading the guide…"));
        QTRY_COMPARE(guide()->title(), "Also kept");
        QVERIFY(!texts().contains("Reading the guide…"));
        QVERIFY2(guide()->message().startsWith("The guide is not complete: "), qPrintable(guide()->message()));
        QVERIFY2(guide()->message().contains("line 4"), qPrintable(guide()->message()));
        QVERIFY2(guide()->message().contains("column"), qPrintable(guide()->message()));
        QVERIFY(texts().contains(guide()->message()));
        QVERIFY(texts().contains("Leave")); // the hints stay
        QTRY_VERIFY(view()->isExposed());
    }

    void theControlsIconsAreThere_data()
    {
        QTest::addColumn<int>("size");
        QTest::newRow("live_status_on") << 16;
        QTest::newRow("lock_icon_white") << 24;
        QTest::newRow("favorite_small") << 24;
        QTest::newRow("reminder_small") << 20;
        QTest::newRow("single_epg/epg_preview_play") << 48;
        QTest::newRow("player/status/play") << 24;
        QTest::newRow("player/playing_content") << 20;
    }
    void theControlsIconsAreThere()
    {
        QFETCH(int, size);
        const QImage icon(
                QStringLiteral(":/resources/icons/%1.png").arg(QLatin1String(QTest::currentDataTag())));
        QCOMPARE(icon.size(), QSize(size, size));
        QVERIFY(icon.hasAlphaChannel());
    }
};

STB_TEST_MAIN(tst_GuideScreen)
#include "tst_guidescreen.moc"
