// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_ANIMATIONSETTINGS_H
#define DESIGN_SYSTEM_ANIMATIONSETTINGS_H

#include <design_system/designglobal.h>

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*! How long the animations of the controls take, in milliseconds. */
struct STBDESIGN_EXPORT AnimationSettings
{
    Q_GADGET
    Q_PROPERTY(int duration MEMBER duration)
    Q_PROPERTY(int fadeDuration MEMBER fadeDuration)
    Q_CLASSINFO("unscaled", "duration,fadeDuration")
    QML_ANONYMOUS
public:
    int duration = 0; //!< movements and changes of size
    int fadeDuration = 0; //!< pictures fading in

    bool operator==(const AnimationSettings &) const = default;
};

} // namespace design_system

#endif // DESIGN_SYSTEM_ANIMATIONSETTINGS_H
