// SPDX-License-Identifier: MIT
#include "softwarescene.h"

#include <scenegraph/throbbernodebuilder.h>

using qml_basic_plugin::ThrobberNodeBuilder;

namespace {

bool isTransparent(const QPixmap &pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied)
           == filled(pixmap.size(), Qt::transparent);
}

} // namespace

class tst_ThrobberNodeBuilder : public stbtest::TestCase
{
    Q_OBJECT

    SoftwareScene m_scene;

private Q_SLOTS:
    void aNullNodeOrANegativeSizeIsANoOp()
    {
        ThrobberNodeBuilder throbber;
        const auto node = m_scene.imageNode(filled({ 3, 3 }, Qt::red));
        throbber.updateNode(nullptr, { 20, 20 }, true);
        throbber.updateNode(node.get(), { -1, 20 }, true);
        throbber.updateNode(node.get(), { 20, -1 }, true);
        QCOMPARE(shownPixmap(node.get()).size(), QSize(3, 3));
    }

    void aNewSizeWithoutDrawingShowsTransparency()
    {
        ThrobberNodeBuilder throbber;
        const auto node = m_scene.imageNode(filled({ 3, 3 }, Qt::red));
        throbber.updateNode(node.get(), { 24, 26 }, false);
        QCOMPARE(shownPixmap(node.get()).size(), QSize(24, 26));
        QVERIFY(isTransparent(shownPixmap(node.get())));
    }

    void drawingPaintsAFrameInsideTheNewSize()
    {
        ThrobberNodeBuilder throbber;
        const auto node = m_scene.imageNode();
        throbber.updateNode(node.get(), { 24, 24 }, true);
        QCOMPARE(shownPixmap(node.get()).size(), QSize(24, 24));
        QVERIFY(!isTransparent(shownPixmap(node.get())));
    }

    void aSecondFrameReplacesTheFirstAndNothingShinesThrough()
    {
        ThrobberNodeBuilder throbber;
        const auto node = m_scene.imageNode();
        throbber.updateNode(node.get(), { 24, 24 }, true);
        const QImage once = shownPixmap(node.get()).toImage();
        throbber.updateNode(node.get(), { 24, 24 }, true); // the same frame: no more ink than once
        QCOMPARE(shownPixmap(node.get()).toImage(), once);
    }

    void theSameSizeKeepsThePixmapAndPaintsInPlace()
    {
        ThrobberNodeBuilder throbber;
        const auto node = m_scene.imageNode();
        throbber.updateNode(node.get(), { 24, 24 }, true);
        // The upper half of a pixmap's key is its serial: a new pixmap has another, and so has the copy that painting
        // makes of a pixmap which the node still holds.
        const qint64 serial = shownPixmap(node.get()).cacheKey() >> 32;
        throbber.updateNode(node.get(), { 24, 24 }, true);
        throbber.updateNode(node.get(), { 24, 24 }, true);
        QCOMPARE(shownPixmap(node.get()).cacheKey() >> 32, serial);
    }

    void theSameSizeWithoutDrawingChangesNothing()
    {
        ThrobberNodeBuilder throbber;
        const auto node = m_scene.imageNode();
        throbber.updateNode(node.get(), { 24, 24 }, true);
        const qint64 key = shownPixmap(node.get()).cacheKey();
        throbber.updateNode(node.get(), { 24, 24 }, false);
        QCOMPARE(shownPixmap(node.get()).cacheKey(), key);
    }

    void afterReleasingThePixmapTheNextUpdateMakesItAgain()
    {
        ThrobberNodeBuilder throbber;
        const auto node = m_scene.imageNode();
        throbber.updateNode(node.get(), { 24, 24 }, true);
        throbber.releasePixmap();
        throbber.updateNode(node.get(), { 24, 24 }, true);
        QVERIFY(!isTransparent(shownPixmap(node.get())));
    }

    void aSizeWithoutAreaDrawsNothing()
    {
        ThrobberNodeBuilder throbber;
        const auto node = m_scene.imageNode();
        throbber.updateNode(node.get(), { 0, 0 }, true);
        QVERIFY(shownPixmap(node.get()).isNull());
    }

    void theNewNodeOwnsAnEmptyTextureAndLiesWhereItIsAsked()
    {
        ThrobberNodeBuilder throbber;
        QSGNode root;
        QSGImageNode *top = throbber.createNode(m_scene.context(), m_scene.renderContext(), &root, nullptr);
        QSGImageNode *below = throbber.createNode(m_scene.context(), m_scene.renderContext(), &root, top);
        QCOMPARE(root.firstChild(), below);
        QVERIFY(below->ownsTexture());
        QVERIFY(shownPixmap(below).isNull());
        const std::unique_ptr<QSGImageNode> unlinked(
                throbber.createNode(m_scene.context(), m_scene.renderContext(), nullptr, nullptr));
        QVERIFY(!unlinked->parent());
    }

    void theRendererHasNoParentAndIsNotRunning()
    {
        ThrobberNodeBuilder throbber;
        QVERIFY(!throbber.renderer().parent());
        QVERIFY(!throbber.renderer().isRunning());
    }
};

STB_TEST_MAIN(tst_ThrobberNodeBuilder)
#include "tst_throbbernodebuilder.moc"
