// SPDX-License-Identifier: MIT
#include "channels.h"
#include "testkit/testcase.h"

#include "gallery/data/clock.h"
#include "screens/channelnowmodel.h"
#include "screens/channelscontroller.h"

#include <QtCore/qrandom.h>
#include <QtCore/qset.h>
#include <QtTest/qsignalspy.h>

using gallery::ChannelRows;
using gallery::ChannelsController;

/*! What remote keys do to the choice of a channel and of a group. The test runs in UTC. */
class tst_ChannelsController : public stbtest::TestCase
{
    Q_OBJECT

    void setUp(const QList<channels::Spec> &specs = channels::seven())
    {
        m_clock = std::make_unique<gallery::Clock>();
        m_clock->setFixed(guides::at(20, 5));
        m = std::make_unique<ChannelsController>(m_clock.get());
        m->setGuide(channels::guide(specs));
    }

    void press(std::initializer_list<Qt::Key> keys)
    {
        for (const Qt::Key key : keys)
            QVERIFY(m->press(key));
    }

    QString chosen() const { return m->channel() < 0 ? QString() : m->guide().channel(m->channel()).id; }
    QVariant row(int row, ChannelRows::Role role) const { return m->channels()->index(row, 0).data(role); }
    QStringList names() const
    {
        QStringList result;
        for (int i = 0; i < m->channels()->rowCount(); ++i)
            result.append(row(i, ChannelRows::NameRole).toString().mid(8));
        return result;
    }
    QList<int> playingRows() const
    {
        QList<int> rows;
        for (int i = 0; i < m->channels()->rowCount(); ++i) {
            if (row(i, ChannelRows::PlayingRole).toBool())
                rows.append(i);
        }
        return rows;
    }

    std::unique_ptr<gallery::Clock> m_clock;
    std::unique_ptr<ChannelsController> m;

private Q_SLOTS:
    void cleanup()
    {
        m.reset();
        m_clock.reset();
    }

    void withoutAGuideNothingIsChosen()
    {
        m_clock = std::make_unique<gallery::Clock>();
        m = std::make_unique<ChannelsController>(m_clock.get());
        QCOMPARE(m->channelRow(), -1);
        QCOMPARE(m->channel(), -1);
        QCOMPARE(m->playing(), -1);
        QCOMPARE(m->groups(), QStringList());
        QSignalSpy plays(m.get(), &ChannelsController::playRequested);
        press({ Qt::Key_Down, Qt::Key_Left, Qt::Key_End, Qt::Key_5, Qt::Key_Return });
        QCOMPARE(m->channelRow(), -1);
        QCOMPARE(plays.count(), 0);
    }

    void theChannelKeysChooseTheNextChannelAndTheOneBefore()
    {
        setUp();
        press({ Qt::Key_ChannelUp, Qt::Key_ChannelUp });
        QCOMPARE(m->channelRow(), 2);
        press({ Qt::Key_ChannelDown });
        QCOMPARE(m->channelRow(), 1);
    }

    void infoAsksForTheDetailsOfWhatIsOn()
    {
        setUp();
        QSignalSpy requests(m.get(), &ChannelsController::detailsRequested);
        press({ Qt::Key_Info });
        QCOMPARE(requests.count(), 1);
        QCOMPARE(m->programme().title, "n140");
    }

    void aRowHasAllOfItsChannel()
    {
        QList<channels::Spec> specs = channels::seven();
        specs[3].logo = QUrl("http://example.org/s2.png");
        specs[3].locked = true;
        setUp(specs);
        QCOMPARE(row(3, ChannelRows::ChannelRole), 3);
        QCOMPARE(row(3, ChannelRows::NameRole), "Channel s2");
        QCOMPARE(m->channels()->index(3, 0).data(), "Channel s2");
        QCOMPARE(row(3, ChannelRows::NumberRole), "4");
        QCOMPARE(row(3, ChannelRows::QualityRole), "4K");
        QCOMPARE(row(3, ChannelRows::LogoRole), QUrl("http://example.org/s2.png"));
        QCOMPARE(row(3, ChannelRows::LockedRole), true);
        QCOMPARE(row(2, ChannelRows::LockedRole), false);
        QCOMPARE(row(3, ChannelRows::ProgrammeRole), "s240");
        QCOMPARE(row(3, ChannelRows::ProgressRole), 5.0 / 30);
        QCOMPARE(row(3, ChannelRows::PlayingRole), false);
    }

    void aNameLeavesOutTheQualityThatTheRowShows()
    {
        setUp({ { "a", {}, {}, "HD", false, {}, 30, "News HD" },
                { "b", {}, {}, {}, false, {}, 30, "Sport HD" } });
        QCOMPARE(row(0, ChannelRows::NameRole), "News");
        QCOMPARE(row(1, ChannelRows::NameRole), "Sport HD");
    }

    void everyRoleHasItsName()
    {
        setUp();
        QSet<QByteArray> names;
        for (const QByteArray &name : m->channels()->roleNames())
            names.insert(name);
        QCOMPARE(names, (QSet<QByteArray> { "channel", "name", "number", "logo", "quality", "locked",
                                            "programme", "progress", "playing" }));
    }

    void theGuidesChannelsKeepTheirGroupsBesideWhatIsOn()
    {
        gallery::ChannelNowModel model;
        model.setGuide(channels::guide(channels::seven()));
        model.setNow(guides::at(20, 5));
        const QList<QByteArray> names = model.roleNames().values();
        QVERIFY(names.contains("group") && names.contains("nowTitle"));
        QCOMPARE(model.index(1).data(model.roleNames().key("group")), "Sport");
        QCOMPARE(model.index(1).data(model.roleNames().key("nowTitle")), "s140");
    }

    void aChannelWithNothingOnHasNoProgrammeAndNoProgress()
    {
        setUp({ { "none", "1", {}, {}, false, {}, 0 } });
        QCOMPARE(row(0, ChannelRows::ProgrammeRole), QString());
        QCOMPARE(row(0, ChannelRows::ProgressRole), 0.0);
        QCOMPARE(m->title(), QString());
        QCOMPARE(m->timeRange(), QString());
        QCOMPARE(m->nextTitle(), QString());
        QCOMPARE(m->nextTime(), QString());
    }

    void theFirstChannelThatHasSomethingOnPlaysAndIsChosen()
    {
        setUp({ { "none", "1", {}, {}, false, {}, 0 }, { "a", "2" }, { "b", "3" } });
        QCOMPARE(chosen(), "a");
        QCOMPARE(m->playing(), 1);
        QCOMPARE(playingRows(), QList<int> { 1 });
    }

    void upAndDownChooseTheNeighboursAndStopAtTheEnds()
    {
        setUp();
        press({ Qt::Key_Down, Qt::Key_Down });
        QCOMPARE(chosen(), "n2");
        press({ Qt::Key_Up });
        QCOMPARE(chosen(), "s1");
        press({ Qt::Key_Up, Qt::Key_Up, Qt::Key_Up });
        QCOMPARE(m->channelRow(), 0);
        press({ Qt::Key_End, Qt::Key_Down });
        QCOMPARE(m->channelRow(), 6);
        press({ Qt::Key_Home });
        QCOMPARE(m->channelRow(), 0);
    }

    void pageKeysMoveByTheRowsThatFit()
    {
        setUp();
        m->setRowsPerPage(3);
        press({ Qt::Key_PageDown });
        QCOMPARE(m->channelRow(), 3);
        press({ Qt::Key_PageDown, Qt::Key_PageDown });
        QCOMPARE(m->channelRow(), 6);
        press({ Qt::Key_PageUp });
        QCOMPARE(m->channelRow(), 3);
        m->setRowsPerPage(-2);
        QCOMPARE(m->rowsPerPage(), 1);
    }

    void keysWithoutMeaningAreLeftToOthers()
    {
        setUp();
        QVERIFY(!m->press(Qt::Key_A));
        QVERIFY(!m->press(Qt::Key_Tab));
    }

    void groupsComeInTheOrderOfTheirFirstChannels()
    {
        setUp();
        QCOMPARE(m->groups(), (QStringList { QString(), "News", "Sport" }));
        QCOMPARE(m->groupIndex(), 0);
    }

    void aGroupThatAllHaveIsNoChoice()
    {
        setUp({ { "a", "1", "All of it" }, { "b", "2", "All of it" } });
        QCOMPARE(m->groups(), QStringList());
        press({ Qt::Key_Right });
        QCOMPARE(m->channels()->rowCount(), 2);
    }

    void leftAndRightShowTheNextGroup()
    {
        setUp();
        press({ Qt::Key_Right });
        QCOMPARE(m->groupIndex(), 1);
        QCOMPARE(names(), (QStringList { "n1", "n2", "k" }));
        press({ Qt::Key_Right });
        QCOMPARE(names(), (QStringList { "s1", "s2", "s3" }));
        press({ Qt::Key_Right });
        QCOMPARE(m->groupIndex(), 2);
        press({ Qt::Key_Left, Qt::Key_Left, Qt::Key_Left });
        QCOMPARE(m->groupIndex(), 0);
        QCOMPARE(m->channels()->rowCount(), 7);
    }

    void fromRightToLeftTheNextGroupIsOnTheLeft()
    {
        setUp();
        m->setMirrored(true);
        press({ Qt::Key_Left });
        QCOMPARE(m->groupIndex(), 1);
        press({ Qt::Key_Right });
        QCOMPARE(m->groupIndex(), 0);
    }

    void theChosenChannelStaysInAGroupThatHasIt()
    {
        setUp();
        press({ Qt::Key_Down, Qt::Key_Down, Qt::Key_Right });
        QCOMPARE(chosen(), "n2");
        QCOMPARE(m->channelRow(), 1);
        press({ Qt::Key_Left });
        QCOMPARE(chosen(), "n2");
        QCOMPARE(m->channelRow(), 2);
    }

    void aGroupWithoutTheChosenChannelStartsAtItsFirst()
    {
        setUp();
        press({ Qt::Key_End, Qt::Key_Right, Qt::Key_Right });
        QCOMPARE(chosen(), "s1");
        QCOMPARE(m->channelRow(), 0);
    }

    void digitsChooseTheChannelWithTheNumber()
    {
        setUp();
        press({ Qt::Key_4 });
        QCOMPARE(m->typedNumber(), "4");
        QCOMPARE(chosen(), "s2");
        press({ Qt::Key_0 });
        QCOMPARE(m->typedNumber(), "40");
        QCOMPARE(chosen(), "s3");
    }

    void aNumberThatNoChannelHasChangesNothing()
    {
        setUp();
        press({ Qt::Key_Down, Qt::Key_9 });
        QCOMPARE(chosen(), "s1");
        QCOMPARE(m->typedNumber(), "9");
    }

    void leadingZerosDoNotCount()
    {
        setUp();
        press({ Qt::Key_0, Qt::Key_0, Qt::Key_7 });
        QCOMPARE(chosen(), "k");
        QCOMPARE(m->typedNumber(), "007");
    }

    void aNumberWithASeparatorIsTypedWithoutIt()
    {
        setUp({ { "a", "7" }, { "b", "7-1" }, { "c", "10.5" }, { "d", "07.2" }, { "e", "71" } });
        press({ Qt::Key_1, Qt::Key_0, Qt::Key_5 });
        QCOMPARE(chosen(), "c");
        m->forgetTypedNumber();
        press({ Qt::Key_7, Qt::Key_2 });
        QCOMPARE(chosen(), "d");
        m->forgetTypedNumber();
        press({ Qt::Key_7, Qt::Key_1 });
        QCOMPARE(chosen(), "e"); // the very number first
        setUp({ { "a", "7" }, { "b", "7-1" } });
        press({ Qt::Key_7, Qt::Key_1 });
        QCOMPARE(chosen(), "b");
        m->forgetTypedNumber();
        QCOMPARE(m->message(), QString());
    }

    void aNumberThatNoChannelCanHaveIsToldAtOnce()
    {
        setUp(); // 1, 2, 3, 4, 7, 12, 40
        press({ Qt::Key_9 });
        QCOMPARE(m->message(), "No such channel");
        press({ Qt::Key_Down });
        QCOMPARE(m->message(), QString());
        press({ Qt::Key_4, Qt::Key_0 });
        QCOMPARE(m->message(), QString());
        press({ Qt::Key_0 });
        QCOMPARE(m->message(), "No such channel");
    }

    void aNumberThatIsNotCompleteIsToldAfterAWhile()
    {
        setUp({ { "a", "1" }, { "b", "205" } });
        press({ Qt::Key_2, Qt::Key_0 });
        QCOMPARE(m->message(), QString());
        m->forgetTypedNumber();
        QCOMPARE(m->message(), "No such channel");
        press({ Qt::Key_0 });
        QCOMPARE(m->message(), QString());
        press({ Qt::Key_2, Qt::Key_0, Qt::Key_5 });
        m->forgetTypedNumber();
        QCOMPARE(m->message(), QString());
        QCOMPARE(chosen(), "b");
    }

    void withoutNumbersThereIsNothingToType()
    {
        setUp({ { "a" }, { "b" } });
        QVERIFY(!m->hasNumbers());
        QSignalSpy changes(m.get(), &ChannelsController::hasNumbersChanged);
        m->setGuide(channels::guide({ { "a" }, { "b", "2" } }));
        QVERIFY(m->hasNumbers());
        m->setGuide(channels::guide({ { "b", "3" } }));
        QCOMPARE(changes.count(), 1);
    }

    void aNumberIsForgottenAfterTwoSeconds()
    {
        setUp();
        QTimer *typing = m->findChild<QTimer *>("typing");
        QVERIFY(typing != nullptr && !typing->isActive());
        press({ Qt::Key_1 });
        QVERIFY(typing->isActive());
        QCOMPARE(typing->interval(), 2000);
        QVERIFY(QMetaObject::invokeMethod(typing, "timeout"));
        QCOMPARE(m->typedNumber(), QString());
        press({ Qt::Key_2 });
        QCOMPARE(chosen(), "s1");
        press({ Qt::Key_Down });
        QVERIFY(!typing->isActive());
    }

    void anyOtherKeyEndsANumber()
    {
        setUp();
        press({ Qt::Key_1, Qt::Key_Down });
        QCOMPARE(m->typedNumber(), QString());
        press({ Qt::Key_2 });
        QCOMPARE(chosen(), "s1");
    }

    void backForgetsANumberBeforeItLeaves()
    {
        setUp();
        QSignalSpy leaving(m.get(), &ChannelsController::leaveRequested);
        press({ Qt::Key_1, Qt::Key_Back });
        QCOMPARE(m->typedNumber(), QString());
        QCOMPARE(leaving.count(), 0);
        press({ Qt::Key_Back });
        QCOMPARE(leaving.count(), 1);
    }

    void aNumberNeverGrowsBeyondNineDigits()
    {
        setUp();
        for (int i = 0; i < 9; ++i)
            press({ Qt::Key_1 });
        QCOMPARE(m->typedNumber().size(), 9);
        press({ Qt::Key_4 });
        QCOMPARE(m->typedNumber(), "4");
        QCOMPARE(chosen(), "s2");
    }

    void aNumberOfAnotherGroupShowsAllChannels()
    {
        setUp();
        press({ Qt::Key_Right, Qt::Key_4 });
        QCOMPARE(m->groupIndex(), 0);
        QCOMPARE(chosen(), "s2");
    }

    void aNumberOfTheGroupIsFoundFirst()
    {
        setUp({ { "a", "5", "A" }, { "b", "5", "B" }, { "c", "6", "B" } });
        press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_5 });
        QCOMPARE(m->groupIndex(), 2);
        QCOMPARE(chosen(), "b");
    }

    void returnPlaysTheChosenChannel()
    {
        setUp();
        QSignalSpy plays(m.get(), &ChannelsController::playRequested);
        press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return });
        QCOMPARE(plays.count(), 1);
        QCOMPARE(plays[0][0], 3); // in the guide, not in the group
        QCOMPARE(m->playing(), 3);
        QCOMPARE(playingRows(), QList<int> { 1 });
    }

    void aLockedChannelIsNotPlayedAndSaysSoUntilTheNextKey()
    {
        setUp();
        QSignalSpy plays(m.get(), &ChannelsController::playRequested);
        press({ Qt::Key_End, Qt::Key_Return });
        QCOMPARE(m->message(), "This channel is locked");
        QCOMPARE(plays.count(), 0);
        QCOMPARE(m->playing(), 0);
        press({ Qt::Key_Up });
        QCOMPARE(m->message(), QString());
    }

    void theMarkOfTheChannelThatPlaysChangesTwoRowsOnly()
    {
        setUp();
        QSignalSpy data(m->channels(), &QAbstractItemModel::dataChanged);
        m->setPlaying(3);
        QCOMPARE(data.count(), 2);
        QCOMPARE(data[0][0].toModelIndex().row(), 0);
        QCOMPARE(data[1][0].toModelIndex().row(), 3);
        QCOMPARE(data[1][2].value<QList<int>>(), QList<int> { ChannelRows::PlayingRole });
        m->setPlaying(3);
        m->setPlaying(-1);
        m->setPlaying(7);
        QCOMPARE(data.count(), 2);
        QCOMPARE(m->playing(), 3);
    }

    void theTimeMovesProgressWithoutAReset()
    {
        setUp();
        QSignalSpy resets(m->channels(), &QAbstractItemModel::modelReset);
        QSignalSpy data(m->channels(), &QAbstractItemModel::dataChanged);
        m_clock->setFixed(guides::at(20, 6));
        QCOMPARE(resets.count(), 0);
        QCOMPARE(data.count(), 1);
        QCOMPARE(data[0][2].value<QList<int>>(),
                 (QList<int> { ChannelRows::ProgrammeRole, ChannelRows::ProgressRole }));
        QCOMPARE(row(0, ChannelRows::ProgressRole), 6.0 / 30);
        m_clock->setFixed(guides::at(20, 30));
        QCOMPARE(row(0, ChannelRows::ProgrammeRole), "n141");
        QCOMPARE(row(0, ChannelRows::ProgressRole), 0.0);
        QCOMPARE(m->title(), "n141");
    }

    void theFactsAreThoseOfTheChosenChannel()
    {
        setUp();
        press({ Qt::Key_Down });
        QCOMPARE(m->title(), "s140");
        QCOMPARE(m->subtitle(), "About s140");
        QCOMPARE(m->description(), "All of s140");
        QCOMPARE(m->timeRange(), u"20:00 – 20:30");
        QCOMPARE(m->nextTitle(), "s141");
        QCOMPARE(m->nextTime(), "20:30");
        QVERIFY(!m->still().isEmpty());
    }

    void theProgrammesOwnPictureComesBeforeADrawnOne()
    {
        gallery::GuideBuilder builder;
        gallery::NewProgramme programme;
        programme.channelId = "a";
        programme.start = guides::at(20, 0).toSecsSinceEpoch();
        programme.stop = guides::at(21, 0).toSecsSinceEpoch();
        programme.title = "With a picture";
        programme.picture = QUrl("http://example.org/p.jpg");
        builder.addProgramme(programme);
        setUp({});
        m->setGuide(builder.take());
        QCOMPARE(m->still(), QUrl("http://example.org/p.jpg"));
    }

    void anotherGuideKeepsTheChannelTheGroupAndWhatPlays()
    {
        setUp();
        press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return, Qt::Key_Down });
        QCOMPARE(chosen(), "s3");
        QList<channels::Spec> specs = channels::seven();
        specs.move(5, 0);
        m->setGuide(channels::guide(specs));
        QCOMPARE(m->groupIndex(), 1); // Sport comes first now
        QCOMPARE(chosen(), "s3");
        QCOMPARE(m->channelRow(), 0);
        QCOMPARE(playingRows(), QList<int> { 2 });
    }

    void aGroupThatHasGoneShowsAllChannels()
    {
        setUp();
        press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Down });
        QList<channels::Spec> specs = channels::seven();
        for (channels::Spec &spec : specs)
            spec.group = spec.group == "Sport" ? "Games" : spec.group;
        m->setGuide(channels::guide(specs));
        QCOMPARE(m->groupIndex(), 0);
        QCOMPARE(chosen(), "s2");
    }

    void aChosenChannelThatLeavesItsGroupIsShownAmongAll()
    {
        setUp();
        press({ Qt::Key_Right, Qt::Key_Right, Qt::Key_Down });
        QList<channels::Spec> specs = channels::seven();
        specs[3].group = "News";
        m->setGuide(channels::guide(specs));
        QCOMPARE(m->groupIndex(), 0);
        QCOMPARE(chosen(), "s2");
    }

    void aChannelThatHasGoneLeavesTheChoiceInItsRow()
    {
        setUp();
        press({ Qt::Key_Down, Qt::Key_Down });
        QList<channels::Spec> specs = channels::seven();
        specs.removeAt(2);
        m->setGuide(channels::guide(specs));
        QCOMPARE(chosen(), "s2");
        press({ Qt::Key_End });
        specs.resize(2);
        m->setGuide(channels::guide(specs));
        QCOMPARE(chosen(), "s1");
    }

    void afterAnEmptyGuideTheChannelIsFoundAgain()
    {
        setUp();
        press({ Qt::Key_End });
        m->setGuide({});
        QCOMPARE(m->channelRow(), -1);
        QCOMPARE(m->title(), QString());
        m->setGuide(channels::guide(channels::seven()));
        QCOMPARE(chosen(), "k");
    }

    void aStartShowsAllChannelsAtTheOneThatPlays()
    {
        setUp();
        press({ Qt::Key_Down, Qt::Key_Return, Qt::Key_Right, Qt::Key_Down, Qt::Key_1 });
        m->start();
        QCOMPARE(m->groupIndex(), 0);
        QCOMPARE(chosen(), "s1");
        QCOMPARE(m->typedNumber(), QString());
    }

    void whoeverHearsOfAnotherChoiceFindsTheGroupsAndTheRow()
    {
        setUp();
        press({ Qt::Key_Right, Qt::Key_Right });
        bool right = true;
        connect(m.get(), &ChannelsController::selectionChanged, m.get(), [this, &right] {
            right = right && m->groupIndex() <= std::max(0, int(m->groups().size()) - 1)
                    && m->channelRow() < m->channels()->rowCount();
        });
        m->setGuide(channels::guide({ { "s2" }, { "s1" } }));
        m->setGuide({});
        QVERIFY(right);
    }

    void theChoiceHoldsThroughAnyKeysAndAnyGuides()
    {
        setUp();
        const QList<Qt::Key> keys { Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Left, Qt::Key_Right,
                                    Qt::Key_PageUp, Qt::Key_Home,     Qt::Key_End,  Qt::Key_Return,
                                    Qt::Key_Back,   Qt::Key_PageDown, Qt::Key_0,    Qt::Key_1,
                                    Qt::Key_2,      Qt::Key_7,        Qt::Key_A };
        const stbtest::RandomOptions options = stbtest::randomOptions();
        const quint32 seed = options.seed.value_or(20261121);
        QRandomGenerator random(seed);
        for (int step = 0; step < options.steps.value_or(10000); ++step) {
            const QString before = chosen();
            QString kept;
            if (random.bounded(10) == 0) {
                const gallery::Guide guide = randomGuide(random);
                if (guide.channelIndex(before) >= 0)
                    kept = before;
                m->setGuide(guide);
            } else if (random.bounded(20) == 0) {
                m_clock->setFixed(guides::at(int(random.bounded(24)), int(random.bounded(60))));
                kept = before;
            } else {
                m->press(keys.at(random.bounded(int(keys.size()))));
            }
            const QString problem = inconsistency(kept);
            QVERIFY2(problem.isEmpty(),
                     qPrintable(QStringLiteral("seed %1, step %2: %3").arg(seed).arg(step).arg(problem)));
        }
    }

private:
    // Some of twelve channels in any order, in any groups; now and then none.
    static gallery::Guide randomGuide(QRandomGenerator &random)
    {
        const QStringList groups { {}, "News", "Sport", "Films" };
        QList<channels::Spec> specs;
        const int count = int(random.bounded(9)) * int(random.bounded(8) > 0);
        QList<int> ids { 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11 };
        for (int i = 0; i < count; ++i) {
            const int id = ids.takeAt(random.bounded(int(ids.size())));
            specs.append({ "c" + QString::number(id),
                           QString::number(random.bounded(13)),
                           groups.at(random.bounded(int(groups.size()))),
                           {},
                           random.bounded(4) == 0,
                           {},
                           random.bounded(3) == 0 ? 0 : 240 });
        }
        return channels::guide(specs);
    }

    // What does not fit together, or nothing; \a kept is the channel that has to be chosen, if not empty.
    QString inconsistency(const QString &kept) const
    {
        const int rows = m->channels()->rowCount();
        if (m->guide().isEmpty() != (rows == 0))
            return QStringLiteral("%1 rows of %2 channels").arg(rows).arg(m->guide().channelCount());
        if (m->channelRow() < (rows > 0 ? 0 : -1) || m->channelRow() >= std::max(rows, 0))
            return QStringLiteral("row %1 of %2").arg(m->channelRow()).arg(rows);
        const int groups = std::max(1, int(m->groups().size()));
        if (m->groupIndex() < 0 || m->groupIndex() >= groups)
            return QStringLiteral("group %1 of %2").arg(m->groupIndex()).arg(groups);
        const QString group = m->groups().value(m->groupIndex());
        for (int i = 0; i < rows && !group.isEmpty(); ++i) {
            if (m->guide().channel(row(i, ChannelRows::ChannelRole).toInt()).group != group)
                return QStringLiteral("row %1 is not of the group").arg(i);
        }
        if (!kept.isEmpty() && chosen() != kept)
            return QStringLiteral("%1 is chosen in place of %2").arg(chosen(), kept);
        const bool nothingToPlay = m->guide().firstChannelOnAir(0) < 0; // all are locked, or there is none
        if (playingRows().size() > 1 || (m->playing() < 0) != nothingToPlay)
            return QStringLiteral("the wrong channels play");
        if (rows > 0 && m->title() != row(m->channelRow(), ChannelRows::ProgrammeRole))
            return QStringLiteral("the facts are of another channel");
        return {};
    }
};

STB_TEST_MAIN(tst_ChannelsController)
#include "tst_channelscontroller.moc"
