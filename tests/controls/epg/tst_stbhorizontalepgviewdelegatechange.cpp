// SPDX-License-Identifier: MIT
#include "epgtexts.h"
#include "horizontalepgscene.h"
#include "testkit/testcase.h"

using Scene = OffscreenHorizontalEpgScene;
using Style = design_system::PlayerHorizontalEpgViewStyle;
using stbtest::NodeInfo;

namespace {

constexpr int textWidth = 295; // 487 - 13 - 29 - 19 - 131

QSize dateSize(const QString &text = "Today, 20:05")
{
    return textExtent(oddHorizontalEpgStyle().dateStyle, text, textWidth).size();
}

// What a cell paints that got everything at once.
QImage freshPicture(const std::function<void(Scene &)> &change)
{
    Scene scene;
    scene.fill();
    change(scene);
    scene.stage.renderFrame();
    return scene.stage.picture();
}

} // namespace

// What changes while a cell is painted, and what it leaves behind.
class tst_StbHorizontalEpgViewDelegateChange : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    // On purpose: the texts' width comes from the style, and is taken when the nodes are made.
    void anotherWidthChangesTheBackgroundOnly()
    {
        Scene scene;
        scene.fill();
        scene.cell->setDescription("A description with enough words to need all the lines there are and more");
        QVERIFY(scene.show());
        const QList<NodeInfo> before = scene.children();
        for (const qreal width : { 531.0, 300.0, 7.0 }) {
            scene.cell->setWidth(width);
            scene.stage.renderFrame();
            QCOMPARE(scene.root().rect.width(), width);
            for (int i = 0; i < 4; ++i) {
                QCOMPARE(scene.children()[i].rect, before[i].rect);
                QCOMPARE(scene.children()[i].pixmap.cacheKey(), before[i].pixmap.cacheKey());
            }
        }
    }

    // On purpose: the texts are placed when one of them has another size, the picture when it comes.
    void anotherHeightMovesTheTextsWithTheNextTextOfAnotherSize()
    {
        Scene scene;
        scene.fill();
        QVERIFY(scene.show());
        const QList<NodeInfo> before = scene.children();
        scene.cell->setHeight(181);
        scene.stage.renderFrame();
        for (int i = 0; i < 4; ++i)
            QCOMPARE(scene.children()[i].rect, before[i].rect);
        scene.cell->setTitle("Night news");
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[1].rect.top(), 53);
        QCOMPARE(scene.children()[3].rect.top(), 43);
        QVERIFY(scene.show(programmePicture(), "another"));
        QCOMPARE(scene.children()[3].rect.top(), 53);
    }

    // On purpose: fonts, line limits, alignments and widths are taken when the nodes are made.
    void anotherStyleChangesTheColoursOnlyWhileSomethingIsPainted()
    {
        Scene scene;
        scene.fill();
        QVERIFY(scene.show());
        const QList<NodeInfo> before = scene.children();
        scene.cell->setStyle(&scene.other);
        scene.stage.renderFrame();
        const QList<NodeInfo> after = scene.children();
        QCOMPARE(scene.root().color, QColor(73, 23, 13, 201));
        for (int i = 0; i < 4; ++i)
            QCOMPARE(after[i].rect, before[i].rect);
        QVERIFY(isInkOf(after[0].pixmap, QColor(201, 251, 131)));
        QVERIFY(isInkOf(after[1].pixmap, QColor(241, 91, 41)));
        QVERIFY(isInkOf(after[2].pixmap, QColor(243, 143, 203)));

        // The next text of another size is laid out as before and placed as the new style says.
        scene.cell->setExactDate("Tomorrow");
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[1].rect, QRectF(QPointF(97 + 31 + 9, 29), dateSize("Tomorrow")));
    }

    void aCellThatBeginsAnewTakesTheStyleOverWhole_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("lost");
        QTest::newRow("no style") << QByteArray("style") << QVariant();
        QTest::newRow("no width") << QByteArray("width") << QVariant(0);
        QTest::newRow("no height") << QByteArray("height") << QVariant(0);
    }
    void aCellThatBeginsAnewTakesTheStyleOverWhole()
    {
        QFETCH(QByteArray, property);
        QFETCH(QVariant, lost);
        Scene fresh;
        fresh.fill();
        fresh.cell->setStyle(&fresh.other);
        QVERIFY(fresh.show());

        Scene scene;
        scene.fill();
        QVERIFY(scene.show());
        const QVariant value = scene.cell->property(property);
        if (lost.isValid())
            scene.cell->setProperty(property, lost);
        else
            scene.cell->resetStyle();
        scene.stage.renderFrame();
        scene.cell->setProperty(property, value);
        scene.cell->setStyle(&scene.other);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
        QCOMPARE(scene.children().size(), 4);
    }

    void aLostTreeIsBuiltAgainWhateverItHeld_data()
    {
        QTest::addColumn<bool>("before");
        QTest::addColumn<bool>("after");
        QTest::newRow("with and with a picture") << true << true;
        QTest::newRow("with and without a picture") << true << false;
        QTest::newRow("without and with a picture") << false << true;
    }
    void aLostTreeIsBuiltAgainWhateverItHeld()
    {
        QFETCH(bool, before);
        QFETCH(bool, after);
        Scene scene;
        scene.fill();
        if (before)
            QVERIFY(scene.show());
        scene.stage.renderFrame();
        scene.cell->resetStyle();
        scene.stage.renderFrame();
        if (before && !after)
            scene.cell->setImageSource(QUrl());
        if (after && !before)
            QVERIFY(scene.show());
        scene.cell->setStyle(&scene.style);
        scene.stage.renderFrame();

        Scene fresh;
        fresh.fill();
        if (after)
            QVERIFY(fresh.show());
        fresh.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), fresh.stage.picture());
        QCOMPARE(scene.children().size(), after ? 4 : 3);
    }

    void anotherWindowShowsTheSamePicture()
    {
        Scene scene;
        scene.fill();
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
        scene.cell->setImageSource(QUrl("qrc:/none.png")); // a load without a window
    }

    void aNewPictureFirstTakesTheOldOneAway()
    {
        Scene scene;
        scene.fill();
        QVERIFY(scene.show());
        scene.ask("another");
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 3);
        QCOMPARE(scene.stage.picture(), freshPicture([](Scene &) {}));
        QImage red = programmePicture();
        red.fill(Qt::red);
        QVERIFY(scene.arrive(red, "another"));
        QCOMPARE(scene.children()[3].pixmap.toImage(), red);
    }

    void aPictureThatComesWithinAFrameReplacesTheOldOne()
    {
        Scene scene;
        scene.fill();
        QVERIFY(scene.show());
        QImage red = programmePicture();
        red.fill(Qt::red);
        scene.ask("another");
        QVERIFY(scene.pictures.deliver("another", red));
        QTRY_VERIFY(!pictureSize(scene.cell.get()).isEmpty()); // and no frame in between
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 4);
        QCOMPARE(scene.stage.picture().pixelColor(20 + 13 + 60, 30 + 43 + 30), QColor(Qt::red));
    }

    void anEmptiedTextLeavesNoStalePixel_data()
    {
        QTest::addColumn<QByteArray>("property");
        for (const char *name : { "tvProgramExactDate", "itemTitle", "tvProgramDescription" })
            QTest::newRow(name) << QByteArray(name);
    }
    void anEmptiedTextLeavesNoStalePixel()
    {
        QFETCH(QByteArray, property);
        Scene scene;
        scene.fillAndPaint();
        scene.cell->setProperty(property, QString());
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(),
                 freshPicture([&](Scene &fresh) { fresh.cell->setProperty(property, QString()); }));
        QCOMPARE(scene.stage.renderWhole(), scene.stage.picture());
        scene.fill();
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), freshPicture([](Scene &) {}));
    }

    void aTextChangedTwiceInAFrameLeavesNothingBehind()
    {
        Scene scene;
        scene.fillAndPaint();
        const QImage before = scene.stage.picture();
        scene.cell->setTitle("Night news");
        scene.cell->setTitle("Evening news");
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), before);
    }

    void anUpdateThatChangesNothingPaintsNothing()
    {
        Scene scene;
        scene.fill();
        QVERIFY(scene.show());
        scene.cell->update();
        QCOMPARE(scene.stage.renderFrame(), QRegion());
        QVERIFY(!scene.stage.wantsFrame());
    }

    void aTextOfTheSameHeightPaintsItsOwnRectangleOnly()
    {
        Scene scene;
        scene.fill();
        QVERIFY(scene.show());
        scene.cell->setTitle("Evening film");
        const QRect before = Scene::onStage(scene.children()[0]);
        const QRegion painted = scene.stage.renderFrame();
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted.subtracted(QRegion(before).united(Scene::onStage(scene.children()[0]))), QRegion());
    }

    void aTitleOfAnotherHeightPaintsItselfAndTheDescription()
    {
        Scene scene;
        scene.fill();
        QVERIFY(scene.show());
        const QRegion before = QRegion(Scene::onStage(scene.children()[0]))
                                       .united(Scene::onStage(scene.children()[2]));
        scene.cell->setTitle("The long evening news of this and of the other day");
        const QRegion painted = scene.stage.renderFrame();
        const QRegion after = QRegion(Scene::onStage(scene.children()[0]))
                                      .united(Scene::onStage(scene.children()[2]));
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted.subtracted(before.united(after)), QRegion());
    }

    void aPictureThatArrivesPaintsItsOwnRectangleOnly()
    {
        Scene scene;
        scene.fillAndPaint();
        scene.ask();
        scene.stage.renderFrame();
        QVERIFY(scene.pictures.deliver("still", programmePicture()));
        QVERIFY(QTest::qWaitFor([&] { return scene.stage.wantsFrame(); }));
        QCOMPARE(scene.stage.renderFrame(), QRegion(20 + 13, 30 + 43, 131, 75));
    }
};

STB_TEST_MAIN(tst_StbHorizontalEpgViewDelegateChange)
#include "tst_stbhorizontalepgviewdelegatechange.moc"
