// SPDX-License-Identifier: MIT
#include "progresscircle.h"

#include <QtGui/qpainter.h>

#include <algorithm>
#include <cmath>

namespace stbgeneric {

namespace {

constexpr int degree = 16; // the unit of QPainter's angles
constexpr int twelveOClock = 90 * degree;

} // namespace

ProgressCircle::ProgressCircle(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
}

void ProgressCircle::setFrom(qreal from)
{
    if (from == m_from)
        return;
    m_from = from;
    Q_EMIT fromChanged();
    updatePosition();
}

void ProgressCircle::setTo(qreal to)
{
    if (to == m_to)
        return;
    m_to = to;
    Q_EMIT toChanged();
    updatePosition();
}

void ProgressCircle::setValue(qreal value)
{
    if (value == m_value)
        return;
    m_value = value;
    Q_EMIT valueChanged();
    updatePosition();
}

void ProgressCircle::setBarWidth(int width)
{
    if (width == m_barWidth)
        return;
    m_barWidth = width;
    Q_EMIT barWidthChanged();
    update();
}

void ProgressCircle::setBarColor(const QColor &color)
{
    if (color == m_barColor)
        return;
    m_barColor = color;
    Q_EMIT barColorChanged();
    update();
}

void ProgressCircle::setBarBackgroundColor(const QColor &color)
{
    if (color == m_barBackgroundColor)
        return;
    m_barBackgroundColor = color;
    Q_EMIT barBackgroundColorChanged();
    update();
}

// The arc's length in QPainter's angles.
int ProgressCircle::span() const
{
    return qRound(m_position * 360 * degree);
}

void ProgressCircle::updatePosition()
{
    const qreal share = (m_value - m_from) / (m_to - m_from);
    const qreal position = std::isfinite(share) ? std::clamp<qreal>(share, 0, 1) : 0;
    if (position == m_position)
        return;
    const int before = span();
    m_position = position;
    Q_EMIT positionChanged();
    if (span() != before)
        update();
}

void ProgressCircle::paint(QPainter *painter)
{
    const qreal side = std::min(width(), height());
    const qreal thickness = std::min<qreal>(m_barWidth, side / 2);
    if (thickness <= 0)
        return;
    QRectF ring(0, 0, side - thickness, side - thickness);
    ring.moveCenter(QPointF(width() / 2, height() / 2));
    painter->setRenderHint(QPainter::Antialiasing);
    if (m_barBackgroundColor.isValid() && m_barBackgroundColor.alpha() > 0) {
        painter->setPen(QPen(m_barBackgroundColor, thickness));
        painter->drawEllipse(ring);
    }
    if (m_barColor.isValid() && span() > 0) {
        painter->setPen(QPen(m_barColor, thickness, Qt::SolidLine, Qt::FlatCap));
        painter->drawArc(ring, twelveOClock, -span());
    }
}

} // namespace stbgeneric
