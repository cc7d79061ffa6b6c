// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"
#include "tilescene.h"

#include <design_system/qmldesignsystem.h>
#include <scenegraph/nodehelpers.h>

#include <QtCore/qregularexpression.h>
#include <QtCore/qtemporaryfile.h>
#include <QtQml/qqmlparserstatus.h>
#include <QtTest/qsignalspy.h>

namespace {

using Style = design_system::TileStyle;
using StyleObject = design_system::TileQmlStyle;

const QRect resting(0, 0, 201, 113);
const QRect focused(-23, -17, 253, 161);

struct Scene : TileScene<StbExpandableTile>
{
    explicit Scene(bool complete = true)
    {
        if (complete)
            make("ExpandableTile");
    }
    QTimeLine &focusing() { return tilePrivate(tile.get())->m_focusTimeLine; }
    QTimeLine &fading() { return tilePrivate(tile.get())->m_fadeTimeLine; }
    double opacity() { return tilePrivate(tile.get())->m_imageOpacity; }
    QRect rect() { return tile->customFocusRect(); }
};

struct FadingScene : Scene
{
    FadingScene()
        : Scene(false)
    {
        settings.setValue("Animations", "fadeEffectEnabled", true);
        make("ExpandableTile");
    }
};

// A theme with these durations, for the engines that are made while it lives.
class Durations
{
public:
    Durations(stbtest::MemoryConfiguration &settings, int duration, int fadeDuration)
    {
        if (!m_file.open())
            qFatal("no temporary file");
        m_file.write(QStringLiteral(R"({ "animation": { "duration": %1, "fadeDuration": %2 } })")
                             .arg(duration)
                             .arg(fadeDuration)
                             .toUtf8());
        m_file.close();
        settings.setValue("UI", "theme", m_file.fileName());
    }

private:
    QTemporaryFile m_file;
};

// Calls what only a time line may call.
class LooseTile : public StbExpandableTile
{
public:
    using StbExpandableTile::componentComplete;
    using StbExpandableTile::processStateChanged;
    using StbExpandableTile::processValueChanged;
};

} // namespace

class tst_StbExpandableTileAnimation : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void focusGrowsTheTileAndItShrinksBack()
    {
        Scene scene;
        scene.tile->setState("focused");
        QCOMPARE(scene.focusing().state(), QTimeLine::Running);
        QCOMPARE(scene.focusing().direction(), QTimeLine::Forward);
        QCOMPARE(scene.rect(), resting);
        advance(scene.focusing(), 1.0);
        QCOMPARE(scene.rect(), focused);
        scene.focusing().stop();

        scene.tile->setState("normal");
        QCOMPARE(scene.focusing().state(), QTimeLine::Running);
        QCOMPARE(scene.focusing().direction(), QTimeLine::Backward);
        QCOMPARE(scene.rect(), focused);
        advance(scene.focusing(), 0.0);
        QCOMPARE(scene.rect(), resting);
        QCOMPARE(scene.tile->size(), QSizeF(201, 113)); // the item itself never grows
    }

    void everyStepRoundsEachEdgeHalfAwayFromZero_data()
    {
        QTest::addColumn<QRect>("focusedRect");
        QTest::addColumn<QRect>("halfWay");
        // Margins 23, 17, 29, 31: halves 12, 9, 15, 16.
        QTest::newRow("growing") << focused << QRect(QPoint(-12, -9), QPoint(200 + 15, 112 + 16));
        // The right and bottom margins are plain differences: -29 and -31.
        QTest::newRow("shrinking") << QRect(QPoint(-23, -17), QPoint(171, 81))
                                   << QRect(QPoint(-12, -9), QPoint(200 - 15, 112 - 16));
        // The left and top ones are absolute values.
        QTest::newRow("a left and top edge behind the origin")
                << QRect(QPoint(23, 17), QPoint(229, 143))
                << QRect(QPoint(-12, -9), QPoint(200 + 15, 112 + 16));
    }
    void everyStepRoundsEachEdgeHalfAwayFromZero()
    {
        QFETCH(QRect, focusedRect);
        QFETCH(QRect, halfWay);
        Scene scene;
        Style style = oddTileStyle();
        style.focusedRect = focusedRect;
        StyleObject object;
        object.setStyle(style);
        scene.tile->setStyle(&object);
        scene.tile->setState("focused");
        scene.focusing().setEasingCurve(QEasingCurve::Linear);
        advance(scene.focusing(), 0.5);
        QCOMPARE(scene.focusing().currentValue(), 0.5);
        QCOMPARE(scene.rect(), halfWay);
    }

    void theMarginsAreCountedFromTheTileRectangle()
    {
        Scene scene;
        Style style = oddTileStyle();
        style.tileRect = QRect(QPoint(3, 5), QPoint(91, 73));
        style.focusedRect = QRect(QPoint(-7, -9), QPoint(101, 95));
        StyleObject object;
        object.setStyle(style);
        scene.tile->setStyle(&object);
        scene.tile->setState("focused");
        advance(scene.focusing(), 1.0);
        QCOMPARE(scene.rect(), QRect(QPoint(3 - 7, 5 - 9), QPoint(101, 95)));
    }

    void theCurveIsTheTimeLinesDefault()
    {
        Scene scene;
        QCOMPARE(scene.focusing().easingCurve(), QTimeLine().easingCurve());
        QCOMPARE(scene.focusing().updateInterval(), QTimeLine().updateInterval());
        scene.tile->setState("focused");
        for (int step = 1; step < 20; ++step) {
            advance(scene.focusing(), step / 20.0);
            const double value = scene.focusing().currentValue();
            QCOMPARE(scene.rect().left(), -qRound(23 * value));
            QCOMPARE(scene.rect().bottom(), 112 + qRound(31 * value));
        }
    }

    void losingTheFocusHalfWayTurnsTheAnimationRoundWithoutAJump()
    {
        Scene scene;
        scene.tile->setState("focused");
        advance(scene.focusing(), 0.5);
        const QRect there = scene.rect();
        QVERIFY(there != resting && there != focused);
        QSignalSpy moved(scene.tile.get(), &StbExpandableTile::customFocusRectChanged);
        scene.tile->setState("normal");
        QCOMPARE(scene.rect(), there);
        QCOMPARE(moved.count(), 0);
        QCOMPARE(scene.focusing().state(), QTimeLine::Running);
        QCOMPARE(scene.focusing().direction(), QTimeLine::Backward);
        advance(scene.focusing(), 0.25);
        const QRect further = scene.rect();
        QVERIFY(there.contains(further) && further != there);
        scene.tile->setState("focused");
        QCOMPARE(scene.rect(), further);
        QCOMPARE(scene.focusing().direction(), QTimeLine::Forward);
        finish(scene.focusing());
        QCOMPARE(scene.rect(), focused);
    }

    void aTileThatBecomesNormalShrinksFromItsFocusedSizeEvenWhenItRested()
    {
        Scene scene;
        scene.tile->setState("normal");
        QCOMPARE(scene.focusing().state(), QTimeLine::Running);
        QCOMPARE(scene.focusing().direction(), QTimeLine::Backward);
        QCOMPARE(scene.rect(), focused);
        finish(scene.focusing());
        QCOMPARE(scene.rect(), resting);
    }

    void anotherStateChangesNothing()
    {
        Scene scene;
        for (const char *state : { "pressed", "Focused", "NORMAL", "" }) {
            scene.tile->setState(state);
            QCOMPARE(scene.focusing().state(), QTimeLine::NotRunning);
        }
        scene.tile->setState("focused");
        advance(scene.focusing(), 0.5);
        const QRect there = scene.rect();
        scene.tile->setState("pressed");
        QCOMPARE(scene.focusing().direction(), QTimeLine::Forward);
        QCOMPARE(scene.rect(), there);
    }

    void aStateWithoutAStyleIsIgnored()
    {
        Scene scene;
        scene.tile->setStyle(nullptr);
        scene.tile->setState("focused");
        QCOMPARE(scene.focusing().state(), QTimeLine::NotRunning);
        QCOMPARE(scene.rect(), resting);
    }

    void aStyleThatGoesHalfWayLeavesTheRectangleThere()
    {
        Scene scene;
        scene.tile->setState("focused");
        advance(scene.focusing(), 0.5);
        const QRect there = scene.rect();
        scene.tile->setStyle(nullptr);
        advance(scene.focusing(), 1.0);
        QCOMPARE(scene.rect(), there);
        scene.tile->setStyle(&scene.style);
        QCOMPARE(scene.rect(), resting);
    }

    void aStateFromTheStartStartsNoAnimation()
    {
        Scene scene(false);
        scene.make("ExpandableTile", "state: 'focused'");
        QCOMPARE(scene.focusing().state(), QTimeLine::NotRunning);
        QCOMPARE(scene.rect(), resting);
    }

    void onlyATimeLineMovesTheRectangle()
    {
        LooseTile tile;
        StyleObject style;
        style.setStyle(oddTileStyle());
        tile.setStyle(&style);
        tile.processValueChanged(1.0);
        tile.processValueChanged(qQNaN());
        QCOMPARE(tile.customFocusRect(), resting);
    }

    void beforeCompletionNothingIsConnected()
    {
        LooseTile tile;
        StyleObject style;
        style.setStyle(oddTileStyle());
        tile.setStyle(&style);
        QTimeLine &focusing = tilePrivate(&tile)->m_focusTimeLine;
        QCOMPARE(focusing.duration(), 1000);
        QCOMPARE(tilePrivate(&tile)->m_fadeTimeLine.duration(), 1000);
        tile.setState("focused");
        QCOMPARE(focusing.state(), QTimeLine::NotRunning);
        advance(focusing, 1.0);
        QCOMPARE(tile.customFocusRect(), resting);
    }

    void withoutAnEngineTheFocusTakesOneMillisecondAndNothingFades()
    {
        LooseTile tile;
        StyleObject style;
        style.setStyle(oddTileStyle());
        tile.setStyle(&style);
        tile.componentComplete();
        QCOMPARE(tilePrivate(&tile)->m_focusTimeLine.duration(), 1);
        QVERIFY(!tilePrivate(&tile)->m_fadeEnabled);
        tile.setState("focused");
        advance(tilePrivate(&tile)->m_focusTimeLine, 1.0);
        QCOMPARE(tile.customFocusRect(), focused);
    }

    void withoutSettingsTheFocusTakesOneMillisecondAndNothingFades()
    {
        Scene scene(false);
        stbconfig::setQmlConfigManager(nullptr);
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("\"QmlSettings\" is not available"));
        scene.make("ExpandableTile");
        stbconfig::setQmlConfigManager(&scene.settings);
        QCOMPARE(scene.focusing().duration(), 1);
        QVERIFY(!tilePrivate(scene.tile.get())->m_fadeEnabled);
        QVERIFY(scene.show(fieldsPicture()));
        QCOMPARE(scene.opacity(), 1.0);
    }

    void theDurationsAreTheDesignSystems_data()
    {
        QTest::addColumn<int>("duration");
        QTest::addColumn<int>("focusDuration");
        QTest::newRow("347") << 347 << 347;
        QTest::newRow("1") << 1 << 1;
        QTest::newRow("0 is raised to 1") << 0 << 1;
    }
    void theDurationsAreTheDesignSystems()
    {
        QFETCH(int, duration);
        QFETCH(int, focusDuration);
        Scene scene(false);
        const Durations durations(scene.settings, duration, 123);
        scene.settings.setValue("Animations", "fadeEffectEnabled", true);
        scene.make("ExpandableTile");
        QCOMPARE(scene.focusing().duration(), focusDuration);
        QCOMPARE(scene.fading().duration(), 123);
    }

    void withoutFocusAnimationTheTileGrowsInOneMillisecond()
    {
        Scene scene(false);
        scene.settings.setValue("Animations", "focusingEnabled", false);
        scene.make("ExpandableTile");
        QCOMPARE(scene.focusing().duration(), 1);
        scene.tile->setState("focused");
        QTRY_COMPARE(scene.focusing().state(), QTimeLine::NotRunning);
        QCOMPARE(scene.rect(), focused);
        scene.tile->setState("normal");
        QTRY_COMPARE(scene.focusing().state(), QTimeLine::NotRunning);
        QCOMPARE(scene.rect(), resting);
    }

    void theSettingsAreTakenWhenTheComponentIsComplete()
    {
        Scene scene;
        const int duration = scene.focusing().duration();
        QVERIFY(duration > 1);
        const int readings = scene.settings.readings();
        scene.settings.setValue("Animations", "focusingEnabled", false);
        scene.settings.setValue("Animations", "fadeEffectEnabled", true);
        scene.tile->setState("focused");
        QVERIFY(scene.show(fieldsPicture()));
        QCOMPARE(scene.focusing().duration(), duration);
        QCOMPARE(scene.opacity(), 1.0);
        QCOMPARE(scene.settings.readings(), readings);
    }

    void aPictureFadesIn()
    {
        FadingScene scene;
        QCOMPARE(scene.opacity(), 1.0);
        QVERIFY(scene.show(fieldsPicture()));
        QCOMPARE(scene.fading().state(), QTimeLine::Running);
        QCOMPARE(scene.opacity(), 0.0);
        advance(scene.fading(), 0.5);
        QVERIFY(qAbs(scene.opacity() - 0.5) < 0.01);
        QVERIFY(scene.stage.wantsFrame());
        finish(scene.fading());
        QCOMPARE(scene.opacity(), 1.0);
    }

    void aPictureThatArrivesDuringAFadeDoesNotStartItAgain()
    {
        FadingScene scene;
        QVERIFY(scene.show(fieldsPicture()));
        scene.fading().setUpdateInterval(1000000); // from here on only this test moves it
        advance(scene.fading(), 0.5);
        scene.tile->setImageSource(stbtest::HandPictures::url("other"));
        const double before = scene.opacity();
        QVERIFY(scene.arrive(plainPicture(Qt::red), "other"));
        QCOMPARE(scene.opacity(), before);
        QCOMPARE(scene.fading().state(), QTimeLine::Running);
    }

    void aPictureThatArrivesAfterAFadeFadesAgain()
    {
        FadingScene scene;
        QVERIFY(scene.show(fieldsPicture()));
        finish(scene.fading());
        QVERIFY(scene.show(plainPicture(Qt::red), "other"));
        QCOMPARE(scene.opacity(), 0.0);
        QCOMPARE(scene.fading().state(), QTimeLine::Running);
        QCOMPARE(scene.fading().currentTime(), 0);
    }

    void aFadeEndsThoughTheStyleGoesOnTheWay()
    {
        FadingScene scene;
        QVERIFY(scene.show(fieldsPicture()));
        advance(scene.fading(), 0.5);
        scene.tile->setStyle(nullptr);
        finish(scene.fading());
        scene.tile->setStyle(&scene.style);
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Image", "InternalRectangle" }));
    }

    void aFailureFadesNothing()
    {
        FadingScene scene;
        QVERIFY(scene.show(QImage()));
        QCOMPARE(scene.fading().state(), QTimeLine::Running);
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Rectangle", "InternalRectangle" }));
        finish(scene.fading());
        QVERIFY(scene.stage.renderFrame().isEmpty());
    }

    void aFadeWithoutDurationShowsThePictureAtOnce()
    {
        Scene scene(false);
        const Durations durations(scene.settings, 200, 0);
        scene.settings.setValue("Animations", "fadeEffectEnabled", true);
        scene.make("ExpandableTile");
        QVERIFY(scene.show(fieldsPicture()));
        QCOMPARE(scene.opacity(), 1.0);
        QCOMPARE(scene.fading().state(), QTimeLine::NotRunning);
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Image", "InternalRectangle" }));
    }

    // No theme file says so, but an application may.
    void durationsBelowZeroAreNone()
    {
        FadingScene scene; // its engine has a design system from here on
        design_system::Animation *animation = qml_basic_plugin::designSystem(scene.tile.get())->animation();
        QVERIFY(animation->setProperty("duration", -57));
        QVERIFY(animation->setProperty("fadeDuration", -59));
        scene.make("ExpandableTile");
        QCOMPARE(scene.focusing().duration(), 1);
        QVERIFY(scene.show(fieldsPicture()));
        QCOMPARE(scene.opacity(), 1.0);
        QCOMPARE(scene.fading().state(), QTimeLine::NotRunning);
    }

    void aTileMayGoWhileItsAnimationsRun()
    {
        FadingScene scene;
        scene.tile->setState("focused");
        QVERIFY(scene.show(fieldsPicture()));
        scene.stage.renderFrame();
        QCOMPARE(scene.fading().state(), QTimeLine::Running);
        scene.tile.reset();
        scene.stage.renderFrame();
        QCoreApplication::processEvents();
    }

    void aRestingTileAsksForNoFrame()
    {
        Scene scene(false);
        const Durations durations(scene.settings, 1, 1);
        scene.settings.setValue("Animations", "fadeEffectEnabled", true);
        scene.make("ExpandableTile");
        QVERIFY(scene.show(fieldsPicture()));
        scene.tile->setState("focused");
        QTRY_COMPARE(scene.focusing().state(), QTimeLine::NotRunning);
        QTRY_COMPARE(scene.fading().state(), QTimeLine::NotRunning);
        QCOMPARE(scene.opacity(), 1.0);
        scene.stage.renderFrame();
        QCoreApplication::processEvents();
        QVERIFY(!scene.stage.wantsFrame());
    }
};

STB_TEST_MAIN(tst_StbExpandableTileAnimation)
#include "tst_stbexpandabletileanimation.moc"
