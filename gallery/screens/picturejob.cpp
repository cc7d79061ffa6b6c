// SPDX-License-Identifier: MIT
#include "gallery/screens/picturejob.h"

#include <QtQuick/qquickimageprovider.h>

#include <utility>

namespace gallery {

namespace {

void tell(QQuickImageResponse *response)
{
    QMetaObject::invokeMethod(response, "deliver", Qt::QueuedConnection);
}

} // namespace

bool PictureJob::join(QQuickImageResponse *response)
{
    const QMutexLocker lock(&m_mutex);
    if (m_givenUp)
        return false;
    if (m_finished)
        tell(response);
    else
        m_waiting.append(response);
    return true;
}

bool PictureJob::leave(QQuickImageResponse *response)
{
    const QMutexLocker lock(&m_mutex);
    if (!m_waiting.removeOne(response) || !m_waiting.isEmpty())
        return false;
    m_givenUp = true;
    return true;
}

bool PictureJob::isGivenUp() const
{
    const QMutexLocker lock(&m_mutex);
    return m_givenUp;
}

DecodedPicture PictureJob::result() const
{
    const QMutexLocker lock(&m_mutex);
    return m_result;
}

void PictureJob::finish(const DecodedPicture &picture)
{
    const QMutexLocker lock(&m_mutex);
    m_result = picture;
    m_finished = true;
    for (QQuickImageResponse *response : std::exchange(m_waiting, {}))
        tell(response);
}

} // namespace gallery
