// SPDX-License-Identifier: MIT
#include "episodesscene.h"
#include "testkit/counters.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepisodesviewdelegate_p.h>

#include <QtCore/qtemporarydir.h>

using Scene = OffscreenEpisodesScene;
using stbtest::NodeInfo;

namespace {

constexpr const char *allTypes[] = { "defaultTile", "unViewedTile", "viewedTile", "comingSoonTile" };

void addTypes()
{
    QTest::addColumn<QString>("type");
    for (const char *type : allTypes)
        QTest::newRow(type) << type;
}

template <typename Change>
QImage freshPicture(const QString &type, Change change)
{
    Scene scene;
    change(scene);
    scene.fillAndPaint(type);
    return scene.stage.picture();
}

QImage plain(const QColor &color)
{
    QImage image(201, 113, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

} // namespace

// When an episode's nodes are made, what still changes them, and what that costs.
class tst_StbEpisodesViewDelegateLife : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aPictureThatArrivesLaterLiesBelowTheOverlay_data() { addTypes(); }
    void aPictureThatArrivesLaterLiesBelowTheOverlay()
    {
        QFETCH(QString, type);
        Scene scene;
        scene.fillAndPaint(type);
        const QList<NodeInfo> before = scene.children();
        QVERIFY(scene.show());
        const QList<NodeInfo> after = scene.children();
        QCOMPARE(after.size(), 4);
        QCOMPARE(after[0].type, "Image");
        QCOMPARE(after[0].rect, QRectF(11, 7, 201, 113));
        QCOMPARE(after[0].pixmap.toImage(), episodePicture());
        for (int i = 0; i < 3; ++i)
            QCOMPARE(after[i + 1].node, before[i].node);
        const QColor shown = scene.stage.picture().pixelColor(20 + 11 + 30, 30 + 7 + 10);
        QVERIFY(shown != QColor(201, 61, 51)); // tinted
        QVERIFY(shown.red() > shown.blue());
    }

    void aPictureThatIsThereAlreadyIsPartOfTheFirstFrame()
    {
        Scene scene;
        QVERIFY(scene.show());
        scene.fillAndPaint("viewedTile");
        QCOMPARE(scene.children().size(), 4);
        Scene later;
        later.fillAndPaint("viewedTile");
        QVERIFY(later.show());
        QCOMPARE(scene.stage.picture(), later.stage.picture());
    }

    void aFileIsThereInTheFirstFrame()
    {
        const QTemporaryDir folder;
        QVERIFY(episodePicture().save(folder.filePath("still.png")));
        Scene scene;
        scene.fill("viewedTile");
        scene.cell->setImageSource(QUrl::fromLocalFile(folder.filePath("still.png")));
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 4);
        QCOMPARE(scene.children()[0].pixmap.toImage().convertToFormat(QImage::Format_RGB32), episodePicture());
    }

    void aPictureThatFailsLeavesOverlayAndTexts()
    {
        Scene scene;
        scene.fillAndPaint("unViewedTile");
        const QImage before = scene.stage.picture();
        scene.ask();
        scene.stage.renderFrame();
        QVERIFY(scene.pictures.deliver(scene.picture, QImage()));
        QVERIFY(QTest::qWaitFor([&] { return scene.stage.wantsFrame(); }));
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 3);
        QCOMPARE(scene.stage.picture(), before);
    }

    void aSharedPictureOutlivesTheCellThatLoadedIt()
    {
        Scene scene;
        scene.fillAndPaint("viewedTile");
        const auto second = makeEpisode(scene.qml, scene.stage.contentItem());
        second->setSize(QSizeF(541, 131));
        second->setStyle(&scene.style);
        second->setListItemType("viewedTile");
        second->setImageSource(stbtest::HandPictures::url(scene.picture));
        QVERIFY(scene.show());
        scene.cell.reset();
        second->setPosition(QPointF(20, 30));
        scene.stage.renderFrame();
        second->update();
        scene.stage.renderFrame();
        QCOMPARE(stbtest::childNodes(stbtest::paintNode(second.get())).size(), 4);
        QCOMPARE(scene.stage.renderWhole(), scene.stage.picture());
    }

    void whatIsPaintedDoesNotFollowItsProperties_data() { addTypes(); }
    void whatIsPaintedDoesNotFollowItsProperties()
    {
        QFETCH(QString, type);
        Scene scene;
        scene.cell->setStyle(&scene.style);
        scene.cell->setListItemType(type);
        scene.cell->setTitle("As built");
        scene.stage.renderFrame();
        const QImage built = scene.stage.picture();
        int changes = 0;
        connect(scene.cell.get(), &StbEpisodesViewDelegate::titleChanged, this, [&changes] { ++changes; });
        scene.cell->setTitle("Another title");
        QCOMPARE(changes, 1);
        QCOMPARE(scene.cell->title(), "Another title");
        scene.cell->setSubtitle("A subtitle");
        scene.cell->setStatus("12 March");
        scene.cell->setViewedPosition(5);
        scene.cell->setDuration(10);
        scene.style.setStyle(design_system::PlayerEpisodesItemStyle());
        scene.cell->update();
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        QCOMPARE(scene.stage.picture(), built);
        scene.cell->setSize(QSizeF(500, 140));
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), built);
        QCOMPARE(scene.stage.renderWhole(), built);
    }

    void aPictureAddedAfterAChangedTitleShowsTheOldTitle()
    {
        Scene scene;
        scene.fillAndPaint("viewedTile");
        scene.cell->setTitle("Another title");
        QVERIFY(scene.show());
        Scene same;
        same.fillAndPaint("viewedTile");
        QVERIFY(same.show());
        QCOMPARE(scene.stage.picture(), same.stage.picture());
    }

    void aCellThatWasWithoutASizeIsMadeAnew_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QString>("type");
        for (const char *type : allTypes) {
            QTest::addRow("%s without width", type) << QByteArray("width") << type;
            QTest::addRow("%s without height", type) << QByteArray("height") << type;
        }
    }
    void aCellThatWasWithoutASizeIsMadeAnew()
    {
        QFETCH(QByteArray, property);
        QFETCH(QString, type);
        Scene scene;
        scene.fillAndPaint(type);
        QVERIFY(scene.show());
        const QImage before = scene.stage.picture();
        const QVariant size = scene.cell->property(property);
        scene.cell->setProperty(property, 0);
        scene.stage.renderFrame();
        QVERIFY(!scene.rootNode());
        QCOMPARE(scene.stage.picture().pixelColor(20 + 30, 30 + 20), QColor(0, 60, 40));
        scene.cell->setProperty(property, size);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 4);
        QCOMPARE(scene.stage.picture(), before);

        scene.cell->setProperty(property, 0);
        scene.stage.renderFrame();
        scene.cell->setTitle("Another title");
        scene.cell->setSubtitle(QString());
        scene.cell->setProperty(property, size);
        scene.stage.renderFrame();
        Scene fresh;
        fresh.fill(type);
        fresh.cell->setTitle("Another title");
        fresh.cell->setSubtitle(QString());
        QVERIFY(fresh.show());
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
    }

    void aCellThatLostItsNodesBeforeItsPictureCameShowsItToo()
    {
        Scene scene;
        scene.fillAndPaint("defaultTile");
        scene.cell->setWidth(0);
        QVERIFY(scene.show());
        QVERIFY(!scene.rootNode());
        scene.cell->setWidth(541);
        scene.stage.renderFrame();
        Scene fresh;
        fresh.fillAndPaint("defaultTile");
        QVERIFY(fresh.show());
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
    }

    void anotherWindowShowsTheSame_data() { addTypes(); }
    void anotherWindowShowsTheSame()
    {
        QFETCH(QString, type);
        Scene scene;
        scene.fillAndPaint(type);
        QVERIFY(scene.show());
        const QImage painted = scene.stage.picture();
        stbtest::Stage other(scene.stage.size(), QColor(0, 60, 40));
        scene.cell->setParentItem(other.contentItem());
        other.renderFrame();
        QCOMPARE(other.picture(), painted);
        scene.stage.renderFrame();
        scene.cell->setParentItem(scene.stage.contentItem());
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), painted);
        scene.cell->setParentItem(nullptr);
        scene.stage.renderFrame();
    }

    void aDestroyedStyleEmptiesTheCellUntilTheNextOne()
    {
        Scene scene;
        auto style = std::make_unique<design_system::PlayerEpisodesItemQmlStyle>();
        style->setStyle(oddEpisodesStyle());
        scene.cell->setStyle(style.get());
        scene.fillAndPaint("unViewedTile");
        QVERIFY(scene.show());
        const QImage before = scene.stage.picture();
        style.reset();
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        QVERIFY(!scene.rootNode());
        scene.cell->setStyle(&scene.style);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), before);
    }

    void theOrderOfThePropertiesDoesNotMatter_data() { addTypes(); }
    void theOrderOfThePropertiesDoesNotMatter()
    {
        QFETCH(QString, type);
        const QImage other = freshPicture(type, [&](Scene &scene) {
            scene.cell->setDuration(50);
            scene.cell->setViewedPosition(20);
            scene.cell->setStatus(statusOf(type));
        });
        QCOMPARE(other, freshPicture(type, [](Scene &) {}));
    }

    void anUpdateThatChangesNothingPaintsNothing_data() { addTypes(); }
    void anUpdateThatChangesNothingPaintsNothing()
    {
        QFETCH(QString, type);
        Scene scene;
        scene.fillAndPaint(type);
        QVERIFY(scene.show());
        scene.cell->update();
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        QVERIFY(!scene.stage.wantsFrame());
    }

    void aPictureThatArrivesPaintsTheTileOnly()
    {
        Scene scene;
        scene.fillAndPaint("comingSoonTile");
        scene.ask();
        scene.stage.renderFrame();
        QVERIFY(scene.pictures.deliver(scene.picture, plain(Qt::red)));
        QVERIFY(QTest::qWaitFor([&] { return scene.stage.wantsFrame(); }));
        QCOMPARE(scene.stage.renderFrame(), QRegion(20 + 11, 30 + 7, 201, 113));
    }

    void everyTextIsLaidOutOnce_data()
    {
        QTest::addColumn<int>("texts");
        QTest::newRow("defaultTile") << 3;
        QTest::newRow("unViewedTile") << 3;
        QTest::newRow("viewedTile") << 3;
        QTest::newRow("comingSoonTile") << 4;
    }
    void everyTextIsLaidOutOnce()
    {
        QFETCH(int, texts);
        Scene scene;
        QCOMPARE(stbtest::textsLaidOut([&] { scene.fillAndPaint(QTest::currentDataTag()); }), qint64(texts));
        QCOMPARE(stbtest::textsLaidOut([&] { QVERIFY(scene.show()); }), qint64(0));
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.cell->setWidth(0);
                     scene.stage.renderFrame();
                     scene.cell->setWidth(541);
                     scene.stage.renderFrame();
                 }),
                 qint64(0));
    }
};

STB_TEST_MAIN(tst_StbEpisodesViewDelegateLife)
#include "tst_stbepisodesviewdelegatelife.moc"
