// SPDX-License-Identifier: MIT
#include "styledscene.h"
#include "testkit/fakeplatform.h"
#include "testkit/testcase.h"

#include <QtCore/qabstractanimation.h>
#include <QtCore/qcoreapplication.h>
#include <QtCore/qfile.h>
#include <QtCore/qregularexpression.h>
#include <QtQml/private/qqmlmetatype_p.h>
#include <QtQml/qqmlproperty.h>

namespace {

const QString folder = QStringLiteral(":/Stbui/UI/Qml/Controls/Basic/");

const QString quick = QStringLiteral("import QtQuick");
const QString basic = QStringLiteral("import Stbui.UI.Qml.Controls.Basic as STBUIQCB");
const QString generic = QStringLiteral("import Stbui.UI.Qml.Controls.Generic as STBUIQCG");
const QString design = QStringLiteral("import Stbui.UI.Qml.Design as STBUIQD");

bool hasCompiledUnit(const QUrl &url)
{
    auto error = QQmlMetaType::CachedUnitLookupError::NoError;
#if QT_VERSION < QT_VERSION_CHECK(6, 6, 0)
    return QQmlMetaType::findCachedCompilationUnit(url, &error) != nullptr;
#else
    return QQmlMetaType::findCachedCompilationUnit(url, QQmlMetaType::AcceptUntyped, &error) != nullptr;
#endif
}

// Lets QML's animations go on as far as the test says.
class AnimationTime : public QAnimationDriver
{
public:
    AnimationTime() { install(); }
    ~AnimationTime() override { uninstall(); }
    Q_DISABLE_COPY_MOVE(AnimationTime)

    qint64 elapsed() const override { return m_elapsed; }
    void pass(int milliseconds)
    {
        QCoreApplication::sendPostedEvents(); // animations that have been started join in
        m_elapsed += milliseconds;
        advanceAnimation();
    }

private:
    qint64 m_elapsed = 0;
};

QString textOf(const char *component)
{
    QFile file(folder + "qml/" + QLatin1String(component) + ".qml");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

// The files themselves, and what they declare beside bindings: states and behaviours.
class tst_StyledFiles : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void eachImportsWhatItUsesUnderTheAgreedNames_data()
    {
        QTest::addColumn<QStringList>("expectedImports");
        QTest::addColumn<QString>("root");
        QTest::addColumn<QString>("id");
        const auto row = [](const char *file, const QStringList &lines, const char *root, const char *id) {
            QTest::newRow(file) << lines << QString(root) << QString(id);
        };
        const QStringList all { basic, generic, design };
        row("BusyIndicator", { generic, design }, "STBUIQCG.BusyIndicator", "_busyindicator");
        row("CheckBox", all, "STBUIQCG.CheckBox", "_checkBox");
        row("CircleProgressBar", { generic, design }, "STBUIQCG.CircleProgressBar", "_circleProgress");
        row("Keyboard", all, "STBUIQCG.Keyboard", "_keyboard");
        row("LineEdit", all, "STBUIQCG.LineEdit", "_lineEdit");
        row("MainMenuButton", { quick, generic, design }, "STBUIQCG.MainMenuButton", "_button");
        row("MainMenuEffect", { quick, basic, generic, design }, "STBUIQCG.HorizontalFadeEffect", "");
        row("MediaBlock", { generic, design }, "STBUIQCG.MediaBlock", "_mediaBlock");
        row("MediaGridView", { generic, design }, "STBUIQCG.ScrolledGridView", "_mediaGridView");
        row("MediaListView", { quick, basic, generic, design }, "STBUIQCG.ScrolledListView", "_mediaListView");
        row("PrimaryButton", { basic, design }, "STBUIQCB.Button", "_button");
        row("RadioButton", { basic, design }, "STBUIQCB.CheckBox", "_radioButton");
        row("ScrollBar", { generic, design }, "STBUIQCG.ScrollBar", "_control");
        row("StandardButton", { basic, design }, "STBUIQCB.Button", "_button");
        row("TabButton", all, "STBUIQCG.TabButton", "_button");
        row("Experimental/PlayerButton", { basic, design }, "STBUIQCB.ButtonWithCheckIndicator", "");
    }
    void eachImportsWhatItUsesUnderTheAgreedNames()
    {
        QFETCH(QStringList, expectedImports);
        QFETCH(QString, root);
        QFETCH(QString, id);
        const QString text = textOf(QTest::currentDataTag());
        QStringList lines = text.split('\n');
        const qsizetype rootLine = lines.indexOf(root + " {");
        QVERIFY2(rootLine > 0, qPrintable(root));
        if (!id.isEmpty())
            QCOMPARE(lines.value(rootLine + 1), "    id: " + id);
        QCOMPARE(text.count(QRegularExpression("\\bid:")), id.isEmpty() ? 0 : 1);
        lines.removeIf([](const QString &line) { return !line.startsWith("import "); });
        QCOMPARE(lines, expectedImports);
        QVERIFY2(!text.contains(QRegularExpression("\\bfunction\\b|=>|\\bon[A-Z]\\w*:")), "no code");
    }

    // These say what the controls do by themselves, so that no value tells whether they are there.
    void whatEqualsTheControlsDefaultIsSaidAllTheSame_data()
    {
        QTest::addColumn<QStringList>("expectedLines");
        QTest::newRow("BusyIndicator") << QStringList { "animationInterval: 17" };
        QTest::newRow("MainMenuButton")
                << QStringList { "animateBackgroundColors: false", "animateTextColors: false",
                                 "leftIconColors: textColors" };
        QTest::newRow("TabButton") << QStringList {
            "animateBackgroundColors: STBUIQCB.QmlSettings.colorAnimationsEnabled",
            "animateTextColors: STBUIQCB.QmlSettings.colorAnimationsEnabled"
        };
    }
    void whatEqualsTheControlsDefaultIsSaidAllTheSame()
    {
        QFETCH(QStringList, expectedLines);
        const QStringList lines = textOf(QTest::currentDataTag()).split('\n');
        for (const QString &line : std::as_const(expectedLines))
            QCOMPARE(lines.count("    " + line), 1);
    }

    void eachIsCompiledAheadOfTime_data() { eachImportsWhatItUsesUnderTheAgreedNames_data(); }
    void eachIsCompiledAheadOfTime()
    {
        const QString path = folder.mid(1) + "qml/" + QLatin1String(QTest::currentDataTag()) + ".qml";
        QVERIFY(hasCompiledUnit(QUrl("qrc:" + path)));
        QVERIFY2(!hasCompiledUnit(QUrl("file:" + path)), "units are for resources only");
        QVERIFY(!hasCompiledUnit(QUrl("qrc:" + path + "x")));
    }

    void theMenuButtonsStatesSetHeightAndRadius_data()
    {
        QTest::addColumn<bool>("rounding");
        QTest::newRow("rounding off") << false;
        QTest::newRow("rounding on") << true;
    }
    void theMenuButtonsStatesSetHeightAndRadius()
    {
        QFETCH(bool, rounding);
        stbtest::MemoryConfiguration store;
        store.setValue("UI", "roundingEnabled", rounding);
        stbtest::QmlScene scene;
        const auto button = scene.createItem(
                imports
                + "import Stbui.UI.Qml.Design\n"
                  "MainMenuButton { style: MainMenuButtonQmlStyle { backgroundCheckedHeight: 41\n"
                  "backgroundFocusedHeight: 67; focusedRoundingRadius: 33; checkedRoundingRadius: 21 } }");
        QVERIFY(button);
        const auto describe = [&button](const char *state) {
            button->setProperty("state", state);
            return QStringLiteral("%1 %2 %3 %4")
                    .arg(button->property("focused").toBool() ? "focused" : "-")
                    .arg(button->property("checked").toBool() ? "checked" : "-")
                    .arg(button->property("backgroundHeight").toReal())
                    .arg(button->property("roundingRadius").toReal());
        };
        QCOMPARE(describe("focused"), "focused - 67 33");
        QCOMPARE(describe("checked"), "- checked 41 21");
        QCOMPARE(describe("normal"), "- - 41 21");
        QCOMPARE(describe("focused"), "focused - 67 33");
        button->setProperty("state", "");
        button->setProperty("checked", true);
        QCOMPARE(describe("focused"), "focused checked 67 33"); // which the state leaves alone
        QCOMPARE(describe("normal"), "- - 41 21");
        button->setProperty("state", "");
        button->setProperty("focused", true);
        QCOMPARE(describe("checked"), "focused checked 41 21"); // and so does this one
    }

    void theFadeIsAnimatedForTheDesignsDuration()
    {
        AnimationTime time;
        const stbtest::MemoryConfiguration store;
        stbtest::QmlScene scene;
        const auto effect = scene.createItem(imports + "MainMenuEffect {}");
        QVERIFY(effect);
        auto *designSystem = qml_basic_plugin::designSystem(effect.get());
        designSystem->animation()->setProperty("duration", 487);
        for (const char *property : { "leftGradientOpacity", "rightGradientOpacity" }) {
            QCOMPARE(effect->property(property).toReal(), 1.0);
            QQmlProperty::write(effect.get(), property, 0.25);
            QCOMPARE(effect->property(property).toReal(), 1.0); // at first
        }
        const QList<QObject *> behaviors = behaviorsOf(effect.get());
        QCOMPARE(behaviors.size(), 2);
        for (QObject *behavior : behaviors) {
            QCOMPARE(behavior->property("enabled"), QVariant(true));
            auto *animation = behavior->property("animation").value<QObject *>();
            QVERIFY2(animation, "it is made with the first change");
            QVERIFY(animation->inherits("QQuickNumberAnimation"));
            QCOMPARE(animation->property("duration"), QVariant(487));
        }
        time.pass(0);
        time.pass(480);
        QVERIFY(effect->property("leftGradientOpacity").toReal() < 0.5);
        QVERIFY(effect->property("rightGradientOpacity").toReal() > 0.25);
        time.pass(7);
        QCOMPARE(effect->property("leftGradientOpacity").toReal(), 0.25);
        QCOMPARE(effect->property("rightGradientOpacity").toReal(), 0.25);
    }

    void withFadesSwitchedOffTheOpacityChangesAtOnce()
    {
        stbtest::MemoryConfiguration store;
        store.setValue("Animations", "fadeEffectEnabled", false);
        stbtest::QmlScene scene;
        const auto effect = scene.createItem(imports + "MainMenuEffect {}");
        QVERIFY(effect);
        for (const char *property : { "leftGradientOpacity", "rightGradientOpacity" }) {
            QQmlProperty::write(effect.get(), property, 0.25);
            QCOMPARE(effect->property(property).toReal(), 0.25);
        }
    }
};

STB_TEST_MAIN(tst_StyledFiles)
#include "tst_styledfiles.moc"
