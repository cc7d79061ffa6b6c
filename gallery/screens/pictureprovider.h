// SPDX-License-Identifier: MIT
#ifndef GALLERY_PICTUREPROVIDER_H
#define GALLERY_PICTUREPROVIDER_H

#include "gallery/screens/picturefetcher.h"

#include <QtCore/qmutex.h>
#include <QtCore/qthread.h>
#include <QtCore/qthreadpool.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickimageprovider.h>

#include <atomic>

namespace gallery {

class PictureResponse;

/*!
    Gives screens pictures at the size in which they are shown: `image://pictures/...`, with addresses made by
    Pictures. The engine owns it: `engine.addImageProvider(PictureProvider::name(), new PictureProvider)`.

    Nothing of it happens in the GUI thread: pictures are decoded by two threads and downloaded by a third. A
    picture that is missing, broken, too large or too slow has no image; whoever asked keeps its background. Of a
    picture at most 16 megapixels are decoded and 32 MB read; the limits of downloads are those of DownloadLimits.
    A picture that is no longer wanted is not downloaded further and its decoding not begun.
*/
class PictureProvider : public QQuickAsyncImageProvider
{
    Q_OBJECT
public:
    /*! The name that the addresses of pictures are made with: "pictures". */
    static QString name();

    explicit PictureProvider(const DownloadLimits &limits = {});
    ~PictureProvider() override;

    /*! How many pictures are asked for and not delivered yet. May be called in any thread. */
    int pendingPictures() const { return m_pending; }

    QQuickImageResponse *requestImageResponse(const QString &id, const QSize &requestedSize) override;

private:
    friend class PictureResponse;

    PictureFetcher *fetcher();
    void cancelDownload(quint64 id);

    QThreadPool m_decoders;
    QMutex m_mutex; // for the start of m_network
    QThread m_network; // started with the first download
    PictureFetcher *m_fetcher = nullptr; // works in m_network
    std::atomic<quint64> m_lastId = 0;
    std::atomic<int> m_pending = 0;
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
