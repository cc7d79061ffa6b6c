// SPDX-License-Identifier: MIT
#include "guides.h"
#include "testkit/testcase.h"

#include "gallery/data/clock.h"
#include "screens/marks.h"
#include "screens/playercontroller.h"

#include <QtCore/qrandom.h>
#include <QtTest/qabstractitemmodeltester.h>
#include <QtTest/qsignalspy.h>

using gallery::PlayerController;
using gallery::PlayerProgrammes;

/*! The programmes in the player, and what becomes of them with another guide. The test runs in UTC. */
class tst_PlayerGuide : public stbtest::TestCase
{
    Q_OBJECT

    struct Fixture
    {
        gallery::Clock clock;
        gallery::Marks favourites;
        PlayerController player { &clock, &favourites };
        QAbstractItemModelTester tester { player.programmes() };

        Fixture()
        {
            clock.setFixed(guides::at(20, 5));
            player.setGuide(guides::five());
        }
        QVariant chosen(PlayerProgrammes::Role role = PlayerProgrammes::TitleRole)
        {
            return player.programmes()->index(player.programmeRow(), 0).data(role);
        }
    };

    /*! Channels \a ids whose programmes begin at \a hour, half an hour each. */
    static gallery::Guide guideFrom(int hour, const QStringList &ids)
    {
        gallery::GuideBuilder builder;
        for (const QString &id : ids) {
            QList<guides::Show> shows = guides::wholeDay(id.toUpper(), 30);
            shows.remove(0, 2 * hour);
            guides::addChannel(builder, id, shows);
        }
        return builder.take();
    }

    /*! Why keys act on nothing, or on what there is not; nothing when all is well. */
    static QString focusProblem(PlayerController &player, const gallery::Guide &guide)
    {
        const int channel = player.channelRow();
        if (channel < (guide.isEmpty() ? -1 : 0) || channel >= guide.channelCount())
            return QStringLiteral("channel %1 of %2").arg(channel).arg(guide.channelCount());
        const int count = player.programmes()->rowCount();
        if (count != (channel < 0 ? 0 : guide.programmeCount(channel)))
            return QStringLiteral("%1 programmes shown").arg(count);
        if (player.programmeRow() < (count > 0 ? 0 : -1) || player.programmeRow() >= count)
            return QStringLiteral("programme %1 of %2").arg(player.programmeRow()).arg(count);
        if (!player.buttons().contains(player.button()))
            return QStringLiteral("button %1").arg(player.button());
        if (player.progress() < 0 || player.progress() > 1)
            return QStringLiteral("progress %1").arg(player.progress());
        return {};
    }

    /*! "a" with shows called by their hours, all \a minutes later than that. */
    static gallery::Guide movedBy(int minutes)
    {
        QList<guides::Show> shows;
        for (int hour = 0; hour < 24; ++hour) {
            const QDateTime start = guides::at(hour, 0).addSecs(qint64(minutes) * 60);
            shows.append({ QString::number(hour), start, start.addSecs(3600) });
        }
        gallery::GuideBuilder builder;
        guides::addChannel(builder, "a", shows);
        return builder.take();
    }

    static gallery::Guide randomGuide(QRandomGenerator &random)
    {
        gallery::GuideBuilder builder;
        const int channels = random.bounded(6);
        for (int channel = 0; channel < channels; ++channel) {
            QList<guides::Show> shows;
            const int count = random.bounded(12);
            for (int i = 0; i < count; ++i) {
                const QDateTime start = guides::at(0, 0).addSecs(random.bounded(24 * 3600));
                shows.append({ QString::number(i % 3), start, start.addSecs(random.bounded(7200)) });
            }
            guides::addChannel(builder, QString::number(random.bounded(8)), shows);
        }
        return builder.take();
    }

    std::unique_ptr<Fixture> m;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m = std::make_unique<Fixture>();
    }
    void cleanup() { m.reset(); }

    void aMovedProgrammeStaysChosenUpToAnHour_data()
    {
        QTest::addColumn<int>("minutes");
        QTest::addColumn<QString>("title");
        QTest::newRow("not moved") << 0 << "22";
        QTest::newRow("later") << 25 << "22";
        QTest::newRow("an hour later") << 60 << "22";
        QTest::newRow("an hour earlier") << -60 << "22";
        QTest::newRow("more than an hour") << 61 << "20"; // what is on then at 22:00
    }
    void aMovedProgrammeStaysChosenUpToAnHour()
    {
        QFETCH(int, minutes);
        m->player.setGuide(movedBy(0));
        QVERIFY(m->player.play(0));
        m->player.press(Qt::Key_Right);
        m->player.press(Qt::Key_Right);
        QCOMPARE(m->chosen().toString(), "22");
        m->player.setGuide(movedBy(minutes));
        QTEST(m->chosen().toString(), "title");
    }

    void allProgrammesOfTheChannelAreThere()
    {
        m->player.play(0);
        QCOMPARE(m->player.programmes()->rowCount(), 48);
        m->player.play(2);
        QCOMPARE(m->player.programmes()->rowCount(), 0);
    }

    void everyRoleHasItsValue()
    {
        m->player.play(0);
        QCOMPARE(m->chosen(PlayerProgrammes::TitleRole), "A40");
        QCOMPARE(m->chosen(PlayerProgrammes::ExactDateRole), QStringLiteral("Now, 20:00 – 20:30"));
        QCOMPARE(m->chosen(PlayerProgrammes::DescriptionRole), "All of A40");
        QVERIFY(!m->chosen(PlayerProgrammes::PictureRole).toUrl().isEmpty());
        QCOMPARE(m->chosen(PlayerProgrammes::LiveRole), true);
        QCOMPARE(m->chosen(PlayerProgrammes::PastRole), false);
        QCOMPARE(m->chosen(PlayerProgrammes::ProgressRole), 5.0 / 30);
        m->player.press(Qt::Key_Right);
        QCOMPARE(m->chosen(PlayerProgrammes::ExactDateRole), QStringLiteral("Today, 20:30 – 21:00"));
        QCOMPARE(m->chosen(PlayerProgrammes::LiveRole), false);
        QCOMPARE(m->chosen(PlayerProgrammes::PastRole), false);
        QCOMPARE(m->chosen(PlayerProgrammes::ProgressRole), 0.0);
        m->player.press(Qt::Key_Home);
        QCOMPARE(m->chosen(PlayerProgrammes::PastRole), true);
        QCOMPARE(m->chosen(PlayerProgrammes::ProgressRole), 1.0);
    }

    void theDayIsNamedByThePresent_data()
    {
        QTest::addColumn<int>("days");
        QTest::addColumn<QString>("text");
        QTest::newRow("the day before") << -1 << QStringLiteral("Tomorrow, 00:00 – 00:30");
        QTest::newRow("the day after") << 1 << QStringLiteral("Yesterday, 00:00 – 00:30");
        QTest::newRow("two days after") << 2 << QStringLiteral("Wed, 4 Mar, 00:00 – 00:30");
        QTest::newRow("long before") << -30 << QStringLiteral("Wed, 4 Mar, 00:00 – 00:30");
    }
    void theDayIsNamedByThePresent()
    {
        QFETCH(int, days);
        m->player.play(0);
        m->player.press(Qt::Key_Home);
        m->clock.setFixed(guides::at(20, 5).addDays(days));
        QTEST(m->chosen(PlayerProgrammes::ExactDateRole).toString(), "text");
    }

    void timeChangesOnlyTheRowsThatDiffer()
    {
        m->player.play(0);
        QSignalSpy changes(m->player.programmes(), &QAbstractItemModel::dataChanged);
        m->clock.setFixed(guides::at(20, 6));
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes.at(0).at(0).toModelIndex().row(), 40);
        QCOMPARE(changes.at(0).at(2).value<QList<int>>(), QList<int> { PlayerProgrammes::ProgressRole });
        changes.clear();
        m->clock.setFixed(guides::at(20, 30));
        QCOMPARE(changes.count(), 2);
        QCOMPARE(changes.at(1).at(0).toModelIndex().row(), 41);
    }

    void aRefreshKeepsChannelAndChosenProgramme()
    {
        m->player.play(1);
        m->player.setGuide(guideFrom(0, { "a", "b", "c" }));
        m->player.press(Qt::Key_Right);
        QCOMPARE(m->chosen(), "B41");
        m->player.setGuide(guideFrom(10, { "x", "c", "b" }));
        QCOMPARE(m->player.channelName(), "Channel b");
        QCOMPARE(m->player.channelRow(), 2);
        QCOMPARE(m->player.title(), "B40");
        QCOMPARE(m->chosen(), "B41");
        QCOMPARE(m->player.area(), PlayerController::Programmes);
    }

    void ofProgrammesThatStartTogetherTheOneWithTheTitleIsKept()
    {
        const auto guide = [](const QStringList &titles) {
            gallery::GuideBuilder builder;
            QList<guides::Show> shows;
            for (const QString &title : titles)
                shows.append({ title, guides::at(20, 0), guides::at(21, 0) });
            guides::addChannel(builder, "a", shows);
            return builder.take();
        };
        m->player.setGuide(guide({ "P", "Q", "R" }));
        m->player.play(0);
        m->player.press(Qt::Key_End);
        const QString chosen = m->chosen().toString();
        m->player.setGuide(guide({ chosen, "S", "T" }));
        QCOMPARE(m->chosen(), chosen);
        m->player.setGuide(guide({ "U", "V" }));
        QCOMPARE(m->player.programmeRow(), 0);
    }

    void aProgrammeThatIsGoneHandsOverToItsNeighbour()
    {
        m->player.play(0);
        m->player.press(Qt::Key_Left);
        m->player.setGuide(guideFrom(20, { "a" }));
        QCOMPARE(m->chosen(), "A40");
        m->player.setGuide({});
        QCOMPARE(m->player.programmeRow(), -1);
    }

    void aChannelThatIsGoneHandsOverToItsNeighbourLive()
    {
        m->player.play(1);
        m->player.press(Qt::Key_Return);
        m->player.press(Qt::Key_Return);
        QVERIFY(m->player.isPaused());
        m->player.setGuide(guideFrom(0, { "x" }));
        QCOMPARE(m->player.channelName(), "Channel x");
        QVERIFY(m->player.isLive());
    }

    void withoutAGuideTheChannelWaitsForTheNext()
    {
        m->player.play(1);
        m->player.setGuide({});
        QCOMPARE(m->player.channelName(), QString());
        QCOMPARE(m->player.title(), QString());
        m->player.setGuide(guides::five());
        QCOMPARE(m->player.channelName(), "Channel b");
        QCOMPARE(m->chosen(), "B25");
    }

    void aRefreshKeepsTheMomentThatIsWatched()
    {
        m->player.play(0);
        m->player.press(Qt::Key_Return);
        m->player.press(Qt::Key_Return);
        m->clock.setFixed(guides::at(20, 50));
        m->player.setGuide(guideFrom(12, { "b", "a" }));
        QVERIFY(m->player.isPaused());
        QCOMPARE(m->player.title(), "A40");
    }

    void aGuideAloneStartsNothing()
    {
        QCOMPARE(m->player.channelRow(), -1);
        QCOMPARE(m->player.area(), PlayerController::Picture);
    }

    void theFocusIsNeverLost()
    {
        const QList<int> keys { Qt::Key_Up,        Qt::Key_Down,        Qt::Key_Left,   Qt::Key_Right,
                                Qt::Key_Home,      Qt::Key_End,         Qt::Key_Return, Qt::Key_Back,
                                Qt::Key_ChannelUp, Qt::Key_ChannelDown, Qt::Key_Right,  Qt::Key_Return,
                                Qt::Key_A };
        QRandomGenerator random(20260304);
        gallery::Guide guide = guides::five();
        m->player.play(0);
        QSet<int> areas;
        QSet<int> buttons;
        for (int step = 0; step < 10000; ++step) {
            const int what = random.bounded(100);
            if (what < 3) {
                guide = randomGuide(random);
                m->player.setGuide(guide);
            } else if (what < 8) {
                m->clock.setFixed(guides::at(0, 0).addSecs(random.bounded(30 * 3600)));
            } else if (what < 9) {
                m->player.play(random.bounded(-1, 6));
            } else if (what < 10) {
                m->player.hideOverlay();
            } else {
                m->player.press(keys.at(random.bounded(int(keys.size()))));
            }
            const QString problem = focusProblem(m->player, guide);
            QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(problem)));
            areas.insert(m->player.area());
            buttons.insert(m->player.button());
        }
        QCOMPARE(areas.size(), 3);
        QCOMPARE(buttons.size(), 5);
    }
};

STB_TEST_MAIN(tst_PlayerGuide)
#include "tst_playerguide.moc"
