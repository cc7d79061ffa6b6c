// SPDX-License-Identifier: MIT
#include "catalogues.h"
#include "guides.h"
#include "testkit/testcase.h"

#include "gallery/data/clock.h"
#include "gallery/data/reminders.h"
#include "screens/detailcontroller.h"
#include "screens/marks.h"

#include <QtTest/qsignalspy.h>

using gallery::DetailController;

/*! What remote keys do on the detail page. The test runs in UTC. */
class tst_DetailController : public stbtest::TestCase
{
    Q_OBJECT

    struct Fixture
    {
        gallery::Marks favourites;
        gallery::Marks likes;
        DetailController detail { &favourites, &likes };

        void showFilm(int index) { detail.show(gallery::catalogueItem(catalogues::small(), index)); }
        void showProgramme() { detail.show(gallery::programmesAt(guides::five(), guides::at(20, 5)).at(0)); }
        void press(std::initializer_list<Qt::Key> keys)
        {
            for (const Qt::Key key : keys)
                QVERIFY(detail.press(key));
        }
    };

    std::unique_ptr<Fixture> m;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m = std::make_unique<Fixture>();
    }
    void cleanup() { m.reset(); }

    void tellsWhatIsKnownOfTheItem()
    {
        m->showFilm(1);
        QCOMPARE(m->detail.title(), "F1");
        QCOMPARE(m->detail.subtitle(), QString());
        QCOMPARE(m->detail.facts(), u"2021 · Drama · 1 h 48 min · 12+");
        QCOMPARE(m->detail.description(), "All of F1");
        QVERIFY(m->detail.isStarted());
        QCOMPARE(m->detail.progress(), 1201.0 / 6480);
        QCOMPARE(m->detail.timeLeft(), "1 h 28 min left");
        m->showFilm(0);
        QVERIFY(!m->detail.isStarted());
        QCOMPARE(m->detail.timeLeft(), QString());
        m->showProgramme();
        QCOMPARE(m->detail.subtitle(), "About A40");
        QCOMPARE(m->detail.facts(), u"Channel a · 20:00 – 20:30");
    }

    void theFirstButtonHasTheKeysAtFirst()
    {
        m->showFilm(0);
        QCOMPARE(m->detail.button(), DetailController::PlayButton);
        m->press({ Qt::Key_End });
        m->showFilm(1);
        QCOMPARE(m->detail.button(), DetailController::PlayButton);
    }

    void aProgrammeThatIsToComeIsRemindedOfAndNotWatched()
    {
        gallery::Clock clock;
        clock.setFixed(guides::at(19, 55));
        gallery::Reminders reminders { QString() };
        m->detail.setReminders(&clock, &reminders);
        m->detail.setGuide(guides::five());
        m->showProgramme(); // from 20:00 on
        QSignalSpy watched(&m->detail, &DetailController::watchRequested);
        QSignalSpy marks(&m->detail, &DetailController::marksChanged);
        QVERIFY(m->detail.isToCome());
        QVERIFY(!m->detail.hasReminder());
        m->press({ Qt::Key_Return });
        QVERIFY(m->detail.hasReminder());
        QCOMPARE(reminders.count(), 1);
        QCOMPARE(marks.count(), 1);
        m->press({ Qt::Key_Return });
        QVERIFY(!m->detail.hasReminder());
        QCOMPARE(reminders.count(), 0);
        QCOMPARE(watched.count(), 0);
    }

    void aProgrammeThatBeginsMeanwhileIsWatched()
    {
        gallery::Clock clock;
        clock.setFixed(guides::at(19, 59));
        gallery::Reminders reminders { QString() };
        m->detail.setReminders(&clock, &reminders);
        m->detail.setGuide(guides::five());
        m->showProgramme();
        QSignalSpy changed(&m->detail, &DetailController::itemChanged);
        QSignalSpy watched(&m->detail, &DetailController::watchRequested);
        clock.setFixed(guides::at(20, 0));
        QCOMPARE(changed.count(), 1);
        QVERIFY(!m->detail.isToCome());
        m->press({ Qt::Key_Return });
        QCOMPARE(watched.count(), 1);
        QCOMPARE(reminders.count(), 0);
        clock.setFixed(guides::at(20, 1));
        QCOMPARE(changed.count(), 1);
    }

    void theReminderIsOfThisProgrammeAndNotOfOneThatStartsTogetherWithIt()
    {
        gallery::GuideBuilder builder;
        guides::addChannel(builder, "x",
                           { { "First", guides::at(20, 0), guides::at(20, 30) },
                             { "Second", guides::at(20, 0), guides::at(20, 30) } });
        const gallery::Guide guide = builder.take();
        gallery::Clock clock;
        clock.setFixed(guides::at(19, 0));
        gallery::Reminders reminders { QString() };
        m->detail.setReminders(&clock, &reminders);
        m->detail.setGuide(guide);
        const auto show = [&](int programme) {
            m->detail.show(gallery::programmeItem(guide, 0, programme, clock.now()));
        };
        show(0);
        m->press({ Qt::Key_Return });
        show(1);
        QVERIFY(!m->detail.hasReminder());
        m->press({ Qt::Key_Return });
        QCOMPARE(reminders.count(), 2);
        m->press({ Qt::Key_Return });
        show(0);
        QVERIFY(m->detail.hasReminder());
    }

    void withoutItsProgrammeInTheGuideThereIsNoReminder()
    {
        gallery::Clock clock;
        clock.setFixed(guides::at(19, 55));
        gallery::Reminders reminders { QString() };
        m->detail.setReminders(&clock, &reminders);
        m->showProgramme();
        m->press({ Qt::Key_Return });
        QVERIFY(!m->detail.hasReminder());
        QCOMPARE(reminders.count(), 0);
    }

    void aFilmIsNeverToCome()
    {
        gallery::Clock clock;
        clock.setFixed(guides::at(19, 55));
        gallery::Reminders reminders { QString() };
        m->detail.setReminders(&clock, &reminders);
        m->detail.setGuide(guides::five());
        m->showFilm(0);
        QVERIFY(!m->detail.isToCome());
        m->press({ Qt::Key_Return });
        QCOMPARE(m->detail.opening(), DetailController::PlayButton);
        QCOMPARE(reminders.count(), 0);
    }

    void leftAndRightChooseButtonsAndStopAtTheEnds()
    {
        m->showFilm(0);
        m->press({ Qt::Key_Left });
        QCOMPARE(m->detail.button(), DetailController::PlayButton);
        m->press({ Qt::Key_Right });
        QCOMPARE(m->detail.button(), DetailController::FavouriteButton);
        m->press({ Qt::Key_Right });
        QCOMPARE(m->detail.button(), DetailController::TrailerButton);
        m->press({ Qt::Key_Right, Qt::Key_Right });
        QCOMPARE(m->detail.button(), DetailController::RateButton);
        m->press({ Qt::Key_Home });
        QCOMPARE(m->detail.button(), DetailController::PlayButton);
        m->press({ Qt::Key_End, Qt::Key_Left });
        QCOMPARE(m->detail.button(), DetailController::TrailerButton);
    }

    void onAMirroredScreenTheNextButtonIsOnTheLeft()
    {
        m->showFilm(0);
        m->detail.setMirrored(true);
        m->press({ Qt::Key_Left });
        QCOMPARE(m->detail.button(), DetailController::FavouriteButton);
        m->press({ Qt::Key_Right });
        QCOMPARE(m->detail.button(), DetailController::PlayButton);
    }

    void aProgrammeHasTheGuideInPlaceOfATrailer()
    {
        m->showProgramme();
        QVERIFY(!m->detail.buttons().contains(DetailController::TrailerButton));
        QSignalSpy requests(&m->detail, &DetailController::guideRequested);
        m->press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Return });
        QCOMPARE(m->detail.button(), DetailController::GuideButton);
        QCOMPARE(requests.count(), 1);
        m->showFilm(0);
        QVERIFY(!m->detail.buttons().contains(DetailController::GuideButton));
    }

    void aSeriesAndItsEpisodesHaveTheEpisodesInPlaceOfATrailer()
    {
        for (const int index : { 9, 10 }) {
            m->showFilm(index);
            QVERIFY(m->detail.isOfSeries());
            QVERIFY(!m->detail.buttons().contains(DetailController::TrailerButton));
            QSignalSpy requests(&m->detail, &DetailController::episodesRequested);
            m->press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Return });
            QCOMPARE(m->detail.button(), DetailController::EpisodesButton);
            QCOMPARE(requests.count(), 1);
        }
        m->showFilm(0);
        QVERIFY(!m->detail.isOfSeries());
        QVERIFY(!m->detail.buttons().contains(DetailController::EpisodesButton));
    }

    void aProgrammeIsWatchedAtOnce()
    {
        m->showProgramme();
        QSignalSpy requests(&m->detail, &DetailController::watchRequested);
        m->press({ Qt::Key_Return });
        QCOMPARE(requests.count(), 1);
        QCOMPARE(m->detail.opening(), DetailController::NoButton);
        QCOMPARE(m->detail.item().channelId, "a");
    }

    void returnTogglesTheFavouriteOfThisItem()
    {
        m->showFilm(0);
        m->press({ Qt::Key_Right, Qt::Key_Return });
        QVERIFY(m->detail.isFavourite());
        QVERIFY(m->favourites.contains(m->detail.item().id));
        m->showFilm(1);
        QVERIFY(!m->detail.isFavourite());
        m->showFilm(0);
        QVERIFY(m->detail.isFavourite());
        m->press({ Qt::Key_Right, Qt::Key_Return });
        QVERIFY(!m->detail.isFavourite());
    }

    void ratingIsApartFromTheFavourites()
    {
        m->showFilm(0);
        m->press({ Qt::Key_End, Qt::Key_Select });
        QVERIFY(m->detail.isLiked());
        QVERIFY(!m->detail.isFavourite());
    }

    void playOpensUntilItIsDone()
    {
        m->showFilm(0);
        QSignalSpy changes(&m->detail, &DetailController::openingChanged);
        m->press({ Qt::Key_Return, Qt::Key_Return });
        QCOMPARE(m->detail.opening(), DetailController::PlayButton);
        QCOMPARE(m->detail.message(), QString());
        QCOMPARE(changes.count(), 1);
        m->detail.finishOpening();
        QCOMPARE(m->detail.opening(), DetailController::NoButton);
        QCOMPARE(m->detail.message(), "There is no film to play in this gallery.");
        m->press({ Qt::Key_Return });
        QCOMPARE(m->detail.message(), QString());
    }

    void theTrailerOpensToo()
    {
        m->showFilm(0);
        m->press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Return });
        QCOMPARE(m->detail.opening(), DetailController::TrailerButton);
        m->press({ Qt::Key_Home, Qt::Key_Return });
        QCOMPARE(m->detail.opening(), DetailController::TrailerButton);
    }

    void backStopsTheOpeningThenGoesBack()
    {
        m->showFilm(0);
        QSignalSpy back(&m->detail, &DetailController::backRequested);
        m->press({ Qt::Key_Return, Qt::Key_Back });
        QCOMPARE(m->detail.opening(), DetailController::NoButton);
        QCOMPARE(back.count(), 0);
        m->detail.finishOpening();
        QCOMPARE(m->detail.message(), QString());
        m->press({ Qt::Key_Escape });
        QCOMPARE(back.count(), 1);
    }

    void anotherItemStopsTheOpening()
    {
        m->showFilm(0);
        m->press({ Qt::Key_Return });
        m->showFilm(1);
        QCOMPARE(m->detail.opening(), DetailController::NoButton);
    }

    void anUpdateLeavesButtonAndOpening()
    {
        m->showFilm(1);
        m->press({ Qt::Key_Return, Qt::Key_Right });
        QSignalSpy changes(&m->detail, &DetailController::itemChanged);
        gallery::MediaItem later = m->detail.item();
        later.position = 3240;
        m->detail.update(later);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(m->detail.progress(), 0.5);
        QCOMPARE(m->detail.button(), DetailController::FavouriteButton);
        QCOMPARE(m->detail.opening(), DetailController::PlayButton);
        m->detail.update(m->detail.item());
        QCOMPARE(changes.count(), 1);
    }

    void theYellowKeyMakesItAFavouriteOrNone()
    {
        m->showFilm(0);
        m->press({ Qt::Key_Yellow });
        QVERIFY(m->detail.isFavourite());
        QCOMPARE(m->detail.button(), DetailController::PlayButton);
        m->press({ Qt::Key_F3 });
        QVERIFY(!m->detail.isFavourite());
    }

    void otherKeysAreNotTaken()
    {
        m->showFilm(0);
        QVERIFY(!m->detail.press(Qt::Key_A));
        m->press({ Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown });
        QCOMPARE(m->detail.button(), DetailController::PlayButton);
    }

    void absurdLengthsAreWrittenWithoutHarm()
    {
        gallery::MediaItem item;
        item.duration = 1e300;
        item.position = -5;
        QCOMPARE(item.progress(), 0.0);
        QVERIFY(!gallery::facts(item).isEmpty());
        item.position = 1e299;
        QVERIFY(!gallery::timeLeft(item).isEmpty());
    }
};

STB_TEST_MAIN(tst_DetailController)
#include "tst_detailcontroller.moc"
