// SPDX-License-Identifier: MIT
#ifndef GALLERY_PICTURESTORE_H
#define GALLERY_PICTURESTORE_H

#include <QtCore/qcache.h>
#include <QtCore/qmutex.h>
#include <QtCore/qstring.h>
#include <QtGui/qimage.h>

namespace gallery {

/*!
    Pictures that were shown, in the size in which they were, so that one that comes back is not read again. The
    longest unused ones are given up when together they are above the budget. Images share their pixels with those
    on the screen. For any thread.
*/
class PictureStore
{
public:
    /*! At most \a budget bytes are held; 0 holds nothing. */
    explicit PictureStore(qsizetype budget);

    /*! The picture that was stored as \a key; null when there is none. It counts as used. */
    QImage find(const QString &key) const;
    /*! Keeps \a image as \a key. One that is null, or above the budget alone, is not kept. */
    void insert(const QString &key, const QImage &image);
    /*! Bytes of all pictures held, their keys included. Never above the budget. */
    qsizetype bytes() const;

private:
    mutable QMutex m_mutex;
    QCache<QString, QImage> m_images;
};

} // namespace gallery

#endif // GALLERY_PICTURESTORE_H
