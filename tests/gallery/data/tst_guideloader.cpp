// SPDX-License-Identifier: MIT
#include "gallery/data/guideloader.h"
#include "guidetext.h"
#include "testkit/testcase.h"

#include <QtCore/qelapsedtimer.h>
#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>
#include <QtTest/qsignalspy.h>

using namespace gallery;
using guidetext::programme;
using guidetext::tv;

class TestGuideLoader : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void aFileIsReadAndHandedOver();
    void textsComeInTheLanguageAskedFor();
    void nothingIsSignalledFromWithinLoad();
    void anUnreadableFileFinishesWithAnError();
    void progressGrowsFromNothingToOne();
    void aCancelledReadingDoesNotFinish();
    void anotherFileReplacesTheOneBeingRead();
    void destroyingTheLoaderStopsTheReading();
    void aFinishedLoaderReadsAgain();
    void cancellingWithoutReadingDoesNothing();

private:
    QString write(const char *name, const QByteArray &content);

    QTemporaryDir m_folder;
    QString m_small;
    QString m_large;
};

QString TestGuideLoader::write(const char *name, const QByteArray &content)
{
    const QString path = m_folder.filePath(QLatin1String(name));
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? path : QString();
}

void TestGuideLoader::initTestCase()
{
    m_small = write("small.xml", tv(R"(<programme channel="c" start="2015"><title lang="en">A</title>
        <title lang="de">B</title></programme>)"));
    QByteArray many;
    for (int i = 0; i < 200000; ++i)
        many += programme("c", R"(start="2015" clumpidx=")" + QByteArray::number(i) + '"', "A");
    m_large = write("large.xml", tv(many));
    QVERIFY(!m_small.isEmpty() && !m_large.isEmpty());
}

void TestGuideLoader::aFileIsReadAndHandedOver()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    QSignalSpy loading(&loader, &GuideLoader::loadingChanged);
    QVERIFY(!loader.isLoading());
    loader.load(m_small, QStringLiteral("en"));
    QVERIFY(loader.isLoading());
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(!loader.isLoading());
    QCOMPARE(loading.size(), 2);
    QCOMPARE(loader.report().outcome, GuideReport::Outcome::Complete);
    QCOMPARE(loader.error(), QString());
    QCOMPARE(loader.guide().programme(0, 0).title, QStringLiteral("A"));
}

void TestGuideLoader::textsComeInTheLanguageAskedFor()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    loader.load(m_small, QStringLiteral("de"));
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loader.guide().programme(0, 0).title, QStringLiteral("B"));
}

void TestGuideLoader::nothingIsSignalledFromWithinLoad()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    loader.load(m_folder.filePath(QStringLiteral("missing.xml")), {});
    QCOMPARE(finished.size(), 0);
    QVERIFY(loader.isLoading());
}

void TestGuideLoader::anUnreadableFileFinishesWithAnError()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    const QString missing = m_folder.filePath(QStringLiteral("missing.xml"));
    loader.load(missing, {});
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loader.report().outcome, GuideReport::Outcome::Unreadable);
    QVERIFY(loader.error().startsWith(missing));
    QVERIFY(loader.guide().isEmpty());
}

void TestGuideLoader::progressGrowsFromNothingToOne()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    QList<double> values;
    connect(&loader, &GuideLoader::progressChanged, this, [&] { values.append(loader.progress()); });
    QCOMPARE(loader.progress(), 0.0);
    loader.load(m_large, {});
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 60000);
    QVERIFY(values.size() > 2); // the file takes much longer than one look at it
    QVERIFY(std::is_sorted(values.cbegin(), values.cend()));
    QVERIFY(values.constFirst() < 0.9);
    QCOMPARE(values.constLast(), 1.0);
    QCOMPARE(loader.guide().programmeCount(), 200000);
}

void TestGuideLoader::aCancelledReadingDoesNotFinish()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    QSignalSpy loading(&loader, &GuideLoader::loadingChanged);
    loader.load(m_large, {});
    QTRY_VERIFY(loader.progress() > 0);
    loader.cancel();
    QVERIFY(!loader.isLoading());
    QCOMPARE(loading.size(), 2);
    QCoreApplication::processEvents();
    QCOMPARE(finished.size(), 0);
    QVERIFY(loader.guide().isEmpty());
}

void TestGuideLoader::anotherFileReplacesTheOneBeingRead()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    QSignalSpy loading(&loader, &GuideLoader::loadingChanged);
    loader.load(m_large, {});
    QTRY_VERIFY(loader.progress() > 0);
    loader.load(m_small, {});
    QCOMPARE(loader.progress(), 0.0);
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loading.size(), 2);
    QCOMPARE(loader.guide().programmeCount(), 1);
}

void TestGuideLoader::destroyingTheLoaderStopsTheReading()
{
    QElapsedTimer time;
    {
        GuideLoader loader;
        loader.load(m_large, {});
        QTRY_VERIFY(loader.progress() > 0);
        time.start();
    }
    // Reading the rest takes longer than this even on fast machines with sanitizers off; the bound is wide
    // because a busy machine may stop any thread for a while.
    QVERIFY2(time.elapsed() < 2000, QByteArray::number(time.elapsed()));
}

void TestGuideLoader::aFinishedLoaderReadsAgain()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    loader.load(m_folder.path(), {});
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(!loader.error().isEmpty());
    loader.load(m_small, {});
    QTRY_COMPARE(finished.size(), 2);
    QCOMPARE(loader.error(), QString());
    QCOMPARE(loader.progress(), 1.0);
}

void TestGuideLoader::cancellingWithoutReadingDoesNothing()
{
    GuideLoader loader;
    QSignalSpy loading(&loader, &GuideLoader::loadingChanged);
    loader.cancel();
    QCOMPARE(loading.size(), 0);
}

STB_TEST_MAIN(TestGuideLoader)
#include "tst_guideloader.moc"
