// SPDX-License-Identifier: MIT
#ifndef STBGENERIC_COLORSBYSTATE_H
#define STBGENERIC_COLORSBYSTATE_H

#include <QtCore/qlist.h>
#include <QtCore/qobject.h>
#include <QtGui/qcolor.h>
#include <QtQml/qqmlregistration.h>

namespace stbgeneric {

/*!
    Which colour of a list a control shows. A list that is too short gives its first colour, an empty one and an
    invalid colour give transparent: an invalid colour would be painted black.
*/
class ColorsByState : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /*!
        Of \a colors in the order normal, checked, disabled, focused: disabled when the control is not
        \a enabled, else checked when it is \a checked, else focused when it is \a focused, else normal.
    */
    Q_INVOKABLE QColor ofControl(const QList<QColor> &colors, bool enabled, bool checked, bool focused) const;

    /*!
        Of \a colors in the order normal, checked, focused: focused when the button is \a focused, else checked
        when it is \a checked, else normal. Here the focus comes first: the menu's present entry shows it too.
    */
    Q_INVOKABLE QColor ofMenuButton(const QList<QColor> &colors, bool checked, bool focused) const;
};

} // namespace stbgeneric

#endif // STBGENERIC_COLORSBYSTATE_H
