// SPDX-License-Identifier: MIT
#ifndef STBCORE_TEXTRENDERER_H
#define STBCORE_TEXTRENDERER_H

#include <stbcore/stbcoreglobal.h>

#include <QtCore/qrect.h>
#include <QtCore/qshareddata.h>
#include <QtGui/qfont.h>
#include <QtGui/qpen.h>

class QPainter;

namespace stbcore {

class TextRendererData;

class STBCORE_EXPORT TextRenderer
{
public:
    TextRenderer();
    TextRenderer(const TextRenderer &other);
    TextRenderer &operator=(const TextRenderer &other);
    ~TextRenderer();

    QString text() const;
    void setText(const QString &text);
    QFont textFont() const;
    void setTextFont(const QFont &font);
    int maxTextWidth() const;
    void setMaxTextWidth(int width);
    int maxLineCount() const;
    void setMaxLineCount(int count);
    Qt::Alignment textAlignment() const;
    void setTextAlignment(Qt::Alignment alignment);

    bool isNeedRelayout() const;
    void relayout();
    QRect boundingRect() const;

private:
    friend STBCORE_EXPORT void drawTextRenderer(QPainter &painter, const TextRenderer &renderer,
                                                const QPen &pen);
    QSharedDataPointer<TextRendererData> d;
};

STBCORE_EXPORT void drawTextRenderer(QPainter &painter, const TextRenderer &renderer, const QPen &pen);

} // namespace stbcore

#endif // STBCORE_TEXTRENDERER_H
