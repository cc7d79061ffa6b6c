// SPDX-License-Identifier: MIT
#include "gallery/screens/picturefetcher.h"

#include <QtCore/qtimer.h>
#include <QtNetwork/qnetworkaccessmanager.h>
#include <QtNetwork/qnetworkreply.h>
#include <QtNetwork/qnetworkrequest.h>

namespace gallery {

PictureFetcher::PictureFetcher(const DownloadLimits &limits)
    : m_limits(limits)
    , m_manager(new QNetworkAccessManager(this))
{
}

PictureFetcher::~PictureFetcher() = default;

void PictureFetcher::fetch(quint64 id, const QUrl &url, const Done &done)
{
    constexpr int redirects = 5;
    QNetworkRequest request(url);
    request.setTransferTimeout(int(m_limits.silence.count()));
    request.setMaximumRedirectsAllowed(redirects);
    QNetworkReply *reply = m_manager->get(request);
    reply->setReadBufferSize(m_limits.bytes);
    m_downloads.insert(id, { reply, {}, done });
    connect(reply, &QNetworkReply::readyRead, this, [this, id] { take(id); });
    connect(reply, &QNetworkReply::finished, this, [this, id, reply] {
        const bool failed = reply->error() != QNetworkReply::NoError;
        if (!failed)
            take(id);
        finish(id, failed ? reply->errorString() : QString());
    });
    QTimer::singleShot(m_limits.total, reply,
                       [this, id] { finish(id, QStringLiteral("the download takes too long")); });
}

void PictureFetcher::cancel(quint64 id)
{
    const auto download = m_downloads.find(id);
    if (download == m_downloads.end())
        return;
    QNetworkReply *reply = download->reply;
    m_bytes -= download->content.size();
    m_downloads.erase(download);
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
}

void PictureFetcher::take(quint64 id)
{
    const auto download = m_downloads.find(id);
    if (download == m_downloads.end())
        return;
    const QByteArray content = download->reply->readAll();
    download->content += content;
    m_bytes += content.size();
    if (download->content.size() > m_limits.bytes)
        finish(id, QStringLiteral("the picture is too large"));
    else if (m_bytes > m_limits.bytesTogether)
        finish(id, QStringLiteral("too many pictures are downloaded at once"));
}

void PictureFetcher::finish(quint64 id, const QString &error)
{
    const auto download = m_downloads.constFind(id);
    if (download == m_downloads.constEnd())
        return;
    const Done done = download->done;
    const QByteArray content = error.isEmpty() ? download->content : QByteArray();
    cancel(id);
    done(content, error);
}

} // namespace gallery
