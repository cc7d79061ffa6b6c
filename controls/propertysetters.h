// SPDX-License-Identifier: MIT
#ifndef STBUI_PROPERTYSETTERS_H
#define STBUI_PROPERTYSETTERS_H

#include "scenegraph/textnodebuilder.h"

#include <cmath>
#include <type_traits>

namespace qml_basic_plugin {

/*!
    The first half of every property setter: returns false when \a value is what \a member holds already; else
    stores it, emits \a changed on \a control and returns true. What has to follow, a relayout or an update(), is
    the caller's.
*/
template <typename Control, typename Value>
bool assign(Control *control, Value &member, const std::type_identity_t<Value> &value,
            void (Control::*changed)())
{
    if (member == value)
        return false;
    if constexpr (std::is_floating_point_v<Value>) {
        if (std::isnan(member) && std::isnan(value))
            return false; // not-a-number never equals itself
    }
    member = value;
    Q_EMIT(control->*changed)();
    return true;
}

/*! The same for a text, which is kept by its builder alone. */
template <typename Control>
bool assignText(Control *control, TextNodeBuilder &builder, const QString &text, void (Control::*changed)())
{
    if (!builder.setText(text))
        return false;
    Q_EMIT(control->*changed)();
    return true;
}

} // namespace qml_basic_plugin

#endif // STBUI_PROPERTYSETTERS_H
