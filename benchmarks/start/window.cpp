// SPDX-License-Identifier: MIT
#include <QtGui/qguiapplication.h>
#include <QtQuick/qquickwindow.h>

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    QQuickWindow window;
    window.resize(1280, 720);
    window.show();
    return QGuiApplication::exec();
}
