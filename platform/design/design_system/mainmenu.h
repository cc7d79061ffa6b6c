// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_MAINMENU_H
#define DESIGN_SYSTEM_MAINMENU_H

#include <design_system/designglobal.h>

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*! The measures of the main menu, in pixels, for MainMenuEffect. */
class STBDESIGN_EXPORT MainMenu : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int shadowWidth MEMBER m_shadowWidth NOTIFY shadowWidthChanged)
    QML_ANONYMOUS
public:
    using QObject::QObject;

Q_SIGNALS:
    void shadowWidthChanged();

private:
    int m_shadowWidth = 0; //!< of the fades at both ends
};

} // namespace design_system

#endif // DESIGN_SYSTEM_MAINMENU_H
