// SPDX-License-Identifier: MIT
#include "catalogues.h"
#include "guides.h"
#include "testkit/testcase.h"

#include "gallery/data/clock.h"
#include "screens/seriescontroller.h"

#include <QtCore/qrandom.h>
#include <QtTest/qabstractitemmodeltester.h>
#include <QtTest/qsignalspy.h>

using gallery::EpisodeModel;
using gallery::SeriesController;

/*! What remote keys, time and another catalogue do on the page of a series' episodes. */
class tst_SeriesController : public stbtest::TestCase
{
    Q_OBJECT

    static constexpr int many = 1; // indexes in the catalogue
    static constexpr int few = 12;
    static constexpr int none = 15;

    struct Fixture
    {
        gallery::Clock clock;
        SeriesController series { &clock };
        QAbstractItemModelTester tester { series.episodes() };

        Fixture()
        {
            clock.setFixed(guides::at(20, 5));
            series.setCatalogue(catalogues::seasons());
        }
        void press(std::initializer_list<Qt::Key> keys)
        {
            for (const Qt::Key key : keys)
                QVERIFY(series.press(key));
        }
        QString chosen() const { return series.episode() == nullptr ? QString() : series.episode()->title; }
    };

    static QString focusProblem(SeriesController &series)
    {
        const int count = series.episodes()->rowCount();
        if (series.episodeRow() < (count > 0 ? 0 : -1) || series.episodeRow() >= count)
            return QStringLiteral("episode %1 of %2").arg(series.episodeRow()).arg(count);
        const int seasons = int(series.seasons().size());
        if (series.isInSeasons() && (series.seasonRow() < 0 || series.seasonRow() >= seasons))
            return QStringLiteral("season %1 of %2").arg(series.seasonRow()).arg(seasons);
        if (count == 0 && series.isInSeasons())
            return QStringLiteral("a season without episodes");
        return {};
    }

    static gallery::Catalogue randomCatalogue(QRandomGenerator &random)
    {
        QList<gallery::CatalogueEntry> entries = catalogues::films(random.bounded(3));
        for (int i = random.bounded(3); i > 0; --i) {
            gallery::CatalogueEntry whole = catalogues::film(i == 1 ? "Many" : "Few");
            whole.kind = gallery::CatalogueEntry::Kind::Series;
            entries.append(whole);
            const int index = int(entries.size()) - 1;
            for (int episode = random.bounded(9); episode > 0; --episode) {
                entries.append(catalogues::episode(index, random.bounded(4), random.bounded(5),
                                                   random.bounded(4) * 1000.0));
                if (random.bounded(4) == 0)
                    entries.last().release = guides::day.addDays(random.bounded(-2, 3));
            }
        }
        return gallery::Catalogue(entries);
    }

    std::unique_ptr<Fixture> m;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m = std::make_unique<Fixture>();
    }
    void cleanup() { m.reset(); }

    void theFirstEpisodeThatIsNotViewedIsChosen()
    {
        QVERIFY(m->series.show(many));
        QCOMPARE(m->series.title(), "Many");
        QCOMPARE(m->series.seasonRow(), 1);
        QCOMPARE(m->chosen(), "S2E2");
        QVERIFY(!m->series.isInSeasons());
    }

    void ofASeriesThatIsViewedTheFirstEpisodeIsChosen()
    {
        QList<gallery::CatalogueEntry> entries { catalogues::seasons().entry(many) };
        entries << catalogues::episode(0, 1, 1, 3000) << catalogues::episode(0, 1, 2, 3000);
        m->series.setCatalogue(gallery::Catalogue(entries));
        QVERIFY(m->series.show(0));
        QCOMPARE(m->chosen(), "S1E1");
    }

    void anEpisodeToComeIsNotTheOneToGoOnWith()
    {
        QList<gallery::CatalogueEntry> entries { catalogues::seasons().entry(many) };
        entries << catalogues::episode(0, 1, 1) << catalogues::episode(0, 1, 2);
        entries[1].release = guides::day.addDays(1);
        m->series.setCatalogue(gallery::Catalogue(entries));
        QVERIFY(m->series.show(0));
        QCOMPARE(m->chosen(), "S1E2");
    }

    void anEpisodeThatIsAskedForIsChosen()
    {
        QVERIFY(m->series.show(many, 3));
        QCOMPARE(m->chosen(), "S1E2");
        QCOMPARE(m->series.seasonRow(), 0);
        QVERIFY(m->series.show(many, few + 1));
        QCOMPARE(m->chosen(), "S2E2");
    }

    void whatIsNoSeriesIsNotShown()
    {
        QVERIFY(m->series.show(few));
        for (const int index : { -1, 0, 2, 16, 100 })
            QVERIFY(!m->series.show(index));
        QCOMPARE(m->series.title(), "Few");
        QCOMPARE(m->chosen(), "S1E1");
    }

    void theFirstSeriesOfTheCatalogueIsFound()
    {
        QVERIFY(m->series.showFirst());
        QCOMPARE(m->series.title(), "Many");
        m->series.setCatalogue(gallery::Catalogue(catalogues::films(2)));
        QVERIFY(!m->series.showFirst());
    }

    void aSeriesWithoutEpisodesKeepsTheKeys()
    {
        QVERIFY(m->series.show(none));
        QCOMPARE(m->series.episodeRow(), -1);
        QCOMPARE(m->series.facts(), QString());
        m->press({ Qt::Key_Up, Qt::Key_Down, Qt::Key_Return, Qt::Key_End });
        QCOMPARE(m->series.message(), QString());
        QVERIFY(!m->series.isInSeasons());
    }

    void theFactsAreThoseOfTheChosenEpisode()
    {
        m->series.show(many);
        QCOMPARE(m->series.facts(), u"Season 2, episode 2 · 50 min · 12+");
        m->press({ Qt::Key_Down });
        QCOMPARE(m->series.facts(), u"Season 2, episode 3 · 50 min · 12+");
    }

    void upAndDownChooseEpisodesAndStopAtTheEnds()
    {
        m->series.show(many);
        m->press({ Qt::Key_Down });
        QCOMPARE(m->chosen(), "S2E3");
        m->press({ Qt::Key_End, Qt::Key_Down });
        QCOMPARE(m->chosen(), "S2E7");
        m->press({ Qt::Key_Home });
        QCOMPARE(m->chosen(), "S2E1");
        m->series.setRowsPerPage(3);
        m->press({ Qt::Key_PageDown });
        QCOMPARE(m->chosen(), "S2E4");
        m->press({ Qt::Key_PageUp, Qt::Key_PageUp });
        QCOMPARE(m->chosen(), "S2E1");
        m->press({ Qt::Key_Left, Qt::Key_Right });
        QCOMPARE(m->chosen(), "S2E1");
    }

    void theSeasonsAreAboveTheFirstEpisode()
    {
        m->series.show(many);
        QCOMPARE(m->series.seasons(), (QStringList { "Season 1", "Season 2", "Season 3" }));
        m->press({ Qt::Key_Up, Qt::Key_Up });
        QVERIFY(m->series.isInSeasons());
        m->press({ Qt::Key_Right });
        QCOMPARE(m->chosen(), "S3E1");
        m->press({ Qt::Key_Right, Qt::Key_Home });
        QCOMPARE(m->series.seasonRow(), 0);
        QCOMPARE(m->series.episodes()->rowCount(), 2);
        m->press({ Qt::Key_End, Qt::Key_Left });
        QCOMPARE(m->series.seasonRow(), 1);
        m->press({ Qt::Key_Down });
        QVERIFY(!m->series.isInSeasons());
        QCOMPARE(m->chosen(), "S2E1");
        m->press({ Qt::Key_Up, Qt::Key_Return });
        QVERIFY(!m->series.isInSeasons());
    }

    void onAMirroredScreenTheNextSeasonIsOnTheLeft()
    {
        m->series.setMirrored(true);
        m->series.show(many);
        m->press({ Qt::Key_Home, Qt::Key_Up, Qt::Key_Left });
        QCOMPARE(m->series.seasonRow(), 2);
        m->press({ Qt::Key_Right });
        QCOMPARE(m->series.seasonRow(), 1);
    }

    void oneSeasonIsNotToBeChosen()
    {
        m->series.show(few);
        QCOMPARE(m->series.seasons(), QStringList());
        m->press({ Qt::Key_Up });
        QVERIFY(!m->series.isInSeasons());
        QCOMPARE(m->chosen(), "S1E1");
    }

    void episodesWithoutASeasonHaveOneOfTheirOwn()
    {
        QList<gallery::CatalogueEntry> entries { catalogues::seasons().entry(many) };
        entries << catalogues::episode(0, 1, 1) << catalogues::episode(0, 0, 0);
        m->series.setCatalogue(gallery::Catalogue(entries));
        m->series.show(0);
        QCOMPARE(m->series.seasons(), (QStringList { "Specials", "Season 1" }));
    }

    void returnOpensTheEpisodeUntilItIsDone()
    {
        m->series.show(many);
        m->press({ Qt::Key_Return });
        QVERIFY(m->series.isOpening());
        QCOMPARE(m->series.message(), u"Opening “S2E2”…");
        m->series.finishOpening();
        QVERIFY(!m->series.isOpening());
        QCOMPARE(m->series.message(), "There is no film to play in this gallery.");
        m->press({ Qt::Key_Down });
        QCOMPARE(m->series.message(), QString());
        m->series.finishOpening();
        QCOMPARE(m->series.message(), QString());
    }

    void backStopsTheOpeningThenGoesBack()
    {
        m->series.show(many);
        QSignalSpy back(&m->series, &SeriesController::backRequested);
        m->press({ Qt::Key_Return, Qt::Key_Back });
        QVERIFY(!m->series.isOpening());
        QCOMPARE(back.count(), 0);
        m->press({ Qt::Key_Back });
        QCOMPARE(back.count(), 1);
    }

    void anEpisodeToComeTellsItsDay()
    {
        m->series.show(many);
        m->press({ Qt::Key_Down, Qt::Key_Down, Qt::Key_Return });
        QVERIFY(!m->series.isOpening());
        QCOMPARE(m->series.message(), "This episode comes out on 12 March 2026");
        m->clock.setFixed(QDateTime(QDate(2026, 3, 12), QTime(0, 0), QTimeZone::utc()));
        QCOMPARE(m->chosen(), "S2E4");
        m->press({ Qt::Key_Return });
        QVERIFY(m->series.isOpening());
    }

    void anotherCatalogueKeepsSeriesSeasonAndEpisode()
    {
        m->series.show(many);
        m->press({ Qt::Key_Down });
        QList<gallery::CatalogueEntry> entries = catalogues::films(3);
        entries << catalogues::seasons().entry(few) << catalogues::seasons().entry(many);
        entries << catalogues::episode(4, 2, 3, 1500) << catalogues::episode(4, 2, 1)
                << catalogues::episode(4, 3, 3);
        m->series.setCatalogue(gallery::Catalogue(entries));
        QCOMPARE(m->series.title(), "Many");
        QCOMPARE(m->chosen(), "S2E3");
        QCOMPARE(m->series.seasonRow(), 0);
        QCOMPARE(m->series.episode()->position, 1500.0);
    }

    void anEpisodeWithoutANumberIsKnownByItsTitle()
    {
        QList<gallery::CatalogueEntry> entries { catalogues::seasons().entry(many) };
        entries << catalogues::episode(0, 1, 0) << catalogues::episode(0, 1, 0);
        entries[1].title = "P";
        entries[2].title = "Q";
        m->series.setCatalogue(gallery::Catalogue(entries));
        m->series.show(0);
        m->press({ Qt::Key_Down });
        std::swap(entries[1], entries[2]);
        m->series.setCatalogue(gallery::Catalogue(entries));
        QCOMPARE(m->chosen(), "Q");
        QCOMPARE(m->series.episodeRow(), 0);
    }

    void anEpisodeThatIsGoneHandsOverToItsNeighbour()
    {
        m->series.show(many);
        m->press({ Qt::Key_End });
        QList<gallery::CatalogueEntry> entries { catalogues::seasons().entry(many) };
        entries << catalogues::episode(0, 2, 1) << catalogues::episode(0, 2, 2);
        m->series.setCatalogue(gallery::Catalogue(entries));
        QCOMPARE(m->chosen(), "S2E2");
    }

    void aSeriesThatIsGoneLeavesThePageEmpty()
    {
        m->series.show(many);
        m->press({ Qt::Key_Home, Qt::Key_Up });
        m->series.setCatalogue(gallery::Catalogue(catalogues::films(20)));
        QCOMPARE(m->series.title(), "Many");
        QCOMPARE(m->series.episodeRow(), -1);
        QVERIFY(!m->series.isInSeasons());
        m->press({ Qt::Key_Return, Qt::Key_Down });
        m->series.setCatalogue(catalogues::seasons());
        QVERIFY(m->series.episodeRow() >= 0);
    }

    void otherKeysAreNotTaken()
    {
        m->series.show(many);
        QVERIFY(!m->series.press(Qt::Key_A));
        m->press({ Qt::Key_Home, Qt::Key_Up });
        QVERIFY(!m->series.press(Qt::Key_A));
        QVERIFY(m->series.isInSeasons());
    }

    void theFocusIsNeverLost()
    {
        const QList<int> keys { Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Up,   Qt::Key_Left,
                                Qt::Key_Right,  Qt::Key_Home,     Qt::Key_End,  Qt::Key_Return,
                                Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Back, Qt::Key_A };
        QRandomGenerator random(20260304);
        m->series.show(many);
        m->series.setRowsPerPage(2);
        int inSeasons = 0;
        int withoutEpisodes = 0;
        for (int step = 0; step < 10000; ++step) {
            const int what = random.bounded(100);
            if (what < 4)
                m->series.setCatalogue(randomCatalogue(random));
            else if (what < 8)
                m->clock.setFixed(guides::at(random.bounded(24), 0).addDays(random.bounded(-3, 4)));
            else if (what < 10)
                m->series.show(random.bounded(20), random.bounded(-1, 20));
            else if (what < 12)
                m->series.finishOpening();
            else
                m->series.press(keys.at(random.bounded(int(keys.size()))));
            const QString problem = focusProblem(m->series);
            QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(problem)));
            inSeasons += m->series.isInSeasons() ? 1 : 0;
            withoutEpisodes += m->series.episodeRow() < 0 ? 1 : 0;
        }
        QVERIFY2(inSeasons > 100 && withoutEpisodes > 100,
                 qPrintable(QStringLiteral("%1, %2").arg(inSeasons).arg(withoutEpisodes)));
    }
};

STB_TEST_MAIN(tst_SeriesController)
#include "tst_seriescontroller.moc"
