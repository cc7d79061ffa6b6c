// SPDX-License-Identifier: MIT
#ifndef STBTEST_NODES_H
#define STBTEST_NODES_H

#include <QtCore/qlist.h>
#include <QtCore/qrect.h>
#include <QtCore/qstring.h>
#include <QtGui/qcolor.h>
#include <QtGui/qpixmap.h>

QT_BEGIN_NAMESPACE
class QSGImageNode;
class QSGNode;
class QSGTexture;
QT_END_NAMESPACE

namespace stbtest {

/*! One node of a scene graph, as far as Qt tells. */
struct NodeInfo
{
    QSGNode *node = nullptr;
    int depth = 0; // 0 for the node asked about
    QString type; // "Rectangle", "Image", "NinePatch", "InternalRectangle", "InternalImage", "Painter",
            // "Glyphs", "Opacity", "Clip", "Transform", "Root", "Geometry" or "Node"
    QRectF rect; // of rectangles, images and clips
    QColor color; // of rectangles; else invalid
    QPixmap pixmap; // of images under the software adaptation; else null
    double opacity = 1; // of opacity nodes
};

/*! \a node and everything below it, parents first, siblings from the bottom to the top; empty for null. */
QList<NodeInfo> nodeTree(QSGNode *node);

/*! The children of \a node from the bottom to the top. */
QList<NodeInfo> childNodes(QSGNode *node);

/*! One line for each node of nodeTree(), indented: "Rectangle (0,0 20x11) #ffff0000". */
QString describeNodes(QSGNode *node);

/*! How many nodes nodeTree() has. */
int nodeCount(QSGNode *node);

/*! The pixmap of a software adaptation's texture; null for null and for any other texture. */
QPixmap texturePixmap(QSGTexture *texture);

} // namespace stbtest

#endif // STBTEST_NODES_H
