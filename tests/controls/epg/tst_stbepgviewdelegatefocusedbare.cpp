// SPDX-License-Identifier: MIT
#include "focusedscene.h"
#include "focusedstates.h"

// An application without the icons: this program has no resources.
class tst_StbEpgViewDelegateFocusedBare : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void withoutAReminderIconItsHeightAndItsSpacingCountAsNothing()
    {
        FocusedScene scene;
        scene.fill();
        apply(scene, future);
        scene.stage.renderFrame();
        QVERIFY(scene.parts()[3].rect.isEmpty());
        const design_system::PlayerEpgDelegateStyle style = oddEpgStyle();
        const int status = textExtent(style.statusTextStyle, "On air soon", 417).height();
        const int startsAt = textExtent(style.startsAtTextStyle, "From 20:05", 417).height();
        const int room = style.previewRect.height() - style.reminderActionTextStyle.rect.height();
        // No spacing counts in the stack, but the status stands below one.
        QCOMPARE(scene.parts()[0].rect.top(), (room - status - startsAt) / 2 + style.reminderIconSpacing);
        QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
    }

    void withoutAPlayIconTheCardHasNoHole()
    {
        FocusedScene scene;
        scene.fill();
        QVERIFY(scene.show(fieldsPicture()));
        scene.stage.renderFrame();
        const QImage before = scene.stage.picture().copy(onStage(scene.card()));
        apply(scene, playable);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture().copy(onStage(scene.card())), before);
        QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
    }

    void withoutAnIndicatorTheBadgeHoldsItsLabel()
    {
        FocusedScene scene;
        scene.fill();
        apply(scene, playableLive);
        scene.stage.renderFrame();
        const design_system::PlayerEpgDelegateStyle style = oddEpgStyle();
        const int label = textExtent(style.liveTextStyle, "LIVE").width();
        QRectF badge;
        for (const stbtest::NodeInfo &node : scene.children()) {
            if (node.type == "Rectangle" && node.color == style.liveBadgeColor)
                badge = node.rect;
        }
        QCOMPARE(badge.width(), label + 2 * style.liveBadgePadding + style.liveBadgeIconSpacing);
        QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());
    }
};

STB_TEST_MAIN(tst_StbEpgViewDelegateFocusedBare)
#include "tst_stbepgviewdelegatefocusedbare.moc"
