// SPDX-License-Identifier: MIT
#include "focusmemory.h"

#include <QtQuick/qquickwindow.h>

#include <algorithm>

namespace stbgeneric {

namespace {

bool isUsable(const QQuickItem *item)
{
    return item->isVisible() && item->isEnabled() && item->width() > 0 && item->height() > 0;
}

QQuickItem *firstTaker(const QQuickItem *area)
{
    const QList<QQuickItem *> children = area->childItems();
    for (QQuickItem *child : children) {
        if (!isUsable(child))
            continue;
        if (child->isFocusScope() || child->activeFocusOnTab())
            return child;
        if (QQuickItem *taker = firstTaker(child))
            return taker;
    }
    return nullptr;
}

} // namespace

QQuickItem *firstFocusable(const QQuickItem *area)
{
    if (QQuickItem *taker = firstTaker(area))
        return taker;
    const QList<QQuickItem *> children = area->childItems();
    const auto first = std::find_if(children.begin(), children.end(), isUsable);
    return first == children.end() ? nullptr : *first;
}

FocusMemory::FocusMemory(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
}

FocusMemory::~FocusMemory()
{
    followFocusIn(nullptr); // the focus still moves while Qt Quick takes the content apart
}

void FocusMemory::setArea(QQuickItem *area)
{
    if (area == m_area)
        return;
    m_area = area;
    Q_EMIT areaChanged();
}

void FocusMemory::focusInEvent(QFocusEvent *event)
{
    QQuickItem::focusInEvent(event);
    giveAwayFocus();
}

void FocusMemory::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange)
        followFocusIn(data.window);
}

void FocusMemory::followFocusIn(QQuickWindow *window)
{
    watch(nullptr);
    if (m_window)
        disconnect(m_window, nullptr, this, nullptr);
    m_window = window;
    if (m_window)
        connect(m_window, &QQuickWindow::activeFocusItemChanged, this,
                [this] { watch(hasActiveFocus() ? m_window->activeFocusItem() : nullptr); });
}

void FocusMemory::watch(QQuickItem *item)
{
    if (item == m_watched)
        return;
    if (m_watched)
        disconnect(m_watched, &QQuickItem::visibleChanged, this, &FocusMemory::leaveHidden);
    m_watched = item == this ? nullptr : item;
    if (m_watched)
        connect(m_watched, &QQuickItem::visibleChanged, this, &FocusMemory::leaveHidden);
    leaveHidden();
}

void FocusMemory::leaveHidden()
{
    if (m_watched && !m_watched->isVisible())
        giveAwayFocus();
}

void FocusMemory::giveAwayFocus()
{
    QQuickItem *item = m_area ? firstFocusable(m_area) : nullptr;
    if (item)
        item->forceActiveFocus();
}

} // namespace stbgeneric
