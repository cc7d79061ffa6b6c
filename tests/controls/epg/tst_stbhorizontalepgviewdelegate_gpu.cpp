// SPDX-License-Identifier: MIT
#include "horizontalepgscene.h"
#include "testkit/pictures.h"
#include "testkit/shownstage.h"
#include "testkit/testcase.h"

#include <controls/epg/stbhorizontalepgviewdelegate_p.h>

using stbtest::ShownStage;

namespace {

const stbtest::Tolerance sameGlyphs { 26, 60,
                                      "blending rounds differently by a step or two, and the pictures were "
                                      "made by the software adaptation" };

struct Scene : HorizontalEpgScene<ShownStage>
{
    bool show(const QString &name, const QImage &picture = programmePicture())
    {
        ask(name);
        const auto *d = static_cast<StbHorizontalEpgViewDelegatePrivate *>(QQuickItemPrivate::get(cell.get()));
        return pictures.deliver(name, picture)
               && QTest::qWaitFor([d] { return !d->m_picture.size().isEmpty(); });
    }
};

} // namespace

// The cell on an adaptation whose textures are no pixmaps: the same pictures as under the software adaptation.
class tst_StbHorizontalEpgViewDelegateGpu : public stbtest::TestCase
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
        STB_COMPARE_GOLDEN(scene.stage.picture(), "horizontalepg-no-picture", sameGlyphs);
        QVERIFY(scene.show("still"));
        STB_COMPARE_GOLDEN(scene.stage.picture(), "horizontalepg-picture", sameGlyphs);
        scene.cell->setTitle(QString());
        STB_COMPARE_GOLDEN(scene.stage.picture(), "horizontalepg-no-title", sameGlyphs);
        scene.cell->setTitle("Evening news");
        scene.ask("never");
        STB_COMPARE_GOLDEN(scene.stage.picture(), "horizontalepg-no-picture", sameGlyphs);
        QVERIFY(scene.show("again"));
        STB_COMPARE_GOLDEN(scene.stage.picture(), "horizontalepg-picture", sameGlyphs);
        QVERIFY(scene.show("at once")); // no frame between the old picture and the new one
        STB_COMPARE_GOLDEN(scene.stage.picture(), "horizontalepg-picture", sameGlyphs);
    }

    void emptiedTextsAndALostPictureLeaveNoHole()
    {
        Scene scene;
        scene.fill();
        QVERIFY(scene.show("still"));
        QVERIFY(!scene.stage.picture().isNull());
        scene.cell->setTitle(QString());
        scene.cell->setExactDate(QString());
        scene.cell->setDescription(QString());
        scene.cell->setImageSource(QUrl());
        QImage expected(QSize(560, 250), QImage::Format_RGB32);
        expected.fill(QColor(0, 60, 40));
        QPainter(&expected).fillRect(QRect(20, 30, 500, 161), QColor(33, 43, 73));
        QCOMPARE(stbtest::comparePictures(scene.stage.picture(), expected).text(), QString());
    }

    void anotherWindowShowsTheSamePicture()
    {
        Scene scene;
        scene.fill();
        QVERIFY(scene.show("still"));
        STB_COMPARE_GOLDEN(scene.stage.picture(), "horizontalepg-picture", sameGlyphs);
        const ShownStage other(QSize(560, 250), QColor(0, 60, 40));
        scene.cell->setParentItem(other.contentItem());
        STB_COMPARE_GOLDEN(other.picture(), "horizontalepg-picture", sameGlyphs);
        scene.cell->setParentItem(scene.stage.contentItem());
        STB_COMPARE_GOLDEN(scene.stage.picture(), "horizontalepg-picture", sameGlyphs);
        scene.cell->setParentItem(nullptr);
    }
};

STB_TEST_MAIN(tst_StbHorizontalEpgViewDelegateGpu)
#include "tst_stbhorizontalepgviewdelegate_gpu.moc"
