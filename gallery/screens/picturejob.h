// SPDX-License-Identifier: MIT
#ifndef GALLERY_PICTUREJOB_H
#define GALLERY_PICTUREJOB_H

#include "gallery/screens/picturedecoder.h"

#include <QtCore/qlist.h>
#include <QtCore/qmutex.h>

class QQuickImageResponse;

namespace gallery {

/*!
    A picture on its way, and the responses that wait for it, which share it with the threads that work for them. A
    thread speaks to a response only through the response's event queue (its slot "deliver") and only while it waits, so
    that everything about a response happens in its own thread.
*/
class PictureJob
{
public:
    /*! \a id is how the job can be given up, in the world of who made it. */
    explicit PictureJob(quint64 id)
        : m_id(id)
    {
    }

    quint64 id() const { return m_id; }
    /*! Lets \a response wait too, however far the job is. False when it was given up: nothing comes of it any more. */
    bool join(QQuickImageResponse *response);
    /*! Lets \a response wait no longer. True when with that the job is given up. */
    bool leave(QQuickImageResponse *response);
    /*! Whether nobody waits any more. */
    bool isGivenUp() const;
    /*! Ends the job with \a picture and tells all who wait. Only once. */
    void finish(const DecodedPicture &picture);
    /*! What it ended with; nothing before. */
    DecodedPicture result() const;

private:
    const quint64 m_id;
    mutable QMutex m_mutex;
    QList<QQuickImageResponse *> m_waiting;
    DecodedPicture m_result;
    bool m_finished = false;
    bool m_givenUp = false;
};

} // namespace gallery

#endif // GALLERY_PICTUREJOB_H
