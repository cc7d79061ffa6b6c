// SPDX-License-Identifier: MIT
#include "channels.h"
#include "testkit/testcase.h"

#include "screens/shellcontroller.h"

#include <QtTest/qsignalspy.h>

using gallery::ShellController;

/*! A channel that is locked is not played, whatever is tried. The test runs in UTC. */
class tst_LockedChannels : public stbtest::TestCase
{
    Q_OBJECT

    /*! Channels "0", "1" and so on, of which those in \a locked are locked. */
    static gallery::Guide guide(int count, const QList<int> &locked)
    {
        QList<channels::Spec> specs;
        for (int i = 0; i < count; ++i)
            specs.append({ QString::number(i), QString::number(i + 1), {}, {}, locked.contains(i) });
        return channels::guide(specs);
    }

    void fill(int count, const QList<int> &locked)
    {
        m->clock()->setFixed(guides::at(20, 5));
        m->guide()->setGuide(guide(count, locked));
    }

    QString playing() const
    {
        return m->player()->channelRow() < 0 ? QString() : m->player()->channelName().mid(8);
    }

    static QString lockedText() { return QStringLiteral("This channel is locked"); }

    std::unique_ptr<ShellController> m;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m = std::make_unique<ShellController>();
    }
    void cleanup() { m.reset(); }

    void whatPlaysAtFirstIsNotLocked()
    {
        fill(4, { 0, 1 });
        QCOMPARE(m->channels()->playing(), 2);
        QCOMPARE(m->guide()->channelRow(), 2);
        m->start("player");
        QCOMPARE(m->screen(), "player");
        QCOMPARE(playing(), "2");
    }

    void aChannelWithNothingOnIsTakenBeforeALockedOne()
    {
        m->clock()->setFixed(guides::at(20, 5));
        m->guide()->setGuide(
                channels::guide({ { "k", "1", {}, {}, true }, { "n", "2", {}, {}, false, {}, 0 } }));
        QCOMPARE(m->channels()->playing(), 1);
    }

    void whenAllAreLockedNothingPlays()
    {
        fill(3, { 0, 1, 2 });
        QCOMPARE(m->channels()->playing(), -1);
        QCOMPARE(m->channels()->channelRow(), 0);
        QCOMPARE(m->guide()->channelRow(), 0);
        m->start("player");
        QCOMPARE(m->screen(), "home");
        for (const Qt::Key key : { Qt::Key_Up, Qt::Key_Down, Qt::Key_ChannelUp })
            m->player()->press(key);
        QCOMPARE(m->player()->picture(), QUrl());
        QCOMPARE(playing(), QString());
    }

    void theWayThroughTheChannelsLeavesLockedOnesOut()
    {
        fill(5, { 1, 2, 4 });
        m->openPlayer(0);
        QStringList passed;
        for (const Qt::Key key : { Qt::Key_ChannelUp, Qt::Key_ChannelUp, Qt::Key_ChannelDown,
                                   Qt::Key_ChannelDown, Qt::Key_Up, Qt::Key_Down, Qt::Key_PageDown }) {
            m->player()->press(key);
            passed.append(playing());
        }
        QCOMPARE(passed, (QStringList { "3", "0", "3", "0", "3", "0", "3" }));
    }

    void theOnlyOneThatIsNotLockedStays()
    {
        fill(3, { 0, 2 });
        m->openPlayer(1);
        m->player()->press(Qt::Key_ChannelUp);
        m->player()->press(Qt::Key_Down);
        QCOMPARE(playing(), "1");
    }

    void nobodyOpensThePlayerWithIt()
    {
        fill(3, { 1 });
        m->openPlayer(1);
        QCOMPARE(m->screen(), "home");
        QVERIFY(!m->player()->play(1));
        QCOMPARE(playing(), QString());
    }

    void theGuideSaysSoAndKeepsTheDetailsOpen()
    {
        fill(3, { 1 });
        m->start("guide");
        QSignalSpy plays(m->guide(), &gallery::GuideController::playRequested);
        m->guide()->press(Qt::Key_Right);
        QCOMPARE(m->guide()->notice(), QString());
        m->guide()->press(Qt::Key_Play);
        QCOMPARE(m->guide()->notice(), lockedText());
        m->guide()->press(Qt::Key_Return);
        QCOMPARE(m->guide()->notice(), QString());
        m->guide()->press(Qt::Key_Return);
        QCOMPARE(m->guide()->notice(), lockedText());
        QVERIFY(m->guide()->isDetailsOpen());
        m->guide()->press(Qt::Key_Back);
        QCOMPARE(m->guide()->notice(), QString());
        QCOMPARE(plays.count(), 0);
        QCOMPARE(m->screen(), "guide");
    }

    void itsProgrammesInTheGuideAreNotPlayable()
    {
        fill(2, { 1 });
        const int playable = gallery::ProgrammeModel::IsPlayableRole;
        const auto chosen = [this] { return m->guide()->programmes()->index(m->guide()->programmeRow(), 0); };
        QVERIFY(chosen().data(playable).toBool());
        m->guide()->press(Qt::Key_Right);
        QVERIFY(m->guide()->isLive());
        QVERIFY(!chosen().data(playable).toBool());
    }

    void theSearchSaysSo()
    {
        fill(3, { 1 });
        m->start("search");
        m->search()->setText("140"); // what is on there
        m->search()->press(Qt::Key_PageDown);
        QCOMPARE(m->search()->item()->channelId, "1");
        m->search()->press(Qt::Key_MediaPlay);
        QCOMPARE(m->search()->notice(), lockedText());
        QCOMPARE(m->screen(), "search");
        m->search()->press(Qt::Key_Return);
        QCOMPARE(m->screen(), "detail");
        m->detail()->press(Qt::Key_Return);
        QCOMPARE(m->detail()->message(), lockedText());
    }

    void thePageOfWhatIsOnSaysSo()
    {
        fill(3, { 0, 1, 2 });
        m->start("detail");
        QCOMPARE(m->screen(), "detail");
        QCOMPARE(m->detail()->button(), gallery::DetailController::PlayButton);
        m->detail()->press(Qt::Key_Return);
        QCOMPARE(m->screen(), "detail");
        QCOMPARE(m->detail()->message(), lockedText());
        m->detail()->press(Qt::Key_Right);
        QCOMPARE(m->detail()->message(), QString());
    }

    void theMarkOfWhatPlaysLeavesAChannelThatIsLockedByANewGuide()
    {
        fill(3, {});
        m->openPlayer(0);
        QCOMPARE(m->channels()->playing(), 0);
        m->guide()->setGuide(guide(3, { 0 }));
        QVERIFY(m->player()->isLocked());
        QCOMPARE(m->player()->picture(), QUrl());
        QCOMPARE(m->channels()->playing(), 1);
    }

    void theNeighbourOfAWatchedChannelThatHasGoneIsNotLocked()
    {
        fill(4, {});
        m->openPlayer(3);
        m->guide()->setGuide(guide(3, { 2 }));
        QCOMPARE(playing(), "0");
        QVERIFY(!m->player()->isLocked());
    }
};

STB_TEST_MAIN(tst_LockedChannels)
#include "tst_lockedchannels.moc"
