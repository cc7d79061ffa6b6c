// SPDX-License-Identifier: MIT
#ifndef STBCORE_PLATFORMNATIVEINTERFACE_H
#define STBCORE_PLATFORMNATIVEINTERFACE_H

#include <stbcore/stbcoreglobal.h>

#include <QtGui/qpixmap.h>
#include <functional>

class QPainter;

namespace stbcore {

class STBCORE_EXPORT PlatformNativeInterface
{
public:
    virtual ~PlatformNativeInterface();
    virtual bool isTiledPixmapAvailable() const = 0;
    virtual QPixmap createTiledPixmap(const QSize &size, std::function<void(QPainter &)> paint) = 0;
    virtual void setupPainterForTiledPixmap(const QPixmap &pixmap, QPainter &painter) = 0;
};

STBCORE_EXPORT PlatformNativeInterface *platformNativeInterface();
STBCORE_EXPORT void setPlatformNativeInterface(PlatformNativeInterface *nativeInterface);

} // namespace stbcore

#endif // STBCORE_PLATFORMNATIVEINTERFACE_H
