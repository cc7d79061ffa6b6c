// SPDX-License-Identifier: MIT
#include "searchfixture.h"
#include "testkit/testcase.h"

#include <QtTest/qsignalspy.h>

using gallery::SearchController;

/*! What is typed and what is found for it. The test runs in UTC. */
class tst_SearchController : public stbtest::TestCase
{
    Q_OBJECT

    static gallery::Guide longGuide()
    {
        gallery::GuideBuilder builder;
        for (int i = 0; i < 250'000; ++i) {
            gallery::NewProgramme programme;
            programme.channelId = "c" + QString::number(i % 250);
            programme.start = guides::at(0, 0).toSecsSinceEpoch() + qint64(i / 250) * 1800;
            programme.stop = programme.start + 1800;
            programme.title = "Programme " + QString::number(i / 3);
            builder.addProgramme(programme);
        }
        return builder.take();
    }

    std::unique_ptr<SearchFixture> m;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m = std::make_unique<SearchFixture>();
    }
    void cleanup() { m.reset(); }

    void nothingTypedFindsNothingAndSaysWhatToDo()
    {
        QCOMPARE(m->titles(), QStringList());
        QCOMPARE(m->search.message(), "Type the name of a programme, a film or a series");
        m->search.setText("  ");
        QCOMPARE(m->search.message(), "Type the name of a programme, a film or a series");
        QCOMPARE(m->search.resultRow(), -1);
    }

    void nothingFoundSaysSo()
    {
        m->search.setText(" xyz ");
        QCOMPARE(m->titles(), QStringList());
        QCOMPARE(m->search.message(), "Nothing found for “xyz”");
    }

    void resultsFollowEveryLetter()
    {
        m->search.setText("o");
        QCOMPARE(m->titles(), QStringList { "Only" });
        QCOMPARE(m->search.message(), QString());
        m->search.setText("on");
        QCOMPARE(m->titles(), QStringList { "Only" });
        m->search.setText("onx");
        QCOMPARE(m->titles(), QStringList());
        m->search.setText("s");
        QCOMPARE(m->titles(), (QStringList { "S0", "S1" }));
    }

    void filmsAndSeriesAreFoundByTitleAndEpisodesAreNot()
    {
        m->search.setText("f1");
        QCOMPARE(m->titles(), QStringList { "F1" });
        m->search.setText("e1");
        QCOMPARE(m->titles(), QStringList());
        m->search.setText("drama");
        QCOMPARE(m->titles(), QStringList());
    }

    void whatIsOnAndComesThenFilmsThenWhatIsOver()
    {
        gallery::GuideBuilder builder;
        guides::addChannel(builder, "x",
                           { { "Sea over", guides::at(9, 0), guides::at(10, 0) },
                             { "Sea to come", guides::at(22, 0), guides::at(23, 0) } });
        guides::addChannel(builder, "y",
                           { { "Sea now", guides::at(20, 0), guides::at(21, 0) },
                             { "Overseas", guides::at(21, 0), guides::at(22, 0) } });
        m->search.setGuide(builder.take());
        m->search.setCatalogue(
                gallery::Catalogue({ catalogues::film("Undersea"), catalogues::film("The sea") }));
        m->search.setText("SEA");
        QCOMPARE(m->titles(),
                 (QStringList { "Sea now", "Sea to come", "The sea", "Sea over", "Overseas", "Undersea" }));
    }

    void filmsAreBounded()
    {
        m->search.setCatalogue(gallery::Catalogue(catalogues::films(300)));
        m->search.setGuide({});
        m->search.setText("f");
        QCOMPARE(m->titles().size(), SearchController::videoLimit);
        QCOMPARE(m->titles().constLast(), "F19");
    }

    void aTileTellsTheDayOfAProgrammeThatIsNotToday()
    {
        gallery::GuideBuilder builder;
        const QDateTime tomorrow = guides::at(9, 0).addDays(1);
        const QDateTime later = guides::at(9, 30).addDays(4);
        guides::addChannel(builder, "x",
                           { { "Sea A", guides::at(22, 0), guides::at(23, 0) },
                             { "Sea B", tomorrow, tomorrow.addSecs(600) },
                             { "Sea C", later, later.addSecs(600) },
                             { "Sea D", guides::at(9, 0).addDays(-1), guides::at(9, 5).addDays(-1) } });
        m->search.setGuide(builder.take());
        m->search.setText("sea");
        QStringList lines;
        const int role = m->search.results()->roleNames().key("subtitle");
        for (int row = 0; row < 4; ++row)
            lines.append(m->search.results()->index(row, 0).data(role).toString());
        QCOMPARE(lines, (QStringList { "22:00 – 23:00", "Tomorrow, 09:00", "Sun, 8 Mar, 09:30",
                                       "Yesterday, 09:00" }));
    }

    void aProgrammeThatBeganYesterdayAndIsStillOnTellsItsTimes()
    {
        gallery::GuideBuilder builder;
        guides::addChannel(builder, "x", { { "Night", guides::at(23, 0).addDays(-1), guides::at(22, 0) } });
        m->search.setGuide(builder.take());
        m->search.setText("night");
        const int role = m->search.results()->roleNames().key("subtitle");
        QCOMPARE(m->search.results()->index(0, 0).data(role).toString(), "23:00 – 22:00");
    }

    void programmesAndFilmsAreToldApart()
    {
        m->search.setCatalogue(gallery::Catalogue({ catalogues::film("Only you") }));
        m->search.setText("only");
        const int role = m->search.results()->roleNames().key("programme");
        QCOMPARE(m->titles(), (QStringList { "Only", "Only you" }));
        QCOMPARE(m->search.results()->index(0, 0).data(role).toBool(), true);
        QCOMPARE(m->search.results()->index(1, 0).data(role).toBool(), false);
    }

    void theTimeGoesOnInTheResults()
    {
        m->search.setText("a4");
        const int role = m->search.results()->roleNames().key("progress");
        QCOMPARE(m->titles().constFirst(), "A40");
        QCOMPARE(m->search.results()->index(0, 0).data(role).toDouble(), 5.0 / 30);
        m->clock.setFixed(guides::at(20, 31));
        QCOMPARE(m->titles().constFirst(), "A41");
    }

    void theChosenResultStaysWhenOthersComeAndGo()
    {
        m->search.setText("a4");
        m->press({ Qt::Key_Right, Qt::Key_Right });
        const QString before = m->chosen();
        QCOMPARE(m->search.resultRow(), 1);
        m->clock.setFixed(guides::at(20, 31)); // what is on now is another one
        QCOMPARE(m->chosen(), before);
        QCOMPARE(m->search.resultRow(), 0);
        QVERIFY(m->search.isInResults());
        m->search.setGuide({});
        m->search.setCatalogue({});
        QVERIFY(!m->search.isInResults());
        QCOMPARE(m->search.resultRow(), -1);
    }

    void otherWordsBeginAtTheFirstResult()
    {
        m->findFilms();
        m->press({ Qt::Key_Right, Qt::Key_End });
        QCOMPARE(m->search.resultRow(), 8);
        QCOMPARE(m->search.firstLine(), 1);
        m->search.setText("F");
        QCOMPARE(m->search.resultRow(), 0);
        QCOMPARE(m->search.firstLine(), 0);
    }

    void aStartForgetsWhatWasTyped()
    {
        m->findFilms();
        m->press({ Qt::Key_Right });
        m->search.setProperty("keyboardKey", 7);
        m->search.setProperty("keyboardSymbols", true);
        m->search.setKeyboardLanguage("ru");
        m->search.start();
        QCOMPARE(m->search.text(), QString());
        QCOMPARE(m->search.cursor(), 0);
        QVERIFY(!m->search.isInResults());
        QCOMPARE(m->titles(), QStringList());
        QCOMPARE(m->search.property("keyboardKey").toInt(), -1);
        QCOMPARE(m->search.property("keyboardSymbols").toBool(), false);
        QCOMPARE(m->search.keyboardLanguage(), QString());
    }

    void theKeyboardsLanguageIsForgottenWithTheProgramsOwn()
    {
        m->search.setKeyboardLanguage("ru");
        QCOMPARE(m->search.keyboardLanguage(), "ru");
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::Arabic));
        QCOMPARE(m->search.keyboardLanguage(), QString());
        QLocale::setDefault(before);
    }

    void aLongGuideIsLookedThroughBetweenKeys()
    {
        m->search.setGuide(longGuide());
        m->search.setCatalogue({});
        m->search.setText("programme 8333");
        QVERIFY(m->search.isSearching());
        QCOMPARE(m->search.message(), "Searching…");
        // Keys are taken meanwhile, and only what was typed last is found.
        m->search.setText("programme 833");
        QVERIFY(m->search.press(Qt::Key_3));
        QTRY_VERIFY(!m->search.isSearching());
        QCOMPARE(m->search.text(), "3programme 833");
        QCOMPARE(m->titles(), QStringList());
        m->search.setText("programme 83332");
        QTRY_VERIFY(!m->search.isSearching());
        QCOMPARE(m->titles(), (QStringList { "Programme 83332", "Programme 83332", "Programme 83332" }));
    }

    void anotherGuideMeanwhileIsLookedThroughInstead()
    {
        m->search.setGuide(longGuide());
        m->search.setText("only");
        QVERIFY(m->search.isSearching());
        m->search.setGuide(guides::five());
        QVERIFY(!m->search.isSearching());
        QCOMPARE(m->titles(), QStringList { "Only" });
    }
};

STB_TEST_MAIN(tst_SearchController)
#include "tst_searchcontroller.moc"
