// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_SMALLWORLD_H
#define STBUI_TEST_SMALLWORLD_H

#include "gallery/data/catalogue.h"
#include "gallery/data/guide.h"

/*! A guide and a catalogue that have one or two of everything, so that a crawl through all of it comes to an end. */
namespace smallworld {

/*! The time at which the guide is looked at. */
QDateTime now();

/*! Two channels of two groups, one of them locked, with four programmes each on today. */
gallery::Guide guide();

/*! A film, and a series with a season of two episodes, one begun and one to come, and a season of one. */
gallery::Catalogue catalogue();

} // namespace smallworld

#endif // STBUI_TEST_SMALLWORLD_H
