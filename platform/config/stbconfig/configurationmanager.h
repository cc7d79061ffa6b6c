// SPDX-License-Identifier: MIT
#ifndef STBCONFIG_CONFIGURATIONMANAGER_H
#define STBCONFIG_CONFIGURATIONMANAGER_H

#include <QtCore/qstring.h>
#include <QtCore/qvariant.h>

#ifdef STBCONFIG_LIBRARY
#  define STBCONFIG_EXPORT Q_DECL_EXPORT
#else
#  define STBCONFIG_EXPORT Q_DECL_IMPORT
#endif

namespace stbconfig {

class STBCONFIG_EXPORT ConfigurationManager
{
public:
    virtual ~ConfigurationManager();
    virtual QVariant value(const QString &group, const QString &key, const QVariant &defaultValue) const = 0;
};

STBCONFIG_EXPORT ConfigurationManager *qmlConfigManager();
STBCONFIG_EXPORT void setQmlConfigManager(ConfigurationManager *manager);

} // namespace stbconfig

#endif // STBCONFIG_CONFIGURATIONMANAGER_H
