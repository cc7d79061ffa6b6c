// SPDX-License-Identifier: MIT
#ifndef STBCONFIG_CONFIGURATIONMANAGER_H
#define STBCONFIG_CONFIGURATIONMANAGER_H

#include <QtCore/qstring.h>
#include <QtCore/qvariant.h>

#ifdef STBCONFIG_LIBRARY
#define STBCONFIG_EXPORT Q_DECL_EXPORT
#else
#define STBCONFIG_EXPORT Q_DECL_IMPORT
#endif

namespace stbconfig {

/*! A store of settings, each with a group and a key. */
class STBCONFIG_EXPORT ConfigurationManager
{
public:
    virtual ~ConfigurationManager();

    /*! The stored value, or \a defaultValue when there is none. Nothing is written. */
    virtual QVariant value(const QString &group, const QString &key, const QVariant &defaultValue) const = 0;
};

/*!
    The store of this process. As long as setQmlConfigManager() was not called it is the reference store
    (IniConfigurationManager with its default file), which opens its file when this function is first called.
    Null when null was set. To be called from the GUI thread.
*/
STBCONFIG_EXPORT ConfigurationManager *qmlConfigManager();

/*!
    Makes \a manager the store of this process. It is not owned and must outlive its use. Null means that this
    process has no store, not even the reference one.
*/
STBCONFIG_EXPORT void setQmlConfigManager(ConfigurationManager *manager);

} // namespace stbconfig

#endif // STBCONFIG_CONFIGURATIONMANAGER_H
