// SPDX-License-Identifier: MIT
#ifndef GALLERY_APP_PROGRAM_H
#define GALLERY_APP_PROGRAM_H

#include "app/options.h"

namespace gallery {

/*!
    Sets the environment that a run needs before the application object is made: pictures are rendered without a
    display, by the software renderer unless another one is asked for, and pixel for pixel.
*/
void prepareEnvironment(const Options &options);

/*! The whole program: reads the arguments, runs, and returns the exit code. */
int runGallery(int &argc, char **argv);

} // namespace gallery

#endif // GALLERY_APP_PROGRAM_H
