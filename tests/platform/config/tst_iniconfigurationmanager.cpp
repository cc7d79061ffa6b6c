// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <stbconfig/iniconfigurationmanager.h>

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qregularexpression.h>
#include <QtCore/qtemporarydir.h>

#include <sys/stat.h>
#include <sys/sysmacros.h>

using stbconfig::IniConfigurationManager;

class tst_IniConfigurationManager : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("box.ini"));
    }

    void aMissingFileIsAnEmptyStoreAndIsNotMade()
    {
        const IniConfigurationManager store(m_path);
        QCOMPARE(store.fileName(), m_path);
        QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("theme"), 43), QVariant(43));
        QVERIFY(!QFile::exists(m_path));
    }

    void anEmptyFileIsAnEmptyStore()
    {
        write("");
        const IniConfigurationManager store(m_path);
        QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("theme"), 43), QVariant(43));
    }

    void aFileWrittenByHandIsRead_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("expected");
        const auto row = [](const char *name, const char *content, const char *group, const char *key,
                            const QVariant &expected) {
            QTest::newRow(name) << QByteArray(content) << QString::fromUtf8(group) << QString::fromUtf8(key)
                                << expected;
        };
        const char *usual = "; a comment\n[UI]\nresolution=fullhd\ntextScale=1.25\n\n"
                            "[Animations]\nfocusingEnabled=false\nslidingEnabled = 1\n";
        row("text", usual, "UI", "resolution", QStringLiteral("fullhd"));
        row("number", usual, "UI", "textScale", QStringLiteral("1.25"));
        row("switch", usual, "Animations", "focusingEnabled", QStringLiteral("false"));
        row("spaces around =", usual, "Animations", "slidingEnabled", QStringLiteral("1"));
        row("key of another group", usual, "Animations", "resolution", QStringLiteral("(default)"));
        row("missing key", usual, "UI", "theme", QStringLiteral("(default)"));
        row("missing group", usual, "Network", "theme", QStringLiteral("(default)"));
        row("other case", usual, "ui", "resolution", QStringLiteral("(default)"));
        row("empty value", "[UI]\ntheme=\n", "UI", "theme", QString(QLatin1String("")));
        row("no line end at the end", "[UI]\ntheme=a", "UI", "theme", QStringLiteral("a"));
        row("CR LF", "[UI]\r\ntheme=a\r\nlanguage=de\r\n", "UI", "language", QStringLiteral("de"));
        row("UTF-8", "[UI]\ntheme=\xC3\xA4\xE2\x82\xAC\n", "UI", "theme", QString::fromUtf8("ä€"));
        row("mark, then a section", "\xEF\xBB\xBF[UI]\ntheme=\xC3\xA4\n", "UI", "theme",
            QString::fromUtf8("ä"));
        row("mark, then a key", "\xEF\xBB\xBFtheme=a\n[UI]\ntheme=b\n", "General", "theme",
            QStringLiteral("a"));
        row("mark, then a comment", "\xEF\xBB\xBF; c\r\n[UI]\r\ntheme=a\r\n", "UI", "theme",
            QStringLiteral("a"));
        row("mark, then nothing", "\xEF\xBB\xBF", "UI", "theme", QStringLiteral("(default)"));
        row("quotes", "[UI]\ntheme=\"a, b; c\"\n", "UI", "theme", QStringLiteral("a, b; c"));
        row("commas", "[UI]\ntheme=/a,b/c.json\n", "UI", "theme", QStringLiteral("/a,b/c.json"));
        row("section General", "[General]\ntheme=a\n", "General", "theme", QStringLiteral("a"));
        row("section General without a name", "[General]\ntheme=a\n", "", "theme", QStringLiteral("a"));
        row("before any section", "theme=a\n[UI]\ntheme=b\n", "General", "theme", QStringLiteral("a"));
        row("section twice", "[UI]\na=1\n[B]\nc=2\n[UI]\nd=3\n", "UI", "d", QStringLiteral("3"));
    }

    void aFileWrittenByHandIsRead()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, group);
        QFETCH(QString, key);
        QFETCH(QVariant, expected);
        write(content);
        const IniConfigurationManager store(m_path);
        QCOMPARE(store.value(group, key, QStringLiteral("(default)")), expected);
    }

    void switchesOfEverySpellingConvertAsQVariantConvertsThem()
    {
        write("[A]\na=true\nb=false\nc=1\nd=0\ne=\nf=\"false\"\n");
        const IniConfigurationManager store(m_path);
        QString answers;
        for (const char *key : { "a", "b", "c", "d", "e", "f", "missing" })
            answers += store.value(QStringLiteral("A"), QLatin1String(key), true).toBool() ? u'1' : u'0';
        QCOMPARE(answers, QStringLiteral("1010001"));
    }

    void aListStaysAListWhereTheDefaultIsOne()
    {
        write("[A]\nnames=one, two,three\n");
        const IniConfigurationManager store(m_path);
        const QStringList expected { QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three") };
        QCOMPARE(store.value(QStringLiteral("A"), QStringLiteral("names"), QStringList()), QVariant(expected));
        QCOMPARE(store.value(QStringLiteral("A"), QStringLiteral("names"), QString()),
                 QVariant(QStringLiteral("one,two,three")));
    }

    void whatCannotBeReadIsAnEmptyStoreWithOneWarningThatNamesIt_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("reason");
        const QString malformed = QStringLiteral("is malformed");
        const QString unreadable = QStringLiteral("cannot be read");
        QTest::newRow("a folder") << QByteArray("<folder>") << unreadable;
        QTest::newRow("a link to itself") << QByteArray("<link>") << unreadable;
        QTest::newRow("a pipe") << QByteArray("<pipe>") << unreadable;
        QTest::newRow("a line that sets nothing") << QByteArray("[UI]\ntheme=a\nhello\n") << malformed;
        QTest::newRow("an open section") << QByteArray("[UI\ntheme=a\n") << malformed;
        QTest::newRow("another format") << QByteArray("{ \"UI\":\n{ \"theme\": 1 }\n}\n") << malformed;
        QTest::newRow("malformed behind a mark") << QByteArray("\xEF\xBB\xBF[UI]\nhello\n") << malformed;
        QTest::newRow("UTF-16") << QByteArray("\xFF\xFE[\0U\0I\0]\0\n\0a\0=\0b\0\n\0", 20) << malformed;
    }

    void whatCannotBeReadIsAnEmptyStoreWithOneWarningThatNamesIt()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, reason);
        if (content == "<folder>")
            QVERIFY(QDir().mkpath(m_path));
        else if (content == "<link>")
            QVERIFY(QFile::link(m_path, m_path));
        else if (content == "<pipe>")
            QCOMPARE(mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
        else
            write(content);
        expectWarning(reason);
        const IniConfigurationManager store(m_path);
        QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("theme"), 43), QVariant(43));
        QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("theme"), 44), QVariant(44));
    }

    void aMalformedFileIsNeverWrittenAndTheValueIsKeptInMemory()
    {
        const QByteArray content("[UI]\ntheme=mine\nhello\n");
        write(content);
        {
            expectWarning(QStringLiteral("is malformed"));
            IniConfigurationManager store(m_path);
            expectWarning(QStringLiteral("cannot be written"));
            QVERIFY(!store.setValue(QStringLiteral("UI"), QStringLiteral("theme"), QStringLiteral("new")));
            QVERIFY(!store.setValue(QStringLiteral("UI"), QStringLiteral("language"), QStringLiteral("de")));
            QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("theme"), 43),
                     QVariant(QStringLiteral("new")));
            QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("language"), 43),
                     QVariant(QStringLiteral("de")));
        }
        QCOMPARE(read(), content);
    }

    void aFileThatBecameMalformedWhileItWasOpenIsNotWrittenEither()
    {
        write("[UI]\ntheme=a\n");
        const QByteArray broken("[UI]\ntheme=much longer than it was before\nhello\n");
        {
            IniConfigurationManager store(m_path);
            QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("theme"), 43),
                     QVariant(QStringLiteral("a")));
            write(broken);
            expectWarning(QStringLiteral("cannot be written"));
            QVERIFY(!store.setValue(QStringLiteral("UI"), QStringLiteral("theme"), QStringLiteral("b")));
            QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("theme"), 43),
                     QVariant(QStringLiteral("b")));
        }
        QCOMPARE(read(), broken);
    }

    void aStoredValueIsThereAtOnceAndAfterAnotherStart_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("reread");
        const QString ui = QStringLiteral("UI");
        const auto text = [](const char *string) { return QVariant(QString::fromUtf8(string)); };
        QTest::newRow("text") << ui << text("fullhd") << text("fullhd");
        QTest::newRow("bool") << ui << QVariant(false) << text("false");
        QTest::newRow("number") << ui << QVariant(17) << text("17");
        QTest::newRow("fraction") << ui << QVariant(1.25) << text("1.25");
        QTest::newRow("comma") << ui << text("/a, b; c/d.json") << text("/a, b; c/d.json");
        QTest::newRow("quotes and \\") << ui << text("\"a\\b\" = %41") << text("\"a\\b\" = %41");
        QTest::newRow("outer spaces") << ui << text("  a ") << text("  a ");
        QTest::newRow("UTF-8") << ui << text("ä€😀") << text("ä€😀");
        QTest::newRow("lines") << ui << text("a\nb\r\n") << text("a\nb\r\n");
        QTest::newRow("@") << ui << text("@a") << text("@a");
        QTest::newRow("empty") << ui << text("") << text("");
        QTest::newRow("General") << QStringLiteral("General") << text("a") << text("a");
        QTest::newRow("no group") << QString() << text("a") << text("a");
        QTest::newRow("group in UTF-8") << QString::fromUtf8("Größe 1") << text("a") << text("a");
    }

    void aStoredValueIsThereAtOnceAndAfterAnotherStart()
    {
        QFETCH(QString, group);
        QFETCH(QVariant, value);
        QFETCH(QVariant, reread);
        const QString key = QStringLiteral("key");
        {
            IniConfigurationManager store(m_path);
            QVERIFY(store.setValue(group, key, value));
            QCOMPARE(store.value(group, key, 43), value);
        }
        forgetWhatQSettingsRemembers();
        const IniConfigurationManager store(m_path);
        QCOMPARE(store.value(group, key, QVariant()), reread);
    }

    void aStoredValueIsInTheFileBeforeTheStoreIsClosed()
    {
        IniConfigurationManager store(m_path);
        QVERIFY(store.setValue(QStringLiteral("Animations"), QStringLiteral("slidingEnabled"), false));
        QCOMPARE(read(), QByteArray("[Animations]\nslidingEnabled=false\n"));
    }

    void theOtherValuesOfTheFileSurviveAWrite()
    {
        write("top=1\n[UI]\ntheme=a\nunknown=\"x, y\"\n[Other]\nlist=1, 2\n");
        {
            IniConfigurationManager store(m_path);
            QVERIFY(store.setValue(QStringLiteral("UI"), QStringLiteral("theme"), QStringLiteral("b")));
        }
        forgetWhatQSettingsRemembers();
        const IniConfigurationManager store(m_path);
        QCOMPARE(store.value(QString(), QStringLiteral("top"), 43), QVariant(QStringLiteral("1")));
        QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("theme"), 43),
                 QVariant(QStringLiteral("b")));
        QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("unknown"), 43),
                 QVariant(QStringLiteral("x, y")));
        QCOMPARE(store.value(QStringLiteral("Other"), QStringLiteral("list"), 43),
                 QVariant(QStringLiteral("1,2")));
    }

    void aWriteTakesTheByteOrderMarkAway()
    {
        write("\xEF\xBB\xBF[UI]\ntheme=a\nlanguage=de\n");
        IniConfigurationManager store(m_path);
        QVERIFY(store.setValue(QStringLiteral("UI"), QStringLiteral("theme"), QStringLiteral("b")));
        QCOMPARE(read(), QByteArray("[UI]\nlanguage=de\ntheme=b\n"));
        QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("theme"), 43),
                 QVariant(QStringLiteral("b")));
        QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("language"), 43),
                 QVariant(QStringLiteral("de")));
    }

    void aLinkToAFileThatIsMissingIsAMissingFile()
    {
        const QString target = m_folder->filePath(QStringLiteral("target.ini"));
        QVERIFY(QFile::link(target, m_path));
        IniConfigurationManager store(m_path);
        QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("theme"), 43), QVariant(43));
    }

    void theNullDeviceIsAnEmptyStore()
    {
        const IniConfigurationManager store(QStringLiteral("/dev/null"));
        QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("theme"), 43), QVariant(43));
    }

    void writingMakesTheFileAndItsFolders()
    {
        m_path = m_folder->filePath(QStringLiteral("new/folders/box.ini"));
        IniConfigurationManager store(m_path);
        QVERIFY(store.setValue(QStringLiteral("UI"), QStringLiteral("theme"), QStringLiteral("a")));
        QCOMPARE(read(), QByteArray("[UI]\ntheme=a\n"));
    }

    void aDeviceIsNeverReplacedByAFile()
    {
        // A null device of the test's own, which no mistake can take away from the system.
        m_path = m_folder->filePath(QStringLiteral("null"));
        if (mknod(qPrintable(m_path), S_IFCHR | 0666, makedev(1, 3)) != 0)
            QSKIP("only root may make a device node");
        IniConfigurationManager store(m_path);
        expectWarning(QStringLiteral("cannot be written"));
        QVERIFY(!store.setValue(QStringLiteral("UI"), QStringLiteral("theme"), QStringLiteral("a")));
        QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("theme"), 43),
                 QVariant(QStringLiteral("a")));
        struct stat status = {};
        QCOMPARE(stat(qPrintable(m_path), &status), 0);
        QVERIFY(S_ISCHR(status.st_mode));
    }

    void aFailedWriteIsOneWarningAndTheValueIsKept()
    {
        write("I am a file");
        m_path += QLatin1String("/below/box.ini");
        IniConfigurationManager store(m_path);
        expectWarning(QStringLiteral("cannot be written"));
        QVERIFY(!store.setValue(QStringLiteral("UI"), QStringLiteral("theme"), QStringLiteral("a")));
        QVERIFY(!store.setValue(QStringLiteral("UI"), QStringLiteral("theme"), QStringLiteral("b")));
        QCOMPARE(store.value(QStringLiteral("UI"), QStringLiteral("theme"), 43),
                 QVariant(QStringLiteral("b")));
    }

    void aWriteThatFailedBeforeSucceedsOnceItCan()
    {
        const QString obstacle = m_path;
        write("I am a file");
        m_path += QLatin1String("/box.ini");
        IniConfigurationManager store(m_path);
        expectWarning(QStringLiteral("cannot be written"));
        QVERIFY(!store.setValue(QStringLiteral("UI"), QStringLiteral("theme"), QStringLiteral("a")));
        QVERIFY(QFile::remove(obstacle));
        QVERIFY(store.setValue(QStringLiteral("UI"), QStringLiteral("language"), QStringLiteral("de")));
        QCOMPARE(read(), QByteArray("[UI]\nlanguage=de\ntheme=a\n"));
    }

private:
    void write(const QByteArray &content) const
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QByteArray read() const
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }

    // Another file name gives another object inside QSettings, which reads what is on the disk.
    void forgetWhatQSettingsRemembers()
    {
        const QString moved = m_path + QLatin1String(".moved");
        QVERIFY(QFile::rename(m_path, moved));
        m_path = moved;
    }

    void expectWarning(const QString &reason) const
    {
        const QString pattern = QLatin1Char('"') + QRegularExpression::escape(m_path) + QLatin1String("\" ")
                                + reason;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(pattern));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

STB_TEST_MAIN(tst_IniConfigurationManager)
#include "tst_iniconfigurationmanager.moc"
