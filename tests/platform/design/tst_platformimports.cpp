// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>

class tst_PlatformImports : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theDesignModuleIsLoadedFromTheImportPath()
    {
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import QtQml\n"
                          "import Stbui.UI.Qml.Design\n"
                          "QtObject { property int width: QmlDesignSystem.layouts.screenWidth }",
                          QUrl());
        const std::unique_ptr<QObject> object(component.create());
        QVERIFY2(object, qPrintable(component.errorString()));
        QCOMPARE(object->property("width").toInt(), 1280);
    }

    void theGenericControlsModuleIsLoadedFromTheImportPath()
    {
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import QtQml\n"
                          "import Stbui.UI.Qml.Controls.Generic\n"
                          "QtObject { objectName: 'made' }",
                          QUrl());
        const std::unique_ptr<QObject> object(component.create());
        QVERIFY2(object, qPrintable(component.errorString()));
        QCOMPARE(object->objectName(), QStringLiteral("made"));
    }
};

STB_TEST_MAIN(tst_PlatformImports)
#include "tst_platformimports.moc"
