// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_PLAYEREPISODESITEMSTYLE_H
#define DESIGN_SYSTEM_PLAYEREPISODESITEMSTYLE_H

#include <design_system/textstyle.h>

#include <QtCore/qobject.h>
#include <QtCore/qsize.h>

namespace design_system {

/*! The look of EpisodesViewDelegate, an episode in a series' list. Lengths are pixels; 0 when new. */
struct STBDESIGN_EXPORT PlayerEpisodesItemStyle
{
    Q_GADGET
    Q_PROPERTY(QRect tileRect MEMBER tileRect)
    Q_PROPERTY(QColor overlayColor MEMBER overlayColor)
    Q_PROPERTY(int contentLeftMargin MEMBER contentLeftMargin)
    Q_PROPERTY(int contentRightMargin MEMBER contentRightMargin)
    Q_PROPERTY(int contentBottomMargin MEMBER contentBottomMargin)
    Q_PROPERTY(QColor playableOverlayColor MEMBER playableOverlayColor)
    Q_PROPERTY(int statusSpacing MEMBER statusSpacing)
    Q_PROPERTY(design_system::TextStyle statusTextStyle MEMBER statusTextStyle)
    Q_PROPERTY(design_system::TextStyle dateUpperTextStyle MEMBER dateUpperTextStyle)
    Q_PROPERTY(design_system::TextStyle dateLowerTextStyle MEMBER dateLowerTextStyle)
    Q_PROPERTY(QRect textAreaRect MEMBER textAreaRect)
    Q_PROPERTY(int textLeftSpacing MEMBER textLeftSpacing)
    Q_PROPERTY(int titleSubtitleSpacing MEMBER titleSubtitleSpacing)
    Q_PROPERTY(design_system::TextStyle titleTextStyle MEMBER titleTextStyle)
    Q_PROPERTY(design_system::TextStyle subtitleTextStyle MEMBER subtitleTextStyle)
    Q_PROPERTY(QColor comingSoonTextColor MEMBER comingSoonTextColor)
    Q_PROPERTY(QSize playIconSize MEMBER playIconSize)
    Q_PROPERTY(QRect progressBarRect MEMBER progressBarRect)
    Q_PROPERTY(QColor progressRemainingColor MEMBER progressRemainingColor)
    Q_PROPERTY(QColor progressViewedColor MEMBER progressViewedColor)
    QML_ANONYMOUS
public:
    QRect tileRect; //!< picture; its width also bounds the badge's text
    QColor overlayColor; //!< over the picture of viewed and coming episodes
    int contentLeftMargin = 0; //!< inside the tile, to bar and date
    int contentRightMargin = 0; //!< inside the tile, to bar and badge
    int contentBottomMargin = 0; //!< inside the tile, below bar, badge and date
    QColor playableOverlayColor; //!< over the picture of playable episodes
    int statusSpacing = 0; //!< between status text and progress bar
    TextStyle statusTextStyle; //!< its background fills the badge, its paddings pad it
    TextStyle dateUpperTextStyle; //!< first line of a coming episode's date
    TextStyle dateLowerTextStyle; //!< second line of a coming episode's date
    QRect textAreaRect; //!< its width bounds title and subtitle
    int textLeftSpacing = 0; //!< between the tile and the texts
    int titleSubtitleSpacing = 0; //!< vertical gap between title and subtitle
    TextStyle titleTextStyle; //!< the first line beside the tile
    TextStyle subtitleTextStyle; //!< the line below the title
    QColor comingSoonTextColor; //!< title and subtitle of a coming episode
    QSize playIconSize; //!< of the icon in the middle of the tile
    QRect progressBarRect; //!< its height is the bar's
    QColor progressRemainingColor; //!< of the bar: what is not viewed yet
    QColor progressViewedColor; //!< of the bar: what has been viewed

    bool operator==(const PlayerEpisodesItemStyle &) const = default;
};

/*!
    Holds a PlayerEpisodesItemStyle for a control. A control acts on another object in its style, not on
    styleChanged().
*/
class STBDESIGN_EXPORT PlayerEpisodesItemQmlStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(design_system::PlayerEpisodesItemStyle style READ style WRITE setStyle NOTIFY styleChanged)
    QML_ELEMENT
public:
    explicit PlayerEpisodesItemQmlStyle(QObject *parent = nullptr);

    PlayerEpisodesItemStyle style() const;
    void setStyle(const PlayerEpisodesItemStyle &style);

Q_SIGNALS:
    void styleChanged();

private:
    PlayerEpisodesItemStyle m_style;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_PLAYEREPISODESITEMSTYLE_H
