// SPDX-License-Identifier: MIT
#include "buttonscene.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <controls/buttons/stbbutton.h>
#include <controls/buttons/stbbutton_p.h>

#include <QtCore/qabstracteventdispatcher.h>
#include <QtCore/qcoreapplication.h>
#include <QtQuick/qquickwindow.h>
#include <QtTest/qsignalspy.h>

namespace {

struct Scene : ButtonScene<StbButton>
{
    static constexpr QRect throbberRect { 20 + 139, 30 + 26, 35, 35 }; // of a button of 313 x 87

    stbcore::ThrobberRenderer &renderer()
    {
        return static_cast<StbButtonPrivate *>(QQuickItemPrivate::get(&button))->m_throbber->renderer();
    }
    /*! The renderer's next frame, without waiting for its timer. */
    void tick()
    {
        const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&renderer());
        QCOMPARE(timers.size(), 1);
        QTimerEvent event(timers.first().timerId);
        QCoreApplication::sendEvent(&renderer(), &event);
    }
    void showBusy()
    {
        fill();
        button.setThrobberVisible(true);
        stage.renderFrame();
    }
};

} // namespace

// The throbber in place of the content, what it paints, and when it runs.
class tst_StbButtonThrobber : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theThrobberIsThereInsteadOfTheContent()
    {
        Scene scene;
        scene.fill();
        scene.stage.renderFrame();
        const QImage before = scene.stage.picture();
        QCOMPARE(scene.children().size(), 4);
        scene.button.setThrobberVisible(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 1);
        QCOMPARE(scene.children().first().rect, QRectF(Scene::throbberRect.translated(-20, -30)));
        QCOMPARE(scene.children().first().pixmap.size(), QSize(35, 35));
        QCOMPARE(scene.renderer().penWidth(), 35 / 8);
        scene.button.setThrobberVisible(false);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 4);
        QCOMPARE(scene.stage.picture(), before);
    }

    void contentThatComesWhileItIsBusyShowsAfterwards()
    {
        Scene scene;
        scene.button.setStyle(&scene.style);
        scene.button.setTitleText("Watch now");
        scene.button.setThrobberVisible(true);
        scene.stage.renderFrame();
        scene.fill();
        scene.button.setFocused(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 1);
        scene.button.setThrobberVisible(false);
        scene.stage.renderFrame();
        Scene fresh;
        fresh.fill();
        fresh.button.setFocused(true);
        fresh.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
    }

    void itsFirstFrameIsPainted()
    {
        Scene scene;
        scene.showBusy();
        QVERIFY(hasInk(scene.children().first().pixmap));
    }

    void itIsPaintedWhenShownAgainAtOnce()
    {
        Scene scene;
        scene.showBusy();
        const QImage before = scene.stage.picture();
        scene.button.setThrobberVisible(false);
        scene.button.setThrobberVisible(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), before);
    }

    void itsSizeFollowsTheHeight()
    {
        Scene scene;
        scene.showBusy();
        scene.button.setHeight(132);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().first().rect, QRectF((313 - 53) * 0.5, (132 - 53) * 0.5, 53, 53));
        QCOMPARE(scene.renderer().penWidth(), 53 / 8);
        QVERIFY(hasInk(scene.children().first().pixmap)); // without waiting for the next frame
    }

    void aFrameRepaintsTheThrobbersRectangleOnly()
    {
        Scene scene;
        scene.showBusy();
        for (int i = 0; i < 5; ++i) {
            const QImage before = scene.stage.picture();
            scene.tick();
            QVERIFY(scene.stage.wantsFrame());
            QCOMPARE(scene.stage.renderFrame(), QRegion(Scene::throbberRect));
            QVERIFY(scene.stage.picture() != before);
            QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
        }
        QVERIFY(!scene.stage.wantsFrame());
    }

    void betweenTwoFramesNothingIsPainted()
    {
        Scene scene;
        scene.showBusy();
        scene.button.update();
        QCOMPARE(scene.stage.renderFrame(), QRegion());
    }

    void aHiddenThrobberDoesNotRun()
    {
        Scene scene;
        scene.showBusy();
        QVERIFY(scene.renderer().isRunning());
        scene.button.setThrobberVisible(false);
        QVERIFY(!scene.renderer().isRunning());
        scene.button.setThrobberVisible(true);
        QVERIFY(scene.renderer().isRunning());
    }

    void aHiddenThrobberKeepsNoPixels()
    {
        Scene scene;
        scene.showBusy();
        const QPixmap shown = scene.children().first().pixmap;
        QVERIFY(!shown.isDetached());
        scene.button.setThrobberVisible(false);
        scene.stage.renderFrame();
        QVERIFY(shown.isDetached()); // only this test holds them still
        scene.button.setThrobberVisible(true);
        scene.stage.renderFrame();
        QVERIFY(hasInk(scene.children().first().pixmap));
    }

    void anInvisibleButtonsThrobberDoesNotRun()
    {
        Scene scene;
        QQuickItem parent(scene.stage.contentItem());
        scene.button.setParentItem(&parent);
        scene.showBusy();
        parent.setVisible(false);
        QVERIFY(!scene.renderer().isRunning());
        parent.setVisible(true);
        QVERIFY(scene.renderer().isRunning());
        scene.button.setVisible(false);
        QVERIFY(!scene.renderer().isRunning());
        scene.button.setThrobberVisible(false);
        scene.button.setVisible(true);
        QVERIFY(!scene.renderer().isRunning());
        scene.button.setParentItem(nullptr);
    }

    void aThrobberThatIsShownOnAnInvisibleButtonWaits()
    {
        Scene scene;
        scene.fill();
        scene.button.setVisible(false);
        scene.button.setThrobberVisible(true);
        QVERIFY(!scene.renderer().isRunning());
        scene.button.setVisible(true);
        QVERIFY(scene.renderer().isRunning());
        scene.stage.renderFrame();
        QVERIFY(hasInk(scene.children().first().pixmap));
    }

    void withoutWindowNothingRuns()
    {
        Scene scene;
        scene.button.setParentItem(nullptr);
        scene.fill();
        scene.button.setThrobberVisible(true);
        QVERIFY(!scene.renderer().isRunning());
        scene.button.setParentItem(scene.stage.contentItem());
        QVERIFY(scene.renderer().isRunning());
        scene.button.setParentItem(nullptr);
        QVERIFY(!scene.renderer().isRunning());
    }

    void inAHiddenWindowNothingRuns()
    {
        QQuickWindow window;
        Scene scene;
        scene.button.setParentItem(window.contentItem());
        scene.fill();
        scene.button.setThrobberVisible(true);
        QVERIFY(!scene.renderer().isRunning());
        window.show();
        QVERIFY(scene.renderer().isRunning());
        window.hide();
        QVERIFY(!scene.renderer().isRunning());
        scene.button.setParentItem(scene.stage.contentItem());
        QVERIFY(scene.renderer().isRunning());
        window.show(); // no more its window
        window.hide();
        QVERIFY(scene.renderer().isRunning());
        scene.button.setParentItem(nullptr);
    }

    void inAButtonThatPaintsNothingNothingRuns()
    {
        Scene scene;
        scene.showBusy();
        QVERIFY(scene.renderer().isRunning());
        scene.button.setWidth(0);
        QVERIFY(!scene.renderer().isRunning());
        scene.button.setWidth(313);
        QVERIFY(scene.renderer().isRunning());
        scene.button.setHeight(0);
        QVERIFY(!scene.renderer().isRunning());
        scene.button.setHeight(87);
        QVERIFY(scene.renderer().isRunning());
        scene.button.resetStyle();
        QVERIFY(!scene.renderer().isRunning());
        scene.button.setStyle(&scene.style);
        QVERIFY(scene.renderer().isRunning());
    }

    void aFrameThatComesWhileTheButtonIsInvisibleIsIgnored()
    {
        Scene scene;
        scene.showBusy();
        scene.button.setVisible(false);
        scene.stage.renderFrame();
        QVERIFY(QMetaObject::invokeMethod(&scene.button, "processThrobberUpdated"));
        QVERIFY(!scene.stage.wantsFrame());
        scene.button.setVisible(true);
        scene.stage.renderFrame();
        QVERIFY(QMetaObject::invokeMethod(&scene.button, "processThrobberUpdated"));
        QVERIFY(scene.stage.wantsFrame());
    }

    void aButtonMayDieBusy()
    {
        stbtest::Stage stage;
        design_system::ButtonQmlStyle style;
        style.setStyle(oddButtonStyle());
        auto button = std::make_unique<StbButton>(stage.contentItem());
        button->setStyle(&style);
        button->setTitleText("Watch now");
        button->setThrobberVisible(true);
        stage.renderFrame();
        button.reset();
        stage.renderFrame();
        QCoreApplication::processEvents();
    }

private:
    static bool hasInk(const QPixmap &pixmap)
    {
        const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) > 0)
                    return true;
            }
        }
        return false;
    }
};

STB_TEST_MAIN(tst_StbButtonThrobber)
#include "tst_stbbuttonthrobber.moc"
