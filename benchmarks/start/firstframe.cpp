// SPDX-License-Identifier: MIT
#include <QtCore/qcoreapplication.h>
#include <QtCore/qcoreevent.h>
#include <QtQuick/qquickwindow.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace {

long long nanoseconds(clockid_t clock)
{
    timespec time {};
    clock_gettime(clock, &time);
    return time.tv_sec * 1'000'000'000LL + time.tv_nsec;
}

/*! Ends the program at the first frame of its first window, and says when that was. */
class FirstFrame : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *object, QEvent *event) override
    {
        auto *window = event->type() == QEvent::Show ? qobject_cast<QQuickWindow *>(object) : nullptr;
        if (window != nullptr)
            connect(window, &QQuickWindow::frameSwapped, this, &FirstFrame::end);
        return false;
    }

private:
    [[noreturn]] static void end()
    {
        std::printf("%lld %lld\n", nanoseconds(CLOCK_MONOTONIC), nanoseconds(CLOCK_PROCESS_CPUTIME_ID));
        std::fflush(stdout);
        std::_Exit(0);
    }
};

void watch()
{
    qApp->installEventFilter(new FirstFrame(qApp));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)
