// SPDX-License-Identifier: MIT
#include "testkit/nodes.h"

#include <QtQuick/private/qsgadaptationlayer_p.h>
#include <QtQuick/private/qsgsoftwarepixmaptexture_p.h>
#include <QtQuick/qsgimagenode.h>
#include <QtQuick/qsgninepatchnode.h>
#include <QtQuick/qsgnode.h>
#include <QtQuick/qsgrectanglenode.h>

namespace stbtest {
namespace {

QString basicType(const QSGNode *node)
{
    switch (node->type()) {
    case QSGNode::GeometryNodeType:
        return QStringLiteral("Geometry");
    case QSGNode::TransformNodeType:
        return QStringLiteral("Transform");
    case QSGNode::ClipNodeType:
        return QStringLiteral("Clip");
    case QSGNode::OpacityNodeType:
        return QStringLiteral("Opacity");
    case QSGNode::RootNodeType:
        return QStringLiteral("Root");
    default:
        return QStringLiteral("Node");
    }
}

void describeGeometryNode(QSGNode *node, NodeInfo &info)
{
    if (auto *rectangle = dynamic_cast<QSGRectangleNode *>(node)) {
        info.type = QStringLiteral("Rectangle");
        info.rect = rectangle->rect();
        info.color = rectangle->color();
    } else if (auto *image = dynamic_cast<QSGImageNode *>(node)) {
        info.type = QStringLiteral("Image");
        info.rect = image->rect();
        info.pixmap = texturePixmap(image->texture());
    } else if (dynamic_cast<QSGNinePatchNode *>(node)) {
        info.type = QStringLiteral("NinePatch");
    } else if (dynamic_cast<QSGInternalRectangleNode *>(node)) {
        info.type = QStringLiteral("InternalRectangle");
    } else if (dynamic_cast<QSGInternalImageNode *>(node)) {
        info.type = QStringLiteral("InternalImage");
    } else if (dynamic_cast<QSGPainterNode *>(node)) {
        info.type = QStringLiteral("Painter");
    } else if (dynamic_cast<QSGGlyphNode *>(node)) {
        info.type = QStringLiteral("Glyphs");
    }
}

NodeInfo nodeInfo(QSGNode *node, int depth)
{
    NodeInfo info;
    info.node = node;
    info.depth = depth;
    info.type = basicType(node);
    if (node->type() == QSGNode::GeometryNodeType)
        describeGeometryNode(node, info);
    else if (node->type() == QSGNode::ClipNodeType)
        info.rect = static_cast<QSGClipNode *>(node)->clipRect();
    else if (node->type() == QSGNode::OpacityNodeType)
        info.opacity = static_cast<QSGOpacityNode *>(node)->opacity();
    return info;
}

void collect(QSGNode *node, int depth, QList<NodeInfo> &list)
{
    list.append(nodeInfo(node, depth));
    for (QSGNode *child = node->firstChild(); child; child = child->nextSibling())
        collect(child, depth + 1, list);
}

} // namespace

QPixmap texturePixmap(QSGTexture *texture)
{
    // Qt does not export the class, so it is known by its name.
    if (texture && texture->inherits("QSGSoftwarePixmapTexture"))
        return static_cast<QSGSoftwarePixmapTexture *>(texture)->pixmap();
    return QPixmap();
}

QList<NodeInfo> nodeTree(QSGNode *node)
{
    QList<NodeInfo> list;
    if (node)
        collect(node, 0, list);
    return list;
}

QList<NodeInfo> childNodes(QSGNode *node)
{
    QList<NodeInfo> list;
    for (QSGNode *child = node ? node->firstChild() : nullptr; child; child = child->nextSibling())
        list.append(nodeInfo(child, 0));
    return list;
}

QString describeNodes(QSGNode *node)
{
    QString text;
    for (const NodeInfo &info : nodeTree(node)) {
        text += QString(2 * info.depth, u' ') + info.type;
        if (!info.rect.isNull()) {
            text += QStringLiteral(" (%1,%2 %3x%4)")
                            .arg(info.rect.x())
                            .arg(info.rect.y())
                            .arg(info.rect.width())
                            .arg(info.rect.height());
        }
        if (info.color.isValid())
            text += u' ' + info.color.name(QColor::HexArgb);
        if (info.type == QLatin1String("Image"))
            text += QStringLiteral(" pixmap %1x%2").arg(info.pixmap.width()).arg(info.pixmap.height());
        if (info.type == QLatin1String("Opacity"))
            text += QStringLiteral(" %1").arg(info.opacity);
        text += u'\n';
    }
    return text;
}

int nodeCount(QSGNode *node)
{
    return int(nodeTree(node).size());
}

} // namespace stbtest
