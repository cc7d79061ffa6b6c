// SPDX-License-Identifier: MIT
#ifndef GALLERY_PLAYLISTMATCH_H
#define GALLERY_PLAYLISTMATCH_H

#include "gallery/data/guide.h"
#include "gallery/data/playlist.h"

namespace gallery {

/*! What came of matching a playlist with a guide. */
struct PlaylistMatch
{
    /*! The channels of the playlist in its order, with the programmes of the guide. */
    Guide guide;
    int foundById = 0;
    int foundByName = 0;
    /*! Channels of the playlist that the guide does not have; they have no programmes. */
    int notInGuide = 0;
    /*! Channels of the guide that the playlist does not have; they are not shown. */
    int notInPlaylist = 0;

    /*! What matched and what did not, as one line for the reader of messages. */
    QString summary() const;
};

/*!
    Shows the programmes of \a guide under the channels of \a playlist, which alone says what channels there are, how
    they are called, numbered and ordered. The programmes are shared with \a guide, not copied.

    A channel is looked for in the guide by its id, exactly; then by its tvg-name; then by its name. Names are the same
    whatever the case of letters, the blanks and the way characters are composed; a name that several channels of the
    guide have finds none. Several channels of the playlist may find the same one of the guide: each shows its
    programmes.

    A channel keeps the id of the guide, so that what is known of its programmes holds; one that is not in the guide has
    its own, or its name. The second channel with an id gets " (2)" behind it, and so on. A channel without logo takes
    the guide's.
*/
PlaylistMatch matchedGuide(const Playlist &playlist, const Guide &guide);

} // namespace gallery

#endif // GALLERY_PLAYLISTMATCH_H
