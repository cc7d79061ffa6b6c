// SPDX-License-Identifier: MIT
#include "focusedscene.h"
#include "testkit/propertywalk.h"
#include "testkit/testcase.h"

#include <QtCore/qtemporarydir.h>

#include <limits>

class tst_StbEpgViewDelegateFocusedWalk : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        m_first.setStyle(oddEpgStyle());
        design_system::PlayerEpgDelegateStyle second = otherEpgStyle();
        second.previewRect.setHeight(157); // room for what is on the card
        m_second.setStyle(second);
        QVERIFY(fieldsPicture().save(m_folder.filePath("fields.png")));
        QVERIFY(fieldsPicture(QSize(31, 77))
                        .transformed(QTransform::fromScale(1, -1))
                        .save(m_folder.filePath("tall.png")));
    }

    void whatIsPaintedStepByStepIsWhatAFreshRowPaints()
    {
        stbtest::PropertyWalk walk([this] { return makeRow(); });
        declareContent(walk);
        walk.property("style", { QVariant::fromValue(&m_first), QVariant::fromValue(&m_second),
                                 QVariant::fromValue(&m_first), QVariant() })
                .property("width", { 0, 1, 300, 580.5, 620 });
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
        QVERIFY(walk.stepsPainted() > walk.stepsMade() / 4);
    }

    // A row without style or width keeps the height it had, so only rows that have both are compared.
    void heightAndFocusRectangleAreThoseOfAFreshRow()
    {
        stbtest::PropertyWalk walk([this] { return makeRow(); });
        declareContent(walk);
        walk.property("style", { QVariant::fromValue(&m_first), QVariant::fromValue(&m_second) })
                .once("width", 580, "a row without width keeps its height")
                .comparedProperty("height")
                .comparedProperty("customFocusRect");
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
    }

private:
    std::unique_ptr<QQuickItem> makeRow()
    {
        return m_qml.createItem("import Stbui.UI.Qml.Controls.Basic\nEpgViewDelegateFocused {}");
    }

    void declareContent(stbtest::PropertyWalk &walk) const
    {
        const auto picture = [&](const char *name) { return QUrl::fromLocalFile(m_folder.filePath(name)); };
        constexpr double infinity = std::numeric_limits<double>::infinity();
        walk.stageSize(QSize(640, 440))
                .property("itemTitle", { "", "News", "The long evening news of this and of the other day" })
                .property("itemSubtitle", { "", "With the weather", "A" })
                .property("tvProgramStartTimeText", { "", "20:05", "20:05 in the evening" })
                .property("tvProgramIsLive", { false, true })
                .property("tvProgramIsFuture", { false, true })
                .property("tvProgramIsPast", { false, true })
                .property("tvProgramPlayable", { false, true })
                .property("tvProgramHasReminder", { false, true })
                .property("tvProgramProgress", { 0.0, 0.3, 0.5, 1.0, -1.0, 2.0, infinity,
                                                 std::numeric_limits<double>::quiet_NaN() })
                .property("imageSource",
                          { QUrl(), picture("fields.png"), picture("tall.png"), picture("missing.png") })
                .exclude("enabled", "a row has no disabled state");
    }

    const EpgWords m_words;
    stbtest::QmlScene m_qml;
    QTemporaryDir m_folder;
    // Two styles that differ in everything, the fonts of shared texts too: rows with the same text and font share
    // one layout whatever their widths are.
    design_system::PlayerEpgDelegateQmlStyle m_first;
    design_system::PlayerEpgDelegateQmlStyle m_second;
};

STB_TEST_MAIN(tst_StbEpgViewDelegateFocusedWalk)
#include "tst_stbepgviewdelegatefocusedwalk.moc"
