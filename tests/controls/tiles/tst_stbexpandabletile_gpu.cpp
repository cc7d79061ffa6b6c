// SPDX-License-Identifier: MIT
#include "testkit/pictures.h"
#include "testkit/shownstage.h"
#include "testkit/testcase.h"
#include "tilescene.h"

using stbtest::ShownStage;

namespace {

const stbtest::Tolerance blending {
    3, 0,
    "blending rounds differently by a step or two, and the pictures were made by "
    "the software adaptation"
};
const stbtest::Tolerance scaling {
    3, 1200,
    "a scaled picture is interpolated differently along its inner edges, four lines "
    "of two pixels"
};

struct Scene
{
    explicit Scene(bool fading)
    {
        settings.setValue("Animations", "fadeEffectEnabled", fading);
        style.setStyle(oddTileStyle());
        tile = qml.createItem<StbExpandableTile>("import Stbui.UI.Qml.Controls.Basic\nExpandableTile {}",
                                                 stage.contentItem());
        tile->setPosition(QPointF(60, 50));
        tile->setStyle(&style);
    }
    StbExpandableTilePrivate *d() { return tilePrivate(tile.get()); }
    bool show(const QImage &picture, const QString &name)
    {
        tile->setImageSource(stbtest::HandPictures::url(name));
        return pictures.deliver(name, picture)
               && QTest::qWaitFor([this] { return !d()->m_poster.size().isEmpty(); });
    }

    stbtest::MemoryConfiguration settings;
    stbtest::QmlScene qml;
    stbtest::HandPictures pictures { qml.engine() };
    ShownStage stage { QSize(400, 320), QColor(0, 60, 40) };
    design_system::TileQmlStyle style;
    std::unique_ptr<StbExpandableTile> tile;
};

} // namespace

// The tile on an adaptation whose textures are no pixmaps: the same pictures as under the software adaptation.
class tst_StbExpandableTileGpu : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        Scene scene(false);
        QVERIFY(!scene.stage.isSoftware());
    }

    void everyChangeShowsThePictureOfTheSoftwareAdaptation()
    {
        Scene scene(true);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "expandabletile-no-picture", blending);
        QVERIFY(scene.show(fieldsPicture(), "fields"));
        scene.d()->m_fadeTimeLine.setUpdateInterval(1000000); // the window's own event loop moves nothing
        advance(scene.d()->m_fadeTimeLine, 0.5);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "expandabletile-fading", blending);
        finish(scene.d()->m_fadeTimeLine);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "expandabletile-resting", blending);
        scene.d()->m_focusTimeLine.setUpdateInterval(1000000);
        scene.tile->setState("focused");
        advance(scene.d()->m_focusTimeLine, 0.5);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "expandabletile-half-way", scaling);
        finish(scene.d()->m_focusTimeLine);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "expandabletile-focused", scaling);
    }

    void aNewPictureReplacesTheOldOne()
    {
        Scene scene(false);
        QVERIFY(scene.show(plainPicture(Qt::red), "red"));
        const QColor red = scene.stage.picture().pixelColor(150, 100);
        // No frame is shown between the end of the old picture and the arrival of the new one.
        QVERIFY(scene.show(fieldsPicture(), "fields"));
        STB_COMPARE_GOLDEN(scene.stage.picture(), "expandabletile-resting", blending);
        QVERIFY(red.red() > 200);
        scene.tile->setImageSource(QUrl());
        STB_COMPARE_GOLDEN(scene.stage.picture(), "expandabletile-no-picture", blending);
    }

    void anInvalidFocusRectangleShowsNothing()
    {
        Scene scene(false);
        QVERIFY(scene.show(fieldsPicture(), "fields"));
        scene.tile->setCustomFocusRect(QRect(QPoint(90, 90), QPoint(20, 20)));
        QImage ground(scene.stage.picture().size(), QImage::Format_RGB32);
        ground.fill(QColor(0, 60, 40));
        QCOMPARE(stbtest::comparePictures(scene.stage.picture(), ground).text(), QString());
    }

    void anotherWindowShowsTheSamePicture()
    {
        Scene scene(false);
        QVERIFY(scene.show(fieldsPicture(), "fields"));
        STB_COMPARE_GOLDEN(scene.stage.picture(), "expandabletile-resting", blending);
        ShownStage other(QSize(400, 320), QColor(0, 60, 40));
        scene.tile->setParentItem(other.contentItem());
        STB_COMPARE_GOLDEN(other.picture(), "expandabletile-resting", blending);
        scene.tile->setParentItem(scene.stage.contentItem());
        STB_COMPARE_GOLDEN(scene.stage.picture(), "expandabletile-resting", blending);
    }

    void aTileMayGoWithItsPictureShown()
    {
        Scene scene(false);
        QVERIFY(scene.show(fieldsPicture(), "fields"));
        QVERIFY(!scene.stage.picture().isNull());
        scene.tile.reset();
        QCOMPARE(scene.stage.picture().pixelColor(150, 100), QColor(0, 60, 40));
    }
};

STB_TEST_MAIN(tst_StbExpandableTileGpu)
#include "tst_stbexpandabletile_gpu.moc"
