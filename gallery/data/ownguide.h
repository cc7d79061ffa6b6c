// SPDX-License-Identifier: MIT
#ifndef GALLERY_OWNGUIDE_H
#define GALLERY_OWNGUIDE_H

#include "gallery/data/guide.h"

namespace gallery {

/*! How many days before and after the present one the own guide has. */
constexpr int ownGuideDays = 7;

/*!
    The guide that is shown when no file is given: a few channels with a programme for every minute from the
    start of the day a week before \a now to the end of the day a week after it, in local time. A programme that two guides
    of different days have is the same in both. Texts are in \a language
    ("en", "de", "ru" or "ar"; a region is ignored), else in English.
*/
Guide ownGuide(const QDateTime &now, const QString &language);

} // namespace gallery

#endif // GALLERY_OWNGUIDE_H
