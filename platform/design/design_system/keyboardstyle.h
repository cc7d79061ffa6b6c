// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_KEYBOARDSTYLE_H
#define DESIGN_SYSTEM_KEYBOARDSTYLE_H

#include <design_system/designglobal.h>

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*! The measures of Keyboard in pixels, 0 when new. Its colours and fonts are the theme's own. */
class STBDESIGN_EXPORT KeyboardQmlStyle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int keyRoundingRadius MEMBER m_keyRoundingRadius NOTIFY keyRoundingRadiusChanged)
    Q_PROPERTY(int keySpacing MEMBER m_keySpacing NOTIFY keySpacingChanged)
    Q_PROPERTY(int keyHeight MEMBER m_keyHeight NOTIFY keyHeightChanged)
    Q_PROPERTY(int keyWidth MEMBER m_keyWidth NOTIFY keyWidthChanged)
    QML_ELEMENT
public:
    using QObject::QObject;

Q_SIGNALS:
    void keyRoundingRadiusChanged();
    void keySpacingChanged();
    void keyHeightChanged();
    void keyWidthChanged();

private:
    int m_keyRoundingRadius = 0; //!< of the keys' corners where rounding is on
    int m_keySpacing = 0; //!< between rows and between columns
    int m_keyHeight = 0; //!< of each key
    int m_keyWidth = 0; //!< of a key of one column; a wider one also takes the spacing between its columns
};

} // namespace design_system

#endif // DESIGN_SYSTEM_KEYBOARDSTYLE_H
