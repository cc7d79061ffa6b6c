// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <stbconfig/iniconfigurationmanager.h>

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>

using stbconfig::qmlConfigManager;
using stbconfig::setQmlConfigManager;

namespace {

class FixedAnswer : public stbconfig::ConfigurationManager
{
public:
    QVariant value(const QString &, const QString &, const QVariant &) const override { return 17; }
};

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

// The choice of the process's store is made once and for all, so that the order of these tests matters: the
// reference store first, and what was set after it.
class tst_QmlConfigManager : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theDefaultFileLiesInTheUsersConfigurationFolder()
    {
        QCOMPARE(stbconfig::IniConfigurationManager::defaultFileName(),
                 qEnvironmentVariable("XDG_CONFIG_HOME") + QLatin1String("/stbui/stbui.ini"));
    }

    void anEmptyVariableNamesNoFile()
    {
        qputenv("STBUI_CONFIG", "");
        QCOMPARE(stbconfig::IniConfigurationManager::defaultFileName(),
                 qEnvironmentVariable("XDG_CONFIG_HOME") + QLatin1String("/stbui/stbui.ini"));
    }

    void theVariableNamesTheFileThatTheFirstUseOpens()
    {
        const QString path = m_folder.filePath(QStringLiteral("box.ini"));
        qputenv("STBUI_CONFIG", path.toLocal8Bit());
        writeFile(path, "[UI]\nroundingEnabled=true\n");
        QVERIFY(qmlConfigManager());
        QCOMPARE(qmlConfigManager()->value(QStringLiteral("UI"), QStringLiteral("roundingEnabled"), false),
                 QVariant(QStringLiteral("true")));
        const auto *store = dynamic_cast<stbconfig::IniConfigurationManager *>(qmlConfigManager());
        QVERIFY(store);
        QCOMPARE(store->fileName(), path);
    }

    void theReferenceStoreStaysTheSameObject()
    {
        qputenv("STBUI_CONFIG", m_folder.filePath(QStringLiteral("later.ini")).toLocal8Bit());
        stbconfig::ConfigurationManager *store = qmlConfigManager();
        QCOMPARE(qmlConfigManager(), store);
        QCOMPARE(store->value(QStringLiteral("UI"), QStringLiteral("roundingEnabled"), false).toBool(), true);
    }

    void theManagerThatWasSetIsReturned()
    {
        FixedAnswer manager;
        setQmlConfigManager(&manager);
        QCOMPARE(qmlConfigManager(), &manager);
        QCOMPARE(qmlConfigManager()->value({}, {}, {}), QVariant(17));
        FixedAnswer other;
        setQmlConfigManager(&other);
        QCOMPARE(qmlConfigManager(), &other);
        setQmlConfigManager(nullptr);
    }

    void settingNullMeansNoneAndNotTheReferenceStore()
    {
        setQmlConfigManager(nullptr);
        QCOMPARE(qmlConfigManager(), nullptr);
        QCOMPARE(qmlConfigManager(), nullptr);
    }

private:
    QTemporaryDir m_folder;
};

STB_TEST_MAIN(tst_QmlConfigManager)
#include "tst_qmlconfigmanager.moc"
