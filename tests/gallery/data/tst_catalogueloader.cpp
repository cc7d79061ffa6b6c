// SPDX-License-Identifier: MIT
#include "gallery/data/catalogueloader.h"
#include "testkit/testcase.h"

#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>
#include <QtTest/qsignalspy.h>

using namespace gallery;

class TestCatalogueLoader : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void whatIsBegunAndNotWatchedToTheEndIsContinued_data();
    void whatIsBegunAndNotWatchedToTheEndIsContinued();
    void theLoaderHandsACatalogueOver();
    void theLoaderSignalsNothingFromWithinLoad();
    void theLoaderTellsOfAFileThatCannotBeRead();
    void anotherFileReplacesTheOneBeingRead();
    void theLoaderMayGoWhileItReads();
};

namespace {

QString write(const QTemporaryDir &folder, const QByteArray &json)
{
    QFile file(folder.filePath(QStringLiteral("%1.json").arg(qHash(json))));
    return file.open(QIODevice::WriteOnly) && file.write(json) == json.size() ? file.fileName() : QString();
}

} // namespace

void TestCatalogueLoader::whatIsBegunAndNotWatchedToTheEndIsContinued_data()
{
    QTest::addColumn<double>("position");
    QTest::addColumn<double>("duration");
    QTest::addColumn<bool>("started");
    QTest::newRow("not begun") << 0.0 << 100.0 << false;
    QTest::newRow("begun") << 0.5 << 100.0 << true;
    QTest::newRow("nearly over") << 99.5 << 100.0 << true;
    QTest::newRow("over") << 100.0 << 100.0 << false;
    QTest::newRow("after its end") << 101.0 << 100.0 << false;
    QTest::newRow("duration not known") << 5.0 << 0.0 << false;
}

void TestCatalogueLoader::whatIsBegunAndNotWatchedToTheEndIsContinued()
{
    QFETCH(double, position);
    QFETCH(double, duration);
    CatalogueEntry entry;
    entry.title = QStringLiteral("A");
    entry.position = position;
    entry.duration = duration;
    QTEST(entry.isStarted(), "started");
}

void TestCatalogueLoader::theLoaderHandsACatalogueOver()
{
    const QTemporaryDir folder;
    CatalogueLoader loader;
    QSignalSpy finished(&loader, &CatalogueLoader::finished);
    loader.load(write(folder, R"({"films":[{"title":{"en":"E","de":"D"}}]})"), QStringLiteral("de"));
    QVERIFY(loader.isLoading());
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(!loader.isLoading());
    QCOMPARE(loader.catalogue().entry(0).title, QStringLiteral("D"));
}

void TestCatalogueLoader::theLoaderSignalsNothingFromWithinLoad()
{
    const QTemporaryDir folder;
    const QString file = write(folder, R"({"films":[]})");
    CatalogueLoader loader;
    QSignalSpy finished(&loader, &CatalogueLoader::finished);
    QSignalSpy loading(&loader, &CatalogueLoader::loadingChanged);
    for (int i = 0; i < 100; ++i)
        loader.load(file, QString());
    QCOMPARE(finished.size(), 0);
    QCOMPARE(loading.size(), 1);
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loading.size(), 2);
}

void TestCatalogueLoader::theLoaderTellsOfAFileThatCannotBeRead()
{
    CatalogueLoader loader;
    QSignalSpy finished(&loader, &CatalogueLoader::finished);
    loader.load(QStringLiteral("/none.json"), QString());
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loader.report().outcome, CatalogueReport::Outcome::Unreadable);
    QVERIFY(loader.report().error.startsWith(QStringLiteral("/none.json: no such file")));
}

void TestCatalogueLoader::anotherFileReplacesTheOneBeingRead()
{
    const QTemporaryDir folder;
    CatalogueLoader loader;
    QSignalSpy finished(&loader, &CatalogueLoader::finished);
    loader.load(write(folder, R"({"films":[{"title":"A"}]})"), QString());
    loader.load(write(folder, R"({"films":[{"title":"B"}]})"), QString());
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loader.catalogue().entry(0).title, QStringLiteral("B"));
    QCoreApplication::processEvents();
    QCOMPARE(finished.size(), 1);
}

void TestCatalogueLoader::theLoaderMayGoWhileItReads()
{
    const QTemporaryDir folder;
    QByteArray films;
    for (int i = 0; i < 4000; ++i)
        films += R"({"title":"A","description":"Some words about it."},)";
    films.chop(1);
    const QString file = write(folder, "{\"films\":[" + films + "]}");
    QVERIFY(!file.isEmpty());
    auto loader = std::make_unique<CatalogueLoader>();
    loader->load(file, QString());
    loader.reset();
    QCoreApplication::processEvents();
}

STB_TEST_MAIN(TestCatalogueLoader)
#include "tst_catalogueloader.moc"
