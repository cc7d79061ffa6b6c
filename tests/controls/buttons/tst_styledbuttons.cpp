// SPDX-License-Identifier: MIT
#include "buttonstyles.h"
#include "testkit/fakeplatform.h"
#include "testkit/qmlscene.h"
#include "testkit/testcase.h"

#include <controls/buttons/stbbuttonwithcheckindicator.h>
#include <scenegraph/nodehelpers.h>

#include <design_system/qmldesignsystem.h>

namespace {

const QString imports = QStringLiteral("import Stbui.UI.Qml.Design\nimport Stbui.UI.Qml.Controls.Basic\n");

} // namespace

// PrimaryButton, StandardButton and PlayerButton, and the default theme's values for them.
class tst_StyledButtons : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void eachHasItsBaseItsStyleAndItsWidth_data()
    {
        QTest::addColumn<QByteArray>("className");
        QTest::addColumn<QByteArray>("style");
        QTest::addColumn<bool>("fixed");
        QTest::newRow("PrimaryButton") << QByteArray("StbButton") << QByteArray("primaryButtonStyle") << true;
        QTest::newRow("StandardButton")
                << QByteArray("StbButton") << QByteArray("standardButtonStyle") << true;
        QTest::newRow("PlayerButton")
                << QByteArray("StbButtonWithCheckIndicator") << QByteArray("playerButtonStyle") << false;
    }
    void eachHasItsBaseItsStyleAndItsWidth()
    {
        QFETCH(QByteArray, className);
        QFETCH(QByteArray, style);
        QFETCH(bool, fixed);
        const stbtest::MemoryConfiguration store;
        stbtest::QmlScene scene;
        const auto button = scene.createItem<StbButton>(imports + QLatin1String(QTest::currentDataTag())
                                                        + "{}");
        QVERIFY(button);
        QVERIFY(button->inherits(className));
        QCOMPARE(button->inherits("StbButtonWithCheckIndicator"), !fixed);
        QCOMPARE(button->isFixedWidth(), fixed);
        QVERIFY(button->style());
        auto *designSystem = qml_basic_plugin::designSystem(button.get());
        QCOMPARE(button->style(), designSystem->property(style).value<design_system::ButtonQmlStyle *>());
    }

    void anApplicationMayChooseAnotherStyle()
    {
        const stbtest::MemoryConfiguration store;
        stbtest::QmlScene scene;
        const auto button = scene.createItem<StbButton>(
                imports + "PrimaryButton { property ButtonQmlStyle own: ButtonQmlStyle {} style: own }");
        QVERIFY(button);
        QCOMPARE(button->style(), button->property("own").value<design_system::ButtonQmlStyle *>());
    }

    void twoLinesAndAnIconStandInTheMiddleAtEveryResolution_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::newRow("hd") << "hd";
        QTest::newRow("fullhd") << "fullhd";
        QTest::newRow("sd") << "sd";
    }
    void twoLinesAndAnIconStandInTheMiddleAtEveryResolution()
    {
        QFETCH(QString, resolution);
        constexpr int icon = 24; // pixels: the icons are the same at every resolution
        constexpr int room = 4; // above and below the lines
        stbtest::MemoryConfiguration store;
        store.setValue("UI", "resolution", resolution);
        stbtest::QmlScene scene;
        for (const char *component : { "PrimaryButton", "StandardButton", "PlayerButton" }) {
            const auto button = scene.createItem<StbButton>(imports + QLatin1String(component) + "{}");
            QVERIFY(button);
            const design_system::QmlButtonStyle style = button->style()->style();
            const int lines = textSize(style.titleStyle, "Ag").height() + style.titleSubtitleSpacing
                              + textSize(style.subtitleStyle, "Ag").height();
            QVERIFY2(lines + 2 * room <= style.size.height(), component);
            QCOMPARE(style.iconTopOffset, (style.size.height() - icon) / 2);
        }
    }
};

STB_TEST_MAIN(tst_StyledButtons)
#include "tst_styledbuttons.moc"
