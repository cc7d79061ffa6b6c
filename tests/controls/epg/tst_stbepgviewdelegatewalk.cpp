// SPDX-License-Identifier: MIT
#include "epgstyles.h"
#include "testkit/propertywalk.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepgviewdelegate.h>

class tst_StbEpgViewDelegateWalk : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        m_first.setStyle(oddEpgStyle());
        m_second.setStyle(otherEpgStyle());
    }

    void whatIsPaintedStepByStepIsWhatAFreshRowPaints()
    {
        stbtest::PropertyWalk walk([] { return std::make_unique<StbEpgViewDelegate>(); });
        declareContent(walk);
        walk.property("style", { QVariant::fromValue(&m_first), QVariant::fromValue(&m_second),
                                 QVariant::fromValue(&m_first), QVariant() })
                .property("width", { 0, 1, 300, 560.5, 620 });
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
        QVERIFY(walk.stepsPainted() > walk.stepsMade() / 4);
    }

    // A row without style or width keeps the height it had, so only rows that have both are compared.
    void theHeightIsTheOneOfAFreshRow()
    {
        stbtest::PropertyWalk walk([] { return std::make_unique<StbEpgViewDelegate>(); });
        declareContent(walk);
        walk.property("style", { QVariant::fromValue(&m_first), QVariant::fromValue(&m_second) })
                .once("width", 560, "a row without width keeps its height")
                .comparedProperty("height");
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
    }

private:
    static void declareContent(stbtest::PropertyWalk &walk)
    {
        walk.stageSize(QSize(640, 240))
                .property("itemTitle", { "", "News", "The long evening news of this and of the other day",
                                         QString::fromUtf8("نشرة الأخبار"), "One\ntwo" })
                .property("itemSubtitle",
                          { "", "With the weather", "A", "Sports and the weather of tomorrow" })
                .property("tvProgramStartTimeText", { "", "20:05", "8 pm", "20:05 in the evening" })
                .property("tvProgramIsLive", { false, true })
                .property("tvProgramIsFuture", { false, true })
                .property("tvProgramPlayable", { false, true })
                .exclude("enabled", "a row has no disabled state");
    }

    const NowInLive m_translator { "LIVE" };
    // Two styles that differ in everything. The subtitle's and the label's fonts differ too: rows with the same
    // text and font share one layout whatever their widths are.
    design_system::PlayerEpgDelegateQmlStyle m_first;
    design_system::PlayerEpgDelegateQmlStyle m_second;
};

STB_TEST_MAIN(tst_StbEpgViewDelegateWalk)
#include "tst_stbepgviewdelegatewalk.moc"
