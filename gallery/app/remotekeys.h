// SPDX-License-Identifier: MIT
#ifndef GALLERY_APP_REMOTEKEYS_H
#define GALLERY_APP_REMOTEKEYS_H

#include <QtCore/qlist.h>
#include <QtCore/qnamespace.h>
#include <QtCore/qstringlist.h>

namespace gallery {

struct RemoteKeys
{
    QList<Qt::Key> keys;
    /*! The first word that is no key's name; empty when all are. */
    QString unknown;
};

/*! The names that parseRemoteKeys() knows, as a person writes them. */
QStringList remoteKeyNames();

/*!
    Reads names of remote keys separated by blanks or commas, in any case: "Down Down, pageup". The keys before
    an unknown name are in the result, those behind it are not.
*/
RemoteKeys parseRemoteKeys(const QString &text);

} // namespace gallery

#endif // GALLERY_APP_REMOTEKEYS_H
