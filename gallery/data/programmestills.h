// SPDX-License-Identifier: MIT
#ifndef GALLERY_PROGRAMMESTILLS_H
#define GALLERY_PROGRAMMESTILLS_H

#include <QtCore/qurl.h>

namespace gallery {

/*!
    A wide picture for a programme that has none of its own, chosen by its \a category ("News", "Spielfilm",
    "Спорт") in English, German, Russian or Arabic; for a category that is not known one of several, always the
    same for the same \a title. Never empty. For any thread.
*/
QUrl programmeStill(const QString &category, const QString &title);

} // namespace gallery

#endif // GALLERY_PROGRAMMESTILLS_H
