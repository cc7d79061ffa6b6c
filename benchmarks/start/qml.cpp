// SPDX-License-Identifier: MIT
#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>

#include <cstdio>
#include <memory>

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nWindow { width: 1280; height: 720; visible: true }\n", {});
    const std::unique_ptr<QObject> window(component.create());
    if (window == nullptr) {
        std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
        return 1;
    }
    return QGuiApplication::exec();
}
