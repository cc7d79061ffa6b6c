// SPDX-License-Identifier: MIT
#include "forms/pictures.h"

#include <QtGui/qpainter.h>
#include <QtGui/qpixmap.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickimageprovider.h>

namespace stbbench {
namespace {

QImage paintPoster()
{
    QImage image(270, 152, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, 0, image.height());
    sky.setColorAt(0, QColor(0x20, 0x50, 0x90));
    sky.setColorAt(1, QColor(0xf0, 0xa0, 0x60));
    painter.fillRect(image.rect(), sky);
    painter.fillRect(QRect(0, 110, 270, 42), QColor(0x30, 0x38, 0x30));
    return image;
}

QImage paintLogo()
{
    QImage image(48, 24, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(image.rect(), 6, 6);
    return image;
}

/*! One of the two pictures, by the first letters of its name; Qt Quick asks for images in a thread of its own. */
class Provider : public QQuickImageProvider
{
public:
    explicit Provider(ImageType type)
        : QQuickImageProvider(type)
    {
    }

    QImage requestImage(const QString &id, QSize *size, const QSize &) override
    {
        const QImage image = id.startsWith(QLatin1String("poster")) ? m_poster : m_logo;
        *size = image.size();
        return image;
    }

    QPixmap requestPixmap(const QString &id, QSize *size, const QSize &) override
    {
        const QPixmap pixmap = id.startsWith(QLatin1String("poster")) ? m_posterPixmap : m_logoPixmap;
        *size = pixmap.size();
        return pixmap;
    }

private:
    const QImage m_poster = paintPoster();
    const QImage m_logo = paintLogo();
    const QPixmap m_posterPixmap = QPixmap::fromImage(m_poster);
    const QPixmap m_logoPixmap = QPixmap::fromImage(m_logo);
};

QUrl url(const char *pattern, int index)
{
    return QUrl(QString::fromLatin1(pattern).arg(index));
}

} // namespace

void addPictureProviders(QQmlEngine *engine)
{
    // Qt Quick takes pixmaps at once, and images in a thread of its own where they are asked for asynchronously.
    engine->addImageProvider(QStringLiteral("atonce"), new Provider(QQmlImageProviderBase::Pixmap));
    engine->addImageProvider(QStringLiteral("later"), new Provider(QQmlImageProviderBase::Image));
}

QUrl posterUrl(int index)
{
    return url("image://atonce/poster-%1", index);
}

QUrl laterPosterUrl(int index)
{
    return url("image://later/poster-%1", index);
}

QUrl logoUrl(int index)
{
    return url("image://atonce/logo-%1", index);
}

QUrl laterLogoUrl(int index)
{
    return url("image://later/logo-%1", index);
}

} // namespace stbbench
