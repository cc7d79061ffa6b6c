// SPDX-License-Identifier: MIT
#include "epgtexts.h"
#include "episodesscene.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepisodesviewdelegate_p.h>

#include <QtQml/qqmlcomponent.h>
#include <QtTest/qsignalspy.h>

using Scene = OffscreenEpisodesScene;
using stbtest::HandPictures;

// What comes late or in another order, and what has another size than the rest of the tests give it.
class tst_StbEpisodesViewDelegateOrder : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aKindThatComesLastAsksForAFrame()
    {
        Scene scene;
        scene.cell->setStyle(&scene.style);
        scene.cell->setTitle("The first evening");
        scene.stage.renderFrame();
        QVERIFY(!scene.stage.wantsFrame());
        QVERIFY(!scene.rootNode());
        scene.cell->setListItemType("viewedTile");
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        QVERIFY(scene.rootNode());
    }

    void aStatusThatAHandlerOfTheKindSetsIsSignalledOnce()
    {
        StbEpisodesViewDelegate cell;
        connect(&cell, &StbEpisodesViewDelegate::listItemTypeChanged, &cell,
                [&] { cell.setStatus("Viewed"); });
        QSignalSpy changed(&cell, &StbEpisodesViewDelegate::statusChanged);
        cell.setListItemType("viewedTile");
        QCOMPARE(changed.count(), 1);
        QCOMPARE(cell.status(), "Viewed");
    }

    void aPictureIsAskedForAtCompletionNotBefore()
    {
        stbtest::QmlScene qml;
        const HandPictures pictures(qml.engine());
        QQmlComponent component(qml.engine());
        component.setData("import Stbui.UI.Qml.Controls.Basic\nEpisodesViewDelegate {}", QUrl());
        const std::unique_ptr<QObject> object(component.beginCreate(qml.engine()->rootContext()));
        auto *cell = qobject_cast<StbEpisodesViewDelegate *>(object.get());
        QVERIFY(cell);
        cell->setImageSource(HandPictures::url("late"));
        auto *d = static_cast<StbEpisodesViewDelegatePrivate *>(QQuickItemPrivate::get(cell));
        QVERIFY(!d->m_picture.takeReloaded());
        component.completeCreate();
        QVERIFY(d->m_picture.takeReloaded());
        QTRY_COMPARE(pictures.requests("late"), 1);
    }

    void theIconHasTheStylesSizeWhateverItsOwnIs()
    {
        Scene scene;
        design_system::PlayerEpisodesItemStyle style = oddEpisodesStyle();
        style.playIconSize = QSize(51, 29);
        scene.style.setStyle(style);
        scene.fillAndPaint("unViewedTile");
        const stbtest::NodeInfo icon = scene.onTile().first();
        QCOMPARE(icon.pixmap.size(), QSize(37, 43));
        QCOMPARE(icon.rect, QRectF(75, 42, 51, 29)); // (201 - 51) / 2, (113 - 29) / 2
        QVERIFY(scene.show());
        STB_COMPARE_GOLDEN(scene.stage.picture(), "episodes-stretched-icon",
                           (stbtest::Tolerance { 24, 60, "glyph edges differ a little between versions" }));
    }

    void theStatusOfABegunEpisodeKeepsToTheTilesWidth()
    {
        const QString status = "There are only a very few minutes left of it, and they are not the best ones";
        Scene scene;
        scene.cell->setStatus(status);
        scene.fillAndPaint("defaultTile");
        const QSize text = textExtent(oddEpisodesStyle().statusTextStyle, status, 201).size();
        QVERIFY(textExtent(oddEpisodesStyle().statusTextStyle, status).width() > 201);
        QCOMPARE(scene.onTile().last().rect.size(), QSizeF(text));
    }
};

STB_TEST_MAIN(tst_StbEpisodesViewDelegateOrder)
#include "tst_stbepisodesviewdelegateorder.moc"
