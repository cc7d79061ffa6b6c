// SPDX-License-Identifier: MIT
#ifndef STBCORE_PLATFORMNATIVEINTERFACE_H
#define STBCORE_PLATFORMNATIVEINTERFACE_H

#include <stbcore/stbcoreglobal.h>

#include <QtGui/qpixmap.h>
#include <functional>

class QPainter;

namespace stbcore {

/*!
    What a box offers beside Qt: pixmaps in the memory layout of its graphics hardware ("tiled"). A vendor
    implements it and sets it before the first window is shown. The functions are called where pixmaps are
    painted: on the GUI thread, or on the render thread while the GUI thread waits.
*/
class STBCORE_EXPORT PlatformNativeInterface
{
public:
    virtual ~PlatformNativeInterface();

    /*! Whether this box can make tiled pixmaps now. When false, the other functions are not called. */
    virtual bool isTiledPixmapAvailable() const = 0;

    /*!
        A new tiled pixmap of \a size pixels, filled by \a paint when that is not empty; with an empty function
        the caller paints afterwards. A null pixmap means that the memory is used up.
    */
    virtual QPixmap createTiledPixmap(const QSize &size, std::function<void(QPainter &)> paint) = 0;

    /*! Prepares \a painter, which is open on the tiled \a pixmap, for drawing on it. */
    virtual void setupPainterForTiledPixmap(const QPixmap &pixmap, QPainter &painter) = 0;
};

/*! The process's hooks, or null, as long as none were set: the box has no hardware pixmaps. */
STBCORE_EXPORT PlatformNativeInterface *platformNativeInterface();

/*! Sets the hooks, which are not owned and must outlive their use. Null takes them away. */
STBCORE_EXPORT void setPlatformNativeInterface(PlatformNativeInterface *nativeInterface);

} // namespace stbcore

#endif // STBCORE_PLATFORMNATIVEINTERFACE_H
