// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"
#include "tvchannelscene.h"

#include <QtQuick/qsgimagenode.h>
#include <QtQuick/qsgtexture.h>

using Scene = OffscreenTvChannelScene;

namespace {

QImage cellPicture(int number)
{
    return channelCanvas().copy(canvasCell(number)).toImage().convertToFormat(QImage::Format_RGB32);
}

QImage groundPicture()
{
    QImage ground(121, 67, QImage::Format_RGB32);
    ground.fill(QColor(0, 60, 40));
    return ground;
}

// A row without number and lock, so that nothing lies on the logo.
struct BareScene : Scene
{
    BareScene()
    {
        row->setStyle(&style);
        stage.renderFrame();
    }
    int childCount() { return int(children().size()); }
    QSGImageNode *logoNode() { return static_cast<QSGImageNode *>(children().first().node); }
};

} // namespace

// The logo's place: nothing, the cell of the canvas, or the logo.
class tst_StbTvChannelViewDelegateLogo : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void withoutLogoAndCanvasThereIsNoNode()
    {
        BareScene scene;
        QCOMPARE(scene.childCount(), 6);
        QCOMPARE(scene.children().first().type, "Rectangle");
        scene.ask(); // and none while it is loading
        scene.stage.renderFrame();
        QCOMPARE(scene.childCount(), 6);
        QCOMPARE(scene.shownLogo(), groundPicture());
    }

    void aCanvasWithoutCellAndACellWithoutCanvasShowNothing()
    {
        BareScene canvas;
        canvas.row->setCanvas(channelCanvas());
        canvas.row->update();
        canvas.stage.renderFrame();
        QCOMPARE(canvas.childCount(), 6);
        BareScene cell;
        cell.row->setCachedChannelRect(canvasCell(1));
        cell.row->update();
        cell.stage.renderFrame();
        QCOMPARE(cell.childCount(), 6);
    }

    void untilTheLogoIsThereTheCellIsShown()
    {
        BareScene scene;
        scene.setCell(1);
        scene.ask();
        scene.stage.renderFrame();
        QCOMPARE(scene.childCount(), 7);
        QCOMPARE(scene.children()[0].rect, QRectF(11, 15, 121, 67));
        QCOMPARE(scene.logoNode()->sourceRect(), QRectF(canvasCell(1)));
        QVERIFY(scene.logoNode()->ownsTexture());
        QCOMPARE(scene.shownLogo(), cellPicture(1));
    }

    void theCellSharesThePixelsOfTheCanvas()
    {
        BareScene scene;
        scene.setCell(1);
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[0].pixmap.cacheKey(), scene.row->canvas().cacheKey());
    }

    void theShownCellFollowsItsRectangle()
    {
        BareScene scene;
        scene.setCell(0);
        scene.stage.renderFrame();
        scene.row->setCachedChannelRect(canvasCell(2));
        QCOMPARE(scene.stage.renderFrame(), QRegion(20 + 11, 30 + 15, 121, 67));
        QCOMPARE(scene.shownLogo(), cellPicture(2));
    }

    void aCellThatIsNoneShowsNothing_data()
    {
        QTest::addColumn<QRect>("cell");
        QTest::newRow("null") << QRect();
        QTest::newRow("empty") << QRect(7, 7, 0, 9);
        QTest::newRow("beyond the right edge") << QRect(300, 5, 121, 67);
        QTest::newRow("left of the sheet") << QRect(-1, 5, 121, 67);
        QTest::newRow("elsewhere") << QRect(1000, 1000, 121, 67);
    }
    void aCellThatIsNoneShowsNothing()
    {
        QFETCH(QRect, cell);
        BareScene scene;
        scene.setCell(0);
        scene.stage.renderFrame();
        scene.row->setCachedChannelRect(cell);
        scene.stage.renderFrame();
        QCOMPARE(scene.childCount(), 6);
        QCOMPARE(scene.shownLogo(), groundPicture());
        scene.row->setCachedChannelRect(canvasCell(1));
        scene.stage.renderFrame();
        QCOMPARE(scene.shownLogo(), cellPicture(1));
    }

    void theLogoReplacesTheCellInTheSameNodeOnce()
    {
        BareScene scene;
        scene.setCell(1);
        scene.ask();
        scene.stage.renderFrame();
        QSGImageNode *node = scene.logoNode();
        QVERIFY(scene.arrive(logoPicture()));
        QCOMPARE(scene.logoNode(), node);
        QVERIFY(!node->ownsTexture());
        QVERIFY(node->sourceRect().isEmpty()); // all of it
        QCOMPARE(scene.shownLogo(), logoPicture());
        QSGTexture *texture = node->texture();
        scene.row->update();
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        QCOMPARE(scene.logoNode()->texture(), texture);
        scene.row->setCachedChannelRect(canvasCell(2)); // is not shown any more
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        QCOMPARE(scene.shownLogo(), logoPicture());
    }

    void aCanvasThatComesAfterTheLogoIsNotShown()
    {
        BareScene scene;
        QVERIFY(scene.show());
        scene.setCell(1);
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        QCOMPARE(scene.shownLogo(), logoPicture());
    }

    void aLogoThatArrivesPaintsItsOwnRectangleOnly()
    {
        Scene scene;
        scene.fillAndPaint();
        scene.ask();
        scene.stage.renderFrame();
        QVERIFY(scene.pictures.deliver("logo", logoPicture()));
        QVERIFY(QTest::qWaitFor([&] { return scene.stage.wantsFrame(); }));
        QCOMPARE(scene.stage.renderFrame().subtracted(QRegion(20 + 11, 30 + 15, 121, 67)), QRegion());
    }

    void anotherSourceBringsTheCellBackAndThenTheNewLogo()
    {
        BareScene scene;
        scene.setCell(1);
        QVERIFY(scene.show());
        scene.ask("another");
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        QCOMPARE(scene.shownLogo(), cellPicture(1));
        QVERIFY(scene.arrive(logoPicture(Qt::black), "another"));
        QCOMPARE(scene.shownLogo(), logoPicture(Qt::black));
    }

    void withoutACanvasAnotherSourceTakesTheNodeAway()
    {
        BareScene scene;
        QVERIFY(scene.show());
        QCOMPARE(scene.childCount(), 7);
        scene.ask("another");
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        QCOMPARE(scene.childCount(), 6);
        QCOMPARE(scene.shownLogo(), groundPicture());
        QVERIFY(scene.arrive(logoPicture(Qt::black), "another"));
        QCOMPARE(scene.shownLogo(), logoPicture(Qt::black));
    }

    void aLogoThatComesWithinAFrameReplacesTheOldOne_data()
    {
        QTest::addColumn<bool>("canvas");
        QTest::newRow("canvas") << true;
        QTest::newRow("no canvas") << false;
    }
    void aLogoThatComesWithinAFrameReplacesTheOldOne()
    {
        QFETCH(bool, canvas);
        BareScene scene;
        if (canvas)
            scene.setCell(1);
        QVERIFY(scene.show());
        scene.ask("another");
        QVERIFY(scene.pictures.deliver("another", logoPicture(Qt::black)));
        QTRY_VERIFY(!scene.d()->m_logo.size().isEmpty()); // and no frame in between
        scene.stage.renderFrame();
        QCOMPARE(scene.shownLogo(), logoPicture(Qt::black));
        QCOMPARE(scene.stage.renderWhole(), scene.stage.picture());
    }

    void noSourceAnyMoreTakesTheLogoAway()
    {
        BareScene scene;
        QVERIFY(scene.show());
        scene.row->setImageSource(QUrl());
        scene.stage.renderFrame();
        QCOMPARE(scene.childCount(), 6);
        QVERIFY(!scene.stage.wantsFrame());
    }

    void aLogoThatCannotBeLoadedLeavesTheCell()
    {
        BareScene scene;
        scene.setCell(2);
        QVERIFY(scene.show(QImage()));
        QCOMPARE(scene.shownLogo(), cellPicture(2));
    }

    void aLogoOfAnotherSizeFillsItsRectangle()
    {
        BareScene scene;
        QImage small(11, 7, QImage::Format_RGB32);
        small.fill(QColor(201, 61, 51));
        QVERIFY(scene.show(small));
        QImage expected = groundPicture();
        expected.fill(QColor(201, 61, 51));
        QCOMPARE(scene.shownLogo(), expected);
    }

    void aRowMayGoWhileItsLogoIsLoading()
    {
        BareScene scene;
        scene.ask();
        scene.stage.renderFrame();
        QTRY_COMPARE(scene.pictures.waiting("logo"), 1);
        scene.row.reset();
        scene.stage.renderFrame();
        QCoreApplication::processEvents();
    }

    void withoutAnEngineNothingIsLoaded()
    {
        StbTvChannelViewDelegate row;
        row.setImageSource(stbtest::HandPictures::url("logo"));
        QCOMPARE(row.imageSource(), stbtest::HandPictures::url("logo"));
        Scene scene;
        row.setParentItem(scene.stage.contentItem());
        row.setSize(QSizeF(600, 111));
        row.setStyle(&scene.style);
        scene.stage.renderFrame();
        QCOMPARE(stbtest::childNodes(stbtest::paintNode(&row)).size(), 6);
    }

    void aLostRootShowsTheSameAgain_data()
    {
        QTest::addColumn<bool>("logo");
        QTest::newRow("logo") << true;
        QTest::newRow("cell") << false;
    }
    void aLostRootShowsTheSameAgain()
    {
        QFETCH(bool, logo);
        Scene scene;
        scene.fill();
        scene.setCell(1);
        scene.row->setLive(true);
        scene.row->setLockIconVisible(true);
        if (logo)
            QVERIFY(scene.show());
        scene.stage.renderFrame();
        const QImage painted = scene.stage.picture();
        const auto comesBack = [&](const std::function<void()> &lose, const std::function<void()> &restore) {
            lose();
            scene.stage.renderFrame();
            const bool lost = scene.stage.picture() != painted;
            restore();
            scene.stage.renderFrame();
            return lost && scene.stage.picture() == painted && scene.children().size() == 10;
        };
        QVERIFY(comesBack([&] { scene.row->resetStyle(); }, [&] { scene.row->setStyle(&scene.style); }));
        QVERIFY(comesBack([&] { scene.row->setWidth(0); }, [&] { scene.row->setWidth(600); }));
        QVERIFY(comesBack([&] { scene.row->setHeight(-1); }, [&] { scene.row->setHeight(111); }));

        stbtest::Stage other(QSize(640, 170), QColor(0, 60, 40));
        QVERIFY(comesBack(
                [&] {
                    scene.row->setParentItem(other.contentItem());
                    other.renderFrame();
                },
                [&] {
                    QCOMPARE(other.picture(), painted);
                    scene.row->setParentItem(scene.stage.contentItem());
                }));
        other.renderFrame();
    }
};

STB_TEST_MAIN(tst_StbTvChannelViewDelegateLogo)
#include "tst_stbtvchannelviewdelegatelogo.moc"
