// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_REMOTEKEY_H
#define GALLERY_SCREENS_REMOTEKEY_H

#include <QtCore/qnamespace.h>

namespace gallery {

/*!
    The key of a remote control that \a key stands for: a keyboard has no coloured keys, so that its function keys take
    their place, and a remote control may have several keys for one thing. Other keys stand for themselves.
*/
constexpr int remoteKey(int key)
{
    switch (key) {
    case Qt::Key_F1:
        return Qt::Key_Red;
    case Qt::Key_F2:
        return Qt::Key_Green;
    case Qt::Key_F3:
        return Qt::Key_Yellow;
    case Qt::Key_F4:
        return Qt::Key_Blue;
    case Qt::Key_F5:
    case Qt::Key_Help:
        return Qt::Key_Info;
    case Qt::Key_Plus:
        return Qt::Key_ChannelUp;
    case Qt::Key_Minus:
        return Qt::Key_ChannelDown;
    case Qt::Key_Play:
        return Qt::Key_MediaPlay;
    case Qt::Key_Space:
        return Qt::Key_MediaTogglePlayPause;
    default:
        return key;
    }
}

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

/*! Whether \a key is one of the four arrows. */
constexpr bool isArrowKey(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

/*! Whether \a key opens the main menu and closes it. */
constexpr bool isMenuKey(int key)
{
    return key == Qt::Key_Menu || remoteKey(key) == Qt::Key_Red;
}

/*! Whether \a key plays, pauses, or does one after the other. */
constexpr bool isPlayPauseKey(int key)
{
    const int meant = remoteKey(key);
    return meant == Qt::Key_MediaPlay || meant == Qt::Key_MediaPause || meant == Qt::Key_MediaTogglePlayPause;
}

/*! Where Left (-1) and Right (1) lead in reading order; 0 for another key. */
constexpr int readingStep(int key, bool mirrored)
{
    if (key != Qt::Key_Left && key != Qt::Key_Right)
        return 0;
    return (key == Qt::Key_Right) == mirrored ? -1 : 1;
}

/*! Where the channel keys lead: to the next channel (1) or the one before (-1); 0 for another key. */
constexpr int channelStep(int key)
{
    const int meant = remoteKey(key);
    if (meant == Qt::Key_ChannelUp)
        return 1;
    return meant == Qt::Key_ChannelDown ? -1 : 0;
}

} // namespace gallery

#endif // GALLERY_SCREENS_REMOTEKEY_H
