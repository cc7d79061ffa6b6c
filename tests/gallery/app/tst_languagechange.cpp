// SPDX-License-Identifier: MIT
#include "rebuildtest.h"

#include <QtCore/qtemporarydir.h>

/*! Another language is chosen while the gallery runs. */
class tst_LanguageChange : public RebuildTest
{
    Q_OBJECT

    void startOn(const QString &screen, const QString &keys = {})
    {
        gallery::Options options;
        options.screen = screen;
        start(options, keys);
    }

    void speak(const QString &language) const
    {
        set("UI", "language", language);
        rebuild();
    }

    QString file(const QString &name, const QByteArray &content) const
    {
        QFile written(m_folder.filePath(name));
        if (!written.open(QIODevice::WriteOnly) || written.write(content) != content.size())
            return {};
        return written.fileName();
    }

    /*! One channel, and programmes at 19:00, 20:00 and 21:00 with titles in two languages. */
    QString guideFile() const
    {
        QByteArray programmes;
        for (int hour = 19; hour < 22; ++hour) {
            const QByteArray text = QByteArray::number(hour);
            programmes += "<programme channel=\"a\" start=\"20260304" + text + "0000 +0000\" stop=\"20260304"
                          + QByteArray::number(hour + 1) + "0000 +0000\"><title lang=\"en\">English " + text
                          + "</title><title lang=\"de\">Deutsch " + text + "</title></programme>";
        }
        return file("guide.xml",
                    "<tv><channel id=\"a\"><display-name>A</display-name></channel>" + programmes + "</tv>");
    }

    QTemporaryDir m_folder;

private Q_SLOTS:
    void cleanup() { end(); }

    void theTextsAreOthersAndThePlaceIsTheSame_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("keys");
        QTest::newRow("home") << "home"
                              << "Right Right Down End Down Right";
        QTest::newRow("a film") << "detail"
                                << "Right Right";
        QTest::newRow("a programme's page") << "home"
                                            << "Right Return";
        QTest::newRow("an episode") << "series"
                                    << "End Up";
        QTest::newRow("an episode of another season") << "series"
                                                      << "Home Up Right Down Down";
        QTest::newRow("a programme to come") << "guide"
                                             << "Right Right Down Down Down";
        QTest::newRow("a day") << "guide"
                               << "Menu Right";
        QTest::newRow("details") << "guide"
                                 << "Up Up Info";
        QTest::newRow("a group of channels") << "channels"
                                             << "Right Right Down";
        QTest::newRow("the player") << "player"
                                    << "Return Return Up Right";
    }
    void theTextsAreOthersAndThePlaceIsTheSame()
    {
        QFETCH(QString, screen);
        QFETCH(QString, keys);
        startOn(screen, keys);
        const QStringList choices = withoutSettings(state(false));
        const QStringList words = state();
        const QStringList shown = texts();
        const QImage before = view()->grabWindow();
        QVERIFY(!shown.isEmpty());
        speak("de");
        QCOMPARE(withoutSettings(state(false)), choices);
        QVERIFY(state() != words);
        QVERIFY(texts() != shown);
        speak("en");
        QCOMPARE(state(), words);
        QCOMPARE(difference(view()->grabWindow(), before), QString());
    }

    void arabicIsMirroredAndTheOthersAreNot()
    {
        startOn("home", "Right");
        QVERIFY(!shell()->isMirrored());
        speak("ar");
        QVERIFY(shell()->isMirrored());
        QCOMPARE(plateProblem(sceneRect(view()->rootObject())), QString());
        speak("ru");
        QVERIFY(!shell()->isMirrored());
    }

    void aLanguageThatIsNotSpokenIsEnglish()
    {
        startOn("home");
        const QImage english = view()->grabWindow();
        speak("de");
        speak("xx");
        QCOMPARE(difference(view()->grabWindow(), english), QString());
    }

    void whatTheViewerHasMarkedStaysMarked()
    {
        startOn("detail");
        const bool favourite = shell()->detail()->isFavourite();
        ScreenTest::press(Qt::Key_Right);
        ScreenTest::press(Qt::Key_Return);
        QCOMPARE(shell()->detail()->isFavourite(), !favourite);
        speak("de");
        QCOMPARE(shell()->detail()->isFavourite(), !favourite);
    }

    void theGuidesFileIsReadInTheNewLanguage()
    {
        gallery::Options options;
        options.screen = "guide";
        options.guideFile = guideFile();
        start(options, "Down");
        QTRY_COMPARE(shell()->guide()->title(), "English 21");
        speak("de");
        QTRY_COMPARE(shell()->guide()->title(), "Deutsch 21");
        QVERIFY(!shell()->guide()->isDetailsOpen());
    }

    void detailsStayOpenInTheNewLanguage()
    {
        gallery::Options options;
        options.screen = "guide";
        options.guideFile = guideFile();
        start(options, "Up Info");
        QTRY_COMPARE(shell()->guide()->title(), "English 19");
        speak("de");
        QTRY_COMPARE(shell()->guide()->title(), "Deutsch 19");
        QVERIFY(shell()->guide()->isDetailsOpen());
    }

    void theCataloguesFileIsReadInTheNewLanguage()
    {
        gallery::Options options;
        options.screen = "detail";
        options.catalogueFile =
                file("films.json",
                     "{ \"films\": [ { \"title\": { \"en\": \"Ferry\", \"de\": \"Fähre\" } } ] }");
        start(options);
        QTRY_COMPARE(shell()->detail()->title(), "Ferry");
        speak("de");
        QTRY_COMPARE(shell()->detail()->title(), "Fähre");
    }

    void filesThatHaveGoneLeaveWhatIsShown()
    {
        gallery::Options options;
        options.screen = "guide";
        options.guideFile = guideFile();
        options.catalogueFile = file("gone.json", "{ \"films\": [ { \"title\": \"Kept\" } ] }");
        start(options, "Down");
        QTRY_COMPARE(shell()->guide()->title(), "English 21");
        QVERIFY(QFile::remove(options.guideFile) && QFile::remove(options.catalogueFile));
        QSignalSpy ended(m_application.get(), &gallery::Application::finished);
        QSignalSpy loading(shell()->guide(), &gallery::GuideController::loadingChanged);
        speak("de");
        QTRY_COMPARE(loading.count(), 2);
        settle();
        QCOMPARE(shell()->guide()->title(), "English 21");
        shell()->start("detail");
        QCOMPARE(shell()->detail()->title(), "Kept");
        QCOMPARE(ended.count(), 0);
    }
};

STB_TEST_MAIN(tst_LanguageChange)
#include "tst_languagechange.moc"
