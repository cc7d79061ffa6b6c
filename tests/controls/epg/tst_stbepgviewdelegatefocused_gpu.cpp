// SPDX-License-Identifier: MIT
#include "focusedscene.h"
#include "testkit/pictures.h"
#include "testkit/shownstage.h"
#include "testkit/testcase.h"

#include <QtCore/qtemporarydir.h>

using stbtest::ShownStage;

namespace {

const stbtest::Tolerance sameGlyphs { 26, 60,
                                      "blending rounds differently by a step or two, and the pictures were "
                                      "made by the software adaptation" };
// The picture is stretched over the card: at the borders of its fields the two adaptations blend differently.
const stbtest::Tolerance sameButForStretching {
    26, 2500,
    "the graphics card blends where colours meet in a stretched "
    "picture; the software adaptation does so a little differently"
};

struct Scene
{
    Scene()
    {
        design_system::PlayerEpgDelegateStyle values = oddEpgStyle();
        values.previewRect.moveTop(0);
        style.setStyle(values);
        row = qml.createItem<StbEpgViewDelegateFocused>(
                "import Stbui.UI.Qml.Controls.Basic\nEpgViewDelegateFocused { width: 580 }",
                stage.contentItem());
        if (!row)
            qFatal("no row");
        row->setPosition(rowPosition);
        row->setStyle(&style);
        row->setStartTimeText("20:05");
        row->setTitle("Evening news");
        row->setSubtitle("With the weather");
        row->setProgress(0.3);
    }

    const EpgWords words;
    stbtest::QmlScene qml;
    ShownStage stage { QSize(640, 440), stageGround };
    design_system::PlayerEpgDelegateQmlStyle style;
    std::unique_ptr<StbEpgViewDelegateFocused> row;
};

} // namespace

// The row on an adaptation whose textures are no pixmaps: the same pictures as under the software adaptation.
class tst_StbEpgViewDelegateFocusedGpu : public stbtest::TestCase
{
    Q_OBJECT
    QTemporaryDir m_folder;
    QUrl m_picture;

private Q_SLOTS:
    void initTestCase()
    {
        Scene scene;
        QVERIFY(!scene.stage.isSoftware());
        QVERIFY(fieldsPicture().save(m_folder.filePath("fields.png")));
        m_picture = QUrl::fromLocalFile(m_folder.filePath("fields.png"));
    }

    void everyStateShowsThePictureOfTheSoftwareAdaptation()
    {
        Scene scene;
        scene.row->setPast(true);
        scene.row->setFuture(true);
        scene.row->setReminder(true);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegatefocused-no-picture", sameGlyphs);
        scene.row->setImageSource(m_picture);
        scene.row->setPast(false);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegatefocused-reminder", sameButForStretching);
        scene.row->setReminder(false);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegatefocused-future", sameButForStretching);
        scene.row->setFuture(false);
        scene.row->setPast(true);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegatefocused-past", sameButForStretching);
        scene.row->setPlayable(true);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegatefocused-playable", sameButForStretching);
        scene.row->setPast(false);
        scene.row->setLive(true);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegatefocused-live", sameButForStretching);
    }

    void thePictureComesGoesAndComesBack()
    {
        Scene scene;
        scene.row->setPast(true);
        const QImage without = scene.stage.picture();
        scene.row->setImageSource(m_picture);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegatefocused-past", sameButForStretching);
        scene.row->setImageSource(QUrl());
        QCOMPARE(stbtest::comparePictures(scene.stage.picture(), without).text(), QString());
        scene.row->setImageSource(m_picture);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegatefocused-past", sameButForStretching);
    }

    void anotherWindowShowsTheSamePicture()
    {
        Scene scene;
        scene.row->setFuture(true);
        scene.row->setImageSource(m_picture);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegatefocused-future", sameButForStretching);
        ShownStage other(QSize(640, 440), stageGround);
        scene.row->setParentItem(other.contentItem());
        STB_COMPARE_GOLDEN(other.picture(), "epgviewdelegatefocused-future", sameButForStretching);
        scene.row->setParentItem(scene.stage.contentItem());
        STB_COMPARE_GOLDEN(scene.stage.picture(), "epgviewdelegatefocused-future", sameButForStretching);
    }
};

STB_TEST_MAIN(tst_StbEpgViewDelegateFocusedGpu)
#include "tst_stbepgviewdelegatefocused_gpu.moc"
