// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"
#include "themefile.h"

#include <design_system/qmldesignsystem.h>

using namespace design_system;

// Files that are no theme: one warning, the compiled-in values, no crash and no wait.
class tst_ThemeFiles : public stbtest::TestCase
{
    Q_OBJECT

    static bool isDefault(const QmlDesignSystem &system)
    {
        const QmlDesignSystem untouched;
        return system.contentTileStyle()->style() == untouched.contentTileStyle()->style()
               && system.playerEpgDelegateStyle()->style() == untouched.playerEpgDelegateStyle()->style()
               && system.animationSettings() == untouched.animationSettings();
    }

private Q_SLOTS:
    void whatIsNoThemeIsOneWarningAndTheDefaults_data();
    void whatIsNoThemeIsOneWarningAndTheDefaults()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, warning);
        const TestTheme file(content);
        QmlDesignSystem system;
        file.expectWarningLike(warning);
        QVERIFY(!system.setTheme(file.path()));
        QVERIFY(isDefault(system));
        QCOMPARE(system.theme(), file.path());
    }

    void aMissingFileIsOneWarningAndTheDefaults()
    {
        QmlDesignSystem system;
        QTest::ignoreMessage(QtWarningMsg, "Theme /no/such/theme.json: expected a readable file");
        QVERIFY(!system.setTheme(QStringLiteral("/no/such/theme.json")));
        QVERIFY(isDefault(system));
    }

    void aFolderIsNoTheme()
    {
        const QTemporaryDir folder;
        QmlDesignSystem system;
        const QString warning = QStringLiteral("Theme %1: expected a readable file").arg(folder.path());
        QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        QVERIFY(!system.setTheme(folder.path()));
        QVERIFY(isDefault(system));
    }

    void aDeviceWithoutEndIsNotRead()
    {
        QmlDesignSystem system;
        QTest::ignoreMessage(QtWarningMsg, "Theme /dev/zero: expected a readable file");
        QVERIFY(!system.setTheme(QStringLiteral("/dev/zero")));
        QVERIFY(isDefault(system));
    }

    void aByteOrderMarkIsNoError()
    {
        const TestTheme file("\xEF\xBB\xBF{\"animation\": {\"duration\": 123}}");
        QmlDesignSystem system;
        QVERIFY(system.setTheme(file.path()));
        QCOMPARE(system.animationSettings().duration, 123);
    }

    void ofKeysThatAreThereTwiceTheLastOneCounts()
    {
        const TestTheme file(R"({"animation": {"duration": 123, "duration": 321}})");
        QmlDesignSystem system;
        QVERIFY(system.setTheme(file.path()));
        QCOMPARE(system.animationSettings().duration, 321);
    }

    void anEmptyObjectIsTheDefaultTheme()
    {
        const TestTheme file("{}");
        QmlDesignSystem system;
        QVERIFY(system.setTheme(file.path()));
        QVERIFY(isDefault(system));
    }

    void nestingUpToTheSizeLimitIsOneWarningOfTheFieldItStandsIn()
    {
        QByteArray nested("{\"animation\": {\"duration\": ");
        nested += QByteArray(500, '[') + QByteArray(500, ']') + "}}";
        const TestTheme file(nested);
        QmlDesignSystem system;
        file.expectWarning(
                QStringLiteral("animation.duration: expected a whole number, 0 or more, got an array"));
        QVERIFY(system.setTheme(file.path()));
        QVERIFY(isDefault(system));
    }

    void beyondTwentyWarningsTheyAreOnlyCounted()
    {
        QByteArray content("{\"keyboardStyle\": {");
        for (int i = 1000; i < 2037; ++i)
            content += "\"unknown" + QByteArray::number(i) + "\": 1,";
        content.chop(1);
        const TestTheme file(content + "}}");
        QmlDesignSystem system;
        for (int i = 1000; i < 1020; ++i)
            file.expectWarningLike(QStringLiteral("keyboardStyle.unknown%1: expected one of ").arg(i));
        file.expectWarning(QStringLiteral("1017 more problems"));
        QVERIFY(system.setTheme(file.path()));
    }

    void theNextReadingWarnsAnew()
    {
        const TestTheme file(R"({"unknown": 1})");
        QmlDesignSystem system;
        const QString warning = QStringLiteral("unknown: expected a section of a theme as the key, got 1");
        file.expectWarning(warning);
        QVERIFY(system.setTheme(file.path()));
        file.expectWarning(warning);
        QVERIFY(system.setTheme(file.path()));
    }

    void aKeyOfManyLinesAndManyLettersIsOneShortLine()
    {
        const TestTheme file("{\"a\\nb" + QByteArray(1000000, 'x') + "\": 1}");
        QmlDesignSystem system;
        file.expectWarningLike(
                QStringLiteral("a\\?bx{177}…: expected a section of a theme as the key, got 1$"));
        QVERIFY(system.setTheme(file.path()));
    }
};

void tst_ThemeFiles::whatIsNoThemeIsOneWarningAndTheDefaults_data()
{
    constexpr int tenMegabytes = 10 * 1000 * 1000;
    constexpr int oneMegabyte = 1000 * 1000;
    const QString tooLarge = QStringLiteral("expected at most 4194304 bytes$");
    const QString noJson = QStringLiteral("expected JSON; .+ at line 1, column \\d+$");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("warning");
    QTest::newRow("empty") << QByteArray("") << noJson;
    QTest::newRow("blank") << QByteArray(" \t ") << noJson;
    QTest::newRow("prose") << QByteArray("The quick brown fox") << noJson;
    QTest::newRow("picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << noJson;
    QTest::newRow("zeros") << QByteArray(1000, '\0') << noJson;
    QTest::newRow("only a mark of byte order") << QByteArray("\xEF\xBB\xBF") << noJson;
    QTest::newRow("array") << QByteArray("[1, 2]") << QStringLiteral("expected an object, got an array$");
    QTest::newRow("bare number") << QByteArray("17") << noJson;
    QTest::newRow("bare text") << QByteArray("\"17\"") << noJson;
    QTest::newRow("cut off") << QByteArray("{\"animation\": {\"duration\": 1") << noJson;
    QTest::newRow("trailing garbage") << QByteArray("{} x") << noJson;
    QTest::newRow("two objects") << QByteArray("{}{}") << noJson;
    QTest::newRow("not a number") << QByteArray("{\"animation\": {\"duration\": NaN}}") << noJson;
    QTest::newRow("infinity") << QByteArray("{\"animation\": {\"duration\": Infinity}}") << noJson;
    QTest::newRow("comment") << QByteArray("{ /* why */ }") << noJson;
    QTest::newRow("broken text") << QByteArray("{\"\xff\xfe\": 1}") << noJson;
    QTest::newRow("error on the third line") << QByteArray("{\n\"animation\": {},\n  x}")
                                             << QStringLiteral("expected JSON; .+ at line 3, column \\d+$");
    QTest::newRow("10 MB of open brackets") << QByteArray(tenMegabytes, '[') << tooLarge;
    QTest::newRow("10 MB of objects") << QByteArray("{\"a\":").repeated(tenMegabytes / 5) << tooLarge;
    QTest::newRow("1 MB of open brackets") << QByteArray(oneMegabyte, '[') << noJson;
    QTest::newRow("1 MB of objects") << QByteArray("{\"a\":").repeated(oneMegabyte / 5) << noJson;
    QTest::newRow("1 MB of closed brackets")
            << QByteArray(oneMegabyte, '[') + QByteArray(oneMegabyte, ']') << noJson;
    QTest::newRow("one byte too much") << "{}" + QByteArray(4194304 - 1, ' ') << tooLarge;
}

STB_TEST_MAIN(tst_ThemeFiles)
#include "tst_themefiles.moc"
