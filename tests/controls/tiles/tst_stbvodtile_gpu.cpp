// SPDX-License-Identifier: MIT
#include "captionscene.h"
#include "testkit/pictures.h"
#include "testkit/shownstage.h"
#include "testkit/testcase.h"

#include <controls/tiles/stbvodtile.h>
#include <controls/tiles/stbvodtile_p.h>

namespace {

const stbtest::Tolerance sameGlyphs {
    26, 120,
    "blending and the scaling of pictures round differently by a step or two, "
    "and the pictures were made by the software adaptation"
};

template <typename Tile>
using Scene = QmlCaptionScene<Tile, stbtest::ShownStage>;

const QString caption = QStringLiteral("imageSource: 'qrc:/pictures/landscape.png'\n"
                                       "itemTitle: 'Rivers'; itemSubtitle: 'Part three'\n");
const QString marks = QStringLiteral("ratingText: '12+'; rightholderImageSource: 'qrc:/pictures/logo.png'\n"
                                     "mediaPositionsTimepoint: 1; moviePosterDuration: 3\n");

bool isPosterLoaded(StbExpandableTile *tile)
{
    return !static_cast<StbExpandableTilePrivate *>(QQuickItemPrivate::get(tile))->m_poster.size().isEmpty();
}

bool isLogoLoaded(StbVodTile *tile)
{
    return !static_cast<StbVodTilePrivate *>(QQuickItemPrivate::get(tile))->m_rightholderImage.size().isEmpty();
}

} // namespace

// The tiles on an adaptation whose textures are no pixmaps: the same pictures as under the software adaptation.
class tst_StbVodTileGpu : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        const stbtest::ShownStage stage;
        QVERIFY(!stage.isSoftware());
    }

    void theCaptionShowsThePicturesOfTheSoftwareAdaptation()
    {
        Scene<StbContentTile> scene("ContentTile", caption + "itemStatus: 'New'");
        QTRY_VERIFY(isPosterLoaded(scene.tile.get()));
        STB_COMPARE_GOLDEN(scene.stage.picture(), "contenttile-resting", sameGlyphs);
        scene.tile->setFavorite(true);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "contenttile-favourite", sameGlyphs);
        scene.tile->setFavorite(false);
        holdFocusAnimation(scene.tile.get(), 0.5);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "contenttile-half-way", sameGlyphs);
        holdFocusAnimation(scene.tile.get(), 1);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "contenttile-focused", sameGlyphs);
    }

    void theMarksShowThePicturesOfTheSoftwareAdaptation()
    {
        Scene<StbVodTile> scene("VodTile", caption + marks);
        QTRY_VERIFY(isPosterLoaded(scene.tile.get()) && isLogoLoaded(scene.tile.get()));
        STB_COMPARE_GOLDEN(scene.stage.picture(), "vodtile-resting", sameGlyphs);
        scene.tile->setTimepoint(4);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "vodtile-full-bar", sameGlyphs);
        scene.tile->setTimepoint(0);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "vodtile-no-bar", sameGlyphs);
        scene.tile->setTimepoint(1);
        holdFocusAnimation(scene.tile.get(), 1);
        STB_COMPARE_GOLDEN(scene.stage.picture(), "vodtile-focused", sameGlyphs);
    }

    void allMarksAndNoPictureShowThePicturesOfTheSoftwareAdaptation()
    {
        Scene<StbVodTile> scene("VodTile", caption + marks);
        QTRY_VERIFY(isPosterLoaded(scene.tile.get()) && isLogoLoaded(scene.tile.get()));
        scene.tile->setFavorite(true);
        scene.tile->setStatus("New");
        STB_COMPARE_GOLDEN(scene.stage.picture(), "vodtile-all-badges", sameGlyphs);
        scene.tile->setFavorite(false);
        scene.tile->setStatus(QString());
        scene.tile->setImageSource(QUrl());
        STB_COMPARE_GOLDEN(scene.stage.picture(), "vodtile-without-picture", sameGlyphs);
    }

    void emptiedTextsLeaveNoHole()
    {
        Scene<StbVodTile> scene("VodTile",
                                "itemTitle: 'Rivers'; itemSubtitle: 'Part three'; itemStatus: 'New'");
        Scene<StbVodTile> bare("VodTile");
        QVERIFY(scene.stage.picture() != bare.stage.picture());
        scene.tile->setTitle(QString());
        scene.tile->setSubtitle(QString());
        scene.tile->setStatus(QString());
        QCOMPARE(stbtest::comparePictures(scene.stage.picture(), bare.stage.picture()).text(), QString());
    }

    void aLogoThatIsReplacedWhileItIsShownIsNotUsedAgain()
    {
        Scene<StbVodTile> scene("VodTile", caption + marks);
        QTRY_VERIFY(isPosterLoaded(scene.tile.get()) && isLogoLoaded(scene.tile.get()));
        const QImage before = scene.stage.picture();
        scene.tile->setRightholderImageSource(QUrl("qrc:/pictures/landscape.png"));
        QTRY_VERIFY(isLogoLoaded(scene.tile.get()));
        QVERIFY(scene.stage.picture() != before);
        scene.tile->setRightholderImageSource(QUrl("qrc:/pictures/logo.png"));
        QTRY_VERIFY(isLogoLoaded(scene.tile.get()));
        QCOMPARE(stbtest::comparePictures(scene.stage.picture(), before).text(), QString());
    }
};

STB_TEST_MAIN(tst_StbVodTileGpu)
#include "tst_stbvodtile_gpu.moc"
