// SPDX-License-Identifier: MIT
#include "measure.h"

#include "forms/form.h"
#include "forms/pictures.h"
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

void paintPicture(stbtest::Stage &stage, const Meter &meter)
{
    if (!waitForFrame(stage))
        qFatal("a picture does not arrive");
    meter.begin(Phase::PictureFrame);
    stage.renderFrame();
    meter.end(Phase::PictureFrame);
}

} // namespace

double &ItemTime::of(Phase phase)
{
    switch (phase) {
    case Phase::Create:
        return create;
    case Phase::FirstFrame:
        return firstFrame;
    case Phase::PictureFrame:
        break;
    }
    return pictureFrame;
}

void createItems(const Subject &subject, Form &form, int first, int count, const Meter &meter)
{
    stbtest::Stage stage(QSize(640, 360), QColor(0x10, 0x18, 0x28));
    stage.renderFrame();
    for (int i = 0; i < count; ++i) {
        QVariantMap content = subject.content(first + i);
        if (!subject.pictureProperty.isEmpty())
            content.insert(subject.pictureProperty, posterUrl(first + i));
        meter.begin(Phase::Create);
        std::unique_ptr<QQuickItem> item = form.create(content);
        item->setParentItem(stage.contentItem());
        meter.end(Phase::Create);
        meter.begin(Phase::FirstFrame);
        stage.renderFrame();
        meter.end(Phase::FirstFrame);
        if (!subject.pictureProperty.isEmpty())
            paintPicture(stage, meter);
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
    meter.end = [&start, &time, count](Phase phase) {
        const double passed = threadMicroseconds() - start;
        time.of(phase) += passed / count;
    };
    createItems(subject, form, first, count, meter);
    return time;
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    const qsizetype middle = values.size() / 2;
    return values.size() % 2 ? values.at(middle) : (values.at(middle - 1) + values.at(middle)) / 2;
}

} // namespace stbbench
