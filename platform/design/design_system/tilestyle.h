// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_TILESTYLE_H
#define DESIGN_SYSTEM_TILESTYLE_H

#include <design_system/textstyle.h>

#include <QtCore/qmargins.h>
#include <QtCore/qobject.h>
#include <QtCore/qpoint.h>
#include <QtGui/qpen.h>

namespace design_system {

/*! The look of ExpandableTile; captions are of ContentTile, ratings, logos and bars of VodTile. Pixels. */
struct STBDESIGN_EXPORT TileStyle
{
    Q_GADGET
    Q_PROPERTY(QRect tileRect MEMBER tileRect)
    Q_PROPERTY(QColor backgroundColor MEMBER backgroundColor)
    Q_PROPERTY(QColor overlayColor MEMBER overlayColor)
    Q_PROPERTY(QRect focusedRect MEMBER focusedRect)
    Q_PROPERTY(QPen borderPen MEMBER borderPen)
    Q_PROPERTY(QColor favouriteIconColor MEMBER favouriteIconColor)
    Q_PROPERTY(int captionSpacing MEMBER captionSpacing)
    Q_PROPERTY(design_system::TextStyle titleStyle MEMBER titleStyle)
    Q_PROPERTY(QColor titleColor MEMBER titleColor)
    Q_PROPERTY(design_system::TextStyle subtitleStyle MEMBER subtitleStyle)
    Q_PROPERTY(QColor subtitleColor MEMBER subtitleColor)
    Q_PROPERTY(design_system::TextStyle statusStyle MEMBER statusStyle)
    Q_PROPERTY(QColor statusColor MEMBER statusColor)
    Q_PROPERTY(design_system::TextStyle ratingStyle MEMBER ratingStyle)
    Q_PROPERTY(QColor ratingColor MEMBER ratingColor)
    Q_PROPERTY(QColor ratingBadgeColor MEMBER ratingBadgeColor)
    Q_PROPERTY(QPoint ratingBadgeOffset MEMBER ratingBadgeOffset)
    Q_PROPERTY(QMargins ratingBadgePadding MEMBER ratingBadgePadding)
    Q_PROPERTY(int rightholderRightMargin MEMBER rightholderRightMargin)
    Q_PROPERTY(int rightholderBottomMargin MEMBER rightholderBottomMargin)
    Q_PROPERTY(int rightholderLift MEMBER rightholderLift)
    Q_PROPERTY(QRect progressBarRect MEMBER progressBarRect)
    Q_PROPERTY(QColor progressValueColor MEMBER progressValueColor)
    Q_PROPERTY(QColor progressTrackColor MEMBER progressTrackColor)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor STORED false)
    Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth STORED false)
    Q_PROPERTY(int ratingBadgeLeftPadding READ ratingBadgeLeftPadding WRITE setRatingBadgeLeftPadding
                       STORED false)
    Q_PROPERTY(int ratingBadgeTopPadding READ ratingBadgeTopPadding WRITE setRatingBadgeTopPadding STORED false)
    Q_PROPERTY(int ratingBadgeRightPadding READ ratingBadgeRightPadding WRITE setRatingBadgeRightPadding
                       STORED false)
    Q_PROPERTY(int ratingBadgeBottomPadding READ ratingBadgeBottomPadding WRITE setRatingBadgeBottomPadding
                       STORED false)
    QML_ANONYMOUS
public:
    QRect tileRect; //!< size of the resting tile, picture area
    QColor backgroundColor; //!< shown while there is no picture
    QColor overlayColor; //!< fill of the frame over the picture; invalid: none
    QRect focusedRect; //!< picture area of the focused tile, around tileRect
    //! Frame; shown when its colour is valid and its width above 0.
    QPen borderPen = QPen(QBrush(QColor()), 0);
    QColor favouriteIconColor; //!< tint of the favourite mark
    int captionSpacing = 0; //!< below the picture, beside the mark and between the lines
    TextStyle titleStyle; //!< the first line below the picture
    QColor titleColor; //!< of the title
    TextStyle subtitleStyle; //!< the line below the title
    QColor subtitleColor; //!< of the subtitle
    TextStyle statusStyle; //!< the line below the subtitle
    QColor statusColor; //!< of the status
    TextStyle ratingStyle; //!< text of the rating badge
    QColor ratingColor; //!< text of the rating badge
    QColor ratingBadgeColor; //!< fill of the rating badge
    QPoint ratingBadgeOffset; //!< from the picture's top left corner
    QMargins ratingBadgePadding; //!< between the badge's edge and its text
    int rightholderRightMargin = 0; //!< from the picture's right edge to the logo
    int rightholderBottomMargin = 0; //!< from the picture's bottom edge to the logo
    int rightholderLift = 0; //!< how much higher the logo stands while the progress bar shows
    QRect progressBarRect; //!< left: inset from the picture's left, right and bottom; height: the bar's
    QColor progressValueColor; //!< watched part
    QColor progressTrackColor; //!< rest

    // QML cannot look into a QPen or a QMargins: these are views of the two fields.
    QColor borderColor() const { return borderPen.color(); }
    void setBorderColor(const QColor &color) { borderPen.setColor(color); }
    int borderWidth() const { return borderPen.width(); }
    void setBorderWidth(int width) { borderPen.setWidth(width); }
    int ratingBadgeLeftPadding() const { return ratingBadgePadding.left(); }
    void setRatingBadgeLeftPadding(int padding) { ratingBadgePadding.setLeft(padding); }
    int ratingBadgeTopPadding() const { return ratingBadgePadding.top(); }
    void setRatingBadgeTopPadding(int padding) { ratingBadgePadding.setTop(padding); }
    int ratingBadgeRightPadding() const { return ratingBadgePadding.right(); }
    void setRatingBadgeRightPadding(int padding) { ratingBadgePadding.setRight(padding); }
    int ratingBadgeBottomPadding() const { return ratingBadgePadding.bottom(); }
    void setRatingBadgeBottomPadding(int padding) { ratingBadgePadding.setBottom(padding); }

    bool operator==(const TileStyle &) const = default;
};

/*! Holds a TileStyle for a control. A control acts on another object in its style, not on styleChanged(). */
class STBDESIGN_EXPORT TileQmlStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(design_system::TileStyle style READ style WRITE setStyle NOTIFY styleChanged)
    QML_ELEMENT
public:
    explicit TileQmlStyle(QObject *parent = nullptr);

    virtual TileStyle style() const;
    void setStyle(const TileStyle &style);

Q_SIGNALS:
    void styleChanged();

private:
    TileStyle m_style;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_TILESTYLE_H
