// SPDX-License-Identifier: MIT
#include "gallery/data/reminders.h"
#include "testkit/testcase.h"

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qtemporarydir.h>
#include <QtTest/qsignalspy.h>

#include <random>

using namespace gallery;

class TestReminders : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void remindersSurviveARestart();
    void programmesAreToldApartByChannelStartAndTitle();
    void theStartIsTheSameInAnyZone();
    void changesAreToldOnce();
    void whatHasStartedIsDropped();
    void theNextReminderIsTheFirst();
    void whatIsNoProgrammeIsRefused();
    void thereAreOnlySoMany();
    void theFolderIsMade();
    void aDamagedFileIsKeptAside_data();
    void aDamagedFileIsKeptAside();
    void aSecondDamagedFileDoesNotReplaceTheFirst();
    void aFileCutAnywhereIsReadOrKeptAside();
    void randomBytesAreKeptAside();
    void somethingThatIsNoFileIsLeftAlone();
    void aFailedWriteIsToldAndKeepsTheFile();
    void withoutFileNothingIsStored();
};

namespace {

QDateTime time(const char *iso)
{
    return QDateTime::fromString(QLatin1String(iso), Qt::ISODate);
}

const QString channel = QStringLiteral("one.example");
const QString title = QStringLiteral("Über \"das\" Meer");

QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

/*! A folder of its own, and the name of a file in it. */
struct Fixture
{
    QTemporaryDir folder;
    QString fileName = folder.filePath(QStringLiteral("reminders.json"));

    void write(const QByteArray &data) const
    {
        QFile file(fileName);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(data), data.size());
    }
};

} // namespace

void TestReminders::remindersSurviveARestart()
{
    const Fixture fixture;
    {
        Reminders reminders(fixture.fileName);
        QCOMPARE(reminders.error(), QString());
        QVERIFY(reminders.add(channel, time("2015-11-26T20:05:00Z"), title));
        QVERIFY(reminders.add(channel, time("2015-11-26T21:05:00Z"), title));
        QVERIFY(reminders.remove(channel, time("2015-11-26T21:05:00Z"), title));
    }
    const Reminders reminders(fixture.fileName);
    QCOMPARE(reminders.error(), QString());
    const Reminder expected = { channel, time("2015-11-26T20:05:00Z").toSecsSinceEpoch(), title };
    QCOMPARE(reminders.reminders(), QList<Reminder> { expected });
    QVERIFY(contents(fixture.fileName).contains("2015-11-26T20:05:00Z"));
    QCOMPARE(QDir(fixture.folder.path()).entryList(QDir::Files),
             QStringList(QStringLiteral("reminders.json")));
}

void TestReminders::programmesAreToldApartByChannelStartAndTitle()
{
    const Fixture fixture;
    Reminders reminders(fixture.fileName);
    const QDateTime start = time("2015-11-26T20:05:00Z");
    reminders.add(channel, start, title);
    QVERIFY(reminders.contains(channel, start, title));
    QVERIFY(!reminders.contains(QStringLiteral("two.example"), start, title));
    QVERIFY(!reminders.contains(channel, start.addSecs(1), title));
    QVERIFY(!reminders.contains(channel, start, QStringLiteral("Other")));
    QVERIFY(!reminders.contains(channel, QDateTime(), title));
}

void TestReminders::theStartIsTheSameInAnyZone()
{
    const Fixture fixture;
    Reminders reminders(fixture.fileName);
    reminders.add(channel, time("2015-11-26T22:05:00+02:00"), title);
    QVERIFY(reminders.contains(channel, time("2015-11-26T20:05:00Z"), title));
    QVERIFY(!reminders.add(channel, time("2015-11-26T15:05:00-05:00"), title));
}

void TestReminders::changesAreToldOnce()
{
    const Fixture fixture;
    Reminders reminders(fixture.fileName);
    const QSignalSpy spy(&reminders, &Reminders::changed);
    const QDateTime start = time("2015-11-26T20:05:00Z");
    QVERIFY(reminders.add(channel, start, title));
    QCOMPARE(spy.count(), 1);
    QVERIFY(!reminders.add(channel, start, title));
    QVERIFY(!reminders.remove(channel, start.addSecs(7), title));
    reminders.dropExpired(start.addSecs(-1));
    QCOMPARE(spy.count(), 1);
    QVERIFY(reminders.remove(channel, start, title));
    QCOMPARE(spy.count(), 2);
    QCOMPARE(reminders.count(), 0);
}

void TestReminders::whatHasStartedIsDropped()
{
    const Fixture fixture;
    const QDateTime start = time("2015-11-26T20:05:00Z");
    {
        Reminders reminders(fixture.fileName);
        reminders.add(channel, start, title);
        reminders.add(channel, start.addSecs(-60), title);
        reminders.add(channel, start.addSecs(60), title);
        const QSignalSpy spy(&reminders, &Reminders::changed);
        reminders.dropExpired(QDateTime());
        QCOMPARE(reminders.count(), 3);
        reminders.dropExpired(start);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(reminders.count(), 1);
    }
    const Reminders reminders(fixture.fileName);
    QCOMPARE(reminders.count(), 1);
    QVERIFY(reminders.contains(channel, start.addSecs(60), title));
}

void TestReminders::theNextReminderIsTheFirst()
{
    const Fixture fixture;
    Reminders reminders(fixture.fileName);
    for (const int offset : { 7, 3, 5 })
        reminders.add(channel, time("2015-11-26T20:05:00Z").addSecs(offset), QString::number(offset));
    QCOMPARE(reminders.reminders().constFirst().title, QStringLiteral("3"));
    QCOMPARE(reminders.reminders().constLast().title, QStringLiteral("7"));
}

void TestReminders::whatIsNoProgrammeIsRefused()
{
    const Fixture fixture;
    Reminders reminders(fixture.fileName);
    const QDateTime start = time("2015-11-26T20:05:00Z");
    QVERIFY(!reminders.add(QString(), start, title));
    QVERIFY(!reminders.add(QString(501, u'x'), start, title));
    QVERIFY(!reminders.add(channel, QDateTime(), title));
    QVERIFY(!reminders.add(channel, QDateTime::fromSecsSinceEpoch(1000000000000), title));
    QCOMPARE(reminders.count(), 0);
    QVERIFY(!QFileInfo::exists(fixture.fileName));
    const QString longTitle(5000, u'x');
    QVERIFY(reminders.add(channel, start, longTitle));
    QVERIFY(Reminders(fixture.fileName).contains(channel, start, longTitle));
}

void TestReminders::thereAreOnlySoMany()
{
    Reminders reminders((QString()));
    const QDateTime start = time("2015-11-26T20:05:00Z");
    for (int i = 0; i < Reminders::maximumReminders; ++i)
        QVERIFY(reminders.add(channel, start.addSecs(i), title));
    QVERIFY(!reminders.add(channel, start.addSecs(-1), title));
    QCOMPARE(reminders.count(), Reminders::maximumReminders);
}

void TestReminders::theFolderIsMade()
{
    const Fixture fixture;
    const QString fileName = fixture.folder.filePath(QStringLiteral("a/b/reminders.json"));
    Reminders reminders(fileName);
    QVERIFY(reminders.add(channel, time("2015-11-26T20:05:00Z"), title));
    QCOMPARE(reminders.error(), QString());
    QCOMPARE(Reminders(fileName).count(), 1);
}

void TestReminders::aDamagedFileIsKeptAside_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *file, const char *reason) {
        QTest::newRow(*file ? file : "empty") << QByteArray(file) << QString::fromLatin1(reason);
    };
    row("", "illegal value");
    row("[]", "there is no list \"reminders\"");
    row(R"({"reminders": {}})", "there is no list \"reminders\"");
    row(R"({"reminders": [7]})", "reminders[0] has no channel, start in UTC and title");
    row(R"({"reminders": [{"channel": "a", "start": "2015-11-26T20:05:00", "title": "A"}]})",
        "reminders[0] has no channel, start in UTC and title");
    row(R"({"reminders": [{"channel": "a", "start": "2015-11-26T20:05:00Z", "title": "A"}, {"channel": "a"}]})",
        "reminders[1] has no channel, start in UTC and title");
}

void TestReminders::aDamagedFileIsKeptAside()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, reason);
    const Fixture fixture;
    fixture.write(file);
    Reminders reminders(fixture.fileName);
    const QString aside = fixture.fileName + QLatin1String(".broken");
    QCOMPARE(reminders.count(), 0);
    QCOMPARE(reminders.error(),
             fixture.fileName + QLatin1String(": ") + reason + QLatin1String("; it is kept as ") + aside);
    QCOMPARE(contents(aside), file);
    QVERIFY(reminders.add(channel, time("2015-11-26T20:05:00Z"), title));
    QCOMPARE(reminders.error(), QString());
    QCOMPARE(Reminders(fixture.fileName).count(), 1);
    QCOMPARE(contents(aside), file);
}

void TestReminders::aSecondDamagedFileDoesNotReplaceTheFirst()
{
    const Fixture fixture;
    for (const char *file : { "first", "second", "third" }) {
        fixture.write(file);
        const Reminders reminders(fixture.fileName);
    }
    QCOMPARE(contents(fixture.fileName + QLatin1String(".broken")), QByteArray("first"));
    QCOMPARE(contents(fixture.fileName + QLatin1String(".broken2")), QByteArray("second"));
    QCOMPARE(contents(fixture.fileName + QLatin1String(".broken3")), QByteArray("third"));
}

void TestReminders::aFileCutAnywhereIsReadOrKeptAside()
{
    const Fixture fixture;
    Reminders(fixture.fileName).add(channel, time("2015-11-26T20:05:00Z"), title);
    const QByteArray whole = contents(fixture.fileName);
    const QString aside = fixture.fileName + QLatin1String(".broken");
    for (qsizetype size = 0; size < whole.size(); ++size) {
        fixture.write(whole.left(size));
        const Reminders reminders(fixture.fileName);
        const bool usable = whole.mid(size).trimmed().isEmpty();
        QCOMPARE(reminders.count(), usable ? 1 : 0);
        QCOMPARE(reminders.error().isEmpty(), usable);
        QCOMPARE(contents(usable ? fixture.fileName : aside), whole.left(size));
        QFile::remove(aside);
    }
}

void TestReminders::randomBytesAreKeptAside()
{
    const Fixture fixture;
    Reminders(fixture.fileName).add(channel, time("2015-11-26T20:05:00Z"), title);
    const QByteArray whole = contents(fixture.fileName);
    const QString aside = fixture.fileName + QLatin1String(".broken");
    std::mt19937 random(20151126); // NOLINT(cert-msc51-cpp): the same every time
    for (int round = 0; round < 1000; ++round) {
        QByteArray changed = whole;
        for (unsigned change = 0; change <= random() % 3; ++change)
            changed[qsizetype(random() % unsigned(changed.size()))] = char(random());
        fixture.write(changed);
        const Reminders reminders(fixture.fileName);
        QCOMPARE(reminders.count(), reminders.error().isEmpty() ? 1 : 0);
        QCOMPARE(contents(reminders.error().isEmpty() ? fixture.fileName : aside), changed);
        QFile::remove(aside);
    }
}

void TestReminders::somethingThatIsNoFileIsLeftAlone()
{
    const Fixture fixture;
    QVERIFY(QFile::link(QStringLiteral("/dev/null"), fixture.fileName));
    for (const QString &name : { fixture.fileName, fixture.folder.path(), QStringLiteral("/dev/null") }) {
        Reminders reminders(name);
        QCOMPARE(reminders.error(), name + QLatin1String(": is no ordinary file; reminders are not stored"));
        QVERIFY(reminders.add(channel, time("2015-11-26T20:05:00Z"), title));
        QCOMPARE(reminders.count(), 1);
    }
    QVERIFY(QFileInfo(fixture.fileName).isSymLink());
    QVERIFY(!QFileInfo(QStringLiteral("/dev/null")).isFile());
    QCOMPARE(QDir(fixture.folder.path()).entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("reminders.json")));
}

void TestReminders::aFailedWriteIsToldAndKeepsTheFile()
{
    const Fixture fixture;
    Reminders reminders(fixture.folder.filePath(QStringLiteral("file/reminders.json")));
    QFile inTheWay(fixture.folder.filePath(QStringLiteral("file")));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    const QSignalSpy spy(&reminders, &Reminders::errorChanged);
    QVERIFY(reminders.add(channel, time("2015-11-26T20:05:00Z"), title));
    QCOMPARE(spy.count(), 1);
    QVERIFY(reminders.error().startsWith(fixture.folder.filePath(QStringLiteral("file/reminders.json: "))));
    QCOMPARE(reminders.count(), 1);
    QVERIFY(QFile::remove(inTheWay.fileName()));
    QVERIFY(reminders.add(channel, time("2015-11-26T20:06:00Z"), title));
    QCOMPARE(reminders.error(), QString());
    QCOMPARE(spy.count(), 2);
}

void TestReminders::withoutFileNothingIsStored()
{
    Reminders reminders((QString()));
    QVERIFY(reminders.add(channel, time("2015-11-26T20:05:00Z"), title));
    QCOMPARE(reminders.count(), 1);
    QCOMPARE(reminders.error(), QString());
}

STB_TEST_MAIN(TestReminders)
#include "tst_reminders.moc"
