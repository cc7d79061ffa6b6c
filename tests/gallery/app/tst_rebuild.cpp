// SPDX-License-Identifier: MIT
#include "rebuildtest.h"

#include <stbconfig/iniconfigurationmanager.h>

#include <QtCore/qtemporarydir.h>
#include <QtQml/qqmlcomponent.h>

/*! The screens are made anew while the gallery runs. */
class tst_Rebuild : public RebuildTest
{
    Q_OBJECT

    void startOn(const QString &screen, const QString &keys = {}, const QString &language = "en")
    {
        gallery::Options options;
        options.screen = screen;
        options.language = language;
        start(options, keys);
    }

    void checkEverything(const QString &language)
    {
        QFETCH(QString, screen);
        QFETCH(QString, keys);
        startOn(screen, keys, language);
        letNothingHappenByItself();
        const QStringList stateBefore = state();
        const QStringList placesBefore = places();
        const QImage before = stillPicture();
        QVERIFY(stateBefore.size() > 50 && placesBefore.constFirst() != "focus: nothing");

        rebuild();
        QCOMPARE(state(), stateBefore);
        QCOMPARE(places(), placesBefore);
        QCOMPARE(difference(stillPicture(), before), QString());
    }

    QVariant settingsSay(const QString &name) const
    {
        QQmlComponent component(view()->engine());
        component.setData("import QtQml\nimport Stbui.UI.Qml.Controls.Basic\n"
                          "QtObject { property var answer: QmlSettings."
                                  + name.toLatin1() + " }",
                          QUrl());
        const std::unique_ptr<QObject> asked(component.create());
        return asked == nullptr ? QVariant() : asked->property("answer");
    }

    std::unique_ptr<stbconfig::IniConfigurationManager> m_store;
    stbconfig::ConfigurationManager *m_usual = nullptr;

private Q_SLOTS:
    void cleanup()
    {
        end();
        if (m_store == nullptr)
            return;
        stbconfig::setQmlConfigManager(m_usual);
        m_store.reset();
    }

    void whatIsChosenInTheSettingsIsSeenAndStored()
    {
        QTemporaryDir folder;
        m_usual = stbconfig::qmlConfigManager();
        m_store = std::make_unique<stbconfig::IniConfigurationManager>(folder.filePath("store.ini"));
        stbconfig::setQmlConfigManager(m_store.get());
        startOn("settings");
        m_application->configuration()->setReadOnly(false);
        const QStringList english = shell()->settings()->groups();
        QSignalSpy rebuilt(m_application.get(), &gallery::Application::rebuilt);
        const QList<QPair<QString, QString>> choices { { "Light", "theme=" },
                                                       { "SD, 720 × 576", "resolution=sd" },
                                                       { "Deutsch", "language=de" } };
        for (const auto &[title, line] : choices) {
            rebuilt.clear();
            QVERIFY2(choose(title), qPrintable(title));
            const int group = shell()->settings()->groupIndex();
            const int row = shell()->settings()->row();
            QTRY_COMPARE(rebuilt.count(), 1);
            settle();
            QCOMPARE(shell()->screen(), "settings");
            QCOMPARE(shell()->settings()->groupIndex(), group);
            QCOMPARE(shell()->settings()->row(), row);
            QVERIFY(!shell()->settings()->isUnsaved());
            QFile stored(m_store->fileName());
            QVERIFY(stored.open(QIODevice::ReadOnly));
            QVERIFY2(stored.readAll().contains(line.toUtf8()), qPrintable(line));
        }
        QVERIFY(view()->grabWindow().pixelColor(0, 0).lightness() > 200);
        QCOMPARE(view()->size(), QSize(720, 576));
        QVERIFY(shell()->settings()->groups() != english);
    }

    void everythingIsWhereItWas_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("keys");
        QTest::newRow("first tile") << "home"
                                    << "";
        QTest::newRow("a tile further on, rows scrolled")
                << "home"
                << "Right Right Right Right Right Right Right Left Down Right Right Down Right";
        QTest::newRow("the last tiles of a row") << "home"
                                                 << "Down End Left";
        QTest::newRow("above the rows") << "home"
                                        << "Up Right";
        QTest::newRow("about to leave") << "home"
                                        << "Up Back";
        QTest::newRow("a button of a film") << "detail"
                                            << "Right Return Right";
        QTest::newRow("an episode") << "series"
                                    << "End Up";
        QTest::newRow("a season") << "series"
                                  << "Home Up Right";
        QTest::newRow("a programme") << "guide"
                                     << "Right Right Down Down Down";
        QTest::newRow("a day") << "guide"
                               << "Menu Right Right";
        QTest::newRow("details of a programme") << "guide"
                                                << "Down Down Info";
        QTest::newRow("a group of channels") << "channels"
                                             << "Right Down";
        QTest::newRow("the last channel") << "channels"
                                          << "End";
        QTest::newRow("a programme of the player") << "player"
                                                   << "Return Return Up Right Right";
        QTest::newRow("a button of the player") << "player"
                                                << "Return Return Right";
        QTest::newRow("a group of settings") << "settings"
                                             << "Down Down";
        QTest::newRow("a setting") << "settings"
                                   << "Down Right Down";
        QTest::newRow("about, scrolled") << "about"
                                         << "Down Down";
        QTest::newRow("nothing typed") << "search"
                                       << "Down Right";
        QTest::newRow("a result") << "search"
                                  << "Down Right Return PageDown Down Right";
        QTest::newRow("a control") << "components"
                                   << "Down Down Right";
        QTest::newRow("a value of a control") << "components"
                                              << "PageDown Right Down Down Right";
        QTest::newRow("something that turns") << "components"
                                              << "Up";
        QTest::newRow("the line of a control") << "components"
                                               << "End Up Right Down Up Down";
        QTest::newRow("only the picture") << "player"
                                          << "Back";
    }
    void everythingIsWhereItWas() { checkEverything("en"); }

    void everythingIsWhereItWasFromRightToLeft_data() { everythingIsWhereItWas_data(); }
    void everythingIsWhereItWasFromRightToLeft() { checkEverything("ar"); }

    void theScreensBelowAreWhereTheyWere()
    {
        startOn("home", "Down Right Right Return");
        ScreenTest::press(Qt::Key_Back);
        settle();
        const QImage below = view()->grabWindow();
        ScreenTest::press(Qt::Key_Return);
        QCOMPARE(shell()->openScreens(), (QStringList { "home", "detail" }));
        rebuild();
        QCOMPARE(shell()->openScreens(), (QStringList { "home", "detail" }));
        ScreenTest::press(Qt::Key_Back);
        settle();
        QCOMPARE(difference(view()->grabWindow(), below), QString());
    }

    void keysGoOnAsIfNothingHadHappened()
    {
        startOn("guide", "Down");
        const int row = shell()->guide()->programmeRow();
        rebuild();
        ScreenTest::press(Qt::Key_Down);
        QCOMPARE(shell()->guide()->programmeRow(), row + 1);
        settle();
        QCOMPARE(plateProblem(sceneRect(view()->rootObject())), QString());
    }

    void randomKeysAndRebuildsLeadWhereTheKeysAloneLead()
    {
        const quint32 seed = stbtest::randomOptions().seed.value_or(3);
        QRandomGenerator random(seed);
        const QList<Qt::Key> keys = remoteKeys();
        startOn("home");
        for (int round = 0; round < 12; ++round) {
            shell()->start(gallery::screenNames().at(
                    random.bounded(int(gallery::ShellController::screenNames().size()))));
            for (int i = random.bounded(12); i > 0; --i)
                ScreenTest::press(keys.at(random.bounded(int(keys.size()))));
            letNothingHappenByItself();
            settle();
            const QStringList stateBefore = state();
            const QStringList placesBefore = places();
            const QImage before = stillPicture();
            rebuild();
            QCOMPARE(state(), stateBefore);
            QCOMPARE(places(), placesBefore);
            const QString problem = difference(stillPicture(), before);
            QVERIFY2(problem.isEmpty(), qPrintable(shell()->screen() + ": " + problem));
        }
    }

    void nothingIsLeftOfTheScreensBefore()
    {
        startOn("channels");
        const QPointer<QQmlEngine> engine = view()->engine();
        const QPointer<QQuickItem> root = view()->rootObject();
        const QPointer<gallery::ScreenWindow> window = view();
        const int items = int(view()->contentItem()->childItems().size());
        rebuild();
        QVERIFY(engine.isNull());
        QVERIFY(root.isNull());
        QCOMPARE(view(), window.data());
        QCOMPARE(int(view()->contentItem()->childItems().size()), items);
        QVERIFY(view()->activeFocusItem() != nullptr);
    }

    void picturesOnTheirWayComeAfterARebuildToo()
    {
        startOn("home");
        const QImage settled = view()->grabWindow();
        // Anew, and thrown away before any picture is there.
        startOn("guide");
        shell()->start("home");
        view()->grabWindow();
        rebuild();
        QCOMPARE(difference(view()->grabWindow(), settled), QString());
    }

    void severalRequestsAreOneRebuild()
    {
        startOn("home");
        QSignalSpy rebuilt(m_application.get(), &gallery::Application::rebuilt);
        for (int i = 0; i < 3; ++i)
            m_application->rebuild();
        QCOMPARE(rebuilt.count(), 0);
        QTRY_COMPARE(rebuilt.count(), 1);
        settle();
        QCOMPARE(rebuilt.count(), 1);
        rebuild();
        QCOMPARE(rebuilt.count(), 2);
    }

    void itMayBeAskedForWhileAKeyIsHandled()
    {
        startOn("home");
        connect(shell()->home(), &gallery::HomeController::selectionChanged, m_application.get(),
                &gallery::Application::rebuild);
        QSignalSpy rebuilt(m_application.get(), &gallery::Application::rebuilt);
        const QPointer<QQmlEngine> engine = view()->engine();
        ScreenTest::press(Qt::Key_Down);
        QVERIFY(!engine.isNull());
        QCOMPARE(rebuilt.count(), 0);
        QTRY_COMPARE(rebuilt.count(), 1);
        QVERIFY(engine.isNull());
        QCOMPARE(shell()->home()->rowIndex(), 1);
    }

    void anotherThemeIsSeen()
    {
        startOn("guide", "Right Down");
        const QStringList before = withoutSettings(state());
        const QImage dark = view()->grabWindow();
        set("UI", "theme", gallery::themePath("light"));
        rebuild();
        QCOMPARE(withoutSettings(state()), before);
        QVERIFY(view()->grabWindow().pixelColor(0, 0).lightness() > dark.pixelColor(0, 0).lightness() + 100);
        set("UI", "theme", QString());
        rebuild();
        QCOMPARE(difference(view()->grabWindow(), dark), QString());
    }

    void theWindowTakesTheSizeOfAnotherResolution()
    {
        startOn("home", "Down Right");
        const QImage before = view()->grabWindow();
        QCOMPARE(before.size(), QSize(1280, 720));
        for (const auto &[resolution, size] :
             { std::pair { "fullhd", QSize(1920, 1080) }, { "sd", QSize(720, 576) } }) {
            set("UI", "resolution", resolution);
            rebuild();
            QCOMPARE(view()->size(), size);
            QCOMPARE(view()->grabWindow().size(), size);
            QCOMPARE(shell()->home()->rowIndex(), 1);
        }
        set("UI", "resolution", "hd");
        rebuild();
        QCOMPARE(difference(view()->grabWindow(), before), QString());
    }

    void theSwitchesAreReadAnew()
    {
        startOn("home");
        QCOMPARE(settingsSay("roundingEnabled"), QVariant(false));
        QCOMPARE(settingsSay("slidingAnimationsEnabled"), QVariant(false));
        set("UI", "roundingEnabled", true);
        set("Animations", "slidingEnabled", true);
        rebuild();
        QCOMPARE(settingsSay("roundingEnabled"), QVariant(true));
        QCOMPARE(settingsSay("slidingAnimationsEnabled"), QVariant(true));
    }

    void largerTextsAreSeen()
    {
        startOn("home");
        const QImage before = view()->grabWindow();
        set("UI", "textScale", 1.3);
        rebuild();
        QVERIFY(view()->grabWindow() != before);
    }

    void aDocumentThatCannotBeMadeIsTold_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("told");
        QTest::newRow("missing") << QByteArray() << "Screen.qml";
        QTest::newRow("broken") << QByteArray("import QtQuick\nItem {\n width: }") << "Screen.qml:3";
        QTest::newRow("first of two")
                << QByteArray("import QtQuick\nItem {\n width: }\nItem {") << "Screen.qml:3";
        QTest::newRow("no item") << QByteArray("import QtQml\nQtObject {}") << "no item";
    }
    void aDocumentThatCannotBeMadeIsTold()
    {
        QFETCH(QByteArray, document);
        QFETCH(QString, told);
        QTemporaryDir folder;
        QFile file(folder.filePath("Screen.qml"));
        if (!document.isEmpty()) {
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(document);
            file.close();
        }
        gallery::ScreenWindow window(QUrl::fromLocalFile(file.fileName()), {});
        QVERIFY(!window.build({}));
        QVERIFY2(window.error().contains(told), qPrintable(window.error()));
        QCOMPARE(window.rootObject(), nullptr);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("import QtQuick\nItem { width: 90; height: 70 }");
        file.close();
        QVERIFY2(window.build({}), qPrintable(window.error()));
        QCOMPARE(window.error(), QString());
        QCOMPARE(window.size(), QSize(90, 70));
    }

    void theWindowFollowsTheSizeOfItsRootItem()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath("Screen.qml"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("import QtQuick\nItem { width: 90; height: 70 }");
        file.close();
        gallery::ScreenWindow window(QUrl::fromLocalFile(file.fileName()), {});
        QVERIFY(window.build({ { "width", 130 } }));
        QCOMPARE(window.size(), QSize(130, 70));
        window.rootObject()->setHeight(110);
        QCOMPARE(window.size(), QSize(130, 110));
    }
};

STB_TEST_MAIN(tst_Rebuild)
#include "tst_rebuild.moc"
