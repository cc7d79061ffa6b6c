// SPDX-License-Identifier: MIT
#include "throbber.h"

#include <QtCore/qcoreevent.h>
#include <QtGui/qpainter.h>
#include <QtQuick/qquickwindow.h>

#include <algorithm>

namespace stbgeneric {

namespace {

constexpr int turn = 1200; // milliseconds
constexpr int arcDegrees = 290;

// Opaque at the arc's head, clear at its tail. The round caps reach beyond the arc, so the jump from clear to
// opaque lies in the middle of the gap, where nothing is painted.
QConicalGradient fadingTail(const QPointF &center, qreal headAngle, const QColor &color)
{
    constexpr qreal halfGap = (360 - arcDegrees) / 2.0;
    QColor clear = color;
    clear.setAlpha(0);
    QConicalGradient gradient(center, headAngle - halfGap);
    gradient.setColorAt(0, color);
    gradient.setColorAt(halfGap / 360, color);
    gradient.setColorAt(1 - halfGap / 360, clear);
    gradient.setColorAt(1, clear);
    return gradient;
}

} // namespace

Throbber::Throbber(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
}

void Throbber::setRunning(bool running)
{
    if (running == m_running)
        return;
    m_running = running;
    Q_EMIT runningChanged();
    updateTimer();
}

void Throbber::setInterval(int interval)
{
    if (interval == m_interval)
        return;
    m_interval = interval;
    Q_EMIT intervalChanged();
    m_timer.stop();
    updateTimer();
}

void Throbber::setPenWidth(int width)
{
    if (width == m_penWidth)
        return;
    m_penWidth = width;
    Q_EMIT penWidthChanged();
    update();
}

void Throbber::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
    update();
}

void Throbber::setTrackColor(const QColor &color)
{
    if (color == m_trackColor)
        return;
    m_trackColor = color;
    Q_EMIT trackColorChanged();
    update();
}

void Throbber::step()
{
    m_time = (m_time + std::max(m_interval, 0)) % turn;
    if (canBeSeen())
        update();
}

bool Throbber::canBeSeen() const
{
    QRectF seen = boundingRect();
    const QQuickItem *item = this;
    for (; item->parentItem(); item = item->parentItem()) {
        if (item->clip())
            seen &= item->clipRect();
        if (item->opacity() <= 0 || seen.isEmpty())
            return false;
        seen = item->mapRectToItem(item->parentItem(), seen);
    }
    return !window() || seen.intersects(QRectF(QPointF(), window()->size()));
}

void Throbber::paint(QPainter *painter)
{
    const qreal side = std::min(width(), height());
    const qreal thickness = std::min<qreal>(m_penWidth, side / 2);
    if (thickness <= 0)
        return;
    QRectF ring(0, 0, side - thickness, side - thickness);
    ring.moveCenter(QPointF(width() / 2, height() / 2));
    const qreal headAngle = 90 - 360.0 * m_time / turn; // counter-clockwise from three o'clock
    painter->setRenderHint(QPainter::Antialiasing);
    if (m_trackColor.isValid()) {
        painter->setPen(QPen(m_trackColor, thickness));
        painter->drawEllipse(ring);
    }
    if (m_color.isValid()) {
        painter->setPen(
                QPen(fadingTail(ring.center(), headAngle, m_color), thickness, Qt::SolidLine, Qt::RoundCap));
        painter->drawArc(ring, qRound(headAngle * 16), arcDegrees * 16);
    }
}

void Throbber::componentComplete()
{
    QQuickPaintedItem::componentComplete();
    updateTimer();
}

void Throbber::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickPaintedItem::itemChange(change, data);
    if (change == ItemVisibleHasChanged || change == ItemSceneChange || change == ItemOpacityHasChanged)
        updateTimer();
}

void Throbber::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    updateTimer();
}

void Throbber::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_timer.timerId())
        step();
    else
        QQuickPaintedItem::timerEvent(event);
}

void Throbber::updateTimer()
{
    const bool isThere = isVisible() && opacity() > 0 && width() > 0 && height() > 0;
    const bool turns = m_running && m_interval > 0 && isComponentComplete() && window() && isThere;
    if (turns && !m_timer.isActive())
        m_timer.start(m_interval, this);
    else if (!turns)
        m_timer.stop();
}

} // namespace stbgeneric
