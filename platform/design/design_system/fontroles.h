// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_FONTROLES_H
#define DESIGN_SYSTEM_FONTROLES_H

#include <design_system/designglobal.h>

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*! The roles of a font on a high definition screen, from the largest to the smallest. */
namespace FontHd {
Q_NAMESPACE_EXPORT(STBDESIGN_EXPORT)
QML_ELEMENT

enum Role { H1, H2, H3, H4, Subhead, Body, Caption1, Caption2 };
Q_ENUM_NS(Role)
} // namespace FontHd

/*! The roles of a font on a standard definition screen, from the largest to the smallest. */
namespace FontSd {
Q_NAMESPACE_EXPORT(STBDESIGN_EXPORT)
QML_ELEMENT

enum Role { H1, H2, H3, H4, H5, H6 };
Q_ENUM_NS(Role)
} // namespace FontSd

} // namespace design_system

#endif // DESIGN_SYSTEM_FONTROLES_H
