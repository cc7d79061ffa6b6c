// SPDX-License-Identifier: MIT
#include "reflection.h"
#include "testkit/testcase.h"

#include <design_system/qmldesignsystem.h>

#include <QtGui/qpen.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtTest/qsignalspy.h>

using namespace design_system;

namespace {

class OwnTileStyle : public TileQmlStyle
{
public:
    using TileQmlStyle::TileQmlStyle;
    TileStyle style() const override
    {
        TileStyle own;
        own.captionSpacing = 4711;
        return own;
    }
};

// What QML makes of a value: flags may have become a number.
bool isSame(QVariant value, const QVariant &expected)
{
    if (expected.metaType() == QMetaType::fromType<Qt::Alignment>() && value.metaType().id() == QMetaType::Int)
        return value.toInt() == int(expected.value<Qt::Alignment>());
    return value.convert(expected.metaType()) && value == expected;
}

const char *const carriers[] = { "ButtonQmlStyle",
                                 "TileQmlStyle",
                                 "PlayerEpgDelegateQmlStyle",
                                 "PlayerHorizontalEpgViewQmlStyle",
                                 "PlayerEpgDateQmlStyle",
                                 "PlayerEpisodesItemQmlStyle",
                                 "PlayerTvChannelItemQmlStyle" };
const char *const flatStyles[] = { "BusyIndicatorQmlStyle", "CheckBoxQmlStyle",       "KeyboardQmlStyle",
                                   "LineEditQmlStyle",      "MainMenuButtonQmlStyle", "TabButtonQmlStyle" };

} // namespace

// The style objects as QML makes them.
class tst_StyleObjects : public stbtest::TestCase
{
    Q_OBJECT

    QQmlEngine m_engine;

    std::unique_ptr<QObject> make(const QByteArray &body)
    {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport Stbui.UI.Qml.Design\n" + body, QUrl());
        std::unique_ptr<QObject> object(component.create());
        if (!object)
            qWarning("%s", qPrintable(component.errorString()));
        return object;
    }

    // The style of the row's class, with functions that read and write one field in QML.
    std::unique_ptr<QObject> fetchedStyle()
    {
        QFETCH(QByteArray, name);
        return make(name
                    + " {\n"
                      "    function readField(name) { return style[name] }\n"
                      "    function writeField(name, value) { style[name] = value }\n"
                      "}");
    }

    static void eachCarrier()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char *name : carriers)
            QTest::newRow(name) << QByteArray(name);
    }

    static void eachFlatStyle()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char *name : flatStyles)
            QTest::newRow(name) << QByteArray(name);
    }

private Q_SLOTS:
    void aStyleObjectTellsOnlyOfARealChange_data() { eachCarrier(); }
    void aStyleObjectTellsOnlyOfARealChange()
    {
        const auto object = fetchedStyle();
        QVERIFY(object);
        QSignalSpy changes(object.get(), SIGNAL(styleChanged()));
        const QMetaType type = object->property("style").metaType();
        QVERIFY(object->property("style") == QVariant(type));
        const QVariant value = reflection::distinct(type);
        QVERIFY(object->setProperty("style", value));
        QVERIFY(object->property("style") == value);
        QCOMPARE(changes.count(), 1);
        QVERIFY(object->setProperty("style", value));
        QCOMPARE(changes.count(), 1);
    }

    void qmlReadsEveryField_data() { eachCarrier(); }
    void qmlReadsEveryField()
    {
        const auto object = fetchedStyle();
        QVERIFY(object);
        const QVariant style = reflection::distinct(object->property("style").metaType());
        QVERIFY(object->setProperty("style", style));
        for (const QMetaProperty &field : reflection::fields(style.metaType().metaObject())) {
            QVariant value;
            QVERIFY(QMetaObject::invokeMethod(object.get(), "readField", Q_RETURN_ARG(QVariant, value),
                                              Q_ARG(QVariant, QString::fromLatin1(field.name()))));
            const QVariant expected = field.readOnGadget(style.constData());
            QVERIFY2(isSame(value, expected), field.name());
        }
    }

    void qmlWritesEveryField_data() { eachCarrier(); }
    void qmlWritesEveryField()
    {
        const auto object = fetchedStyle();
        QVERIFY(object);
        const QVariant style = reflection::distinct(object->property("style").metaType());
        for (const QMetaProperty &field : reflection::fields(style.metaType().metaObject())) {
            QVERIFY(QMetaObject::invokeMethod(object.get(), "writeField",
                                              Q_ARG(QVariant, QString::fromLatin1(field.name())),
                                              Q_ARG(QVariant, field.readOnGadget(style.constData()))));
            const QVariant written = field.readOnGadget(object->property("style").constData());
            QVERIFY2(written == field.readOnGadget(style.constData()), field.name());
        }
    }

    void qmlSetsFieldsInADeclaration()
    {
        const auto object = make(
                "TileQmlStyle { style.captionSpacing: 4; style.titleColor: '#80010203'\n"
                "    style.tileRect: Qt.rect(3, 5, 7, 9); style.borderWidth: 11; style.borderColor: 'red'\n"
                "    style.ratingBadgeLeftPadding: 13 }");
        QVERIFY(object);
        const auto style = object->property("style").value<TileStyle>();
        QCOMPARE(style.captionSpacing, 4);
        QCOMPARE(style.titleColor, QColor(1, 2, 3, 0x80));
        QCOMPARE(style.tileRect, QRect(3, 5, 7, 9));
        QCOMPARE(style.borderPen.width(), 11);
        QCOMPARE(style.borderPen.color(), QColor(Qt::red));
        QCOMPARE(style.ratingBadgePadding.left(), 13);
    }

    void qmlChangesADeepValueByCopyingItOutAndBack()
    {
        const auto object = make(
                "TileQmlStyle { Component.onCompleted: {\n"
                "    let title = style.titleStyle; title.maxLineCount = 3; style.titleStyle = title } }");
        QVERIFY(object);
        QCOMPARE(object->property("style").value<TileStyle>().titleStyle.maxLineCount, 3);
    }

    void aTilesStyleIsReadThroughItsVirtualFunction()
    {
        const OwnTileStyle own;
        const TileQmlStyle &base = own;
        QCOMPARE(base.style().captionSpacing, 4711);
        QCOMPARE(own.property("style").value<TileStyle>().captionSpacing, 4711);
    }

    void everyPropertyOfAFlatStyleIsReadWrittenAndNotified_data() { eachFlatStyle(); }
    void everyPropertyOfAFlatStyleIsReadWrittenAndNotified()
    {
        const auto object = fetchedStyle();
        QVERIFY(object);
        int count = 0;
        const auto check = [&count](const QString &path, QObject *owner, const QMetaProperty &property) {
            ++count;
            QVERIFY2(property.isWritable() && property.hasNotifySignal(), qPrintable(path));
            QSignalSpy changes(owner, property.notifySignal().methodSignature().prepend('0' + QSIGNAL_CODE));
            const QVariant value = reflection::distinct(property.metaType());
            QVERIFY2(property.write(owner, value), qPrintable(path));
            QVERIFY2(property.read(owner) == value, qPrintable(path));
            QCOMPARE(changes.count(), 1);
            property.write(owner, value);
            QCOMPARE(changes.count(), 1);
        };
        reflection::visitFields(object.get(), QString(), check);
        QVERIFY(count >= 4);
    }

    void theFlatStylesHaveTheirProperties_data();
    void theFlatStylesHaveTheirProperties()
    {
        QFETCH(QString, properties);
        const auto object = fetchedStyle();
        QVERIFY(object);
        QStringList names;
        reflection::visitFields(object.get(), QString(),
                                [&names](const QString &path, QObject *, const QMetaProperty &) {
                                    names.append(path.mid(1));
                                });
        names.sort();
        QCOMPARE(names.join(u' '), properties);
    }

    void anIconsSidesAreThoseOfItsSize()
    {
        const auto object = make("CheckBoxQmlStyle { icon.size: Qt.size(3, 5); property int w: icon.width\n"
                                 "    property int h: icon.height }");
        QVERIFY(object);
        QCOMPARE(object->property("w").toInt(), 3);
        QCOMPARE(object->property("h").toInt(), 5);
        auto *icon = object->property("icon").value<QObject *>();
        QVERIFY(icon->setProperty("width", 7));
        QVERIFY(icon->setProperty("height", 11));
        QCOMPARE(icon->property("size").toSize(), QSize(7, 11));
        QCOMPARE(object->property("w").toInt(), 7);
        QCOMPARE(object->property("h").toInt(), 11);
    }

    void qmlSetsGroupsInADeclaration()
    {
        const auto object = make("BusyIndicatorQmlStyle { header.color: 'red'; header.font.pixelSize: 37\n"
                                 "    description.marginLeft: 41; width: 43 }");
        QVERIFY(object);
        QCOMPARE(object->property("header").value<QObject *>()->property("font").value<QFont>().pixelSize(),
                 37);
        QCOMPARE(object->property("description").value<QObject *>()->property("marginLeft").toInt(), 41);
        QCOMPARE(object->property("header").value<QObject *>()->property("marginLeft").toInt(), 0);
    }

    void colourMethodsGiveQmlAListByState_data();
    void colourMethodsGiveQmlAListByState()
    {
        QFETCH(QByteArray, states);
        QFETCH(QByteArray, method);
        const QByteArray body = " { " + states + ".normal: '#010203'; " + states + ".checked: '#040506'; "
                                + states + ".disabled: '#070809'; " + states
                                + ".focused: '#0a0b0c'\n"
                                  "    property var list: "
                                + method
                                + "()\n"
                                  "    property int length: list.length; property color second: list[1]\n"
                                  "    property string all: Array.from(list).join(' ') }";
        QFETCH(QByteArray, name);
        const auto object = make(name + body);
        QVERIFY(object);
        QCOMPARE(object->property("length").toInt(), 4);
        QCOMPARE(object->property("second").value<QColor>(), QColor(4, 5, 6));
        QCOMPARE(object->property("all").toString(), QStringLiteral("#010203 #040506 #070809 #0a0b0c"));
    }

    void theStyleClassesOfQmlAreTheSameAsThoseOfCpp()
    {
        QVERIFY(qobject_cast<TileQmlStyle *>(make("TileQmlStyle {}").get()));
        QVERIFY(qobject_cast<LineEditQmlStyle *>(make("LineEditQmlStyle {}").get()));
    }
};

void tst_StyleObjects::colourMethodsGiveQmlAListByState_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("states");
    QTest::addColumn<QByteArray>("method");
    const auto row = [](const char *name, const char *states, const char *method) {
        QTest::newRow(method) << QByteArray(name) << QByteArray(states) << QByteArray(method);
    };
    row("CheckBoxQmlStyle", "indicator", "indicatorColors");
    row("CheckBoxQmlStyle", "iconStates", "iconColors");
    row("CheckBoxQmlStyle", "titleStates", "titleColors");
    row("LineEditQmlStyle", "background", "backgroundColors");
    row("LineEditQmlStyle", "text", "textColors");
    row("LineEditQmlStyle", "placeholder", "placeholderTextColors");
}

void tst_StyleObjects::theFlatStylesHaveTheirProperties_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("properties");
    const auto row = [](const char *name, const char *properties) {
        QStringList names = QString::fromLatin1(properties).split(u' ');
        names.sort();
        QTest::newRow(name) << QByteArray(name) << names.join(u' ');
    };
    row("BusyIndicatorQmlStyle",
        "header.font header.color header.marginLeft header.marginRight description.font "
        "description.color description.marginLeft description.marginRight width height "
        "penWidth");
    row("CheckBoxQmlStyle",
        "roundingRadius icon.path icon.size title.font spacing indicator iconStates titleStates");
    row("KeyboardQmlStyle", "keyRoundingRadius keySpacing keyHeight keyWidth");
    row("LineEditQmlStyle",
        "roundingRadius errorFrameWidth errorFrameColor font marginLeft marginTop marginRight "
        "marginBottom cursorWidth background text placeholder");
    row("MainMenuButtonQmlStyle",
        "backgroundCheckedHeight backgroundFocusedHeight normalBackgroundColor checkedBackgroundColor "
        "focusedBackgroundColor text.font normalTextColor checkedTextColor focusedTextColor "
        "decorationGeometry "
        "leftPadding rightPadding topPadding bottomPadding focusedRoundingRadius checkedRoundingRadius");
    row("TabButtonQmlStyle",
        "backgroundNormalColor backgroundFocusedColor backgroundSelectedColor textNormalColor "
        "textFocusedColor textSelectedColor marginTop marginBottom marginLeft marginRight "
        "roundingRadius minSize font");
}

STB_TEST_MAIN(tst_StyleObjects)
#include "tst_styleobjects.moc"
