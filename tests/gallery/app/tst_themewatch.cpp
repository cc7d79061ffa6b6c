// SPDX-License-Identifier: MIT
#include "rebuildtest.h"

#include <QtCore/qdir.h>
#include <QtCore/qregularexpression.h>
#include <QtCore/qsavefile.h>
#include <QtCore/qtemporarydir.h>

/*! A theme is edited while the gallery runs. */
class tst_ThemeWatch : public RebuildTest
{
    Q_OBJECT

    /*! A theme whose screens have the background \a color. */
    static QByteArray theme(const QByteArray &color)
    {
        return "{ \"colors\": { \"oslo\": \"" + color + "\" } }";
    }

    /*! Writes into the file that is there. */
    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }
    /*! Writes another file and gives it the name, as most editors do. */
    static void replace(const QString &path, const QByteArray &content)
    {
        QSaveFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
        QVERIFY(file.commit());
    }

    QString path(const QString &name = "theme.json") const { return m_folder->filePath(name); }

    void startWith(const QString &theme, const QString &keys = {})
    {
        gallery::Options options;
        options.screen = "home";
        options.theme = theme;
        options.watchTheme = true;
        start(options, keys);
    }

    QColor background() const { return view()->grabWindow().pixelColor(0, 0); }

    std::unique_ptr<QTemporaryDir> m_folder;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
    }
    void cleanup() { end(); }

    void anEditedThemeIsSeenAtOnceAndThePlaceIsKept()
    {
        write(path(), theme("#FF402010"));
        startWith(path(), "Down Right Right");
        QCOMPARE(background(), QColor(0x40, 0x20, 0x10));
        const QStringList before = state();
        const QStringList placesBefore = places();
        write(path(), theme("#FF103050"));
        QTRY_COMPARE(background(), QColor(0x10, 0x30, 0x50));
        settle();
        QCOMPARE(state(), before);
        QCOMPARE(places(), placesBefore);
    }

    void aFileThatComesInThePlaceOfTheThemeIsSeen()
    {
        write(path(), theme("#FF402010"));
        startWith(path());
        for (const auto &[text, color] : { std::pair { "#FF103050", QColor(0x10, 0x30, 0x50) },
                                           { "#FF331144", QColor(0x33, 0x11, 0x44) } }) {
            replace(path(), theme(text));
            QTRY_COMPARE(background(), color);
        }
        // And the new file is watched as the one before was.
        write(path(), theme("#FF225511"));
        QTRY_COMPARE(background(), QColor(0x22, 0x55, 0x11));
    }

    void aBrokenThemeIsToldAndTheNextSaveMendsIt()
    {
        startWith(QStringLiteral("default"));
        const QColor usual = background();
        write(path(), theme("#FF402010"));
        startWith(path());
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression("^Theme .*theme\\.json: expected JSON; .*line 1"));
        write(path(), "{ \"colors\": ");
        QTRY_COMPARE(background(), usual);
        write(path(), theme("#FF103050"));
        QTRY_COMPARE(background(), QColor(0x10, 0x30, 0x50));
    }

    void aBrokenValueIsToldAndTheOthersCount()
    {
        write(path(), theme("#FF402010"));
        startWith(path());
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression("^Theme .*theme\\.json: colors\\.lima: expected "));
        write(path(), "{ \"colors\": { \"lima\": 7, \"oslo\": \"#FF103050\" } }");
        QTRY_COMPARE(background(), QColor(0x10, 0x30, 0x50));
    }

    void anotherThemeIsWatchedInItsPlace()
    {
        write(path("one.json"), theme("#FF402010"));
        write(path("two.json"), theme("#FF103050"));
        startWith(path("one.json"));
        set("UI", "theme", path("two.json"));
        rebuild();
        QCOMPARE(background(), QColor(0x10, 0x30, 0x50));
        QSignalSpy rebuilt(m_application.get(), &gallery::Application::rebuilt);
        write(path("one.json"), theme("#FF111111"));
        write(path("two.json"), theme("#FF225511"));
        QTRY_COMPARE(background(), QColor(0x22, 0x55, 0x11));
        QCOMPARE(rebuilt.count(), 1);
    }

    void withoutTheWishNothingIsWatched()
    {
        write(path(), theme("#FF402010"));
        gallery::Options options;
        options.theme = path();
        start(options);
        QSignalSpy rebuilt(m_application.get(), &gallery::Application::rebuilt);
        // Somebody else who watches it hears of the change.
        gallery::ThemeWatcher other;
        other.setFile(path());
        QSignalSpy changed(&other, &gallery::ThemeWatcher::changed);
        write(path(), theme("#FF103050"));
        QTRY_COMPARE(changed.count(), 1);
        settle();
        QCOMPARE(rebuilt.count(), 0);
    }

    void onlyFilesCanBeWatched()
    {
        QVERIFY(!gallery::ThemeWatcher::canWatch({}));
        QVERIFY(!gallery::ThemeWatcher::canWatch(gallery::themePath("light")));
        QVERIFY(!gallery::ThemeWatcher::canWatch("qrc:/stbui/design/themes/light.json"));
        QVERIFY(gallery::ThemeWatcher::canWatch("theme.json"));
        gallery::ThemeWatcher watcher;
        watcher.setFile(gallery::themePath("light"));
        QCOMPARE(watcher.file(), QString());
    }

    void theSameContentIsNoChange()
    {
        write(path(), "one");
        gallery::ThemeWatcher watcher;
        watcher.setFile(path());
        QSignalSpy changed(&watcher, &gallery::ThemeWatcher::changed);
        auto *timer = watcher.findChild<QTimer *>();
        QVERIFY(timer != nullptr);
        replace(path(), "one");
        QTRY_VERIFY(timer->isActive());
        QTRY_VERIFY(!timer->isActive());
        QCOMPARE(changed.count(), 0);
        write(path(), "two");
        QTRY_COMPARE(changed.count(), 1);
    }

    void aFileThatHasGoneIsNoChangeUntilItIsBack()
    {
        write(path(), "one");
        gallery::ThemeWatcher watcher;
        watcher.setFile(path());
        QSignalSpy changed(&watcher, &gallery::ThemeWatcher::changed);
        auto *timer = watcher.findChild<QTimer *>();
        QVERIFY(QFile::remove(path()));
        QTRY_VERIFY(timer->isActive());
        QTRY_VERIFY(!timer->isActive());
        QCOMPARE(changed.count(), 0);
        write(path(), "two");
        QTRY_COMPARE(changed.count(), 1);
        write(path(), "three");
        QTRY_COMPARE(changed.count(), 2);
    }

    void severalWritesAreOneChange()
    {
        write(path(), "one");
        gallery::ThemeWatcher watcher;
        watcher.setFile(path());
        QSignalSpy changed(&watcher, &gallery::ThemeWatcher::changed);
        for (const char *content : { "two", "three", "four" })
            write(path(), content);
        QTRY_COMPARE(changed.count(), 1);
        write(path(), "five");
        QTRY_COMPARE(changed.count(), 2);
    }

    void aFileThatSomebodyHasOpenIsReplacedAllTheSame()
    {
        write(path(), "one");
        gallery::ThemeWatcher watcher;
        watcher.setFile(path());
        QSignalSpy changed(&watcher, &gallery::ThemeWatcher::changed);
        QFile held(path());
        QVERIFY(held.open(QIODevice::ReadOnly));
        replace(path(), "two");
        QTRY_COMPARE(changed.count(), 1);
        write(path(), "three");
        QTRY_COMPARE(changed.count(), 2);
    }

    void whatALinkLeadsToIsWatched()
    {
        QVERIFY(QDir(m_folder->path()).mkdir("there"));
        write(path("there/theme.json"), "one");
        QVERIFY(QFile::link(path("there/theme.json"), path("link.json")));
        gallery::ThemeWatcher watcher;
        watcher.setFile(path("link.json"));
        QSignalSpy changed(&watcher, &gallery::ThemeWatcher::changed);
        write(path("there/theme.json"), "two");
        QTRY_COMPARE(changed.count(), 1);
        replace(path("there/theme.json"), "three");
        QTRY_COMPARE(changed.count(), 2);
    }

    void otherFilesOfTheFolderDoNotCount()
    {
        write(path(), "one");
        gallery::ThemeWatcher watcher;
        watcher.setFile(path());
        QSignalSpy changed(&watcher, &gallery::ThemeWatcher::changed);
        auto *timer = watcher.findChild<QTimer *>();
        write(path("other.json"), "two");
        QTRY_VERIFY(timer->isActive());
        QTRY_VERIFY(!timer->isActive());
        QCOMPARE(changed.count(), 0);
    }
};

STB_TEST_MAIN(tst_ThemeWatch)
#include "tst_themewatch.moc"
