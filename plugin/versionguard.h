// SPDX-License-Identifier: MIT
#ifndef STBUI_VERSIONGUARD_H
#define STBUI_VERSIONGUARD_H

// The registration below is made by generated code in which the name QQmlModuleRegistration means
// GuardedModuleRegistration (the build passes that definition). Qt's own header must be read with the
// real name first.
#pragma push_macro("QQmlModuleRegistration")
#undef QQmlModuleRegistration
#include <QtQml/qqmlmoduleregistration.h>

#include <QtCore/qstring.h>
#include <optional>

namespace stbui {

/*!
    The reason why a library built against Qt \a builtMajor.\a builtMinor cannot work with the running Qt
    \a runtimeVersion ("6.8.2"), or an empty string when it can.

    The module reaches into Qt Quick's private classes, whose layout changes with every minor release: only
    the major.minor pair of the build will do.
*/
QString versionMismatch(const char *runtimeVersion, int builtMajor, int builtMinor);

/*!
    Hands the module's registration function to Qt's module registry, as QQmlModuleRegistration does, but
    only when the running Qt is of the version that the module was built against. Otherwise it prints one
    message and registers nothing, so that an import of the module fails.
*/
class GuardedModuleRegistration
{
    Q_DISABLE_COPY_MOVE(GuardedModuleRegistration)
public:
    GuardedModuleRegistration(const char *uri, void (*registerFunction)());
    ~GuardedModuleRegistration() = default;

private:
    std::optional<QQmlModuleRegistration> m_registration;
};

} // namespace stbui

#pragma pop_macro("QQmlModuleRegistration")

#endif // STBUI_VERSIONGUARD_H
