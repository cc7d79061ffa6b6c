// SPDX-License-Identifier: MIT
#include "screens/middlekeeper.h"

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
    if (m_list == nullptr)
        return;
    m_keeping = true;
    for (int attempt = 0; m_moved && attempt < longestSearch; ++attempt) {
        m_moved = false;
        QMetaObject::invokeMethod(m_list, "forceLayout");
        QMetaObject::invokeMethod(m_list, "positionViewAtIndex",
                                  Q_ARG(int, m_list->property("currentIndex").toInt()), Q_ARG(int, center));
        // What lies between pixels looks another way when only a part of it is painted again.
        for (const char *position : { "contentX", "contentY" })
            m_list->setProperty(position, std::round(m_list->property(position).toReal()));
    }
    m_keeping = false;
}

void MiddleKeeper::updatePolish()
{
    m_moved = true;
    arrange();
}

} // namespace gallery
