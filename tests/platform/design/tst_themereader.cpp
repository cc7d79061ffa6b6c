// SPDX-License-Identifier: MIT
#include "reflection.h"
#include "testkit/testcase.h"
#include "themefile.h"

#include <design_system/qmldesignsystem.h>

#include <QtCore/qjsondocument.h>
#include <QtGui/qpen.h>

using namespace design_system;

namespace {

// JSON with its quotes written as apostrophes.
QByteArray json(QByteArray text)
{
    return text.replace('\'', '"');
}

} // namespace

class tst_ThemeReader : public stbtest::TestCase
{
    Q_OBJECT

    // A value for each field of a section, as a theme file writes it; the values themselves go to expected.
    static QJsonObject sectionJson(QObject *object, const QString &path, QHash<QString, QVariant> &expected)
    {
        QJsonObject section;
        for (const QMetaProperty &property : reflection::fields(object->metaObject())) {
            const QString name = QString::fromLatin1(property.name());
            if (auto *group = property.read(object).value<QObject *>()) {
                section.insert(name, sectionJson(group, path + u'.' + name, expected));
                continue;
            }
            const QVariant value = reflection::distinct(property.metaType());
            const bool isStyle = name == QLatin1String("style");
            expected.insert(isStyle ? path : path + u'.' + name, value);
            if (isStyle)
                return reflection::toJson(value).toObject();
            section.insert(name, reflection::toJson(value));
        }
        return section;
    }

private Q_SLOTS:
    void aThemeThatNamesEveryFieldIsReadBackWhole()
    {
        QmlDesignSystem system;
        QJsonObject theme;
        QHash<QString, QVariant> expected;
        for (const QMetaProperty &section : reflection::fields(system.metaObject())) {
            const QString name = QString::fromLatin1(section.name());
            theme.insert(name, sectionJson(section.read(&system).value<QObject *>(), name, expected));
        }
        QCOMPARE(theme.size(), 21);

        const TestTheme file(QJsonDocument(theme).toJson());
        QVERIFY(system.setTheme(file.path()));
        qsizetype compared = 0;
        for (const QMetaProperty &section : reflection::fields(system.metaObject())) {
            reflection::visitFields(section.read(&system).value<QObject *>(),
                                    QString::fromLatin1(section.name()),
                                    [&](const QString &path, QObject *object, const QMetaProperty &property) {
                                        ++compared;
                                        QVERIFY2(property.read(object) == expected.value(path),
                                                 qPrintable(path));
                                    });
        }
        QCOMPARE(compared, expected.size());
        QVERIFY(compared > 80);
    }

    void aFieldThatCannotBeReadKeepsTheDefault_data();
    void aFieldThatCannotBeReadKeepsTheDefault()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, warning);
        const TestTheme file(content);
        QmlDesignSystem system;
        QHash<QString, QVariant> before;
        const auto visit = [&system](const std::function<void(const QString &, const QVariant &)> &compare) {
            for (const QMetaProperty &section : reflection::fields(system.metaObject())) {
                reflection::visitFields(section.read(&system).value<QObject *>(),
                                        QString::fromLatin1(section.name()),
                                        [&](const QString &path, QObject *object,
                                            const QMetaProperty &property) {
                                            compare(path, property.read(object));
                                        });
            }
        };
        visit([&before](const QString &path, const QVariant &value) { before.insert(path, value); });

        file.expectWarning(warning);
        QVERIFY(system.setTheme(file.path()));
        visit([&before](const QString &path, const QVariant &value) {
            QVERIFY2(before.value(path) == value, qPrintable(path));
        });
    }

    void theGoodFieldsBesideABadOneAreRead()
    {
        const TestTheme file(
                json("{'keyboardStyle': {'keyHeight': 'tall', 'keyWidth': 77, 'keySpacing': 3}}"));
        QmlDesignSystem system;
        file.expectWarning(
                QStringLiteral("keyboardStyle.keyHeight: expected a whole number of pixels, got \"tall\""));
        QVERIFY(system.setTheme(file.path()));
        QCOMPARE(system.keyboardStyle()->property("keyWidth").toInt(), 77);
        QCOMPARE(system.keyboardStyle()->property("keySpacing").toInt(), 3);
        QCOMPARE(system.keyboardStyle()->property("keyHeight").toInt(), 60);
    }

    void aThemeThatChangesATokenChangesWhatTheDefaultThemePaintsWithIt()
    {
        const TestTheme file(json("{'colors': {'berlin': '#FF112233'}}"));
        QmlDesignSystem system;
        QVERIFY(system.setTheme(file.path()));
        QCOMPARE(system.colors()->property("berlin").value<QColor>(), QColor(0x11, 0x22, 0x33));
        QCOMPARE(system.playerEpgDelegateStyle()->style().liveStartTimeColor, QColor(0x11, 0x22, 0x33));
    }

    void aThemeMayNameTokensOfItsOwn()
    {
        const TestTheme file(
                json("{'colors': {'perth': '#12345678'}, 'lineEditStyle': {'errorFrameColor': 'perth'}}"));
        QmlDesignSystem system;
        QVERIFY(system.setTheme(file.path()));
        const QColor perth = QColor::fromRgba(0x12345678);
        QCOMPARE(system.colors()->token(QStringLiteral("perth")), perth);
        QCOMPARE(system.lineEditStyle()->property("errorFrameColor").value<QColor>(), perth);
        QVERIFY(!system.colors()->token(QStringLiteral("nowhere")).isValid());
    }

    void aColourWithoutAlphaIsOpaque()
    {
        const TestTheme file(json("{'lineEditStyle': {'errorFrameColor': '#0a0B0c'}}"));
        QmlDesignSystem system;
        QVERIFY(system.setTheme(file.path()));
        QCOMPARE(system.lineEditStyle()->property("errorFrameColor").value<QColor>(), QColor(10, 11, 12, 255));
    }

    void aPenKeepsWhatItsObjectDoesNotName()
    {
        const TestTheme file(json("{'vodTileStyle': {'borderPen': {'color': '#80010203'}}}"));
        QmlDesignSystem system;
        QVERIFY(system.setTheme(file.path()));
        const QPen pen = system.vodTileStyle()->style().borderPen;
        QCOMPARE(pen.color(), QColor(1, 2, 3, 0x80));
        QCOMPARE(pen.width(), 0);
    }

    void aFontIsARoleOrARoleWithChangesOrTheDefaultWithChanges()
    {
        const TestTheme file(
                json("{'fonts': {'Body': {'pixelSize': 31, 'weight': 333}}, "
                     "'lineEditStyle': {'font': 'Body'}, "
                     "'tabButtonStyle': {'font': {'role': 'Body', 'italic': true, 'family': 'Serif'}}, "
                     "'mainMenuButtonQmlStyle': {'text': {'font': {'letterSpacing': 3}}}}"));
        QmlDesignSystem system;
        const auto menuFont = [&system] {
            return system.mainMenuButtonQmlStyle()->text()->property("font").value<QFont>();
        };
        const QFont before = menuFont();
        QVERIFY(system.setTheme(file.path()));
        const auto edit = system.lineEditStyle()->property("font").value<QFont>();
        QCOMPARE(edit.pixelSize(), 31);
        QCOMPARE(int(edit.weight()), 333);
        const auto tab = system.tabButtonStyle()->property("font").value<QFont>();
        QCOMPARE(tab.pixelSize(), 31);
        QVERIFY(tab.italic());
        QCOMPARE(tab.families(), QStringList({ QStringLiteral("Serif") }));
        QCOMPARE(menuFont().letterSpacing(), 3.0);
        QCOMPARE(menuFont().pixelSize(), before.pixelSize());
        QCOMPARE(menuFont().families(), before.families());
    }

    void oneFamilyChangesEveryFontOfTheTheme()
    {
        const TestTheme file(
                json("{'fonts': {'family': ['Some Sans', 'sans-serif'], 'Body': {'family': 'Other'}}}"));
        QmlDesignSystem system;
        QVERIFY(system.setTheme(file.path()));
        QCOMPARE(system.unscaledFont(FontHd::H1, 0).families().constFirst(), QStringLiteral("Some Sans"));
        QCOMPARE(system.unscaledFont(FontHd::Body, 0).families(), QStringList({ QStringLiteral("Other") }));
        QCOMPARE(system.playerEpgDelegateStyle()->style().titleTextStyle.font.families().constFirst(),
                 QStringLiteral("Some Sans"));
    }

    void theBasePartIsForHdAndScaledForOtherScreens_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<int>("length");
        QTest::addColumn<QRect>("rectangle");
        QTest::addColumn<int>("font");
        QTest::newRow("hd") << "hd" << 101 << QRect(11, 21, 33, 1) << 27;
        QTest::newRow("fullhd") << "fullhd" << 152 << QRect(17, 32, 49, 1) << 41;
        QTest::newRow("sd") << "sd" << 81 << QRect(9, 17, 26, 1) << 22;
    }
    void theBasePartIsForHdAndScaledForOtherScreens()
    {
        QFETCH(QString, resolution);
        const TestTheme file(
                json("{'expandableTileStyle': {'captionSpacing': 101, 'tileRect': [11, 21, 33, 1], "
                     "'titleStyle': {'font': {'pixelSize': 27}, 'maxLineCount': 7}}, 'animation': "
                     "{'duration': 77}}"));
        QmlDesignSystem system;
        QVERIFY(system.setTheme(file.path()));
        QVERIFY(system.setResolution(resolution));
        const TileStyle style = system.expandableTileStyle()->style();
        QTEST(style.captionSpacing, "length");
        QTEST(style.tileRect, "rectangle");
        QTEST(style.titleStyle.font.pixelSize(), "font");
        QCOMPARE(style.titleStyle.maxLineCount, 7);
        QCOMPARE(system.animationSettings().duration, 77);
    }

    void aVariantIsTakenAsItIsAndOnlyOnItsScreen()
    {
        const TestTheme file(
                json("{'expandableTileStyle': {'captionSpacing': 100}, "
                     "'variants': {'sd': {'expandableTileStyle': {'captionSpacing': 33}, 'colors': "
                     "{'berlin': '#FF030507'}}}}"));
        QmlDesignSystem system;
        QVERIFY(system.setTheme(file.path()));
        QCOMPARE(system.expandableTileStyle()->style().captionSpacing, 100);
        QVERIFY(system.setResolution(QStringLiteral("sd")));
        QCOMPARE(system.expandableTileStyle()->style().captionSpacing, 33);
        QCOMPARE(system.colors()->token(QStringLiteral("berlin")), QColor(3, 5, 7));
    }

    void aWarningFromAVariantSaysSo()
    {
        const TestTheme file(json("{'variants': {'sd': {'layouts': {'screenWidth': 'wide'}}}}"));
        QmlDesignSystem system;
        QVERIFY(system.setTheme(file.path()));
        file.expectWarning(
                QStringLiteral("variants.sd.layouts.screenWidth: expected a whole number of pixels, "
                               "got \"wide\""));
        QVERIFY(system.setResolution(QStringLiteral("sd")));
        QCOMPARE(system.layouts()->property("screenWidth").toInt(), 720);
    }
};

void tst_ThemeReader::aFieldThatCannotBeReadKeepsTheDefault_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("warning");
    const auto row = [](const char *name, const QByteArray &content, const char *warning) {
        QTest::newRow(name) << content << QString::fromUtf8(warning);
    };
    const auto field = [](const char *name, const QByteArray &key, const QByteArray &value,
                          const char *expected, const char *actual) {
        const QByteArray content = "{\"vodTileStyle\": {\"" + key + "\": " + value + "}}";
        QTest::newRow(name) << content
                            << QStringLiteral("vodTileStyle.%1: expected %2, got %3")
                                       .arg(QString::fromUtf8(key), QString::fromUtf8(expected),
                                            QString::fromUtf8(actual));
    };
    row("unknown section", json("{'tyleStyle': {}}"),
        "tyleStyle: expected a section of a theme as the key, got an object");
    row("QObject's own name", json("{'objectName': 'x'}"),
        "objectName: expected a section of a theme as the key, got \"x\"");
    row("name with a zero", json("{'layouts\\u0000x': {}}"),
        "layouts?x: expected a section of a theme as the key, got an object");
    row("unknown field", json("{'mainMenu': {'shadow': 1}}"),
        "mainMenu.shadow: expected one of shadowWidth as the key, got 1");
    row("objectName of a style", json("{'mainMenu': {'objectName': 'x'}}"),
        "mainMenu.objectName: expected one of shadowWidth as the key, got \"x\"");
    field("unknown field of a struct", "titel", "1", "a property of TileStyle as the key", "1");
    field("a view of a field", "borderWidth", "1", "a property of TileStyle as the key", "1");
    row("unknown field of a text", json("{'vodTileStyle': {'titleStyle': {'size': 1}}}"),
        "vodTileStyle.titleStyle.size: expected a property of TextStyle as the key, got 1");
    row("unknown key of a pen", json("{'vodTileStyle': {'borderPen': {'colour': 1}}}"),
        "vodTileStyle.borderPen.colour: expected one of color, width as the key, got 1");
    row("unknown key of a font", json("{'tabButtonStyle': {'font': {'size': 1}}}"),
        "tabButtonStyle.font.size: expected one of role, family, pixelSize, weight, italic, "
        "letterSpacing as the key, "
        "got 1");
    row("unknown key of a group", json("{'standardCheckBoxStyle': {'icon': {'width': 3}}}"),
        "standardCheckBoxStyle.icon.width: expected one of path, size as the key, got 3");
    row("unknown state", json("{'lineEditStyle': {'text': {'hovered': 'sochi'}}}"),
        "lineEditStyle.text.hovered: expected one of normal, checked, disabled, focused as the key, "
        "got \"sochi\"");
    row("unknown font role", json("{'fonts': {'Giant': {}}}"),
        "fonts.Giant: expected \"family\" or a role as the key, got an object");
    row("unknown resolution", json("{'variants': {'4k': {}}}"),
        "variants.4k: expected one of hd, fullhd, sd as the key, got an object");
    row("section that is none", json("{'vodTileStyle': 3}"), "vodTileStyle: expected an object, got 3");
    row("section that is null", json("{'vodTileStyle': null}"), "vodTileStyle: expected an object, got null");
    row("colours that are none", json("{'colors': []}"), "colors: expected an object, got an array");
    row("fonts that are none", json("{'fonts': 'Body'}"), "fonts: expected an object, got \"Body\"");
    row("variants that are none", json("{'variants': true}"), "variants: expected an object, got true");
    row("variant that is none", json("{'variants': {'hd': []}}"),
        "variants.hd: expected an object, got an array");
    row("token that is no colour", json("{'colors': {'berlin': 'blue'}}"),
        "colors.berlin: expected \"#RRGGBB\" or \"#AARRGGBB\", got \"blue\"");
    row("token that refers to a token", json("{'colors': {'berlin': 'sochi'}}"),
        "colors.berlin: expected \"#RRGGBB\" or \"#AARRGGBB\", got \"sochi\"");
    row("family that is none", json("{'fonts': {'family': []}}"),
        "fonts.family: expected a font family or an array of them, got an array");
    row("family without a name", json("{'fonts': {'family': ['A', '']}}"),
        "fonts.family: expected a font family or an array of them, got an array");
    row("negative time", json("{'animation': {'duration': -1}}"),
        "animation.duration: expected a whole number, 0 or more, got -1");
    row("font height of nothing", json("{'fonts': {'Body': {'pixelSize': 0}}}"),
        "fonts.Body.pixelSize: expected a whole number of pixels from 1 to 1000, got 0");
    row("font height of a house", json("{'fonts': {'Body': {'pixelSize': 1001}}}"),
        "fonts.Body.pixelSize: expected a whole number of pixels from 1 to 1000, got 1001");
    row("unknown weight", json("{'fonts': {'Body': {'weight': 'Heavy'}}}"),
        "fonts.Body.weight: expected a weight such as \"Bold\", or a number from 1 to 1000, got \"Heavy\"");
    row("slant that is a number", json("{'fonts': {'Body': {'italic': 1}}}"),
        "fonts.Body.italic: expected true or false, got 1");
    row("path that is a number", json("{'standardCheckBoxStyle': {'icon': {'path': 1}}}"),
        "standardCheckBoxStyle.icon.path: expected a text, got 1");
    const char *length = "a whole number of pixels";
    field("text for a length", "captionSpacing", json("'8'"), length, "\"8\"");
    field("fraction of a pixel", "captionSpacing", "8.5", length, "8.5");
    field("huge length", "captionSpacing", "1e300", length, "1e+300");
    field("overflowing length", "captionSpacing", "2147483648", length, "2147483648");
    field("length just too large", "captionSpacing", "100001", length, "100001");
    field("bool for a length", "captionSpacing", "true", length, "true");
    field("null for a length", "captionSpacing", "null", length, "null");
    const char *color = "a colour token, \"#RRGGBB\" or \"#AARRGGBB\"";
    field("missing token", "titleColor", json("'atlantis'"), color, "\"atlantis\"");
    field("colour of three digits", "titleColor", json("'#FFF'"), color, "\"#FFF\"");
    field("colour that is not hexadecimal", "titleColor", json("'#GG0000'"), color, "\"#GG0000\"");
    field("colour of a name", "titleColor", json("'red'"), color, "\"red\"");
    field("number for a colour", "titleColor", "16711680", color, "16711680");
    field("empty colour", "titleColor", json("''"), color, "\"\"");
    const char *rect = "[x, y, width, height] in whole pixels";
    field("short rectangle", "tileRect", "[1, 2, 3]", rect, "an array");
    field("long rectangle", "tileRect", "[1, 2, 3, 4, 5]", rect, "an array");
    field("rectangle of negative width", "tileRect", "[1, 2, -3, 4]", rect, "an array");
    field("rectangle of texts", "tileRect", json("['1', 2, 3, 4]"), rect, "an array");
    field("object for a rectangle", "tileRect", json("{'x': 1}"), rect, "an object");
    field("long point", "ratingBadgeOffset", "[1, 2, 3]", "[x, y] in whole pixels", "an array");
    field("short margins", "ratingBadgePadding", "[1]", "[left, top, right, bottom] in whole pixels",
          "an array");
    field("number for a pen", "borderPen", "2", "an object", "2");
    row("negative size", json("{'tabButtonStyle': {'minSize': [-1, 2]}}"),
        "tabButtonStyle.minSize: expected [width, height] in whole pixels, got an array");
    row("missing role", json("{'tabButtonStyle': {'font': 'Giant'}}"),
        "tabButtonStyle.font: expected a role of \"fonts\" or an object, got \"Giant\"");
    row("missing role in an object", json("{'tabButtonStyle': {'font': {'role': 'Giant'}}}"),
        "tabButtonStyle.font.role: expected a role of \"fonts\", got \"Giant\"");
    row("number for a font", json("{'tabButtonStyle': {'font': 24}}"),
        "tabButtonStyle.font: expected a role of \"fonts\" or an object, got 24");
    row("unknown alignment", json("{'vodTileStyle': {'titleStyle': {'alignment': 'AlignMiddle'}}}"),
        "vodTileStyle.titleStyle.alignment: expected an alignment such as "
        "\"AlignHCenter|AlignTop\", got \"AlignMiddle\"");
    row("number for an alignment", json("{'vodTileStyle': {'titleStyle': {'alignment': 4}}}"),
        "vodTileStyle.titleStyle.alignment: expected an alignment such as \"AlignHCenter|AlignTop\", got 4");
    row("negative lines", json("{'vodTileStyle': {'titleStyle': {'maxLineCount': -2}}}"),
        "vodTileStyle.titleStyle.maxLineCount: expected a whole number, 0 or more, got -2");
    row("colour for colours by state", json("{'primaryButtonStyle': {'backgroundColors': 'sochi'}}"),
        "primaryButtonStyle.backgroundColors: expected an object, got \"sochi\"");
}

STB_TEST_MAIN(tst_ThemeReader)
#include "tst_themereader.moc"
