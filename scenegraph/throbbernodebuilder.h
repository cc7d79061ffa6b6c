// SPDX-License-Identifier: MIT
#ifndef STBUI_THROBBERNODEBUILDER_H
#define STBUI_THROBBERNODEBUILDER_H

#include <stbcore/throbberrenderer.h>

#include <QtGui/qpixmap.h>

class QSGContext;
class QSGImageNode;
class QSGNode;
class QSGRenderContext;

namespace qml_basic_plugin {

/*!
    A busy indicator as one image node. The animation is the renderer's: its owner starts and stops it and
    listens to its updated() signal; the builder paints the current frame in the paint update.
*/
class ThrobberNodeBuilder
{
    Q_DISABLE_COPY_MOVE(ThrobberNodeBuilder)
public:
    ThrobberNodeBuilder() = default;

    stbcore::ThrobberRenderer &renderer() { return m_renderer; }
    const stbcore::ThrobberRenderer &renderer() const { return m_renderer; }

    /*! A new, still empty image node under \a parent, just below \a before or on top; unlinked without parent. */
    QSGImageNode *createNode(QSGContext *context, QSGRenderContext *renderContext, QSGNode *parent,
                             QSGNode *before);
    /*!
        Makes the picture of \a node \a size pixels large, fully transparent when that is a new size, and paints
        the current frame into it if \a draw. No-op for a null node or a negative size.
    */
    void updateNode(QSGImageNode *node, const QSize &size, bool draw);
    /*! Lets the frame's pixels go while the throbber is hidden. */
    void releasePixmap() { m_pixmap = QPixmap(); }

private:
    void paintFrame();

    QPixmap m_pixmap;
    stbcore::ThrobberRenderer m_renderer { nullptr };
};

} // namespace qml_basic_plugin

#endif // STBUI_THROBBERNODEBUILDER_H
