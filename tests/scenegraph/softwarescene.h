// SPDX-License-Identifier: MIT
#ifndef STBTEST_SOFTWARESCENE_H
#define STBTEST_SOFTWARESCENE_H

#include "testkit/testcase.h"

#include <stbcore/textrenderer.h>

#include <QtGui/qpainter.h>
#include <QtQuick/private/qquickitem_p.h>
#include <QtQuick/private/qsgcontext_p.h>
#include <QtQuick/private/qsgsoftwarepixmaptexture_p.h>
#include <QtQuick/qquickrendercontrol.h>
#include <QtQuick/qquickwindow.h>
#include <QtQuick/qsgimagenode.h>

#include <memory>

/*! The software adaptation's contexts, for nodes that are made outside any item. */
class SoftwareScene
{
public:
    QSGContext *context() { return contentItem()->sceneGraphContext(); }
    QSGRenderContext *renderContext() { return contentItem()->sceneGraphRenderContext(); }
    QQuickWindow *window() { return &m_window; }

    /*! An image node without parent that owns a texture of \a image. */
    std::unique_ptr<QSGImageNode> imageNode(const QImage &image = {})
    {
        std::unique_ptr<QSGImageNode> node(context()->createImageNode());
        node->setTexture(renderContext()->createTexture(image));
        node->setOwnsTexture(true);
        return node;
    }

private:
    QQuickItemPrivate *contentItem() { return QQuickItemPrivate::get(m_window.contentItem()); }

    QQuickRenderControl m_control;
    QQuickWindow m_window { &m_control };
};

inline QPixmap shownPixmap(QSGImageNode *node)
{
    Q_ASSERT(node->texture()->inherits("QSGSoftwarePixmapTexture"));
    return static_cast<QSGSoftwarePixmapTexture *>(node->texture())->pixmap();
}

inline QImage filled(const QSize &size, const QColor &color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

/*! What \a renderer draws in \a color, in an image of the text's own size. */
inline QImage painted(stbcore::TextRenderer renderer, const QColor &color)
{
    renderer.relayout();
    QImage image = filled(renderer.boundingRect().size(), Qt::transparent);
    QPainter painter(&image);
    stbcore::drawTextRenderer(painter, renderer, QPen(color));
    painter.end();
    return image;
}

#endif // STBTEST_SOFTWARESCENE_H
