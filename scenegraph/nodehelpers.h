// SPDX-License-Identifier: MIT
#ifndef STBUI_NODEHELPERS_H
#define STBUI_NODEHELPERS_H

#include <QtCore/qrect.h>
#include <QtGui/qcolor.h>
#include <QtGui/qpixmap.h>
#include <QtQuick/qsgimagenode.h>
#include <QtQuick/qsgrectanglenode.h>

class QQuickItem;
class QSGContext;
class QSGInternalRectangleNode;
class QSGNode;
class QSGRenderContext;
class QSGTexture;

namespace design_system {
class QmlDesignSystem;
}
namespace qml {
class QmlSettings;
}
namespace stbcore {
class TextRenderer;
}

/*!
    The scene-graph node kit: what every control of the module makes and refreshes its nodes with.

    All functions but the two look-ups run in a paint-node update, on the render thread while the GUI thread
    is blocked; they take no locks. A new node is the last child of its parent, painted above its siblings, or
    lies just below \a before when that is given. It belongs to its parent.

    "The texture's pixmap" is the pixmap of the texture that an image node holds. Under the software adaptation
    it is replaced inside the texture object. On another adaptation the texture gets the same pixels as an
    image; a texture that cannot take one is replaced by one that can.
*/
namespace qml_basic_plugin {

class ChildNodes;

/*!
    A new image node with \a texture. \a parent must not be null. The texture's owner stays who it was, until
    updateTextureInNode() has to replace a texture that cannot take an image: the node owns the new one.
*/
QSGImageNode *createImageNode(QSGContext *context, QSGTexture *texture, QSGNode *parent, QSGNode *before);

/*!
    A new image node that owns an empty texture, which takes its pixmap from updateTextureInNode(). Without a
    \a parent the node is linked nowhere and belongs to the caller.
*/
QSGImageNode *createEmptyImageNode(QSGContext *context, QSGRenderContext *renderContext, QSGNode *parent,
                                   QSGNode *before);

/*!
    A new rectangle node filled with \a color. With neither \a before nor a \a parent it is linked nowhere and
    belongs to the caller.
*/
QSGRectangleNode *createRectangleNode(QSGContext *context, const QColor &color, QSGNode *parent,
                                      QSGNode *before);

/*! A new node that knows rounded corners, pen and gradient; linked as createRectangleNode() does. */
QSGInternalRectangleNode *createInternalRectangleNode(QSGContext *context, QSGNode *parent, QSGNode *before);

/*! Whether \a node is null, has no texture or a texture without a picture. */
bool textureIsNull(QSGImageNode *node);

/*!
    Makes \a pixmap the picture of the node's texture; no pixels are copied under the software adaptation.
    Marks the node dirty unless the texture shows this very pixmap already. No-op for a null node or one
    without a texture.
*/
void updateTextureInNode(QSGImageNode *node, const QPixmap &pixmap);

/*!
    Paints the text of \a renderer with \a color into \a pixmap and makes that the picture of \a node. The
    renderer is laid out first unless \a skipRelayout. A text that covers nothing makes the pixmap and the
    node's picture null.

    Where the platform offers tiled pixmaps, a pixmap of the right size is painted again in place: the node lets
    go of it first, so that no copy is made. One that others hold too is left to them, and a new one is made. A platform that then hands out a null or wrongly sized pixmap gets
    the plain way: a new premultiplied ARGB image.

    With a null \a node, or one without a texture, only \a pixmap is painted.
*/
void renderTextToImageNodeTexture(QSGImageNode *node, stbcore::TextRenderer &renderer, const QColor &color,
                                  QPixmap &pixmap, bool skipRelayout);

/*!
    Puts \a node where its picture belongs. A node without a picture gets an empty rectangle, because the
    software renderer takes it for opaque and would leave a hole where it lies. An invalid \a rect leaves a
    node that has a picture where it is.
*/
void placeImageNode(QSGImageNode *node, const QRect &rect);

/*!
    \a rect as a node takes it: an empty one keeps its place and has no extent at all. The software renderer forgets
    to paint over what a node showed before when the node shrinks to no width, but some height, below an opaque one,
    as the played part of a bar does below the remainder; other adaptations paint a negative extent turned round.
*/
QRectF nodeRect(const QRect &rect);

/*! Sets the node's rectangle when it is another: a setter of a node marks it dirty whatever it sets. */
void setNodeRect(QSGImageNode *node, const QRectF &rect);
void setNodeRect(QSGRectangleNode *node, const QRectF &rect);

/*! Sets the node's fill when it is another one. */
void setNodeColor(QSGRectangleNode *node, const QColor &color);

/*! \a color, or transparent for a colour that is not set: a node would paint it black. */
QColor visibleColor(const QColor &color);

/*!
    The rectangle node at the next place of \a children, filled with the visibleColor() of \a color, or null when
    it is not \a wanted. \a present is the place's presence flag. Its rectangle is the caller's.
*/
QSGRectangleNode *placeRectangleNode(ChildNodes &children, bool wanted, bool &present, QSGContext *context,
                                     const QColor &color);

/*!
    The QmlSettings singleton of the item's engine, created by the engine when this is its first use. Null
    without item, engine or singleton; the caller then uses its defaults. GUI thread, not in a paint update;
    nothing is cached.
*/
qml::QmlSettings *qmlSettings(QQuickItem *item);

/*! The QmlDesignSystem singleton of the item's engine; otherwise as qmlSettings(). */
design_system::QmlDesignSystem *designSystem(QQuickItem *item);

} // namespace qml_basic_plugin

#endif // STBUI_NODEHELPERS_H
