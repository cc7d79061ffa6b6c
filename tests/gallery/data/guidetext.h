// SPDX-License-Identifier: MIT
#ifndef GUIDETEXT_H
#define GUIDETEXT_H

#include "gallery/data/guidereader.h"

#include <QtCore/qbuffer.h>
#include <QtCore/qdatetime.h>

#include <ctime>
#include <zlib.h>

namespace guidetext {

/*! A guide file with \a body between the root's tags. */
inline QByteArray tv(const QByteArray &body)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<tv>\n" + body + "\n</tv>\n";
}

/*! A programme element; \a times holds the start and stop attributes. */
inline QByteArray programme(const QByteArray &channel, const QByteArray &times, const QByteArray &title)
{
    return "<programme " + times + " channel=\"" + channel + "\"><title>" + title + "</title></programme>\n";
}

/*! What the reader makes of the bytes \a file, which messages call "test.xml". */
inline gallery::GuideReport read(QByteArray file, const QString &language = {})
{
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    return gallery::readGuide(&buffer, QStringLiteral("test.xml"), { language });
}

/*! Seconds since 1970 of an ISO date and time such as "2015-11-26T20:05:00Z". */
inline qint64 at(const char *iso)
{
    return QDateTime::fromString(QLatin1String(iso), Qt::ISODate).toSecsSinceEpoch();
}

/*! Makes \a zone, as the TZ variable names it, the local one. */
inline void setZone(const char *zone)
{
    qputenv("TZ", zone);
    tzset();
}

/*! \a data compressed with gzip. */
inline QByteArray gzip(QByteArray data)
{
    z_stream stream = {};
    constexpr int gzipFormat = 16;
    deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, gzipFormat + MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    QByteArray out(qsizetype(deflateBound(&stream, uLong(data.size()))) + 64, Qt::Uninitialized);
    stream.next_in = reinterpret_cast<Bytef *>(data.data());
    stream.avail_in = uInt(data.size());
    stream.next_out = reinterpret_cast<Bytef *>(out.data());
    stream.avail_out = uInt(out.size());
    deflate(&stream, Z_FINISH);
    out.truncate(qsizetype(stream.total_out));
    deflateEnd(&stream);
    return out;
}

} // namespace guidetext

#endif // GUIDETEXT_H
