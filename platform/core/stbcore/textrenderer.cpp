// SPDX-License-Identifier: MIT
#include "stbcore/textrenderer.h"

#include "stbcore/shapedtext_p.h"

#include <QtGui/qpainter.h>

#include <algorithm>
#include <cmath>

namespace stbcore {

class TextRendererData : public QSharedData
{
public:
    TextShapeKey shapeKey() const { return { text, font, maxTextWidth, maxLineCount }; }
    void relayout();
    void placeLines();

    QString text;
    QFont font;
    int maxTextWidth = 2147483647;
    int maxLineCount = 1;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignTop;
    bool needRelayout = false;

    std::shared_ptr<const ShapedText> shape; // null: nothing to show
    std::vector<QPointF> positions; // of the top left corner of each line
    QRect boundingRect;
    bool tooWide = false; // a line reaches beyond the bounding rectangle
};

namespace {

enum class HorizontalPlace { Begin, Center, End, Left, Right };

HorizontalPlace horizontalPlace(Qt::Alignment alignment)
{
    if (alignment & Qt::AlignHCenter)
        return HorizontalPlace::Center;
    const bool absolute = alignment & Qt::AlignAbsolute;
    if (alignment & Qt::AlignRight)
        return absolute ? HorizontalPlace::Right : HorizontalPlace::End;
    return absolute && (alignment & Qt::AlignLeft) ? HorizontalPlace::Left : HorizontalPlace::Begin;
}

// The part of a free space that is left of the line: none, half or all of it.
qreal shareAtLeft(HorizontalPlace place, bool rightToLeft)
{
    switch (place) {
    case HorizontalPlace::Center:
        return 0.5;
    case HorizontalPlace::Left:
        return 0;
    case HorizontalPlace::Right:
        return 1;
    case HorizontalPlace::Begin:
        return rightToLeft ? 1 : 0;
    case HorizontalPlace::End:
        return rightToLeft ? 0 : 1;
    }
    return 0;
}

} // namespace

void TextRendererData::relayout()
{
    needRelayout = false;
    boundingRect = QRect();
    positions.clear();
    if (text.isEmpty() || maxTextWidth <= 0) {
        shape.reset();
        return;
    }
    const TextShapeKey key = shapeKey();
    if (!shape || !shape->isGoodFor(key))
        shape = std::make_shared<const ShapedText>(key);
    placeLines();
}

// Lines start at whole pixels, so that a text looks the same wherever it is aligned.
void TextRendererData::placeLines()
{
    const int width = std::min(shape->width() + shape->leftOverhang() + shape->rightOverhang(), maxTextWidth);
    const int left = std::min(shape->leftOverhang(), std::max(0, width - shape->width()));
    const qreal share = shareAtLeft(horizontalPlace(alignment), shape->isRightToLeft());
    qreal bottom = 0;
    for (const QTextLine &line : shape->lines()) {
        const qreal top = std::ceil(bottom);
        positions.emplace_back(left + std::floor((shape->width() - line.naturalTextWidth()) * share), top);
        bottom = top + line.height();
    }
    tooWide = shape->width() > maxTextWidth;
    boundingRect = QRect(0, 0, width, int(std::ceil(bottom)));
}

TextRenderer::TextRenderer()
    : d(new TextRendererData)
{
}

TextRenderer::TextRenderer(const TextRenderer &other) = default;
TextRenderer &TextRenderer::operator=(const TextRenderer &other) = default;
TextRenderer::~TextRenderer() = default;

QString TextRenderer::text() const
{
    return d->text;
}

void TextRenderer::setText(const QString &text)
{
    if (text == d.constData()->text)
        return;
    d->text = text;
    d->needRelayout = true;
}

QFont TextRenderer::textFont() const
{
    return d->font;
}

void TextRenderer::setTextFont(const QFont &font)
{
    if (font == d.constData()->font)
        return;
    d->font = font;
    d->needRelayout = true;
}

int TextRenderer::maxTextWidth() const
{
    return d->maxTextWidth;
}

void TextRenderer::setMaxTextWidth(int width)
{
    const int oldWidth = d.constData()->maxTextWidth;
    if (width == oldWidth)
        return;
    d->maxTextWidth = width;
    if (width > 0 || oldWidth > 0)
        d->needRelayout = true;
}

int TextRenderer::maxLineCount() const
{
    return d->maxLineCount;
}

void TextRenderer::setMaxLineCount(int count)
{
    count = std::max(count, 1);
    if (count == d.constData()->maxLineCount)
        return;
    d->maxLineCount = count;
    d->needRelayout = true;
}

Qt::Alignment TextRenderer::textAlignment() const
{
    return d->alignment;
}

void TextRenderer::setTextAlignment(Qt::Alignment alignment)
{
    const Qt::Alignment oldAlignment = d.constData()->alignment;
    if (alignment == oldAlignment)
        return;
    d->alignment = alignment;
    if (horizontalPlace(alignment) != horizontalPlace(oldAlignment))
        d->needRelayout = true;
}

bool TextRenderer::isNeedRelayout() const
{
    return d->needRelayout;
}

void TextRenderer::relayout()
{
    if (d.constData()->needRelayout)
        d->relayout();
}

QRect TextRenderer::boundingRect() const
{
    return d->boundingRect;
}

void drawTextRenderer(QPainter &painter, const TextRenderer &renderer, const QPen &pen)
{
    const TextRendererData &data = *renderer.d;
    if (!data.shape || data.boundingRect.isEmpty())
        return;
    painter.save();
    painter.setPen(pen);
    if (data.tooWide)
        painter.setClipRect(data.boundingRect, Qt::IntersectClip);
    const std::vector<QTextLine> &lines = data.shape->lines();
    for (size_t i = 0; i < lines.size(); ++i)
        lines[i].draw(&painter, data.positions[i]);
    painter.restore();
}

} // namespace stbcore
