// SPDX-License-Identifier: MIT
#include "gallery/screens/pictureprovider.h"

#include "gallery/screens/picturejob.h"

#include <QtCore/qbuffer.h>
#include <QtCore/qdatetime.h>
#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qurlquery.h>

#include <algorithm>
#include <memory>

namespace gallery {

/*! Which picture, and how it is to come out. */
struct PictureRequested
{
    QUrl picture;
    PictureShape shape;
};

namespace {

constexpr int decodingThreads = 2;
constexpr int largestSide = 4096;

constexpr QLatin1String widthKey("width");
constexpr QLatin1String heightKey("height");
constexpr QLatin1String wholeKey("whole");
constexpr QLatin1String marginKey("margin");

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

PictureRequested requestOf(const QString &id, const QSize &requestedSize)
{
    const QByteArray code = id.section(u'?', 0, 0).toLatin1();
    const QUrlQuery query(id.section(u'?', 1));
    const QSize asked(query.queryItemValue(widthKey).toInt(), query.queryItemValue(heightKey).toInt());
    const QSize size = asked.isEmpty() ? requestedSize : asked;
    PictureRequested request;
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

// As what a picture is kept: its address and size, and of a file which state of it.
QString keyOf(const QString &id, const QFileInfo &file)
{
    return id + u'@' + QString::number(file.lastModified().toMSecsSinceEpoch()) + u'+'
           + QString::number(file.size());
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

} // namespace

/*! One tile's wish. Lives, and is only touched, in the engine's thread for pictures. */
class PictureResponse : public QQuickImageResponse
{
    Q_OBJECT
public:
    PictureResponse(PictureProvider *provider, const QString &id, const QSize &requestedSize);
    ~PictureResponse() override;

    QQuickTextureFactory *textureFactory() const override;
    QString errorString() const override { return m_job->result().error; }
    void cancel() override;

private Q_SLOTS:
    void deliver();

private:
    void leave();

    PictureProvider *m_provider = nullptr; // outlives its responses
    QString m_id;
    std::shared_ptr<PictureJob> m_job;
    bool m_delivered = false;
};

PictureResponse::PictureResponse(PictureProvider *provider, const QString &id, const QSize &requestedSize)
    : m_provider(provider)
    , m_id(id + u'/' + QString::number(requestedSize.width()) + u'x' + QString::number(requestedSize.height()))
{
    ++m_provider->m_pending;
    m_job = m_provider->runningJob(m_id);
    if (m_job && m_job->join(this))
        return;
    m_job = m_provider->startJob(m_id, requestOf(id, requestedSize), this);
}

PictureResponse::~PictureResponse()
{
    leave();
    if (!m_delivered)
        --m_provider->m_pending;
}

QQuickTextureFactory *PictureResponse::textureFactory() const
{
    return QQuickTextureFactory::textureFactoryForImage(m_job->result().image);
}

// The engine forgets a response with its word that it is finished, which a cancelled one owes as well.
void PictureResponse::cancel()
{
    leave();
    deliver();
}

void PictureResponse::deliver()
{
    if (m_delivered)
        return;
    m_delivered = true;
    --m_provider->m_pending;
    m_provider->forgetJob(m_id, m_job);
    Q_EMIT finished();
}

void PictureResponse::leave()
{
    if (!m_job->leave(this))
        return;
    m_provider->forgetJob(m_id, m_job);
    m_provider->cancelDownload(m_job->id());
}

QString PictureProvider::name()
{
    return QStringLiteral("pictures");
}

PictureProvider::PictureProvider(const DownloadLimits &limits, qsizetype budget)
    : m_fetcher(new PictureFetcher(limits))
    , m_store(budget)
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
    return new PictureResponse(this, id, requestedSize);
}

std::shared_ptr<PictureJob> PictureProvider::runningJob(const QString &id)
{
    const QMutexLocker lock(&m_mutex);
    return m_jobs.value(id).lock();
}

void PictureProvider::forgetJob(const QString &id, const std::shared_ptr<PictureJob> &job)
{
    const QMutexLocker lock(&m_mutex);
    const auto found = m_jobs.constFind(id);
    if (found != m_jobs.cend() && found->lock() == job)
        m_jobs.erase(found);
}

std::shared_ptr<PictureJob> PictureProvider::startJob(const QString &id, const PictureRequested &request,
                                                      PictureResponse *response)
{
    const auto job = std::make_shared<PictureJob>(++m_lastId);
    job->join(response);
    {
        const QMutexLocker lock(&m_mutex);
        m_jobs.insert(id, job);
    }
    if (isDownloaded(request.picture))
        download(id, request, job);
    else
        m_decoders.start([this, id, request, job] { readFile(id, request, job); });
    return job;
}

// In a decoding thread, since even asking for a file's time may take long.
void PictureProvider::readFile(const QString &id, const PictureRequested &request,
                               const std::shared_ptr<PictureJob> &job)
{
    if (job->isGivenUp())
        return;
    const QString name = fileOf(request.picture);
    const QString key = keyOf(id, QFileInfo(name));
    if (const QImage kept = m_store.find(key); !kept.isNull())
        job->finish({ kept, {} });
    else
        decoded(key, decodeFile(name, request.shape), job);
}

void PictureProvider::decoded(const QString &key, const DecodedPicture &picture,
                              const std::shared_ptr<PictureJob> &job)
{
    ++m_decoded;
    m_store.insert(key, picture.image);
    job->finish(picture);
}

void PictureProvider::download(const QString &id, const PictureRequested &request,
                               const std::shared_ptr<PictureJob> &job)
{
    if (const QImage kept = m_store.find(id); !kept.isNull()) {
        job->finish({ kept, {} });
        return;
    }
    const auto done = [this, id, shape = request.shape, job](const QByteArray &content, const QString &error) {
        if (!error.isEmpty()) {
            job->finish({ {}, error });
            return;
        }
        m_decoders.start([this, id, shape, job, content] {
            if (!job->isGivenUp())
                decoded(id, decodeBytes(content, shape), job);
        });
    };
    PictureFetcher *fetcher = this->fetcher();
    QMetaObject::invokeMethod(
            fetcher,
            [fetcher, id = job->id(), url = request.picture, done] { fetcher->fetch(id, url, done); },
            Qt::QueuedConnection);
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
    const QMutexLocker lock(&m_mutex);
    if (!m_network.isRunning())
        return;
    PictureFetcher *fetcher = m_fetcher;
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
