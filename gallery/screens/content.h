// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_CONTENT_H
#define GALLERY_SCREENS_CONTENT_H

namespace gallery {

/*! What a guide or a catalogue is that takes the place of another one. */
enum class Content {
    Other, /*!< newer, or one of other things: what is the same is known by its texts */
    Translated /*!< the same in another language: what is the same has the same place or time */
};

} // namespace gallery

#endif // GALLERY_SCREENS_CONTENT_H
