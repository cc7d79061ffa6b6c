// SPDX-License-Identifier: MIT
#include "testkit/fakeplatform.h"
#include "testkit/qmlscene.h"
#include "testkit/testcase.h"

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qjsonarray.h>
#include <QtCore/qjsonobject.h>
#include <QtCore/qmap.h>
#include <QtCore/qpluginloader.h>
#include <QtCore/qregularexpression.h>
#include <QtCore/qsequentialiterable.h>
#include <QtGui/qcolor.h>
#include <QtQml/qqmlcomponent.h>

namespace {

const QMap<QString, QString> elements {
    // by name: the class
    { "Button", "StbButton" },
    { "ButtonWithCheckIndicator", "StbButtonWithCheckIndicator" },
    { "ContentTile", "StbContentTile" },
    { "EpgDate", "StbEpgDate" },
    { "EpgViewDelegate", "StbEpgViewDelegate" },
    { "EpgViewDelegateFocused", "StbEpgViewDelegateFocused" },
    { "EpisodesViewDelegate", "StbEpisodesViewDelegate" },
    { "ExpandableTile", "StbExpandableTile" },
    { "HorizontalEpgViewDelegate", "StbHorizontalEpgViewDelegate" },
    { "TvChannelViewDelegate", "StbTvChannelViewDelegate" },
    { "VodTile", "StbVodTile" },
};

const QStringList components { "BusyIndicator", "CheckBox",       "CircleProgressBar", "Keyboard",
                               "LineEdit",      "MainMenuButton", "MainMenuEffect",    "MediaBlock",
                               "MediaGridView", "MediaListView",  "PlayerButton",      "PrimaryButton",
                               "RadioButton",   "ScrollBar",      "StandardButton",    "TabButton" };

} // namespace

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
// Qt 6.11 has another name for what Qt 6.4 only knows by this one.
using Sequence = QSequentialIterable;
QT_WARNING_POP

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
        const stbtest::MemoryConfiguration store;
        stbtest::QmlScene scene;
        for (const QString &name : elements.keys() + components) {
            const auto item = scene.createItem(import + '\n' + name + " {}");
            QVERIFY2(item, qPrintable(name));
            if (elements.contains(name))
                QCOMPARE(QLatin1String(item->metaObject()->className()), elements.value(name));
        }
        const auto item = scene.createItem(import
                                           + "\nButton { checked: QmlSettings.permanentAnimationsEnabled }");
        QVERIFY(item);
        QCOMPARE(item->property("checked"), QVariant(true));
    }

    void everyComponentStandsInTheResources()
    {
        for (const QString &name : components) {
            const QString file = name == "PlayerButton" ? "Experimental/PlayerButton" : name;
            QVERIFY2(QFile::exists(":/Stbui/UI/Qml/Controls/Basic/qml/" + file + ".qml"), qPrintable(name));
        }
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
        QVERIFY(scene.createItem("import Stbui.UI.Qml.Controls.Basic\nButton {}"));
        QStringList names { "QQuickItem*",
                            "QQmlListProperty<QQuickItem>",
                            "qml::QmlSettings*",
                            "design_system::ButtonQmlStyle*",
                            "design_system::TileQmlStyle*",
                            "design_system::PlayerEpgDelegateQmlStyle*",
                            "design_system::PlayerEpgDateQmlStyle*",
                            "design_system::PlayerEpisodesItemQmlStyle*",
                            "design_system::PlayerHorizontalEpgViewQmlStyle*",
                            "design_system::PlayerTvChannelItemQmlStyle*" };
        for (const QString &className : elements)
            names << className + '*' << "QQmlListProperty<" + className + '>';
        QCOMPARE(names.size(), 10 + 2 * 11);
        for (const QString &name : std::as_const(names))
            QVERIFY2(QMetaType::fromName(name.toLatin1()).isValid(), qPrintable(name));
        QVERIFY(!QMetaType::fromName("QQmlListProperty<StbNoSuchTile>").isValid());
    }

    // The type is never named but by its name, which would register it here.
    void aListOfColoursIsReadAndWrittenAsASequence()
    {
        const stbtest::MemoryConfiguration store;
        stbtest::QmlScene scene;
        QVERIFY(scene.createItem("import Stbui.UI.Qml.Controls.Basic\nMainMenuButton {}"));
        const QMetaType type = QMetaType::fromName("QList<QColor>");
        QVERIFY(type.isValid());
        QVariant colors(type, nullptr);
        QVERIFY(colors.canConvert<Sequence>());
        QVERIFY(colors.canView<Sequence>());
        auto view = colors.view<Sequence>();
        view.addValue(QColor("#112233"));
        view.addValue(QColor("#445566"));
        view.set(0, QColor("#778899"));
        const auto list = colors.value<Sequence>();
        QCOMPARE(list.size(), 2);
        QCOMPARE(list.at(0).value<QColor>(), QColor("#778899"));
        QCOMPARE(list.at(1).value<QColor>(), QColor("#445566"));
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
