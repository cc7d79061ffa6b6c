// SPDX-License-Identifier: MIT
#include "measure.h"

#include "forms/form.h"
#include "testkit/stage.h"

#include <algorithm>
#include <ctime>

namespace stbbench {
namespace {

double threadMicroseconds()
{
    timespec time {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e6 + double(time.tv_nsec) / 1e3;
}

} // namespace

void createItems(const Subject &subject, Form &form, int first, int count, const Meter &meter)
{
    stbtest::Stage stage(QSize(640, 360), QColor(0x10, 0x18, 0x28));
    stage.renderFrame();
    for (int i = 0; i < count; ++i) {
        const QVariantMap content = subject.content(first + i, Pictures::AtOnce);
        meter.begin(Phase::Create);
        std::unique_ptr<QQuickItem> item = form.create(content);
        item->setParentItem(stage.contentItem());
        meter.end(Phase::Create);
        meter.begin(Phase::FirstFrame);
        stage.renderFrame();
        meter.end(Phase::FirstFrame);
        item.reset();
        stage.renderFrame();
    }
}

ItemTime timeItems(const Subject &subject, Form &form, int first, int count)
{
    ItemTime time;
    double start = 0;
    Meter meter;
    meter.begin = [&start](Phase) { start = threadMicroseconds(); };
    meter.end = [&start, &time](Phase phase) {
        const double passed = threadMicroseconds() - start;
        (phase == Phase::Create ? time.create : time.firstFrame) += passed;
    };
    createItems(subject, form, first, count, meter);
    time.create /= count;
    time.firstFrame /= count;
    return time;
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    const qsizetype middle = values.size() / 2;
    return values.size() % 2 ? values.at(middle) : (values.at(middle - 1) + values.at(middle)) / 2;
}

} // namespace stbbench
