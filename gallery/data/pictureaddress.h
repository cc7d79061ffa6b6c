// SPDX-License-Identifier: MIT
#ifndef GALLERY_PICTUREADDRESS_H
#define GALLERY_PICTUREADDRESS_H

#include <QtCore/qstring.h>
#include <QtCore/qurl.h>

namespace gallery {

/*!
    The address of the picture that a file in the folder \a folder calls \a address: a web address as it is, the
    local file of a path or file address when there is such a file, else empty. A relative path starts at the folder.
*/
QUrl pictureAddress(const QString &address, const QString &folder);

} // namespace gallery

#endif // GALLERY_PICTUREADDRESS_H
