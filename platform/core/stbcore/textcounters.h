// SPDX-License-Identifier: MIT
#ifndef STBCORE_TEXTCOUNTERS_H
#define STBCORE_TEXTCOUNTERS_H

#include <stbcore/stbcoreglobal.h>

namespace stbcore {

/*!
    Diagnostics for tests and benchmarks: how many texts this process has shaped for text renderers since it
    started. A text that fits counts one; a text that had to be shortened counts two, one for what was
    measured and one for the line that ends in "…". A copied renderer, a renderer that needs no relayout and
    painting count nothing. Safe to call from any thread.
*/
STBCORE_EXPORT quint64 textLayoutCount();

} // namespace stbcore

#endif // STBCORE_TEXTCOUNTERS_H
