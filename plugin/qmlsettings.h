// SPDX-License-Identifier: MIT
#ifndef STBUI_QMLSETTINGS_H
#define STBUI_QMLSETTINGS_H

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace stbconfig {
class ConfigurationManager;
}

namespace qml {

/*!
    The QML singleton \c QmlSettings: whether rounded corners are wanted, and which kinds of animation are
    switched on.

    Six answers are read from the configuration store each time they are asked for; nothing is cached. The
    properties are constant: a binding reads one once and does not follow the store. A stored value is
    converted with QVariant::toBool(), so "true" and "1" are true, "false", "0" and "" are false, and what
    is no boolean at all is false.

    Rounding is off by default and lives in the group "UI"; every animation is on by default and lives in
    the group "Animations".
*/
class QmlSettings : public QObject
{
    Q_OBJECT
    /*! "UI" / "roundingEnabled", default false. */
    Q_PROPERTY(bool roundingEnabled READ roundingEnabled CONSTANT)
    /*! Always false: a change of colour is never animated. */
    Q_PROPERTY(bool colorAnimationsEnabled READ colorAnimationsEnabled CONSTANT)
    /*! "Animations" / "focusingEnabled", default true. */
    Q_PROPERTY(bool focusingAnimationsEnabled READ focusingAnimationsEnabled CONSTANT)
    /*! "Animations" / "layoutScrollingEnabled", default true. */
    Q_PROPERTY(bool layoutScrollingAnimationsEnabled READ layoutScrollingAnimationsEnabled CONSTANT)
    /*! "Animations" / "viewportScrollingEnabled", default true. */
    Q_PROPERTY(bool viewportScrollingAnimationsEnabled READ viewportScrollingAnimationsEnabled CONSTANT)
    /*! "Animations" / "fadeEffectEnabled", default true. */
    Q_PROPERTY(bool fadeAnimationsEnabled READ fadeAnimationsEnabled CONSTANT)
    /*! "Animations" / "slidingEnabled", default true. */
    Q_PROPERTY(bool slidingAnimationsEnabled READ slidingAnimationsEnabled CONSTANT)
    /*! Always true: animations that never end, such as a busy indicator's. */
    Q_PROPERTY(bool permanentAnimationsEnabled READ permanentAnimationsEnabled CONSTANT)
    QML_NAMED_ELEMENT(QmlSettings)
    QML_SINGLETON
public:
    /*! Answers from \a manager, which is not owned and must outlive this object. */
    explicit QmlSettings(stbconfig::ConfigurationManager *manager);

    /*!
        The singleton's factory, called by each QML engine once. Null, which makes the singleton unavailable,
        when the process has no configuration manager. The engine owns the result.
    */
    static QmlSettings *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    bool roundingEnabled() const;
    bool colorAnimationsEnabled() const;
    bool focusingAnimationsEnabled() const;
    bool layoutScrollingAnimationsEnabled() const;
    bool viewportScrollingAnimationsEnabled() const;
    bool fadeAnimationsEnabled() const;
    bool slidingAnimationsEnabled() const;
    bool permanentAnimationsEnabled() const;

private:
    bool animationEnabled(const QString &key) const;

    stbconfig::ConfigurationManager *m_manager;
};

} // namespace qml

#endif // STBUI_QMLSETTINGS_H
