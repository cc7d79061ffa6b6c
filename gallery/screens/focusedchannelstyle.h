// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_FOCUSEDCHANNELSTYLE_H
#define GALLERY_SCREENS_FOCUSEDCHANNELSTYLE_H

#include <design_system/playertvchannelitemstyle.h>

#include <QtCore/qpointer.h>

namespace gallery {

/*!
    The style of the channel row on the focus plate: the theme's row style with its texts in one colour. A row takes
    colours over only when it is given another style object, so the focused one has an object of its own.
*/
class FocusedChannelStyle : public design_system::PlayerTvChannelItemQmlStyle
{
    Q_OBJECT
    /*! The style that fonts and measures are taken from. Null (the default): the default values. */
    Q_PROPERTY(design_system::PlayerTvChannelItemQmlStyle *base READ base WRITE setBase NOTIFY baseChanged)
    /*! The colour of names and of the mark of the channel that plays, of the quality's badge and of the progress. */
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    /*! The colour of the text in the badge, and of the plate. */
    Q_PROPERTY(QColor plateColor READ plateColor WRITE setPlateColor NOTIFY plateColorChanged)
    QML_ELEMENT
public:
    explicit FocusedChannelStyle(QObject *parent = nullptr);

    design_system::PlayerTvChannelItemQmlStyle *base() const { return m_base; }
    void setBase(design_system::PlayerTvChannelItemQmlStyle *base);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    QColor plateColor() const { return m_plateColor; }
    void setPlateColor(const QColor &color);

Q_SIGNALS:
    void baseChanged();
    void colorChanged();
    void plateColorChanged();

private:
    void derive();

    QPointer<design_system::PlayerTvChannelItemQmlStyle> m_base;
    QColor m_color;
    QColor m_plateColor;
};

} // namespace gallery

#endif // GALLERY_SCREENS_FOCUSEDCHANNELSTYLE_H
