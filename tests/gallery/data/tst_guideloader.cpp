// SPDX-License-Identifier: MIT
#include "gallery/data/guideloader.h"
#include "guidetext.h"
#include "testkit/testcase.h"

#include <QtCore/qelapsedtimer.h>
#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>
#include <QtCore/qtimezone.h>
#include <QtTest/qsignalspy.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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
    void theEventLoopTurnsWhileADeviceIsSlow();
    void progressGrowsFromNothingToOneInHundredths();
    void aCancelledReadingIsNotHeardOfAgain();
    void progressMayCancelTheReading();
    void progressMayReplaceTheReading();
    void anotherFileReplacesTheOneBeingRead();
    void destroyingTheLoaderStopsTheReading();
    void aFinishedLoaderReadsAgain();
    void cancellingWithoutReadingDoesNothing();
    void aPlaylistSaysWhichChannelsThereAre();
    void aPlaylistAloneShowsTheOwnGuide();
    void withoutAPlaylistThereIsNoReportOfOne();
    void anUnreadablePlaylistFinishesWithAnErrorAndNoGuide();
    void anUnreadableGuideHasNoChannelsOfThePlaylist();

private:
    QString write(const char *name, const QByteArray &content);

    QTemporaryDir m_folder;
    QString m_small;
    QString m_large;
};

namespace {

/*! A named pipe: whoever reads it waits for what the test writes, piece by piece. */
class SlowDevice
{
public:
    explicit SlowDevice(const QString &path)
        : m_path(QFile::encodeName(path))
        , m_exists(::mkfifo(m_path.constData(), 0600) == 0)
    {
    }
    SlowDevice(const SlowDevice &) = delete;
    SlowDevice &operator=(const SlowDevice &) = delete;
    ~SlowDevice() { close(); }

    bool exists() const { return m_exists; }
    /*! False until somebody reads. */
    bool open()
    {
        if (m_file < 0)
            m_file = ::open(m_path.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
        return m_file >= 0;
    }
    /*! How many of the bytes the pipe takes at once. */
    qsizetype write(const QByteArray &bytes) const
    {
        return std::max<qsizetype>(::write(m_file, bytes.constData(), size_t(bytes.size())), 0);
    }
    void close()
    {
        if (m_file >= 0)
            ::close(m_file);
        m_file = -1;
    }

private:
    QByteArray m_path;
    bool m_exists = false;
    int m_file = -1;
};

// Turns the event loop so often that every turn has something to do.
void turnEventLoop(int times)
{
    int turns = 0;
    while (turns < times) {
        QMetaObject::invokeMethod(
                qApp, [&turns] { ++turns; }, Qt::QueuedConnection);
        QCoreApplication::processEvents();
    }
}

} // namespace

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

// The thread that waits for the device is not the one that the loader lives in, which is the only one to write:
// were it the same, this test would never end.
void TestGuideLoader::theEventLoopTurnsWhileADeviceIsSlow()
{
    QByteArray programmes;
    for (int i = 0; i < 7001; ++i)
        programmes += programme("c", R"(start="2015" clumpidx=")" + QByteArray::number(i) + '"', "A");
    const QByteArray text = tv(programmes);
    const QString path = m_folder.filePath(QStringLiteral("pipe.xml"));
    GuideLoader loader;
    SlowDevice device(path);
    QVERIFY(device.exists());
    QSignalSpy finished(&loader, &GuideLoader::finished);
    loader.load(path, {});
    turnEventLoop(1000); // the device is not even open
    QVERIFY(loader.isLoading());
    QTRY_VERIFY(device.open());
    for (qsizetype written = 0; written < text.size(); turnEventLoop(3))
        written += device.write(text.mid(written, 1009));
    turnEventLoop(1000); // all is there but its end
    QVERIFY(loader.isLoading());
    QCOMPARE(finished.size(), 0);
    device.close();
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loader.error(), QString());
    QCOMPARE(loader.guide().programmeCount(), 7001);
}

void TestGuideLoader::progressGrowsFromNothingToOneInHundredths()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    QList<double> values;
    connect(&loader, &GuideLoader::progressChanged, this, [&] { values.append(loader.progress()); });
    QCOMPARE(loader.progress(), 0.0);
    loader.load(m_large, {});
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 60000);
    QCOMPARE(values.size(), 100);
    for (int i = 0; i < 100; ++i)
        QCOMPARE(values.at(i), (i + 1) / 100.0);
    QCOMPARE(loader.guide().programmeCount(), 200000);
}

void TestGuideLoader::aCancelledReadingIsNotHeardOfAgain()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    QSignalSpy loading(&loader, &GuideLoader::loadingChanged);
    loader.load(m_large, {});
    QTRY_VERIFY(loader.progress() > 0);
    loader.cancel();
    QVERIFY(!loader.isLoading());
    QCOMPARE(loading.size(), 2);
    QSignalSpy progress(&loader, &GuideLoader::progressChanged);
    turnEventLoop(100);
    QCOMPARE(progress.size(), 0);
    QCOMPARE(finished.size(), 0);
    QVERIFY(loader.guide().isEmpty());
}

void TestGuideLoader::progressMayCancelTheReading()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    QSignalSpy progress(&loader, &GuideLoader::progressChanged);
    connect(&loader, &GuideLoader::progressChanged, &loader, &GuideLoader::cancel);
    loader.load(m_large, {});
    QTRY_VERIFY(!loader.isLoading());
    turnEventLoop(100);
    QCOMPARE(progress.size(), 1);
    QCOMPARE(finished.size(), 0);
}

void TestGuideLoader::progressMayReplaceTheReading()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    connect(&loader, &GuideLoader::progressChanged, &loader, [&, replaced = false]() mutable {
        if (!std::exchange(replaced, true))
            loader.load(m_small, {});
    });
    loader.load(m_large, {});
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loader.guide().programmeCount(), 1);
    turnEventLoop(100);
    QCOMPARE(finished.size(), 1);
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

void TestGuideLoader::aPlaylistSaysWhichChannelsThereAre()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    const QString playlist = write("two.m3u", "#EXTM3U\n#EXTINF:-1,Other\nudp://1\nrubbish\n"
                                              "#EXTINF:-1 tvg-id=\"c\",Mine\nudp://2\n");
    loader.load({ m_small, playlist, QStringLiteral("de"), {} });
    QCOMPARE(finished.size(), 0);
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loader.guide().channelCount(), 2);
    QCOMPARE(loader.guide().channel(0).name, QStringLiteral("Other"));
    QCOMPARE(loader.guide().programmeCount(0), 0);
    QCOMPARE(loader.guide().channel(1).name, QStringLiteral("Mine"));
    QCOMPARE(loader.guide().programme(1, 0).title, QStringLiteral("B"));
    QCOMPARE(loader.playlistReport().problemCount, 1);
    QCOMPARE(loader.playlistReport().problems.constFirst().line, 4);
}

void TestGuideLoader::aPlaylistAloneShowsTheOwnGuide()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    const QString playlist = write("own.m3u", "#EXTM3U\n#EXTINF:-1 tvg-id=\"kids\",Small\nudp://1\n");
    const QDateTime now(QDate(2026, 3, 4), QTime(20, 5), QTimeZone::utc());
    loader.load({ {}, playlist, QStringLiteral("en"), now });
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loader.guide().channelCount(), 1);
    QCOMPARE(loader.guide().channel(0).name, QStringLiteral("Small"));
    QVERIFY(loader.guide().programmeAt(0, now.toSecsSinceEpoch()) >= 0);
}

void TestGuideLoader::withoutAPlaylistThereIsNoReportOfOne()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    loader.load({ m_small, m_folder.filePath(QStringLiteral("missing.m3u")), {}, {} });
    QTRY_COMPARE(finished.size(), 1);
    loader.load({ m_small, {}, {}, {} });
    QTRY_COMPARE(finished.size(), 2);
    QCOMPARE(loader.playlistReport().outcome, PlaylistReport::Outcome::Complete);
    QCOMPARE(loader.playlistReport().messages({}), QStringList());
    QCOMPARE(loader.guide().channelCount(), 1);
}

void TestGuideLoader::anUnreadablePlaylistFinishesWithAnErrorAndNoGuide()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    loader.load({ m_small, m_folder.filePath(QStringLiteral("missing.m3u")), {}, {} });
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loader.playlistReport().outcome, PlaylistReport::Outcome::Unreadable);
    QVERIFY(loader.playlistReport().error.contains(QLatin1String("missing.m3u")));
    QVERIFY(loader.guide().isEmpty());
}

void TestGuideLoader::anUnreadableGuideHasNoChannelsOfThePlaylist()
{
    GuideLoader loader;
    QSignalSpy finished(&loader, &GuideLoader::finished);
    const QString playlist = write("one.m3u", "#EXTM3U\n#EXTINF:-1,One\nudp://1\n");
    loader.load({ m_folder.filePath(QStringLiteral("missing.xml")), playlist, {}, {} });
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loader.report().outcome, GuideReport::Outcome::Unreadable);
    QVERIFY(loader.guide().isEmpty());
}

STB_TEST_MAIN(TestGuideLoader)
#include "tst_guideloader.moc"
