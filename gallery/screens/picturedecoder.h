// SPDX-License-Identifier: MIT
#ifndef GALLERY_PICTUREDECODER_H
#define GALLERY_PICTUREDECODER_H

#include <QtCore/qstring.h>
#include <QtGui/qimage.h>

class QIODevice;

namespace gallery {

/*! How a picture is to come out. */
struct PictureShape
{
    /*! Pixels; null for as large as a screen allows. */
    QSize size;
    /*! The whole picture within the size, instead of as much of it as fills the size. */
    bool whole = false;
    /*! What comes out is of this size, with the picture in its middle and nothing around it; empty: no more than that. */
    QSize frame = {};
};

struct DecodedPicture
{
    /*! Null when there is an error. */
    QImage image;
    QString error;
};

/*! The most pixels that a picture may have. Decoding one of this size takes up to about 100 MB. */
constexpr int maximumPicturePixels = 16 * 1024 * 1024;
/*! The most bytes that are read of a picture. */
constexpr qint64 maximumPictureBytes = 32 * 1024 * 1024;

/*!
    Reads a PNG, JPEG, WebP, GIF or BMP picture from \a device, made smaller to \a shape while it is read; a picture
    is never made larger. Of large pictures one is read at a time, whoever calls. For any thread.
*/
DecodedPicture decodePicture(QIODevice *device, const PictureShape &shape);

} // namespace gallery

#endif // GALLERY_PICTUREDECODER_H
