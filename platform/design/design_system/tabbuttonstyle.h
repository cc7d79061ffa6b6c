// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_TABBUTTONSTYLE_H
#define DESIGN_SYSTEM_TABBUTTONSTYLE_H

#include <design_system/designglobal.h>

#include <QtCore/qobject.h>
#include <QtCore/qsize.h>
#include <QtGui/qcolor.h>
#include <QtGui/qfont.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*! The look of TabButton. Lengths are pixels; a new object's are 0 and its colours invalid. */
class STBDESIGN_EXPORT TabButtonQmlStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QColor backgroundNormalColor MEMBER m_backgroundNormalColor NOTIFY backgroundNormalColorChanged)
    Q_PROPERTY(QColor backgroundFocusedColor MEMBER m_backgroundFocusedColor NOTIFY
                       backgroundFocusedColorChanged)
    Q_PROPERTY(QColor backgroundSelectedColor MEMBER m_backgroundSelectedColor NOTIFY
                       backgroundSelectedColorChanged)
    Q_PROPERTY(QColor textNormalColor MEMBER m_textNormalColor NOTIFY textNormalColorChanged)
    Q_PROPERTY(QColor textFocusedColor MEMBER m_textFocusedColor NOTIFY textFocusedColorChanged)
    Q_PROPERTY(QColor textSelectedColor MEMBER m_textSelectedColor NOTIFY textSelectedColorChanged)
    Q_PROPERTY(int marginTop MEMBER m_marginTop NOTIFY marginTopChanged)
    Q_PROPERTY(int marginBottom MEMBER m_marginBottom NOTIFY marginBottomChanged)
    Q_PROPERTY(int marginLeft MEMBER m_marginLeft NOTIFY marginLeftChanged)
    Q_PROPERTY(int marginRight MEMBER m_marginRight NOTIFY marginRightChanged)
    Q_PROPERTY(int roundingRadius MEMBER m_roundingRadius NOTIFY roundingRadiusChanged)
    Q_PROPERTY(QSize minSize MEMBER m_minSize NOTIFY minSizeChanged)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY fontChanged)
    QML_ELEMENT
public:
    using QObject::QObject;

Q_SIGNALS:
    void backgroundNormalColorChanged();
    void backgroundFocusedColorChanged();
    void backgroundSelectedColorChanged();
    void textNormalColorChanged();
    void textFocusedColorChanged();
    void textSelectedColorChanged();
    void marginTopChanged();
    void marginBottomChanged();
    void marginLeftChanged();
    void marginRightChanged();
    void roundingRadiusChanged();
    void minSizeChanged();
    void fontChanged();

private:
    QColor m_backgroundNormalColor; //!< fill of a tab
    QColor m_backgroundFocusedColor; //!< fill of the tab that has the focus
    QColor m_backgroundSelectedColor; //!< fill of the selected tab without the focus
    QColor m_textNormalColor; //!< text and icon of a tab
    QColor m_textFocusedColor; //!< text and icon of the tab that has the focus
    QColor m_textSelectedColor; //!< text and icon of the selected tab without the focus
    int m_marginTop = 0; //!< this and the next three: between the edge and the icon and text
    int m_marginBottom = 0;
    int m_marginLeft = 0;
    int m_marginRight = 0;
    int m_roundingRadius = 0; //!< of the background's corners where rounding is on
    QSize m_minSize; //!< the smallest tab; one grows with its text
    QFont m_font; //!< of the text
};

} // namespace design_system

#endif // DESIGN_SYSTEM_TABBUTTONSTYLE_H
