// SPDX-License-Identifier: MIT
#include "guides.h"
#include "testkit/testcase.h"

#include "gallery/data/clock.h"
#include "gallery/data/reminders.h"
#include "screens/guidecontroller.h"

#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>
#include <QtTest/qsignalspy.h>

using gallery::GuideController;
using gallery::GuideProgrammeModel;
using gallery::Reminders;

/*! What OK, Info and Play do with programmes that are over, on and to come. The test runs in UTC. */
class tst_GuideReminders : public stbtest::TestCase
{
    Q_OBJECT

    QString fileName() const { return m_folder->filePath("stbui/reminders.json"); }

    /*! 20:05; "A40" is on, "A41" to come. As after a restart: only the file stays. */
    void start()
    {
        m_guide.reset();
        m_reminders = std::make_unique<Reminders>(fileName());
        m_clock = std::make_unique<gallery::Clock>();
        m_clock->setFixed(guides::at(20, 5));
        m_guide = std::make_unique<GuideController>(m_clock.get());
        m_guide->setReminders(m_reminders.get());
        m_guide->setGuide(guides::five());
    }

    void press(std::initializer_list<Qt::Key> keys)
    {
        for (const Qt::Key key : keys)
            QVERIFY(m_guide->press(key));
    }

    bool hasReminder() const
    {
        const QModelIndex row = m_guide->programmes()->index(m_guide->programmeRow(), 0);
        return row.data(GuideProgrammeModel::HasReminderRole).toBool();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Reminders> m_reminders;
    std::unique_ptr<gallery::Clock> m_clock;
    std::unique_ptr<GuideController> m_guide;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
        start();
    }
    void cleanup()
    {
        m_guide.reset();
        m_clock.reset();
        m_reminders.reset();
    }

    void okSetsAReminderOfAProgrammeToComeAndTakesItAway()
    {
        press({ Qt::Key_Down });
        QVERIFY(!hasReminder());
        QSignalSpy changes(m_guide->programmes(), &QAbstractItemModel::dataChanged);
        press({ Qt::Key_Return });
        QVERIFY(hasReminder());
        QVERIFY(!m_guide->isDetailsOpen());
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes.first().at(2).value<QList<int>>(),
                 QList<int> { GuideProgrammeModel::HasReminderRole });
        QCOMPARE(m_reminders->reminders(),
                 (QList<gallery::Reminder> { { "a", guides::at(20, 30).toSecsSinceEpoch(), "A41" } }));
        press({ Qt::Key_Return });
        QVERIFY(!hasReminder());
        QCOMPARE(m_reminders->count(), 0);
    }

    void aReminderIsThereAfterARestart()
    {
        press({ Qt::Key_Down, Qt::Key_Return });
        QVERIFY(QFile::exists(fileName()));
        start();
        QVERIFY(!hasReminder());
        press({ Qt::Key_Down });
        QVERIFY(hasReminder());
        press({ Qt::Key_Return });
        start();
        press({ Qt::Key_Down });
        QVERIFY(!hasReminder());
    }

    /*! "a" with a single show from 20:30 on for each title. */
    static gallery::Guide together(const QStringList &titles)
    {
        gallery::GuideBuilder builder;
        QList<guides::Show> shows { { "Now", guides::at(20, 0), guides::at(20, 30) } };
        for (const QString &title : titles)
            shows.append({ title, guides::at(20, 30), guides::at(21, 0) });
        guides::addChannel(builder, "a", shows);
        return builder.take();
    }

    QList<bool> rowsWithReminder() const
    {
        QList<bool> rows;
        for (int row = 0; row < m_guide->programmes()->rowCount(); ++row)
            rows.append(
                    m_guide->programmes()->index(row, 0).data(GuideProgrammeModel::HasReminderRole).toBool());
        return rows;
    }

    void aReminderIsThereInAnotherLanguageAndCanBeTakenAwayThere()
    {
        m_guide->setGuide(together({ "News" }));
        press({ Qt::Key_Down, Qt::Key_Return });
        QVERIFY(hasReminder());
        start();
        m_guide->setGuide(together({ "Nachrichten" }));
        QCOMPARE(rowsWithReminder(), (QList<bool> { false, true }));
        press({ Qt::Key_Home, Qt::Key_Down, Qt::Key_Return });
        QCOMPARE(rowsWithReminder(), (QList<bool> { false, false }));
        QCOMPARE(m_reminders->count(), 0);
    }

    void ofProgrammesThatStartTogetherTheTitleDecides()
    {
        QVERIFY(m_reminders->add("a", guides::at(20, 30), "Two"));
        m_guide->setGuide(together({ "One", "Two", "Three" }));
        QCOMPARE(rowsWithReminder(), (QList<bool> { false, false, true, false }));
        m_guide->setGuide(together({ "One", "New", "Three" }));
        QCOMPARE(rowsWithReminder(), (QList<bool> { false, true, false, false }));
        QVERIFY(m_reminders->add("a", guides::at(20, 30), "Three"));
        QCOMPARE(rowsWithReminder(), (QList<bool> { false, true, false, true }));
        press({ Qt::Key_Home, Qt::Key_Down, Qt::Key_Return });
        QCOMPARE(rowsWithReminder(), (QList<bool> { false, false, false, true }));
    }

    void aReminderOfALongTitleIsFound()
    {
        const QString title(2 * Reminders::longestText, u'x');
        m_guide->setGuide(together({ "One", title }));
        press({ Qt::Key_End, Qt::Key_Return });
        QCOMPARE(rowsWithReminder(), (QList<bool> { false, false, true }));
    }

    void aReminderBelongsToItsChannelAndProgramme()
    {
        press({ Qt::Key_Down, Qt::Key_Return, Qt::Key_Down });
        QVERIFY(!hasReminder());
        press({ Qt::Key_Right });
        QVERIFY(!hasReminder());
        press({ Qt::Key_Left, Qt::Key_Up });
        QVERIFY(hasReminder());
    }

    void okShowsTheDetailsOfWhatIsOnOrOver()
    {
        press({ Qt::Key_Return });
        QVERIFY(m_guide->isDetailsOpen());
        press({ Qt::Key_Return, Qt::Key_Up, Qt::Key_Return });
        QVERIFY(m_guide->isDetailsOpen());
        QCOMPARE(m_reminders->count(), 0);
    }

    void okInTheDetailsOfAProgrammeToComeOnlyClosesThem()
    {
        press({ Qt::Key_Down, Qt::Key_Info });
        QVERIFY(m_guide->isDetailsOpen());
        press({ Qt::Key_Return });
        QVERIFY(!m_guide->isDetailsOpen());
        QCOMPARE(m_reminders->count(), 0);
    }

    void infoShowsAndHidesTheDetailsOfAnyProgramme()
    {
        for (const Qt::Key key : { Qt::Key_Down, Qt::Key_Up, Qt::Key_Up }) {
            press({ key, Qt::Key_Info });
            QVERIFY(m_guide->isDetailsOpen());
            press({ Qt::Key_Info });
            QVERIFY(!m_guide->isDetailsOpen());
        }
    }

    void withoutAPlaceForRemindersOkShowsTheDetails()
    {
        m_guide->setReminders(nullptr);
        press({ Qt::Key_Down, Qt::Key_Return });
        QVERIFY(m_guide->isDetailsOpen());
        QVERIFY(!hasReminder());
    }

    void aFileThatCannotBeUsedIsTold()
    {
        QFile file(fileName());
        press({ Qt::Key_Down, Qt::Key_Return });
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no JSON");
        file.close();
        start();
        QVERIFY2(m_guide->message().startsWith("Reminders: " + fileName()), qPrintable(m_guide->message()));
        QSignalSpy changes(m_guide.get(), &GuideController::messageChanged);
        press({ Qt::Key_Down, Qt::Key_Return }); // the damaged file is out of the way
        QCOMPARE(changes.count(), 1);
        QCOMPARE(m_guide->message(), QString());
    }

    void playAndOkInTheDetailsPlayTheChannelOfWhatIsOn()
    {
        QSignalSpy plays(m_guide.get(), &GuideController::playRequested);
        press({ Qt::Key_Right, Qt::Key_Play });
        QCOMPARE(plays.count(), 1);
        QCOMPARE(plays.last().at(0).toInt(), 1);
        press({ Qt::Key_Return });
        QCOMPARE(plays.count(), 1);
        press({ Qt::Key_Return });
        QCOMPARE(plays.count(), 2);
        QVERIFY(!m_guide->isDetailsOpen());
    }

    void whatIsNotOnIsNotPlayed()
    {
        QSignalSpy plays(m_guide.get(), &GuideController::playRequested);
        press({ Qt::Key_Down });
        QCOMPARE(m_guide->playAction(), GuideController::NothingToPlay);
        press({ Qt::Key_Play, Qt::Key_Info, Qt::Key_Return });
        press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Play }); // a channel without programmes
        QCOMPARE(m_guide->playAction(), GuideController::NothingToPlay);
        QCOMPARE(plays.count(), 0);
    }

    void whatIsOverIsPlayedFromItsStart()
    {
        QSignalSpy plays(m_guide.get(), &GuideController::playRequested);
        QCOMPARE(m_guide->playAction(), GuideController::PlayLive);
        press({ Qt::Key_Up });
        QCOMPARE(m_guide->playAction(), GuideController::PlayFromStart);
        press({ Qt::Key_Play });
        QCOMPARE(plays.count(), 1);
        QCOMPARE(plays.last().at(1).toDateTime(), guides::at(19, 30));
        press({ Qt::Key_Return, Qt::Key_Return });
        QCOMPARE(plays.count(), 2);
        QCOMPARE(plays.last().at(0).toInt(), 0);
        QVERIFY(!m_guide->isDetailsOpen());
        press({ Qt::Key_Down, Qt::Key_Play });
        QCOMPARE(plays.last().at(1).toDateTime(), QDateTime());
    }

    void whatIsOverForMoreThanAWeekIsNotPlayed()
    {
        QSignalSpy plays(m_guide.get(), &GuideController::playRequested);
        gallery::GuideBuilder builder;
        const QDateTime start = guides::at(20, 5).addDays(-7);
        guides::addChannel(builder, "a",
                           { { "Too old", start.addSecs(-60), start.addSecs(60) },
                             { "Old", start.addSecs(60), start.addSecs(120) } });
        m_guide->setGuide(builder.take());
        press({ Qt::Key_Up, Qt::Key_Home, Qt::Key_Down, Qt::Key_Down });
        QCOMPARE(m_guide->title(), "Old");
        press({ Qt::Key_Play });
        QCOMPARE(plays.count(), 1);
        press({ Qt::Key_Up });
        QCOMPARE(m_guide->title(), "Too old");
        press({ Qt::Key_Play });
        QCOMPARE(m_guide->playAction(), GuideController::NothingToPlay);
        QCOMPARE(plays.count(), 1);
    }

    void aProgrammeThatBeginsIsNoLongerToCome()
    {
        press({ Qt::Key_Down });
        QVERIFY(m_guide->isFuture());
        m_clock->setFixed(guides::at(20, 30));
        QVERIFY(!m_guide->isFuture());
        QVERIFY(m_guide->isLive());
    }

    void remindersOfWhatHasBegunAreDroppedByTheRealTimeOnly()
    {
        const QDateTime longAgo(QDate(2001, 2, 3), QTime(4, 5), QTimeZone::utc());
        QVERIFY(m_reminders->add("a", longAgo, "Long ago"));
        QVERIFY(m_reminders->add("a", longAgo.addYears(7000), "Far ahead"));
        m_clock->setFixed(guides::at(20, 31));
        QCOMPARE(m_reminders->count(), 2);
        m_clock->setFixed({});
        QCOMPARE(m_reminders->count(), 1);
        QCOMPARE(m_reminders->reminders().constFirst().title, "Far ahead");
    }
};

STB_TEST_MAIN(tst_GuideReminders)
#include "tst_guidereminders.moc"
