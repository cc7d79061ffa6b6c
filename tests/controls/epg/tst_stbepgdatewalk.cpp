// SPDX-License-Identifier: MIT
#include "epgstyles.h"
#include "testkit/propertywalk.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepgdate.h>

// On purpose a cell keeps the fonts and the width that it began to paint with: the styles differ in the colours
// alone, and the width changes to nothing and back.
class tst_StbEpgDateWalk : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        design_system::PlayerEpgDateStyle style = oddEpgDateStyle();
        m_first.setStyle(style);
        style.monthColor = otherEpgDateStyle().monthColor;
        style.dayActiveColor = otherEpgDateStyle().dayActiveColor;
        style.dayInactiveColor = otherEpgDateStyle().dayInactiveColor;
        m_second.setStyle(style);
    }

    void whatIsPaintedStepByStepIsWhatAFreshCellPaints()
    {
        stbtest::PropertyWalk walk([] { return std::make_unique<StbEpgDate>(); });
        walk.steps(400)
                .stageSize(QSize(220, 140))
                .property("date", { QDate(), QDate(2026, 3, 1), QDate(2026, 3, 25), QDate(2026, 9, 25),
                                    QDate(2026, 5, 11), QDate(2027, 12, 2) })
                .property("isActive", { true, false })
                .property("style",
                          { QVariant::fromValue(&m_first), QVariant::fromValue(&m_second),
                            QVariant::fromValue(&m_first), QVariant::fromValue(&m_second), QVariant() })
                .property("width", { 151, 151, 151, 151, 151, 151, 151, 0 })
                .property("height", { 71, 71, 71, 71, 33, 33, 33, 0 })
                .property("visible", { true, true, true, true, false })
                .property("opacity", { 1.0, 1.0, 0.5 })
                .exclude("enabled", "a cell has no disabled state");
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
        QVERIFY(walk.stepsPainted() > walk.stepsMade() / 10);
    }

private:
    design_system::PlayerEpgDateQmlStyle m_first;
    design_system::PlayerEpgDateQmlStyle m_second;
};

STB_TEST_MAIN(tst_StbEpgDateWalk)
#include "tst_stbepgdatewalk.moc"
