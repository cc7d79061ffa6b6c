// SPDX-License-Identifier: MIT
#include "stbcore/platformnativeinterface.h"

namespace stbcore {

namespace {
PlatformNativeInterface *currentInterface = nullptr;
}

PlatformNativeInterface::~PlatformNativeInterface() = default;

PlatformNativeInterface *platformNativeInterface()
{
    return currentInterface;
}

void setPlatformNativeInterface(PlatformNativeInterface *nativeInterface)
{
    currentInterface = nativeInterface;
}

} // namespace stbcore
