// SPDX-License-Identifier: MIT
#include "rebuildtest.h"

#include <QtCore/qtemporarydir.h>

/*!
    What each setting changes of what is shown. A setting is chosen as a user chooses it, after which the screens are made
    anew. In these tests a movement takes longer than any test lasts: what moves has not come to its end when it is looked
    at, and what does not move is there at once.
*/
class tst_SettingsApplied : public RebuildTest
{
    Q_OBJECT

    void startOn(const QString &screen, const QString &keys = {}, const QString &theme = "slow")
    {
        gallery::Options options;
        options.screen = screen;
        options.theme = m_folder.filePath(theme + ".json");
        start(options, keys);
    }

    /*! Chooses \a title, and waits for the screens that are made then. */
    void apply(const QString &title) const
    {
        QSignalSpy rebuilt(m_application.get(), &gallery::Application::rebuilt);
        QVERIFY2(choose(title), qPrintable(title));
        QTRY_COMPARE(rebuilt.count(), 1);
        QTRY_VERIFY(!m_application->isReading());
        settle();
    }

    /*! Presses \a key and lets a few frames go by. */
    void pressAndLook(Qt::Key key) const
    {
        press(key);
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::processEvents();
            view()->grabWindow();
        }
    }

    qreal number(const QString &name, const char *property) const
    {
        const QQuickItem *found = item(name);
        return found == nullptr ? qQNaN() : found->property(property).toReal();
    }
    /*! How far the row of tiles that keys act on is scrolled. */
    qreal scrolledTiles() const
    {
        const QList<QQuickItem *> lists = items("tiles");
        for (const QQuickItem *list : lists) {
            if (list->parentItem()->property("active").toBool())
                return list->property("contentX").toReal();
        }
        return qQNaN();
    }
    int pixelSizeOf(const QString &text) const { return pixelSizeOf(view()->rootObject(), text); }
    static int pixelSizeOf(const QQuickItem *item, const QString &text)
    {
        if (item->isVisible() && item->property("text").toString() == text && item->inherits("QQuickText"))
            return item->property("font").value<QFont>().pixelSize();
        const QList<QQuickItem *> children = item->childItems();
        for (const QQuickItem *child : children) {
            if (const int size = pixelSizeOf(child, text))
                return size;
        }
        return 0;
    }

    /*! Of the tiles that are seen, the one that the keys act on: what it takes up. */
    QRectF focusedTile() const
    {
        const QList<QQuickItem *> tiles = items("tile");
        for (const QQuickItem *tile : tiles) {
            if (tile->property("focused").toBool())
                return tile->property("customFocusRect").toRectF();
        }
        return {};
    }

    QRectF cardOfDetails() const { return sceneRect(items("focusPlate").constLast()); }

    QTemporaryDir m_folder;

private Q_SLOTS:
    void initTestCase()
    {
        for (const auto &[name, duration] : { std::pair { "slow", 100000 }, { "quick", 40 } }) {
            QFile theme(m_folder.filePath(QLatin1StringView(name) + ".json"));
            QVERIFY(theme.open(QIODevice::WriteOnly));
            theme.write(QStringLiteral(R"({ "animation": { "duration": %1, "fadeDuration": %1 } })")
                                .arg(duration)
                                .toUtf8());
        }
    }
    void cleanup() { end(); }

    void theLanguageIsThatOfTheTexts()
    {
        startOn("settings");
        QVERIFY(texts().contains("Resolution"));
        apply("Deutsch");
        QVERIFY(texts().contains("Sprache"));
        QVERIFY(!texts().contains("Settings"));
    }

    void theResolutionIsTheSizeOfTheWindow()
    {
        startOn("settings");
        QCOMPARE(view()->grabWindow().size(), QSize(1280, 720));
        apply("SD, 720 × 576");
        QCOMPARE(view()->grabWindow().size(), QSize(720, 576));
    }

    void theThemeGivesTheColours()
    {
        startOn("settings");
        QVERIFY(view()->grabWindow().pixelColor(0, 0).lightness() < 50);
        apply("Light");
        QVERIFY(view()->grabWindow().pixelColor(0, 0).lightness() > 200);
    }

    void theTextSizeIsThatOfTheScreensTextsAsOfTheControlsTexts()
    {
        startOn("settings", "Right");
        const QStringList seen { "Settings", "Theme", "HD, 1280 × 720", "Language", "Choose" };
        QHash<QString, int> before;
        for (const QString &text : seen) {
            before.insert(text, pixelSizeOf(text));
            QVERIFY2(before.value(text) > 0, qPrintable(text));
        }
        apply("125 %");
        for (const QString &text : seen) {
            if (const int size = pixelSizeOf(text)) // what is further down may have gone out of sight
                QCOMPARE(size, qRound(before.value(text) * 1.25));
        }
        QVERIFY(pixelSizeOf("Settings") > before.value("Settings"));
        QVERIFY(pixelSizeOf("Theme") > before.value("Theme"));
    }

    void roundedCornersAreThoseOfPlatesAndOfControls()
    {
        startOn("settings", "Right");
        const auto corner = [this] {
            const QRectF plate = sceneRect(item("focusPlate"));
            return view()->grabWindow().pixelColor(plate.topLeft().toPoint());
        };
        const auto middle = [this] {
            const QRectF plate = sceneRect(item("focusPlate"));
            return view()->grabWindow().pixelColor(QPointF(plate.center().x(), plate.top()).toPoint());
        };
        QCOMPARE(corner(), middle());
        QCOMPARE(number("group", "roundingRadius"), 0.0);
        apply("Rounded corners");
        QVERIFY(corner() != middle());
        QVERIFY(number("group", "roundingRadius") > 0);
    }

    void tilesGrowAtOnceOrSmoothly()
    {
        startOn("home");
        pressAndLook(Qt::Key_Right);
        QTRY_VERIFY(focusedTile().left() < 0);
        apply("Tiles grow smoothly");
        pressAndLook(Qt::Key_Right);
        QCOMPARE(focusedTile().left(), 0.0);
    }

    void tilesScrollAtOnceOrSmoothly()
    {
        startOn("home");
        const qreal begin = scrolledTiles();
        pressAndLook(Qt::Key_End);
        QVERIFY(scrolledTiles() > begin + 100);
        pressAndLook(Qt::Key_Home);
        QCOMPARE(scrolledTiles(), begin);
        apply("Tiles and menu scroll smoothly");
        QCOMPARE(scrolledTiles(), begin);
        pressAndLook(Qt::Key_End);
        QVERIFY(scrolledTiles() < begin + 50);
    }

    void theMenuScrollsAtOnceOrSmoothly()
    {
        gallery::Options options;
        options.screen = "channels";
        options.resolution = "sd";
        options.theme = m_folder.filePath("slow.json");
        start(options, "Menu Home");
        const auto left = [this] { return sceneRect(items("menuEntry").constFirst()).left(); };
        const qreal begin = left();
        pressAndLook(Qt::Key_End);
        QVERIFY(left() < begin - 50);
        press(Qt::Key_Home);
        apply("Tiles and menu scroll smoothly");
        QCOMPARE(left(), begin);
        pressAndLook(Qt::Key_End);
        QVERIFY(left() > begin - 50);
    }

    void theHomeScreenScrollsAtOnceOrSmoothly()
    {
        startOn("home");
        press(Qt::Key_Down);
        QVERIFY(number("rows", "contentY") > 100);
        press(Qt::Key_Up);
        QCOMPARE(number("rows", "contentY"), 0.0);
        apply("The home screen scrolls smoothly");
        pressAndLook(Qt::Key_Down);
        QVERIFY(number("rows", "contentY") < 50);
    }

    void theScrollingOfTilesAndThatOfTheHomeScreenAreTwoThings()
    {
        startOn("home");
        apply("The home screen scrolls smoothly");
        const qreal begin = scrolledTiles();
        press(Qt::Key_End);
        QVERIFY(scrolledTiles() > begin + 100);
        apply("The home screen scrolls smoothly");
        apply("Tiles and menu scroll smoothly");
        press(Qt::Key_Down);
        QVERIFY(number("rows", "contentY") > 100);
    }

    void picturesAreThereAtOnceOrFadeIn()
    {
        startOn("home", "Up"); // no tile is larger than another
        // Between what is written on the tile and its progress.
        const QRect tile(sceneRect(items("tile").constFirst()).topLeft().toPoint() + QPoint(20, 60),
                         QSize(150, 30));
        const QImage there = view()->grabWindow().copy(tile);
        apply("Pictures and menu edges fade in");
        const QImage begun = view()->grabWindow().copy(tile);
        QVERIFY(difference(begun, there) != QString());
        // Nothing is seen of the picture yet.
        QImage ground(tile.size(), begun.format());
        ground.fill(begun.pixelColor(0, 0));
        QCOMPARE(difference(begun, ground), QString());
    }

    void theMenuIsThereAtOnceOrSlidesIn()
    {
        startOn("channels", "Menu");
        const qreal place = number("menuPanel", "y");
        QVERIFY(place > 0);
        press(Qt::Key_Menu);
        QVERIFY(item("menuOverlay") == nullptr);
        apply("Menu and details slide in");
        pressAndLook(Qt::Key_Menu);
        QVERIFY(number("menuPanel", "y") < 0);
        QVERIFY(item("menuOverlay")->hasFocus()); // keys do not wait
    }

    void aMenuThatSlidesEndsInItsPlaceAndGoesAgain()
    {
        startOn("channels", "Menu", "quick");
        const qreal place = number("menuPanel", "y");
        const QImage there = view()->grabWindow();
        press(Qt::Key_Menu);
        apply("Menu and details slide in");
        press(Qt::Key_Menu);
        QTRY_COMPARE(number("menuPanel", "y"), place);
        settle();
        QCOMPARE(difference(view()->grabWindow(), there), QString());
        press(Qt::Key_Menu);
        QVERIFY(item("menuOverlay") != nullptr);
        QVERIFY(!item("menuOverlay")->hasFocus());
        QTRY_VERIFY(item("menuOverlay") == nullptr);
    }

    void detailsAreThereAtOnceOrSlideIn()
    {
        startOn("guide", "Info");
        const QRectF place = cardOfDetails();
        QVERIFY(sceneRect(item("details")).contains(place));
        press(Qt::Key_Back);
        QVERIFY(item("details") == nullptr);
        apply("Menu and details slide in");
        pressAndLook(Qt::Key_Info);
        QVERIFY(cardOfDetails().top() > place.top() + 100);
        QVERIFY(item("details")->hasFocus());
    }

    void detailsThatSlideEndInTheirPlaceAndGoAgain()
    {
        startOn("guide", "Info", "quick");
        const QRectF place = cardOfDetails();
        press(Qt::Key_Back);
        apply("Menu and details slide in");
        press(Qt::Key_Info);
        QTRY_COMPARE(cardOfDetails(), place);
        press(Qt::Key_Back);
        QVERIFY(item("details") != nullptr);
        QVERIFY(!item("details")->hasFocus());
        QTRY_VERIFY(item("details") == nullptr);
    }
};

STB_TEST_MAIN(tst_SettingsApplied)
#include "tst_settingsapplied.moc"
