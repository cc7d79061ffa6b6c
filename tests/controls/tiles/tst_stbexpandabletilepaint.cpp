// SPDX-License-Identifier: MIT
#include "testkit/counters.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"
#include "tilescene.h"

#include <QtQuick/private/qquickpixmapcache_p.h>

using stbtest::NodeInfo;

namespace {

using Style = design_system::TileStyle;

struct Scene : TileScene<StbExpandableTile>
{
    explicit Scene(bool fading = false)
    {
        settings.setValue("Animations", "fadeEffectEnabled", fading);
        make("ExpandableTile");
    }
    StbExpandableTilePrivate *d() { return tilePrivate(tile.get()); }
    QSGNode *imageNode()
    {
        for (const NodeInfo &node : stbtest::nodeTree(stbtest::paintNode(tile.get())))
            if (node.type == "Image")
                return node.node;
        return nullptr;
    }
};

} // namespace

class tst_StbExpandableTilePaint : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void withoutAStyleNothingIsPainted()
    {
        Scene scene;
        scene.tile->setStyle(nullptr);
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(scene.tile.get()));
        scene.tile->setStyle(&scene.style);
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Rectangle", "InternalRectangle" }));
    }

    void aSideOfZeroRemovesTheWholeTree_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::newRow("width 0") << QSizeF(0, 113);
        QTest::newRow("height 0") << QSizeF(201, 0);
        QTest::newRow("negative width") << QSizeF(-1, 113);
        QTest::newRow("negative height") << QSizeF(201, -1);
    }
    void aSideOfZeroRemovesTheWholeTree()
    {
        QFETCH(QSizeF, size);
        Scene scene;
        QVERIFY(scene.show(fieldsPicture()));
        scene.stage.renderFrame();
        const QImage before = scene.stage.picture();
        scene.tile->setSize(size);
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(scene.tile.get()));
        scene.tile->setSize(QSizeF(201, 113));
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Image", "InternalRectangle" }));
        QVERIFY(scene.stage.picture() == before);
    }

    void theRootIsATransparentRectangleOfTheItemsSize()
    {
        Scene scene;
        scene.tile->setCustomFocusRect(QRect(-3, -5, 301, 155));
        scene.stage.renderFrame();
        const NodeInfo root = stbtest::nodeTree(stbtest::paintNode(scene.tile.get())).first();
        QCOMPARE(root.type, "Rectangle");
        QCOMPARE(root.color, QColor(Qt::transparent));
        QCOMPARE(root.rect, QRectF(0, 0, 201, 113));
    }

    void theChildrenStandInTheirOrder()
    {
        Scene scene(true);
        QCOMPARE(scene.types(), (QStringList { "Rectangle", "InternalRectangle" }));
        QVERIFY(scene.show(fieldsPicture()));
        advance(scene.d()->m_fadeTimeLine, 0.5);
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Rectangle", "Opacity", "InternalRectangle" }));
        const QList<NodeInfo> faded = stbtest::childNodes(scene.children()[1].node);
        QCOMPARE(faded.size(), 1);
        QCOMPARE(faded[0].type, "Image");
        QCOMPARE(scene.children()[1].opacity, scene.d()->m_imageOpacity);
        finish(scene.d()->m_fadeTimeLine);
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Image", "InternalRectangle" }));
        QCOMPARE(scene.children()[0].node, faded[0].node); // moved, not made anew
    }

    void aFadeOverAPictureThatIsThereMovesItsNodeIntoTheFade()
    {
        Scene scene(true);
        QVERIFY(scene.show(fieldsPicture()));
        finish(scene.d()->m_fadeTimeLine);
        scene.stage.renderFrame();
        const QSGNode *image = scene.imageNode();
        scene.tile->processImageReceived();
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Rectangle", "Opacity", "InternalRectangle" }));
        QCOMPARE(scene.imageNode(), image);
        const QSGNode *opacity = scene.children()[1].node;
        advance(scene.d()->m_fadeTimeLine, 0.5);
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[1].node, opacity); // used again
    }

    void everyNodeFillsTheFocusRectangle()
    {
        Scene scene(true);
        QVERIFY(scene.show(fieldsPicture()));
        for (const QRect &rect : { QRect(-3, -5, 211, 131), QRect(7, 9, 11, 13) }) {
            scene.tile->setCustomFocusRect(rect);
            scene.stage.renderFrame();
            QCOMPARE(scene.children()[0].rect, QRectF(rect));
            QCOMPARE(stbtest::childNodes(scene.children()[1].node)[0].rect, QRectF(rect));
        }
        finish(scene.d()->m_fadeTimeLine);
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[0].rect, QRectF(7, 9, 11, 13));
    }

    void anInvalidFocusRectangleShowsNothing()
    {
        Scene scene;
        QVERIFY(scene.show(fieldsPicture()));
        for (const QRect &rect : { QRect(), QRect(QPoint(50, 50), QPoint(20, 20)),
                                   QRect(QPoint(std::numeric_limits<int>::max(), 0),
                                         QPoint(std::numeric_limits<int>::min(), 9)) }) {
            scene.tile->setCustomFocusRect(rect);
            scene.stage.renderFrame();
            QImage ground(scene.stage.size(), QImage::Format_ARGB32_Premultiplied);
            ground.fill(QColor(0, 60, 40));
            QVERIFY(scene.stage.picture() == ground);
        }
    }

    void theBackgroundIsTheTilesOwnColourOrTheStyles()
    {
        Scene scene;
        QCOMPARE(scene.children()[0].color, QColor(41, 83, 127));
        scene.tile->setBackgroundColor(QColor(1, 2, 3, 99));
        scene.tile->update();
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[0].color, QColor(1, 2, 3, 99));
        scene.tile->setBackgroundColor(QColor());
        scene.restyle(otherTileStyle());
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[0].color, QColor(113, 47, 29));
    }

    void aBackgroundColourAloneRepaintsNothing()
    {
        Scene scene;
        scene.tile->setBackgroundColor(Qt::red);
        QVERIFY(!scene.stage.wantsFrame());
        QVERIFY(scene.stage.renderFrame().isEmpty());
        QCOMPARE(scene.children()[0].color, QColor(41, 83, 127));
        scene.tile->update();
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[0].color, QColor(Qt::red));
    }

    void withoutAnyValidColourTheBackgroundIsTransparent()
    {
        Scene scene;
        Style style = withoutFrame(oddTileStyle());
        style.backgroundColor = QColor();
        scene.restyle(style);
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[0].color.alpha(), 0);
        QCOMPARE(scene.stage.picture().pixelColor(100, 100), QColor(0, 60, 40));
    }

    void aPictureReplacesTheBackground()
    {
        Scene scene;
        QVERIFY(scene.show(fieldsPicture()));
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Image", "InternalRectangle" }));
        QCOMPARE(scene.children()[0].rect, QRectF(0, 0, 201, 113));
        QCOMPARE(scene.children()[0].pixmap.toImage(), fieldsPicture());
    }

    void aNewPictureFirstTakesTheOldOneAway()
    {
        Scene scene;
        QVERIFY(scene.show(fieldsPicture()));
        scene.stage.renderFrame();
        scene.tile->setImageSource(stbtest::HandPictures::url("other"));
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Rectangle", "InternalRectangle" }));
        QVERIFY(scene.arrive(plainPicture(Qt::red), "other"));
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Image", "InternalRectangle" }));
        QCOMPARE(scene.children()[0].pixmap.toImage().pixelColor(9, 9), QColor(Qt::red));
    }

    void anEmptySourceTakesThePictureAway()
    {
        Scene scene;
        QVERIFY(scene.show(fieldsPicture()));
        scene.stage.renderFrame();
        scene.tile->setImageSource(QUrl());
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Rectangle", "InternalRectangle" }));
    }

    void aPictureThatIsReadyAtOnceReplacesTheOldOneInOneFrame()
    {
        // The one kind of URL that Qt Quick looks up among the pictures in memory.
        const QQuickPixmap red(QUrl("itemgrabber:red"), plainPicture(Qt::red));
        const QQuickPixmap blue(QUrl("itemgrabber:blue"), plainPicture(Qt::blue));
        Scene scene;
        scene.restyle(withoutFrame(oddTileStyle()));
        scene.tile->setImageSource(QUrl("itemgrabber:red"));
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture().pixelColor(100, 100), QColor(Qt::red));
        scene.tile->setImageSource(QUrl("itemgrabber:blue"));
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), QStringList("Image"));
        QCOMPARE(scene.stage.picture().pixelColor(100, 100), QColor(Qt::blue));
    }

    void aLoadThatIsOverBeforeAFrameLeavesNoNodeOfTheOldPicture()
    {
        Scene scene;
        scene.restyle(withoutFrame(oddTileStyle()));
        QVERIFY(scene.show(plainPicture(Qt::red)));
        scene.stage.renderFrame();
        scene.tile->setImageSource(stbtest::HandPictures::url("blue"));
        QVERIFY(scene.pictures.deliver("blue", plainPicture(Qt::blue)));
        QTRY_VERIFY(!scene.d()->m_poster.size().isEmpty()); // and no frame in between
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture().pixelColor(100, 100), QColor(Qt::blue));
    }

    void anUpdateThatChangesNothingPaintsNothing()
    {
        Scene scene(true);
        const auto updatePaintsNothing = [&] {
            scene.stage.renderFrame();
            scene.tile->update();
            return scene.stage.renderFrame().isEmpty();
        };
        QVERIFY(updatePaintsNothing());
        QVERIFY(scene.show(fieldsPicture()));
        advance(scene.d()->m_fadeTimeLine, 0.5);
        QVERIFY(updatePaintsNothing());
        finish(scene.d()->m_fadeTimeLine);
        QVERIFY(updatePaintsNothing());
        scene.tile->setState("focused");
        advance(scene.d()->m_focusTimeLine, 0.5);
        QVERIFY(updatePaintsNothing());
    }

    void aStepOfTheFocusAnimationPaintsTheTilesOwnRectangleOnly()
    {
        Scene scene;
        QVERIFY(scene.show(fieldsPicture()));
        scene.tile->setState("focused");
        for (double progress : { 0.2, 0.5, 0.8, 1.0 }) {
            const QRect before = scene.tile->customFocusRect();
            const qint64 painted = stbtest::pixelsPainted(scene.stage, [&] {
                advance(scene.d()->m_focusTimeLine, progress);
            });
            QVERIFY(scene.tile->customFocusRect() != before);
            QCOMPARE(painted, stbtest::pixelCount(before.united(scene.tile->customFocusRect())));
        }
    }

    void aLargePictureIsScaledDownSmoothly()
    {
        // Columns of black and white, each one pixel wide, at half the size: grey where it is smooth.
        QImage columns(402, 226, QImage::Format_RGB32);
        for (int y = 0; y < columns.height(); ++y)
            for (int x = 0; x < columns.width(); ++x)
                columns.setPixelColor(x, y, x % 2 ? Qt::white : Qt::black);
        Scene scene;
        scene.restyle(withoutFrame(oddTileStyle()));
        QVERIFY(scene.show(columns));
        scene.stage.renderFrame();
        const int grey = scene.stage.picture().pixelColor(150, 100).red();
        QVERIFY2(grey > 100 && grey < 155, qPrintable(QString::number(grey)));
    }

    void anotherWindowShowsTheSamePicture()
    {
        Scene scene;
        QVERIFY(scene.show(fieldsPicture()));
        scene.stage.renderFrame();
        const QImage before = scene.stage.picture();
        stbtest::Stage other(scene.stage.size(), QColor(0, 60, 40));
        scene.tile->setParentItem(other.contentItem());
        other.renderFrame();
        QVERIFY(other.picture() == before);
        scene.stage.renderFrame();
        scene.tile->setParentItem(scene.stage.contentItem());
        scene.stage.renderFrame();
        QVERIFY(scene.stage.picture() == before);
        scene.tile->setParentItem(nullptr);
        scene.stage.renderFrame();
        scene.tile->setImageSource(QUrl()); // a load without a window
    }

    void itLooksLikeItsPictures()
    {
        Scene scene(true);
        const auto compare = [&](const char *name) {
            scene.stage.renderFrame();
            return stbtest::compareWithGolden(scene.stage.picture(), QLatin1String(name));
        };
        QCOMPARE(compare("expandabletile-no-picture"), QString());
        QVERIFY(scene.show(fieldsPicture()));
        advance(scene.d()->m_fadeTimeLine, 0.5);
        QCOMPARE(compare("expandabletile-fading"), QString());
        finish(scene.d()->m_fadeTimeLine);
        QCOMPARE(compare("expandabletile-resting"), QString());
        scene.tile->setState("focused");
        advance(scene.d()->m_focusTimeLine, 0.5);
        QCOMPARE(compare("expandabletile-half-way"), QString());
        finish(scene.d()->m_focusTimeLine);
        QCOMPARE(compare("expandabletile-focused"), QString());
    }
};

STB_TEST_MAIN(tst_StbExpandableTilePaint)
#include "tst_stbexpandabletilepaint.moc"
