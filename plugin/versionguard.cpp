// SPDX-License-Identifier: MIT
#include "plugin/versionguard.h"

#include <QtCore/qlogging.h>
#include <QtCore/qversionnumber.h>

namespace stbui {

QString versionMismatch(const char *runtimeVersion, int builtMajor, int builtMinor)
{
    const QVersionNumber running = QVersionNumber::fromString(QLatin1String(runtimeVersion));
    if (running.majorVersion() == builtMajor && running.minorVersion() == builtMinor)
        return {};
    return QStringLiteral("Stbui.UI.Qml.Controls.Basic was built for Qt %1.%2 and cannot run with Qt %3: "
                          "install the build of the module for this Qt version")
            .arg(builtMajor)
            .arg(builtMinor)
            .arg(QLatin1String(runtimeVersion));
}

GuardedModuleRegistration::GuardedModuleRegistration(const char *uri, void (*registerFunction)())
{
    const QString mismatch = versionMismatch(qVersion(), QT_VERSION_MAJOR, QT_VERSION_MINOR);
    if (mismatch.isEmpty())
        m_registration.emplace(uri, registerFunction);
    else
        qCritical("%s", qPrintable(mismatch));
}

} // namespace stbui
