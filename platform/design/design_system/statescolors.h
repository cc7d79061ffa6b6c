// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_STATESCOLORS_H
#define DESIGN_SYSTEM_STATESCOLORS_H

#include <design_system/designglobal.h>

#include <QtCore/qlist.h>
#include <QtCore/qobject.h>
#include <QtGui/qcolor.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*!
    Colours by state. Invokable methods return them under this name: of a method that returns a "QList<QColor>"
    the type descriptions of Qt 6.4 keep the "QColor" alone.
*/
using ColorList = QList<QColor>;

/*! Four colours, one for each state of a control. All are invalid when new. */
struct STBDESIGN_EXPORT StatesColors
{
    Q_GADGET
    Q_PROPERTY(QColor normal MEMBER normal)
    Q_PROPERTY(QColor checked MEMBER checked)
    Q_PROPERTY(QColor disabled MEMBER disabled)
    Q_PROPERTY(QColor focused MEMBER focused)
    QML_ANONYMOUS
public:
    QColor normal; //!< in none of the other states
    QColor checked; //!< chosen, or switched on
    QColor disabled; //!< what cannot be used
    QColor focused; //!< what has the focus

    /*! The colours in the order normal, checked, disabled, focused. */
    ColorList toList() const { return { normal, checked, disabled, focused }; }

    bool operator==(const StatesColors &) const = default;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_STATESCOLORS_H
