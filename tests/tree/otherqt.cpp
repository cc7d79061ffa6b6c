// SPDX-License-Identifier: MIT
// Loaded before everything else, this library makes the running Qt claim another version.
#include <QtCore/qglobal.h>

const char *qVersion() noexcept
{
    return "6.99.3";
}
