// SPDX-License-Identifier: MIT
#include "testkit/fakeplatform.h"
#include "testkit/qmlscene.h"
#include "testkit/testcase.h"

#include <plugin/qmlsettings.h>

#include <QtCore/qmetaobject.h>

using qml::QmlSettings;

class tst_QmlSettings : public stbtest::TestCase
{
    Q_OBJECT

    static QVariantMap answers(QmlSettings &settings)
    {
        QVariantMap result;
        const QMetaObject *meta = settings.metaObject();
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
            result.insert(QLatin1String(meta->property(i).name()), meta->property(i).read(&settings));
        return result;
    }

    static QVariantMap defaults()
    {
        return { { "roundingEnabled", false },
                 { "colorAnimationsEnabled", false },
                 { "focusingAnimationsEnabled", true },
                 { "layoutScrollingAnimationsEnabled", true },
                 { "viewportScrollingAnimationsEnabled", true },
                 { "fadeAnimationsEnabled", true },
                 { "slidingAnimationsEnabled", true },
                 { "permanentAnimationsEnabled", true } };
    }

private Q_SLOTS:
    void anEmptyStoreGivesTheDefaults()
    {
        stbtest::MemoryConfiguration store;
        QmlSettings settings(&store);
        QCOMPARE(answers(settings), defaults());
    }

    void eachSwitchHasItsOwnGroupAndKey_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("key");
        QTest::newRow("rounding") << "roundingEnabled"
                                  << "UI"
                                  << "roundingEnabled";
        QTest::newRow("focusing") << "focusingAnimationsEnabled"
                                  << "Animations"
                                  << "focusingEnabled";
        QTest::newRow("layout") << "layoutScrollingAnimationsEnabled"
                                << "Animations"
                                << "layoutScrollingEnabled";
        QTest::newRow("viewport") << "viewportScrollingAnimationsEnabled"
                                  << "Animations"
                                  << "viewportScrollingEnabled";
        QTest::newRow("fade") << "fadeAnimationsEnabled"
                              << "Animations"
                              << "fadeEffectEnabled";
        QTest::newRow("sliding") << "slidingAnimationsEnabled"
                                 << "Animations"
                                 << "slidingEnabled";
    }
    void eachSwitchHasItsOwnGroupAndKey()
    {
        QFETCH(QString, property);
        QFETCH(QString, group);
        QFETCH(QString, key);
        stbtest::MemoryConfiguration store;
        QmlSettings settings(&store);
        const bool other = !defaults().value(property).toBool();
        store.setValue(group, key, other);
        QVariantMap expected = defaults();
        expected.insert(property, other);
        QCOMPARE(answers(settings), expected);
    }

    void noOtherKeyChangesAnything_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("value");
        QTest::newRow("colour animations have no key") << "Animations"
                                                       << "colorAnimationsEnabled" << true;
        QTest::newRow("nor a short one") << "Animations"
                                         << "colorEnabled" << true;
        QTest::newRow("permanent animations have no key") << "Animations"
                                                          << "permanentAnimationsEnabled" << false;
        QTest::newRow("nor a short one either") << "Animations"
                                                << "permanentEnabled" << false;
        QTest::newRow("rounding is not an animation") << "Animations"
                                                      << "roundingEnabled" << true;
        QTest::newRow("animations are not in UI") << "UI"
                                                  << "focusingEnabled" << false;
        QTest::newRow("the fade key is fadeEffectEnabled") << "Animations"
                                                           << "fadeEnabled" << false;
    }
    void noOtherKeyChangesAnything()
    {
        QFETCH(QString, group);
        QFETCH(QString, key);
        QFETCH(bool, value);
        stbtest::MemoryConfiguration store;
        QmlSettings settings(&store);
        store.setValue(group, key, value);
        QCOMPARE(answers(settings), defaults());
    }

    void storedValuesAreConvertedAsVariantsAre_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<bool>("answer");
        QTest::newRow("\"true\"") << QVariant("true") << true;
        QTest::newRow("\"1\"") << QVariant("1") << true;
        QTest::newRow("1") << QVariant(1) << true;
        QTest::newRow("\"false\"") << QVariant("false") << false;
        QTest::newRow("\"0\"") << QVariant("0") << false;
        QTest::newRow("empty") << QVariant("") << false;
        QTest::newRow("no boolean at all") << QVariant(QPointF(3, 3)) << false;
    }
    void storedValuesAreConvertedAsVariantsAre()
    {
        QFETCH(QVariant, stored);
        stbtest::MemoryConfiguration store;
        QmlSettings settings(&store);
        store.setValue("Animations", "slidingEnabled", stored);
        QTEST(settings.slidingAnimationsEnabled(), "answer");
    }

    void everyCallReadsTheStoreAgainAndTheFixedOnesNever()
    {
        stbtest::MemoryConfiguration store;
        QmlSettings settings(&store);
        QCOMPARE(settings.property("roundingEnabled"), QVariant(false));
        store.setValue("UI", "roundingEnabled", true);
        QVERIFY(settings.roundingEnabled());
        QCOMPARE(store.readings(), 2);
        QVERIFY(!settings.colorAnimationsEnabled());
        QVERIFY(settings.permanentAnimationsEnabled());
        QCOMPARE(store.readings(), 2);
    }

    void thePropertiesAreConstantAndStandInTheirOrder()
    {
        const QMetaObject &meta = QmlSettings::staticMetaObject;
        QStringList names;
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
            const QMetaProperty property = meta.property(i);
            names += QLatin1String(property.name());
            QVERIFY(property.isConstant());
            QVERIFY(!property.isWritable());
            QVERIFY(!property.hasNotifySignal());
            QCOMPARE(property.metaType(), QMetaType::fromType<bool>());
        }
        QCOMPARE(names, QStringList({ "roundingEnabled", "colorAnimationsEnabled",
                                      "focusingAnimationsEnabled", "layoutScrollingAnimationsEnabled",
                                      "viewportScrollingAnimationsEnabled", "fadeAnimationsEnabled",
                                      "slidingAnimationsEnabled", "permanentAnimationsEnabled" }));
        QCOMPARE(meta.methodCount(), meta.methodOffset());
        QCOMPARE(QLatin1String(meta.classInfo(meta.indexOfClassInfo("QML.Element")).value()),
                 QLatin1String("QmlSettings"));
        QCOMPARE(QLatin1String(meta.classInfo(meta.indexOfClassInfo("QML.Singleton")).value()),
                 QLatin1String("true"));
    }

    void theFactoryMakesAnObjectWithoutParent()
    {
        stbtest::MemoryConfiguration store;
        const std::unique_ptr<QmlSettings> settings(QmlSettings::create(nullptr, nullptr));
        QVERIFY(settings);
        QVERIFY(!settings->parent());
        store.setValue("UI", "roundingEnabled", true);
        QVERIFY(settings->roundingEnabled());
    }

    void withoutConfigurationManagerThereIsNoSingleton()
    {
        stbtest::MemoryConfiguration restoredAfterwards;
        stbconfig::setQmlConfigManager(nullptr);
        QVERIFY(!QmlSettings::create(nullptr, nullptr));

        stbtest::QmlScene scene;
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("\"QmlSettings\" is not available"));
        const auto item = scene.createItem(
                "import QtQuick\n"
                "import Stbui.UI.Qml.Controls.Basic\n"
                "Item { property bool missing: QmlSettings.roundingEnabled === undefined\n"
                "       EpgViewDelegate { itemTitle: 'still here' } }");
        QVERIFY(item);
        QCOMPARE(item->property("missing"), QVariant(true));
        QCOMPARE(item->childItems().first()->property("itemTitle"), QVariant("still here"));
    }

    void everyEngineHasItsOwnSettingsForItsLifetime()
    {
        stbtest::MemoryConfiguration store;
        store.setValue("UI", "roundingEnabled", true);
        const QString text = "import QtQuick\n"
                             "import Stbui.UI.Qml.Controls.Basic 1.0 as Stb\n"
                             "Item { property var settings: Stb.QmlSettings\n"
                             "       property bool rounding: Stb.QmlSettings.roundingEnabled }";
        QPointer<QObject> settings;
        {
            stbtest::QmlScene first;
            stbtest::QmlScene second;
            const auto one = first.createItem(text);
            const auto two = second.createItem(text);
            QVERIFY(one && two);
            QCOMPARE(one->property("rounding"), QVariant(true));
            settings = one->property("settings").value<QObject *>();
            QVERIFY(qobject_cast<QmlSettings *>(settings));
            QVERIFY(settings != two->property("settings").value<QObject *>());
            store.setValue("UI", "roundingEnabled", false); // constant: the binding keeps what it read
            QCOMPARE(one->property("rounding"), QVariant(true));
            QVERIFY(!qobject_cast<QmlSettings *>(settings)->roundingEnabled());
        }
        QVERIFY(!settings);
    }
};

STB_TEST_MAIN(tst_QmlSettings)
#include "tst_qmlsettings.moc"
