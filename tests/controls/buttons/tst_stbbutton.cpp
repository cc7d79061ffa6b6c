// SPDX-License-Identifier: MIT
#include "buttonscene.h"
#include "testkit/counters.h"
#include "testkit/qmlscene.h"
#include "testkit/testcase.h"

#include <controls/buttons/stbbutton.h>
#include <controls/buttons/stbbuttonwithcheckindicator.h>

#include <QtCore/qmetaobject.h>
#include <QtTest/qsignalspy.h>

using Scene = ButtonScene<StbButton>;
using StyleObject = design_system::ButtonQmlStyle;

// What the properties mean: values, signals, and when texts are laid out.
class tst_StbButton : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFreshButtonHasTheDefaults()
    {
        const StbButton button;
        QVERIFY(!button.style());
        QVERIFY(button.leftIconSource().isEmpty());
        QVERIFY(button.rightIconSource().isEmpty());
        QVERIFY(button.titleText().isEmpty());
        QVERIFY(button.subtitleText().isEmpty());
        QVERIFY(!button.isFocused());
        QVERIFY(!button.isChecked());
        QVERIFY(!button.isCheckable());
        QVERIFY(button.isFixedWidth()); // although nobody said so
        QVERIFY(!button.isThrobberVisible());
        QVERIFY(!button.forceTitleColor());
        QVERIFY(!button.titleForcedColor().isValid());
        QCOMPARE(button.leftPadding(), 0);
        QCOMPARE(button.rightPadding(), 0);
        QCOMPARE(button.roundingRadius(), 0);
        QVERIFY(button.flags() & QQuickItem::ItemHasContents);
        QCOMPARE(button.implicitWidth(), 0);
        QCOMPARE(button.implicitHeight(), 0);
    }

    void everyPropertyStoresAndSignalsOnce_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *property, const char *signal, const QVariant &value) {
            QTest::newRow(property) << QByteArray(property) << QByteArray(signal) << value;
        };
        row("leftIconSource", "leftIconSourceChanged", ":/icons/left.png");
        row("rightIconSource", "rightIconSourceChanged", ":/icons/right.png");
        row("titleText", "titleChanged", "a");
        row("subtitleText", "subtitleChanged", "b");
        row("focused", "focusedChanged", true);
        row("checked", "checkedChanged", true);
        row("isFixedWidth", "fixedWidthChanged", false);
        row("throbberVisible", "throbberVisibleChanged", true);
        row("forceTitleColor", "forceTitleColorChanged", true);
        row("titleForcedColor", "titleForcedColorChanged", QColor(1, 2, 3));
        row("leftPadding", "leftPaddingChanged", 1.5);
        row("rightPadding", "rightPaddingChanged", 2.5);
    }
    void everyPropertyStoresAndSignalsOnce()
    {
        QFETCH(QByteArray, property);
        QFETCH(QByteArray, signal);
        QFETCH(QVariant, value);
        Scene scene;
        scene.button.setStyle(&scene.style);
        const QMetaObject *meta = scene.button.metaObject();
        QCOMPARE(meta->property(meta->indexOfProperty(property)).notifySignal().name(), signal);
        const auto spies = spiesOf(scene.button);
        QVERIFY(scene.button.setProperty(property, value));
        QCOMPARE(emitted(spies), QByteArrayList { signal });
        QCOMPARE(scene.button.property(property), value);
        QVERIFY(scene.button.setProperty(property, value));
        QCOMPARE(emitted(spies), QByteArrayList { signal });
    }

    // Who listens finds the new value, and the size that it has before it follows.
    void aSignalComesBetweenTheNewValueAndItsEffect()
    {
        Scene scene;
        scene.button.setIsFixedWidth(false);
        scene.fill();
        const double width = scene.button.width();
        QList<std::pair<QVariant, double>> heard;
        const auto listen = [&](const char *property, auto signal) {
            connect(&scene.button, signal, this, [&heard, &scene, property] {
                heard.emplaceBack(scene.button.property(property), scene.button.width());
            });
        };
        listen("titleText", &StbButton::titleChanged);
        listen("leftPadding", &StbButton::leftPaddingChanged);
        listen("rightIconSource", &StbButton::rightIconSourceChanged);
        scene.button.setLeftPadding(119);
        scene.button.setLeftPadding(19);
        scene.button.setRightIconSource("qrc:/icons/other.png");
        scene.button.setRightIconSource("qrc:/icons/right.png");
        scene.button.setTitleText("Watch now, from the very beginning to the end");
        QCOMPARE(heard.size(), 5);
        QCOMPARE(heard[0], std::pair(QVariant(119.), width));
        QCOMPARE(heard[1], std::pair(QVariant(19.), width + 100));
        QCOMPARE(heard[2], std::pair(QVariant(":/icons/other.png"), width));
        QCOMPARE(heard[3], std::pair(QVariant(":/icons/right.png"), width - 27 + 15));
        QCOMPARE(heard[4], std::pair(QVariant(scene.button.titleText()), width));
        QVERIFY(scene.button.width() > width);
    }

    void theStyleIsStoredSignalledAndResettable()
    {
        Scene scene;
        QSignalSpy changed(&scene.button, &StbButton::styleChanged);
        scene.button.setStyle(&scene.style);
        scene.button.setStyle(&scene.style);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(scene.button.style(), &scene.style);
        const QMetaObject *meta = scene.button.metaObject();
        QVERIFY(meta->property(meta->indexOfProperty("style")).reset(&scene.button));
        QCOMPARE(changed.count(), 2);
        QVERIFY(!scene.button.style());
    }

    void aDestroyedStyleCountsAsNull()
    {
        Scene scene;
        auto style = std::make_unique<StyleObject>();
        style->setStyle(oddButtonStyle());
        scene.fill();
        scene.button.setStyle(style.get());
        scene.stage.renderFrame();
        QVERIFY(stbtest::paintNode(&scene.button));
        QSignalSpy changed(&scene.button, &StbButton::styleChanged);
        style.reset();
        QVERIFY(!scene.button.style());
        QCOMPARE(changed.count(), 1);
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(&scene.button));
        scene.button.setTitleText("Still alive");
        scene.stage.renderFrame();
    }

    void checkableReadsWhatCheckedIs()
    {
        StbButton button;
        QSignalSpy changed(&button, &StbButton::checkableChanged);
        button.setCheckable(true);
        QCOMPARE(changed.count(), 1);
        QVERIFY(!button.isCheckable());
        button.setCheckable(true);
        QCOMPARE(changed.count(), 1);
        button.setChecked(true);
        QVERIFY(button.isCheckable());
        QCOMPARE(changed.count(), 1);
        button.setCheckable(false);
        QCOMPARE(changed.count(), 2);
        QVERIFY(button.isCheckable());
    }

    void whatOnlyRepaintsAsksForAFrameOnItsOwn_data()
    {
        QTest::addColumn<bool>("forced"); // before
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QColor>("title"); // after
        const QColor first(255, 0, 255);
        const QColor second(0, 255, 255);
        QTest::newRow("titleForcedColor")
                << true << QByteArray("titleForcedColor") << QVariant(second) << second;
        QTest::newRow("forceTitleColor") << false << QByteArray("forceTitleColor") << QVariant(true) << first;
        QTest::newRow("checkable") << true << QByteArray("checkable") << QVariant(true) << first;
    }
    void whatOnlyRepaintsAsksForAFrameOnItsOwn()
    {
        QFETCH(bool, forced);
        QFETCH(QByteArray, property);
        QFETCH(QVariant, value);
        QFETCH(QColor, title);
        Scene scene;
        scene.fill();
        scene.button.setForceTitleColor(forced);
        scene.button.setTitleForcedColor(QColor(255, 0, 255));
        scene.stage.renderFrame();
        QVERIFY(!scene.stage.wantsFrame());
        QVERIFY(scene.button.setProperty(property, value));
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        QVERIFY(stbtest::isPaintedIn(scene.children()[1].pixmap, title));
    }

    void theRoundingRadiusIsAlwaysNothing()
    {
        StbButton button;
        QSignalSpy changed(&button, &StbButton::roundingRadiusChanged);
        QVERIFY(button.setProperty("roundingRadius", 8));
        QCOMPARE(button.property("roundingRadius"), QVariant(0.));
        QCOMPARE(changed.count(), 0);
    }

    void iconSourcesLoseALeadingQrc_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("path");
        QTest::newRow("resource URL") << "qrc:/icons/left.png"
                                      << ":/icons/left.png";
        QTest::newRow("with three slashes") << "qrc:///icons/left.png"
                                            << ":///icons/left.png";
        QTest::newRow("resource path") << ":/icons/left.png"
                                       << ":/icons/left.png";
        QTest::newRow("capitals stay") << "QRC:/icons/left.png"
                                       << "QRC:/icons/left.png";
        QTest::newRow("any name that begins so") << "qrcode.png"
                                                 << "ode.png";
        QTest::newRow("elsewhere it stays") << "/a/qrc.png"
                                            << "/a/qrc.png";
        QTest::newRow("only its letters") << "qrc"
                                          << "";
    }
    void iconSourcesLoseALeadingQrc()
    {
        QFETCH(QString, source);
        QFETCH(QString, path);
        for (const char *property : { "leftIconSource", "rightIconSource" }) {
            StbButton button;
            QVERIFY(button.setProperty(property, source));
            QCOMPARE(button.property(property), QVariant(path));
        }
    }

    void theSameQrcSourceIsAChangeEachTime()
    {
        Scene scene;
        scene.button.setStyle(&scene.style);
        QSignalSpy left(&scene.button, &StbButton::leftIconSourceChanged);
        QSignalSpy right(&scene.button, &StbButton::rightIconSourceChanged);
        for (int i = 0; i < 3; ++i) {
            scene.button.setLeftIconSource("qrc:/icons/left.png");
            scene.button.setRightIconSource("qrc:/icons/right.png");
        }
        QCOMPARE(left.count(), 3);
        QCOMPARE(right.count(), 3);
        scene.button.setLeftIconSource(":/icons/left.png");
        QCOMPARE(left.count(), 3);
    }

    void theFirstAssignmentOfIsFixedWidthAlwaysCounts()
    {
        Scene scene;
        scene.fill();
        QSignalSpy changed(&scene.button, &StbButton::fixedWidthChanged);
        scene.button.setIsFixedWidth(true);
        QCOMPARE(changed.count(), 1);
        scene.button.setIsFixedWidth(true);
        QCOMPARE(changed.count(), 1);
        scene.button.setIsFixedWidth(false);
        QCOMPARE(changed.count(), 2);
        QVERIFY(!scene.button.isFixedWidth());
    }

    void aTextIsLaidOutOncePerTextFontAndWidth()
    {
        Scene scene;
        const auto filled = [&] {
            scene.fill();
            scene.stage.renderFrame();
        };
        QCOMPARE(stbtest::textsLaidOut(filled), 2);
        const auto none = [&](const std::function<void()> &change) {
            return stbtest::textsLaidOut([&] {
                       change();
                       scene.stage.renderFrame();
                   })
                   == 0;
        };
        QVERIFY(none([&] { scene.button.setFocused(true); }));
        QVERIFY(none([&] { scene.button.setChecked(true); }));
        QVERIFY(none([&] { scene.button.setEnabled(false); }));
        QVERIFY(none([&] { scene.button.setHeight(99); }));
        QVERIFY(none([&] { scene.button.setLeftPadding(3); }));
        QVERIFY(none([&] { scene.button.setThrobberVisible(true); }));
        QVERIFY(none([&] { scene.button.setThrobberVisible(false); }));
        QVERIFY(none([&] { scene.button.setIsFixedWidth(true); }));
        StyleObject equal;
        equal.setStyle(oddButtonStyle());
        QVERIFY(none([&] { scene.button.setStyle(&equal); }));
        QVERIFY(none([&] { scene.button.setStyle(nullptr); }));
        QVERIFY(none([&] { scene.button.setStyle(&scene.style); }));
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.button.setTitleText("Watch");
                     scene.stage.renderFrame();
                 }),
                 1);
    }

    void aButtonIsOneObjectOneItem()
    {
        Scene scene;
        QCOMPARE(stbtest::objectsCreated([] { const StbButton button; }), 1);
        scene.fill();
        scene.stage.renderFrame();
        QCOMPARE(stbtest::objectCount(&scene.button), 1);
        QCOMPARE(stbtest::itemCount(&scene.button), 1);
        QCOMPARE(stbtest::objectsCreated([] { const StbButtonWithCheckIndicator button; }), 1);
        // The renderer, once it is shown for the first time.
        QCOMPARE(stbtest::objectsCreated([&] { scene.button.setThrobberVisible(true); }), 1);
        QCOMPARE(stbtest::objectsCreated([&] { scene.button.setThrobberVisible(false); }), 0);
        QCOMPARE(stbtest::objectsCreated([&] { scene.button.setThrobberVisible(true); }), 0);
        QCOMPARE(stbtest::itemCount(&scene.button), 1);
    }

    void qmlSetsEveryProperty()
    {
        stbtest::QmlScene qml;
        const auto button = qml.createItem<StbButton>(R"(
            import QtQuick
            import Stbui.UI.Qml.Controls.Basic
            import Stbui.UI.Qml.Design
            Button {
                style: ButtonQmlStyle {}
                leftIconSource: "qrc:/icons/left.png"; rightIconSource: "qrc:/icons/right.png"
                titleText: "a"; subtitleText: "b"
                focused: true; checked: true; checkable: true; isFixedWidth: false; throbberVisible: true
                forceTitleColor: true; titleForcedColor: "red"; leftPadding: 3; rightPadding: 5
                roundingRadius: 7
            })");
        QVERIFY(button);
        QVERIFY(button->style());
        QCOMPARE(button->leftIconSource(), ":/icons/left.png");
        QCOMPARE(button->titleText(), "a");
        QCOMPARE(button->titleForcedColor(), QColor(Qt::red));
        QVERIFY(!button->isFixedWidth());
        QVERIFY(button->isThrobberVisible());
    }

    void qmlTakesTheStyleAwayAgain()
    {
        stbtest::QmlScene qml;
        const auto button = qml.createItem<StbButton>(R"(
            import Stbui.UI.Qml.Controls.Basic
            import Stbui.UI.Qml.Design
            Button { style: checked ? undefined : given; property ButtonQmlStyle given: ButtonQmlStyle {} })");
        QVERIFY(button);
        QVERIFY(button->style());
        button->setChecked(true);
        QVERIFY(!button->style());
    }

    void theButtonWithCheckIndicatorIsAButtonAndAddsNothing()
    {
        const QMetaObject &meta = StbButtonWithCheckIndicator::staticMetaObject;
        QCOMPARE(meta.superClass(), &StbButton::staticMetaObject);
        QCOMPARE(meta.propertyCount(), meta.propertyOffset());
        QCOMPARE(meta.methodCount(), meta.methodOffset());
    }

private:
    using Spies = std::vector<std::unique_ptr<QSignalSpy>>;

    static Spies spiesOf(StbButton &button)
    {
        Spies spies;
        const QMetaObject *meta = button.metaObject();
        for (int i = StbButton::staticMetaObject.methodOffset(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                spies.push_back(std::make_unique<QSignalSpy>(&button, meta->method(i)));
        }
        return spies;
    }
    static QByteArrayList emitted(const Spies &spies)
    {
        QByteArrayList names;
        for (const auto &spy : spies)
            names.insert(names.size(), spy->count(), spy->signal().chopped(2));
        return names;
    }
};

STB_TEST_MAIN(tst_StbButton)
#include "tst_stbbutton.moc"
