// SPDX-License-Identifier: MIT
#include "epgtexts.h"
#include "horizontalepgscene.h"
#include "testkit/counters.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <controls/epg/stbhorizontalepgviewdelegate_p.h>

using Scene = OffscreenHorizontalEpgScene;
using Style = design_system::PlayerHorizontalEpgViewStyle;
using stbtest::NodeInfo;

namespace {

constexpr int textWidth = 295; // 487 - 13 - 29 - 19 - 131
constexpr int column = 163; // 131 + 13 + 19

QSize dateSize(const QString &text = "Today, 20:05")
{
    return textExtent(oddHorizontalEpgStyle().dateStyle, text, textWidth).size();
}
QSize titleSize(const QString &text = "Evening news")
{
    return textExtent(oddHorizontalEpgStyle().titleStyle, text, textWidth).size();
}
QSize descriptionSize()
{
    return textExtent(oddHorizontalEpgStyle().descriptionStyle,
                      "What happened today, and the weather of tomorrow.", textWidth)
            .size();
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

class tst_StbHorizontalEpgViewDelegatePaint : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void withoutStyleOrSizeNothingIsPainted_data()
    {
        QTest::addColumn<bool>("styled");
        QTest::addColumn<QSizeF>("size");
        QTest::newRow("no style") << false << QSizeF(500, 161);
        QTest::newRow("no width") << true << QSizeF(0, 161);
        QTest::newRow("no height") << true << QSizeF(500, 0);
        QTest::newRow("negative width") << true << QSizeF(-1, 161);
        QTest::newRow("negative height") << true << QSizeF(500, -1);
    }
    void withoutStyleOrSizeNothingIsPainted()
    {
        QFETCH(bool, styled);
        QFETCH(QSizeF, size);
        Scene scene;
        scene.stage.renderFrame();
        const QImage ground = scene.stage.picture();
        scene.fill();
        QVERIFY(scene.show());
        const QImage painted = scene.stage.picture();
        scene.cell->setSize(size);
        scene.cell->setStyle(styled ? &scene.style : nullptr);
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(scene.cell.get()));
        QCOMPARE(scene.stage.picture(), ground);
        scene.cell->setSize(QSizeF(500, 161));
        scene.cell->setStyle(&scene.style);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), painted);
    }

    void theRootIsAFilledRectangleOfTheItemsSize()
    {
        Scene scene;
        scene.fillAndPaint();
        QCOMPARE(scene.root().type, "Rectangle");
        QCOMPARE(scene.root().rect, QRectF(0, 0, 500, 161));
        QCOMPARE(scene.root().color, QColor(33, 43, 73));
        scene.cell->setSize(QSizeF(300.5, 97.25));
        scene.stage.renderFrame();
        QCOMPARE(scene.root().rect, QRectF(0, 0, 300.5, 97.25));
    }

    void aStyleWithoutBackgroundColourPaintsNone()
    {
        Scene scene;
        Style style = oddHorizontalEpgStyle();
        style.backgroundColor = QColor();
        scene.other.setStyle(style);
        scene.cell->setStyle(&scene.other);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture().pixelColor(100, 100), QColor(0, 60, 40));
    }

    void theNodesStandInTheirOrder()
    {
        Scene scene;
        scene.fillAndPaint();
        const QList<NodeInfo> texts = scene.children();
        QCOMPARE(texts.size(), 3);
        QVERIFY(isInkOf(texts[0].pixmap, QColor(251, 249, 231))); // the title
        QVERIFY(isInkOf(texts[1].pixmap, QColor(91, 191, 241))); // the date
        QVERIFY(isInkOf(texts[2].pixmap, QColor(151, 163, 173))); // the description

        QVERIFY(scene.show());
        const QList<NodeInfo> all = scene.children();
        QCOMPARE(all.size(), 4);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(all[i].node, texts[i].node); // used again
        QCOMPARE(all[3].pixmap.toImage(), programmePicture()); // the picture that came later is last
    }

    void aPictureThatIsThereAtFirstIsLastToo()
    {
        Scene scene;
        QVERIFY(scene.show()); // without a style nothing is painted yet
        QVERIFY(!stbtest::paintNode(scene.cell.get()));
        scene.fillAndPaint();
        QCOMPARE(scene.children().size(), 4);
        QCOMPARE(scene.children()[3].pixmap.toImage(), programmePicture());
        QCOMPARE(scene.children()[3].rect, QRectF(13, 43, 131, 75));
    }

    void thePictureIsPaintedAboveTheTexts()
    {
        Scene scene;
        Style style = oddHorizontalEpgStyle();
        style.imageTextSpacing = -131; // the texts begin at the picture's left edge
        scene.other.setStyle(style);
        scene.fill();
        scene.cell->setStyle(&scene.other);
        QVERIFY(scene.show());
        QCOMPARE(scene.stage.picture().copy(20 + 13, 30 + 43, 131, 75).convertToFormat(QImage::Format_RGB32),
                 programmePicture());
    }

    void theTextsBeginAtThePicturesUpperEdgeAndStandBelowEachOther()
    {
        Scene scene;
        scene.fill();
        QVERIFY(scene.show());
        const QList<NodeInfo> nodes = scene.children();
        const int title = 43 + dateSize().height() + 5;
        const int description = title + titleSize().height() + 11;
        QCOMPARE(nodes[1].rect, QRectF(QPointF(column, 43), dateSize()));
        QCOMPARE(nodes[0].rect, QRectF(QPointF(column, title), titleSize()));
        QCOMPARE(nodes[2].rect, QRectF(QPointF(column, description), descriptionSize()));
        QCOMPARE(nodes[3].rect, QRectF(13, 43, 131, 75));
    }

    void withoutAPictureTheTextsKeepTheirColumn()
    {
        Scene with;
        with.fill();
        QVERIFY(with.show());
        Scene without;
        without.fillAndPaint();
        for (int i = 0; i < 3; ++i)
            QCOMPARE(without.children()[i].rect, with.children()[i].rect);
    }

    void theVerticalPlaceIsNotRounded()
    {
        Scene scene;
        scene.cell->setHeight(160);
        scene.fill();
        QVERIFY(scene.show());
        QCOMPARE(scene.children()[3].rect.top(), 42.5);
        QCOMPARE(scene.children()[1].rect.top(), 42.5);
    }

    void eachTextIsLaidOutInItsOwnStyleAndInTheWidthThatTheStyleLeaves()
    {
        Scene scene;
        scene.fill();
        const QString text = "A text so long that no line of it has room for all of it, "
                             "not even two lines of it or three, nor any number a style allows";
        scene.cell->setExactDate(text);
        scene.cell->setTitle(text);
        scene.cell->setDescription(text);
        scene.stage.renderFrame();
        const Style style = oddHorizontalEpgStyle();
        const auto size = [&](const design_system::TextStyle &textStyle) {
            return QSizeF(textExtent(textStyle, text, textWidth).size());
        };
        QCOMPARE(scene.children()[0].rect.size(), size(style.titleStyle));
        QCOMPARE(scene.children()[1].rect.size(), size(style.dateStyle));
        QCOMPARE(scene.children()[2].rect.size(), size(style.descriptionStyle));
    }

    void aStyleThatLeavesNoWidthShowsNoTexts()
    {
        Scene scene;
        Style style = oddHorizontalEpgStyle();
        style.delegateRect = QRect(0, 0, 192, 9);
        scene.other.setStyle(style);
        scene.fill();
        scene.cell->setStyle(&scene.other);
        QVERIFY(scene.show());
        Scene textless;
        textless.cell->setStyle(&textless.style);
        QVERIFY(textless.show());
        QCOMPARE(scene.stage.picture(), textless.stage.picture());
    }

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
        scene.ask("another"); // a load without a window
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
        auto *d = static_cast<StbHorizontalEpgViewDelegatePrivate *>(QQuickItemPrivate::get(scene.cell.get()));
        QTRY_VERIFY(!d->m_picture.size().isEmpty()); // and no frame in between
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

    void everyPartIsOneNode()
    {
        Scene scene;
        scene.fillAndPaint();
        QCOMPARE(stbtest::nodeCount(stbtest::paintNode(scene.cell.get())), 4);
        QVERIFY(scene.show());
        QCOMPARE(stbtest::nodeCount(stbtest::paintNode(scene.cell.get())), 5);
    }

    void itLooksLikeItsPictures_data()
    {
        QTest::addColumn<bool>("picture");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("description");
        const QString news = "Evening news";
        const QString text = "What happened today, and the weather of tomorrow.";
        QTest::newRow("picture") << true << news << text;
        QTest::newRow("no-picture") << false << news << text;
        QTest::newRow("long-texts") << true << "The long evening news of this and of the other day"
                                    << "What happened today and the day before, what may happen tomorrow and "
                                       "why nobody knows it yet, and the weather of the week that begins.";
        QTest::newRow("no-title") << true << QString() << text;
    }
    void itLooksLikeItsPictures()
    {
        QFETCH(bool, picture);
        QFETCH(QString, title);
        QFETCH(QString, description);
        Scene scene;
        scene.fill();
        scene.cell->setTitle(title);
        scene.cell->setDescription(description);
        if (picture)
            QVERIFY(scene.show());
        scene.stage.renderFrame();
        STB_COMPARE_GOLDEN(scene.stage.picture(), QStringLiteral("horizontalepg-") + QTest::currentDataTag(),
                           { 24, 60, "glyph edges differ a little between font rasterizers' versions" });
    }
};

STB_TEST_MAIN(tst_StbHorizontalEpgViewDelegatePaint)
#include "tst_stbhorizontalepgviewdelegatepaint.moc"
