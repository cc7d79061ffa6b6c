// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_STATESCOLORS_H
#define DESIGN_SYSTEM_STATESCOLORS_H

#include <design_system/designglobal.h>

#include <QtCore/qlist.h>
#include <QtCore/qobject.h>
#include <QtGui/qcolor.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*! Four colours, one for each state of a control. */
struct STBDESIGN_EXPORT StatesColors
{
    Q_GADGET
    Q_PROPERTY(QColor normal MEMBER normal)
    Q_PROPERTY(QColor checked MEMBER checked)
    Q_PROPERTY(QColor disabled MEMBER disabled)
    Q_PROPERTY(QColor focused MEMBER focused)
    QML_ANONYMOUS
public:
    QColor normal;
    QColor checked;
    QColor disabled;
    QColor focused;

    /*! The colours in the order normal, checked, disabled, focused. */
    QList<QColor> toList() const { return { normal, checked, disabled, focused }; }

    bool operator==(const StatesColors &) const = default;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_STATESCOLORS_H
