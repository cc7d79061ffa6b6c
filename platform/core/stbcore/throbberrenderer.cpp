// SPDX-License-Identifier: MIT
#include "stbcore/throbberrenderer.h"

#include <QtCore/qcoreevent.h>
#include <QtGui/qbrush.h>
#include <QtGui/qpainter.h>

#include <algorithm>

namespace stbcore {

namespace {

constexpr int frameInterval = 40; // milliseconds: what a slow painter keeps up with
constexpr int framesPerTurn = 30;
constexpr int arcDegrees = 290;
// Under the white arc, so that it is seen on a white ground too: black at 51 per cent on white is a grey against
// which white has a contrast of 4 to 1.
constexpr QColor track(0, 0, 0, 130);

// A brush that is opaque at the arc's head and clear at its tail. The round caps reach beyond the arc, so
// the jump from clear to opaque lies in the middle of the gap, where nothing is painted.
QConicalGradient fadingTail(const QPointF &center, qreal headAngle)
{
    constexpr qreal halfGap = (360 - arcDegrees) / 2.0;
    QColor clear(Qt::white);
    clear.setAlpha(0);
    QConicalGradient gradient(center, headAngle - halfGap);
    gradient.setColorAt(0, Qt::white);
    gradient.setColorAt(halfGap / 360, Qt::white);
    gradient.setColorAt(1 - halfGap / 360, clear);
    gradient.setColorAt(1, clear);
    return gradient;
}

} // namespace

ThrobberRenderer::ThrobberRenderer(QObject *parent)
    : QObject(parent)
{
}

void ThrobberRenderer::setRenderRect(QRect rect)
{
    m_rect = rect;
}

void ThrobberRenderer::draw(QPainter &painter)
{
    if (m_rect.isEmpty())
        return;
    const int side = std::min(m_rect.width(), m_rect.height());
    QRect square(0, 0, side, side);
    square.moveCenter(m_rect.center());
    const qreal thickness = std::min(std::max<qreal>(m_penWidth, 1), side / 2.0);
    const qreal inset = thickness / 2;
    const QRectF circle = QRectF(square).adjusted(inset, inset, -inset, -inset);
    const qreal headAngle = 90 - 360.0 * m_frame / framesPerTurn; // counter-clockwise from three o'clock

    painter.save();
    painter.setClipRect(square, Qt::IntersectClip); // antialiasing bleeds into the pixel beside a thin arc
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(track, thickness));
    painter.drawEllipse(circle);
    painter.setPen(QPen(fadingTail(circle.center(), headAngle), thickness, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(circle, qRound(headAngle * 16), arcDegrees * 16);
    painter.restore();
}

void ThrobberRenderer::setRunning(bool running)
{
    if (running == isRunning())
        return;
    if (running)
        m_timer.start(frameInterval, this);
    else
        m_timer.stop();
}

bool ThrobberRenderer::isRunning() const
{
    return m_timer.isActive();
}

int ThrobberRenderer::penWidth() const
{
    return m_penWidth;
}

void ThrobberRenderer::setPenWidth(int width)
{
    m_penWidth = width;
}

void ThrobberRenderer::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    m_frame = (m_frame + 1) % framesPerTurn;
    Q_EMIT updated();
}

} // namespace stbcore
