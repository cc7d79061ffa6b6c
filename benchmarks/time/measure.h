// SPDX-License-Identifier: MIT
#ifndef STBBENCH_MEASURE_H
#define STBBENCH_MEASURE_H

#include <QtCore/qlist.h>

#include <functional>

namespace stbbench {

class Form;
struct Subject;

enum class Phase { Create, FirstFrame };

/*! What is done around a measured phase: the clock of timeItems(), or the collection of callgrind. */
struct Meter
{
    std::function<void(Phase)> begin;
    std::function<void(Phase)> end;
};

/*!
    Creates \a count items of \a form one after the other on a stage, each with texts and pictures that none had
    before (from number \a first on), paints the first frame of each and takes it off again, unmeasured. The
    pictures are there at once, so that the first frame is the whole picture.
*/
void createItems(const Subject &subject, Form &form, int first, int count, const Meter &meter);

/*! Microseconds of this thread's processor time for one item. */
struct ItemTime
{
    double create = 0;
    double firstFrame = 0;

    double total() const { return create + firstFrame; }
};

/*! The mean over \a count items, as createItems() makes them. */
ItemTime timeItems(const Subject &subject, Form &form, int first, int count);

/*! The middle one of \a values, which is not empty. */
double median(QList<double> values);

} // namespace stbbench

#endif // STBBENCH_MEASURE_H
