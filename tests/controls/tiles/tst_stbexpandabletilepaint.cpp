// SPDX-License-Identifier: MIT
#include "testkit/counters.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"
#include "tilescene.h"

#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

#include <QtQuick/private/qquickpixmapcache_p.h>

using stbtest::NodeInfo;

namespace {

using Style = design_system::TileStyle;
using StyleObject = design_system::TileQmlStyle;

struct Scene : TileScene<StbExpandableTile>
{
    explicit Scene(bool fading = false)
    {
        settings.setValue("Animations", "fadeEffectEnabled", fading);
        make("ExpandableTile");
    }
    StbExpandableTilePrivate *d() { return tilePrivate(tile.get()); }
    /*! Another style object, with \a values in it. */
    void restyle(const Style &values)
    {
        styles.push_back(std::make_unique<StyleObject>());
        styles.back()->setStyle(values);
        tile->setStyle(styles.back().get());
    }
    QSGNode *imageNode()
    {
        for (const NodeInfo &node : stbtest::nodeTree(stbtest::paintNode(tile.get())))
            if (node.type == "Image")
                return node.node;
        return nullptr;
    }
    std::vector<std::unique_ptr<StyleObject>> styles;
};

// A derived tile with one rectangle node of its own, there while it is wanted.
class MarkedTilePrivate : public StbExpandableTilePrivate
{
public:
    QSGNode *updateExtendedNodes(const Style &style, QSGNode *node) override
    {
        given = node;
        qml_basic_plugin::ChildNodes children(node->parent(), node);
        children.place<QSGRectangleNode>(wanted, present, [&](QSGNode *root, QSGNode *before) {
            auto *mark = qml_basic_plugin::createRectangleNode(sceneGraphContext(), style.titleColor, root,
                                                               before);
            mark->setRect(3, 5, 7, 9);
            return mark;
        });
        return children.last();
    }
    void forgetNodes() override
    {
        StbExpandableTilePrivate::forgetNodes();
        present = false;
    }
    QSGNode *given = nullptr;
    bool wanted = true;
    bool present = false;
};

class MarkedTile : public StbExpandableTile
{
public:
    MarkedTile()
        : StbExpandableTile(*new MarkedTilePrivate, nullptr)
    {
    }
    MarkedTilePrivate *d() { return static_cast<MarkedTilePrivate *>(tilePrivate(this)); }
};

Style withoutFrame(Style style)
{
    style.overlayColor = QColor();
    style.borderPen = QPen(QBrush(QColor()), 0);
    return style;
}

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

    void theFrameIsThereWhenSomethingOfItIsVisible_data()
    {
        QTest::addColumn<QColor>("overlay");
        QTest::addColumn<QPen>("pen");
        QTest::addColumn<bool>("wanted");
        const QColor color(9, 19, 29, 99);
        QTest::newRow("neither") << QColor() << QPen(QBrush(QColor()), 0) << false;
        QTest::newRow("overlay") << color << QPen(QBrush(QColor()), 0) << true;
        QTest::newRow("pen") << QColor() << QPen(color, 1) << true;
        QTest::newRow("thin pen") << QColor() << QPen(color, 0.5) << true;
        QTest::newRow("pen without width") << QColor() << QPen(color, 0) << false;
        QTest::newRow("pen without colour") << QColor() << QPen(QBrush(QColor()), 5) << false;
        QTest::newRow("both") << color << QPen(color, 3) << true;
    }
    void theFrameIsThereWhenSomethingOfItIsVisible()
    {
        QFETCH(QColor, overlay);
        QFETCH(QPen, pen);
        QFETCH(bool, wanted);
        Style style = oddTileStyle();
        style.overlayColor = overlay;
        style.borderPen = pen;
        Scene scene;
        scene.restyle(withoutFrame(oddTileStyle()));
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), QStringList("Rectangle"));
        scene.restyle(style);
        scene.stage.renderFrame();
        QCOMPARE(scene.types().contains("InternalRectangle"), wanted);
        scene.restyle(withoutFrame(oddTileStyle()));
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), QStringList("Rectangle"));
    }

    void aPenWithoutColourPaintsNoBorder()
    {
        Style style = oddTileStyle();
        style.overlayColor = QColor(255, 255, 255, 0);
        style.borderPen = QPen(QBrush(QColor()), 5);
        Scene scene;
        scene.restyle(withoutFrame(style));
        scene.stage.renderFrame();
        scene.restyle(style);
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Rectangle", "InternalRectangle" }));
        QCOMPARE(scene.stage.picture().pixelColor(61, 51), QColor(41, 83, 127));
    }

    void theFrameKeepsThePenThatItWasMadeWith()
    {
        Scene scene;
        const QColor border = scene.stage.picture().pixelColor(61, 100);
        const QColor fill = scene.stage.picture().pixelColor(100, 100);
        QCOMPARE(border, QColor(211, 37, 151));
        const QSGNode *frame = scene.children()[1].node;
        Style style = oddTileStyle();
        style.borderPen = otherTileStyle().borderPen;
        style.overlayColor = otherTileStyle().overlayColor;
        scene.restyle(style);
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[1].node, frame);
        QCOMPARE(scene.stage.picture().pixelColor(61, 100), border);
        QCOMPARE(scene.stage.picture().pixelColor(100, 100), fill);

        scene.restyle(withoutFrame(style));
        scene.stage.renderFrame();
        scene.restyle(style);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture().pixelColor(64, 100), QColor(7, 219, 223));
    }

    void aDerivedTileIsGivenTheLastNodeOfTheBase()
    {
        Scene scene;
        MarkedTile tile;
        tile.setParentItem(scene.stage.contentItem());
        tile.setStyle(&scene.style);
        scene.stage.renderFrame();
        const QList<NodeInfo> nodes = stbtest::childNodes(stbtest::paintNode(&tile));
        QCOMPARE(nodes.size(), 3);
        QCOMPARE(tile.d()->given, nodes[1].node); // the frame
        QCOMPARE(nodes[2].color, QColor(19, 21, 23));

        StyleObject frameless;
        frameless.setStyle(withoutFrame(oddTileStyle()));
        tile.setStyle(&frameless);
        scene.stage.renderFrame();
        QCOMPARE(tile.d()->given, nodes[0].node); // the background
    }

    void aLateFrameGoesBelowTheNodesOfADerivedTile()
    {
        Scene scene;
        MarkedTile tile;
        tile.setParentItem(scene.stage.contentItem());
        StyleObject frameless;
        frameless.setStyle(withoutFrame(oddTileStyle()));
        tile.setStyle(&frameless);
        scene.stage.renderFrame();
        const QSGNode *mark = stbtest::childNodes(stbtest::paintNode(&tile))[1].node;
        tile.setStyle(&scene.style);
        scene.stage.renderFrame();
        const QList<NodeInfo> nodes = stbtest::childNodes(stbtest::paintNode(&tile));
        QCOMPARE(nodes.size(), 3);
        QCOMPARE(nodes[1].type, "InternalRectangle");
        QCOMPARE(nodes[2].node, mark);
    }

    void aDerivedTileHearsThatItsNodesHaveGone()
    {
        Scene scene;
        MarkedTile tile;
        tile.setParentItem(scene.stage.contentItem());
        tile.setStyle(&scene.style);
        scene.stage.renderFrame();
        QVERIFY(tile.d()->present);
        tile.d()->wanted = false;
        tile.setStyle(nullptr);
        scene.stage.renderFrame();
        tile.setStyle(&scene.style);
        scene.stage.renderFrame();
        QVERIFY(!tile.d()->present);
        QCOMPARE(stbtest::childNodes(stbtest::paintNode(&tile)).size(), 2);
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
