// SPDX-License-Identifier: MIT
#include "gallery/screens/pictureprovider.h"

#include "gallery/screens/picturedecoder.h"

#include <QtCore/qbuffer.h>
#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qurlquery.h>

#include <algorithm>
#include <memory>

namespace gallery {

namespace {

constexpr int decodingThreads = 2;
constexpr int largestSide = 4096;

constexpr QLatin1String widthKey("width");
constexpr QLatin1String heightKey("height");
constexpr QLatin1String wholeKey("whole");
constexpr QLatin1String marginKey("margin");

struct Request
{
    QUrl picture;
    PictureShape shape;
};

// The picture's address is written in base 64, because an address is decoded and encoded on its way here.
QUrl addressOf(const QUrl &picture, const QSize &size, QLatin1String extraKey = {}, int extra = 1)
{
    if (picture.isEmpty())
        return {};
    const QByteArray code = picture.toEncoded().toBase64(QByteArray::Base64UrlEncoding
                                                         | QByteArray::OmitTrailingEquals);
    QUrlQuery query;
    query.addQueryItem(widthKey, QString::number(size.width()));
    query.addQueryItem(heightKey, QString::number(size.height()));
    if (!extraKey.isEmpty())
        query.addQueryItem(extraKey, QString::number(extra));
    QUrl url;
    url.setScheme(QStringLiteral("image"));
    url.setHost(PictureProvider::name());
    url.setPath(u'/' + QString::fromLatin1(code));
    url.setQuery(query);
    return url;
}

Request requestOf(const QString &id, const QSize &requestedSize)
{
    const QByteArray code = id.section(u'?', 0, 0).toLatin1();
    const QUrlQuery query(id.section(u'?', 1));
    const QSize asked(query.queryItemValue(widthKey).toInt(), query.queryItemValue(heightKey).toInt());
    const QSize size = asked.isEmpty() ? requestedSize : asked;
    Request request;
    request.picture = QUrl::fromEncoded(QByteArray::fromBase64(code, QByteArray::Base64UrlEncoding));
    request.shape.size = size.isEmpty() ? QSize() : size.boundedTo({ largestSide, largestSide });
    request.shape.whole = query.hasQueryItem(wholeKey) || query.hasQueryItem(marginKey);
    if (query.hasQueryItem(marginKey)) {
        const int margin = std::clamp(query.queryItemValue(marginKey).toInt(), 0, largestSide);
        request.shape.frame = request.shape.size;
        request.shape.size = request.shape.size.shrunkBy({ margin, margin, margin, margin })
                                     .expandedTo({ 1, 1 });
    }
    return request;
}

bool isDownloaded(const QUrl &url)
{
    const QString scheme = url.scheme();
    return scheme == QLatin1String("http") || scheme == QLatin1String("https")
           || scheme == QLatin1String("data");
}

// A picture in a file or in the program's resources; other addresses have no file.
QString fileOf(const QUrl &url)
{
    if (url.scheme() == QLatin1String("qrc"))
        return u':' + url.path();
    return url.toLocalFile();
}

DecodedPicture decodeFile(const QString &name, const PictureShape &shape)
{
    // Reading a pipe or a device might never end.
    QFile file(name);
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly))
        return { {}, QStringLiteral("the picture cannot be read") };
    return decodePicture(&file, shape);
}

DecodedPicture decodeBytes(QByteArray bytes, const PictureShape &shape)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return decodePicture(&buffer, shape);
}

/*!
    What a response and the threads that work for it share. A thread speaks to the response only through its event
    queue and only while it is there, so that everything about a response happens in the response's own thread.
*/
struct Job
{
    QMutex mutex;
    QQuickImageResponse *response = nullptr;
    std::atomic<bool> cancelled = false;
    DecodedPicture result; // the working thread's until finish()

    void finish(const DecodedPicture &picture)
    {
        result = picture;
        const QMutexLocker lock(&mutex);
        if (response)
            QMetaObject::invokeMethod(response, "deliver", Qt::QueuedConnection);
    }
};

} // namespace

/*! One picture on its way. Lives, and is only touched, in the engine's thread for pictures. */
class PictureResponse : public QQuickImageResponse
{
    Q_OBJECT
public:
    PictureResponse(PictureProvider *provider, quint64 id, const Request &request);
    ~PictureResponse() override;

    QQuickTextureFactory *textureFactory() const override;
    QString errorString() const override { return m_job->result.error; }
    void cancel() override;

private Q_SLOTS:
    void deliver();

private:
    void download(const Request &request);
    void detach();

    PictureProvider *m_provider = nullptr; // outlives its responses
    quint64 m_id = 0;
    std::shared_ptr<Job> m_job = std::make_shared<Job>();
    bool m_downloads = false;
    bool m_delivered = false;
};

PictureResponse::PictureResponse(PictureProvider *provider, quint64 id, const Request &request)
    : m_provider(provider)
    , m_id(id)
{
    ++m_provider->m_pending;
    m_job->response = this;
    if (isDownloaded(request.picture)) {
        download(request);
        return;
    }
    m_provider->m_decoders.start([job = m_job, file = fileOf(request.picture), shape = request.shape] {
        if (!job->cancelled)
            job->finish(decodeFile(file, shape));
    });
}

PictureResponse::~PictureResponse()
{
    detach();
    if (!m_delivered)
        --m_provider->m_pending;
}

void PictureResponse::download(const Request &request)
{
    m_downloads = true;
    const auto done = [job = m_job, decoders = &m_provider->m_decoders,
                       shape = request.shape](const QByteArray &content, const QString &error) {
        if (!error.isEmpty()) {
            job->finish({ {}, error });
            return;
        }
        decoders->start([job, content, shape] {
            if (!job->cancelled)
                job->finish(decodeBytes(content, shape));
        });
    };
    PictureFetcher *fetcher = m_provider->fetcher();
    QMetaObject::invokeMethod(
            fetcher, [fetcher, id = m_id, url = request.picture, done] { fetcher->fetch(id, url, done); },
            Qt::QueuedConnection);
}

QQuickTextureFactory *PictureResponse::textureFactory() const
{
    return QQuickTextureFactory::textureFactoryForImage(m_job->result.image);
}

// The engine forgets a response with its word that it is finished, which a cancelled one owes as well.
void PictureResponse::cancel()
{
    detach();
    deliver();
}

void PictureResponse::deliver()
{
    if (m_delivered)
        return;
    m_delivered = true;
    --m_provider->m_pending;
    Q_EMIT finished();
}

void PictureResponse::detach()
{
    m_job->cancelled = true;
    const QMutexLocker lock(&m_job->mutex);
    if (!m_job->response)
        return;
    m_job->response = nullptr;
    if (m_downloads)
        m_provider->cancelDownload(m_id);
}

QString PictureProvider::name()
{
    return QStringLiteral("pictures");
}

PictureProvider::PictureProvider(const DownloadLimits &limits)
    : m_fetcher(new PictureFetcher(limits))
{
    m_decoders.setMaxThreadCount(decodingThreads);
    m_fetcher->moveToThread(&m_network);
    // Its timers can only be stopped in its thread.
    connect(&m_network, &QThread::finished, m_fetcher, &QObject::deleteLater);
}

PictureProvider::~PictureProvider()
{
    // Downloads end first, because they start decoding.
    if (m_network.isRunning()) {
        m_network.quit();
        m_network.wait();
    } else {
        delete m_fetcher;
    }
    m_decoders.clear();
    m_decoders.waitForDone();
}

QQuickImageResponse *PictureProvider::requestImageResponse(const QString &id, const QSize &requestedSize)
{
    return new PictureResponse(this, ++m_lastId, requestOf(id, requestedSize));
}

PictureFetcher *PictureProvider::fetcher()
{
    const QMutexLocker lock(&m_mutex);
    if (!m_network.isRunning())
        m_network.start();
    return m_fetcher;
}

void PictureProvider::cancelDownload(quint64 id)
{
    PictureFetcher *fetcher = this->fetcher();
    QMetaObject::invokeMethod(
            fetcher, [fetcher, id] { fetcher->cancel(id); }, Qt::QueuedConnection);
}

QUrl Pictures::filling(const QUrl &picture, int width, int height)
{
    return addressOf(picture, { width, height });
}

QUrl Pictures::fitting(const QUrl &picture, int width, int height)
{
    return addressOf(picture, { width, height }, wholeKey);
}

QUrl Pictures::framed(const QUrl &picture, int width, int height, int margin)
{
    return addressOf(picture, { width, height }, marginKey, margin);
}

} // namespace gallery

#include "pictureprovider.moc"
