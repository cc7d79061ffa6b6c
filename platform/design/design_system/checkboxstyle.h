// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_CHECKBOXSTYLE_H
#define DESIGN_SYSTEM_CHECKBOXSTYLE_H

#include <design_system/statescolors.h>
#include <design_system/stylegroups.h>

#include <QtCore/qlist.h>
#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*! The look of CheckBox and RadioButton. Lengths are pixels; a new object's are 0 and its colours invalid. */
class STBDESIGN_EXPORT CheckBoxQmlStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int roundingRadius MEMBER m_roundingRadius NOTIFY roundingRadiusChanged)
    Q_PROPERTY(design_system::CheckBoxIconGroup *icon READ icon CONSTANT)
    Q_PROPERTY(design_system::FontGroup *title READ title CONSTANT)
    Q_PROPERTY(int spacing MEMBER m_spacing NOTIFY spacingChanged)
    Q_PROPERTY(design_system::StatesColors indicator MEMBER m_indicator NOTIFY indicatorChanged)
    Q_PROPERTY(design_system::StatesColors iconStates MEMBER m_iconStates NOTIFY iconStatesChanged)
    Q_PROPERTY(design_system::StatesColors titleStates MEMBER m_titleStates NOTIFY titleStatesChanged)
    QML_ELEMENT
public:
    using QObject::QObject;

    CheckBoxIconGroup *icon() { return &m_icon; }
    FontGroup *title() { return &m_title; }

    // By state: normal, checked, disabled, focused.
    Q_INVOKABLE design_system::ColorList indicatorColors() const { return m_indicator.toList(); }
    Q_INVOKABLE design_system::ColorList iconColors() const { return m_iconStates.toList(); }
    Q_INVOKABLE design_system::ColorList titleColors() const { return m_titleStates.toList(); }

Q_SIGNALS:
    void roundingRadiusChanged();
    void spacingChanged();
    void indicatorChanged();
    void iconStatesChanged();
    void titleStatesChanged();

private:
    int m_roundingRadius = 0; //!< of the box's corners where rounding is on; RadioButton is always round
    CheckBoxIconGroup m_icon; //!< the mark; the box is as large. RadioButton has another mark
    FontGroup m_title; //!< font of the title
    int m_spacing = 0; //!< between box and title
    StatesColors m_indicator; //!< fill of the box
    StatesColors m_iconStates; //!< tint of the mark
    StatesColors m_titleStates; //!< text of the title
};

} // namespace design_system

#endif // DESIGN_SYSTEM_CHECKBOXSTYLE_H
