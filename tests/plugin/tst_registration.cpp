// SPDX-License-Identifier: MIT
#include "testkit/fakeplatform.h"
#include "testkit/qmlscene.h"
#include "testkit/testcase.h"

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qjsonarray.h>
#include <QtCore/qjsonobject.h>
#include <QtCore/qpluginloader.h>
#include <QtCore/qregularexpression.h>
#include <QtQml/qqmlcomponent.h>

class tst_Registration : public stbtest::TestCase
{
    Q_OBJECT

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private Q_SLOTS:
    void thePluginTellsWhoItIsWithoutBeingLoaded()
    {
        const QJsonObject metaData = QPluginLoader(QStringLiteral(STBTEST_PLUGIN)).metaData();
        QCOMPARE(metaData.value("IID").toString(), "org.qt-project.Qt.QQmlEngineExtensionInterface");
        QCOMPARE(metaData.value("className").toString(), "Stbui_UI_Qml_Controls_BasicPlugin");
        QCOMPARE(metaData.value("version").toInt() >> 8,
                 QT_VERSION >> 8); // the minor version it was built with
        QCOMPARE(metaData.value("uri").toArray(), QJsonArray { "Stbui.UI.Qml.Controls.Basic" });
    }

    void bothWaysToImportShowTheElements_data()
    {
        QTest::addColumn<QString>("import");
        QTest::newRow("without version") << "import Stbui.UI.Qml.Controls.Basic";
        QTest::newRow("1.0") << "import Stbui.UI.Qml.Controls.Basic 1.0";
        QTest::newRow("major version alone") << "import Stbui.UI.Qml.Controls.Basic 1";
    }
    void bothWaysToImportShowTheElements()
    {
        QFETCH(QString, import);
        stbtest::MemoryConfiguration store;
        stbtest::QmlScene scene;
        const auto row = scene.createItem(
                import + "\nEpgViewDelegate { tvProgramIsFuture: QmlSettings.permanentAnimationsEnabled }");
        QVERIFY(row);
        QCOMPARE(QLatin1String(row->metaObject()->className()), QLatin1String("StbEpgViewDelegate"));
        QCOMPARE(row->property("tvProgramIsFuture"), QVariant(true));
    }

    void everyElementHasItsName_data()
    {
        QTest::addColumn<QString>("className");
        QTest::newRow("Button") << "StbButton";
        QTest::newRow("ButtonWithCheckIndicator") << "StbButtonWithCheckIndicator";
        QTest::newRow("ContentTile") << "StbContentTile";
        QTest::newRow("EpgDate") << "StbEpgDate";
        QTest::newRow("EpgViewDelegate") << "StbEpgViewDelegate";
        QTest::newRow("EpgViewDelegateFocused") << "StbEpgViewDelegateFocused";
        QTest::newRow("EpisodesViewDelegate") << "StbEpisodesViewDelegate";
        QTest::newRow("ExpandableTile") << "StbExpandableTile";
        QTest::newRow("HorizontalEpgViewDelegate") << "StbHorizontalEpgViewDelegate";
        QTest::newRow("TvChannelViewDelegate") << "StbTvChannelViewDelegate";
        QTest::newRow("VodTile") << "StbVodTile";
    }
    void everyElementHasItsName()
    {
        QFETCH(QString, className);
        stbtest::QmlScene scene;
        const auto item = scene.createItem(QStringLiteral("import Stbui.UI.Qml.Controls.Basic\n%1 {}")
                                                   .arg(QLatin1String(QTest::currentDataTag())));
        QVERIFY(item);
        QCOMPARE(QLatin1String(item->metaObject()->className()), className);
    }

    void everyComponentStandsInTheResourcesAndResolves_data()
    {
        QTest::addColumn<QString>("file");
        for (const char *name :
             { "BusyIndicator", "CheckBox", "CircleProgressBar", "Keyboard", "LineEdit", "MainMenuButton",
               "MainMenuEffect", "MediaBlock", "MediaGridView", "MediaListView", "PrimaryButton",
               "RadioButton", "ScrollBar", "StandardButton", "TabButton" })
            QTest::newRow(name) << QStringLiteral("qml/%1.qml").arg(QLatin1String(name));
        QTest::newRow("PlayerButton") << "qml/Experimental/PlayerButton.qml";
    }
    void everyComponentStandsInTheResourcesAndResolves()
    {
        QFETCH(QString, file);
        QVERIFY(QFile::exists(":/Stbui/UI/Qml/Controls/Basic/" + file));
        stbtest::MemoryConfiguration store;
        stbtest::QmlScene scene;
        const auto item = scene.createItem(QStringLiteral("import Stbui.UI.Qml.Controls.Basic\n%1 {}")
                                                   .arg(QLatin1String(QTest::currentDataTag())));
        QVERIFY(item);
    }

    void anotherMinorVersionOrNameDoesNotExist_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("a later version") << "import Stbui.UI.Qml.Controls.Basic 1.7\nEpgViewDelegate {}";
        QTest::newRow("the class's own name") << "import Stbui.UI.Qml.Controls.Basic\nStbEpgViewDelegate {}";
        QTest::newRow("the anonymous base") << "import Stbui.UI.Qml.Controls.Basic\nQQuickItem {}";
        QTest::newRow("nor as Item") << "import Stbui.UI.Qml.Controls.Basic\nItem {}";
    }
    void anotherMinorVersionOrNameDoesNotExist()
    {
        QFETCH(QString, text);
        stbtest::QmlScene scene;
        QQmlComponent component(scene.engine());
        component.setData(text.toUtf8(), QUrl());
        QVERIFY(component.isError());
    }

    void theTypesAreRegisteredInTheirOrder()
    {
        const QStringList order { "StbButton",
                                  "QQuickItem",
                                  "StbButtonWithCheckIndicator",
                                  "StbContentTile",
                                  "StbEpgDate",
                                  "StbEpgViewDelegate",
                                  "StbEpgViewDelegateFocused",
                                  "StbEpisodesViewDelegate",
                                  "StbExpandableTile",
                                  "StbHorizontalEpgViewDelegate",
                                  "StbTvChannelViewDelegate",
                                  "StbVodTile",
                                  "qml::QmlSettings" };
        const QRegularExpression registration("qmlRegister(?:TypesAndRevisions|AnonymousType)<([\\w:]+)");
        QStringList registered;
        auto match = registration.globalMatch(read(STBTEST_REGISTRATIONS));
        while (match.hasNext())
            registered += match.next().captured(1);
        for (const char *name : { "StbButton", "StbButtonWithCheckIndicator", "StbEpgViewDelegate",
                                  "StbExpandableTile", "qml::QmlSettings" })
            QVERIFY2(registered.contains(QLatin1String(name)), name);
        // The anonymous base stands behind the first element that derives from it.
        QCOMPARE(registered.indexOf("QQuickItem"), 1);
        registered.removeOne("QQuickItem");
        QStringList expected = order;
        expected.removeIf([&](const QString &name) { return !registered.contains(name); });
        QCOMPARE(registered, expected);
    }

    void theMetaTypesAreRegisteredAlongside()
    {
        stbtest::QmlScene scene;
        QVERIFY(scene.createItem("import Stbui.UI.Qml.Controls.Basic\nEpgViewDelegate {}"));
        QVERIFY(scene.createItem("import Stbui.UI.Qml.Controls.Basic\nExpandableTile {}"));
        for (const char *name : { "StbButton*",
                                  "QQmlListProperty<StbButton>",
                                  "StbButtonWithCheckIndicator*",
                                  "QQmlListProperty<StbButtonWithCheckIndicator>",
                                  "design_system::ButtonQmlStyle*",
                                  "StbEpgViewDelegate*",
                                  "QQmlListProperty<StbEpgViewDelegate>",
                                  "QQuickItem*",
                                  "QQmlListProperty<QQuickItem>",
                                  "qml::QmlSettings*",
                                  "design_system::PlayerEpgDelegateQmlStyle*",
                                  "StbExpandableTile*",
                                  "QQmlListProperty<StbExpandableTile>",
                                  "design_system::TileQmlStyle*",
                                  "StbEpgDate*",
                                  "QQmlListProperty<StbEpgDate>",
                                  "design_system::PlayerEpgDateQmlStyle*",
                                  "StbEpisodesViewDelegate*",
                                  "QQmlListProperty<StbEpisodesViewDelegate>",
                                  "design_system::PlayerEpisodesItemQmlStyle*",
                                  "StbHorizontalEpgViewDelegate*",
                                  "QQmlListProperty<StbHorizontalEpgViewDelegate>",
                                  "design_system::PlayerHorizontalEpgViewQmlStyle*",
                                  "StbTvChannelViewDelegate*",
                                  "QList<QColor>",
                                  "QQmlListProperty<StbTvChannelViewDelegate>",
                                  "design_system::PlayerTvChannelItemQmlStyle*" })
            QVERIFY2(QMetaType::fromName(name).isValid(), name);
    }

    void theQmldirStandsInTheResources()
    {
        const QByteArray qmldir = read(":/Stbui/UI/Qml/Controls/Basic/qmldir");
        QVERIFY(qmldir.startsWith("module Stbui.UI.Qml.Controls.Basic\n"));
        QCOMPARE(qmldir, read(QFileInfo(STBTEST_PLUGIN).dir().filePath("qmldir")));
    }

    void theResourceSetsAndTheUnitsHaveTheirOwnFunctions()
    {
        // The names are what a statically linked program calls; that they link is the test.
        QVERIFY(qInitAll());
        QVERIFY(QFile::exists(":/Stbui/UI/Qml/Controls/Basic/qmldir"));
        QVERIFY(QFile::exists(":/Stbui/UI/Qml/Controls/Basic/qml/CheckBox.qml"));
    }

    void thePluginFileIsNotLoadedBesideTheLinkedClasses()
    {
        stbtest::QmlScene scene;
        QVERIFY(scene.createItem("import Stbui.UI.Qml.Controls.Basic\nEpgViewDelegate {}"));
        const QByteArray maps = read("/proc/self/maps");
        QVERIFY(maps.contains("libQt6Qml"));
        QVERIFY(!maps.contains("qmlbasiccontrolsextensionplugin.so"));
    }

private:
    static bool qInitAll();
};

// Q_INIT_RESOURCE declares the function where it stands, which must be outside any namespace or class.
int qInitResources_qmake_Stbui_UI_Qml_Controls_Basic();
int qInitResources_qmlbasiccontrolsextensionplugin_raw_qml_0();
int qInitResources_qmlcache_qmlbasiccontrolsextensionplugin();
bool tst_Registration::qInitAll()
{
    return qInitResources_qmake_Stbui_UI_Qml_Controls_Basic() != 0
           && qInitResources_qmlbasiccontrolsextensionplugin_raw_qml_0() != 0
           && qInitResources_qmlcache_qmlbasiccontrolsextensionplugin() != 0;
}

STB_TEST_MAIN(tst_Registration)
#include "tst_registration.moc"
