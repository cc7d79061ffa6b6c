// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_FOCUSEDDATESTYLE_H
#define GALLERY_SCREENS_FOCUSEDDATESTYLE_H

#include <design_system/playerepgdatestyle.h>

#include <QtCore/qpointer.h>

namespace gallery {

/*! The theme's style of days with all texts in one colour: for the day on the focus plate, and for days without programmes. */
class FocusedDateStyle : public design_system::PlayerEpgDateQmlStyle
{
    Q_OBJECT
    /*! The style that fonts are taken from. Null (the default): the default values. */
    Q_PROPERTY(design_system::PlayerEpgDateQmlStyle *base READ base WRITE setBase NOTIFY baseChanged)
    /*! The colour of month and day. */
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    QML_ELEMENT
public:
    explicit FocusedDateStyle(QObject *parent = nullptr);

    design_system::PlayerEpgDateQmlStyle *base() const { return m_base; }
    void setBase(design_system::PlayerEpgDateQmlStyle *base);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);

Q_SIGNALS:
    void baseChanged();
    void colorChanged();

private:
    void derive();

    QPointer<design_system::PlayerEpgDateQmlStyle> m_base;
    QColor m_color;
};

} // namespace gallery

#endif // GALLERY_SCREENS_FOCUSEDDATESTYLE_H
