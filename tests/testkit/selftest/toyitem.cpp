// SPDX-License-Identifier: MIT
#include "toyitem.h"

#include <QtQuick/qquickwindow.h>
#include <QtQuick/qsgimagenode.h>
#include <QtQuick/qsgrectanglenode.h>
#include <QtQuick/qsgtexture.h>

ToyItem::ToyItem(Mistake mistake, QQuickItem *parent)
    : QQuickItem(parent)
    , m_mistake(mistake)
{
    setFlag(ItemHasContents);
}

void ToyItem::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
    if (m_mistake != NoUpdateOnColor)
        update();
}

void ToyItem::setPictureColor(const QColor &color)
{
    if (m_pictureColor == color)
        return;
    m_pictureColor = color;
    m_pictureSet = m_mistake == StalePicture && m_pictureWasSet;
    m_pictureWasSet = true;
    Q_EMIT pictureColorChanged();
    update();
}

void ToyItem::setPictureX(int x)
{
    if (m_pictureX == x)
        return;
    m_pictureX = m_mistake == WrongPictureOrder && m_pictureWasSet ? x + 1 : x;
    Q_EMIT pictureXChanged();
    update();
}

void ToyItem::setStyle(QObject *style)
{
    if (m_style == style)
        return;
    m_style = style;
    Q_EMIT styleChanged();
    update();
}

QSGNode *ToyItem::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    if (width() <= 0 || height() <= 0) {
        delete oldNode;
        m_pictureSet = false;
        m_hadNodes = false;
        return nullptr;
    }
    auto *root = static_cast<QSGRectangleNode *>(oldNode);
    if (!root) {
        root = window()->createRectangleNode();
        m_pictureSet = m_mistake == StaleAfterWindow && m_hadNodes;
        m_hadNodes = true;
    }
    if (root->rect() != boundingRect())
        root->setRect(boundingRect());
    const QColor color = m_style ? m_style->property("color").value<QColor>() : m_color;
    if (root->color() != color || m_mistake == AlwaysDirty)
        root->setColor(color);
    updatePicture(root);
    return root;
}

void ToyItem::updatePicture(QSGNode *root)
{
    auto *node = static_cast<QSGImageNode *>(root->firstChild());
    if (m_pictureColor.alpha() == 0 || (m_pictureSet && !node)) {
        delete node;
        return;
    }
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        m_pictureSet = false;
    }
    if (!m_pictureSet) {
        QImage image(8, 6, QImage::Format_ARGB32_Premultiplied);
        image.fill(m_pictureColor);
        node->setTexture(window()->createTextureFromImage(image, QQuickWindow::TextureHasAlphaChannel));
        m_pictureSet = true;
    }
    const QRectF rect(m_pictureX, 2, 8, 6);
    if (node->rect() != rect)
        node->setRect(rect);
    if (!node->parent())
        root->appendChildNode(node);
}
