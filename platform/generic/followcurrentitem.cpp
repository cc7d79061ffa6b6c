// SPDX-License-Identifier: MIT
#include "followcurrentitem.h"

namespace stbgeneric {

void FollowCurrentItem::setView(QQuickItem *view)
{
    if (view == m_view)
        return;
    if (m_view)
        disconnect(m_view, nullptr, this, nullptr);
    m_view = view;
    // Qt's views are private classes, hence the names. Later, because in the middle of its layout a view cannot move.
    if (m_view)
        connect(m_view, SIGNAL(countChanged()), this, SLOT(follow()), Qt::QueuedConnection);
    Q_EMIT viewChanged();
}

void FollowCurrentItem::follow()
{
    if (!m_view || !m_view->property("highlightFollowsCurrentItem").toBool())
        return;
    // Switched on, the view looks where its current item is.
    m_view->setProperty("highlightFollowsCurrentItem", false);
    m_view->setProperty("highlightFollowsCurrentItem", true);
}

} // namespace stbgeneric
