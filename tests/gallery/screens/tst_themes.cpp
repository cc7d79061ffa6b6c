// SPDX-License-Identifier: MIT
#include "gallery/screens/themes.h"
#include "testkit/testcase.h"

#include <design_system/qmldesignsystem.h>

#include <QtCore/qset.h>

/*! The names of the themes that are built in. */
class TestThemes : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theDefaultIsFirst()
    {
        QCOMPARE(gallery::themeNames(), (QStringList { "default", "light", "contrast", "copper" }));
    }

    void everyNameIsThatOfAThemeWithColoursOfItsOwn()
    {
        design_system::QmlDesignSystem design;
        QSet<QString> colours;
        const QStringList names = gallery::themeNames();
        for (const QString &name : names) {
            QVERIFY(design.setTheme(gallery::themePath(name)));
            colours.insert(design.colors()->token(QStringLiteral("berlin")).name());
        }
        QCOMPARE(colours.size(), names.size());
    }

    void aPathLeadsBackToItsName()
    {
        const QStringList names = gallery::themeNames();
        for (const QString &name : names)
            QCOMPARE(gallery::themeName(gallery::themePath(name)), name);
    }

    void theDefaultsPathIsEmptyOrItsFiles()
    {
        QCOMPARE(gallery::themePath("default"), QString());
        QCOMPARE(gallery::themeName(":/stbui/design/themes/default.json"), "default");
    }

    void aResourceMayBeAUrl()
    {
        QCOMPARE(gallery::themeName("qrc:/stbui/design/themes/copper.json"), "copper");
    }

    void whatIsNotBuiltInHasNoNameAndNoPath()
    {
        QCOMPARE(gallery::themeName("/home/light.json"), QString());
        QCOMPARE(gallery::themeName("light"), QString());
        QCOMPARE(gallery::themePath("sepia"), QString());
        QCOMPARE(gallery::themePath(""), QString());
    }
};

STB_TEST_MAIN(TestThemes)
#include "tst_themes.moc"
