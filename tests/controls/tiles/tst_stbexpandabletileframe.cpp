// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"
#include "tilescene.h"

#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

#include <QtQml/qqmlengine.h>
#include <QtQuick/private/qquickpixmapcache_p.h>

using stbtest::NodeInfo;

namespace {

using Style = design_system::TileStyle;
using StyleObject = design_system::TileQmlStyle;

struct Scene : TileScene<StbExpandableTile>
{
    Scene() { make("ExpandableTile"); }
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

} // namespace

// The frame, and the nodes of a derived tile that follow it.
class tst_StbExpandableTileFrame : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
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

    void aPenThinnerThanAPixelPaintsNoBorder()
    {
        Style style = withoutFrame(oddTileStyle());
        Scene scene;
        scene.restyle(style);
        scene.stage.renderFrame();
        const QImage plain = scene.stage.picture();
        style.borderPen = QPen(Qt::white, 0.75);
        scene.restyle(style);
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Rectangle", "InternalRectangle" }));
        QVERIFY(scene.stage.picture() == plain);
        style.borderPen.setWidthF(1); // the frame that is there keeps what it was made with
        scene.restyle(style);
        scene.stage.renderFrame();
        QVERIFY(scene.stage.picture() == plain);
    }

    void aPenOfOnePixelPaintsItsBorderAndNothingInside()
    {
        Style style = withoutFrame(oddTileStyle());
        style.borderPen = QPen(Qt::white, 1);
        Scene scene;
        scene.restyle(withoutFrame(oddTileStyle()));
        scene.stage.renderFrame();
        const QImage plain = scene.stage.picture();
        scene.restyle(style);
        scene.stage.renderFrame();
        const QRect tile(60, 50, 201, 113);
        QCOMPARE(scene.stage.picture().pixelColor(tile.topLeft()), QColor(Qt::white));
        QCOMPARE(scene.stage.picture().pixelColor(tile.bottomRight()), QColor(Qt::white));
        const QRect inside = tile.adjusted(2, 2, -2, -2);
        QVERIFY(scene.stage.picture().copy(inside) == plain.copy(inside));
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

    void aDerivedTileIsGivenTheLastNodeOfTheBaseWhateverThatIs_data()
    {
        QTest::addColumn<bool>("framed");
        QTest::addColumn<bool>("picture");
        QTest::addColumn<double>("opacity");
        QTest::addColumn<QStringList>("base");
        const QString frame = QStringLiteral("InternalRectangle");
        QTest::newRow("nothing else") << false << false << 1. << QStringList { "Rectangle" };
        QTest::newRow("picture") << false << true << 1. << QStringList { "Image" };
        QTest::newRow("fade") << false << true << 0.5 << QStringList { "Rectangle", "Opacity" };
        QTest::newRow("fade without a picture") << false << false << 0.5 << QStringList { "Rectangle" };
        QTest::newRow("frame") << true << false << 1. << QStringList { "Rectangle", frame };
        QTest::newRow("frame, picture") << true << true << 1. << QStringList { "Image", frame };
        QTest::newRow("frame, fade") << true << true << 0.5 << QStringList { "Rectangle", "Opacity", frame };
    }
    void aDerivedTileIsGivenTheLastNodeOfTheBaseWhateverThatIs()
    {
        QFETCH(bool, framed);
        QFETCH(bool, picture);
        QFETCH(double, opacity);
        QFETCH(QStringList, base);
        const QQuickPixmap red(QUrl("itemgrabber:red"), plainPicture(Qt::red));
        Scene scene;
        MarkedTile tile;
        QQmlEngine::setContextForObject(&tile, scene.qml.engine()->rootContext());
        tile.setParentItem(scene.stage.contentItem());
        if (!framed)
            scene.style.setStyle(withoutFrame(oddTileStyle()));
        tile.setStyle(&scene.style);
        tile.d()->m_imageOpacity = opacity;
        if (picture)
            tile.setImageSource(QUrl("itemgrabber:red"));
        scene.stage.renderFrame();
        const QList<NodeInfo> nodes = stbtest::childNodes(stbtest::paintNode(&tile));
        QStringList types;
        for (const NodeInfo &node : nodes)
            types += node.type;
        QCOMPARE(types, base + QStringList { "Rectangle" });
        QCOMPARE(tile.d()->given, nodes[base.size() - 1].node);
        QCOMPARE(nodes.last().color, QColor(19, 21, 23));
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
};

STB_TEST_MAIN(tst_StbExpandableTileFrame)
#include "tst_stbexpandabletileframe.moc"
