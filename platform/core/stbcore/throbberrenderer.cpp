// SPDX-License-Identifier: MIT
#include "stbcore/throbberrenderer.h"

#include <QtGui/qpainter.h>

namespace stbcore {

ThrobberRenderer::ThrobberRenderer(QObject *parent)
    : QObject(parent)
{
}
void ThrobberRenderer::setRenderRect(QRect rect)
{
    m_rect = rect;
}
void ThrobberRenderer::draw(QPainter &painter)
{
    painter.drawEllipse(m_rect);
}
void ThrobberRenderer::setRunning(bool running)
{
    m_running = running;
}
bool ThrobberRenderer::isRunning() const
{
    return m_running;
}
int ThrobberRenderer::penWidth() const
{
    return m_penWidth;
}
void ThrobberRenderer::setPenWidth(int width)
{
    m_penWidth = width;
}

} // namespace stbcore
