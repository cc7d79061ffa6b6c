// SPDX-License-Identifier: MIT
#include "textpictures.h"

#include <QtGui/qpainter.h>
#include <QtGui/qtextlayout.h>

#include <cmath>

namespace textpictures {

QFont font22()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(22);
    return font;
}

QString operator""_u(const char *text, size_t size)
{
    return QString::fromUtf8(text, qsizetype(size));
}

TextRenderer laidOut(const QString &text, int maxWidth, int maxLines, Qt::Alignment alignment)
{
    TextRenderer renderer;
    renderer.setTextFont(font22());
    renderer.setText(text);
    renderer.setMaxTextWidth(maxWidth);
    renderer.setMaxLineCount(maxLines);
    renderer.setTextAlignment(alignment);
    renderer.relayout();
    return renderer;
}

QImage blank(QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage painted(const TextRenderer &renderer, int margin, const QPen &pen)
{
    QImage image = blank(renderer.boundingRect().size() + QSize(2 * margin, 2 * margin));
    QPainter painter(&image);
    painter.translate(margin, margin);
    drawTextRenderer(painter, renderer, pen);
    return image;
}

QRect inkOf(const QImage &image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

int heightOfLines(int count)
{
    QTextLayout layout(QStringLiteral("x"), font22());
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(1000);
    layout.endLayout();
    return count * int(line.height());
}

QRect inkOfLine(const TextRenderer &renderer, int line)
{
    const int height = heightOfLines(1);
    return inkOf(painted(renderer).copy(0, line * height, renderer.boundingRect().width(), height));
}

QImage paintedByQt(const QStringList &lines, QSize size, Qt::LayoutDirection direction)
{
    QImage image = blank(size);
    QPainter painter(&image);
    painter.setPen(Qt::white);
    qreal y = 0;
    for (const QString &text : lines) {
        QTextLayout layout(text, font22());
        QTextOption option(Qt::AlignLeft);
        option.setTextDirection(direction);
        layout.setTextOption(option);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(100000);
        layout.endLayout();
        line.draw(&painter, QPointF(0, y));
        y += line.height();
    }
    return image;
}

int naturalWidth(const QString &text)
{
    QTextLayout layout(text, font22());
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(100000);
    layout.endLayout();
    return int(std::ceil(line.naturalTextWidth()));
}

} // namespace textpictures
