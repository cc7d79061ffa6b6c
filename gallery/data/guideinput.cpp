// SPDX-License-Identifier: MIT
#include "gallery/data/guideinput.h"

#include <QtCore/qstringconverter.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <iconv.h>
#include <zlib.h>

namespace gallery {

namespace {

constexpr qsizetype blockSize = 64 * 1024;
// An XML declaration is looked for in this much.
constexpr qsizetype declarationSize = 512;

struct Range
{
    qsizetype begin = 0;
    qsizetype length = 0;
};

// Where the name of the encoding stands in the XML declaration that \a text begins with.
Range encodingName(const QByteArray &text)
{
    if (!text.startsWith("<?xml"))
        return {};
    const qsizetype end = text.indexOf("?>");
    qsizetype at = text.indexOf("encoding");
    if (end < 0 || at < 0 || at > end)
        return {};
    at = text.indexOf('=', at) + 1;
    while (at > 0 && at < end && text[at] != '"' && text[at] != '\'')
        ++at;
    const qsizetype close = at > 0 ? text.indexOf(text[at], at + 1) : -1;
    if (close < 0 || close > end)
        return {};
    return { at + 1, close - at - 1 };
}

} // namespace

/*! Unpacks gzip data, also several such files in a row. */
class GuideInput::Gunzip
{
    Q_DISABLE_COPY_MOVE(Gunzip)
public:
    Gunzip()
    {
        constexpr int gzipFormat = 16;
        m_usable = inflateInit2(&m_stream, gzipFormat + MAX_WBITS) == Z_OK;
    }
    ~Gunzip() { inflateEnd(&m_stream); }

    bool needsInput() const { return m_stream.avail_in == 0; }
    bool atEnd() const { return m_ended; }
    bool isDamaged() const { return !m_usable; }

    void setInput(const QByteArray &input)
    {
        m_input = input;
        m_stream.next_in = reinterpret_cast<Bytef *>(m_input.data());
        m_stream.avail_in = uInt(m_input.size());
    }

    // Up to a block of plain text; empty when more input is needed.
    QByteArray unpack()
    {
        // What follows the packed data is the next packed file, or padding.
        if (m_ended && (m_stream.avail_in == 0 || *m_stream.next_in != 0x1f)) {
            m_stream.avail_in = 0;
            return {};
        }
        if (m_ended)
            inflateReset(&m_stream);
        m_ended = false;
        QByteArray out(blockSize, Qt::Uninitialized);
        m_stream.next_out = reinterpret_cast<Bytef *>(out.data());
        m_stream.avail_out = uInt(out.size());
        const int result = inflate(&m_stream, Z_NO_FLUSH);
        m_ended = result == Z_STREAM_END;
        m_usable = m_ended || result == Z_OK || result == Z_BUF_ERROR;
        out.truncate(out.size() - qsizetype(m_stream.avail_out));
        return out;
    }

private:
    z_stream m_stream = {};
    QByteArray m_input;
    bool m_usable = false;
    bool m_ended = false;
};

/*! Turns text of any encoding that the C library knows into UTF-8. */
class GuideInput::Recoder
{
    Q_DISABLE_COPY_MOVE(Recoder)
public:
    explicit Recoder(const QByteArray &encoding)
        : m_iconv(iconv_open("UTF-8", encoding.constData()))
    {
    }
    ~Recoder()
    {
        if (isValid())
            iconv_close(m_iconv);
    }

    bool isValid() const { return m_iconv != iconv_t(-1); } // NOLINT(performance-no-int-to-ptr)

    QByteArray recode(const QByteArray &text)
    {
        QByteArray in = m_rest + text;
        QByteArray out;
        char *next = in.data();
        auto left = size_t(in.size());
        while (left > 0) {
            std::array<char, 4096> buffer {};
            char *to = buffer.data();
            size_t room = buffer.size();
            const bool done = iconv(m_iconv, &next, &left, &to, &room) != size_t(-1);
            const int error = done ? 0 : errno;
            out.append(buffer.data(), to - buffer.data());
            if (error == EINVAL) // a character that the next block completes
                break;
            if (error == EILSEQ) {
                out.append("\xef\xbf\xbd"); // U+FFFD
                ++next;
                --left;
            }
        }
        m_rest = QByteArray(next, qsizetype(left));
        return out;
    }

private:
    iconv_t m_iconv;
    QByteArray m_rest;
};

GuideInput::GuideInput(QIODevice *source, const std::atomic<bool> *cancelled,
                       std::function<void(double)> progress)
    : m_source(source)
    , m_cancelled(cancelled)
    , m_progress(std::move(progress))
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

GuideInput::~GuideInput() = default;

void GuideInput::fail(const QString &failure)
{
    m_failure = failure;
    m_sourceAtEnd = true;
    m_gunzip.reset();
}

QByteArray GuideInput::readSource()
{
    if (m_cancelled && m_cancelled->load(std::memory_order_relaxed)) {
        m_cancelledSeen = true;
        m_sourceAtEnd = true;
        return {};
    }
    QByteArray block(blockSize, Qt::Uninitialized);
    const qint64 size = m_source->read(block.data(), block.size());
    if (size < 0 && !m_source->atEnd())
        fail(m_source->errorString());
    m_sourceAtEnd = m_sourceAtEnd || size <= 0;
    block.truncate(std::max<qint64>(size, 0));
    m_sourceRead += block.size();
    tellProgress();
    return block;
}

void GuideInput::tellProgress()
{
    const qint64 total = m_source->isSequential() ? 0 : m_source->size();
    if (!m_progress || total <= 0)
        return;
    const int percent = int(std::min(m_sourceRead, total) * 100 / total);
    if (percent <= m_percent)
        return;
    m_percent = percent;
    m_progress(percent / 100.0);
}

// The next piece of plain text; empty at the end.
QByteArray GuideInput::readUnpacked()
{
    if (!m_gunzip)
        return m_sourceAtEnd ? QByteArray() : readSource();
    while (m_gunzip) {
        if (m_gunzip->needsInput() && !m_sourceAtEnd)
            m_gunzip->setInput(readSource());
        const QByteArray text = m_gunzip->unpack();
        if (m_gunzip->isDamaged())
            fail(QStringLiteral("the compressed data is damaged"));
        else if (text.isEmpty() && m_gunzip->needsInput() && m_sourceAtEnd && !m_gunzip->atEnd())
            fail(QStringLiteral("the compressed data ends too early"));
        if (!text.isEmpty() || m_sourceAtEnd)
            return text;
    }
    return {};
}

void GuideInput::chooseEncoding()
{
    const Range name = encodingName(m_block);
    const QByteArray encoding = m_block.mid(name.begin, name.length);
    if (encoding.isEmpty() || QStringConverter::encodingForName(encoding.constData()))
        return;
    auto recoder = std::make_unique<Recoder>(encoding);
    if (!recoder->isValid()) // Qt may still know it, and says so when it does not
        return;
    m_recoder = std::move(recoder);
    m_block.replace(name.begin, name.length, "UTF-8");
    // Blanks keep the columns of what follows.
    const qsizetype longer = encoding.size() - qsizetype(std::strlen("UTF-8"));
    if (longer > 0)
        m_block.insert(name.begin + qsizetype(std::strlen("UTF-8\"")), QByteArray(longer, ' '));
    m_block = m_recoder->recode(m_block);
}

// Gets the next block. The first one is long enough to hold the XML declaration.
bool GuideInput::fill()
{
    m_position = 0;
    if (m_started) {
        do {
            m_block = readUnpacked();
            if (m_block.isEmpty())
                return false;
            if (m_recoder)
                m_block = m_recoder->recode(m_block);
        } while (m_block.isEmpty());
        return true;
    }
    m_started = true;
    m_block = readSource();
    if (m_block.startsWith("\x1f\x8b")) {
        m_gunzip = std::make_unique<Gunzip>();
        m_gunzip->setInput(m_block);
        m_block.clear();
    }
    while (m_block.size() < declarationSize) {
        const QByteArray more = readUnpacked();
        if (more.isEmpty())
            break;
        m_block += more;
    }
    chooseEncoding();
    return !m_block.isEmpty();
}

qint64 GuideInput::readData(char *data, qint64 maxSize)
{
    if (maxSize <= 0)
        return 0;
    if (m_sinceToken > maximumToken && m_failure.isEmpty())
        fail(QStringLiteral("a single piece of markup or text is longer than %1 MB")
                     .arg(maximumToken / 1024 / 1024));
    if (!m_failure.isEmpty() && m_sinceToken > maximumToken)
        return -1;
    if (m_position >= m_block.size() && !fill())
        return -1;
    const qsizetype size = std::min<qsizetype>(maxSize, m_block.size() - m_position);
    std::memcpy(data, m_block.constData() + m_position, size_t(size));
    m_position += size;
    m_sinceToken += size;
    return size;
}

qint64 GuideInput::writeData(const char *, qint64)
{
    return -1;
}

} // namespace gallery
