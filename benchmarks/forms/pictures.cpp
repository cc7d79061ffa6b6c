// SPDX-License-Identifier: MIT
#include "forms/pictures.h"

#include "testkit/stage.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qdeadlinetimer.h>
#include <QtCore/qthread.h>
#include <QtGui/qpainter.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickimageprovider.h>
#include <QtQuick/qquickwindow.h>

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

/*! One of the pictures, by the first letters of its name. */
class Provider : public QQuickImageProvider
{
public:
    Provider()
        : QQuickImageProvider(Image)
    {
    }

    QImage requestImage(const QString &id, QSize *size, const QSize &) override
    {
        const QImage image = picture(id);
        *size = image.size();
        return image;
    }

private:
    QImage picture(const QString &id) const
    {
        if (id == QLatin1String("sheet"))
            return m_sheet;
        if (id.startsWith(QLatin1String("channel")))
            return m_channel;
        return id.startsWith(QLatin1String("poster")) ? m_poster : m_logo;
    }

    const QImage m_poster = paintPoster();
    const QImage m_logo = paintLogo();
    const QImage m_channel = m_poster.scaled(128, 72);
    const QImage m_sheet = placeholderSheet();
};

} // namespace

void addPictureProvider(QQmlEngine *engine)
{
    engine->addImageProvider(QStringLiteral("benchmarks"), new Provider);
}

QUrl posterUrl(int index)
{
    return QUrl(QStringLiteral("image://benchmarks/poster-%1").arg(index));
}

QUrl logoUrl(int index)
{
    return QUrl(QStringLiteral("image://benchmarks/logo-%1").arg(index));
}

QUrl channelUrl(int index)
{
    return QUrl(QStringLiteral("image://benchmarks/channel-%1").arg(index));
}

QImage placeholderSheet()
{
    QImage image(256, 72, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.fillRect(QRect(0, 0, 128, 72), QColor(0x40, 0x58, 0x70));
    painter.fillRect(QRect(128, 0, 128, 72), QColor(0x60, 0x48, 0x70));
    painter.fillRect(QRect(40, 20, 176, 32), QColor(0x90, 0xa0, 0xb0));
    return image;
}

bool waitForFrame(stbtest::Stage &stage)
{
    constexpr int patience = 10000; // milliseconds; a few are needed
    Q_EMIT stage.window()->frameSwapped(); // the last frame is on the screen: an animation asks for another
    for (QDeadlineTimer limit(patience); !stage.wantsFrame(); QThread::msleep(1)) {
        if (limit.hasExpired())
            return false;
        QCoreApplication::processEvents();
    }
    return true;
}

} // namespace stbbench
