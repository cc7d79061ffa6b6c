// SPDX-License-Identifier: MIT
#include "plugin/qmlsettings.h"

#include <stbconfig/configurationmanager.h>

#include <QtCore/qvariant.h>

namespace qml {

QmlSettings::QmlSettings(stbconfig::ConfigurationManager *manager)
    : m_manager(manager)
{
}

QmlSettings *QmlSettings::create(QQmlEngine *engine, QJSEngine *scriptEngine)
{
    Q_UNUSED(engine)
    Q_UNUSED(scriptEngine)
    stbconfig::ConfigurationManager *manager = stbconfig::qmlConfigManager();
    return manager ? new QmlSettings(manager) : nullptr;
}

bool QmlSettings::roundingEnabled() const
{
    return m_manager->value(QLatin1String("UI"), QStringLiteral("roundingEnabled"), false).toBool();
}

bool QmlSettings::colorAnimationsEnabled() const
{
    return false;
}

bool QmlSettings::focusingAnimationsEnabled() const
{
    return animationEnabled(QStringLiteral("focusingEnabled"));
}

bool QmlSettings::layoutScrollingAnimationsEnabled() const
{
    return animationEnabled(QStringLiteral("layoutScrollingEnabled"));
}

bool QmlSettings::viewportScrollingAnimationsEnabled() const
{
    return animationEnabled(QStringLiteral("viewportScrollingEnabled"));
}

bool QmlSettings::fadeAnimationsEnabled() const
{
    return animationEnabled(QStringLiteral("fadeEffectEnabled"));
}

bool QmlSettings::slidingAnimationsEnabled() const
{
    return animationEnabled(QStringLiteral("slidingEnabled"));
}

bool QmlSettings::permanentAnimationsEnabled() const
{
    return true;
}

bool QmlSettings::animationEnabled(const QString &key) const
{
    return m_manager->value(QLatin1String("Animations"), key, true).toBool();
}

} // namespace qml
