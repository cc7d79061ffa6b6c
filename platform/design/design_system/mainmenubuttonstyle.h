// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_MAINMENUBUTTONSTYLE_H
#define DESIGN_SYSTEM_MAINMENUBUTTONSTYLE_H

#include <design_system/stylegroups.h>

#include <QtCore/qobject.h>
#include <QtCore/qrect.h>
#include <QtGui/qcolor.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*! The look of MainMenuButton. Lengths are pixels; a new object's are 0 and its colours invalid. */
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
    int m_backgroundCheckedHeight = 0; //!< of the button, and of its background unless it is focused
    int m_backgroundFocusedHeight = 0; //!< of the focused background, which may be higher than the button
    QColor m_normalBackgroundColor; //!< fill of an entry
    QColor m_checkedBackgroundColor; //!< fill of the present entry
    QColor m_focusedBackgroundColor; //!< fill of the entry that has the focus
    FontGroup m_text; //!< font of the text
    QColor m_normalTextColor; //!< text and left icon of an entry
    QColor m_checkedTextColor; //!< text and left icon of the present entry
    QColor m_focusedTextColor; //!< text and left icon of the entry that has the focus
    QRect m_decorationGeometry; //!< width and height are those of both icons
    int m_leftPadding = 0; //!< this and the next three: between the edge and the icons and text
    int m_rightPadding = 0;
    int m_topPadding = 0;
    int m_bottomPadding = 0;
    int m_focusedRoundingRadius = 0; //!< with the focus; whether or not rounding is switched on
    int m_checkedRoundingRadius = 0; //!< without it; whether or not rounding is switched on
};

} // namespace design_system

#endif // DESIGN_SYSTEM_MAINMENUBUTTONSTYLE_H
