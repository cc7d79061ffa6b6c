// SPDX-License-Identifier: MIT
#ifndef STBUI_TEXTNODEBUILDER_H
#define STBUI_TEXTNODEBUILDER_H

#include <stbcore/textrenderer.h>

#include <QtCore/qlist.h>
#include <QtCore/qshareddata.h>
#include <QtGui/qcolor.h>
#include <QtGui/qpixmap.h>

class QSGContext;
class QSGImageNode;
class QSGNode;
class QSGRenderContext;

namespace design_system {
struct TextStyle;
}

namespace qml_basic_plugin {

/*!
    One piece of text as one image node. A control holds a builder for each of its texts.

    The text is painted again only when it, its layout or its colour changed. With caching enabled, builders of
    the same text, font and colour share one layout and one pixmap, whatever their widths, line limits and
    alignments are: who comes second takes over the first one's. The cache lives as long as any builder does.

    A control calls setupRenderer() when its style or width changes, setText() when the text does,
    relayoutRenderer() when it needs the text's size, and in its paint update createNode() once and updateNode()
    always. Calls come from the GUI thread, or from the render thread while the GUI thread is blocked.
*/
class TextNodeBuilder
{
    Q_DISABLE_COPY_MOVE(TextNodeBuilder)
public:
    /*! A text, its layout and its picture; shared by builders and the cache, copied when one changes it. */
    class Data : public QSharedData
    {
    public:
        QColor color; //!< what the pixmap was painted with; invalid when it never was
        stbcore::TextRenderer renderer;
        QPixmap pixmap;
        /*!
            Whether the pixmap shows the renderer's present layout. A cached entry is pushed with its layout and
            may still carry the picture of an older text: without this mark it is painted, never shown.
        */
        bool painted = false;
    };

    TextNodeBuilder();
    ~TextNodeBuilder();

    /*! Takes font, line limit (below 1 counts as 1) and alignment from \a style; \a maxWidth in pixels. */
    void setupRenderer(const design_system::TextStyle &style, int maxWidth);
    /*! Returns false, and does nothing, when this is the text already. */
    bool setText(const QString &text);
    /*! Pixels, 2147483647 for unlimited. */
    void setMaxTextWidth(int width);
    /*! Below 1 counts as 1. */
    void setMaxLineCount(int count);

    /*! Off by default: the builder then neither reads nor writes the cache. */
    void setCachingEnabled(bool enabled) { m_cachingEnabled = enabled; }
    /*!
        The cache size above which a new entry first drops an old one; 15 by default. The test comes before the
        entry is added: the cache holds up to one more.
    */
    void setCacheLimit(int limit) { m_cacheLimit = limit; }

    QString text() const { return m_data->renderer.text(); }
    /*! The extent of the last layout, at (0, 0); invalid for an empty text. */
    QRect boundingRect() const { return m_data->renderer.boundingRect(); }

    /*! Lays the text out when it needs it, or takes over a cached layout of the same text and font. */
    void relayoutRenderer();

    /*! A new, still empty image node under \a parent, just below \a before or on top; unlinked without parent. */
    QSGImageNode *createNode(QSGContext *context, QSGRenderContext *renderContext, QSGNode *parent,
                             QSGNode *before);
    /*!
        Brings the picture of \a node up to date. Sets \a sizeChanged, which may be null, to true when the
        picture's size changed or is another than that of what the node showed, and never to false. A text that is empty and did not change leaves the node
        untouched.
    */
    void updateNode(QSGImageNode *node, const QColor &color, bool *sizeChanged);
    /*! Drops the picture, for a text whose node is gone. */
    void clear();

private:
    friend class TextNodeBuilderAccess; // the tests' view of the cache
    using DataPointer = QSharedDataPointer<Data>;

    bool isShared() const { return m_data.constData()->ref.loadRelaxed() > 1; }
    void paint(QSGImageNode *node, const QColor &color, bool skipRelayout);
    bool tryAttachingFromCache(const QString &text, const QFont &font, const QColor &color);
    void tryPushToCache();
    static void shrinkCache();

    static inline int m_nodeCount = 0;
    static inline QList<DataPointer> m_cachedTexts; // the oldest first

    DataPointer m_data;
    bool m_textChanged = false;
    bool m_cachingEnabled = false;
    int m_cacheLimit = 15;
};

} // namespace qml_basic_plugin

#endif // STBUI_TEXTNODEBUILDER_H
