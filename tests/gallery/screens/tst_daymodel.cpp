// SPDX-License-Identifier: MIT
#include "gallery/data/guidebuilder.h"
#include "gallery/screens/daymodel.h"
#include "testkit/testcase.h"

#include <QtTest/qsignalspy.h>

using namespace gallery;

namespace {

const QDate today(2026, 3, 11);

QDateTime at(QDate date, int hour)
{
    return QDateTime(date, QTime(hour, 0));
}

/*! One channel with programmes from and to these times. */
Guide guideOf(const QList<std::pair<QDateTime, QDateTime>> &times)
{
    GuideBuilder builder;
    builder.addChannel({ "a", "A", {}, {} });
    for (const auto &[start, stop] : times) {
        NewProgramme programme;
        programme.channelId = "a";
        programme.title = "T";
        programme.start = start.toSecsSinceEpoch();
        programme.stop = stop.toSecsSinceEpoch();
        builder.addProgramme(programme);
    }
    return builder.take();
}

} // namespace

class TestDayModel : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void withoutTodayThereAreNoDays()
    {
        const DayModel model;
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.rowOf(today), -1);
    }

    void aWeekBeforeAndAWeekAfterToday()
    {
        DayModel model;
        model.setToday(today);
        QCOMPARE(model.rowCount(), 15);
        QCOMPARE(model.dateAt(0), QDate(2026, 3, 4));
        QCOMPARE(model.dateAt(7), today);
        QCOMPARE(model.dateAt(14), QDate(2026, 3, 18));
        for (int row = 0; row < 15; ++row) {
            const QModelIndex index = model.index(row);
            QCOMPARE(index.data(DayModel::DayRole).toDateTime(), at(model.dateAt(row), 12));
            QCOMPARE(index.data(DayModel::IsTodayRole).toBool(), row == 7);
        }
    }

    void aDayHasARowAndWhatIsBeyondTheNearest()
    {
        DayModel model;
        model.setToday(today);
        QCOMPARE(model.rowOf(QDate(2026, 3, 5)), 1);
        QCOMPARE(model.rowOf(QDate(2026, 1, 1)), 0);
        QCOMPARE(model.rowOf(QDate(2027, 1, 1)), 14);
        QCOMPARE(model.rowOf(QDate()), -1);
    }

    void aDayHasProgrammesWhenOneTouchesIt()
    {
        DayModel model;
        model.setToday(today);
        // One over midnight, one that ends with midnight, and one that begins with it.
        model.show(guideOf({ { at(today.addDays(-3), 23), at(today.addDays(-2), 1) },
                             { at(today, 22), at(today.addDays(1), 0) },
                             { at(today.addDays(4), 0), at(today.addDays(4), 1) } }),
                   0);
        QList<int> rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.index(row).data(DayModel::HasProgrammesRole).toBool())
                rows.append(row);
        }
        QCOMPARE(rows, QList<int>({ 4, 5, 7, 11 }));
    }

    void withoutAChannelNoDayHasProgrammes_data()
    {
        QTest::addColumn<int>("channel");
        QTest::newRow("none") << -1;
        QTest::newRow("one that is not there") << 1;
    }
    void withoutAChannelNoDayHasProgrammes()
    {
        QFETCH(int, channel);
        DayModel model;
        model.setToday(today);
        model.show(guideOf({ { at(today, 1), at(today, 2) } }), channel);
        QVERIFY(!model.index(7).data(DayModel::HasProgrammesRole).toBool());
    }

    void theNextDayChangesTheDataOnly()
    {
        DayModel model;
        model.setToday(today);
        QSignalSpy changed(&model, &DayModel::dataChanged);
        QSignalSpy reset(&model, &DayModel::modelReset);
        model.setToday(today);
        QCOMPARE(changed.count(), 0);
        model.setToday(today.addDays(1));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(reset.count(), 0);
        model.setToday({});
        QCOMPARE(reset.count(), 1);
    }

    void theSameChannelChangesNothing()
    {
        DayModel model;
        model.setToday(today);
        const Guide guide = guideOf({ { at(today, 1), at(today, 2) } });
        model.show(guide, 0);
        QSignalSpy changed(&model, &DayModel::dataChanged);
        model.show(guide, 0);
        QCOMPARE(changed.count(), 0);
        model.show(guide, -1);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.constFirst().at(2).value<QList<int>>(), QList<int>({ DayModel::HasProgrammesRole }));
    }
};

STB_TEST_MAIN(TestDayModel)
#include "tst_daymodel.moc"
