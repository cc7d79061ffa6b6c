// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_MAINMENUBUTTONSTYLE_H
#define DESIGN_SYSTEM_MAINMENUBUTTONSTYLE_H

#include <design_system/stylegroups.h>

#include <QtCore/qobject.h>
#include <QtCore/qrect.h>
#include <QtGui/qcolor.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*! The look of a button of the main menu. Lengths are pixels. */
class STBDESIGN_EXPORT MainMenuButtonQmlStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int backgroundCheckedHeight MEMBER m_backgroundCheckedHeight NOTIFY
                       backgroundCheckedHeightChanged)
    Q_PROPERTY(int backgroundFocusedHeight MEMBER m_backgroundFocusedHeight NOTIFY
                       backgroundFocusedHeightChanged)
    Q_PROPERTY(QColor normalBackgroundColor MEMBER m_normalBackgroundColor NOTIFY normalBackgroundColorChanged)
    Q_PROPERTY(QColor checkedBackgroundColor MEMBER m_checkedBackgroundColor NOTIFY
                       checkedBackgroundColorChanged)
    Q_PROPERTY(QColor focusedBackgroundColor MEMBER m_focusedBackgroundColor NOTIFY
                       focusedBackgroundColorChanged)
    Q_PROPERTY(design_system::FontGroup *text READ text CONSTANT)
    Q_PROPERTY(QColor normalTextColor MEMBER m_normalTextColor NOTIFY normalTextColorChanged)
    Q_PROPERTY(QColor checkedTextColor MEMBER m_checkedTextColor NOTIFY checkedTextColorChanged)
    Q_PROPERTY(QColor focusedTextColor MEMBER m_focusedTextColor NOTIFY focusedTextColorChanged)
    Q_PROPERTY(QRect decorationGeometry MEMBER m_decorationGeometry NOTIFY decorationGeometryChanged)
    Q_PROPERTY(int leftPadding MEMBER m_leftPadding NOTIFY leftPaddingChanged)
    Q_PROPERTY(int rightPadding MEMBER m_rightPadding NOTIFY rightPaddingChanged)
    Q_PROPERTY(int topPadding MEMBER m_topPadding NOTIFY topPaddingChanged)
    Q_PROPERTY(int bottomPadding MEMBER m_bottomPadding NOTIFY bottomPaddingChanged)
    Q_PROPERTY(int focusedRoundingRadius MEMBER m_focusedRoundingRadius NOTIFY focusedRoundingRadiusChanged)
    Q_PROPERTY(int checkedRoundingRadius MEMBER m_checkedRoundingRadius NOTIFY checkedRoundingRadiusChanged)
    QML_ELEMENT
public:
    using QObject::QObject;

    FontGroup *text() { return &m_text; }

Q_SIGNALS:
    void backgroundCheckedHeightChanged();
    void backgroundFocusedHeightChanged();
    void normalBackgroundColorChanged();
    void checkedBackgroundColorChanged();
    void focusedBackgroundColorChanged();
    void normalTextColorChanged();
    void checkedTextColorChanged();
    void focusedTextColorChanged();
    void decorationGeometryChanged();
    void leftPaddingChanged();
    void rightPaddingChanged();
    void topPaddingChanged();
    void bottomPaddingChanged();
    void focusedRoundingRadiusChanged();
    void checkedRoundingRadiusChanged();

private:
    int m_backgroundCheckedHeight = 0;
    int m_backgroundFocusedHeight = 0;
    QColor m_normalBackgroundColor;
    QColor m_checkedBackgroundColor;
    QColor m_focusedBackgroundColor;
    FontGroup m_text;
    QColor m_normalTextColor;
    QColor m_checkedTextColor;
    QColor m_focusedTextColor;
    QRect m_decorationGeometry; //!< width and height are those of the icons
    int m_leftPadding = 0;
    int m_rightPadding = 0;
    int m_topPadding = 0;
    int m_bottomPadding = 0;
    int m_focusedRoundingRadius = 0;
    int m_checkedRoundingRadius = 0;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_MAINMENUBUTTONSTYLE_H
