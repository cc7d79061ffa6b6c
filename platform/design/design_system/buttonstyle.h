// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_BUTTONSTYLE_H
#define DESIGN_SYSTEM_BUTTONSTYLE_H

#include <design_system/textstyle.h>

#include <QtCore/qobject.h>

namespace design_system {

/*! The look of Button and ButtonWithCheckIndicator; the indicator is of the latter. Pixels; 0 when new. */
struct STBDESIGN_EXPORT QmlButtonStyle
{
    Q_GADGET
    Q_PROPERTY(QRect size MEMBER size)
    Q_PROPERTY(int leftPadding MEMBER leftPadding)
    Q_PROPERTY(int iconTopOffset MEMBER iconTopOffset)
    Q_PROPERTY(int rightPadding MEMBER rightPadding)
    Q_PROPERTY(int iconSpacing MEMBER iconSpacing)
    Q_PROPERTY(design_system::StatesColors backgroundColors MEMBER backgroundColors)
    Q_PROPERTY(design_system::StatesColors leftIconColors MEMBER leftIconColors)
    Q_PROPERTY(design_system::StatesColors rightIconColors MEMBER rightIconColors)
    Q_PROPERTY(int textMarginLeft MEMBER textMarginLeft)
    Q_PROPERTY(int textMarginRight MEMBER textMarginRight)
    Q_PROPERTY(int titleSubtitleSpacing MEMBER titleSubtitleSpacing)
    Q_PROPERTY(design_system::TextStyle titleStyle MEMBER titleStyle)
    Q_PROPERTY(design_system::TextStyle subtitleStyle MEMBER subtitleStyle)
    Q_PROPERTY(QRect checkIndicatorSize MEMBER checkIndicatorSize)
    Q_PROPERTY(QColor checkIndicatorColor MEMBER checkIndicatorColor)
    Q_PROPERTY(int checkIndicatorLeft MEMBER checkIndicatorLeft)
    Q_PROPERTY(int checkIndicatorBottomMargin MEMBER checkIndicatorBottomMargin)
    QML_ANONYMOUS
public:
    QRect size; //!< width and height of a button of fixed width
    int leftPadding = 0; //!< left of the content of a button that grows with its text
    int iconTopOffset = 0; //!< top of the right icon in a button of fixed width
    int rightPadding = 0; //!< right of the content of a button that grows with its text
    int iconSpacing = 0; //!< between an icon and the text column
    StatesColors backgroundColors; //!< fill of the button
    StatesColors leftIconColors; //!< tint of the left icon
    StatesColors rightIconColors; //!< tint of the right icon
    int textMarginLeft = 0; //!< inside the text column
    int textMarginRight = 0; //!< inside the text column
    int titleSubtitleSpacing = 0; //!< vertical gap between the two lines
    TextStyle titleStyle; //!< the main line; of its colours those by state (colors)
    TextStyle subtitleStyle; //!< the line below it; of its colours those by state (colors)
    QRect checkIndicatorSize; //!< width and height of the check indicator
    QColor checkIndicatorColor; //!< fill of the check indicator
    int checkIndicatorLeft = 0; //!< x of the check indicator in the button
    int checkIndicatorBottomMargin = 0; //!< from the button's bottom edge to the indicator's

    bool operator==(const QmlButtonStyle &) const = default;
};

/*!
    Holds a QmlButtonStyle for a control. A control acts on another object in its style, not on
    styleChanged().
*/
class STBDESIGN_EXPORT ButtonQmlStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(design_system::QmlButtonStyle style READ style WRITE setStyle NOTIFY styleChanged)
    QML_ELEMENT
public:
    explicit ButtonQmlStyle(QObject *parent = nullptr);

    QmlButtonStyle style() const;
    void setStyle(const QmlButtonStyle &style);

Q_SIGNALS:
    void styleChanged();

private:
    QmlButtonStyle m_style;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_BUTTONSTYLE_H
