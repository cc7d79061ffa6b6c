// SPDX-License-Identifier: MIT
#include "stbcore/textrenderer.h"

#include <QtGui/qfontmetrics.h>
#include <QtGui/qpainter.h>

namespace stbcore {

class TextRendererData : public QSharedData
{
public:
    QString text;
    QFont font;
    int maxTextWidth = 2147483647;
    int maxLineCount = 1;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignTop;
    bool needRelayout = false;
    QRect boundingRect;
};

TextRenderer::TextRenderer() : d(new TextRendererData) {}
TextRenderer::TextRenderer(const TextRenderer &) = default;
TextRenderer &TextRenderer::operator=(const TextRenderer &) = default;
TextRenderer::~TextRenderer() = default;
QString TextRenderer::text() const { return d->text; }
void TextRenderer::setText(const QString &text)
{
    if (text == d.constData()->text)
        return;
    d->text = text;
    d->needRelayout = true;
}
QFont TextRenderer::textFont() const { return d->font; }
void TextRenderer::setTextFont(const QFont &font)
{
    if (font == d.constData()->font)
        return;
    d->font = font;
    d->needRelayout = true;
}
int TextRenderer::maxTextWidth() const { return d->maxTextWidth; }
void TextRenderer::setMaxTextWidth(int width)
{
    if (width == d.constData()->maxTextWidth)
        return;
    d->maxTextWidth = width;
    d->needRelayout = true;
}
int TextRenderer::maxLineCount() const { return d->maxLineCount; }
void TextRenderer::setMaxLineCount(int count)
{
    count = qMax(count, 1);
    if (count == d.constData()->maxLineCount)
        return;
    d->maxLineCount = count;
    d->needRelayout = true;
}
Qt::Alignment TextRenderer::textAlignment() const { return d->alignment; }
void TextRenderer::setTextAlignment(Qt::Alignment alignment)
{
    if (alignment == d.constData()->alignment)
        return;
    d->alignment = alignment;
    d->needRelayout = true;
}
bool TextRenderer::isNeedRelayout() const { return d->needRelayout; }
void TextRenderer::relayout()
{
    if (!d.constData()->needRelayout)
        return;
    d->needRelayout = false;
    if (d->text.isEmpty() || d->maxTextWidth <= 0) {
        d->boundingRect = QRect();
        return;
    }
    const QFontMetrics metrics(d->font);
    d->boundingRect = QRect(0, 0, qMin(metrics.horizontalAdvance(d->text), d->maxTextWidth), metrics.height());
}
QRect TextRenderer::boundingRect() const { return d->boundingRect; }

void drawTextRenderer(QPainter &painter, const TextRenderer &renderer, const QPen &pen)
{
    painter.setFont(renderer.d->font);
    painter.setPen(pen);
    painter.drawText(renderer.d->boundingRect, int(renderer.d->alignment), renderer.d->text);
}

} // namespace stbcore
