// SPDX-License-Identifier: MIT
#include "focusedstates.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <array>

using Style = design_system::PlayerEpgDelegateStyle;
using StyleObject = design_system::PlayerEpgDelegateQmlStyle;
using stbtest::NodeInfo;

// One state after another, one style after another, and what happens when the nodes are lost in between.
class tst_StbEpgViewDelegateFocusedChanges : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theOrderIsTheSameInWhateverOrderThePartsCome()
    {
        const QList<State> states { playable, playableLive, past, future, reminded, pastAndFuture, neither };
        FocusedScene scene;
        scene.fill();
        for (const State &first : states) {
            for (const State &second : states) {
                apply(scene, first);
                scene.stage.renderFrame();
                apply(scene, second);
                scene.stage.renderFrame();
                QCOMPARE(shownParts(scene), expectedParts(second));
            }
        }
    }

    void thePartsThatStayKeepTheirNodes()
    {
        FocusedScene scene;
        scene.fill();
        apply(scene, playable);
        scene.stage.renderFrame();
        const QSGNode *icon = scene.parts()[0].node;
        apply(scene, playableLive);
        scene.stage.renderFrame();
        QCOMPARE(scene.parts().size(), 3);
        QCOMPARE(scene.parts()[2].node, icon); // the bar goes below it
        apply(scene, past);
        scene.stage.renderFrame();
        const QSGNode *notice = scene.parts()[0].node;
        apply(scene, pastAndFuture);
        scene.stage.renderFrame();
        QCOMPARE(scene.parts()[0].node, notice);
    }

    void everyStateLooksLikeThatOfAFreshRow()
    {
        const QList<State> states { playableLive, future, past, reminded, playable, pastAndFuture, neither };
        FocusedScene scene;
        scene.fill();
        for (const State &state : states) {
            apply(scene, state);
            scene.stage.renderFrame();
            QCOMPARE(stbtest::comparePictures(scene.stage.picture(), pictureOf(state)).text(), QString());
        }
    }

    void aLateBadgeGoesBelowTheCard()
    {
        FocusedScene scene;
        scene.fill();
        scene.stage.renderFrame();
        const QSGNode *card = scene.card().node;
        scene.row->setLive(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 5);
        QCOMPARE(scene.children()[3].color, QColor(171, 11, 31));
        QCOMPARE(scene.children()[4].node, card);
    }

    void aLostRootIsMadeAgainWithAllItsParts_data()
    {
        QTest::addColumn<int>("way");
        QTest::addColumn<bool>("playing");
        const std::array ways { "no style", "width 0", "height 0", "another window" };
        for (int way = 0; way < 4; ++way) {
            for (const bool playing : { false, true })
                QTest::addRow("%s, %s", ways[way], playing ? "playable" : "future") << way << playing;
        }
    }
    void aLostRootIsMadeAgainWithAllItsParts()
    {
        QFETCH(int, way);
        QFETCH(bool, playing);
        FocusedScene scene;
        scene.fill();
        QVERIFY(scene.show(fieldsPicture()));
        apply(scene, playing ? playableLive : reminded);
        scene.row->setProgress(0.5);
        scene.stage.renderFrame();
        const QImage before = scene.stage.picture();
        const QString nodes = stbtest::describeNodes(stbtest::paintNode(scene.row.get()));
        const qreal height = scene.row->height();

        stbtest::Stage other(scene.stage.size(), stageGround);
        if (way == 0)
            scene.row->setStyle(nullptr);
        else if (way == 1)
            scene.row->setWidth(0);
        else if (way == 2)
            scene.row->setHeight(0);
        else
            scene.row->setParentItem(other.contentItem());
        scene.stage.renderFrame();
        other.renderFrame();
        if (way == 3)
            QCOMPARE(other.picture(), before);
        else
            QVERIFY(!stbtest::paintNode(scene.row.get()));

        scene.row->setParentItem(scene.stage.contentItem());
        scene.row->setStyle(&scene.style);
        scene.row->setWidth(580);
        scene.row->setHeight(height);
        scene.stage.renderFrame();
        QCOMPARE(stbtest::describeNodes(stbtest::paintNode(scene.row.get())), nodes);
        QCOMPARE(scene.stage.picture(), before);
    }

    // The flags of parts that are gone with the root must not be taken for nodes of the new one.
    void aLostRootMayComeBackInAnotherState()
    {
        FocusedScene scene;
        scene.fill();
        QVERIFY(scene.show(fieldsPicture()));
        const QList<State> states { playableLive, reminded, past, playable, neither, future };
        for (const State &first : states) {
            for (const State &second : states) {
                apply(scene, first);
                scene.stage.renderFrame();
                scene.row->setStyle(nullptr);
                scene.stage.renderFrame();
                apply(scene, second);
                scene.row->setStyle(&scene.style);
                scene.stage.renderFrame();
                QCOMPARE(shownParts(scene), expectedParts(second));
            }
        }
    }

    void aNewStyleObjectIsTakenOverWhole_data()
    {
        QTest::addColumn<int>("bits");
        for (int bits = 0; bits < 32; ++bits)
            QTest::addRow("%d", bits) << bits;
    }
    void aNewStyleObjectIsTakenOverWhole()
    {
        QFETCH(int, bits);
        const State state { bool(bits & 1), bool(bits & 2), bool(bits & 4), bool(bits & 8), bool(bits & 16) };
        StyleObject object;
        object.setStyle(otherEpgStyle());
        FocusedScene scene;
        scene.fill();
        apply(scene, state);
        scene.row->setProgress(0.5);
        scene.stage.renderFrame();
        scene.row->setStyle(&object);
        scene.stage.renderFrame();
        const QImage fresh = pictureOf(state, [&](FocusedScene &other) {
            other.row->setProgress(0.5);
            other.row->setStyle(&object);
        });
        QCOMPARE(stbtest::comparePictures(scene.stage.picture(), fresh).text(), QString());
    }

    // The texts keep their sizes: only the places are others.
    void aStyleThatOnlyMovesThePartsMovesThem_data()
    {
        QTest::addColumn<std::function<void(Style &)>>("change");
        using Change = std::function<void(Style &)>;
        QTest::newRow("icon spacing") << Change([](Style &style) { style.reminderIconSpacing = 41; });
        QTest::newRow("card") << Change([](Style &style) { style.previewRect = QRect(101, 3, 417, 231); });
        QTest::newRow("bar height") << Change(
                [](Style &style) { style.reminderActionTextStyle.rect.setHeight(61); });
    }
    void aStyleThatOnlyMovesThePartsMovesThem()
    {
        QFETCH(std::function<void(Style &)>, change);
        Style style = oddEpgStyle();
        change(style);
        StyleObject object;
        object.setStyle(style);
        FocusedScene scene;
        scene.fill();
        apply(scene, future);
        scene.stage.renderFrame();
        scene.row->setStyle(&object);
        scene.stage.renderFrame();
        const QImage fresh = pictureOf(future, [&](FocusedScene &other) { other.row->setStyle(&object); });
        QCOMPARE(stbtest::comparePictures(scene.stage.picture(), fresh).text(), QString());
    }
};

STB_TEST_MAIN(tst_StbEpgViewDelegateFocusedChanges)
#include "tst_stbepgviewdelegatefocusedchanges.moc"
