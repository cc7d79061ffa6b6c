// SPDX-License-Identifier: MIT
#include "gallery/data/clock.h"

namespace gallery {

Clock::Clock(QObject *parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer); // a coarse one may fire before the minute is full
    connect(&m_timer, &QTimer::timeout, this, &Clock::tick);
    tick();
}

void Clock::setFixed(const QDateTime &now)
{
    const bool fixed = now.isValid();
    const bool changed = fixed != m_fixed;
    m_fixed = fixed;
    if (fixed) {
        m_timer.stop();
        setNow(now);
    } else {
        tick();
    }
    if (changed)
        Q_EMIT fixedChanged();
}

int Clock::millisecondsToNextMinute(QTime time)
{
    constexpr int minute = 60000;
    return minute - time.msecsSinceStartOfDay() % minute;
}

void Clock::setNow(const QDateTime &now)
{
    const QDateTime seconds = QDateTime::fromSecsSinceEpoch(now.toSecsSinceEpoch());
    if (m_now == seconds)
        return;
    m_now = seconds;
    Q_EMIT nowChanged();
}

void Clock::tick()
{
    const QDateTime now = QDateTime::currentDateTime();
    m_timer.start(millisecondsToNextMinute(now.time()));
    setNow(now);
}

} // namespace gallery
