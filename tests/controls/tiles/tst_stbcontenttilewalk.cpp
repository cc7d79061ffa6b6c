// SPDX-License-Identifier: MIT
#include "testkit/propertywalk.h"
#include "testkit/testcase.h"
#include "tilestyles.h"

#include <controls/tiles/stbcontenttile.h>

using stbtest::PropertyWalk;

// Two things depend on what was before, on purpose, and are left out of the styles: the favourite icon and the frame
// keep the colours they were made with.
class tst_StbContentTileWalk : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        m_first.setStyle(oddTileStyle());
        design_system::TileStyle other = otherTileStyle();
        other.favouriteIconColor = oddTileStyle().favouriteIconColor;
        other.overlayColor = oddTileStyle().overlayColor;
        other.borderPen = oddTileStyle().borderPen;
        m_second.setStyle(other);
        // Without a spacing a line that became empty takes no room, as one that never was.
        design_system::TileStyle tight = oddTileStyle();
        tight.captionSpacing = 0;
        m_tight.setStyle(tight);
    }

    void whatIsPaintedStepByStepIsWhatAFreshTilePaints()
    {
        PropertyWalk walk([] { return std::make_unique<StbContentTile>(); });
        declare(walk);
        walk.property("itemTitle", { "Rivers", "A very long title that fits into no tile",
                                     QString::fromUtf8("نشرة الأخبار"), "One\ntwo" })
                .property("itemSubtitle", { "Part three", "A", "Of the seas and of the lakes of the world" })
                .property("itemStatus", { "New", "Tomorrow at a quarter past eight in the evening" })
                .property("style", { QVariant::fromValue(&m_first), QVariant::fromValue(&m_second),
                                     QVariant::fromValue(&m_first), QVariant() })
                .exclude("customFocusRect", "a new style writes it");
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
        QVERIFY(walk.stepsPainted() > walk.stepsMade() / 4);
    }

    void textsComeAndGoWhileThePictureMoves()
    {
        PropertyWalk walk([] { return std::make_unique<StbContentTile>(); });
        declare(walk);
        walk.once("style", QVariant::fromValue(&m_tight), "a new style writes the picture's rectangle")
                .property("customFocusRect", { QRect(0, 0, 201, 113), QRect(-7, -5, 215, 125),
                                               QRect(-23, -17, 253, 161), QRect(0, 0, 201, 3) })
                .property("itemTitle", { "", "Rivers", "A very long title that fits into no tile" })
                .property("itemSubtitle", { "", "Part three" })
                .property("itemStatus", { "", "New" });
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
        QVERIFY(walk.stepsPainted() > walk.stepsMade() / 4);
    }

private:
    static void declare(PropertyWalk &walk)
    {
        walk.stageSize(QSize(360, 340))
                .property("itemIsFavourite", { false, true })
                .exclude("imageSource", "nothing is loaded without an engine")
                .exclude("itemBackgroundColor", "a change of it asks for no frame, on purpose")
                .exclude("width", "the style owns the size")
                .exclude("enabled", "a tile has no disabled state");
    }

    design_system::TileQmlStyle m_first;
    design_system::TileQmlStyle m_second;
    design_system::TileQmlStyle m_tight;
};

STB_TEST_MAIN(tst_StbContentTileWalk)
#include "tst_stbcontenttilewalk.moc"
