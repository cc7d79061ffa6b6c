// SPDX-License-Identifier: MIT
#ifndef STBBENCH_PICTURES_H
#define STBBENCH_PICTURES_H

#include <QtCore/qurl.h>

QT_BEGIN_NAMESPACE
class QQmlEngine;
QT_END_NAMESPACE

namespace stbbench {

/*!
    The posters and logos of the tiles. They are painted once, before anything is measured: decoding is no part
    of a control. Each URL is another picture to Qt Quick's cache, as each tile of a screen has its own.
*/
void addPictureProviders(QQmlEngine *engine);

/*! The poster number \a index, 270 x 152, at once or, where it is asked for asynchronously, later. */
QUrl posterUrl(int index);
QUrl laterPosterUrl(int index);

/*! The logo number \a index, 48 x 24 with a transparent background. */
QUrl logoUrl(int index);
QUrl laterLogoUrl(int index);

} // namespace stbbench

#endif // STBBENCH_PICTURES_H
