// SPDX-License-Identifier: MIT
#include "epgdatescene.h"
#include "testkit/pictures.h"
#include "testkit/shownstage.h"
#include "testkit/testcase.h"

using stbtest::ShownStage;

namespace {

using Scene = EpgDateScene<ShownStage>;

const stbtest::Tolerance sameGlyphs { 26, 60,
                                      "blending rounds differently by a step or two, and the pictures were "
                                      "made by the software adaptation" };
const QDate august(2026, 8, 25);

} // namespace

// The cell on an adaptation whose textures are no pixmaps: the same pictures as under the software adaptation.
class tst_StbEpgDateGpu : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        const Scene scene;
        QVERIFY(!scene.stage.isSoftware());
    }

    void everyChangeShowsThePictureOfTheSoftwareAdaptation()
    {
        Scene scene;
        scene.fill(august);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgdate-active", sameGlyphs);
        scene.cell.setActive(false);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgdate-inactive", sameGlyphs);
        scene.cell.setActive(true);
        const DefaultLocale locale(QLocale("ru_RU"));
        scene.cell.setDate(QDate());
        QImage ground(QSize(200, 130), QImage::Format_RGB32);
        ground.fill(QColor(0, 60, 40));
        QCOMPARE(stbtest::comparePictures(scene.stage.picture(), ground).text(), QString());
        scene.cell.setDate(august);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgdate-russian", sameGlyphs);
    }

    void anotherWindowShowsTheSamePicture()
    {
        Scene scene;
        scene.fill(august);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgdate-active", sameGlyphs);
        const ShownStage other(QSize(200, 130), QColor(0, 60, 40));
        scene.cell.setParentItem(other.contentItem());
        STB_COMPARE_GOLDEN(other.picture(), "epgdate-active", sameGlyphs);
        scene.cell.setParentItem(scene.stage.contentItem());
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgdate-active", sameGlyphs);
    }
};

STB_TEST_MAIN(tst_StbEpgDateGpu)
#include "tst_stbepgdate_gpu.moc"
