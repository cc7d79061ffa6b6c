// SPDX-License-Identifier: MIT
#include "changingguide.h"
#include "testkit/testcase.h"

#include "gallery/data/clock.h"
#include "gallery/data/reminders.h"
#include "screens/guidecontroller.h"

#include <QtCore/qrandom.h>
#include <QtCore/qtemporaryfile.h>
#include <QtTest/qsignalspy.h>

using gallery::GuideController;
using guides::Show;

/*! What stays chosen when the guide is read again with other channels and programmes. The test runs in UTC. */
class tst_GuideRefresh : public stbtest::TestCase
{
    Q_OBJECT

    static QList<Show> three(int minutesLater = 0)
    {
        const qint64 later = qint64(minutesLater) * 60;
        return { { "First", guides::at(18, 0).addSecs(later), guides::at(20, 0).addSecs(later) },
                 { "Second", guides::at(20, 0).addSecs(later), guides::at(21, 0).addSecs(later) },
                 { "Third", guides::at(21, 0).addSecs(later), guides::at(23, 0).addSecs(later) } };
    }

    static gallery::Guide guideOf(const QList<QPair<QString, QList<Show>>> &channels)
    {
        gallery::GuideBuilder builder;
        for (const auto &[id, shows] : channels)
            guides::addChannel(builder, id, shows);
        return builder.take();
    }

    // It is 20:05; "Third" of the channel "b" is chosen, which is to come.
    void setUp()
    {
        m_clock = std::make_unique<gallery::Clock>();
        m_clock->setFixed(guides::at(20, 5));
        m_guide = std::make_unique<GuideController>(m_clock.get());
        m_guide->setGuide(guideOf({ { "a", three() }, { "b", three() }, { "c", three(10) } }));
        press({ Qt::Key_Right, Qt::Key_Down });
        QCOMPARE(m_guide->title(), "Third");
    }

    void press(std::initializer_list<Qt::Key> keys)
    {
        for (const Qt::Key key : keys)
            QVERIFY(m_guide->press(key));
    }

    std::unique_ptr<gallery::Clock> m_clock;
    std::unique_ptr<GuideController> m_guide;

private Q_SLOTS:
    void cleanup()
    {
        m_guide.reset();
        m_clock.reset();
    }

    void channelAndProgrammeStayChosenWhereverTheyAreNow()
    {
        setUp();
        QList<Show> more = three();
        more.prepend({ "Before all", guides::at(1, 0), guides::at(2, 0) });
        QSignalSpy resets(m_guide->programmes(), &QAbstractItemModel::modelReset);
        m_guide->setGuide(guideOf({ { "new", three() }, { "c", {} }, { "a", {} }, { "b", more } }));
        QCOMPARE(m_guide->channelRow(), 3);
        QCOMPARE(m_guide->programmeRow(), 3);
        QCOMPARE(m_guide->title(), "Third");
        QCOMPARE(resets.count(), 1);
    }

    void onANewDayTheOwnGuideLiesAroundIt()
    {
        m_clock = std::make_unique<gallery::Clock>();
        m_clock->setFixed(guides::at(23, 59));
        m_guide = std::make_unique<GuideController>(m_clock.get());
        m_guide->showOwnGuide("en");
        press({ Qt::Key_Right });
        const QString channel = m_guide->channelName();
        const gallery::TimeSpan before = m_guide->shownGuide().timeSpan();
        m_clock->setFixed(guides::at(23, 59).addSecs(50));
        QCOMPARE(m_guide->shownGuide().timeSpan(), before);
        m_clock->setFixed(guides::at(23, 59).addSecs(120));
        QVERIFY(m_guide->shownGuide().timeSpan().stop > before.stop);
        QVERIFY(m_guide->shownGuide().timeSpan().start > before.start);
        QCOMPARE(m_guide->channelName(), channel);
        QVERIFY(m_guide->isLive());
    }

    void onANewDayAPlaylistShowsTheOwnGuideAroundIt()
    {
        QTemporaryFile playlist;
        QVERIFY(playlist.open());
        playlist.write("#EXTM3U\n#EXTINF:-1 tvg-id=\"news\" tvg-name=\"News\",My news\nhttp://a\n");
        playlist.close();
        m_clock = std::make_unique<gallery::Clock>();
        m_clock->setFixed(guides::at(12, 0));
        m_guide = std::make_unique<GuideController>(m_clock.get());
        m_guide->load({ {}, playlist.fileName(), "en", m_clock->now() });
        QTRY_COMPARE(m_guide->channelName(), "My news");
        const gallery::TimeSpan before = m_guide->shownGuide().timeSpan();
        QVERIFY(before.stop > before.start);
        m_clock->setFixed(guides::at(12, 0).addDays(1));
        QTRY_VERIFY(m_guide->shownGuide().timeSpan().stop > before.stop);
        QCOMPARE(m_guide->channelName(), "My news");
    }

    void anotherGuideStaysOnANewDay()
    {
        setUp();
        m_guide->showOwnGuide("en");
        const gallery::Guide guide = guides::five();
        m_guide->setGuide(guide);
        m_clock->setFixed(guides::at(20, 5).addDays(1));
        QVERIFY(m_guide->shownGuide().isSameAs(guide));
    }

    void aProgrammeIsFoundByItsTitleWhenItIsMovedByUpToAnHour()
    {
        setUp();
        m_guide->setGuide(guideOf({ { "b", three(-50) } }));
        QCOMPARE(m_guide->title(), "Third");
        m_guide->setGuide(guideOf({ { "b", three(10) } }));
        QCOMPARE(m_guide->title(), "Third");
    }

    void ofSeveralWithTheTitleTheNearestIsChosen()
    {
        setUp();
        QList<Show> shows = three();
        shows[1].title = "Third";
        shows.append({ "Third", guides::at(21, 50), guides::at(22, 0) });
        m_guide->setGuide(guideOf({ { "b", shows } }));
        QCOMPARE(m_guide->timeRange(), u"21:00 – 23:00");
    }

    void aProgrammeThatIsGoneGivesItsPlaceToWhatIsOnAtItsTime()
    {
        setUp();
        QList<Show> shows = three();
        shows[2].title = "Instead";
        m_guide->setGuide(guideOf({ { "b", shows } }));
        QCOMPARE(m_guide->title(), "Instead");
        m_guide->setGuide(guideOf({ { "b", {} } }));
        QCOMPARE(m_guide->programmeRow(), -1);
        m_guide->setGuide(guideOf({ { "b", three() } }));
        QCOMPARE(m_guide->title(), "Third"); // the time is not forgotten
    }

    void aChannelThatIsGoneGivesItsPlaceToTheOneThatHasItNow()
    {
        setUp();
        m_guide->setGuide(guideOf({ { "a", three() }, { "c", three(10) } }));
        QCOMPARE(m_guide->channelName(), "Channel c");
        QCOMPARE(m_guide->title(), "Second"); // until 21:10
        m_guide->setGuide(guideOf({ { "a", three() } }));
        QCOMPARE(m_guide->channelName(), "Channel a");
        QCOMPARE(m_guide->title(), "Third");
    }

    void theDayAndTheRowOfDaysStayChosen()
    {
        setUp();
        press({ Qt::Key_Green, Qt::Key_Right });
        m_guide->setGuide(guideOf({ { "x", three() }, { "b", three(24 * 60) } }));
        QVERIFY(m_guide->isInDays());
        QCOMPARE(m_guide->dayRow(), 8);
        QCOMPARE(m_guide->title(), "Third");
    }

    void theDetailsStayWithTheirProgramme()
    {
        setUp();
        press({ Qt::Key_Info });
        m_guide->setGuide(guideOf({ { "x", three() }, { "b", three() } }));
        QVERIFY(m_guide->isDetailsOpen());
        m_guide->setGuide(guideOf({ { "x", three() } }));
        QVERIFY(!m_guide->isDetailsOpen());
    }

    void anEmptyGuideIsLeftForWhatIsOn()
    {
        setUp();
        m_guide->setGuide({});
        QCOMPARE(m_guide->channelRow(), -1);
        QCOMPARE(m_guide->programmeRow(), -1);
        m_guide->setGuide(guideOf({ { "a", three() } }));
        QCOMPARE(m_guide->title(), "Second");
    }

    void theChoiceIsValidAfterAnyKeysAndAnyChanges();
};

namespace {

/*! What the controller must never show, or nothing. */
QString problem(GuideController &guide)
{
    const int channels = guide.channels()->rowCount();
    const int programmes = guide.programmes()->rowCount();
    if (guide.shownGuide().channelCount() != channels)
        return "the channels are not those of the guide";
    if (channels == 0 ? guide.channelRow() != -1 : guide.channelRow() < 0 || guide.channelRow() >= channels)
        return "channel " + QString::number(guide.channelRow());
    if (programmes == 0 ? guide.programmeRow() != -1
                        : guide.programmeRow() < 0 || guide.programmeRow() >= programmes)
        return "programme " + QString::number(guide.programmeRow());
    if (guide.dayRow() < 0 || guide.dayRow() >= guide.days()->rowCount())
        return "day " + QString::number(guide.dayRow());
    if (guide.isInDays() && (guide.isDetailsOpen() || channels == 0))
        return "keys act on days";
    if (guide.isDetailsOpen() && programmes == 0)
        return "details of nothing";
    if (channels == 0)
        return programmes > 0 ? QStringLiteral("programmes of no channel") : QString();
    const gallery::TimeSpan day = gallery::localDay(guide.date());
    if (guide.shownGuide().programmesIn(guide.channelRow(), day).size() != programmes)
        return "programmes of another channel or day";
    return {};
}

/*! Whether the programme of the channel and day is still there as it was. */
bool isThere(const gallery::Guide &guide, const QString &id, QDate date, const QString &title, qint64 start)
{
    const int channel = guide.channelIndex(id);
    if (channel < 0)
        return false;
    const QList<int> rows = guide.programmesIn(channel, gallery::localDay(date));
    return std::any_of(rows.begin(), rows.end(), [&](int row) {
        const gallery::Programme programme = guide.programme(channel, row);
        return programme.title == title && programme.time.start == start;
    });
}

} // namespace

void tst_GuideRefresh::theChoiceIsValidAfterAnyKeysAndAnyChanges()
{
    gallery::Clock clock;
    clock.setFixed(guides::at(20, 5));
    gallery::Reminders reminders({});
    GuideController guide(&clock);
    guide.setReminders(&reminders);
    guides::ChangingGuide data(20260305);
    guide.setGuide(data.guide());
    QRandomGenerator random(20260304);
    int kept = 0;
    const QList<int> keys = guides::allRemoteKeys();
    for (int step = 0; step < 10000; ++step) {
        QString changed = "key";
        // Most days are empty: without this the walk would stay there.
        for (int i = 0; i < 2 && step % 15 == 0; ++i)
            guide.press(Qt::Key_Back);
        const int kind = random.bounded(10);
        if (kind == 0) {
            clock.setFixed(guides::at(20, 5).addSecs(random.bounded(-86400, 86400)));
        } else if (kind < 4) {
            changed = data.change();
            const QString id = guide.channelRow() < 0 ? QString()
                                                      : guide.shownGuide().channel(guide.channelRow()).id;
            const QString title = guide.title();
            const QString times = guide.timeRange();
            const qint64 start = guide.programmes()
                                         ->index(guide.programmeRow(), 0)
                                         .data(gallery::ProgrammeModel::StartRole)
                                         .toDateTime()
                                         .toSecsSinceEpoch();
            const gallery::Guide next = data.guide();
            const bool there = guide.programmeRow() >= 0 && isThere(next, id, guide.date(), title, start);
            guide.setGuide(next);
            if (there) {
                ++kept;
                QCOMPARE(next.channel(guide.channelRow()).id, id);
                QCOMPARE(guide.title(), title);
                QCOMPARE(guide.timeRange().left(5), times.left(5));
            }
        } else {
            guide.press(keys.at(random.bounded(int(keys.size()))));
        }
        const QString found = problem(guide);
        QVERIFY2(found.isEmpty(), qPrintable(QString("step %1, %2: %3").arg(step).arg(changed, found)));
    }
    QVERIFY2(kept > 500, qPrintable(QString::number(kept)));
}

STB_TEST_MAIN(tst_GuideRefresh)
#include "tst_guiderefresh.moc"
