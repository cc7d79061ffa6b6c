// SPDX-License-Identifier: MIT
#include "softwarescene.h"

#include "testkit/fakeplatform.h"
#include "testkit/pictures.h"
#include "testkit/qmlscene.h"
#include "testkit/stage.h"

#include <design_system/qmldesignsystem.h>
#include <plugin/qmlsettings.h>
#include <scenegraph/nodehelpers.h>
#include <stbcore/textrenderer.h>

#include <QtQuick/private/qsgadaptationlayer_p.h>
#include <QtQuick/private/qsgplaintexture_p.h>

using namespace qml_basic_plugin;

namespace {

stbcore::TextRenderer textRenderer(const QString &text)
{
    stbcore::TextRenderer renderer;
    QFont font;
    font.setPixelSize(23);
    renderer.setTextFont(font);
    renderer.setText(text);
    return renderer;
}

QImage premultiplied(const QPixmap &pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// An item whose one image node shows what it is told to.
class PictureItem : public QQuickItem
{
public:
    PictureItem() { setFlag(ItemHasContents); }

    bool plainTexture = false; // as other adaptations have

    void show(const QPixmap &pixmap, const QRect &rect)
    {
        m_pixmap = pixmap;
        m_rect = rect;
        update();
    }

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *) override
    {
        auto *item = QQuickItemPrivate::get(this);
        auto *node = static_cast<QSGImageNode *>(oldNode);
        if (!node)
            node = createEmptyImageNode(item->sceneGraphContext(), item->sceneGraphRenderContext(), nullptr,
                                        nullptr);
        if (!oldNode && plainTexture)
            node->setTexture(new QSGPlainTexture);
        updateTextureInNode(node, m_pixmap);
        placeImageNode(node, m_rect);
        return node;
    }

private:
    QPixmap m_pixmap;
    QRect m_rect;
};

// Tells what the node showed when the platform was asked for a new pixmap.
class WatchingPlatform : public stbtest::TiledPixmaps
{
public:
    QPixmap createTiledPixmap(const QSize &size, std::function<void(QPainter &)> paint) override
    {
        nodeHeldPixmap = !textureIsNull(node);
        return TiledPixmaps::createTiledPixmap(size, paint);
    }

    QSGImageNode *node = nullptr;
    bool nodeHeldPixmap = false;
};

} // namespace

class tst_NodeHelpers : public stbtest::TestCase
{
    Q_OBJECT

    SoftwareScene m_scene;

private Q_SLOTS:
    void anImageNodeTakesTheTextureAndLiesWhereItIsAsked()
    {
        const std::unique_ptr<QSGTexture> texture(
                m_scene.renderContext()->createTexture(filled({ 3, 3 }, Qt::red)));
        QSGNode root;
        QSGImageNode *top = createImageNode(m_scene.context(), texture.get(), &root, nullptr);
        QSGImageNode *below = createImageNode(m_scene.context(), texture.get(), &root, top);
        QCOMPARE(top->texture(), texture.get());
        QVERIFY(!top->ownsTexture());
        QCOMPARE(root.firstChild(), below);
        QCOMPARE(below->nextSibling(), top);
        QVERIFY(top->flags() & QSGNode::OwnedByParent);
    }

    void aRectangleNodeHasItsColourAndLiesWhereItIsAsked()
    {
        QSGNode root;
        QSGRectangleNode *top = createRectangleNode(m_scene.context(), QColor(1, 2, 3, 4), &root, nullptr);
        QSGRectangleNode *below = createRectangleNode(m_scene.context(), Qt::red, &root, top);
        QCOMPARE(top->color(), QColor(1, 2, 3, 4));
        QCOMPARE(root.firstChild(), below);
        QCOMPARE(root.lastChild(), top);
    }

    void aRectangleNodeWithoutParentIsUnlinked()
    {
        const std::unique_ptr<QSGRectangleNode> node(
                createRectangleNode(m_scene.context(), Qt::red, nullptr, nullptr));
        QVERIFY(!node->parent());
    }

    void anInternalRectangleNodeIsLinkedTheSameWay()
    {
        QSGNode root;
        QSGInternalRectangleNode *top = createInternalRectangleNode(m_scene.context(), &root, nullptr);
        QSGInternalRectangleNode *below = createInternalRectangleNode(m_scene.context(), &root, top);
        QCOMPARE(root.firstChild(), below);
        QCOMPARE(root.lastChild(), top);
        const std::unique_ptr<QSGInternalRectangleNode> unlinked(
                createInternalRectangleNode(m_scene.context(), nullptr, nullptr));
        QVERIFY(!unlinked->parent());
    }

    void aTextureIsNullWithoutNodeTextureOrPixels()
    {
        QVERIFY(textureIsNull(nullptr));
        const std::unique_ptr<QSGImageNode> bare(m_scene.context()->createImageNode());
        QVERIFY(textureIsNull(bare.get()));
        QVERIFY(textureIsNull(m_scene.imageNode().get()));
        QVERIFY(!textureIsNull(m_scene.imageNode(filled({ 1, 1 }, Qt::red)).get()));
    }

    void updatingATextureSharesThePixmapAndKeepsTheTextureObject()
    {
        const auto node = m_scene.imageNode(filled({ 3, 3 }, Qt::red));
        QSGTexture *texture = node->texture();
        const QPixmap pixmap = QPixmap::fromImage(filled({ 8, 6 }, Qt::blue));
        updateTextureInNode(node.get(), pixmap);
        QCOMPARE(node->texture(), texture);
        QCOMPARE(shownPixmap(node.get()).cacheKey(), pixmap.cacheKey());
        QVERIFY(!textureIsNull(node.get()));
        updateTextureInNode(node.get(), QPixmap());
        QVERIFY(textureIsNull(node.get()));
    }

    void updatingWithoutNodeOrTextureIsANoOp()
    {
        updateTextureInNode(nullptr, QPixmap(3, 3));
        const std::unique_ptr<QSGImageNode> bare(m_scene.context()->createImageNode());
        updateTextureInNode(bare.get(), QPixmap(3, 3));
        QVERIFY(!bare->texture());
    }

    void aTextureOfAnotherKindGetsItsImageByItsOwnMeans()
    {
        const std::unique_ptr<QSGImageNode> node(m_scene.context()->createImageNode());
        node->setTexture(new QSGPlainTexture);
        node->setOwnsTexture(true);
        QVERIFY(textureIsNull(node.get()));
        updateTextureInNode(node.get(), QPixmap::fromImage(filled({ 8, 6 }, QColor(0, 0, 255, 100))));
        auto *texture = qobject_cast<QSGPlainTexture *>(node->texture());
        QVERIFY(texture);
        QCOMPARE(texture->textureSize(), QSize(8, 6));
        QVERIFY(texture->hasAlphaChannel());
        QVERIFY(node->ownsTexture());
        QVERIFY(!textureIsNull(node.get()));
        updateTextureInNode(node.get(), QPixmap());
        QVERIFY(textureIsNull(node.get()));
    }

    void aPictureItemOfAnotherTextureKindIsNotDirtiedByTheSamePixmap()
    {
        stbtest::Stage stage(QSize(60, 50), Qt::darkGreen);
        PictureItem item;
        item.plainTexture = true;
        item.setParentItem(stage.contentItem());
        const QPixmap pixmap = QPixmap::fromImage(filled({ 8, 6 }, QColor(0, 0, 255, 100)));
        item.show(pixmap, QRect(11, 13, 8, 6));
        QVERIFY(!stage.renderFrame().isEmpty());
        item.show(pixmap, QRect(11, 13, 8, 6));
        QCOMPARE(stage.renderFrame(), QRegion());
        item.show(QPixmap(), QRect(11, 13, 8, 6));
        QVERIFY(!stage.renderFrame().isEmpty());
        item.show(QPixmap(), QRect(11, 13, 8, 6));
        QCOMPARE(stage.renderFrame(), QRegion());
    }

    void anUpdateThatChangesNothingPaintsNothing()
    {
        stbtest::Stage stage(QSize(60, 50), Qt::darkGreen);
        PictureItem item;
        item.setParentItem(stage.contentItem());
        const QPixmap pixmap = QPixmap::fromImage(filled({ 8, 6 }, QColor(0, 0, 255, 100)));
        item.show(pixmap, QRect(11, 13, 8, 6));
        stage.renderFrame();
        item.show(pixmap, QRect(11, 13, 8, 6));
        QCOMPARE(stage.renderFrame(), QRegion());
        item.show(QPixmap::fromImage(filled({ 8, 6 }, QColor(255, 0, 0, 100))), QRect(11, 13, 8, 6));
        QCOMPARE(stage.renderFrame(), QRegion(11, 13, 8, 6));
    }

    void aPictureThatGoesLeavesNoHole()
    {
        stbtest::Stage stage(QSize(60, 50), Qt::darkGreen);
        PictureItem item;
        item.setParentItem(stage.contentItem());
        stage.renderFrame();
        const QImage empty = stage.picture();
        item.show(QPixmap::fromImage(filled({ 8, 6 }, Qt::red)), QRect(11, 13, 8, 6));
        stage.renderFrame();
        QVERIFY(stage.picture() != empty);
        item.show(QPixmap(), QRect(11, 13, 8, 6));
        stage.renderFrame();
        QCOMPARE(stage.picture(), empty);
    }

    void anInvalidRectangleLeavesAPictureWhereItIs()
    {
        const auto node = m_scene.imageNode(filled({ 3, 3 }, Qt::red));
        placeImageNode(node.get(), QRect(5, 7, 3, 3));
        placeImageNode(node.get(), QRect());
        QCOMPARE(node->rect(), QRectF(5, 7, 3, 3));
        updateTextureInNode(node.get(), QPixmap());
        placeImageNode(node.get(), QRect(5, 7, 3, 3));
        QCOMPARE(node->rect(), QRectF());
    }

    void theTextIsPaintedIntoAPremultipliedImage()
    {
        const auto node = m_scene.imageNode();
        stbcore::TextRenderer renderer = textRenderer("Evening news");
        QPixmap pixmap;
        renderTextToImageNodeTexture(node.get(), renderer, QColor(9, 200, 30), pixmap, false);
        QCOMPARE(pixmap.toImage().format(), QImage::Format_ARGB32_Premultiplied);
        QCOMPARE(pixmap.size(), renderer.boundingRect().size());
        QCOMPARE(premultiplied(pixmap), painted(renderer, QColor(9, 200, 30)));
        QCOMPARE(shownPixmap(node.get()).cacheKey(), pixmap.cacheKey());
    }

    void withoutTiledPixmapsThePixmapIsNewEveryTime()
    {
        stbtest::TiledPixmaps platform;
        platform.setAvailable(false);
        const auto node = m_scene.imageNode();
        stbcore::TextRenderer renderer = textRenderer("Evening news");
        QPixmap pixmap;
        renderTextToImageNodeTexture(node.get(), renderer, Qt::white, pixmap, false);
        const QPixmap first = pixmap;
        renderTextToImageNodeTexture(node.get(), renderer, Qt::white, pixmap, false);
        QVERIFY(pixmap.cacheKey() != first.cacheKey());
        QCOMPARE(premultiplied(pixmap), premultiplied(first));
        QVERIFY(platform.created().isEmpty());
        QCOMPARE(platform.setUps(), 0);
    }

    void skippingTheRelayoutPaintsTheLayoutThereIs()
    {
        const auto node = m_scene.imageNode();
        stbcore::TextRenderer renderer = textRenderer("News");
        renderer.relayout();
        const QSize size = renderer.boundingRect().size();
        renderer.setText("A much longer text than before");
        QPixmap pixmap;
        renderTextToImageNodeTexture(node.get(), renderer, Qt::white, pixmap, true);
        QCOMPARE(pixmap.size(), size);
        QVERIFY(renderer.isNeedRelayout());
        renderTextToImageNodeTexture(node.get(), renderer, Qt::white, pixmap, false);
        QVERIFY(pixmap.width() > size.width());
    }

    void anEmptyTextWithANullPixmapTouchesNothing()
    {
        const auto node = m_scene.imageNode(filled({ 3, 3 }, Qt::red));
        stbcore::TextRenderer renderer;
        QPixmap pixmap;
        renderTextToImageNodeTexture(node.get(), renderer, Qt::white, pixmap, false);
        QVERIFY(pixmap.isNull());
        QCOMPARE(shownPixmap(node.get()).size(), QSize(3, 3));
    }

    void anEmptyTextWithAPixmapEmptiesBoth()
    {
        const auto node = m_scene.imageNode(filled({ 3, 3 }, Qt::red));
        stbcore::TextRenderer renderer;
        QPixmap pixmap(3, 3);
        renderTextToImageNodeTexture(node.get(), renderer, Qt::white, pixmap, false);
        QVERIFY(pixmap.isNull());
        QVERIFY(textureIsNull(node.get()));
    }

    void aNullNodeStillGetsThePixmapPainted()
    {
        stbcore::TextRenderer renderer = textRenderer("Evening news");
        QPixmap pixmap;
        renderTextToImageNodeTexture(nullptr, renderer, Qt::white, pixmap, false);
        QCOMPARE(premultiplied(pixmap), painted(renderer, Qt::white));

        const std::unique_ptr<QSGImageNode> bare(m_scene.context()->createImageNode());
        QPixmap second;
        renderTextToImageNodeTexture(bare.get(), renderer, Qt::white, second, false);
        QCOMPARE(premultiplied(second), painted(renderer, Qt::white));

        stbtest::TiledPixmaps platform;
        QPixmap tiled;
        renderTextToImageNodeTexture(nullptr, renderer, Qt::white, tiled, false);
        QCOMPARE(premultiplied(tiled), painted(renderer, Qt::white));
    }

    void aTiledPixmapOfTheSameSizeIsPaintedAgainInPlace()
    {
        stbtest::TiledPixmaps platform;
        const auto node = m_scene.imageNode();
        stbcore::TextRenderer renderer = textRenderer("Evening news");
        QPixmap pixmap;
        renderTextToImageNodeTexture(node.get(), renderer, Qt::white, pixmap, false);
        QCOMPARE(platform.created(), QList<QSize>({ renderer.boundingRect().size() }));
        QCOMPARE(platform.setUps(), 1);
        QCOMPARE(platform.lastSetUpKey(), pixmap.cacheKey());
        // Painting in place keeps the pixmap's serial, the upper half of its key; a copy has a new one.
        const qint64 serial = pixmap.cacheKey() >> 32;
        renderTextToImageNodeTexture(node.get(), renderer, QColor(255, 0, 0, 90), pixmap, true);
        QCOMPARE(platform.created().size(), 1);
        QCOMPARE(platform.setUps(), 2);
        QCOMPARE(pixmap.cacheKey() >> 32, serial);
        QCOMPARE(shownPixmap(node.get()).cacheKey(), pixmap.cacheKey());
        // Nothing of the first painting is left under the translucent second one.
        QCOMPARE(premultiplied(pixmap), painted(renderer, QColor(255, 0, 0, 90)));
    }

    void aTiledPixmapOfAnotherSizeIsMadeAfterTheNodeLetTheOldOneGo()
    {
        WatchingPlatform platform;
        const auto node = m_scene.imageNode();
        platform.node = node.get();
        stbcore::TextRenderer renderer = textRenderer("News");
        QPixmap pixmap;
        renderTextToImageNodeTexture(node.get(), renderer, Qt::white, pixmap, false);
        renderer.setText("Evening news");
        renderTextToImageNodeTexture(node.get(), renderer, Qt::white, pixmap, false);
        QCOMPARE(platform.created().size(), 2);
        QVERIFY(!platform.nodeHeldPixmap);
        QCOMPARE(premultiplied(pixmap), painted(renderer, Qt::white));
    }

    void aBadTiledPixmapGetsThePlainWay_data()
    {
        QTest::addColumn<stbtest::TiledPixmaps::Answer>("answer");
        QTest::newRow("null") << stbtest::TiledPixmaps::Answer::Null;
        QTest::newRow("wrong size") << stbtest::TiledPixmaps::Answer::WrongSize;
    }
    void aBadTiledPixmapGetsThePlainWay()
    {
        QFETCH(stbtest::TiledPixmaps::Answer, answer);
        stbtest::TiledPixmaps platform;
        platform.setAnswer(answer);
        const auto node = m_scene.imageNode();
        stbcore::TextRenderer renderer = textRenderer("Evening news");
        QPixmap pixmap;
        renderTextToImageNodeTexture(node.get(), renderer, Qt::white, pixmap, false);
        QCOMPARE(premultiplied(pixmap), painted(renderer, Qt::white));
        QCOMPARE(platform.setUps(), 0);
    }

    void theLookUpsAnswerNullWithoutItemOrEngine()
    {
        QVERIFY(!qmlSettings(nullptr));
        QVERIFY(!designSystem(nullptr));
        QQuickItem item;
        QVERIFY(!qmlSettings(&item));
        QVERIFY(!designSystem(&item));
    }

    void theLookUpsFindTheEnginesSingletons()
    {
        stbtest::MemoryConfiguration configuration;
        stbtest::QmlScene scene;
        const auto item = scene.createItem("import QtQuick\n"
                                           "import Stbui.UI.Qml.Controls.Basic\n"
                                           "import Stbui.UI.Qml.Design\n"
                                           "Item { property var settings: QmlSettings\n"
                                           "       property var design: QmlDesignSystem }");
        QVERIFY(item);
        qml::QmlSettings *settings = qmlSettings(item.get());
        QVERIFY(settings);
        QCOMPARE(item->property("settings").value<QObject *>(), settings);
        QCOMPARE(qmlSettings(item.get()), settings);
        design_system::QmlDesignSystem *design = designSystem(item.get());
        QVERIFY(design);
        QCOMPARE(item->property("design").value<QObject *>(), design);
    }

    void theLookUpsLoadAModuleThatNobodyImported()
    {
        stbtest::MemoryConfiguration configuration;
        stbtest::QmlScene scene;
        const auto item = scene.createItem("import QtQuick\nItem {}");
        QVERIFY(item);
        QVERIFY(qmlSettings(item.get()));
        QVERIFY(designSystem(item.get()));
    }

    void withoutConfigurationManagerThereAreNoSettings()
    {
        stbtest::MemoryConfiguration restoredAfterwards;
        stbconfig::setQmlConfigManager(nullptr);
        stbtest::QmlScene scene;
        const auto item = scene.createItem("import QtQuick\nimport Stbui.UI.Qml.Controls.Basic\nItem {}");
        QVERIFY(item);
        // What the engine says of a singleton whose factory gives none.
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("\"QmlSettings\" is not available"));
        QVERIFY(!qmlSettings(item.get()));
    }
};

STB_TEST_MAIN(tst_NodeHelpers)
#include "tst_nodehelpers.moc"
