// SPDX-License-Identifier: MIT
#include "guides.h"
#include "testkit/testcase.h"

#include "gallery/data/clock.h"
#include "screens/guidecontroller.h"

#include <QtTest/qsignalspy.h>

using gallery::GuideController;

/*! What Back does in the guide, and the pages of the details. The test runs in UTC. */
class tst_GuideDetails : public stbtest::TestCase
{
    Q_OBJECT

    void press(std::initializer_list<Qt::Key> keys)
    {
        for (const Qt::Key key : keys)
            QVERIFY(m->press(key));
    }

    std::unique_ptr<gallery::Clock> m_clock;
    std::unique_ptr<GuideController> m;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_clock = std::make_unique<gallery::Clock>();
        m_clock->setFixed(guides::at(20, 5));
        m = std::make_unique<GuideController>(m_clock.get());
        m->setGuide(guides::five());
    }
    void cleanup()
    {
        m.reset();
        m_clock.reset();
    }

    void onWhatIsOnBackLeaves()
    {
        QCOMPARE(m->backAction(), GuideController::Leave);
        press({ Qt::Key_Right });
        QCOMPARE(m->backAction(), GuideController::Leave);
        QSignalSpy leaves(m.get(), &GuideController::leaveRequested);
        press({ Qt::Key_Back });
        QCOMPARE(leaves.count(), 1);
    }

    void elsewhereBackReturnsToWhatIsOn()
    {
        QSignalSpy leaves(m.get(), &GuideController::leaveRequested);
        for (const QList<Qt::Key> &keys : { QList<Qt::Key> { Qt::Key_Down },
                                            { Qt::Key_Home, Qt::Key_Up },
                                            { Qt::Key_MediaNext },
                                            { Qt::Key_Home } }) {
            for (const Qt::Key key : keys)
                m->press(key);
            QCOMPARE(m->backAction(), GuideController::ShowNow);
            press({ Qt::Key_Back });
            QCOMPARE(m->backAction(), GuideController::Leave);
            QCOMPARE(m->title(), "A40");
        }
        QCOMPARE(leaves.count(), 0);
    }

    void inTheDetailsBackClosesThem()
    {
        press({ Qt::Key_Down, Qt::Key_Info });
        QCOMPARE(m->backAction(), GuideController::CloseDetails);
        press({ Qt::Key_Back });
        QCOMPARE(m->backAction(), GuideController::ShowNow);
    }

    void whatBackDoesChangesWithTheTimeAndIsTold()
    {
        QSignalSpy changes(m.get(), &GuideController::backActionChanged);
        m_clock->setFixed(guides::at(20, 29));
        QCOMPARE(changes.count(), 0);
        m_clock->setFixed(guides::at(20, 31));
        QCOMPARE(m->title(), "A40");
        QCOMPARE(m->backAction(), GuideController::ShowNow);
        QCOMPARE(changes.count(), 1);
    }

    void anEmptyGuideCanBeLeft()
    {
        m->setGuide({});
        QCOMPARE(m->backAction(), GuideController::Leave);
    }

    void thereIsAtLeastOnePage()
    {
        QCOMPARE(m->detailsPages(), 1);
        m->setDetailsPages(0);
        QCOMPARE(m->detailsPages(), 1);
        QCOMPARE(m->detailsPage(), 0);
    }

    void upAndDownTurnThePagesBeforeTheyChooseAnotherProgramme()
    {
        press({ Qt::Key_Return });
        m->setDetailsPages(3);
        press({ Qt::Key_Down });
        QCOMPARE(m->detailsPage(), 1);
        press({ Qt::Key_Down });
        QCOMPARE(m->detailsPage(), 2);
        QCOMPARE(m->title(), "A40");
        press({ Qt::Key_Up });
        QCOMPARE(m->detailsPage(), 1);
        press({ Qt::Key_Down, Qt::Key_Down });
        QCOMPARE(m->title(), "A41");
        QCOMPARE(m->detailsPage(), 0);
        press({ Qt::Key_Up });
        QCOMPARE(m->title(), "A40");
        QVERIFY(m->isDetailsOpen());
    }

    void withoutDetailsNoPageIsTurned()
    {
        m->setDetailsPages(3);
        press({ Qt::Key_Down });
        QCOMPARE(m->title(), "A41");
        QCOMPARE(m->detailsPage(), 0);
    }

    void anotherProgrammeAndDetailsOpenedAgainBeginOnTheFirstPage()
    {
        press({ Qt::Key_Return });
        m->setDetailsPages(3);
        press({ Qt::Key_Down, Qt::Key_Right });
        QCOMPARE(m->detailsPage(), 0);
        press({ Qt::Key_Down, Qt::Key_Back, Qt::Key_Return });
        QCOMPARE(m->detailsPage(), 0);
    }

    void aRefreshLeavesThePageAndFewerPagesTheLastOne()
    {
        press({ Qt::Key_Return });
        m->setDetailsPages(4);
        press({ Qt::Key_Down, Qt::Key_Down, Qt::Key_Down });
        m->setGuide(guides::five());
        QCOMPARE(m->detailsPage(), 3);
        QSignalSpy changes(m.get(), &GuideController::detailsPageChanged);
        m->setDetailsPages(2);
        QCOMPARE(m->detailsPage(), 1);
        QCOMPARE(changes.count(), 1);
    }
};

STB_TEST_MAIN(tst_GuideDetails)
#include "tst_guidedetails.moc"
