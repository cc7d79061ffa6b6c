// SPDX-License-Identifier: MIT
#include "scenegraph/nodehelpers.h"

#include "plugin/qmlsettings.h"
#include "scenegraph/childnodes.h"
#include "scenegraph/qtcompat_p.h"

#include <design_system/qmldesignsystem.h>
#include <stbcore/platformnativeinterface.h>
#include <stbcore/textrenderer.h>

#include <QtGui/qpainter.h>
#include <QtQuick/private/qsgadaptationlayer_p.h>
#include <QtQuick/private/qsgcontext_p.h>
#include <QtQuick/private/qsgplaintexture_p.h>
#include <QtQuick/private/qsgsoftwarepixmaptexture_p.h>
#include <QtQuick/qquickitem.h>

namespace qml_basic_plugin {

namespace {

// Which pixmap a texture of another adaptation shows: such a texture gives its image away once it is uploaded.
constexpr char shownPixmapKey[] = "_stb_pixmapKey";

void link(QSGNode *node, QSGNode *parent, QSGNode *before)
{
    if (before)
        parent->insertChildNodeBefore(node, before);
    else if (parent)
        parent->appendChildNode(node);
}

// The software adaptation's texture class is not exported: it can neither be made nor be cast to, but its name
// tells it.
QSGSoftwarePixmapTexture *pixmapTexture(QSGTexture *texture)
{
    return texture->inherits("QSGSoftwarePixmapTexture") ? static_cast<QSGSoftwarePixmapTexture *>(texture)
                                                         : nullptr;
}

// Gives the texture to the node again, which makes the node look at alpha and size anew. With the ownership
// left on, it would delete the texture first.
void resetTexture(QSGImageNode *node, QSGTexture *texture)
{
    const bool owns = node->ownsTexture();
    node->setOwnsTexture(false);
    node->setTexture(texture);
    node->setOwnsTexture(owns);
}

bool showsPixmap(const QSGPlainTexture *texture, const QPixmap &pixmap)
{
    if (pixmap.isNull())
        return texture->textureSize().isEmpty();
    const QVariant shown = texture->property(shownPixmapKey);
    return shown.isValid() && shown.toLongLong() == pixmap.cacheKey();
}

void updateImageTexture(QSGImageNode *node, const QPixmap &pixmap)
{
    auto *texture = qobject_cast<QSGPlainTexture *>(node->texture());
    if (texture && showsPixmap(texture, pixmap))
        return;
    const bool replace = !texture;
    if (replace)
        texture = new QSGPlainTexture;
    texture->setImage(pixmap.toImage());
    texture->setProperty(shownPixmapKey, pixmap.cacheKey());
    if (replace) {
        node->setTexture(texture); // deletes the former one when the node owns it
        node->setOwnsTexture(true);
    } else {
        resetTexture(node, texture);
    }
}

void paintText(QPainter &painter, const stbcore::TextRenderer &renderer, const QColor &color)
{
    stbcore::drawTextRenderer(painter, renderer, QPen(color));
}

// Whether the text could be painted on a tiled pixmap.
bool renderTiled(QSGImageNode *node, const stbcore::TextRenderer &renderer, const QColor &color,
                 const QSize &size, QPixmap &pixmap)
{
    stbcore::PlatformNativeInterface *platform = stbcore::platformNativeInterface();
    if (!platform || !platform->isTiledPixmapAvailable())
        return false;
    // The node lets go first: of a pixmap of the right size, so that painting does not copy it, and of another,
    // so that the device never holds the old and the new one at once.
    updateTextureInNode(node, QPixmap());
    // Painting on a pixmap that others hold as well would turn it into an ordinary one behind their backs.
    if (pixmap.size() != size || !pixmap.isDetached()) {
        pixmap = QPixmap();
        pixmap = platform->createTiledPixmap(size, [](QPainter &) {});
    }
    if (pixmap.size() != size)
        return false;
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    platform->setupPainterForTiledPixmap(pixmap, painter);
    paintText(painter, renderer, color);
    return true;
}

} // namespace

QSGImageNode *createImageNode(QSGContext *context, QSGTexture *texture, QSGNode *parent, QSGNode *before)
{
    QSGImageNode *node = context->createImageNode();
    node->setTexture(texture);
    link(node, parent, before);
    return node;
}

QSGImageNode *createEmptyImageNode(QSGContext *context, QSGRenderContext *renderContext, QSGNode *parent,
                                   QSGNode *before)
{
    QSGTexture *texture = renderContext->createTexture(QImage(), QSGRenderContext::CreateTexture_Alpha);
    QSGImageNode *node = context->createImageNode();
    node->setTexture(texture);
    node->setOwnsTexture(true);
    if (parent)
        link(node, parent, before);
    return node;
}

QSGRectangleNode *createRectangleNode(QSGContext *context, const QColor &color, QSGNode *parent,
                                      QSGNode *before)
{
    QSGRectangleNode *node = context->createRectangleNode();
    node->setColor(color);
    link(node, parent, before);
    return node;
}

QSGInternalRectangleNode *createInternalRectangleNode(QSGContext *context, QSGNode *parent, QSGNode *before)
{
    QSGInternalRectangleNode *node = context->createInternalRectangleNode();
    link(node, parent, before);
    return node;
}

bool textureIsNull(QSGImageNode *node)
{
    if (!node || !node->texture())
        return true;
    if (const QSGSoftwarePixmapTexture *texture = pixmapTexture(node->texture()))
        return texture->pixmap().isNull();
    return node->texture()->textureSize().isEmpty();
}

void updateTextureInNode(QSGImageNode *node, const QPixmap &pixmap)
{
    if (!node || !node->texture())
        return;
    QSGSoftwarePixmapTexture *texture = pixmapTexture(node->texture());
    if (!texture) {
        updateImageTexture(node, pixmap);
        return;
    }
    // The texture hands its pixmap out as a constant and has no setter; the object itself is no constant.
    QPixmap &shown = const_cast<QPixmap &>(texture->pixmap()); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    if (shown.cacheKey() == pixmap.cacheKey())
        return;
    shown = pixmap;
    node->markDirty(QSGNode::DirtyMaterial);
}

void renderTextToImageNodeTexture(QSGImageNode *node, stbcore::TextRenderer &renderer, const QColor &color,
                                  QPixmap &pixmap, bool skipRelayout)
{
    if (!skipRelayout)
        renderer.relayout();
    const QRect rect = renderer.boundingRect();
    if (!rect.isValid()) {
        if (pixmap.isNull())
            return;
        updateTextureInNode(node, QPixmap());
        pixmap = QPixmap();
        return;
    }
    if (!renderTiled(node, renderer, color, rect.size(), pixmap)) {
        QImage image(rect.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        paintText(painter, renderer, color);
        painter.end();
        pixmap = QPixmap::fromImage(std::move(image));
    }
    updateTextureInNode(node, pixmap);
}

void placeImageNode(QSGImageNode *node, const QRect &rect)
{
    if (textureIsNull(node))
        setNodeRect(node, QRectF());
    else if (rect.isValid())
        setNodeRect(node, QRectF(rect));
}

QRectF nodeRect(const QRect &rect)
{
    return QRectF(rect.topLeft(), rect.isValid() ? QSizeF(rect.size()) : QSizeF(0, 0));
}

void setNodeRect(QSGImageNode *node, const QRectF &rect)
{
    if (node->rect() != rect)
        node->setRect(rect);
}

void setNodeRect(QSGRectangleNode *node, const QRectF &rect)
{
    if (node->rect() != rect)
        node->setRect(rect);
}

void setNodeColor(QSGRectangleNode *node, const QColor &color)
{
    if (node->color() != color)
        node->setColor(color);
}

QColor visibleColor(const QColor &color)
{
    return color.isValid() ? color : QColor(Qt::transparent);
}

QSGRectangleNode *placeRectangleNode(ChildNodes &children, bool wanted, bool &present, QSGContext *context,
                                     const QColor &color)
{
    const QColor fill = visibleColor(color);
    auto *node = children.place<QSGRectangleNode>(wanted, present, [&](QSGNode *root, QSGNode *before) {
        return createRectangleNode(context, fill, root, before);
    });
    if (node)
        setNodeColor(node, fill);
    return node;
}

qml::QmlSettings *qmlSettings(QQuickItem *item)
{
    QQmlEngine *engine = item ? qmlEngine(item) : nullptr;
    if (!engine)
        return nullptr;
    return qobject_cast<qml::QmlSettings *>(
            compat::singletonInstance(engine, "Stbui.UI.Qml.Controls.Basic", "QmlSettings"));
}

design_system::QmlDesignSystem *designSystem(QQuickItem *item)
{
    QQmlEngine *engine = item ? qmlEngine(item) : nullptr;
    if (!engine)
        return nullptr;
    return qobject_cast<design_system::QmlDesignSystem *>(
            compat::singletonInstance(engine, "Stbui.UI.Qml.Design", "QmlDesignSystem"));
}

} // namespace qml_basic_plugin
