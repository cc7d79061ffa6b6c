// SPDX-License-Identifier: MIT
#include "testkit/pictures.h"
#include "testkit/shownstage.h"
#include "testkit/testcase.h"
#include "tvchannelscene.h"

using stbtest::ShownStage;

namespace {

const stbtest::Tolerance sameGlyphs { 26, 60,
                                      "blending rounds differently by a step or two, and the pictures were "
                                      "made by the software adaptation" };

struct Scene : TvChannelScene<ShownStage>
{
    bool show(const QString &name, const QImage &picture = logoPicture())
    {
        ask(name);
        return pictures.deliver(name, picture)
               && QTest::qWaitFor([this] { return !d()->m_logo.size().isEmpty(); });
    }
};

} // namespace

// The row on an adaptation whose textures are no pixmaps: the same pictures as under the software adaptation.
class tst_StbTvChannelViewDelegateGpu : public stbtest::TestCase
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
        scene.fill();
        STB_COMPARE_GOLDEN(scene.stage.picture(), "tvchannel-bare", sameGlyphs);
        scene.setCell(2);
        QVERIFY(!scene.stage.picture().isNull());
        scene.row->setCachedChannelRect(canvasCell(1));
        STB_COMPARE_GOLDEN(scene.stage.picture(), "tvchannel-cell", sameGlyphs);
        scene.row->setLockIconVisible(true);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "tvchannel-lock", sameGlyphs);
        scene.row->setLockIconVisible(false);
        QVERIFY(scene.show("logo"));
        STB_COMPARE_GOLDEN(scene.stage.picture(), "tvchannel-logo", sameGlyphs);
        scene.row->setLive(true);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "tvchannel-playing", sameGlyphs);
        scene.row->setLive(false);
        scene.ask("never"); // the cell comes back
        STB_COMPARE_GOLDEN(scene.stage.picture(), "tvchannel-cell", sameGlyphs);
        QVERIFY(scene.show("again"));
        QVERIFY(scene.show("at once")); // no frame between the old logo and the new one
        STB_COMPARE_GOLDEN(scene.stage.picture(), "tvchannel-logo", sameGlyphs);
        scene.row->setChannelQuality(QString());
        scene.row->setChannelNumber(QString());
        STB_COMPARE_GOLDEN(scene.stage.picture(), "tvchannel-no-quality", sameGlyphs);
    }

    void anotherWindowShowsTheSamePicture_data()
    {
        QTest::addColumn<bool>("logo");
        QTest::newRow("logo") << true;
        QTest::newRow("cell") << false;
    }
    void anotherWindowShowsTheSamePicture()
    {
        QFETCH(bool, logo);
        Scene scene;
        scene.fill();
        scene.setCell(1);
        if (logo)
            QVERIFY(scene.show("logo"));
        const QString golden = logo ? "tvchannel-logo" : "tvchannel-cell";
        STB_COMPARE_GOLDEN(scene.stage.picture(), golden, sameGlyphs);
        const ShownStage other(QSize(640, 170), QColor(0, 60, 40));
        scene.row->setParentItem(other.contentItem());
        STB_COMPARE_GOLDEN(other.picture(), golden, sameGlyphs);
        scene.row->setParentItem(scene.stage.contentItem());
        STB_COMPARE_GOLDEN(scene.stage.picture(), golden, sameGlyphs);
        scene.row->setParentItem(nullptr);
    }

    void everythingThatGoesLeavesNoHole()
    {
        Scene scene;
        scene.fill();
        scene.setCell(1);
        scene.row->setLive(true);
        scene.row->setLockIconVisible(true);
        QVERIFY(scene.show("logo"));
        QVERIFY(!scene.stage.picture().isNull());
        scene.row->setLive(false);
        scene.row->setLockIconVisible(false);
        scene.row->setImageSource(QUrl());
        scene.row->setCachedChannelRect(QRect());
        scene.row->setChannelName(QString());
        scene.row->setChannelNumber(QString());
        scene.row->setChannelQuality(QString());
        scene.row->setProgramName(QString());
        scene.row->setProgress(1);
        QImage expected(QSize(640, 170), QImage::Format_RGB32);
        expected.fill(QColor(0, 60, 40));
        QPainter(&expected).fillRect(QRect(20 + 151, 30 + 99, 428, 5), QColor(61, 201, 111));
        QCOMPARE(stbtest::comparePictures(scene.stage.picture(), expected).text(), QString());
    }
};

STB_TEST_MAIN(tst_StbTvChannelViewDelegateGpu)
#include "tst_stbtvchannelviewdelegate_gpu.moc"
