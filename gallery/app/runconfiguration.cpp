// SPDX-License-Identifier: MIT
#include "app/runconfiguration.h"

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

void RunConfiguration::setValue(const QString &group, const QString &key, const QVariant &value)
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

} // namespace gallery
