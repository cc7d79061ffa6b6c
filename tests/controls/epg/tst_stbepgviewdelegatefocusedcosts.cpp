// SPDX-License-Identifier: MIT
#include "focusedscene.h"
#include "focusedstates.h"

using stbtest::NodeInfo;

namespace {

// Everything on the card, and what lies in its bar.
QRegion cardParts(FocusedScene &scene)
{
    QRegion region;
    const QList<NodeInfo> nodes = stbtest::nodeTree(scene.card().node).mid(1);
    for (const NodeInfo &node : nodes)
        region += onStage(node);
    return region;
}

} // namespace

// What a change paints: its own rectangles, before and after, and nothing beside them.
class tst_StbEpgViewDelegateFocusedCosts : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aPictureThatArrivesPaintsTheCardOnly()
    {
        FocusedScene scene;
        scene.fill();
        apply(scene, playable);
        scene.row->setImageSource(stbtest::HandPictures::url("picture"));
        scene.stage.renderFrame();
        QVERIFY(scene.arrive(fieldsPicture()));
        const QRegion painted = scene.stage.renderFrame();
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted.subtracted(onStage(scene.card())), QRegion());
    }

    void aStartTimePaintsItselfAndItsLineOnTheCard()
    {
        FocusedScene scene;
        scene.fill();
        apply(scene, future);
        scene.stage.renderFrame();
        const auto times = [&] {
            return QRegion(onStage(scene.children()[0])) + QRegion(onStage(scene.parts()[2]));
        };
        const QRegion before = times();
        scene.row->setStartTimeText("21:35");
        const QRegion painted = scene.stage.renderFrame();
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted.subtracted(before + times()), QRegion());
        QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
    }

    void anotherStatePaintsTheCardsPartsAndTheTextsThatChangeColour()
    {
        FocusedScene scene;
        scene.fill();
        apply(scene, future);
        scene.stage.renderFrame();
        const auto changing = [&] {
            QRegion region = cardParts(scene);
            for (const NodeInfo &node : scene.children()) {
                if (node.node != scene.card().node)
                    region += onStage(node);
            }
            return region;
        };
        for (const State &state : { playable, past, future }) {
            const QRegion before = changing();
            apply(scene, state);
            const QRegion painted = scene.stage.renderFrame();
            QVERIFY(!painted.isEmpty());
            QCOMPARE(painted.subtracted(before + changing()), QRegion());
            QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
        }
    }
};

STB_TEST_MAIN(tst_StbEpgViewDelegateFocusedCosts)
#include "tst_stbepgviewdelegatefocusedcosts.moc"
