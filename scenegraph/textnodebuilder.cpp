// SPDX-License-Identifier: MIT
#include "scenegraph/textnodebuilder.h"

#include "scenegraph/nodehelpers.h"

#include <design_system/textstyle.h>

#include <algorithm>

namespace qml_basic_plugin {

TextNodeBuilder::TextNodeBuilder()
    : m_data(new Data)
{
    ++m_nodeCount;
}

TextNodeBuilder::~TextNodeBuilder()
{
    if (--m_nodeCount == 0)
        m_cachedTexts.clear();
}

void TextNodeBuilder::setupRenderer(const design_system::TextStyle &style, int maxWidth)
{
    const int maxLines = std::max(style.maxLineCount, 1);
    stbcore::TextRenderer &renderer = m_data->renderer;
    if (renderer.textFont() != style.font || renderer.maxLineCount() != maxLines
        || renderer.textAlignment() != style.alignment || renderer.maxTextWidth() != maxWidth)
        m_data->painted = false;
    renderer.setTextFont(style.font);
    renderer.setMaxLineCount(maxLines);
    renderer.setTextAlignment(style.alignment);
    renderer.setMaxTextWidth(maxWidth);
}

bool TextNodeBuilder::setText(const QString &text)
{
    if (m_data.constData()->renderer.text() == text)
        return false;
    m_data->renderer.setText(text);
    m_data->painted = false;
    m_textChanged = true;
    return true;
}

void TextNodeBuilder::setMaxTextWidth(int width)
{
    if (m_data.constData()->renderer.maxTextWidth() == width)
        return;
    m_data->renderer.setMaxTextWidth(width);
    m_data->painted = false;
}

void TextNodeBuilder::setMaxLineCount(int count)
{
    count = std::max(count, 1);
    if (m_data.constData()->renderer.maxLineCount() == count)
        return;
    m_data->renderer.setMaxLineCount(count);
    m_data->painted = false;
}

void TextNodeBuilder::relayoutRenderer()
{
    if (!m_data.constData()->renderer.isNeedRelayout())
        return;
    m_data.detach();
    if (tryAttachingFromCache(m_data.constData()->renderer.text(), m_data.constData()->renderer.textFont(),
                              QColor()))
        return;
    m_data.detach();
    m_data->renderer.relayout();
    m_data->painted = false;
    tryPushToCache();
}

QSGImageNode *TextNodeBuilder::createNode(QSGContext *context, QSGRenderContext *renderContext,
                                          QSGNode *parent, QSGNode *before)
{
    return createEmptyImageNode(context, renderContext, parent, before);
}

void TextNodeBuilder::updateNode(QSGImageNode *node, const QColor &color, bool *sizeChanged)
{
    const Data *data = m_data.constData();
    if (data->renderer.text().isEmpty() && !m_textChanged)
        return;
    const bool layoutStale = data->renderer.isNeedRelayout();
    if (!layoutStale && !m_textChanged && data->painted && data->color == color) {
        // The picture may be another builder's work on a shared entry, which this node has not got yet.
        updateTextureInNode(node, data->pixmap);
        return;
    }

    const QSize formerSize = data->pixmap.size();
    const QSize shownSize = textureIsNull(node) ? QSize() : node->texture()->textureSize();
    const bool layoutCurrent = !layoutStale && (!m_textChanged || data->color != color);
    m_data.detach();
    tryAttachingFromCache(m_data.constData()->renderer.text(), m_data.constData()->renderer.textFont(), color);
    if (isShared() && m_data.constData()->painted)
        updateTextureInNode(node, m_data.constData()->pixmap);
    else
        paint(node, color, layoutCurrent);
    // A layout taken over from the cache brought its pixmap along: what the node showed counts as well.
    const QSize size = m_data.constData()->pixmap.size();
    if (sizeChanged && (size != formerSize || (shownSize.isValid() && size != shownSize)))
        *sizeChanged = true;
    m_textChanged = false;
}

void TextNodeBuilder::clear()
{
    m_data->pixmap = QPixmap();
    m_data->color = QColor(Qt::color0); // a valid colour, on purpose
    m_data->painted = false;
    m_textChanged = false;
}

void TextNodeBuilder::paint(QSGImageNode *node, const QColor &color, bool skipRelayout)
{
    // An entry shared through the cache is painted in place, for all who share it; a copy would leave the others
    // with a picture of something else.
    Data *data = const_cast<Data *>(m_data.constData()); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    renderTextToImageNodeTexture(node, data->renderer, color, data->pixmap, skipRelayout);
    // An empty text whose pixmap was null already painted nothing; the node may still show the text before.
    updateTextureInNode(node, data->pixmap);
    data->color = color;
    data->painted = true;
    tryPushToCache();
}

bool TextNodeBuilder::tryAttachingFromCache(const QString &text, const QFont &font, const QColor &color)
{
    if (!m_cachingEnabled || text.isEmpty())
        return false;
    const auto found = std::find_if(m_cachedTexts.cbegin(), m_cachedTexts.cend(),
                                    [&](const DataPointer &entry) {
                                        const Data *data = entry.constData();
                                        return data->renderer.text() == text && data->color == color
                                               && data->renderer.textFont() == font;
                                    });
    if (found == m_cachedTexts.cend())
        return false;
    if (found->constData() != m_data.constData())
        m_data = *found;
    return true;
}

void TextNodeBuilder::tryPushToCache()
{
    if (!m_cachingEnabled || isShared() || m_data.constData()->renderer.text().isEmpty())
        return;
    if (m_cachedTexts.size() > m_cacheLimit)
        shrinkCache();
    m_cachedTexts.append(m_data);
}

// Drops the oldest entry that no builder uses, or else the oldest of those with the fewest users.
void TextNodeBuilder::shrinkCache()
{
    const auto leastUsed = std::min_element(m_cachedTexts.cbegin(), m_cachedTexts.cend(),
                                            [](const DataPointer &left, const DataPointer &right) {
                                                return left.constData()->ref.loadRelaxed()
                                                       < right.constData()->ref.loadRelaxed();
                                            });
    if (leastUsed != m_cachedTexts.cend())
        m_cachedTexts.erase(leastUsed);
}

} // namespace qml_basic_plugin
