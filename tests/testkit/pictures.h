// SPDX-License-Identifier: MIT
#ifndef STBTEST_PICTURES_H
#define STBTEST_PICTURES_H

#include "testkit/testcase.h"

#include <QtCore/qrect.h>
#include <QtCore/qstring.h>
#include <QtGui/qcolor.h>
#include <QtGui/qimage.h>
#include <QtGui/qpixmap.h>

namespace stbtest {

/*! How far two pictures may be apart and still count as the same. Without a reason nothing is tolerated. */
struct Tolerance
{
    int channel = 0; // the largest difference of one colour channel, 0 to 255, that is not counted
    qint64 pixels = 0; // how many pixels may differ by more than that
    const char *reason = nullptr; // required as soon as one of the two is above 0
};

struct PictureDifference
{
    bool sizesDiffer = false;
    qint64 pixels = 0; // pixels that differ by more than the tolerated channel difference
    int largest = 0; // the largest channel difference anywhere
    QRect bounds; // where the counted pixels are
    QImage picture; // what differs in red over a pale copy of the expected picture; null when equal

    /*! One line for a report, empty when nothing is to be said. */
    QString text() const;
};

/*! Compares premultiplied colours, channel by channel, alpha included. */
PictureDifference comparePictures(const QImage &actual, const QImage &expected, int tolerableChannel = 0);

/*!
    Whether the opaque pixels of \a pixmap, of which there are some, all have this colour: so they do in a text or
    a tinted icon, whatever its edges are.
*/
bool isPaintedIn(const QPixmap &pixmap, const QColor &color);

/*! Saves \a picture as PNG under \a name beside the test program and returns the file's path. */
QString savePicture(const QImage &picture, const QString &name);

/*!
    Compares \a actual with the reference \a file (PNG). Returns an empty string when they agree, else what differs
    and where the pictures were saved. With STBTEST_UPDATE_GOLDEN=1 in the environment the reference is written
    instead, unless it agrees already.
*/
QString compareWithFile(const QImage &actual, const QString &file, const Tolerance &tolerance = {});

/*! The same with the reference \a name.png in tests/golden. */
QString compareWithGolden(const QImage &actual, const QString &name, const Tolerance &tolerance = {});

} // namespace stbtest

/*! Fails the test unless \a image agrees with the golden picture \a name; a stbtest::Tolerance may follow. */
#define STB_COMPARE_GOLDEN(image, ...) \
    do { \
        const QString stbGoldenReport = stbtest::compareWithGolden(image, __VA_ARGS__); \
        QVERIFY2(stbGoldenReport.isEmpty(), qPrintable(stbGoldenReport)); \
    } while (false)

#endif // STBTEST_PICTURES_H
