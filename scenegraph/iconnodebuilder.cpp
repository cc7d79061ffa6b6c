// SPDX-License-Identifier: MIT
#include "scenegraph/iconnodebuilder.h"

#include "scenegraph/nodehelpers.h"

#include <QtGui/qimage.h>
#include <QtGui/qpixmapcache.h>

#include <algorithm>
#include <span>

namespace qml_basic_plugin {

namespace {

QString cacheKey(const QString &source, const QColor &color)
{
    return source + color.name(QColor::HexArgb);
}

QImage tinted(QImage image, QRgb tint)
{
    constexpr QRgb colorBits = 0x00ffffff;
    for (int y = 0; y < image.height(); ++y) {
        const std::span line(reinterpret_cast<QRgb *>(image.scanLine(y)), size_t(image.width()));
        for (QRgb &pixel : line) {
            if (pixel & colorBits)
                pixel = qRgba(qRed(tint), qGreen(tint), qBlue(tint), qAlpha(pixel) * qAlpha(tint) / 255);
        }
    }
    return image;
}

// As qFuzzyCompare(), which has no answer for zero.
bool fuzzyEqual(double a, double b)
{
    const double difference = qAbs(a - b);
    if (a == 0. || b == 0.)
        return difference <= 1e-12;
    return difference * 1e12 <= std::min(qAbs(a), qAbs(b));
}

} // namespace

void IconNodeBuilder::load(const QString &source, const QColor &color)
{
    if (source == m_source)
        return;
    m_source = source;
    if (source.isEmpty()) {
        clear();
        m_changed = true;
        return;
    }
    if (color.isValid())
        QPixmapCache::find(cacheKey(source, color), &m_pixmap);
    m_loadAttempted = true;
    if (m_pixmap.isNull()) {
        m_loaded = m_pixmap.load(source);
        if (color.isValid())
            colorize(color);
    } else {
        m_loaded = true;
    }
    m_changed = true;
}

void IconNodeBuilder::colorize(const QColor &color)
{
    if (m_pixmap.isNull() || m_color == color)
        return;
    if (color.isValid()) {
        tint(color);
    } else {
        const QString source = std::exchange(m_source, QString());
        m_pixmap = QPixmap();
        load(source, QColor());
    }
    m_color = color;
}

QSGImageNode *IconNodeBuilder::createNode(QSGContext *context, QSGRenderContext *renderContext,
                                          QSGNode *parent, QSGNode *before)
{
    if (!m_pixmap.isNull())
        m_changed = true; // a node made again gets its picture
    return createEmptyImageNode(context, renderContext, parent, before);
}

void IconNodeBuilder::updateNode(QSGImageNode *node, bool *sizeChanged)
{
    if (!node || !m_changed)
        return;
    updateTextureInNode(node, m_pixmap);
    const QSizeF size = node->rect().size();
    if (sizeChanged
        && (!fuzzyEqual(m_pixmap.width(), size.width()) || !fuzzyEqual(m_pixmap.height(), size.height())))
        *sizeChanged = true;
    m_changed = false;
}

void IconNodeBuilder::clear()
{
    m_pixmap = QPixmap();
    m_color = QColor(Qt::color0); // a valid colour, on purpose
    m_loadAttempted = false;
    m_changed = false;
}

void IconNodeBuilder::tint(const QColor &color)
{
    const QString key = cacheKey(m_source, color);
    if (!QPixmapCache::find(key, &m_pixmap)) {
        m_pixmap = QPixmap::fromImage(
                tinted(QImage(m_source).convertToFormat(QImage::Format_ARGB32), color.rgba()));
        QPixmapCache::insert(key, m_pixmap);
    }
    m_changed = true;
}

} // namespace qml_basic_plugin
