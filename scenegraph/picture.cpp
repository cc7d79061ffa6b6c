// SPDX-License-Identifier: MIT
#include "scenegraph/picture.h"

#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"

#include <QtQml/qqmlcontext.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/private/qquickpixmapcache_p.h>
#include <QtQuick/private/qsgcontext_p.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qsgtexture.h>

#include <utility>

namespace qml_basic_plugin {

Picture::Picture() = default;
Picture::~Picture() = default;

bool Picture::load(QQuickItem *item, const QUrl &url, const char *finished, Loading loading)
{
    if (!m_pixmap)
        m_pixmap = std::make_unique<QQuickPixmap>();
    m_pixmap->clear(item);
    m_reloaded = true;
    item->update();
    QQmlEngine *engine = qmlEngine(item);
    if (!engine || url.isEmpty() || !url.isValid())
        return false; // an image provider cannot be asked without an engine; no URL would go to the network

    const QQmlContext *context = qmlContext(item);
    m_pixmap->load(engine, context ? context->resolvedUrl(url) : url, QRect(), QSize(),
                   loading == Loading::Cached ? QQuickPixmap::Cache : QQuickPixmap::Asynchronous,
                   QQuickImageProviderOptions(), 0, 0, 1.0);
    return m_pixmap->isLoading() && m_pixmap->connectFinished(item, finished);
}

QSize Picture::size() const
{
    return m_pixmap ? m_pixmap->rect().size() : QSize();
}

QSGTexture *Picture::texture(QSGRenderContext *renderContext, QQuickWindow *window) const
{
    if (!m_pixmap)
        return nullptr;
    QSGTexture *texture = renderContext->textureForFactory(m_pixmap->textureFactory(), window);
    // The software renderer takes a node without pixels for opaque and would leave a hole where it lies.
    return texture && !texture->textureSize().isEmpty() ? texture : nullptr;
}

bool Picture::takeReloaded()
{
    return std::exchange(m_reloaded, false);
}

QSGImageNode *Picture::placeNode(ChildNodes &children, bool &present, QSGContext *context, QSGTexture *texture)
{
    const auto create = [&](QSGNode *parent, QSGNode *before) {
        return createPictureNode(context, texture, parent, before);
    };
    if (takeReloaded())
        children.place<QSGImageNode>(false, present, create);
    return children.place<QSGImageNode>(texture != nullptr, present, create);
}

QSGImageNode *createPictureNode(QSGContext *context, QSGTexture *texture, QSGNode *parent, QSGNode *before)
{
    QSGImageNode *node = createImageNode(context, texture, parent, before);
    node->setFiltering(QSGTexture::Linear);
    return node;
}

} // namespace qml_basic_plugin
