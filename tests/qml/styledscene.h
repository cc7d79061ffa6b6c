// SPDX-License-Identifier: MIT
#ifndef TESTS_QML_STYLEDSCENE_H
#define TESTS_QML_STYLEDSCENE_H

#include "testkit/qmlscene.h"

#include <design_system/qmldesignsystem.h>
#include <scenegraph/nodehelpers.h>

inline const QString imports = QStringLiteral("import QtQuick\nimport Stbui.UI.Qml.Controls.Basic\n");

inline std::unique_ptr<QQuickItem> create(stbtest::QmlScene &scene, const QByteArray &component)
{
    return scene.createItem(imports + QString::fromLatin1(component) + " {}");
}

inline design_system::QmlDesignSystem *designOf(stbtest::QmlScene &scene)
{
    const auto anchor = scene.createItem(imports + "Item {}");
    return qml_basic_plugin::designSystem(anchor.get());
}

/*! The behaviours declared on the properties of \a item and of its parts. */
inline QList<QObject *> behaviorsOf(const QObject *item)
{
    QList<QObject *> behaviors = item->findChildren<QObject *>();
    behaviors.removeIf([](const QObject *object) { return !object->inherits("QQuickBehavior"); });
    return behaviors;
}

#endif // TESTS_QML_STYLEDSCENE_H
