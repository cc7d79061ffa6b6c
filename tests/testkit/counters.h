// SPDX-License-Identifier: MIT
#ifndef STBTEST_COUNTERS_H
#define STBTEST_COUNTERS_H

#include <QtCore/qglobal.h>

#include <functional>

QT_BEGIN_NAMESPACE
class QObject;
class QQuickItem;
QT_END_NAMESPACE

namespace stbtest {

class Stage;

/*! \a object and its QObject children, theirs included. */
int objectCount(const QObject *object);

/*! \a item and its child items, theirs included. */
int itemCount(const QQuickItem *item);

/*!
    The scene-graph nodes of \a item in its last frame: those that it made itself, those of its child items and
    those that Qt Quick made for placing them.
*/
int itemNodeCount(QQuickItem *item);

/*!
    How many QObjects \a action creates on the calling thread, whether they live on or not. What other threads do
    meanwhile, such as Qt Quick's loading of pictures, would make the number another one in each run.
*/
int objectsCreated(const std::function<void()> &action);

/*! How many texts \a action lays out, by stbcore::TextRenderer; -1 when the platform does not count. */
qint64 textsLaidOut(const std::function<void()> &action);

/*! How many pixels the frame after \a change paints. A frame before it shows what was there already. */
qint64 pixelsPainted(Stage &stage, const std::function<void()> &change);

} // namespace stbtest

#endif // STBTEST_COUNTERS_H
