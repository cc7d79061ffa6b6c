// SPDX-License-Identifier: MIT
#include "screens/middlekeeper.h"

#include <algorithm>
#include <cmath>

namespace gallery {

namespace {

// ListView::Center, which C++ cannot see.
constexpr int center = 1;
// Items that come into sight may have other sizes than the view took them for.
constexpr int longestSearch = 8;

} // namespace

void MiddleKeeper::setList(QQuickItem *list)
{
    if (list == m_list)
        return;
    if (m_list != nullptr)
        m_list->disconnect(this);
    m_list = list;
    if (m_list != nullptr) {
        connect(m_list, SIGNAL(currentItemChanged()), this, SLOT(follow()));
        for (const char *signal : { SIGNAL(widthChanged()), SIGNAL(heightChanged()),
                                    SIGNAL(contentWidthChanged()), SIGNAL(contentHeightChanged()) })
            connect(m_list, signal, this, SLOT(keep()));
    }
    Q_EMIT listChanged();
    follow();
}

void MiddleKeeper::follow()
{
    if (m_current != nullptr)
        m_current->disconnect(this);
    m_current = m_list != nullptr ? m_list->property("currentItem").value<QQuickItem *>() : nullptr;
    if (m_current != nullptr) {
        for (const auto signal : { &QQuickItem::xChanged, &QQuickItem::yChanged, &QQuickItem::widthChanged,
                                   &QQuickItem::heightChanged })
            connect(m_current, signal, this, &MiddleKeeper::keep);
    }
    keep();
}

void MiddleKeeper::keep()
{
    m_moved = true;
    if (m_keeping)
        return;
    arrange();
    // Within the view's own layout nothing could be placed.
    polish();
}

void MiddleKeeper::arrange()
{
    // A list between anchors with margins is less than nothing wide before it has its place.
    if (m_list == nullptr || m_list->width() <= 0 || m_list->height() <= 0)
        return;
    m_keeping = true;
    for (int attempt = 0; m_moved && attempt < longestSearch; ++attempt) {
        m_moved = false;
        QMetaObject::invokeMethod(m_list, "forceLayout");
        QMetaObject::invokeMethod(m_list, "positionViewAtIndex",
                                  Q_ARG(int, m_list->property("currentIndex").toInt()), Q_ARG(int, center));
        placeOnPixels();
    }
    m_keeping = false;
}

void MiddleKeeper::placeOnPixels()
{
    const auto *current = m_list->property("currentItem").value<QQuickItem *>();
    if (current == nullptr)
        return;
    const bool vertical = m_list->property("orientation").toInt() == Qt::Vertical;
    const char *position = vertical ? "contentY" : "contentX";
    const qreal begin = m_list->property(vertical ? "originY" : "originX").toReal();
    const qreal length = m_list->property(vertical ? "contentHeight" : "contentWidth").toReal();
    const qreal size = vertical ? m_list->height() : m_list->width();
    const qreal before = vertical ? current->y() : current->x();
    const qreal itemSize = vertical ? current->height() : current->width();
    // What lies between pixels looks another way when only a part of it is painted again. Which way a half is
    // rounded must not depend on where the content happens to begin.
    const qreal middle = qBound(begin, before - std::floor((size - itemSize) / 2),
                                std::max(begin, begin + length - size));
    const qreal now = m_list->property(position).toReal();
    m_list->setProperty(position, std::round(std::abs(now - middle) <= 1 ? middle : now));
}

void MiddleKeeper::updatePolish()
{
    m_moved = true;
    arrange();
}

} // namespace gallery
