// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_FOCUSEDROWSTYLE_H
#define GALLERY_SCREENS_FOCUSEDROWSTYLE_H

#include <design_system/playerepgdelegatestyle.h>

#include <QtCore/qpointer.h>

namespace gallery {

/*!
    The style of the guide row on the focus plate: the theme's row style with all its texts in one colour. A row
    takes colours over only when it is given another style object, so the focused one has an object of its own.
*/
class FocusedRowStyle : public design_system::PlayerEpgDelegateQmlStyle
{
    Q_OBJECT
    /*! The style that fonts and measures are taken from. Null (the default): the default values. */
    Q_PROPERTY(design_system::PlayerEpgDelegateQmlStyle *base READ base WRITE setBase NOTIFY baseChanged)
    /*! The colour of start time, title and subtitle. */
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    QML_ELEMENT
public:
    explicit FocusedRowStyle(QObject *parent = nullptr);

    design_system::PlayerEpgDelegateQmlStyle *base() const { return m_base; }
    void setBase(design_system::PlayerEpgDelegateQmlStyle *base);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);

Q_SIGNALS:
    void baseChanged();
    void colorChanged();

private:
    void derive();

    QPointer<design_system::PlayerEpgDelegateQmlStyle> m_base;
    QColor m_color;
};

} // namespace gallery

#endif // GALLERY_SCREENS_FOCUSEDROWSTYLE_H
