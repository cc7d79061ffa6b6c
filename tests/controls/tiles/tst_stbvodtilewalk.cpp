// SPDX-License-Identifier: MIT
#include "testkit/fakeplatform.h"
#include "testkit/propertywalk.h"
#include "testkit/qmlscene.h"
#include "testkit/testcase.h"
#include "tilestyles.h"

#include <controls/tiles/stbvodtile.h>
#include <controls/tiles/stbvodtile_p.h>

#include <limits>

using stbtest::PropertyWalk;

// The frame keeps the colours it was made with, on purpose: all styles have the same ones. The caption has a walk of
// its own.
class tst_StbVodTileWalk : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        m_configuration.setValue("Animations", "fadeEffectEnabled", false);
        m_first.setStyle(oddTileStyle());
        design_system::TileStyle other = otherTileStyle();
        other.overlayColor = oddTileStyle().overlayColor;
        other.borderPen = oddTileStyle().borderPen;
        m_second.setStyle(other);
        // A badge whose text became empty is its padding; without any it is as if it never was.
        design_system::TileStyle bare = oddTileStyle();
        bare.ratingBadgePadding = QMargins();
        m_bare.setStyle(bare);
    }

    void whatIsPaintedStepByStepIsWhatAFreshTilePaints()
    {
        PropertyWalk walk([] { return std::make_unique<StbVodTile>(); });
        declare(walk);
        walk.property("style", { QVariant::fromValue(&m_first), QVariant::fromValue(&m_second),
                                 QVariant::fromValue(&m_first), QVariant() })
                .property("ratingText", { "6+", "12+", "A rating that is longer than any tile" })
                .exclude("customFocusRect", "a new style writes it")
                .exclude("rightholderImageSource", "nothing is loaded without an engine");
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
        QVERIFY(walk.stepsPainted() > walk.stepsMade() / 4);
    }

    void marksComeAndGoWhileThePictureMoves()
    {
        stbtest::QmlScene scene;
        PropertyWalk walk([&scene] {
            return scene.createItem<StbVodTile>("import Stbui.UI.Qml.Controls.Basic\nVodTile {}");
        });
        declare(walk);
        walk.once("style", QVariant::fromValue(&m_bare), "a new style writes the picture's rectangle")
                .property("customFocusRect", { QRect(0, 0, 201, 113), QRect(-7, -5, 215, 125),
                                               QRect(-23, -17, 253, 161), QRect(0, 0, 53, 113) })
                .property("ratingText", { "", "6+", "12+" })
                .property("rightholderImageSource",
                          { QUrl(), QUrl("qrc:/pictures/logo.png"), QUrl("qrc:/pictures/landscape.png") })
                .settle(waitForTheLogo)
                .steps(100);
        const QString report = walk.run();
        QVERIFY2(report.isEmpty(), qPrintable(report));
        QVERIFY(walk.stepsPainted() > walk.stepsMade() / 4);
    }

private:
    static void declare(PropertyWalk &walk)
    {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        walk.stageSize(QSize(360, 340))
                .tolerance(
                        { 1, 0, "the translucent frame is blended by other code in a region one pixel wide" })
                .property("mediaPositionsTimepoint", { 0., 1., 1.5, 2.999, 3., 4., -1., 1e300, infinity })
                .property("moviePosterDuration", { 0., 3., 3., 7.25, -3., 1e300, infinity })
                .once("itemTitle", "Rivers", "the caption has a walk of its own")
                .exclude("itemSubtitle", "as the title")
                .exclude("itemStatus", "as the title")
                .exclude("itemIsFavourite", "as the title")
                .exclude("imageSource", "the picture below the marks is the base tile's")
                .exclude("itemBackgroundColor", "a change of it asks for no frame, on purpose")
                .exclude("width", "the style owns the size")
                .exclude("enabled", "a tile has no disabled state");
    }

    static void waitForTheLogo(QQuickItem *item)
    {
        auto *d = static_cast<StbVodTilePrivate *>(QQuickItemPrivate::get(item));
        if (!d->m_rightholderImageSource.isEmpty())
            QTRY_VERIFY(!d->m_rightholderImage.size().isEmpty());
    }

    stbtest::MemoryConfiguration m_configuration;
    design_system::TileQmlStyle m_first;
    design_system::TileQmlStyle m_second;
    design_system::TileQmlStyle m_bare;
};

STB_TEST_MAIN(tst_StbVodTileWalk)
#include "tst_stbvodtilewalk.moc"
