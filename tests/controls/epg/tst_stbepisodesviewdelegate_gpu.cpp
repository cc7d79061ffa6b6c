// SPDX-License-Identifier: MIT
#include "episodesscene.h"
#include "testkit/pictures.h"
#include "testkit/shownstage.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepisodesviewdelegate_p.h>

using stbtest::ShownStage;

namespace {

const stbtest::Tolerance sameGlyphs { 26, 60,
                                      "blending rounds differently by a step or two, and the pictures were "
                                      "made by the software adaptation" };

struct Scene : EpisodesScene<ShownStage>
{
    bool show()
    {
        ask();
        const auto *d = static_cast<StbEpisodesViewDelegatePrivate *>(QQuickItemPrivate::get(cell.get()));
        return pictures.deliver(picture, episodePicture())
               && QTest::qWaitFor([d] { return !d->m_picture.size().isEmpty(); });
    }
};

} // namespace

// The cell on an adaptation whose textures are no pixmaps: the same pictures as under the software adaptation.
class tst_StbEpisodesViewDelegateGpu : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        const Scene scene;
        QVERIFY(!scene.stage.isSoftware());
    }

    void everyKindShowsThePictureOfTheSoftwareAdaptation_data()
    {
        QTest::addColumn<QString>("type");
        for (const char *type : { "defaultTile", "unViewedTile", "viewedTile", "comingSoonTile" })
            QTest::newRow(type) << type;
    }
    void everyKindShowsThePictureOfTheSoftwareAdaptation()
    {
        QFETCH(QString, type);
        const QString name = "episodes-" + type.toLower();
        Scene scene;
        scene.fill(type);
        STB_COMPARE_GOLDEN(scene.stage.picture(), name + "-no-picture", sameGlyphs);
        QVERIFY(scene.show());
        STB_COMPARE_GOLDEN(scene.stage.picture(), name + "-picture", sameGlyphs);
        scene.cell->setWidth(0);
        QVERIFY(!scene.stage.picture().isNull());
        scene.cell->setWidth(541);
        STB_COMPARE_GOLDEN(scene.stage.picture(), name + "-picture", sameGlyphs);
    }

    void anotherWindowShowsTheSamePicture()
    {
        Scene scene;
        scene.fill("unViewedTile");
        QVERIFY(scene.show());
        STB_COMPARE_GOLDEN(scene.stage.picture(), "episodes-unviewedtile-picture", sameGlyphs);
        const ShownStage other(QSize(580, 190), QColor(0, 60, 40));
        scene.cell->setParentItem(other.contentItem());
        STB_COMPARE_GOLDEN(other.picture(), "episodes-unviewedtile-picture", sameGlyphs);
        scene.cell->setParentItem(scene.stage.contentItem());
        STB_COMPARE_GOLDEN(scene.stage.picture(), "episodes-unviewedtile-picture", sameGlyphs);
        scene.cell->setParentItem(nullptr);
    }

    void emptyTextsLeaveNoHole()
    {
        Scene scene;
        scene.cell->setStyle(&scene.style);
        scene.cell->setListItemType("viewedTile");
        QImage expected(QSize(580, 190), QImage::Format_RGB32);
        expected.fill(QColor(0, 60, 40));
        QPainter(&expected).fillRect(QRect(31, 37, 201, 113), QColor(31, 11, 71, 151));
        const stbtest::Tolerance rounding { 2, 0, "blending rounds differently by a step or two" };
        QCOMPARE(stbtest::comparePictures(scene.stage.picture(), expected, rounding.channel).text(),
                 QString());
    }

    // A bar of negative width would be painted turned round.
    void aNegativePositionShowsNoViewedPart()
    {
        Scene scene;
        scene.cell->setStyle(&scene.style);
        scene.cell->setListItemType("defaultTile");
        scene.cell->setViewedPosition(-5);
        scene.cell->setDuration(50);
        const QImage picture = scene.stage.picture();
        for (int x = 0; x < picture.width(); ++x)
            QVERIFY(picture.pixelColor(x, 30 + 100) != QColor(61, 91, 221));
        QCOMPARE(picture.pixelColor(20 + 10, 30 + 100), QColor(221, 221, 61));
    }
};

STB_TEST_MAIN(tst_StbEpisodesViewDelegateGpu)
#include "tst_stbepisodesviewdelegate_gpu.moc"
