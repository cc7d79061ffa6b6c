// SPDX-License-Identifier: MIT
#include "bindings.h"
#include "testkit/fakeplatform.h"
#include "testkit/qmlscene.h"
#include "testkit/testcase.h"

#include <design_system/qmldesignsystem.h>
#include <scenegraph/nodehelpers.h>

#include <QtCore/qscopeguard.h>

namespace {

const QString imports = QStringLiteral("import QtQuick\nimport Stbui.UI.Qml.Controls.Basic\n");

std::unique_ptr<QQuickItem> create(stbtest::QmlScene &scene, const QByteArray &component)
{
    return scene.createItem(imports + QString::fromLatin1(component) + " {}");
}

design_system::QmlDesignSystem *designOf(stbtest::QmlScene &scene)
{
    const auto anchor = scene.createItem(imports + "Item {}");
    return qml_basic_plugin::designSystem(anchor.get());
}

// The bindings of one component as they should be now, compared with what they are.
void compare(const QQuickItem *item, const QByteArray &component, const Sources &sources,
             const QByteArrayList &except = {})
{
    for (const Binding &binding : allBindings()) {
        if (binding.component != component || except.contains(binding.property))
            continue;
        const QVariant actual = item->property(binding.property.constData());
        QVariant expected = binding.value(sources);
        QVERIFY2(actual.isValid(), binding.property);
        QVERIFY2(expected.isValid(), binding.property);
        QVERIFY2(expected.convert(actual.metaType()), binding.property);
        const QString difference = QStringLiteral("%1: %2 instead of %3")
                                           .arg(QLatin1String(binding.property), QDebug::toString(actual),
                                                QDebug::toString(expected));
        QVERIFY2(actual == expected, qPrintable(difference));
    }
}

void addComponents(bool withStyleOnly = false)
{
    QTest::addColumn<QByteArray>("component");
    QByteArrayList names;
    for (const Binding &binding : allBindings()) {
        if (!names.contains(binding.component) && (!withStyleOnly || !styleOf(binding.component).isEmpty()))
            names += binding.component;
    }
    for (const QByteArray &name : std::as_const(names))
        QTest::newRow(name.constData()) << name;
}

/*! What the engine says to bindings that read a switch of a singleton which is not there. */
void expectWarnings(const QByteArray &component, bool isTab)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    static_cast<void>(component);
    for (int i = 0; i < (isTab ? 2 : 0); ++i)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("TabButton.qml:1\\d:5: Unable to assign"));
#else
    const QString file = QLatin1String(component)
                         + QStringLiteral(".qml:\\d+: TypeError: Cannot read property ");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(file + "'roundingEnabled' of null"));
    for (int i = 0; i < (isTab ? 2 : 0); ++i)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(file + "'colorAnimationsEnabled' of null"));
#endif
}

} // namespace

// Every binding of every styled component, in a design of values of which no two are alike.
class tst_StyledBindings : public stbtest::TestCase
{
    Q_OBJECT

    static Sources sourcesOf(design_system::QmlDesignSystem *design, const QByteArray &component)
    {
        const QByteArray style = styleOf(component);
        return { design, style.isEmpty() ? nullptr : design->property(style.constData()).value<QObject *>() };
    }

private Q_SLOTS:
    void theDefaultDesignAndAnEmptyStoreGiveTheValues_data() { addComponents(); }
    void theDefaultDesignAndAnEmptyStoreGiveTheValues()
    {
        QFETCH(QByteArray, component);
        const stbtest::MemoryConfiguration store;
        stbtest::QmlScene scene;
        const auto item = create(scene, component);
        QVERIFY(item);
        compare(item.get(), component, sourcesOf(designOf(scene), component));
    }

    void noTwoFieldsAreSwapped_data() { addComponents(); }
    void noTwoFieldsAreSwapped()
    {
        QFETCH(QByteArray, component);
        stbtest::MemoryConfiguration store;
        store.setValue("UI", "roundingEnabled", true);
        stbtest::QmlScene scene;
        design_system::QmlDesignSystem *design = designOf(scene);
        OddValues().fill(design);
        const auto item = create(scene, component);
        QVERIFY(item);
        Sources sources = sourcesOf(design, component);
        sources.rounding = true;
        compare(item.get(), component, sources);
    }

    void theSwitchesOfRoundingAndScrollingAreHeard_data() { addComponents(); }
    void theSwitchesOfRoundingAndScrollingAreHeard()
    {
        QFETCH(QByteArray, component);
        stbtest::MemoryConfiguration store;
        store.setValue("UI", "roundingEnabled", false);
        store.setValue("Animations", "layoutScrollingEnabled", false);
        stbtest::QmlScene scene;
        design_system::QmlDesignSystem *design = designOf(scene);
        OddValues().fill(design);
        const auto item = create(scene, component);
        QVERIFY(item);
        Sources sources = sourcesOf(design, component);
        sources.layoutScrolling = false;
        compare(item.get(), component, sources);
    }

    void aChangeOfTheThemeIsFollowed_data() { addComponents(); }
    void aChangeOfTheThemeIsFollowed()
    {
        QFETCH(QByteArray, component);
        stbtest::MemoryConfiguration store;
        store.setValue("UI", "roundingEnabled", true);
        stbtest::QmlScene scene;
        const auto item = create(scene, component);
        QVERIFY(item);
        design_system::QmlDesignSystem *design = designOf(scene);
        for (const char *resolution : { "fullhd", "sd" }) {
            QVERIFY(design->setResolution(resolution));
            Sources sources = sourcesOf(design, component);
            sources.rounding = true;
            // The keyboard asks for its fonts by calls, and nothing tells when a call would answer differently.
            compare(item.get(), component, sources, { "symbolKeysFont", "controlKeysFont", "domainKeysFont" });
        }
    }

    void theKeyboardsFontsAreThoseOfTheResolution_data()
    {
        QTest::addColumn<int>("largest");
        QTest::newRow("hd") << 26;
        QTest::newRow("fullhd") << 39;
        QTest::newRow("sd") << 24; // another role
    }
    void theKeyboardsFontsAreThoseOfTheResolution()
    {
        stbtest::MemoryConfiguration store;
        store.setValue("UI", "resolution", QString(QTest::currentDataTag()));
        stbtest::QmlScene scene;
        const auto item = create(scene, "Keyboard");
        QVERIFY(item);
        compare(item.get(), "Keyboard", sourcesOf(designOf(scene), "Keyboard"));
        QFETCH(int, largest);
        const int size = item->property("symbolKeysFont").value<QFont>().pixelSize();
        QCOMPARE(size, largest);
    }

    void anotherStyleObjectGivesAllItsValues_data() { addComponents(true); }
    void anotherStyleObjectGivesAllItsValues()
    {
        QFETCH(QByteArray, component);
        stbtest::MemoryConfiguration store;
        store.setValue("UI", "roundingEnabled", true);
        stbtest::QmlScene scene;
        Sources sources = sourcesOf(designOf(scene), component);
        QVERIFY(sources.style);
        const QString className = QLatin1String(sources.style->metaObject()->className());
        const auto style = scene.createObject("import Stbui.UI.Qml.Design\n" + className.section("::", -1)
                                              + " {}");
        QVERIFY(style);
        const auto item = create(scene, component);
        QVERIFY(item);
        QCOMPARE(item->property("style").value<QObject *>(), sources.style);

        OddValues().fill(style.get());
        QVERIFY(item->setProperty("style", QVariant::fromValue(style.get())));
        sources.style = style.get();
        sources.rounding = true;
        compare(item.get(), component, sources);
    }

    void withoutAConfigurationTheRadiusIsTheControlsOwn_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::newRow("CheckBox") << QByteArray("roundingRadius");
        QTest::newRow("Keyboard") << QByteArray("keyRoundingRadius");
        QTest::newRow("LineEdit") << QByteArray("roundingRadius");
        QTest::newRow("TabButton") << QByteArray("roundingRadius");
    }
    void withoutAConfigurationTheRadiusIsTheControlsOwn()
    {
        QFETCH(QByteArray, property);
        const auto restore = qScopeGuard(
                [before = stbconfig::qmlConfigManager()] { stbconfig::setQmlConfigManager(before); });
        stbconfig::setQmlConfigManager(nullptr);
        stbtest::QmlScene scene;
        const QByteArray component(QTest::currentDataTag());
        const bool isTab = component == "TabButton"; // reads the switch of the colour animations as well
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("\"QmlSettings\" is not available"));
        expectWarnings(component, isTab);
        const auto item = create(scene, component);
        QVERIFY(item);
        QCOMPARE(item->property(property).toReal(), 0.0);
        if (isTab)
            QCOMPARE(item->property("animateTextColors"), QVariant(false));
        const Sources sources = sourcesOf(designOf(scene), component);
        compare(item.get(), component, sources);
    }
};

STB_TEST_MAIN(tst_StyledBindings)
#include "tst_styledbindings.moc"
