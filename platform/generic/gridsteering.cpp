// SPDX-License-Identifier: MIT
#include "gridsteering.h"

#include <QtGui/qevent.h>

#include <algorithm>

namespace stbgeneric {

GridStep gridStep(int key, int index, int count, int columns, bool isMirrored)
{
    if (index < 0 || index >= count || columns < 1)
        return GridStep::Usual;
    const int column = index % columns;
    const int firstOfLastRow = (count - 1) / columns * columns;
    const bool isBack = key == (isMirrored ? Qt::Key_Right : Qt::Key_Left);
    const bool isOn = key == (isMirrored ? Qt::Key_Left : Qt::Key_Right);
    if (key == Qt::Key_Down && index < firstOfLastRow && index + columns >= count)
        return GridStep::ToLastItem;
    if ((isBack && column == 0) || (isOn && column == columns - 1))
        return GridStep::Leave;
    return GridStep::Usual;
}

void GridSteering::setView(QQuickItem *view)
{
    if (view == m_view)
        return;
    if (m_view)
        m_view->removeEventFilter(this);
    m_view = view;
    if (m_view)
        m_view->installEventFilter(this);
    Q_EMIT viewChanged();
}

GridStep GridSteering::stepFor(int key) const
{
    // Qt's views are private classes, hence the names.
    const auto number = [this](const char *name) { return m_view->property(name).toInt(); };
    if (!m_view->property("keyNavigationEnabled").toBool())
        return GridStep::Usual;
    const qreal cellWidth = m_view->property("cellWidth").toReal();
    const int columns = cellWidth > 0 ? std::max(1, static_cast<int>(m_view->width() / cellWidth)) : 1;
    const bool isMirrored = number("effectiveLayoutDirection") == Qt::RightToLeft;
    const GridStep step = gridStep(key, number("currentIndex"), number("count"), columns, isMirrored);
    const bool wraps = m_view->property("keyNavigationWraps").toBool();
    return step == GridStep::Leave && wraps ? GridStep::Usual : step;
}

bool GridSteering::eventFilter(QObject *, QEvent *event)
{
    if (!m_view || event->type() != QEvent::KeyPress)
        return false;
    const GridStep step = stepFor(static_cast<QKeyEvent *>(event)->key());
    if (step == GridStep::Usual)
        return false;
    if (step == GridStep::ToLastItem)
        m_view->setProperty("currentIndex", m_view->property("count").toInt() - 1);
    event->setAccepted(step == GridStep::ToLastItem);
    return true;
}

} // namespace stbgeneric
