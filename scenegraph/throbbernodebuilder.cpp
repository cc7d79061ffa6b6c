// SPDX-License-Identifier: MIT
#include "scenegraph/throbbernodebuilder.h"

#include "scenegraph/nodehelpers.h"

#include <QtGui/qpainter.h>

namespace qml_basic_plugin {

QSGImageNode *ThrobberNodeBuilder::createNode(QSGContext *context, QSGRenderContext *renderContext,
                                              QSGNode *parent, QSGNode *before)
{
    return createEmptyImageNode(context, renderContext, parent, before);
}

void ThrobberNodeBuilder::updateNode(QSGImageNode *node, const QSize &size, bool draw)
{
    if (!node || size.width() < 0 || size.height() < 0)
        return;
    if (m_pixmap.size() != size) {
        m_pixmap = QPixmap(size);
        m_pixmap.fill(Qt::transparent);
        updateTextureInNode(node, m_pixmap);
        m_renderer.setRenderRect(QRect(QPoint(0, 0), size));
    }
    if (!draw || m_pixmap.isNull())
        return;
    updateTextureInNode(node, QPixmap()); // else painting would copy the pixmap
    paintFrame();
    updateTextureInNode(node, m_pixmap);
}

void ThrobberNodeBuilder::paintFrame()
{
    QPainter painter(&m_pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(m_pixmap.rect(), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setRenderHint(QPainter::Antialiasing);
    m_renderer.draw(painter);
}

} // namespace qml_basic_plugin
