// SPDX-License-Identifier: MIT
#include "settingsstores.h"
#include "testkit/testcase.h"

#include "app/languages.h"
#include "screens/settingscontroller.h"
#include "screens/themes.h"

#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>
#include <QtTest/qsignalspy.h>

using gallery::SettingsController;

/*! What the settings are, how keys choose among them, and what is stored. */
class tst_SettingsController : public stbtest::TestCase
{
    Q_OBJECT

    enum Group { Picture, Language, Look, Movement };

    void press(std::initializer_list<Qt::Key> keys)
    {
        for (const Qt::Key key : keys)
            QVERIFY(m->press(key));
    }

    /*! The titles of the group's rows. */
    QStringList titles() const
    {
        QStringList result;
        const QVariantList sections = m->sections();
        for (const QVariant &section : sections) {
            const QVariantList rows = section.toMap().value("rows").toList();
            for (const QVariant &row : rows)
                result.append(row.toMap().value("title").toString());
        }
        return result;
    }

    /*! The titles of what is checked in \a group. */
    QStringList checked(int group)
    {
        m->focusGroup(group);
        QStringList result = titles();
        const QList<bool> states = m->checked();
        for (qsizetype row = states.size() - 1; row >= 0; --row) {
            if (!states.at(row))
                result.removeAt(row);
        }
        return result;
    }

    void read(const QMap<QString, QVariant> &values)
    {
        m_store.values = values;
        m->setStore(&m_store);
    }

    RecordingStore m_store;
    std::unique_ptr<SettingsController> m;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_store.clear();
        m = std::make_unique<SettingsController>();
        m->setStore(&m_store);
    }
    void cleanup()
    {
        m.reset();
        QVERIFY(gallery::installLanguage("en"));
    }

    void startsWithTheKeysOnTheFirstGroup()
    {
        QCOMPARE(m->groups(), (QStringList { "Picture", "Language", "Look", "Animation" }));
        QCOMPARE(m->groupIndex(), 0);
        QCOMPARE(m->groupTitle(), "Picture");
        QVERIFY(!m->isInValues());
    }

    void everyGroupHasItsRows()
    {
        QCOMPARE(titles(), (QStringList { "HD, 1280 × 720", "Full HD, 1920 × 1080", "SD, 720 × 576",
                                          "Standard", "Light", "High contrast", "Copper", "75 %", "90 %",
                                          "100 %", "125 %", "150 %" }));
        m->focusGroup(Language);
        QCOMPARE(titles(), (QStringList { "English", "Русский", "Deutsch", "العربية" }));
        m->focusGroup(Look);
        QCOMPARE(titles(), QStringList { "Rounded corners" });
        m->focusGroup(Movement);
        QCOMPARE(titles(), (QStringList { "Tiles grow smoothly", "Tiles and menu scroll smoothly",
                                          "The home screen scrolls smoothly",
                                          "Pictures and menu edges fade in", "Menu and details slide in" }));
    }

    void rowsAreNumberedThroughAllSections()
    {
        int number = 0;
        const QVariantList sections = m->sections();
        QCOMPARE(sections.size(), 3);
        for (const QVariant &section : sections) {
            QVERIFY(section.toMap().value("exclusive").toBool());
            const QVariantList rows = section.toMap().value("rows").toList();
            for (const QVariant &row : rows)
                QCOMPARE(row.toMap().value("row").toInt(), number++);
        }
        QCOMPARE(number, m->checked().size());
        m->focusGroup(Movement);
        QVERIFY(!m->sections().constFirst().toMap().value("exclusive").toBool());
    }

    void anEmptyStoreShowsWhatIsInForceByDefault()
    {
        QCOMPARE(checked(Picture), (QStringList { "HD, 1280 × 720", "Standard", "100 %" }));
        QCOMPARE(checked(Language), QStringList { "English" });
        QCOMPARE(checked(Look), QStringList {});
        QCOMPARE(checked(Movement).size(), 5);
    }

    void withoutAStoredLanguageItIsTheApplications()
    {
        QVERIFY(gallery::installLanguage("ru"));
        QCOMPARE(checked(Language), QStringList { "Русский" });
        QCOMPARE(m->languageTitle(), "Русский");
    }

    void allLanguagesOfTheGalleryCanBeChosen()
    {
        m->open(Language);
        QStringList codes;
        for (int row = 0; row < m->checked().size(); ++row) {
            m->choose((row + 1) % int(m->checked().size()));
            codes.append(m_store.values.value("UI/language").toString());
        }
        codes.prepend(codes.takeLast());
        QCOMPARE(codes, gallery::languageCodes());
    }

    void whatIsStoredIsShown_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("group");
        QTest::addColumn<QStringList>("shown");
        const QString contrast = gallery::themePath("contrast");
        const auto picture = [](const QString &resolution, const QString &theme, const QString &size) {
            return QStringList { resolution, theme, size };
        };
        const QString hd = "HD, 1280 × 720";
        QTest::newRow("sd") << "UI/resolution" << QVariant("sd") << 0
                            << picture("SD, 720 × 576", "Standard", "100 %");
        QTest::newRow("full hd") << "UI/resolution" << QVariant("fullhd") << 0
                                 << picture("Full HD, 1920 × 1080", "Standard", "100 %");
        QTest::newRow("a resolution that there is not")
                << "UI/resolution" << QVariant("8k") << 0 << picture(hd, "Standard", "100 %");
        QTest::newRow("no text at all for a resolution")
                << "UI/resolution" << QVariant(QVariantList { 7 }) << 0 << picture(hd, "Standard", "100 %");
        QTest::newRow("theme") << "UI/theme" << QVariant(contrast) << 0
                               << picture(hd, "High contrast", "100 %");
        QTest::newRow("theme as a URL")
                << "UI/theme" << QVariant("qrc" + contrast) << 0 << picture(hd, "High contrast", "100 %");
        QTest::newRow("a theme file that there is not")
                << "UI/theme" << QVariant("/no/such/theme.json") << 0 << picture(hd, "Standard", "100 %");
        QTest::newRow("text size") << "UI/textScale" << QVariant("1.25") << 0
                                   << picture(hd, "Standard", "125 %");
        QTest::newRow("text size as a number")
                << "UI/textScale" << QVariant(0.9) << 0 << picture(hd, "Standard", "90 %");
        QTest::newRow("between two sizes")
                << "UI/textScale" << QVariant("1.4") << 0 << picture(hd, "Standard", "150 %");
        QTest::newRow("too large a size")
                << "UI/textScale" << QVariant("9") << 0 << picture(hd, "Standard", "150 %");
        QTest::newRow("too small a size")
                << "UI/textScale" << QVariant("-3") << 0 << picture(hd, "Standard", "75 %");
        QTest::newRow("a size that is no number")
                << "UI/textScale" << QVariant("abc") << 0 << picture(hd, "Standard", "100 %");
        QTest::newRow("not a number")
                << "UI/textScale" << QVariant("nan") << 0 << picture(hd, "Standard", "100 %");
        QTest::newRow("infinite") << "UI/textScale" << QVariant("inf") << 0
                                  << picture(hd, "Standard", "100 %");
        QTest::newRow("language") << "UI/language" << QVariant("ar") << 1 << QStringList { "العربية" };
        QTest::newRow("language with a country")
                << "UI/language" << QVariant("de-AT") << 1 << QStringList { "Deutsch" };
        QTest::newRow("language in upper case")
                << "UI/language" << QVariant("RU_ru") << 1 << QStringList { "Русский" };
        QTest::newRow("unknown language")
                << "UI/language" << QVariant("fr") << 1 << QStringList { "English" };
        QTest::newRow("rounding") << "UI/roundingEnabled" << QVariant("true") << 2
                                  << QStringList { "Rounded corners" };
        QTest::newRow("rounding that is no truth value")
                << "UI/roundingEnabled" << QVariant(QVariantList { 1 }) << 2 << QStringList {};
    }
    void whatIsStoredIsShown()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QFETCH(int, group);
        read({ { key, value } });
        QTEST(checked(group), "shown");
    }

    void eachSwitchShowsItsOwnValue_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("row");
        QTest::newRow("focus") << "focusingEnabled" << 0;
        QTest::newRow("lists") << "layoutScrollingEnabled" << 1;
        QTest::newRow("pages") << "viewportScrollingEnabled" << 2;
        QTest::newRow("fading") << "fadeEffectEnabled" << 3;
        QTest::newRow("sliding") << "slidingEnabled" << 4;
    }
    void eachSwitchShowsItsOwnValue()
    {
        QFETCH(QString, key);
        QFETCH(int, row);
        read({ { "Animations/" + key, "false" } });
        m->focusGroup(Movement);
        for (int i = 0; i < 5; ++i)
            QCOMPARE(m->checked().at(i), i != row);
    }

    void eachSwitchIsTurnedOverAndBack_data() { eachSwitchShowsItsOwnValue_data(); }
    void eachSwitchIsTurnedOverAndBack()
    {
        QFETCH(QString, key);
        QFETCH(int, row);
        const QSignalSpy changes(m.get(), &SettingsController::changed);
        m->open(Movement);
        m->choose(row);
        QCOMPARE(m->checked().at(row), false);
        QCOMPARE(m->checked().count(true), 4);
        m->choose(row);
        QCOMPARE(m->checked().count(true), 5);
        QCOMPARE(m_store.written,
                 (QStringList { "Animations/" + key + "=false", "Animations/" + key + "=true" }));
        QCOMPARE(changes.size(), 2);
        QCOMPARE(changes.at(0), (QVariantList { "Animations", key }));
    }

    void okOnAValueStoresItAndSaysSo_data()
    {
        QTest::addColumn<int>("group");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("written");
        QTest::newRow("resolution") << 0 << 1 << "UI/resolution=fullhd";
        QTest::newRow("another resolution") << 0 << 2 << "UI/resolution=sd";
        QTest::newRow("light") << 0 << 4 << "UI/theme=:/stbui/design/themes/light.json";
        QTest::newRow("contrast") << 0 << 5 << "UI/theme=:/stbui/design/themes/contrast.json";
        QTest::newRow("copper") << 0 << 6 << "UI/theme=:/stbui/design/themes/copper.json";
        QTest::newRow("smallest text") << 0 << 7 << "UI/textScale=0.75";
        QTest::newRow("largest text") << 0 << 11 << "UI/textScale=1.5";
        QTest::newRow("language") << 1 << 3 << "UI/language=ar";
        QTest::newRow("rounding") << 2 << 0 << "UI/roundingEnabled=true";
    }
    void okOnAValueStoresItAndSaysSo()
    {
        QFETCH(int, group);
        QFETCH(int, row);
        QFETCH(QString, written);
        const QSignalSpy changes(m.get(), &SettingsController::changed);
        m->open(group);
        m->focusRow(row);
        press({ Qt::Key_Return });
        QCOMPARE(m_store.written, QStringList { written });
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.at(0).at(0).toString() + u'/' + changes.at(0).at(1).toString(),
                 written.section('=', 0, 0));
        QCOMPARE(m->checked().at(row), true);
        QCOMPARE(m->row(), row);
        QVERIFY(m->isInValues());
    }

    void ofOneSettingOneValueIsInForce()
    {
        m->open(Picture);
        for (const int row : { 2, 1, 6, 3, 11, 7, 0 }) {
            m->choose(row);
            const QList<bool> states = m->checked();
            QVERIFY(states.at(row));
            QCOMPARE(states.mid(0, 3).count(true), 1);
            QCOMPARE(states.mid(3, 4).count(true), 1);
            QCOMPARE(states.mid(7, 5).count(true), 1);
        }
    }

    void whatIsInForceAlreadyIsNotChosenAgain()
    {
        const QSignalSpy changes(m.get(), &SettingsController::changed);
        m->open(Picture);
        for (const int row : { 0, 3, 9 })
            m->choose(row);
        m->choose(1);
        m->choose(1);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(m_store.written.size(), 1);
    }

    void aBadValueIsReplacedByTheOneThatStandsForIt()
    {
        read({ { "UI/textScale", "1.4" }, { "UI/resolution", "8k" } });
        const QSignalSpy changes(m.get(), &SettingsController::changed);
        m->open(Picture);
        m->choose(11);
        m->choose(0);
        QCOMPARE(m_store.written, (QStringList { "UI/textScale=1.5", "UI/resolution=hd" }));
        QCOMPARE(changes.size(), 2);
    }

    void theStandardThemeIsStoredAsNone()
    {
        read({ { "UI/theme", gallery::themePath("light") } });
        m->open(Picture);
        m->choose(3);
        QCOMPARE(m_store.written, QStringList { "UI/theme=" });
        QCOMPARE(m->themeTitle(), "Standard");
    }

    void aThemeFileOfOnesOwnIsAThemeToComeBackTo()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("mine.json");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        read({ { "UI/theme", path } });
        QCOMPARE(m->themeTitle(), "mine.json");
        m->open(Picture);
        QCOMPARE(titles().at(7), "mine.json");
        m->choose(4);
        QCOMPARE(m->themeTitle(), "Light");
        QCOMPARE(titles().at(7), "mine.json");
        m->choose(7);
        QCOMPARE(m_store.values.value("UI/theme").toString(), path);
        QCOMPARE(m->themeTitle(), "mine.json");
    }

    void aStoreThatKeepsNothingIsTold()
    {
        m_store.full = true;
        const QSignalSpy changes(m.get(), &SettingsController::changed);
        m->open(Look);
        press({ Qt::Key_Return });
        QVERIFY(m->isUnsaved());
        QCOMPARE(changes.size(), 1);
        press({ Qt::Key_Back });
        QVERIFY(!m->isUnsaved());
        m_store.full = false;
        m->open(Look);
        press({ Qt::Key_Return });
        QVERIFY(!m->isUnsaved());
    }

    void withoutAStoreValuesLastAsLongAsTheController()
    {
        m->setStore(nullptr);
        const QSignalSpy changes(m.get(), &SettingsController::changed);
        m->open(Picture);
        m->choose(5);
        m->open(Movement);
        m->choose(3);
        QCOMPARE(m->themeTitle(), "High contrast");
        QCOMPARE(m->checked(), (QList<bool> { true, true, true, false, true }));
        QCOMPARE(changes.size(), 2);
        QCOMPARE(m_store.written, QStringList());
    }

    void anotherStoreIsShownAtOnce()
    {
        const QSignalSpy changes(m.get(), &SettingsController::checkedChanged);
        RecordingStore other({ { "UI/resolution", "sd" } });
        m->setStore(&other);
        QVERIFY(changes.size() > 0);
        QVERIFY(m->checked().at(2));
        m->setStore(&m_store);
        QVERIFY(m->checked().at(0));
    }

    void upAndDownChooseTheGroupAndStopAtTheEnds()
    {
        press({ Qt::Key_Up });
        QCOMPARE(m->groupIndex(), 0);
        press({ Qt::Key_Down, Qt::Key_Down });
        QCOMPARE(m->groupIndex(), 2);
        press({ Qt::Key_End, Qt::Key_Down });
        QCOMPARE(m->groupIndex(), 3);
        press({ Qt::Key_PageUp });
        QCOMPARE(m->groupIndex(), 2);
        press({ Qt::Key_Home });
        QCOMPARE(m->groupIndex(), 0);
        QVERIFY(!m->isInValues());
    }

    void rightLeadsToTheValueInForceAndLeftBack()
    {
        read({ { "UI/resolution", "sd" } });
        press({ Qt::Key_Right });
        QVERIFY(m->isInValues());
        QCOMPARE(m->row(), 2);
        press({ Qt::Key_Right });
        QCOMPARE(m->row(), 2);
        press({ Qt::Key_Left });
        QVERIFY(!m->isInValues());
        QCOMPARE(m->groupIndex(), 0);
        press({ Qt::Key_Left });
        QVERIFY(!m->isInValues());
    }

    void okLeadsToTheValuesToo()
    {
        press({ Qt::Key_Down, Qt::Key_Select });
        QVERIFY(m->isInValues());
        QCOMPARE(m->groupIndex(), 1);
        QCOMPARE(m_store.written, QStringList());
    }

    void mirroredTheValuesAreOnTheLeft()
    {
        m->setMirrored(true);
        press({ Qt::Key_Right });
        QVERIFY(!m->isInValues());
        press({ Qt::Key_Left });
        QVERIFY(m->isInValues());
        press({ Qt::Key_Right });
        QVERIFY(!m->isInValues());
    }

    void upAndDownGoThroughAllValuesOfTheGroup()
    {
        press({ Qt::Key_Right, Qt::Key_Up });
        QCOMPARE(m->row(), 0);
        for (int row = 1; row < 12; ++row) {
            press({ Qt::Key_Down });
            QCOMPARE(m->row(), row);
        }
        press({ Qt::Key_Down });
        QCOMPARE(m->row(), 11);
        press({ Qt::Key_Home });
        QCOMPARE(m->row(), 0);
        press({ Qt::Key_End });
        QCOMPARE(m->row(), 11);
        QCOMPARE(m_store.written, QStringList());
    }

    void pageKeysChangeTheGroupFromTheValues()
    {
        press({ Qt::Key_Right, Qt::Key_PageDown });
        QVERIFY(m->isInValues());
        QCOMPARE(m->groupIndex(), 1);
        press({ Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageDown });
        QCOMPARE(m->groupIndex(), 3);
        QVERIFY(m->isInValues());
        press({ Qt::Key_PageUp });
        QCOMPARE(m->groupIndex(), 2);
    }

    void backLeadsToTheGroupsAndThenOut()
    {
        const QSignalSpy leaving(m.get(), &SettingsController::leaveRequested);
        press({ Qt::Key_Down, Qt::Key_Right, Qt::Key_Back });
        QVERIFY(!m->isInValues());
        QCOMPARE(m->groupIndex(), 1);
        QCOMPARE(leaving.size(), 0);
        press({ Qt::Key_Back });
        QCOMPARE(leaving.size(), 1);
    }

    void otherKeysMeanNothing()
    {
        QVERIFY(!m->press(Qt::Key_A));
        QVERIFY(!m->press(Qt::Key_Menu));
        QVERIFY(!m->press(Qt::Key_5));
    }

    void whatThereIsNotCannotBeChosen()
    {
        m->open(7);
        m->open(-1);
        m->focusGroup(4);
        QVERIFY(!m->isInValues());
        m->focusRow(-1);
        m->focusRow(12);
        m->choose(12);
        m->choose(-1);
        QVERIFY(!m->isInValues());
        QCOMPARE(m_store.written, QStringList());
    }

    void aStartLeadsBackToTheFirstGroup()
    {
        press({ Qt::Key_Down, Qt::Key_Right, Qt::Key_Down });
        m->start();
        QCOMPARE(m->groupIndex(), 0);
        QVERIFY(!m->isInValues());
    }

    void aChoiceKeepsTheKeysWhereTheyAre()
    {
        press({ Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return });
        m->refresh();
        QCOMPARE(m->groupIndex(), 1);
        QCOMPARE(m->row(), 1);
        QVERIFY(m->isInValues());
    }

    void theTextsAreInTheLanguageOfTheApplication()
    {
        QVERIFY(gallery::installLanguage("de"));
        QCOMPARE(m->groups(), (QStringList { "Bild", "Sprache", "Aussehen", "Animation" }));
        QVERIFY(titles().contains("Hoher Kontrast"));
        m->focusGroup(Language);
        QVERIFY(titles().contains("English"));
    }
};

STB_TEST_MAIN(tst_SettingsController)
#include "tst_settingscontroller.moc"
