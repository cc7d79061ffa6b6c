// SPDX-License-Identifier: MIT
#ifndef GALLERY_PICTUREFETCHER_H
#define GALLERY_PICTUREFETCHER_H

#include <QtCore/qhash.h>
#include <QtCore/qobject.h>
#include <QtCore/qurl.h>

#include <chrono>
#include <functional>

class QNetworkAccessManager;
class QNetworkReply;

namespace gallery {

/*! What a download may cost. */
struct DownloadLimits
{
    /*! The largest picture, in bytes. */
    qint64 bytes = qint64(8) * 1024 * 1024;
    /*! The most bytes of all pictures that are under way. */
    qint64 bytesTogether = qint64(32) * 1024 * 1024;
    /*! How long a server may be silent. */
    std::chrono::milliseconds silence = std::chrono::seconds(10);
    /*! How long a download may take, however it trickles. */
    std::chrono::milliseconds total = std::chrono::seconds(30);
};

/*! Downloads pictures (http, https, data). Made in the GUI thread, then moved to the thread that it works in. */
class PictureFetcher : public QObject
{
    Q_OBJECT
public:
    /*! Called with what was downloaded, or with an error and nothing. */
    using Done = std::function<void(const QByteArray &content, const QString &error)>;

    explicit PictureFetcher(const DownloadLimits &limits);
    ~PictureFetcher() override;

    /*! Starts the download that the number \a id stands for. */
    void fetch(quint64 id, const QUrl &url, const Done &done);
    /*! Stops a download without a further word; nothing when it is over. */
    void cancel(quint64 id);

private:
    struct Download
    {
        QNetworkReply *reply = nullptr;
        QByteArray content;
        Done done;
    };
    void take(quint64 id);
    void finish(quint64 id, const QString &error);

    DownloadLimits m_limits;
    QNetworkAccessManager *m_manager = nullptr;
    QHash<quint64, Download> m_downloads;
    qint64 m_bytes = 0; // of all downloads
};

} // namespace gallery

#endif // GALLERY_PICTUREFETCHER_H
