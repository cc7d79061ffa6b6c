// SPDX-License-Identifier: MIT
#ifndef STBUI_ICONNODEBUILDER_H
#define STBUI_ICONNODEBUILDER_H

#include <QtCore/qstring.h>
#include <QtGui/qcolor.h>
#include <QtGui/qpixmap.h>

class QSGContext;
class QSGImageNode;
class QSGNode;
class QSGRenderContext;

namespace qml_basic_plugin {

/*!
    One icon as one image node, in its own colours or tinted with one. Icons tinted on the GUI thread, which
    under the software adaptation is every one, are shared through QPixmapCache; Qt keeps that cache from other
    threads, and on a render thread of its own an icon is tinted anew.

    load() belongs to the GUI thread; colorize() and updateNode() to the paint update.
*/
class IconNodeBuilder
{
    Q_DISABLE_COPY_MOVE(IconNodeBuilder)
public:
    IconNodeBuilder() = default;

    /*!
        Reads the icon from the file or resource path \a source and tints it when \a color is valid. The same
        source again is a no-op whatever the colour is (a new tint is colorize()'s business); an empty source
        drops the icon. A source that follows another keeps the first one's picture, until clear(). A file that
        cannot be read leaves no icon.
    */
    void load(const QString &source, const QColor &color);
    /*!
        Gives every pixel that is not pure black the red, green and blue of \a color and the product of both
        alphas; black parts keep their colour. An invalid colour takes the tint away again: the file is read
        anew. No-op without an icon or when it has this tint.
    */
    void colorize(const QColor &color);

    /*! A new, still empty image node under \a parent, just below \a before or on top; unlinked without parent. */
    QSGImageNode *createNode(QSGContext *context, QSGRenderContext *renderContext, QSGNode *parent,
                             QSGNode *before);
    /*!
        Hands a changed icon to \a node. Sets \a sizeChanged, which may be null, to true when the icon's size is
        not the node's, and never to false.
    */
    void updateNode(QSGImageNode *node, bool *sizeChanged);
    /*! Drops the picture; the source stays, and loading it again is a no-op. */
    void clear();

    const QString &source() const { return m_source; }
    const QPixmap &pixmap() const { return m_pixmap; }
    /*! Whether the last load() found a picture. */
    bool isLoaded() const { return m_loaded; }
    /*! Whether there was a load() since construction or clear(), successful or not. */
    bool isLoadAttempted() const { return m_loadAttempted; }

private:
    void tint(const QColor &color);

    QString m_source;
    QPixmap m_pixmap;
    QColor m_color; // the tint of m_pixmap; invalid means untinted
    bool m_loaded = false;
    bool m_loadAttempted = false;
    bool m_changed = false; // the node has not got m_pixmap yet
};

} // namespace qml_basic_plugin

#endif // STBUI_ICONNODEBUILDER_H
