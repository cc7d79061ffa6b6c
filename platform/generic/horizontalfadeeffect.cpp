// SPDX-License-Identifier: MIT
#include "horizontalfadeeffect.h"

#include <QtGui/qimage.h>
#include <QtGui/qpainter.h>
#include <QtQuick/qquickwindow.h>
#include <QtQuick/qsgimagenode.h>
#include <QtQuick/qsgnode.h>

#include <algorithm>

namespace stbgeneric {

namespace {

enum class Edge { Left, Right };

QImage gradient(int width, const QColor &color, Edge opaqueEdge)
{
    QColor clear = color;
    clear.setAlpha(0);
    QLinearGradient colors(0, 0, width, 0);
    colors.setColorAt(opaqueEdge == Edge::Left ? 0 : 1, color);
    colors.setColorAt(opaqueEdge == Edge::Left ? 1 : 0, clear);
    QImage image(width, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter(&image).fillRect(image.rect(), colors);
    return image;
}

} // namespace

// Both strips are there from the start: one that shows nothing is blocked by its opacity of 0.
class HorizontalFadeEffect::StripNode : public QSGOpacityNode
{
public:
    StripNode(QQuickWindow *window, Edge opaqueEdge)
        : m_edge(opaqueEdge)
        , m_image(window->createImageNode())
    {
        m_image->setOwnsTexture(true);
        appendChildNode(m_image);
        setPicture(window, 1, Qt::transparent);
    }

    void show(QQuickWindow *window, const Strip &strip, const QSizeF &item, const QColor &color)
    {
        const int stripWidth = std::min(strip.width, int(item.width()));
        const bool isShown = stripWidth > 0 && item.height() > 0 && color.isValid();
        const qreal opacity = isShown ? std::clamp<qreal>(strip.opacity, 0, 1) : 0;
        if (isShown) {
            if (m_width != stripWidth || m_color != color)
                setPicture(window, stripWidth, color);
            const QRectF place(m_edge == Edge::Left ? 0 : item.width() - stripWidth, 0, stripWidth,
                               item.height());
            if (m_image->rect() != place)
                m_image->setRect(place);
        }
        if (this->opacity() != opacity)
            setOpacity(opacity);
    }

private:
    void setPicture(QQuickWindow *window, int width, const QColor &color)
    {
        m_width = width;
        m_color = color;
        m_image->setTexture(window->createTextureFromImage(gradient(width, color, m_edge),
                                                           QQuickWindow::TextureHasAlphaChannel));
    }

    const Edge m_edge;
    QSGImageNode *const m_image;
    int m_width = 0;
    QColor m_color;
};

// A transform node, because below a plain one the software adaptation forgets the place of a strip that appears later.
class HorizontalFadeEffect::RootNode : public QSGTransformNode
{
public:
    explicit RootNode(QQuickWindow *window)
        : left(new StripNode(window, Edge::Left))
        , right(new StripNode(window, Edge::Right))
    {
        appendChildNode(left);
        appendChildNode(right);
    }

    StripNode *const left;
    StripNode *const right;
};

HorizontalFadeEffect::HorizontalFadeEffect(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void HorizontalFadeEffect::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
    update();
}

void HorizontalFadeEffect::setLeftGradientWidth(int width)
{
    if (width == m_left.width)
        return;
    m_left.width = width;
    Q_EMIT leftGradientWidthChanged();
    update();
}

void HorizontalFadeEffect::setRightGradientWidth(int width)
{
    if (width == m_right.width)
        return;
    m_right.width = width;
    Q_EMIT rightGradientWidthChanged();
    update();
}

void HorizontalFadeEffect::setLeftGradientOpacity(qreal opacity)
{
    if (opacity == m_left.opacity)
        return;
    m_left.opacity = opacity;
    Q_EMIT leftGradientOpacityChanged();
    update();
}

void HorizontalFadeEffect::setRightGradientOpacity(qreal opacity)
{
    if (opacity == m_right.opacity)
        return;
    m_right.opacity = opacity;
    Q_EMIT rightGradientOpacityChanged();
    update();
}

void HorizontalFadeEffect::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        update();
}

QSGNode *HorizontalFadeEffect::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *root = node ? static_cast<RootNode *>(node) : new RootNode(window());
    root->left->show(window(), m_left, size(), m_color);
    root->right->show(window(), m_right, size(), m_color);
    return root;
}

} // namespace stbgeneric
