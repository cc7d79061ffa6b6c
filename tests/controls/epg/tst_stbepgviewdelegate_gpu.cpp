// SPDX-License-Identifier: MIT
#include "epgstyles.h"
#include "testkit/pictures.h"
#include "testkit/shownstage.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepgviewdelegate.h>

using stbtest::ShownStage;

namespace {

const stbtest::Tolerance sameGlyphs { 26, 60,
                                      "blending rounds differently by a step or two, and the pictures were "
                                      "made by the software adaptation" };

struct Scene
{
    Scene()
    {
        style.setStyle(oddEpgStyle());
        row.setParentItem(stage.contentItem());
        row.setPosition(QPointF(20, 30));
        row.setWidth(560);
        row.setStyle(&style);
        row.setStartTimeText("20:05");
        row.setTitle("Evening news");
        row.setSubtitle("With the weather");
    }

    NowInLive translator { "LIVE" };
    ShownStage stage { QSize(640, 300), QColor(0, 60, 40) };
    design_system::PlayerEpgDelegateQmlStyle style;
    StbEpgViewDelegate row;
};

} // namespace

// The row on an adaptation whose textures are no pixmaps: the same pictures as under the software adaptation.
class tst_StbEpgViewDelegateGpu : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        Scene scene;
        QVERIFY(!scene.stage.isSoftware());
    }

    void everyChangeShowsThePictureOfTheSoftwareAdaptation()
    {
        Scene scene;
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegate-past", sameGlyphs);
        scene.row.setPlayable(true);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegate-playable", sameGlyphs);
        scene.row.setLive(true);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegate-live", sameGlyphs);
        scene.row.setTitle("The long evening news of this and of the other day");
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegate-two-lines", sameGlyphs);
        scene.row.setTitle(QString());
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegate-no-title", sameGlyphs);
        scene.row.setTitle("Evening news");
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegate-live", sameGlyphs);
        scene.row.setLive(false);
        scene.row.setPlayable(false);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegate-past", sameGlyphs);
    }

    void textsThatBecomeEmptyLeaveNoHole()
    {
        Scene scene;
        QVERIFY(!scene.stage.picture().isNull());
        scene.row.setTitle(QString());
        scene.row.setSubtitle(QString());
        scene.row.setStartTimeText(QString());
        scene.row.setHeight(100); // without texts it is 0, and nothing would be there to leave a hole
        QImage ground(scene.stage.picture().size(), QImage::Format_RGB32);
        ground.fill(QColor(0, 60, 40));
        QCOMPARE(stbtest::comparePictures(scene.stage.picture(), ground).text(), QString());
    }

    void anotherWindowShowsTheSamePicture()
    {
        Scene scene;
        scene.row.setPlayable(true);
        scene.row.setLive(true);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegate-live", sameGlyphs);
        ShownStage other(QSize(640, 300), QColor(0, 60, 40));
        scene.row.setParentItem(other.contentItem());
        STB_COMPARE_GOLDEN(other.picture(), "epgviewdelegate-live", sameGlyphs);
        scene.row.setParentItem(scene.stage.contentItem());
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegate-live", sameGlyphs);
    }
};

STB_TEST_MAIN(tst_StbEpgViewDelegateGpu)
#include "tst_stbepgviewdelegate_gpu.moc"
