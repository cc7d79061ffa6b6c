// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_PLAYERTVCHANNELITEMSTYLE_H
#define DESIGN_SYSTEM_PLAYERTVCHANNELITEMSTYLE_H

#include <design_system/textstyle.h>

#include <QtCore/qobject.h>

namespace design_system {

/*! The look of TvChannelViewDelegate, a row of the list of channels. Lengths are pixels; 0 when new. */
struct STBDESIGN_EXPORT PlayerTvChannelItemStyle
{
    Q_GADGET
    Q_PROPERTY(int leftMargin MEMBER leftMargin)
    Q_PROPERTY(int topMargin MEMBER topMargin)
    Q_PROPERTY(int rightMargin MEMBER rightMargin)
    Q_PROPERTY(int bottomMargin MEMBER bottomMargin)
    Q_PROPERTY(int logoTextSpacing MEMBER logoTextSpacing)
    Q_PROPERTY(QRect logoRect MEMBER logoRect)
    Q_PROPERTY(design_system::TextStyle channelNumberTextStyle MEMBER channelNumberTextStyle)
    Q_PROPERTY(int textTopOffset MEMBER textTopOffset)
    Q_PROPERTY(int programNameSpacing MEMBER programNameSpacing)
    Q_PROPERTY(int nameQualitySpacing MEMBER nameQualitySpacing)
    Q_PROPERTY(design_system::TextStyle qualityTextStyle MEMBER qualityTextStyle)
    Q_PROPERTY(design_system::TextStyle channelNameTextStyle MEMBER channelNameTextStyle)
    Q_PROPERTY(design_system::TextStyle programNameTextStyle MEMBER programNameTextStyle)
    Q_PROPERTY(design_system::TextStyle playingTextStyle MEMBER playingTextStyle)
    Q_PROPERTY(int playingIconSpacing MEMBER playingIconSpacing)
    Q_PROPERTY(QRect progressBarRect MEMBER progressBarRect)
    Q_PROPERTY(QColor progressRemainderColor MEMBER progressRemainderColor)
    Q_PROPERTY(QColor progressPlayedColor MEMBER progressPlayedColor)
    QML_ANONYMOUS
public:
    int leftMargin = 0; //!< left of the logo's column
    int topMargin = 0; //!< above the "playing" mark
    int rightMargin = 0; //!< right of texts, mark and bar
    int bottomMargin = 0; //!< below the progress bar
    int logoTextSpacing = 0; //!< between logo and texts
    QRect logoRect; //!< where the logo is drawn
    //! Its rectangle's position is relative to the logo; background and paddings make the box.
    TextStyle channelNumberTextStyle;
    int textTopOffset = 0; //!< y of the quality badge
    int programNameSpacing = 0; //!< above the programme's name
    int nameQualitySpacing = 0; //!< between quality badge and channel name
    TextStyle qualityTextStyle; //!< background and paddings make the badge
    TextStyle channelNameTextStyle; //!< the name; its colour counts where the control is given none
    TextStyle programNameTextStyle; //!< what is on, below the name
    TextStyle playingTextStyle; //!< its colour also tints the icon
    int playingIconSpacing = 0; //!< between the mark's icon and text
    QRect progressBarRect; //!< left: the bar's left margin; height: the bar's
    QColor progressRemainderColor; //!< of the bar: what is still to come
    QColor progressPlayedColor; //!< of the bar: what has been on air

    bool operator==(const PlayerTvChannelItemStyle &) const = default;
};

/*!
    Holds a PlayerTvChannelItemStyle for a control. A control acts on another object in its style, not on
    styleChanged().
*/
class STBDESIGN_EXPORT PlayerTvChannelItemQmlStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(design_system::PlayerTvChannelItemStyle style READ style WRITE setStyle NOTIFY styleChanged)
    QML_ELEMENT
public:
    explicit PlayerTvChannelItemQmlStyle(QObject *parent = nullptr);

    PlayerTvChannelItemStyle style() const;
    void setStyle(const PlayerTvChannelItemStyle &style);

Q_SIGNALS:
    void styleChanged();

private:
    PlayerTvChannelItemStyle m_style;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_PLAYERTVCHANNELITEMSTYLE_H
