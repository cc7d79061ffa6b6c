// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_LINEEDITSTYLE_H
#define DESIGN_SYSTEM_LINEEDITSTYLE_H

#include <design_system/statescolors.h>

#include <QtCore/qlist.h>
#include <QtCore/qobject.h>
#include <QtGui/qcolor.h>
#include <QtGui/qfont.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*! The look of LineEdit. Lengths are pixels; a new object's are 0 and its colours invalid. */
class STBDESIGN_EXPORT LineEditQmlStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int roundingRadius MEMBER m_roundingRadius NOTIFY roundingRadiusChanged)
    Q_PROPERTY(int errorFrameWidth MEMBER m_errorFrameWidth NOTIFY errorFrameWidthChanged)
    Q_PROPERTY(QColor errorFrameColor MEMBER m_errorFrameColor NOTIFY errorFrameColorChanged)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY fontChanged)
    Q_PROPERTY(int marginLeft MEMBER m_marginLeft NOTIFY marginLeftChanged)
    Q_PROPERTY(int marginTop MEMBER m_marginTop NOTIFY marginTopChanged)
    Q_PROPERTY(int marginRight MEMBER m_marginRight NOTIFY marginRightChanged)
    Q_PROPERTY(int marginBottom MEMBER m_marginBottom NOTIFY marginBottomChanged)
    Q_PROPERTY(int cursorWidth MEMBER m_cursorWidth NOTIFY cursorWidthChanged)
    Q_PROPERTY(design_system::StatesColors background MEMBER m_background NOTIFY backgroundChanged)
    Q_PROPERTY(design_system::StatesColors text MEMBER m_text NOTIFY textChanged)
    Q_PROPERTY(design_system::StatesColors placeholder MEMBER m_placeholder NOTIFY placeholderChanged)
    QML_ELEMENT
public:
    using QObject::QObject;

    // By state: normal, checked, disabled, focused.
    Q_INVOKABLE design_system::ColorList backgroundColors() const { return m_background.toList(); }
    Q_INVOKABLE design_system::ColorList textColors() const { return m_text.toList(); }
    Q_INVOKABLE design_system::ColorList placeholderTextColors() const { return m_placeholder.toList(); }

Q_SIGNALS:
    void roundingRadiusChanged();
    void errorFrameWidthChanged();
    void errorFrameColorChanged();
    void fontChanged();
    void marginLeftChanged();
    void marginTopChanged();
    void marginRightChanged();
    void marginBottomChanged();
    void cursorWidthChanged();
    void backgroundChanged();
    void textChanged();
    void placeholderChanged();

private:
    int m_roundingRadius = 0; //!< of the background's corners where rounding is on
    int m_errorFrameWidth = 0; //!< of the frame while there is an error
    QColor m_errorFrameColor; //!< of the frame while there is an error
    QFont m_font; //!< of the text and of the placeholder
    int m_marginLeft = 0; //!< this and the next three: between the edge and the text
    int m_marginTop = 0;
    int m_marginRight = 0;
    int m_marginBottom = 0;
    int m_cursorWidth = 0; //!< of the cursor, which has the colour of the text
    StatesColors m_background; //!< fill; also the text of a selection
    StatesColors m_text; //!< text, cursor and fill of a selection
    StatesColors m_placeholder; //!< what stands there while there is no text
};

} // namespace design_system

#endif // DESIGN_SYSTEM_LINEEDITSTYLE_H
