// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_SETTINGSSTORE_H
#define GALLERY_SCREENS_SETTINGSSTORE_H

#include <QtCore/qstring.h>
#include <QtCore/qvariant.h>

namespace gallery {

/*!
    Where the screen of settings reads what is in force and keeps what the viewer chooses. The groups and keys are those
    of the configuration, for example "UI" and "language".
*/
class SettingsStore
{
    Q_DISABLE_COPY_MOVE(SettingsStore)
public:
    virtual ~SettingsStore() = default;

    /*! The value in force, or \a defaultValue when there is none. */
    virtual QVariant value(const QString &group, const QString &key, const QVariant &defaultValue) const = 0;
    /*! From now on \a value is in force. False when it is so for this run only, because it could not be kept. */
    virtual bool setValue(const QString &group, const QString &key, const QVariant &value) = 0;

protected:
    SettingsStore() = default;
};

} // namespace gallery

#endif // GALLERY_SCREENS_SETTINGSSTORE_H
