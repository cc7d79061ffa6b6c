// SPDX-License-Identifier: MIT
#include "gallery/screens/picturestore.h"

namespace gallery {

PictureStore::PictureStore(qsizetype budget)
    : m_images(budget)
{
}

QImage PictureStore::find(const QString &key) const
{
    const QMutexLocker lock(&m_mutex);
    const QImage *image = m_images.object(key);
    return image ? *image : QImage();
}

void PictureStore::insert(const QString &key, const QImage &image)
{
    if (image.isNull())
        return;
    const QMutexLocker lock(&m_mutex);
    m_images.insert(key, new QImage(image), image.sizeInBytes() + key.size() * qsizetype(sizeof(QChar)));
}

qsizetype PictureStore::bytes() const
{
    const QMutexLocker lock(&m_mutex);
    return m_images.totalCost();
}

} // namespace gallery
