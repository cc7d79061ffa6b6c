// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_QMLDESIGNSYSTEM_H
#define DESIGN_SYSTEM_QMLDESIGNSYSTEM_H

#include <design_system/playerepgdelegatestyle.h>

namespace design_system {

class STBDESIGN_EXPORT QmlDesignSystem : public QObject
{
    Q_OBJECT
    Q_PROPERTY(design_system::PlayerEpgDelegateQmlStyle *playerEpgDelegateStyle READ playerEpgDelegateStyle
                       NOTIFY playerEpgDelegateStyleChanged)
    QML_ELEMENT
    QML_SINGLETON
public:
    explicit QmlDesignSystem(QObject *parent = nullptr);

    PlayerEpgDelegateQmlStyle *playerEpgDelegateStyle() const;

Q_SIGNALS:
    void playerEpgDelegateStyleChanged();

private:
    PlayerEpgDelegateQmlStyle *m_playerEpgDelegateStyle;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_QMLDESIGNSYSTEM_H
