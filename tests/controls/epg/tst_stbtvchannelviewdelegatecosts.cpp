// SPDX-License-Identifier: MIT
#include "testkit/counters.h"
#include "testkit/testcase.h"
#include "tvchannelscene.h"

using Scene = OffscreenTvChannelScene;

namespace {

// A row that shows everything it can.
struct FullScene : Scene
{
    FullScene()
    {
        fill();
        setCell(1);
        row->setLive(true);
        row->setLockIconVisible(true);
        stage.renderFrame();
    }
    QRect rectOf(int child) { return onStage(children()[child]); }
};

// The children of a full row.
enum Child { Logo, NumberBox, QualityBox, Name, Program, Played, Remainder, Lock, Playing, PlayingIcon };

} // namespace

class tst_StbTvChannelViewDelegateCosts : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void everyPartIsOneNode()
    {
        Scene scene;
        scene.fillAndPaint();
        QCOMPARE(stbtest::nodeCount(stbtest::paintNode(scene.row.get())), 9);
        FullScene full;
        QCOMPARE(stbtest::nodeCount(stbtest::paintNode(full.row.get())), 13);
    }

    void anUpdateThatChangesNothingPaintsNothing()
    {
        FullScene scene;
        scene.row->update();
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        QVERIFY(!scene.stage.wantsFrame());
    }

    void progressPaintsTheTwoRectanglesOfTheBarOnly()
    {
        FullScene scene;
        scene.row->setProgress(0.75);
        QCOMPARE(scene.stage.renderFrame().subtracted(QRect(20 + 151, 30 + 99, 428, 5)), QRegion());
        QCOMPARE(scene.rectOf(Played), QRect(20 + 151, 30 + 99, 321, 5));
        scene.row->setProgress(0.7501); // not a pixel more
        QCOMPARE(scene.stage.renderFrame(), QRegion());
    }

    void aChangedTextPaintsItsOwnRectangleOnly_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("child");
        QTest::newRow("number") << QByteArray("channelListChannelNumber") << "512" << int(NumberBox);
        QTest::newRow("name") << QByteArray("channelListChannelName") << "Lakes" << int(Name);
        QTest::newRow("programme") << QByteArray("channelListProgramName") << "Late film" << int(Program);
    }
    void aChangedTextPaintsItsOwnRectangleOnly()
    {
        QFETCH(QByteArray, property);
        QFETCH(QString, text);
        QFETCH(int, child);
        FullScene scene;
        const QRegion before(scene.rectOf(child));
        scene.row->setProperty(property, text);
        const QRegion painted = scene.stage.renderFrame();
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted.subtracted(before.united(scene.rectOf(child))), QRegion());
    }

    void anotherQualityPaintsBadgeAndName()
    {
        FullScene scene;
        const QRegion before = QRegion(scene.rectOf(QualityBox)).united(scene.rectOf(Name));
        scene.row->setChannelQuality("SD");
        const QRegion painted = scene.stage.renderFrame();
        const QRegion after = QRegion(scene.rectOf(QualityBox)).united(scene.rectOf(Name));
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted.subtracted(before.united(after)), QRegion());
    }

    void aLockThatComesPaintsItsOwnRectangleOnly()
    {
        FullScene scene;
        const QRect lock = scene.rectOf(Lock);
        scene.row->setLockIconVisible(false);
        QCOMPARE(scene.stage.renderFrame(), QRegion(lock));
        scene.row->setLockIconVisible(true);
        QCOMPARE(scene.stage.renderFrame(), QRegion(lock));
    }

    void aMarkThatGoesPaintsItselfAndTheName()
    {
        FullScene scene;
        const QRegion mark = QRegion(scene.rectOf(Playing)).united(scene.rectOf(PlayingIcon));
        scene.row->setLive(false);
        const QRegion painted = scene.stage.renderFrame();
        QCOMPARE(painted.subtracted(mark.united(scene.rectOf(Name))), QRegion());
        QCOMPARE(mark.subtracted(painted), QRegion());
    }

    void everyTextIsLaidOutOnce()
    {
        Scene scene;
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.row->setStyle(&scene.style);
                     scene.row->setChannelNumber("471");
                     scene.row->setChannelQuality("1080i");
                     scene.row->setChannelName("Own");
                     scene.row->setProgramName("Of its own");
                     scene.row->setLive(true);
                     scene.stage.renderFrame();
                 }),
                 5);
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.row->setProgress(0.25);
                     scene.row->setHeight(121);
                     scene.stage.renderFrame();
                     scene.row->setChannelNameColor(Qt::red);
                     scene.setCell(1);
                     scene.stage.renderFrame();
                     scene.row->resetStyle(); // and the same texts in the same style after that
                     scene.stage.renderFrame();
                     scene.row->setStyle(&scene.style);
                     scene.stage.renderFrame();
                 }),
                 0);
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.row->setProgramName("another programme");
                     scene.stage.renderFrame();
                 }),
                 1);
    }

    void rowsOfTheSameQualityShareItsLayoutAndPicture()
    {
        Scene first;
        first.fill();
        first.row->setChannelQuality("shared quality");
        first.stage.renderFrame();
        Scene second;
        second.row->setStyle(&second.style);
        second.row->setChannelQuality("shared quality");
        QCOMPARE(stbtest::textsLaidOut([&] { second.stage.renderFrame(); }), 0);
        const auto badgeText = [](Scene &scene) {
            return stbtest::childNodes(scene.children()[QualityBox - 1].node).first().pixmap.cacheKey();
        };
        QCOMPARE(badgeText(second), badgeText(first));
    }

    void rowsShareThePixelsOfOneCanvas()
    {
        const QPixmap canvas = channelCanvas();
        Scene first;
        Scene second;
        for (Scene *scene : { &first, &second }) {
            scene->row->setCanvas(canvas);
            scene->row->setCachedChannelRect(canvasCell(1));
            scene->fillAndPaint();
            QCOMPARE(scene->children()[Logo].pixmap.cacheKey(), canvas.cacheKey());
        }
    }
};

STB_TEST_MAIN(tst_StbTvChannelViewDelegateCosts)
#include "tst_stbtvchannelviewdelegatecosts.moc"
