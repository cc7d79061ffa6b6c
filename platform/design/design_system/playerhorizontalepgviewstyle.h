// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_PLAYERHORIZONTALEPGVIEWSTYLE_H
#define DESIGN_SYSTEM_PLAYERHORIZONTALEPGVIEWSTYLE_H

#include <design_system/textstyle.h>

#include <QtCore/qobject.h>

namespace design_system {

/*! The look of HorizontalEpgViewDelegate, a programme in the player's list. Pixels; 0 when new. */
struct STBDESIGN_EXPORT PlayerHorizontalEpgViewStyle
{
    Q_GADGET
    Q_PROPERTY(QRect delegateRect MEMBER delegateRect)
    Q_PROPERTY(QColor backgroundColor MEMBER backgroundColor)
    Q_PROPERTY(int leftPadding MEMBER leftPadding)
    Q_PROPERTY(int rightPadding MEMBER rightPadding)
    Q_PROPERTY(int imageTextSpacing MEMBER imageTextSpacing)
    Q_PROPERTY(QRect imageRect MEMBER imageRect)
    Q_PROPERTY(design_system::TextStyle dateStyle MEMBER dateStyle)
    Q_PROPERTY(QColor dateColor MEMBER dateColor)
    Q_PROPERTY(design_system::TextStyle titleStyle MEMBER titleStyle)
    Q_PROPERTY(QColor titleColor MEMBER titleColor)
    Q_PROPERTY(int dateTitleGap MEMBER dateTitleGap)
    Q_PROPERTY(design_system::TextStyle descriptionStyle MEMBER descriptionStyle)
    Q_PROPERTY(QColor descriptionColor MEMBER descriptionColor)
    Q_PROPERTY(int titleDescriptionGap MEMBER titleDescriptionGap)
    QML_ANONYMOUS
public:
    QRect delegateRect; //!< its width bounds picture and texts
    QColor backgroundColor; //!< behind picture and texts
    int leftPadding = 0; //!< left of the picture
    int rightPadding = 0; //!< right of the texts
    int imageTextSpacing = 0; //!< between picture and texts
    QRect imageRect; //!< width and height of the picture
    TextStyle dateStyle; //!< the first line; its colour is the next field's
    QColor dateColor; //!< of the date
    TextStyle titleStyle; //!< below the date; its colour is the next field's
    QColor titleColor; //!< of the title
    int dateTitleGap = 0; //!< below the date
    TextStyle descriptionStyle; //!< below the title; its colour is the next field's
    QColor descriptionColor; //!< of the description
    int titleDescriptionGap = 0; //!< below the title

    bool operator==(const PlayerHorizontalEpgViewStyle &) const = default;
};

/*!
    Holds a PlayerHorizontalEpgViewStyle for a control. A control acts on another object in its style, not on
    styleChanged().
*/
class STBDESIGN_EXPORT PlayerHorizontalEpgViewQmlStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(design_system::PlayerHorizontalEpgViewStyle style READ style WRITE setStyle NOTIFY styleChanged)
    QML_ELEMENT
public:
    explicit PlayerHorizontalEpgViewQmlStyle(QObject *parent = nullptr);

    PlayerHorizontalEpgViewStyle style() const;
    void setStyle(const PlayerHorizontalEpgViewStyle &style);

Q_SIGNALS:
    void styleChanged();

private:
    PlayerHorizontalEpgViewStyle m_style;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_PLAYERHORIZONTALEPGVIEWSTYLE_H
