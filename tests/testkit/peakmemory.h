// SPDX-License-Identifier: MIT
#ifndef STBTEST_PEAKMEMORY_H
#define STBTEST_PEAKMEMORY_H

#include <QtCore/qglobal.h>

namespace stbtest {

/*!
    The most memory that the process has used at once since this object was made, above what it used then. In
    plain builds this is the resident memory; with a sanitizer, whose own memory would be most of that, it is
    the memory that the program has allocated. One object at a time.
*/
class PeakMemory
{
public:
    PeakMemory();
    PeakMemory(const PeakMemory &) = delete;
    PeakMemory &operator=(const PeakMemory &) = delete;

    /*! False where the system does not tell. */
    bool isValid() const { return m_valid; }
    qint64 bytes() const;

private:
    qint64 m_before = 0;
    bool m_valid = false;
};

} // namespace stbtest

#endif // STBTEST_PEAKMEMORY_H
