// SPDX-License-Identifier: MIT
#ifndef GALLERY_GUIDEINPUT_H
#define GALLERY_GUIDEINPUT_H

#include <QtCore/qbytearray.h>
#include <QtCore/qiodevice.h>
#include <QtCore/qstring.h>

#include <atomic>
#include <functional>
#include <memory>

namespace gallery {

/*!
    The plain text of a guide file, as a stream for an XML reader: data compressed with gzip comes out
    unpacked, and an encoding that Qt does not know comes out as UTF-8 (with the encoding's name in the XML
    declaration replaced to match). It stops for good on damage, on request, and when the XML reader swallows
    very much without giving anything back, which keeps hostile files from taking all memory.
*/
class GuideInput : public QIODevice
{
    Q_OBJECT
public:
    /*! The most that may be read between two calls of tokenSeen(), in bytes. */
    static constexpr qint64 maximumToken = 4 * 1024 * 1024;

    /*! Reads from \a source, which is open and outlives this object; the rest as in GuideReadOptions. */
    GuideInput(QIODevice *source, const std::atomic<bool> *cancelled, std::function<void(double)> progress);
    ~GuideInput() override;

    bool isSequential() const override { return true; }

    /*! Why the stream stopped before the end of the source, or empty. */
    QString failure() const { return m_failure; }
    bool wasCancelled() const { return m_cancelledSeen; }
    /*! True when the source gave no byte at all. */
    bool wasEmpty() const { return m_sourceRead == 0; }

    /*! To be called by the XML reader's user for each token. */
    void tokenSeen() { m_sinceToken = 0; }

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    class Gunzip;
    class Recoder;

    QByteArray readSource();
    QByteArray readUnpacked();
    bool fill();
    void chooseEncoding();
    void fail(const QString &failure);
    void tellProgress();

    QIODevice *m_source = nullptr;
    const std::atomic<bool> *m_cancelled = nullptr;
    std::function<void(double)> m_progress;
    std::unique_ptr<Gunzip> m_gunzip;
    std::unique_ptr<Recoder> m_recoder;
    QByteArray m_block;
    qsizetype m_position = 0;
    qint64 m_sourceRead = 0;
    qint64 m_sinceToken = 0;
    int m_percent = 0;
    QString m_failure;
    bool m_started = false;
    bool m_sourceAtEnd = false;
    bool m_cancelledSeen = false;
};

} // namespace gallery

#endif // GALLERY_GUIDEINPUT_H
