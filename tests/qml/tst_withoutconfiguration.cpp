// SPDX-License-Identifier: MIT
#include "bindings.h"
#include "styledscene.h"
#include "testkit/testcase.h"

#include <stbconfig/configurationmanager.h>

#include <QtCore/qregularexpression.h>
#include <QtQml/qqmlproperty.h>

#include <algorithm>
#include <iterator>

namespace {

// What is said as long as it lives. QTest does not hear it, so that the test says of each message why it may be.
class Messages
{
public:
    Messages()
    {
        heard.clear();
        m_previous = qInstallMessageHandler(
                [](QtMsgType, const QMessageLogContext &, const QString &text) { heard += text; });
    }
    ~Messages() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY_MOVE(Messages)

    static inline QStringList heard;

private:
    QtMessageHandler m_previous = nullptr;
};

class NoConfiguration
{
public:
    NoConfiguration() { stbconfig::setQmlConfigManager(nullptr); }
    ~NoConfiguration() { stbconfig::setQmlConfigManager(m_previous); }
    Q_DISABLE_COPY_MOVE(NoConfiguration)

private:
    stbconfig::ConfigurationManager *const m_previous = stbconfig::qmlConfigManager();
};

// A binding that is "QmlSettings.theSwitch", or one that is "QmlSettings.theSwitch ? a : b".
struct Reading
{
    QByteArray component;
    QString theSwitch;
    QByteArray property; // of the component; none for a behaviour
    bool isCondition = false;
};

const std::vector<Reading> readings {
    { "CheckBox", "roundingEnabled", "roundingRadius", true },
    { "Keyboard", "roundingEnabled", "keyRoundingRadius", true },
    { "LineEdit", "roundingEnabled", "roundingRadius", true },
    { "MainMenuEffect", "fadeAnimationsEnabled", {}, false }, // leftGradientOpacity
    { "MainMenuEffect", "fadeAnimationsEnabled", {}, false }, // rightGradientOpacity
    { "MediaListView", "layoutScrollingAnimationsEnabled", "highlightMoveDuration", true },
    { "TabButton", "roundingEnabled", "roundingRadius", true },
    { "TabButton", "colorAnimationsEnabled", "animateBackgroundColors", false },
    { "TabButton", "colorAnimationsEnabled", "animateTextColors", false },
};

std::vector<Reading> readingsOf(const QByteArray &component)
{
    std::vector<Reading> found;
    std::copy_if(readings.begin(), readings.end(), std::back_inserter(found),
                 [&](const Reading &reading) { return reading.component == component; });
    return found;
}

} // namespace

/*
    A process that has no configuration manager has no QmlSettings. How a binding fails that reads one of its
    switches differs between Qt's versions, and between machine code that was compiled ahead of time and what the
    engine runs itself (Qt 6.8 and 6.11 compile more files than 6.4 does, and not the same ones):

    - Compiled code meets null: "TypeError: Cannot read property ... of null", and the property keeps the control's
      own value.
    - To the engine the name of the missing singleton is still an object, of which every member is undefined. A
      bool cannot be that: "Unable to assign [undefined] to bool", and the property keeps the control's own value.
      But "undefined ? a : b" is b, without a word: the value as if the switch were off.

    So MediaListView moves its highlight at once where the engine runs its binding, and in the list's own 200
    milliseconds where it is compiled. Rounding is none either way. Nothing else may differ, or be said.
*/
class tst_WithoutConfiguration : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void eachComponentIsThereAndTellsWhatItMisses_data()
    {
        QTest::addColumn<QByteArray>("component");
        const QByteArrayList names = componentNames();
        QCOMPARE(names.size(), 16);
        for (const QByteArray &name : names)
            QTest::newRow(name.constData()) << name;
    }
    void eachComponentIsThereAndTellsWhatItMisses()
    {
        QFETCH(QByteArray, component);
        const NoConfiguration none;
        stbtest::QmlScene scene;
        std::unique_ptr<QQuickItem> item;
        {
            const Messages messages;
            item = create(scene, component);
        }
        QVERIFY2(item, qPrintable(Messages::heard.join('\n')));
        const std::vector<Reading> read = readingsOf(component);
        const qsizetype unavailable = takeOut(QRegularExpression("\"QmlSettings\" is not available because "));
        QVERIFY(unavailable == 1 || (unavailable == 0 && read.empty()));

        const QString file = "^qrc:/Stbui/UI/Qml/Controls/Basic/qml/" + component + ".qml:";
        qsizetype unassigned = takeOut(
                QRegularExpression(file + "\\d+:\\d+: Unable to assign \\[undefined\\] to bool$"));
        Sources sources = sourcesOf(designOf(scene), component);
        sources.layoutScrolling = false;
        QByteArrayList own; // properties that keep the control's own value
        for (const Reading &reading : read) {
            const bool threw = takeOutOne(QRegularExpression(file + "\\d+: TypeError: Cannot read property '"
                                                             + reading.theSwitch + "' of null$"));
            if (!threw && !reading.isCondition)
                --unassigned;
            if (threw || !reading.isCondition)
                own += reading.property;
        }
        QCOMPARE(unassigned, 0);
        QCOMPARE(Messages::heard, QStringList());
        QCOMPARE(differences(item.get(), component, sources, own), QStringList());
        own.removeAll(QByteArray());
        compareWithTheControl(scene, item.get(), component, own);
    }

    void theFadeIsThenAnimated()
    {
        const NoConfiguration none;
        stbtest::QmlScene scene;
        std::unique_ptr<QQuickItem> effect;
        {
            const Messages messages;
            effect = create(scene, "MainMenuEffect");
        }
        QVERIFY(effect);
        const QList<QObject *> behaviors = behaviorsOf(effect.get());
        QCOMPARE(behaviors.size(), 2);
        for (const QObject *behavior : behaviors)
            QCOMPARE(behavior->property("enabled"), QVariant(true));
        for (const char *property : { "leftGradientOpacity", "rightGradientOpacity" }) {
            QQmlProperty::write(effect.get(), property, 0.25);
            QCOMPARE(effect->property(property).toReal(), 1.0); // at first
        }
    }

private:
    /*! Removes the messages that match \a expression and returns how many these were. */
    static qsizetype takeOut(const QRegularExpression &expression)
    {
        return Messages::heard.removeIf([&](const QString &text) { return text.contains(expression); });
    }
    static bool takeOutOne(const QRegularExpression &expression)
    {
        const qsizetype place = Messages::heard.indexOf(expression);
        if (place >= 0)
            Messages::heard.removeAt(place);
        return place >= 0;
    }

    static void compareWithTheControl(stbtest::QmlScene &scene, const QQuickItem *item,
                                      const QByteArray &component, const QByteArrayList &properties)
    {
        const QByteArray base = component == "MediaListView" ? "ScrolledListView" : component;
        for (const QByteArray &property : properties) {
            const auto control = scene.createItem("import Stbui.UI.Qml.Controls.Generic\n" + base + " {}");
            QVERIFY(control);
            QCOMPARE(item->property(property.constData()), control->property(property.constData()));
        }
    }
};

STB_TEST_MAIN(tst_WithoutConfiguration)
#include "tst_withoutconfiguration.moc"
