// SPDX-License-Identifier: MIT
#include "focusmemory.h"

#include <QtCore/qscopedvaluerollback.h>
#include <QtQuick/qquickwindow.h>

#include <algorithm>

namespace stbgeneric {

namespace {

bool isUsable(const QQuickItem *item)
{
    return item->isVisible() && item->isEnabled() && item->width() > 0 && item->height() > 0;
}

bool isLoader(const QQuickItem *item)
{
    return item->inherits("QQuickLoader");
}

/*! Whether \a item does something with the focus. A Loader does only when its content asked for it. */
bool isTaker(const QQuickItem *item)
{
    return isLoader(item) ? item->scopedFocusItem() != nullptr
                          : item->isFocusScope() || item->activeFocusOnTab();
}

QQuickItem *firstTaker(const QQuickItem *area)
{
    const QList<QQuickItem *> children = area->childItems();
    for (QQuickItem *child : children) {
        if (!isUsable(child))
            continue;
        if (isTaker(child))
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
    if (m_area)
        disconnect(m_area, nullptr, this, nullptr);
}

void FocusMemory::setArea(QQuickItem *area)
{
    if (area == m_area)
        return;
    if (m_area)
        disconnect(m_area, nullptr, this, nullptr);
    m_area = area;
    if (m_area)
        connect(m_area, &QQuickItem::childrenRectChanged, this, &FocusMemory::measure);
    Q_EMIT areaChanged();
    measure();
    polish();
}

void FocusMemory::measure()
{
    const qreal bottom = m_area ? m_area->childrenRect().bottom() : 0;
    if (m_isResizing || bottom == m_contentHeight)
        return;
    m_contentHeight = bottom;
    Q_EMIT contentHeightChanged();
}

void FocusMemory::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    {
        const bool isHeightNew = newGeometry.height() != oldGeometry.height();
        const QScopedValueRollback<bool> guard(m_isResizing, m_isResizing || isHeightNew);
        QQuickItem::geometryChange(newGeometry, oldGeometry);
    }
    if (newGeometry.width() != oldGeometry.width())
        measure(); // texts may have got other lines
}

void FocusMemory::focusInEvent(QFocusEvent *event)
{
    QQuickItem::focusInEvent(event);
    // Qt takes the focus from an item that is removed before it is: given back, it would stay with the dead.
    const bool mayBeRemoved = m_watched && m_watched->isVisible() && m_watched->isEnabled();
    if (!mayBeRemoved)
        giveAwayFocus();
}

void FocusMemory::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange)
        followFocusIn(data.window);
}

// --- where the focus is ---------------------------------------------------------------------------------

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
    if (item != m_watched) {
        if (m_watched)
            disconnect(m_watched, &QQuickItem::visibleChanged, this, &FocusMemory::leaveHidden);
        m_watched = item == this ? nullptr : item;
        if (m_watched)
            connect(m_watched, &QQuickItem::visibleChanged, this, &FocusMemory::leaveHidden);
        leaveHidden();
    }
    if (isWaiting())
        polish();
    else
        m_ears.reset();
}

void FocusMemory::leaveHidden()
{
    if (m_watched && !m_watched->isVisible())
        giveAwayFocus();
    if (isWaiting())
        polish();
}

bool FocusMemory::isWaiting() const
{
    const QQuickItem *item = m_window && hasActiveFocus() ? m_window->activeFocusItem() : nullptr;
    return item && (item == this || item == m_standIn || isLoader(item) || !item->isVisible());
}

// --- where it goes --------------------------------------------------------------------------------------

void FocusMemory::updatePolish()
{
    m_ears.reset();
    if (!m_area || !isWaiting())
        return;
    giveAwayFocus();
    if (!isWaiting())
        return;
    m_ears = std::make_unique<QObject>();
    listenTo(m_area);
}

void FocusMemory::listenTo(QQuickItem *item)
{
    const auto look = [this] { polish(); };
    connect(item, &QQuickItem::visibleChanged, m_ears.get(), look);
    connect(item, &QQuickItem::enabledChanged, m_ears.get(), look);
    connect(item, &QQuickItem::widthChanged, m_ears.get(), look);
    connect(item, &QQuickItem::heightChanged, m_ears.get(), look);
    connect(item, &QQuickItem::activeFocusOnTabChanged, m_ears.get(), look);
    if (isTaker(item))
        return;
    connect(item, &QQuickItem::childrenChanged, m_ears.get(), look);
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        listenTo(child);
}

void FocusMemory::giveAwayFocus()
{
    // All items of a block that is hidden go one after another: it keeps in mind where the focus was.
    if (!m_area || !m_area->isVisible() || !m_area->isEnabled())
        return;
    QQuickItem *item = firstFocusable(m_area);
    if (!item || item->hasActiveFocus())
        return;
    m_standIn = isTaker(item) ? nullptr : item;
    item->forceActiveFocus();
}

} // namespace stbgeneric
