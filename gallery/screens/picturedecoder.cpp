// SPDX-License-Identifier: MIT
#include "gallery/screens/picturedecoder.h"

#include <QtCore/qiodevice.h>
#include <QtCore/qmutex.h>
#include <QtCore/qset.h>
#include <QtGui/qimagereader.h>
#include <QtGui/qpainter.h>

#include <utility>

namespace gallery {

namespace {

constexpr QSize largestShape(1920, 1080);
constexpr int largePicturePixels = 4 * 1024 * 1024;

/*! A device that gives no more once too much was read, and remembers when it had nothing to give. */
class GuardedDevice : public QIODevice
{
public:
    explicit GuardedDevice(QIODevice *source)
        : m_source(source)
    {
        open(ReadOnly | Unbuffered);
    }

    qint64 size() const override { return m_source->size(); }
    bool seek(qint64 position) override { return QIODevice::seek(position) && m_source->seek(position); }

    /*! Whether more was wanted than there is, since the last call. */
    bool takeStarved() { return std::exchange(m_starved, false); }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        if (m_read > maximumPictureBytes)
            return -1;
        const qint64 got = m_source->read(data, maxSize);
        m_starved = m_starved || got <= 0;
        m_read += std::max<qint64>(got, 0);
        return got;
    }
    qint64 writeData(const char * /*data*/, qint64 /*size*/) override { return -1; }

private:
    QIODevice *m_source = nullptr;
    qint64 m_read = 0;
    bool m_starved = false;
};

QRect middle(const QSize &whole, const QSize &part)
{
    return { QPoint((whole.width() - part.width()) / 2, (whole.height() - part.height()) / 2), part };
}

// Tells the reader what part of a picture of this size to give, and how large.
void arrange(QImageReader *reader, const QSize &picture, const PictureShape &shape)
{
    const bool fits = shape.whole || shape.size.isEmpty();
    const QSize wanted = shape.size.isEmpty() ? largestShape : shape.size;
    const QSize scaled = picture.scaled(wanted, fits ? Qt::KeepAspectRatio : Qt::KeepAspectRatioByExpanding)
                                 .expandedTo({ 1, 1 });
    const bool smaller = scaled.width() < picture.width() || scaled.height() < picture.height();
    if (smaller)
        reader->setScaledSize(scaled);
    if (fits)
        return;
    if (smaller)
        reader->setScaledClipRect(middle(scaled, wanted));
    else
        reader->setClipRect(middle(picture, wanted.scaled(picture, Qt::KeepAspectRatio).expandedTo({ 1, 1 })));
}

// The formats of pictures; others, such as drawings, cost what their author likes.
bool isPicture(const QByteArray &format)
{
    static const QSet<QByteArray> formats = { "png", "jpeg", "jpg", "webp", "gif", "bmp" };
    return formats.contains(format);
}

QImage forRenderer(QImage image)
{
    return std::move(image).convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                    : QImage::Format_RGB32);
}

QImage framed(const QImage &picture, const QSize &frame)
{
    QImage image(frame, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter(&image).drawImage(middle(frame, picture.size()), picture);
    return image;
}

} // namespace

DecodedPicture decodePicture(QIODevice *device, const PictureShape &shape)
{
    GuardedDevice guarded(device);
    QImageReader reader(&guarded);
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format();
    if (!isPicture(format))
        return { {}, QStringLiteral("this is no picture of a known format") };
    guarded.takeStarved();
    const QSize picture = reader.size();
    if (picture.isEmpty())
        return { {}, QStringLiteral("the picture is damaged") };
    const qint64 pixels = qint64(picture.width()) * picture.height();
    if (pixels > maximumPicturePixels)
        return { {}, QStringLiteral("the picture has too many pixels") };
    reader.setAutoTransform(true);
    // What the camera was turned by is applied after scaling.
    PictureShape stored = shape;
    if (reader.transformation() & QImageIOHandler::TransformationRotate90)
        stored.size.transpose();
    arrange(&reader, picture, stored);

    static QMutex oneAtATime;
    QMutexLocker lock(pixels > largePicturePixels ? &oneAtATime : nullptr);
    QImage image;
    if (!reader.read(&image))
        return { {}, reader.errorString() };
    // The JPEG decoder makes the missing part of a picture grey and is content.
    if (format == "jpeg" && guarded.takeStarved())
        return { {}, QStringLiteral("the picture is cut off") };
    return { shape.frame.isEmpty() ? forRenderer(std::move(image)) : framed(image, shape.frame), {} };
}

} // namespace gallery
