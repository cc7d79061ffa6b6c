// SPDX-License-Identifier: MIT
#ifndef STBUI_QTCOMPAT_P_H
#define STBUI_QTCOMPAT_P_H

// Qt's private headers move between releases. What differs from Qt 6.4 to 6.11 stands here and nowhere else.

#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>

#include <memory>

namespace qml_basic_plugin::compat {

/*!
    The singleton \a name of the module \a uri in \a engine; null when there is none.

    QQmlEngine::singletonInstance(uri, name) exists from Qt 6.5. Before, the type's id does the same for a module
    that is registered already, in a quarter of a microsecond; a module that nobody imported yet is loaded by a
    component that imports it, for about 80.
*/
inline QObject *singletonInstance(QQmlEngine *engine, const char *uri, const char *name)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    return engine->singletonInstance<QObject *>(uri, name);
#else
    const int typeId = qmlTypeId(uri, 1, 0, name);
    if (typeId != -1)
        return engine->singletonInstance<QObject *>(typeId);

    QQmlComponent component(engine);
    component.setData(QByteArrayLiteral("import QtQml\nimport ") + uri
                              + "\nQtObject { readonly property QtObject instance: " + name + " }",
                      QUrl());
    if (!component.isReady())
        return nullptr;
    const std::unique_ptr<QObject> holder(component.create());
    return holder ? holder->property("instance").value<QObject *>() : nullptr;
#endif
}

} // namespace qml_basic_plugin::compat

#endif // STBUI_QTCOMPAT_P_H
