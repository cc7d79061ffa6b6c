// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include "app/languages.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qfile.h>
#include <QtCore/qmap.h>
#include <QtCore/qset.h>
#include <QtCore/qxmlstream.h>
#include <QtGui/qguiapplication.h>

class tst_Languages : public stbtest::TestCase
{
    Q_OBJECT

    /*! The finished texts of a language's file, by context, source and comment. */
    static QMap<QString, QString> catalogue(const QString &code)
    {
        QFile file(QStringLiteral(STBUI_GALLERY_TRANSLATIONS "/stbui_%1.ts").arg(code));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QMap<QString, QString> texts;
        QString context;
        QString key;
        for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
            if (!xml.isStartElement())
                continue;
            if (xml.name() == u"name") {
                context = xml.readElementText();
            } else if (xml.name() == u"source") {
                key = context + u'/' + xml.readElementText();
            } else if (xml.name() == u"comment") {
                key += u'/' + xml.readElementText();
            } else if (xml.name() == u"translation") {
                const bool finished = !xml.attributes().hasAttribute(QStringLiteral("type"));
                texts.insert(key, finished ? xml.readElementText() : QString());
            }
        }
        return texts;
    }

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

    void everyTextIsTranslatedIntoEveryLanguage_data() { everyLanguageHasAllOfTheControlsTexts_data(); }
    void everyTextIsTranslatedIntoEveryLanguage()
    {
        QFETCH(QString, code);
        const QMap<QString, QString> texts = catalogue(code);
        const QMap<QString, QString> english = catalogue(QStringLiteral("en"));
        QVERIFY(texts.size() > 30);
        QCOMPARE(texts.keys(), english.keys());
        for (auto text = texts.cbegin(); text != texts.cend(); ++text)
            QVERIFY2(!text.value().isEmpty(), qPrintable(text.key()));
    }

    void everyPlaceInATextIsKept_data() { everyLanguageHasAllOfTheControlsTexts_data(); }
    void everyPlaceInATextIsKept()
    {
        QFETCH(QString, code);
        const QMap<QString, QString> texts = catalogue(code);
        for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
            for (const char *place : { "%1", "%2" })
                QVERIFY2(text.key().count(QLatin1String(place)) == text.value().count(QLatin1String(place)),
                         qPrintable(text.key()));
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
