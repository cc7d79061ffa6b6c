// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include "app/languages.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qset.h>
#include <QtGui/qguiapplication.h>

class tst_Languages : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { QVERIFY(gallery::installLanguage(QStringLiteral("en"))); }

    void fourLanguagesAndEnglishFirst()
    {
        QCOMPARE(gallery::languageCodes(), (QStringList { "en", "ru", "de", "ar" }));
    }

    void theFirstLanguageThatThereIsIsTaken_data()
    {
        QTest::addColumn<QStringList>("wanted");
        QTest::addColumn<QString>("best");
        QTest::newRow("plain code") << QStringList { "de" } << "de";
        QTest::newRow("region with a hyphen") << QStringList { "ru-RU" } << "ru";
        QTest::newRow("region with an underscore") << QStringList { "ar_EG" } << "ar";
        QTest::newRow("script and region") << QStringList { "ar-Arab-EG" } << "ar";
        QTest::newRow("upper case") << QStringList { "DE" } << "de";
        QTest::newRow("an unknown one before") << QStringList { "fr-FR", "de-AT" } << "de";
        QTest::newRow("only unknown ones") << QStringList { "fr", "C" } << "en";
        QTest::newRow("none") << QStringList {} << "en";
    }
    void theFirstLanguageThatThereIsIsTaken()
    {
        QFETCH(QStringList, wanted);
        QTEST(gallery::bestLanguage(wanted), "best");
    }

    void theUsersOwnCountryDecidesHowDatesAreWritten()
    {
        const QLocale austria(QLocale::German, QLocale::Austria);
        QCOMPARE(gallery::localeOf(QStringLiteral("de"), austria), austria);
        QCOMPARE(gallery::localeOf(QStringLiteral("de"), QLocale(QLocale::Russian)).territory(),
                 QLocale::Germany);
    }

    void everyLanguageHasAllOfTheControlsTexts_data()
    {
        QTest::addColumn<QString>("code");
        for (const QString &code : gallery::languageCodes())
            QTest::newRow(qPrintable(code)) << code;
    }
    void everyLanguageHasAllOfTheControlsTexts()
    {
        QFETCH(QString, code);
        QVERIFY(gallery::installLanguage(code));
        const QList<QPair<const char *, const char *>> keys {
            { "QObject", "NOW_IN_LIVE" },
            { "QObject", "WATCH_UNAVAILABLE" },
            { "QObject", "LIVE_SOON" },
            { "QObject", "ADD_REMINDER" },
            { "QObject", "DELETE_REMINDER" },
            { "QObject", "PLAYING" },
            { "stbui::EpgListModel", "REMINDER_WAS_SET" },
            { "stbui::EpgListModel", "ON" },
            { "stbui::EpgListModel", "PLAYING" },
        };
        for (const auto &[context, key] : keys) {
            const QString text = QCoreApplication::translate(context, key);
            QVERIFY2(!text.isEmpty() && text != QLatin1String(key), key);
        }
    }

    void theScreensTextsDifferBetweenLanguages()
    {
        QSet<QString> texts;
        for (const QString &code : gallery::languageCodes()) {
            QVERIFY(gallery::installLanguage(code));
            texts.insert(QCoreApplication::translate("GuideScreen", "No programmes on this day"));
        }
        QCOMPARE(texts.size(), gallery::languageCodes().size());
    }

    void onlyArabicIsReadFromTheRight()
    {
        for (const QString &code : gallery::languageCodes()) {
            QVERIFY(gallery::installLanguage(code));
            QCOMPARE(QGuiApplication::layoutDirection(), code == "ar" ? Qt::RightToLeft : Qt::LeftToRight);
        }
    }

    void anUnknownLanguageChangesNothing()
    {
        QVERIFY(gallery::installLanguage(QStringLiteral("de")));
        QVERIFY(!gallery::installLanguage(QStringLiteral("xx")));
        QCOMPARE(QLocale().language(), QLocale::German);
        QCOMPARE(QCoreApplication::translate("GuideScreen", "Channel"), "Sender");
    }
};

STB_TEST_MAIN(tst_Languages)
#include "tst_languages.moc"
