// SPDX-License-Identifier: MIT
#include "reflection.h"
#include "testkit/testcase.h"
#include "themefile.h"

#include <design_system/qmldesignsystem.h>
#include <stbconfig/configurationmanager.h>

#include <QtCore/qpointer.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtTest/qsignalspy.h>

using namespace design_system;

namespace {

// The configuration of a test, in force as long as it lives.
class Configuration : public stbconfig::ConfigurationManager
{
public:
    explicit Configuration(const QVariantMap &ui)
        : m_ui(ui)
    {
        stbconfig::setQmlConfigManager(this);
    }
    ~Configuration() override { stbconfig::setQmlConfigManager(nullptr); }
    Q_DISABLE_COPY_MOVE(Configuration)

    QVariant value(const QString &group, const QString &key, const QVariant &defaultValue) const override
    {
        return group == QLatin1String("UI") ? m_ui.value(key, defaultValue) : defaultValue;
    }

private:
    QVariantMap m_ui;
};

QString name(const QMetaProperty &property)
{
    return QString::fromLatin1(property.name());
}

QList<QObject *> handedOut(const QmlDesignSystem &system)
{
    QList<QObject *> objects;
    for (const QMetaProperty &property : reflection::fields(system.metaObject()))
        objects.append(property.read(&system).value<QObject *>());
    return objects;
}

} // namespace

class tst_DesignSystem : public stbtest::TestCase
{
    Q_OBJECT

    static std::unique_ptr<QObject> make(QQmlEngine &engine, const QByteArray &body)
    {
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport Stbui.UI.Qml.Design\n" + body, QUrl());
        std::unique_ptr<QObject> object(component.create());
        if (!object)
            qWarning("%s", qPrintable(component.errorString()));
        return object;
    }

private Q_SLOTS:
    void itHandsOutEveryStyle()
    {
        QStringList names;
        for (const QMetaProperty &property : reflection::fields(&QmlDesignSystem::staticMetaObject)) {
            QVERIFY2(!property.isWritable() && property.hasNotifySignal(), property.name());
            names.append(name(property));
        }
        QCOMPARE(names.join(u' '),
                 QStringLiteral(
                         "primaryButtonStyle standardButtonStyle playerButtonStyle expandableTileStyle "
                         "contentTileStyle vodTileStyle playerEpgDelegateStyle playerHorizontalEpgViewStyle "
                         "playerEpgDateStyle playerEpisodesItemStyle playerTvChannelItemStyle "
                         "busyIndicatorStyle standardCheckBoxStyle keyboardStyle lineEditStyle "
                         "mainMenuButtonQmlStyle tabButtonStyle colors animation layouts mainMenu"));
    }

    void itHasTheTokensEveryThemeHas()
    {
        const QmlDesignSystem system;
        for (const char *token : { "sochi", "sochi20", "sochi50", "berlin", "bogota", "bamako" })
            QVERIFY2(system.colors()->property(token).value<QColor>().isValid(), token);
        QCOMPARE(qRound(system.colors()->property("sochi20").value<QColor>().alphaF() * 100), 20);
        QCOMPARE(qRound(system.colors()->property("sochi50").value<QColor>().alphaF() * 100), 50);
    }

    void withoutAConfigurationItIsTheCompiledInThemeForHd()
    {
        stbconfig::setQmlConfigManager(nullptr);
        const QmlDesignSystem system;
        QCOMPARE(system.resolution(), QStringLiteral("hd"));
        QCOMPARE(system.theme(), QString());
        QCOMPARE(system.layouts()->property("screenHeight").toInt(), 720);
    }

    void theConfigurationChoosesResolutionThemeAndTextScale()
    {
        const TestTheme file(R"({"animation": {"duration": 123},
            "expandableTileStyle": {"titleStyle": {"font": {"pixelSize": 40}}}})");
        const Configuration configuration({ { QStringLiteral("resolution"), QStringLiteral("fullhd") },
                                            { QStringLiteral("theme"), file.path() },
                                            { QStringLiteral("textScale"), QStringLiteral("1.2") } });
        const QmlDesignSystem system;
        QCOMPARE(system.layouts()->property("screenHeight").toInt(), 1080);
        QCOMPARE(system.animationSettings(), (AnimationSettings { 123, 300 }));
        QCOMPARE(system.expandableTileStyle()->style().titleStyle.font.pixelSize(), 72);
    }

    void anUnknownResolutionIsOneWarningAndHd()
    {
        const Configuration configuration({ { QStringLiteral("resolution"), QStringLiteral("4k") } });
        QTest::ignoreMessage(QtWarningMsg, "UI/resolution: expected \"hd\", \"fullhd\" or \"sd\", "
                                           "got \"4k\"");
        const QmlDesignSystem system;
        QCOMPARE(system.resolution(), QStringLiteral("hd"));
        QCOMPARE(system.layouts()->property("screenHeight").toInt(), 720);
    }

    void theTextScaleStaysInItsRange_data()
    {
        QTest::addColumn<QVariant>("scale");
        QTest::addColumn<int>("size");
        QTest::newRow("none") << QVariant() << 24;
        QTest::newRow("one") << QVariant(1) << 24;
        QTest::newRow("number") << QVariant(1.25) << 30;
        QTest::newRow("too small") << QVariant(0.01) << 18;
        QTest::newRow("negative") << QVariant(-3) << 18;
        QTest::newRow("too large") << QVariant(1e300) << 36;
    }
    void theTextScaleStaysInItsRange()
    {
        QFETCH(QVariant, scale);
        const Configuration configuration({ { QStringLiteral("textScale"), scale } });
        const QmlDesignSystem system;
        QTEST(system.lineEditStyle()->property("font").value<QFont>().pixelSize(), "size");
    }

    void aTextScaleThatIsNoNumberIsOneWarningAndOne_data()
    {
        QTest::addColumn<QString>("scale");
        QTest::newRow("word") << QStringLiteral("large");
        QTest::newRow("not a number") << QStringLiteral("nan");
        QTest::newRow("endless") << QStringLiteral("inf");
    }
    void aTextScaleThatIsNoNumberIsOneWarningAndOne()
    {
        QFETCH(QString, scale);
        const Configuration configuration({ { QStringLiteral("textScale"), scale } });
        const QString warning = QStringLiteral("UI/textScale: expected a number, got \"%1\"").arg(scale);
        QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        const QmlDesignSystem system;
        QCOMPARE(system.lineEditStyle()->property("font").value<QFont>().pixelSize(), 24);
    }

    void anUnscaledFontIsThatOfTheRoleForTheScreen()
    {
        QmlDesignSystem system;
        const QFont hd = system.unscaledFont(FontHd::Subhead, FontSd::H4);
        QCOMPARE(hd.pixelSize(), 26);
        QVERIFY(system.setResolution(QStringLiteral("fullhd")));
        QCOMPARE(system.unscaledFont(FontHd::Subhead, FontSd::H4).pixelSize(), 39);
        QVERIFY(system.setResolution(QStringLiteral("sd")));
        QCOMPARE(system.unscaledFont(FontHd::Subhead, FontSd::H4).pixelSize(), 24);
        QCOMPARE(system.unscaledFont(FontHd::Subhead, FontSd::H6).pixelSize(), 18);
    }

    void anUnscaledFontDoesNotGrowWithTheTextScale()
    {
        const Configuration configuration({ { QStringLiteral("textScale"), 1.5 } });
        const QmlDesignSystem system;
        QCOMPARE(system.unscaledFont(FontHd::Body, FontSd::H5).pixelSize(), 24);
    }

    void aScaledFontGrowsAsTheFontsOfTheStylesDo()
    {
        for (const double scale : { 0.75, 1.0, 1.3, 1.5 }) {
            const Configuration configuration({ { QStringLiteral("textScale"), scale } });
            QmlDesignSystem system;
            for (const char *resolution : { "hd", "fullhd" }) {
                QVERIFY(system.setResolution(QString::fromLatin1(resolution)));
                QCOMPARE(system.scaledFont(FontHd::Body, FontSd::H5),
                         system.lineEditStyle()->property("font").value<QFont>());
            }
            QVERIFY(system.setResolution(QStringLiteral("sd")));
            QCOMPARE(system.scaledFont(FontHd::Caption2, FontSd::H6),
                     system.contentTileStyle()->style().titleStyle.font);
        }
    }

    void withoutATextScaleAScaledFontIsTheUnscaledOne()
    {
        const QmlDesignSystem system;
        QCOMPARE(system.scaledFont(FontHd::H2, FontSd::H2), system.unscaledFont(FontHd::H2, FontSd::H2));
        QCOMPARE(system.scaledFont(99, 0), system.unscaledFont(FontHd::Body, 0));
    }

    void aNumberThatIsNoRoleGivesTheBodysFont()
    {
        const QmlDesignSystem system;
        QCOMPARE(system.unscaledFont(-1, 0), system.unscaledFont(FontHd::Body, 0));
        QCOMPARE(system.unscaledFont(99, 0), system.unscaledFont(FontHd::Body, 0));
    }

    void everyRoleHasAFontAndTheyShrinkInTheirOrder()
    {
        QmlDesignSystem system;
        for (int role = FontHd::H1; role < FontHd::Caption2; ++role)
            QVERIFY(system.unscaledFont(role, 0).pixelSize() > system.unscaledFont(role + 1, 0).pixelSize());
        QVERIFY(system.setResolution(QStringLiteral("sd")));
        for (int role = FontSd::H1; role < FontSd::H6; ++role)
            QVERIFY(system.unscaledFont(0, role).pixelSize() > system.unscaledFont(0, role + 1).pixelSize());
    }

    void aChangeOfThemeGivesNewObjectsAndTellsOfEach()
    {
        const TestTheme file(R"({"animation": {"duration": 123}})");
        QmlDesignSystem system;
        const QList<QObject *> before = handedOut(system);
        std::vector<std::unique_ptr<QSignalSpy>> spies;
        for (const QMetaProperty &property : reflection::fields(system.metaObject())) {
            const QByteArray signal = property.notifySignal().methodSignature();
            QCOMPARE(signal, QByteArray(property.name()) + "Changed()");
            spies.push_back(std::make_unique<QSignalSpy>(&system, QByteArray("2" + signal).constData()));
        }
        QVERIFY(system.setTheme(file.path()));
        const QList<QObject *> after = handedOut(system);
        QCOMPARE(after.size(), before.size());
        for (qsizetype i = 0; i < after.size(); ++i) {
            QVERIFY(!before.contains(after[i]));
            QCOMPARE(spies[size_t(i)]->count(), 1);
        }
    }

    void replacedObjectsLiveUntilTheSystemGoes()
    {
        auto system = std::make_unique<QmlDesignSystem>();
        QList<QPointer<QObject>> replaced;
        for (QObject *object : handedOut(*system))
            replaced.append(object);
        const TileStyle tile = system->vodTileStyle()->style();
        TileQmlStyle *oldTile = system->vodTileStyle();
        system->reload();
        QVERIFY(system->setResolution(QStringLiteral("sd")));
        QVERIFY(std::none_of(replaced.cbegin(), replaced.cend(),
                             [](const auto &object) { return object.isNull(); }));
        QVERIFY(oldTile->style() == tile);
        system.reset();
        QVERIFY(std::all_of(replaced.cbegin(), replaced.cend(),
                            [](const auto &object) { return object.isNull(); }));
    }

    void aListenerFindsTheWholeNewTheme()
    {
        QmlDesignSystem system;
        int heightAtFirstSignal = 0;
        connect(&system, &QmlDesignSystem::primaryButtonStyleChanged, this,
                [&] { heightAtFirstSignal = system.layouts()->property("screenHeight").toInt(); });
        QVERIFY(system.setResolution(QStringLiteral("sd")));
        QCOMPARE(heightAtFirstSignal, 576);
    }

    void aListenerMayChangeTheThemeAgain()
    {
        QmlDesignSystem system;
        bool again = true;
        connect(&system, &QmlDesignSystem::contentTileStyleChanged, this, [&] {
            if (std::exchange(again, false))
                system.setResolution(QStringLiteral("fullhd"));
        });
        QVERIFY(system.setResolution(QStringLiteral("sd")));
        QCOMPARE(system.resolution(), QStringLiteral("fullhd"));
        QCOMPARE(system.layouts()->property("screenHeight").toInt(), 1080);
    }

    void anUnknownResolutionChangesNothing()
    {
        QmlDesignSystem system;
        const QList<QObject *> before = handedOut(system);
        QTest::ignoreMessage(QtWarningMsg, "UI/resolution: expected \"hd\", \"fullhd\" or \"sd\", "
                                           "got \"HD\"");
        QVERIFY(!system.setResolution(QStringLiteral("HD")));
        QCOMPARE(handedOut(system), before);
    }

    void theEmptyPathIsTheCompiledInTheme()
    {
        const TestTheme file(R"({"animation": {"duration": 123}})");
        QmlDesignSystem system;
        QVERIFY(system.setTheme(file.path()));
        QCOMPARE(system.animationSettings().duration, 123);
        QVERIFY(system.setTheme(QString()));
        QCOMPARE(system.animationSettings().duration, 200);
    }

    void reloadReadsAFileThatHasChanged()
    {
        const TestTheme file(R"({"animation": {"duration": 123}})");
        const Configuration configuration({ { QStringLiteral("theme"), file.path() } });
        QmlDesignSystem system;
        QFile changed(file.path());
        QVERIFY(changed.open(QIODevice::WriteOnly | QIODevice::Truncate));
        changed.write(R"({"animation": {"duration": 321}})");
        changed.close();
        system.reload();
        QCOMPARE(system.animationSettings().duration, 321);
    }

    void qmlReadsStylesTokensRolesAndMeasures()
    {
        QQmlEngine engine;
        const auto object =
                make(engine,
                     "QtObject {\n"
                     "    property int spacing: "
                     "QmlDesignSystem.playerEpgDelegateStyle.style.titleSubtitleSpacing\n"
                     "    property int deep: QmlDesignSystem.contentTileStyle.style.titleStyle.font.pixelSize\n"
                     "    property color berlin: QmlDesignSystem.colors.berlin\n"
                     "    property int fade: QmlDesignSystem.animation.fadeDuration\n"
                     "    property int shadow: QmlDesignSystem.mainMenu.shadowWidth\n"
                     "    property font key: QmlDesignSystem.unscaledFont(FontHd.Subhead, FontSd.H4)\n"
                     "    property int last: FontSd.H6 * 10 + FontHd.Caption2\n"
                     "    property TileQmlStyle tile: QmlDesignSystem.vodTileStyle\n"
                     "}");
        QVERIFY(object);
        const QmlDesignSystem system;
        QCOMPARE(object->property("spacing").toInt(),
                 system.playerEpgDelegateStyle()->style().titleSubtitleSpacing);
        QCOMPARE(object->property("deep").toInt(), 20);
        QCOMPARE(object->property("berlin").value<QColor>(), QColor(0x5c, 0xc2, 0xf2));
        QCOMPARE(object->property("fade").toInt(), 300);
        QCOMPARE(object->property("shadow").toInt(), 96);
        QCOMPARE(object->property("key").value<QFont>().pixelSize(), 26);
        QCOMPARE(object->property("last").toInt(), 57);
        QVERIFY(object->property("tile").value<TileQmlStyle *>());
    }

    void bindingsFollowAChangeOfTheme()
    {
        QQmlEngine engine;
        const auto object = make(engine, "QtObject {\n"
                                         "    property int deep: "
                                         "QmlDesignSystem.contentTileStyle.style.titleStyle.font.pixelSize\n"
                                         "    property int width: QmlDesignSystem.layouts.screenWidth\n"
                                         "    function change() { QmlDesignSystem.setResolution('fullhd') }\n"
                                         "}");
        QVERIFY(object);
        QVERIFY(QMetaObject::invokeMethod(object.get(), "change"));
        QCOMPARE(object->property("deep").toInt(), 30);
        QCOMPARE(object->property("width").toInt(), 1920);
    }

    void qmlNeverOwnsAStyle()
    {
        QQmlEngine engine;
        const auto object =
                make(engine, "QtObject {\n"
                             "    function use() { return QmlDesignSystem.vodTileStyle.style.captionSpacing\n"
                             "                     + QmlDesignSystem.standardCheckBoxStyle.icon.width }\n"
                             "    property TileQmlStyle tile: QmlDesignSystem.vodTileStyle\n"
                             "    property var icon: QmlDesignSystem.standardCheckBoxStyle.icon\n"
                             "}");
        QVERIFY(object);
        QCOMPARE(QQmlEngine::objectOwnership(object->property("tile").value<QObject *>()),
                 QQmlEngine::CppOwnership);
        const QPointer<QObject> icon = object->property("icon").value<QObject *>();
        QCOMPARE(QQmlEngine::objectOwnership(icon), QQmlEngine::CppOwnership);
        QVERIFY(object->setProperty("icon", QVariant()));
        engine.collectGarbage();
        QVERIFY(icon);
        QVERIFY(QMetaObject::invokeMethod(object.get(), "use"));
    }
};

STB_TEST_MAIN(tst_DesignSystem)
#include "tst_designsystem.moc"
