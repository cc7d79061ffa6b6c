// SPDX-License-Identifier: MIT
#include "app/runconfiguration.h"

#include <stbconfig/iniconfigurationmanager.h>

namespace gallery {

RunConfiguration::RunConfiguration()
    : m_store(stbconfig::qmlConfigManager())
{
    stbconfig::setQmlConfigManager(this);
}

RunConfiguration::~RunConfiguration()
{
    stbconfig::setQmlConfigManager(m_store);
}

void RunConfiguration::setForRun(const QString &group, const QString &key, const QVariant &value)
{
    m_values.insert({ group, key }, value);
}

QVariant RunConfiguration::value(const QString &group, const QString &key, const QVariant &defaultValue) const
{
    const auto found = m_values.constFind({ group, key });
    if (found != m_values.cend())
        return *found;
    return m_store == nullptr ? defaultValue : m_store->value(group, key, defaultValue);
}

bool RunConfiguration::setValue(const QString &group, const QString &key, const QVariant &value)
{
    auto *file = dynamic_cast<stbconfig::IniConfigurationManager *>(m_store);
    if (m_readOnly || file == nullptr) {
        setForRun(group, key, value);
        return false;
    }
    m_values.remove({ group, key });
    // A value that cannot be written stays in the store's memory.
    return file->setValue(group, key, value);
}

} // namespace gallery
