// SPDX-License-Identifier: MIT
#ifndef GALLERY_PICTUREPROVIDER_H
#define GALLERY_PICTUREPROVIDER_H

#include "gallery/screens/picturefetcher.h"
#include "gallery/screens/picturestore.h"

#include <QtCore/qhash.h>
#include <QtCore/qmutex.h>
#include <QtCore/qthread.h>
#include <QtCore/qthreadpool.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickimageprovider.h>

#include <atomic>
#include <memory>

namespace gallery {

class PictureJob;
class PictureResponse;
struct DecodedPicture;
struct PictureRequested;

/*! Bytes of pictures that are kept for the next tile that shows them: some 80 posters of a full HD screen. */
constexpr qsizetype pictureBudget = 32 * 1024 * 1024;

/*!
    Gives screens pictures at the size in which they are shown: `image://pictures/...`, with addresses made by
    Pictures. The engine owns it: `engine.addImageProvider(PictureProvider::name(), new PictureProvider)`.

    Nothing of it happens in the GUI thread: pictures are decoded by two threads and downloaded by a third. A
    picture that is missing, broken, too large or too slow has no image; whoever asked keeps its background. Of a
    picture at most 16 megapixels are decoded and 32 MB read; the limits of downloads are those of DownloadLimits.
    A picture that is no longer wanted is not downloaded further and its decoding not begun.

    Whoever asks for the same picture in the same size shares one download, one decoding and the pixels. Pictures
    that were delivered are kept up to \a budget bytes; a file that has changed since then is read again, a download is not
    repeated while its picture is kept.
*/
class PictureProvider : public QQuickAsyncImageProvider
{
    Q_OBJECT
public:
    /*! The name that the addresses of pictures are made with: "pictures". */
    static QString name();

    explicit PictureProvider(const DownloadLimits &limits = {}, qsizetype budget = pictureBudget);
    ~PictureProvider() override;

    /*! How many pictures are asked for and not delivered yet. May be called in any thread. */
    int pendingPictures() const { return m_pending; }
    /*! How many pictures were decoded, or could not be. May be called in any thread. */
    int decodedPictures() const { return m_decoded; }
    /*! Bytes of the pictures that are kept. May be called in any thread. */
    qsizetype keptBytes() const { return m_store.bytes(); }

    QQuickImageResponse *requestImageResponse(const QString &id, const QSize &requestedSize) override;

private:
    friend class PictureResponse;

    std::shared_ptr<PictureJob> runningJob(const QString &id);
    std::shared_ptr<PictureJob> startJob(const QString &id, const PictureRequested &request,
                                         PictureResponse *response);
    void forgetJob(const QString &id, const std::shared_ptr<PictureJob> &job);
    void readFile(const QString &id, const PictureRequested &request, const std::shared_ptr<PictureJob> &job);
    void download(const QString &id, const PictureRequested &request, const std::shared_ptr<PictureJob> &job);
    void decoded(const QString &key, const DecodedPicture &picture, const std::shared_ptr<PictureJob> &job);
    PictureFetcher *fetcher();
    void cancelDownload(quint64 id);

    QThreadPool m_decoders;
    QMutex m_mutex; // for the start of m_network, and for m_jobs
    QThread m_network; // started with the first download
    PictureFetcher *m_fetcher = nullptr; // works in m_network
    QHash<QString, std::weak_ptr<PictureJob>> m_jobs; // what is on its way
    PictureStore m_store;
    quint64 m_lastId = 0;
    std::atomic<int> m_pending = 0;
    std::atomic<int> m_decoded = 0;
};

/*! Makes addresses for PictureProvider; in QML the singleton `Pictures`. */
class Pictures : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    /*! As much of \a picture as fills \a width x \a height pixels, from its middle. Empty for an empty one. */
    Q_INVOKABLE static QUrl filling(const QUrl &picture, int width, int height);
    /*! The whole of \a picture, at most \a width x \a height pixels large. Empty for an empty one. */
    Q_INVOKABLE static QUrl fitting(const QUrl &picture, int width, int height);
    /*!
        The whole of \a picture in the middle of exactly \a width x \a height pixels, at least \a margin pixels from
        their edges; what it leaves is transparent. Empty for an empty one.
    */
    Q_INVOKABLE static QUrl framed(const QUrl &picture, int width, int height, int margin);
};

} // namespace gallery

#endif // GALLERY_PICTUREPROVIDER_H
