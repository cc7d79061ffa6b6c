// SPDX-License-Identifier: MIT
#include "testkit/peakmemory.h"

#include <QtCore/qfile.h>

#include <atomic>

// GCC tells by a macro, Clang by a feature.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define WITH_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define WITH_SANITIZER
#endif
#endif

#ifdef WITH_SANITIZER

// Both sanitizers have these, but GCC comes without the header.
extern "C" {
int __sanitizer_install_malloc_and_free_hooks(void (*allocated)(const volatile void *, size_t),
                                              void (*freed)(const volatile void *));
size_t __sanitizer_get_allocated_size(const volatile void *memory);
}

namespace stbtest {

namespace {

std::atomic<qint64> inUse = 0;
std::atomic<qint64> mostInUse = 0;

void allocated(const volatile void *, size_t size)
{
    const qint64 now = inUse += qint64(size);
    qint64 most = mostInUse;
    while (now > most && !mostInUse.compare_exchange_weak(most, now)) {}
}

void freed(const volatile void *memory)
{
    inUse -= qint64(__sanitizer_get_allocated_size(memory));
}

} // namespace

PeakMemory::PeakMemory()
{
    static const bool installed = __sanitizer_install_malloc_and_free_hooks(allocated, freed) != 0;
    m_valid = installed;
    m_before = inUse;
    mostInUse = m_before;
}

qint64 PeakMemory::bytes() const
{
    return mostInUse - m_before;
}

} // namespace stbtest

#else

namespace stbtest {

namespace {

// A line of /proc/self/status, in bytes.
qint64 memory(const QByteArray &key)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = file.readAll();
    const qsizetype at = text.indexOf(key + ':') + key.size() + 1;
    return text.mid(at, text.indexOf("kB", at) - at).trimmed().toLongLong() * 1024;
}

// Makes the highest use of memory start again from the present one.
bool forgetPeak()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write("5") == 1;
}

} // namespace

PeakMemory::PeakMemory()
    : m_before(memory("VmRSS"))
    , m_valid(forgetPeak())
{
}

qint64 PeakMemory::bytes() const
{
    return memory("VmHWM") - m_before;
}

} // namespace stbtest

#endif
