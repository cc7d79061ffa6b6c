// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"
#include "tilescene.h"

#include <plugin/qmlsettings.h>
#include <scenegraph/nodehelpers.h>

#include <QtQml/qqml.h>

// A platform without a design system. It has a program of its own: the first registration of a type stays.
class tst_StbExpandableTileDesign : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        // Up to Qt 6.4 the look-up asks for 1.0, from 6.5 on for the newest there is.
        for (const int version : { 1, 2 }) {
            qmlRegisterSingletonType<QObject>("Stbui.UI.Qml.Design", version, 0, "QmlDesignSystem",
                                              [](QQmlEngine *, QJSEngine *) { return new QObject; });
        }
    }

    void withoutADesignSystemTheFocusTakesOneMillisecondAndNothingFades()
    {
        TileScene<StbExpandableTile> scene;
        scene.settings.setValue("Animations", "focusingEnabled", true);
        scene.settings.setValue("Animations", "fadeEffectEnabled", true);
        scene.make("ExpandableTile");
        QVERIFY(!qml_basic_plugin::designSystem(scene.tile.get()));
        const qml::QmlSettings *settings = qml_basic_plugin::qmlSettings(scene.tile.get());
        QVERIFY(settings && settings->focusingAnimationsEnabled() && settings->fadeAnimationsEnabled());

        QCOMPARE(tilePrivate(scene.tile.get())->m_focusTimeLine.duration(), 1);
        QVERIFY(scene.show(fieldsPicture()));
        QCOMPARE(tilePrivate(scene.tile.get())->m_imageOpacity, 1.0);
        QCOMPARE(tilePrivate(scene.tile.get())->m_fadeTimeLine.state(), QTimeLine::NotRunning);

        scene.tile->setState("focused");
        advance(tilePrivate(scene.tile.get())->m_focusTimeLine, 1.0);
        QCOMPARE(scene.tile->customFocusRect(), oddTileStyle().focusedRect);
    }
};

STB_TEST_MAIN(tst_StbExpandableTileDesign)
#include "tst_stbexpandabletiledesign.moc"
