// SPDX-License-Identifier: MIT
#ifndef GALLERY_SCREENS_FITTEDSTYLES_H
#define GALLERY_SCREENS_FITTEDSTYLES_H

#include <design_system/playerepisodesitemstyle.h>
#include <design_system/playerhorizontalepgviewstyle.h>

#include <QtCore/qpointer.h>

namespace gallery {

/*!
    The style of an episode's row: the theme's, with as many lines of text as fit beside the picture. Where the user has
    chosen larger texts, those are fewer than the theme's.
*/
class FittedEpisodeStyle : public design_system::PlayerEpisodesItemQmlStyle
{
    Q_OBJECT
    /*! The style that everything is taken from. Null (the default): the default values. */
    Q_PROPERTY(design_system::PlayerEpisodesItemQmlStyle *base READ base WRITE setBase NOTIFY baseChanged)
    /*! What the font of the texts on the picture is multiplied with, 1 (the default) or less. */
    Q_PROPERTY(double statusScale READ statusScale WRITE setStatusScale NOTIFY statusScaleChanged)
    QML_ELEMENT
public:
    explicit FittedEpisodeStyle(QObject *parent = nullptr);

    design_system::PlayerEpisodesItemQmlStyle *base() const { return m_base; }
    void setBase(design_system::PlayerEpisodesItemQmlStyle *base);
    double statusScale() const { return m_statusScale; }
    void setStatusScale(double scale);

Q_SIGNALS:
    void baseChanged();
    void statusScaleChanged();

private:
    void derive();

    QPointer<design_system::PlayerEpisodesItemQmlStyle> m_base;
    double m_statusScale = 1;
};

/*!
    The style of a programme under the player's picture: the theme's, made higher where larger texts need it. Of the
    description there are no more lines than before then.
*/
class FittedProgrammeStyle : public design_system::PlayerHorizontalEpgViewQmlStyle
{
    Q_OBJECT
    /*! The style that everything is taken from. Null (the default): the default values. */
    Q_PROPERTY(design_system::PlayerHorizontalEpgViewQmlStyle *base READ base WRITE setBase NOTIFY baseChanged)
    /*! The most pixels that a programme may be high; 0 (the default): as high as the base's. */
    Q_PROPERTY(int room READ room WRITE setRoom NOTIFY roomChanged)
    QML_ELEMENT
public:
    explicit FittedProgrammeStyle(QObject *parent = nullptr);

    design_system::PlayerHorizontalEpgViewQmlStyle *base() const { return m_base; }
    void setBase(design_system::PlayerHorizontalEpgViewQmlStyle *base);
    int room() const { return m_room; }
    void setRoom(int room);

Q_SIGNALS:
    void baseChanged();
    void roomChanged();

private:
    void derive();

    QPointer<design_system::PlayerHorizontalEpgViewQmlStyle> m_base;
    int m_room = 0;
};

} // namespace gallery

#endif // GALLERY_SCREENS_FITTEDSTYLES_H
