// SPDX-License-Identifier: MIT
#include "screentest.h"
#include "settingsstores.h"

#include <QtCore/qlibraryinfo.h>
#include <QtGui/qaccessible.h>
#include <QtQuick/qsgrendererinterface.h>
#include <QtTest/qsignalspy.h>

using gallery::AboutController;

/*! What the gallery tells of itself: its controller, and the screen in its window. */
class tst_AboutScreen : public ScreenTest
{
    Q_OBJECT

    void start(const QString &language = "en", const QString &resolution = "hd")
    {
        gallery::Options options;
        options.screen = "about";
        options.language = language;
        options.resolution = resolution;
        ScreenTest::start(options);
        m_store.clear();
        shell()->settings()->setStore(&m_store);
        shell()->start("about");
        settle();
    }

    void settle() const { QVERIFY(!view()->grabWindow().isNull()); }
    void press(Qt::Key key) const
    {
        ScreenTest::press(key);
        settle();
    }
    AboutController *about() const { return shell()->about(); }

    /*! The value that is shown beside \a label. */
    QString fact(const QString &label) const
    {
        const QList<QQuickItem *> facts = items("fact");
        for (const QQuickItem *fact : facts) {
            if (fact->property("label").toString() == label)
                return fact->property("value").toString();
        }
        return {};
    }

    RecordingStore m_store;

private Q_SLOTS:
    void cleanup()
    {
        if (m_application)
            end();
    }

    void everyFactIsTheRunningPrograms()
    {
        start();
        QVERIFY(fact("Gallery").startsWith("stbui-gallery 1."));
        QCOMPARE(fact("Controls"), "Stbui.UI.Qml.Controls.Basic 1.0");
        QVERIFY(fact("Qt").startsWith(QLibraryInfo::version().toString()));
        QCOMPARE(fact("Renderer"), "Software");
        QCOMPARE(fact("Resolution"), "1280 × 720");
        QCOMPARE(fact("Theme"), "Standard");
        QCOMPARE(fact("Language"), "English");
        QVERIFY(!fact("Font").isEmpty());
    }

    void theFactsFollowTheSettings()
    {
        start("de", "sd");
        shell()->settings()->open(0);
        shell()->settings()->choose(5);
        QCOMPARE(fact("Farbschema"), "Hoher Kontrast");
        QCOMPARE(fact("Sprache"), "Deutsch");
        QCOMPARE(fact("Auflösung"), "720 × 576");
    }

    void theLicenceIsTheProjects()
    {
        start();
        QVERIFY(about()->licence().startsWith("MIT License\n\nCopyright (c) "));
        QVERIFY(about()->licence().endsWith("DEALINGS IN THE SOFTWARE."));
        QVERIFY(texts().contains(about()->licence()));
    }

    void arrowsScrollToTheEndAndBack_data()
    {
        QTest::addColumn<QString>("resolution");
        for (const QString resolution : { "hd", "fullhd", "sd" })
            QTest::newRow(qPrintable(resolution)) << resolution;
    }
    void arrowsScrollToTheEndAndBack()
    {
        QFETCH(QString, resolution);
        start("en", resolution);
        QVERIFY(about()->textHeight() > about()->viewHeight());
        const QImage beginning = view()->grabWindow();
        for (int i = 0; i < 40; ++i)
            ScreenTest::press(Qt::Key_Down);
        settle();
        QCOMPARE(about()->position(), about()->textHeight() - about()->viewHeight());
        QVERIFY(view()->grabWindow() != beginning);
        for (int i = 0; i < 40; ++i)
            ScreenTest::press(Qt::Key_Up);
        settle();
        QCOMPARE(about()->position(), 0);
        QCOMPARE(view()->grabWindow(), beginning);
    }

    void theFocusIsOnTheTextAndSeen()
    {
        start();
        QCOMPARE(view()->activeFocusItem(), item("aboutText"));
        const QQuickItem *frame = item("focusFrame");
        QVERIFY(frame != nullptr);
        QVERIFY(sceneRect(frame).contains(sceneRect(item("aboutText"))));
        QVERIFY(sceneRect(view()->rootObject()).contains(sceneRect(frame)));
        QAccessibleInterface *text = QAccessible::queryAccessibleInterface(item("aboutText"));
        QCOMPARE(text->text(QAccessible::Name), "About");
        QVERIFY(text->state().focusable && text->state().focused);
    }

    void backLeadsHome()
    {
        start();
        press(Qt::Key_Down);
        press(Qt::Key_Back);
        QCOMPARE(shell()->screen(), "home");
    }

    void aScreenMadeAnewIsScrolledAsBefore()
    {
        start();
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        const int position = about()->position();
        QVERIFY(position > 0);
        const QImage before = view()->grabWindow();
        QVERIFY(view()->build({ { "controller", QVariant::fromValue(shell()) } }));
        settle();
        QCOMPARE(about()->position(), position);
        QCOMPARE(view()->grabWindow(), before);
    }

    void inArabicTheFactsBeginOnTheRight()
    {
        start("ar");
        const QList<QQuickItem *> labels = items("fact").constFirst()->childItems();
        QVERIFY(sceneRect(labels.at(0)).left() > sceneRect(labels.at(1)).left());
    }

    void keysScrollByASixthOrAPage()
    {
        const gallery::SettingsController settings;
        AboutController controller(&settings);
        controller.setViewHeight(600);
        controller.setTextHeight(1750);
        const QList<QPair<Qt::Key, int>> steps { { Qt::Key_Up, 0 },         { Qt::Key_Down, 100 },
                                                 { Qt::Key_PageDown, 600 }, { Qt::Key_PageUp, 100 },
                                                 { Qt::Key_End, 1150 },     { Qt::Key_Down, 1150 },
                                                 { Qt::Key_Up, 1050 },      { Qt::Key_PageDown, 1150 },
                                                 { Qt::Key_Home, 0 } };
        for (const auto &[key, position] : steps) {
            QVERIFY(controller.press(key));
            QCOMPARE(controller.position(), position);
        }
        QVERIFY(!controller.press(Qt::Key_Left));
        QVERIFY(!controller.press(Qt::Key_Return));
    }

    void whatFitsDoesNotScroll()
    {
        const gallery::SettingsController settings;
        AboutController controller(&settings);
        QVERIFY(controller.press(Qt::Key_Down));
        QCOMPARE(controller.position(), 0);
        controller.setViewHeight(600);
        controller.setTextHeight(600);
        for (const Qt::Key key : { Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Up })
            QVERIFY(controller.press(key));
        QCOMPARE(controller.position(), 0);
    }

    void aTextLaidOutAnewKeepsItsPlace()
    {
        const gallery::SettingsController settings;
        AboutController controller(&settings);
        controller.setViewHeight(600);
        controller.setTextHeight(1750);
        controller.press(Qt::Key_PageDown);
        controller.setTextHeight(0);
        QCOMPARE(controller.position(), 0);
        controller.setTextHeight(700);
        QCOMPARE(controller.position(), 100);
        controller.setTextHeight(1750);
        QCOMPARE(controller.position(), 500);
        controller.start();
        QCOMPARE(controller.position(), 0);
    }

    void everyRendererHasItsName()
    {
        const gallery::SettingsController settings;
        const AboutController controller(&settings);
        QCOMPARE(controller.renderer(QSGRendererInterface::Software), "Software");
        QCOMPARE(controller.renderer(QSGRendererInterface::OpenGL), "OpenGL");
        QCOMPARE(controller.renderer(QSGRendererInterface::Vulkan), "Vulkan");
        QCOMPARE(controller.renderer(QSGRendererInterface::Unknown), "Unknown");
    }
};

STB_TEST_MAIN(tst_AboutScreen)
#include "tst_aboutscreen.moc"
