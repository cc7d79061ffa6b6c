// SPDX-License-Identifier: MIT
#ifndef DESIGN_SYSTEM_ANIMATION_H
#define DESIGN_SYSTEM_ANIMATION_H

#include <design_system/animationsettings.h>

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

namespace design_system {

/*! How long animations take, in milliseconds. */
class STBDESIGN_EXPORT Animation : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int duration MEMBER m_duration NOTIFY durationChanged)
    Q_PROPERTY(int fadeDuration MEMBER m_fadeDuration NOTIFY fadeDurationChanged)
    Q_CLASSINFO("unscaled", "duration,fadeDuration")
    QML_ANONYMOUS
public:
    using QObject::QObject;

    AnimationSettings settings() const { return { m_duration, m_fadeDuration }; } //!< both at once

Q_SIGNALS:
    void durationChanged();
    void fadeDurationChanged();

private:
    int m_duration = 0; //!< movements and changes of size
    int m_fadeDuration = 0; //!< pictures fading in
};

} // namespace design_system

#endif // DESIGN_SYSTEM_ANIMATION_H
