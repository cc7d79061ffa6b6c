// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_REMOTEKEY_H
#define GALLERY_SCREENS_REMOTEKEY_H

#include <QtCore/qnamespace.h>

namespace gallery {

/*! Whether \a key leads back: remotes and keyboards have different keys for it. */
constexpr bool isBackKey(int key)
{
    return key == Qt::Key_Back || key == Qt::Key_Escape || key == Qt::Key_Backspace;
}

/*! Whether \a key is the remote's OK. */
constexpr bool isSelectKey(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Select;
}

/*! Where Left (-1) and Right (1) lead in reading order; 0 for another key. */
constexpr int readingStep(int key, bool mirrored)
{
    if (key != Qt::Key_Left && key != Qt::Key_Right)
        return 0;
    return (key == Qt::Key_Right) == mirrored ? -1 : 1;
}

} // namespace gallery

#endif // GALLERY_SCREENS_REMOTEKEY_H
