// SPDX-License-Identifier: MIT
#include "gallery/data/pictureaddress.h"

#include <QtCore/qfileinfo.h>

namespace gallery {

QUrl pictureAddress(const QString &address, const QString &folder)
{
    if (address.isEmpty())
        return {};
    const QUrl url(address);
    if (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https"))
        return url;
    const QString path = url.isLocalFile() ? url.toLocalFile() : address;
    if (path.contains(QChar::Null)) // no file can be called so, and Qt warns of it
        return {};
    const QFileInfo file(folder.isEmpty() || QFileInfo(path).isAbsolute() ? path : folder + u'/' + path);
    return file.isFile() ? QUrl::fromLocalFile(file.absoluteFilePath()) : QUrl();
}

} // namespace gallery
