// SPDX-License-Identifier: MIT
#include "epgtexts.h"
#include "horizontalepgscene.h"
#include "testkit/counters.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

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
