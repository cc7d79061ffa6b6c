// SPDX-License-Identifier: MIT
#ifndef STBUI_PICTURE_H
#define STBUI_PICTURE_H

#include <QtCore/qsize.h>

#include <memory>

class QQuickItem;
class QQuickPixmap;
class QQuickWindow;
class QSGContext;
class QSGImageNode;
class QSGNode;
class QSGRenderContext;
class QSGTexture;
class QUrl;

namespace qml_basic_plugin {

class ChildNodes;

/*!
    A picture from a URL, loaded through Qt Quick and shown by an image node.

    The texture belongs to the picture, never to a node, and it can die with the first frame after another load()
    began: a node that still pointed to it would be a use after free. So every load() calls the item's update(),
    and the paint update that follows has to remove the node of before, whatever texture there is by then: a
    picture that is ready at once leaves no frame without a texture in between. placeNode() does that; who places
    the node by other means asks takeReloaded() and does the same.

    A node gets its texture when it is made and keeps it.

    load() and clear() belong to the GUI thread, texture(), takeReloaded() and placeNode() to the paint update.
*/
class Picture
{
    Q_DISABLE_COPY_MOVE(Picture)
public:
    /*! Where a picture comes from and whose it is. */
    enum class Loading {
        Background, //!< the engine's loader thread reads it, a file too; it is shared with no other item
        /*!
            It is taken from, or put into, Qt Quick's cache: all who load the URL in this way share one. One that
            is there already, and one that is read from a file, a resource or a provider that answers at once, is
            ready when load() returns, and the GUI thread waits for the reading.
        */
        Cached,
    };

    Picture();
    ~Picture();

    /*!
        Drops the picture and starts to load \a url with the engine of \a item. Returns whether it is still
        loading: then the member of \a item whose signature \a finished gives, as SLOT() writes it, is called at
        the end, successful or not. Otherwise there is nothing to wait for and nothing is called.

        A relative URL is taken from the item's QML document. Without an engine, or with an empty or invalid URL,
        the picture stays empty. It is loaded in its own size.
    */
    bool load(QQuickItem *item, const QUrl &url, const char *finished, Loading loading = Loading::Background);

    /*! The size in pixels; empty while there is no picture. */
    QSize size() const;

    /*! The texture for \a window; null while there is no picture. */
    QSGTexture *texture(QSGRenderContext *renderContext, QQuickWindow *window) const;

    /*! Whether a load() began since the last call: a node made before then must not live on. */
    bool takeReloaded();

    /*!
        The picture's image node at the next place of \a children, or null without a \a texture, the one of
        texture(). Its rectangle is the caller's. \a present is the place's presence flag.
    */
    QSGImageNode *placeNode(ChildNodes &children, bool &present, QSGContext *context, QSGTexture *texture);

private:
    std::unique_ptr<QQuickPixmap> m_pixmap; // null until the first load
    bool m_reloaded = false;
};

/*! A new image node for a picture's \a texture, smooth when it is scaled; linked as createImageNode() does. */
QSGImageNode *createPictureNode(QSGContext *context, QSGTexture *texture, QSGNode *parent, QSGNode *before);

} // namespace qml_basic_plugin

#endif // STBUI_PICTURE_H
