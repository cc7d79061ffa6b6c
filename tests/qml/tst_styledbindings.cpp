// SPDX-License-Identifier: MIT
#include "bindings.h"
#include "styledscene.h"
#include "testkit/fakeplatform.h"
#include "testkit/testcase.h"

#include <QtCore/qmetaobject.h>

namespace {

void addComponents(bool withStyleOnly = false)
{
    QTest::addColumn<QByteArray>("component");
    for (const QByteArray &name : componentNames(withStyleOnly))
        QTest::newRow(name.constData()) << name;
}

/*! The type that the property \a name is declared with. */
QByteArray typeOf(const QObject *object, const char *name)
{
    const QMetaObject *meta = object->metaObject();
    return meta->property(meta->indexOfProperty(name)).typeName();
}

} // namespace

// Every binding of every styled component, in a design of values of which no two are alike.
class tst_StyledBindings : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theDefaultDesignAndAnEmptyStoreGiveTheValues_data() { addComponents(); }
    void theDefaultDesignAndAnEmptyStoreGiveTheValues()
    {
        QFETCH(QByteArray, component);
        const stbtest::MemoryConfiguration store;
        stbtest::QmlScene scene;
        const auto item = create(scene, component);
        QVERIFY(item);
        QCOMPARE(differences(item.get(), component, sourcesOf(designOf(scene), component)), QStringList());
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
        QCOMPARE(differences(item.get(), component, sources), QStringList());
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
        QCOMPARE(differences(item.get(), component, sources), QStringList());
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
            QCOMPARE(differences(item.get(), component, sources,
                                 { "symbolKeysFont", "controlKeysFont", "domainKeysFont" }),
                     QStringList());
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
        QCOMPARE(differences(item.get(), "Keyboard", sourcesOf(designOf(scene), "Keyboard")), QStringList());
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
        QCOMPARE(typeOf(item.get(), "style"), className.toLatin1() + '*');

        OddValues().fill(style.get());
        QVERIFY(item->setProperty("style", QVariant::fromValue(style.get())));
        sources.style = style.get();
        sources.rounding = true;
        QCOMPARE(differences(item.get(), component, sources), QStringList());
    }

    void theBlockOfAListMayBeAnyObject()
    {
        const stbtest::MemoryConfiguration store;
        stbtest::QmlScene scene;
        const auto item = create(scene, "MediaListView");
        QVERIFY(item);
        QCOMPARE(typeOf(item.get(), "mediaBlockInfo"), QByteArray("QObject*"));
    }
};

STB_TEST_MAIN(tst_StyledBindings)
#include "tst_styledbindings.moc"
