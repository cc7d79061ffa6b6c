// SPDX-License-Identifier: MIT
#ifndef STBBENCH_PICTURES_H
#define STBBENCH_PICTURES_H

#include <QtCore/qurl.h>
#include <QtGui/qimage.h>

QT_BEGIN_NAMESPACE
class QQmlEngine;
QT_END_NAMESPACE

namespace stbtest {
class Stage;
}

namespace stbbench {

/*!
    The posters and logos of the tiles. They are painted once, before anything is measured: decoding is no part
    of a control. Each URL is another picture to Qt Quick's cache, as each tile of a screen has its own. They
    arrive as files do, through Qt Quick's thread.
*/
void addPictureProvider(QQmlEngine *engine);

/*! The poster number \a index, 270 x 152. */
QUrl posterUrl(int index);

/*! The logo number \a index, 48 x 24 with a transparent background. */
QUrl logoUrl(int index);

/*! Two placeholders for channels' logos side by side, 128 x 72 each; image://benchmarks/sheet in QML. */
QImage placeholderSheet();

/*! The channel's logo number \a index, 128 x 72. */
QUrl channelUrl(int index);

/*!
    Lets events happen until an item on \a stage asks for a frame: a picture has arrived, a throbber has turned.
    False when none does within some seconds.
*/
bool waitForFrame(stbtest::Stage &stage);

} // namespace stbbench

#endif // STBBENCH_PICTURES_H
