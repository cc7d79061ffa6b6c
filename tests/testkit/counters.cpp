// SPDX-License-Identifier: MIT
#include "testkit/counters.h"
#include "testkit/nodes.h"
#include "testkit/stage.h"

#include <QtCore/private/qhooks_p.h>
#include <QtQuick/qquickitem.h>

#ifdef STBTEST_COUNTS_TEXTS
#include <stbcore/textcounters.h>
#endif

namespace stbtest {
namespace {

thread_local int created = 0;
QHooks::AddQObjectCallback nextHook = nullptr;

void countObject(QObject *object)
{
    ++created;
    if (nextHook)
        nextHook(object);
}

} // namespace

int objectCount(const QObject *object)
{
    int count = 1;
    for (const QObject *child : object->children())
        count += objectCount(child);
    return count;
}

int itemCount(const QQuickItem *item)
{
    int count = 1;
    for (const QQuickItem *child : item->childItems())
        count += itemCount(child);
    return count;
}

int itemNodeCount(QQuickItem *item)
{
    return nodeCount(itemNode(item));
}

int objectsCreated(const std::function<void()> &action)
{
    nextHook = reinterpret_cast<QHooks::AddQObjectCallback>(qtHookData[QHooks::AddQObject]);
    const int before = created;
    qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(&countObject);
    action();
    qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(nextHook);
    return created - before;
}

qint64 textsLaidOut(const std::function<void()> &action)
{
#ifdef STBTEST_COUNTS_TEXTS
    const qint64 before = qint64(stbcore::textLayoutCount());
    action();
    return qint64(stbcore::textLayoutCount()) - before;
#else
    action();
    return -1;
#endif
}

qint64 pixelsPainted(Stage &stage, const std::function<void()> &change)
{
    stage.renderFrame();
    change();
    return pixelCount(stage.renderFrame());
}

} // namespace stbtest
