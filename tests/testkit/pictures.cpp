// SPDX-License-Identifier: MIT
#include "testkit/pictures.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qdir.h>
#include <QtCore/qfileinfo.h>

#include <algorithm>

namespace stbtest {
namespace {

int channelDifference(QRgb a, QRgb b)
{
    return std::max({ std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                      std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b)) });
}

QRgb paled(QRgb pixel)
{
    return qRgb(170 + qRed(pixel) / 3, 170 + qGreen(pixel) / 3, 170 + qBlue(pixel) / 3);
}

} // namespace

QString PictureDifference::text() const
{
    if (sizesDiffer)
        return QStringLiteral("the sizes differ");
    if (pixels == 0)
        return QString();
    return QStringLiteral("%1 pixels differ within (%2,%3 %4x%5), by up to %6 of 255")
            .arg(pixels)
            .arg(bounds.x())
            .arg(bounds.y())
            .arg(bounds.width())
            .arg(bounds.height())
            .arg(largest);
}

PictureDifference comparePictures(const QImage &actual, const QImage &expected, int tolerableChannel)
{
    PictureDifference result;
    result.sizesDiffer = actual.size() != expected.size();
    if (result.sizesDiffer || actual == expected)
        return result;
    const QImage a = actual.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage b = expected.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QImage marks(a.size(), QImage::Format_RGB32);
    for (int y = 0; y < a.height(); ++y) {
        const auto *lineA = reinterpret_cast<const QRgb *>(a.constScanLine(y));
        const auto *lineB = reinterpret_cast<const QRgb *>(b.constScanLine(y));
        auto *lineMarks = reinterpret_cast<QRgb *>(marks.scanLine(y));
        for (int x = 0; x < a.width(); ++x) {
            const int difference = channelDifference(lineA[x], lineB[x]);
            result.largest = std::max(result.largest, difference);
            const bool counted = difference > tolerableChannel;
            lineMarks[x] = counted ? qRgb(255, 0, 0) : paled(lineB[x]);
            if (counted) {
                ++result.pixels;
                result.bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    if (result.pixels > 0)
        result.picture = marks;
    return result;
}

bool isPaintedIn(const QPixmap &pixmap, const QColor &color)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    bool opaque = false;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) < 255)
                continue;
            opaque = true;
            if (pixel != color.rgb())
                return false;
        }
    }
    return opaque;
}

QString savePicture(const QImage &picture, const QString &name)
{
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/pictures");
    const QString file = QStringLiteral("%1/%2.png").arg(folder, name);
    if (!QDir().mkpath(QFileInfo(file).path()) || !picture.save(file))
        return QStringLiteral("%1 (could not be written)").arg(file);
    return file;
}

QString compareWithFile(const QImage &actual, const QString &file, const Tolerance &tolerance)
{
    if ((tolerance.channel > 0 || tolerance.pixels > 0) && (!tolerance.reason || !*tolerance.reason))
        return QStringLiteral("a tolerance needs its reason");
    if (actual.isNull())
        return QStringLiteral("there is no picture to compare with %1").arg(file);
    const QImage expected(file);
    const PictureDifference difference = comparePictures(actual, expected, tolerance.channel);
    if (!difference.sizesDiffer && difference.pixels <= tolerance.pixels)
        return QString();
    if (qEnvironmentVariableIntValue("STBTEST_UPDATE_GOLDEN") == 1) {
        const bool written = QDir().mkpath(QFileInfo(file).path()) && actual.save(file);
        return written ? QString() : QStringLiteral("%1 cannot be written").arg(file);
    }
    const QString name = QFileInfo(file).completeBaseName();
    QString report = expected.isNull() ? QStringLiteral("there is no golden picture %1").arg(file)
                                       : QStringLiteral("%1: %2").arg(file, difference.text());
    report += QStringLiteral("\n  actual:     %1").arg(savePicture(actual, name + QStringLiteral("-actual")));
    if (!difference.picture.isNull()) {
        report += QStringLiteral("\n  difference: %1")
                          .arg(savePicture(difference.picture, name + QStringLiteral("-difference")));
    }
    return report;
}

QString compareWithGolden(const QImage &actual, const QString &name, const Tolerance &tolerance)
{
    return compareWithFile(actual, QStringLiteral(STBTEST_GOLDEN_DIR "/%1.png").arg(name), tolerance);
}

} // namespace stbtest
