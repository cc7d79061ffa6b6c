// SPDX-License-Identifier: MIT
#include "gallery/data/textpool.h"

#include <cstring>

namespace gallery {

namespace {

constexpr qsizetype blockSize = 256 * 1024;
// The table of known texts is the largest thing beside the kept data. This keeps it under about 30 MB;
// later texts are kept without being looked for.
constexpr qsizetype maximumKnown = 1 << 20;

} // namespace

QByteArrayView TextPool::view(Ref ref)
{
    if (!ref)
        return {};
    quint32 size = 0;
    std::memcpy(&size, ref, sizeof size);
    return { ref + sizeof size, qsizetype(size) };
}

char *TextPool::reserve(qsizetype size)
{
    if (size <= m_left)
        return m_free;
    const qsizetype block = std::max(blockSize, size);
    m_blocks.emplace_back(new char[size_t(block)]);
    m_bytes += block;
    m_free = m_blocks.back().get();
    m_left = block;
    return m_free;
}

TextPool::Ref TextPool::add(QStringView text)
{
    if (text.isEmpty())
        return nullptr;
    const QByteArray utf8 = text.toUtf8();
    const auto length = quint32(utf8.size());
    const qsizetype size = qsizetype(sizeof length) + utf8.size();
    char *place = reserve(size);
    std::memcpy(place, &length, sizeof length);
    std::memcpy(place + sizeof length, utf8.constData(), size_t(utf8.size()));
    const auto known = m_known.constFind(Key { place });
    if (known != m_known.constEnd())
        return known->ref; // the place is not taken and serves the next text
    if (m_known.size() < maximumKnown)
        m_known.insert(Key { place });
    m_free += size;
    m_left -= size;
    return place;
}

void TextPool::finish()
{
    m_known = {};
}

QString TextPool::text(Ref ref)
{
    return QString::fromUtf8(view(ref));
}

bool TextPool::equal(Ref a, Ref b)
{
    return a == b || view(a) == view(b);
}

} // namespace gallery
