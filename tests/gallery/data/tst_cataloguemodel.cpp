// SPDX-License-Identifier: MIT
#include "gallery/data/catalogueloader.h"
#include "gallery/data/cataloguemodel.h"
#include "testkit/testcase.h"

#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>
#include <QtTest/qabstractitemmodeltester.h>
#include <QtTest/qsignalspy.h>

using namespace gallery;

class TestCatalogueModel : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void everyRoleHasItsValue();
    void getGivesAllRolesByName();
    void aFilterShowsItsKind_data();
    void aFilterShowsItsKind();
    void onlyTheEpisodesOfOneSeriesAreShown();
    void whatIsBegunAndNotWatchedToTheEndIsContinued_data();
    void whatIsBegunAndNotWatchedToTheEndIsContinued();
    void theSameCatalogueDoesNotResetTheModel();
    void aFilterThatShowsTheSameDoesNotResetTheModel();
    void anotherCatalogueIsShownAtOnce();
    void theModelKeepsItsPromisesToViews();
    void theLoaderHandsACatalogueOver();
    void theLoaderSignalsNothingFromWithinLoad();
    void theLoaderTellsOfAFileThatCannotBeRead();
    void anotherFileReplacesTheOneBeingRead();
    void theLoaderMayGoWhileItReads();
};

namespace {

Catalogue catalogue()
{
    const QByteArray json = R"({"films":[{"title":"F","duration":100,"position":7},{"title":"G"}],
        "series":[{"title":"S","episodes":[{"title":"S1","duration":100,"position":100},{"title":"S2"}]},
        {"title":"T","episodes":[{"title":"T1","season":3,"episode":5,"duration":200,"position":150}]}]})";
    return readCatalogue(json, QStringLiteral("/x.json"), QString()).catalogue;
}

QString titles(const CatalogueModel &model)
{
    QStringList all;
    for (int row = 0; row < model.count(); ++row)
        all.append(model.index(row).data(CatalogueModel::TitleRole).toString());
    return all.join(u' ');
}

QString write(const QTemporaryDir &folder, const QByteArray &json)
{
    QFile file(folder.filePath(QStringLiteral("%1.json").arg(qHash(json))));
    return file.open(QIODevice::WriteOnly) && file.write(json) == json.size() ? file.fileName() : QString();
}

} // namespace

void TestCatalogueModel::everyRoleHasItsValue()
{
    CatalogueEntry entry;
    entry.kind = CatalogueEntry::Kind::Episode;
    entry.title = QStringLiteral("A");
    entry.subtitle = QStringLiteral("B");
    entry.status = QStringLiteral("C");
    entry.description = QStringLiteral("D");
    entry.rating = QStringLiteral("7+");
    entry.genre = QStringLiteral("E");
    entry.year = 1993;
    entry.duration = 31.5;
    entry.position = 17.25;
    entry.favourite = true;
    entry.picture = QUrl(QStringLiteral("http://h/p"));
    entry.still = QUrl(QStringLiteral("http://h/s"));
    entry.logo = QUrl(QStringLiteral("http://h/l"));
    entry.season = 3;
    entry.episode = 11;
    CatalogueModel model;
    model.setCatalogue(Catalogue({ CatalogueEntry(), entry }));
    const QHash<QByteArray, QVariant> expected {
        { "title", entry.title },
        { "subtitle", entry.subtitle },
        { "status", entry.status },
        { "description", entry.description },
        { "rating", entry.rating },
        { "genre", entry.genre },
        { "year", 1993 },
        { "duration", 31.5 },
        { "timepoint", 17.25 },
        { "favourite", true },
        { "picture", entry.picture },
        { "still", entry.still },
        { "logo", entry.logo },
        { "season", 3 },
        { "episode", 11 },
        { "kind", QStringLiteral("episode") },
        { "entry", 1 },
    };
    const QHash<int, QByteArray> names = model.roleNames();
    QCOMPARE(names.size(), expected.size());
    for (auto name = names.cbegin(); name != names.cend(); ++name)
        QCOMPARE(model.index(1).data(name.key()), expected.value(name.value()));
    QCOMPARE(model.index(1).data().toString(), QStringLiteral("A"));
    QCOMPARE(model.index(0).data(CatalogueModel::KindRole).toString(), QStringLiteral("film"));
    QVERIFY(!model.index(1).data(CatalogueModel::EntryRole + 1).isValid());
    QVERIFY(!model.data(QModelIndex(), CatalogueModel::TitleRole).isValid());
}

void TestCatalogueModel::getGivesAllRolesByName()
{
    CatalogueModel model;
    model.setCatalogue(catalogue());
    const QVariantMap all = model.get(6);
    QCOMPARE(all.size(), model.roleNames().size());
    QCOMPARE(all.value(QStringLiteral("title")).toString(), QStringLiteral("T1"));
    QCOMPARE(all.value(QStringLiteral("season")).toInt(), 3);
    QCOMPARE(model.get(-1), QVariantMap());
    QCOMPARE(model.get(7), QVariantMap());
}

void TestCatalogueModel::aFilterShowsItsKind_data()
{
    QTest::addColumn<CatalogueModel::Filter>("filter");
    QTest::addColumn<QString>("shown");
    QTest::newRow("all") << CatalogueModel::Filter::All << "F G S S1 S2 T T1";
    QTest::newRow("films") << CatalogueModel::Filter::Films << "F G";
    QTest::newRow("series") << CatalogueModel::Filter::Series << "S T";
    QTest::newRow("episodes") << CatalogueModel::Filter::Episodes << "S1 S2 T1";
    QTest::newRow("started") << CatalogueModel::Filter::Started << "F T1";
}

void TestCatalogueModel::aFilterShowsItsKind()
{
    QFETCH(CatalogueModel::Filter, filter);
    CatalogueModel model;
    model.setFilter(filter);
    model.setCatalogue(catalogue());
    QTEST(titles(model), "shown");
}

void TestCatalogueModel::onlyTheEpisodesOfOneSeriesAreShown()
{
    CatalogueModel model;
    model.setCatalogue(catalogue());
    model.setFilter(CatalogueModel::Filter::Episodes);
    model.setSeries(2);
    QCOMPARE(titles(model), QStringLiteral("S1 S2"));
    model.setSeries(5);
    QCOMPARE(titles(model), QStringLiteral("T1"));
    model.setSeries(0);
    QCOMPARE(titles(model), QString());
    model.setSeries(-1);
    QCOMPARE(titles(model), QStringLiteral("S1 S2 T1"));
    model.setSeries(2);
    model.setFilter(CatalogueModel::Filter::Films);
    QCOMPARE(titles(model), QStringLiteral("F G"));
}

void TestCatalogueModel::whatIsBegunAndNotWatchedToTheEndIsContinued_data()
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

void TestCatalogueModel::whatIsBegunAndNotWatchedToTheEndIsContinued()
{
    QFETCH(double, position);
    QFETCH(double, duration);
    CatalogueEntry entry;
    entry.title = QStringLiteral("A");
    entry.position = position;
    entry.duration = duration;
    CatalogueModel model;
    model.setFilter(CatalogueModel::Filter::Started);
    model.setCatalogue(Catalogue({ entry }));
    QTEST(model.count() == 1, "started");
}

void TestCatalogueModel::theSameCatalogueDoesNotResetTheModel()
{
    const Catalogue shown = catalogue();
    CatalogueModel model;
    QSignalSpy resets(&model, &CatalogueModel::modelReset);
    model.setCatalogue(shown);
    QCOMPARE(resets.size(), 1);
    model.setCatalogue(shown);
    QCOMPARE(resets.size(), 1);
}

void TestCatalogueModel::aFilterThatShowsTheSameDoesNotResetTheModel()
{
    CatalogueEntry film;
    film.title = QStringLiteral("A");
    CatalogueModel model;
    model.setCatalogue(Catalogue({ film }));
    QSignalSpy resets(&model, &CatalogueModel::modelReset);
    QSignalSpy filters(&model, &CatalogueModel::filterChanged);
    QSignalSpy counts(&model, &CatalogueModel::countChanged);
    model.setFilter(CatalogueModel::Filter::Films);
    model.setFilter(CatalogueModel::Filter::Films);
    QCOMPARE(resets.size(), 0);
    QCOMPARE(counts.size(), 0);
    QCOMPARE(filters.size(), 1);
}

void TestCatalogueModel::anotherCatalogueIsShownAtOnce()
{
    CatalogueEntry film;
    film.title = QStringLiteral("A");
    CatalogueModel model;
    model.setCatalogue(Catalogue({ film }));
    QSignalSpy resets(&model, &CatalogueModel::modelReset);
    QSignalSpy counts(&model, &CatalogueModel::countChanged);
    film.title = QStringLiteral("B");
    model.setCatalogue(Catalogue({ film }));
    QCOMPARE(titles(model), QStringLiteral("B"));
    QCOMPARE(resets.size(), 1);
    QCOMPARE(counts.size(), 0);
    model.setCatalogue(Catalogue());
    QCOMPARE(model.count(), 0);
    QCOMPARE(counts.size(), 1);
}

void TestCatalogueModel::theModelKeepsItsPromisesToViews()
{
    CatalogueModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setCatalogue(catalogue());
    model.setFilter(CatalogueModel::Filter::Started);
    model.setFilter(CatalogueModel::Filter::Episodes);
    model.setCatalogue(Catalogue());
    QCOMPARE(model.rowCount(), 0);
}

void TestCatalogueModel::theLoaderHandsACatalogueOver()
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

void TestCatalogueModel::theLoaderSignalsNothingFromWithinLoad()
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

void TestCatalogueModel::theLoaderTellsOfAFileThatCannotBeRead()
{
    CatalogueLoader loader;
    QSignalSpy finished(&loader, &CatalogueLoader::finished);
    loader.load(QStringLiteral("/none.json"), QString());
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loader.report().outcome, CatalogueReport::Outcome::Unreadable);
    QVERIFY(loader.report().error.startsWith(QStringLiteral("/none.json: no such file")));
}

void TestCatalogueModel::anotherFileReplacesTheOneBeingRead()
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

void TestCatalogueModel::theLoaderMayGoWhileItReads()
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

STB_TEST_MAIN(TestCatalogueModel)
#include "tst_cataloguemodel.moc"
