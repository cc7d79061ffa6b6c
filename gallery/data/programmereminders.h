// SPDX-License-Identifier: MIT
#ifndef GALLERY_PROGRAMMEREMINDERS_H
#define GALLERY_PROGRAMMEREMINDERS_H

#include "gallery/data/guide.h"
#include "gallery/data/reminders.h"

namespace gallery {

/*!
    Whether \a reminders has the programme \a programme of \a channel, which \a guide has. A reminder belongs to what
    starts on its channel at its time; of several programmes to that of its title, else to the first. So it is found
    again in another language, and when a programme gets a new title.
*/
bool hasReminder(const Reminders &reminders, const Guide &guide, int channel, int programme);
/*! Sets a reminder of the programme, or takes it away; false when neither is possible. */
bool toggleReminder(Reminders *reminders, const Guide &guide, int channel, int programme);

} // namespace gallery

#endif // GALLERY_PROGRAMMEREMINDERS_H
