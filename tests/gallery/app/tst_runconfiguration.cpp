// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include "app/runconfiguration.h"

#include <stbconfig/iniconfigurationmanager.h>

#include <QtCore/qfile.h>
#include <QtCore/qregularexpression.h>
#include <QtCore/qtemporarydir.h>

using gallery::RunConfiguration;

/*! The configuration of a run, and what it leaves in the user's file. */
class tst_RunConfiguration : public stbtest::TestCase
{
    Q_OBJECT

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QByteArray content(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;

private Q_SLOTS:
    void initTestCase() { qputenv("STBUI_CONFIG", path("named.ini").toLocal8Bit()); }
    void cleanup() { stbconfig::setQmlConfigManager(nullptr); }

    // The first test: the reference store opens its file when it is first asked for.
    void aChoiceIsWrittenToTheFileThatTheEnvironmentNames()
    {
        RunConfiguration run;
        QCOMPARE(run.value("UI", "language", "none"), "none");
        QVERIFY(run.setValue("UI", "language", "de"));
        QCOMPARE(run.value("UI", "language", "none"), "de");
        QCOMPARE(content("named.ini"), "[UI]\nlanguage=de\n");
    }

    void aChoiceIsFoundByTheNextRun()
    {
        stbconfig::IniConfigurationManager store(path("next.ini"));
        stbconfig::setQmlConfigManager(&store);
        QVERIFY(RunConfiguration().setValue("Animations", "slidingEnabled", false));
        stbconfig::IniConfigurationManager later(path("next.ini"));
        QCOMPARE(later.value("Animations", "slidingEnabled", true).toBool(), false);
    }

    void whatIsSetForTheRunIsNotWritten()
    {
        stbconfig::IniConfigurationManager store(path("run.ini"));
        stbconfig::setQmlConfigManager(&store);
        RunConfiguration run;
        run.setForRun("UI", "resolution", "sd");
        QCOMPARE(run.value("UI", "resolution", "hd"), "sd");
        QVERIFY(!QFile::exists(path("run.ini")));
        QCOMPARE(store.value("UI", "resolution", "hd"), "hd");
    }

    void aChoiceTakesThePlaceOfWhatWasSetForTheRun()
    {
        stbconfig::IniConfigurationManager store(path("choice.ini"));
        stbconfig::setQmlConfigManager(&store);
        RunConfiguration run;
        run.setForRun("UI", "resolution", "sd");
        run.setForRun("UI", "theme", "mine.json");
        QVERIFY(run.setValue("UI", "resolution", "fullhd"));
        QCOMPARE(run.value("UI", "resolution", "hd"), "fullhd");
        QCOMPARE(run.value("UI", "theme", QString()), "mine.json");
        QCOMPARE(content("choice.ini"), "[UI]\nresolution=fullhd\n");
    }

    void aFileThatCannotBeWrittenKeepsTheChoiceForTheRun()
    {
        QFile plain(path("plain"));
        QVERIFY(plain.open(QIODevice::WriteOnly));
        plain.close();
        stbconfig::IniConfigurationManager store(path("plain/store.ini"));
        stbconfig::setQmlConfigManager(&store);
        RunConfiguration run;
        run.setForRun("UI", "language", "ru");
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression("^The configuration file .*store\\.ini\" cannot be written"));
        QVERIFY(!run.setValue("UI", "language", "ar"));
        QCOMPARE(run.value("UI", "language", "en"), "ar");
    }

    void aReadOnlyConfigurationWritesNothing()
    {
        stbconfig::IniConfigurationManager store(path("readonly.ini"));
        stbconfig::setQmlConfigManager(&store);
        RunConfiguration run;
        QVERIFY(!run.isReadOnly());
        run.setReadOnly(true);
        QVERIFY(!run.setValue("UI", "language", "ar"));
        QCOMPARE(run.value("UI", "language", "en"), "ar");
        QVERIFY(!QFile::exists(path("readonly.ini")));
    }

    void withoutAStoreChoicesAreTheRuns()
    {
        stbconfig::setQmlConfigManager(nullptr);
        {
            RunConfiguration run;
            QVERIFY(!run.setValue("UI", "language", "ar"));
            QCOMPARE(run.value("UI", "language", "en"), "ar");
            QCOMPARE(stbconfig::qmlConfigManager(), &run);
        }
        QCOMPARE(stbconfig::qmlConfigManager(), nullptr);
    }

    void theStoreIsReachedThroughItsInterfaceToo()
    {
        stbconfig::IniConfigurationManager store(path("interface.ini"));
        stbconfig::setQmlConfigManager(&store);
        RunConfiguration run;
        gallery::SettingsStore &settings = run;
        QVERIFY(settings.setValue("UI", "textScale", 1.25));
        QCOMPARE(settings.value("UI", "textScale", 1).toDouble(), 1.25);
        QCOMPARE(stbconfig::qmlConfigManager()->value("UI", "textScale", 1).toDouble(), 1.25);
    }
};

STB_TEST_MAIN(tst_RunConfiguration)
#include "tst_runconfiguration.moc"
