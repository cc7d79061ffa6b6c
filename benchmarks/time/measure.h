// SPDX-License-Identifier: MIT
#ifndef STBBENCH_MEASURE_H
#define STBBENCH_MEASURE_H

#include <QtCore/qlist.h>

#include <functional>

namespace stbbench {

class Form;
struct Subject;

enum class Phase {
    Create,
    FirstFrame,
    PictureFrame, // the frame after the picture arrived, of controls that show one
};

/*! What is done around a measured phase: the clock of timeItems(), or the collection of callgrind. */
struct Meter
{
    std::function<void(Phase)> begin;
    std::function<void(Phase)> end;
};

/*!
    Creates \a count items of \a form one after the other on a stage, each with texts and pictures that none had
    before (from number \a first on), and paints the first frame of each and the one that shows its picture. Waiting
    for the picture and taking the item off again is not measured.
*/
void createItems(const Subject &subject, Form &form, int first, int count, const Meter &meter);

/*! Microseconds of this thread's processor time, or its instructions, for one item. */
struct ItemTime
{
    double create = 0;
    double firstFrame = 0;
    double pictureFrame = 0;

    double &of(Phase phase);
};

/*! The mean over \a count items, as createItems() makes them. */
ItemTime timeItems(const Subject &subject, Form &form, int first, int count);

/*! The middle one of \a values, which is not empty. */
double median(QList<double> values);

} // namespace stbbench

#endif // STBBENCH_MEASURE_H
