// SPDX-License-Identifier: MIT
#include "tintedicon.h"

#include <QtCore/qset.h>
#include <QtGui/qpainter.h>
#include <QtGui/qpainterpath.h>
#include <QtGui/qpixmapcache.h>
#include <QtGui/qtransform.h>
#include <QtQml/qqmlfile.h>
#include <QtQml/qqmlinfo.h>
#include <QtQuick/qquickwindow.h>
#include <QtQuick/qsgimagenode.h>

namespace stbgeneric {

namespace {

QString localPath(const QString &path)
{
    const QString local = QQmlFile::urlToLocalFileOrQrc(path);
    return local.isEmpty() ? path : local;
}

/*! Whether \a path has yet to be complained about. */
bool isNewComplaint(const QString &path)
{
    static QSet<QString> told;
    const qsizetype before = told.size();
    told.insert(path);
    return told.size() > before;
}

QImage compose(const QImage &source, const QSize &size, const QColor &color, qreal radius)
{
    const QSize scaled = source.size().scaled(size, radius > 0 ? Qt::KeepAspectRatioByExpanding
                                                               : Qt::KeepAspectRatio);
    QRect place(QPoint(), scaled);
    place.moveCenter(QRect(QPoint(), size).center());

    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.drawImage(place, source.scaled(scaled, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    if (color.isValid()) {
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), color);
    }
    if (radius > 0) {
        QPainterPath corners;
        corners.addRect(picture.rect());
        corners.addRoundedRect(picture.rect(), radius, radius);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        painter.fillPath(corners, Qt::black);
    }
    return picture;
}

} // namespace

TintedIcon::TintedIcon(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setImplicitSize(m_pictureSize.width(), m_pictureSize.height());
}

void TintedIcon::setPath(const QString &path)
{
    if (path == m_path)
        return;
    m_path = path;
    m_isUnreadable = false;
    Q_EMIT pathChanged();
    invalidate();
}

void TintedIcon::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
    invalidate();
}

void TintedIcon::setRadius(qreal radius)
{
    if (radius == m_radius)
        return;
    m_radius = radius;
    Q_EMIT radiusChanged();
    invalidate();
}

void TintedIcon::setPictureSize(QSize size)
{
    if (size == m_pictureSize)
        return;
    m_pictureSize = size;
    setImplicitSize(size.width(), size.height());
    Q_EMIT pictureSizeChanged();
}

void TintedIcon::setMirrored(bool mirrored)
{
    if (mirrored == m_isMirrored)
        return;
    m_isMirrored = mirrored;
    Q_EMIT mirroredChanged();
    invalidate();
}

void TintedIcon::invalidate()
{
    m_isStale = true;
    polish();
}

void TintedIcon::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        invalidate();
}

void TintedIcon::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        invalidate();
    else if (change == ItemVisibleHasChanged && m_isStale)
        polish();
}

void TintedIcon::updatePolish()
{
    if (!m_isStale || !isVisible())
        return;
    m_picture = makePicture();
    m_isStale = false;
    m_isNew = true;
    update();
}

QImage TintedIcon::makePicture()
{
    const qreal ratio = window() ? window()->effectiveDevicePixelRatio() : 1;
    const QSize pixels(qRound(width() * ratio), qRound(height() * ratio));
    if (m_path.isEmpty() || m_isUnreadable || pixels.isEmpty())
        return {};
    const QString key = QStringLiteral("stbgeneric:%1:%2x%3:%4:%5:%6")
                                .arg(m_path)
                                .arg(pixels.width())
                                .arg(pixels.height())
                                .arg(m_color.isValid() ? m_color.name(QColor::HexArgb) : QString())
                                .arg(m_radius)
                                .arg(m_isMirrored);
    QPixmap shared;
    if (QPixmapCache::find(key, &shared))
        return shared.toImage();
    const QImage source(localPath(m_path));
    m_isUnreadable = source.isNull();
    if (m_isUnreadable) {
        if (isNewComplaint(m_path))
            qmlWarning(this) << "Cannot open: " << m_path;
        return {};
    }
    // QImage's own function for this has another name from Qt 6.9 on.
    const QImage shown = m_isMirrored ? source.transformed(QTransform::fromScale(-1, 1)) : source;
    const QImage picture = compose(shown, pixels, m_color, m_radius * ratio);
    QPixmapCache::insert(key, QPixmap::fromImage(picture));
    return picture;
}

QSGNode *TintedIcon::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    auto *node = static_cast<QSGImageNode *>(oldNode);
    if (m_picture.isNull()) {
        delete node;
        return nullptr;
    }
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        m_isNew = true;
    }
    if (m_isNew)
        node->setTexture(window()->createTextureFromImage(m_picture, QQuickWindow::TextureHasAlphaChannel));
    m_isNew = false;
    if (node->rect() != boundingRect())
        node->setRect(boundingRect());
    return node;
}

} // namespace stbgeneric
