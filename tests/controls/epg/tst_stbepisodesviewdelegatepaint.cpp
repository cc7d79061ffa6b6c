// SPDX-License-Identifier: MIT
#include "epgtexts.h"
#include "episodesscene.h"
#include "testkit/counters.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepisodesviewdelegate_p.h>

#include <limits>

using Scene = OffscreenEpisodesScene;
using Style = design_system::PlayerEpisodesItemStyle;
using stbtest::NodeInfo;

namespace {

constexpr const char *allTypes[] = { "defaultTile", "unViewedTile", "viewedTile", "comingSoonTile" };
const QRect tile(11, 7, 201, 113);

void addTypes()
{
    QTest::addColumn<QString>("type");
    for (const char *type : allTypes)
        QTest::newRow(type) << type;
}

QString typesOf(const QList<NodeInfo> &nodes)
{
    QStringList types;
    for (const NodeInfo &node : nodes)
        types += node.type;
    return types.join(' ');
}

QSize titleSize(const QString &text = QStringLiteral("The first evening of the year"))
{
    return textExtent(oddEpisodesStyle().titleTextStyle, text, 307).size();
}

QSize statusSize(const QString &text)
{
    return textExtent(oddEpisodesStyle().statusTextStyle, text, 201).size();
}

} // namespace

class tst_StbEpisodesViewDelegatePaint : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void nothingIsPaintedWithoutStyleKindOrSize_data()
    {
        QTest::addColumn<bool>("style");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QSizeF>("size");
        QTest::newRow("no style") << false << "viewedTile" << QSizeF(541, 131);
        QTest::newRow("no kind") << true << "" << QSizeF(541, 131);
        QTest::newRow("an unknown kind") << true << "viewedtile" << QSizeF(541, 131);
        QTest::newRow("no width") << true << "viewedTile" << QSizeF(0, 131);
        QTest::newRow("no height") << true << "viewedTile" << QSizeF(541, 0);
        QTest::newRow("a negative width") << true << "viewedTile" << QSizeF(-1, 131);
        QTest::newRow("a negative height") << true << "viewedTile" << QSizeF(541, -1);
    }
    void nothingIsPaintedWithoutStyleKindOrSize()
    {
        QFETCH(bool, style);
        QFETCH(QString, type);
        QFETCH(QSizeF, size);
        Scene scene;
        scene.stage.renderFrame();
        const QImage empty = scene.stage.picture();
        scene.cell->setSize(size);
        if (style)
            scene.cell->setStyle(&scene.style);
        scene.cell->setListItemType(type);
        scene.cell->setTitle("Title");
        scene.cell->setStatus("Status");
        QVERIFY(scene.show());
        QVERIFY(!scene.rootNode());
        QCOMPARE(scene.stage.picture(), empty);
    }

    void theRootIsATransparentRectangleOfTheItemsSize()
    {
        Scene scene;
        scene.fillAndPaint("viewedTile");
        const NodeInfo root = stbtest::nodeTree(scene.rootNode()).first();
        QCOMPARE(root.type, "Rectangle");
        QCOMPARE(root.color, QColor(Qt::transparent));
        QCOMPARE(root.rect, QRectF(0, 0, 541, 131));
    }

    void theOverlayTakesTheColourOfItsKind_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::newRow("defaultTile") << QColor(11, 131, 41, 51);
        QTest::newRow("unViewedTile") << QColor(11, 131, 41, 51);
        QTest::newRow("viewedTile") << QColor(31, 11, 71, 151);
        QTest::newRow("comingSoonTile") << QColor(31, 11, 71, 151);
    }
    void theOverlayTakesTheColourOfItsKind()
    {
        Scene scene;
        scene.fillAndPaint(QTest::currentDataTag());
        QCOMPARE(scene.overlay().type, "Rectangle");
        QCOMPARE(scene.overlay().rect, QRectF(tile));
        QTEST(scene.overlay().color, "color");
    }

    void overlayTitleAndSubtitleFollowEachOther_data() { addTypes(); }
    void overlayTitleAndSubtitleFollowEachOther()
    {
        QFETCH(QString, type);
        Scene scene;
        scene.fillAndPaint(type);
        const QList<NodeInfo> nodes = scene.children();
        QCOMPARE(typesOf(nodes), "Rectangle Image Image");
        const QSize title = titleSize();
        const QSize subtitle = textExtent(oddEpisodesStyle().subtitleTextStyle, scene.cell->subtitle(), 307)
                                       .size();
        QVERIFY(title.height() > 30); // two lines
        QVERIFY(subtitle.height() > 30);
        QCOMPARE(nodes[1].rect, QRectF(QPointF(220, 0), title));
        QCOMPARE(nodes[2].rect, QRectF(QPointF(220, title.height() + 23), subtitle));
        const bool coming = type == "comingSoonTile";
        const QColor comingColor(141, 121, 61);
        QVERIFY(isInkOf(nodes[1].pixmap, coming ? comingColor : QColor(211, 213, 217)));
        QVERIFY(isInkOf(nodes[2].pixmap, coming ? comingColor : QColor(151, 163, 173)));
    }

    void aBegunEpisodeHasIconBarAndStatus()
    {
        Scene scene;
        scene.fillAndPaint("defaultTile");
        const QList<NodeInfo> nodes = scene.onTile();
        QCOMPARE(typesOf(nodes), "Image Rectangle Rectangle Image");
        QCOMPARE(nodes[0].rect, QRectF(82, 35, 37, 43));
        QCOMPARE(nodes[0].pixmap.size(), QSize(37, 43));
        QCOMPARE(nodes[1].rect, QRectF(24, 95, 68, 15)); // 171 * 20 / 50
        QCOMPARE(nodes[1].color, QColor(61, 91, 221));
        QCOMPARE(nodes[2].rect, QRectF(91, 95, 103, 15)); // on the last pixel of the viewed part
        QCOMPARE(nodes[2].color, QColor(221, 221, 61));
        const QSize text = statusSize("12 min left");
        QCOMPARE(nodes[3].rect,
                 QRectF(QPointF(211 - text.width() - 11 - 17, 119 - text.height() - 5 - 21 - 15 - 9), text));
        QVERIFY(isInkOf(nodes[3].pixmap, QColor(251, 241, 231)));
        QCOMPARE(stbtest::nodeCount(scene.rootNode()), 8);
    }

    void anUnviewedEpisodeHasIconAndBadge()
    {
        Scene scene;
        scene.fillAndPaint("unViewedTile");
        QCOMPARE(typesOf(scene.onTile()), "Image Rectangle");
        QCOMPARE(scene.onTile()[0].rect, QRectF(82, 35, 37, 43));
        checkBadge(scene.onTile()[1], "12 min left");
        QCOMPARE(stbtest::nodeCount(scene.rootNode()), 7);
    }

    void aViewedEpisodeHasItsBadgeAlone()
    {
        Scene scene;
        scene.fillAndPaint("viewedTile");
        QCOMPARE(typesOf(scene.onTile()), "Rectangle");
        checkBadge(scene.onTile()[0], "Viewed");
        QCOMPARE(stbtest::nodeCount(scene.rootNode()), 6);
    }

    void anEpisodeToComeHasItsDayInTwoLinesTheLowerOneFirst()
    {
        Scene scene;
        scene.fillAndPaint("comingSoonTile");
        const QList<NodeInfo> nodes = scene.onTile();
        QCOMPARE(typesOf(nodes), "Image Image");
        const QSize lower = textExtent(oddEpisodesStyle().dateLowerTextStyle, "March", 201).size();
        const QSize upper = textExtent(oddEpisodesStyle().dateUpperTextStyle, "12", 201).size();
        const int lowerTop = 112 - (lower.height() - 1) - 9;
        QCOMPARE(nodes[0].rect, QRectF(QPointF(24, lowerTop), lower));
        QCOMPARE(nodes[1].rect, QRectF(QPointF(24, lowerTop - upper.height()), upper));
        QVERIFY(isInkOf(nodes[0].pixmap, QColor(91, 191, 241)));
        QVERIFY(isInkOf(nodes[1].pixmap, QColor(241, 191, 31)));
        QCOMPARE(stbtest::nodeCount(scene.rootNode()), 6);
    }

    void longTextsKeepTheirWidthsAndLines()
    {
        const QString text = QStringLiteral(
                "A text so long that no line of it has room for all of it, not even "
                "two lines of it or three, nor any number a style allows");
        Scene scene;
        scene.cell->setStatus(text);
        scene.fill("viewedTile");
        scene.cell->setTitle(text);
        scene.cell->setSubtitle(text);
        scene.stage.renderFrame();
        const Style style = oddEpisodesStyle();
        QCOMPARE(scene.children()[1].rect.size(), QSizeF(textExtent(style.titleTextStyle, text, 307).size()));
        QVERIFY(scene.children()[1].rect.width() <= 307);
        QCOMPARE(scene.children()[2].rect.size(),
                 QSizeF(textExtent(style.subtitleTextStyle, text, 307).size()));
        checkBadge(scene.onTile()[0], text);
        Scene coming;
        coming.cell->setStatus("Donnerstagabendvorstellungen Septemberneuerscheinungstage");
        coming.fillAndPaint("comingSoonTile");
        QCOMPARE(coming.onTile()[1].rect.width(),
                 textExtent(style.dateUpperTextStyle, "Donnerstagabendvorstellungen", 201).width());
        QVERIFY(coming.onTile()[1].rect.width() <= 201);
        QVERIFY(coming.onTile()[0].rect.width() <= 201);
    }

    void aPositionBeyondTheDurationMakesTheViewedPartLongerThanTheTrack()
    {
        checkBar(80, 64, QRectF(24, 95, 213, 15), QRectF(236, 95, 0, 0));
    }
    void aPositionAtTheDurationFillsTheTrack()
    {
        checkBar(64, 64, QRectF(24, 95, 171, 15), QRectF(194, 95, 0, 0));
    }
    void aNegativePositionShowsNoViewedPartAndALongerRest()
    {
        checkBar(-32, 64, QRectF(24, 95, 0, 0), QRectF(-62, 95, 256, 15));
    }
    void withoutADurationThereIsNoViewedPart()
    {
        checkBar(20, 0, QRectF(24, 95, 0, 0), QRectF(23, 95, 171, 15));
        checkBar(20, -5, QRectF(24, 95, 0, 0), QRectF(23, 95, 171, 15));
    }
    void anEndlessPositionPaintsAsFarAsTheWindowGoes()
    {
        Scene scene;
        scene.cell->setViewedPosition(std::numeric_limits<double>::infinity());
        scene.cell->setDuration(1);
        scene.fillAndPaint("defaultTile");
        QCOMPARE(scene.stage.picture().pixelColor(579, 30 + 100), QColor(61, 91, 221));
    }

    void theSeamOfTheBarIsTheViewedPartsLastPixel()
    {
        Scene scene;
        scene.fillAndPaint("defaultTile");
        const QImage picture = scene.stage.picture();
        QCOMPARE(picture.pixelColor(20 + 90, 30 + 100), QColor(61, 91, 221));
        QCOMPARE(picture.pixelColor(20 + 91, 30 + 100), QColor(221, 221, 61));
        QCOMPARE(picture.pixelColor(20 + 193, 30 + 100), QColor(221, 221, 61));
        QVERIFY(picture.pixelColor(20 + 194, 30 + 100) != QColor(221, 221, 61));
    }

    void anEmptyStatusLeavesNoColouredStub_data() { addTypes(); }
    void anEmptyStatusLeavesNoColouredStub()
    {
        QFETCH(QString, type);
        Scene scene;
        scene.cell->setStyle(&scene.style);
        scene.cell->setListItemType(type);
        scene.stage.renderFrame();
        const QImage picture = scene.stage.picture();
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                QVERIFY(picture.pixelColor(x, y) != QColor(171, 11, 31));
        QCOMPARE(scene.stage.renderWhole(), picture);
    }

    void emptyTextsLeaveNoHole_data() { addTypes(); }
    void emptyTextsLeaveNoHole()
    {
        QFETCH(QString, type);
        Scene scene;
        scene.cell->setStyle(&scene.style);
        scene.cell->setListItemType(type);
        scene.stage.renderFrame();
        for (const NodeInfo &node : stbtest::nodeTree(scene.rootNode())) {
            if (node.type == "Image" && node.pixmap.isNull())
                QVERIFY(node.rect.isEmpty());
        }
        QCOMPARE(scene.stage.picture().pixelColor(20 + 300, 30 + 10), QColor(0, 60, 40));
        QCOMPARE(scene.stage.renderWhole(), scene.stage.picture());
    }

    void invalidColoursPaintNothing()
    {
        Scene scene;
        Style style = oddEpisodesStyle();
        style.playableOverlayColor = QColor();
        style.progressViewedColor = QColor();
        style.progressRemainingColor = QColor();
        scene.style.setStyle(style);
        scene.fillAndPaint("defaultTile");
        QCOMPARE(scene.stage.picture().pixelColor(20 + 15, 30 + 12), QColor(0, 60, 40));
        QCOMPARE(scene.stage.picture().pixelColor(20 + 60, 30 + 100), QColor(0, 60, 40));
        QCOMPARE(scene.stage.picture().pixelColor(20 + 150, 30 + 100), QColor(0, 60, 40));
    }

    void aStyleWithoutNumbersPaintsNoShapes_data() { addTypes(); }
    void aStyleWithoutNumbersPaintsNoShapes()
    {
        QFETCH(QString, type);
        Scene scene;
        scene.style.setStyle(Style());
        scene.stage.renderFrame();
        const QImage empty = scene.stage.picture();
        scene.fillAndPaint(type);
        QVERIFY(scene.show());
        QCOMPARE(scene.stage.picture(), empty);
    }

    void anIconThatCannotBeReadHasNoNode()
    {
        Scene scene;
        auto *d = static_cast<StbEpisodesViewDelegatePrivate *>(QQuickItemPrivate::get(scene.cell.get()));
        scene.fill("unViewedTile");
        d->m_playIcon.clear();
        scene.stage.renderFrame();
        QCOMPARE(typesOf(scene.onTile()), "Rectangle");
        QCOMPARE(scene.stage.renderWhole(), scene.stage.picture());
    }

    void itLooksLikeItsPictures_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("picture");
        for (const char *type : allTypes) {
            QTest::addRow("%s-picture", type) << QString(type) << true;
            QTest::addRow("%s-no-picture", type) << QString(type) << false;
        }
    }
    void itLooksLikeItsPictures()
    {
        QFETCH(QString, type);
        QFETCH(bool, picture);
        Scene scene;
        scene.fillAndPaint(type);
        if (picture)
            QVERIFY(scene.show());
        STB_COMPARE_GOLDEN(scene.stage.picture(),
                           QStringLiteral("episodes-") + QString(QTest::currentDataTag()).toLower(),
                           { 24, 60, "glyph edges differ a little between font rasterizers' versions" });
    }

private:
    static void checkBadge(const NodeInfo &badge, const QString &status)
    {
        const QSize text = statusSize(status);
        const QSize box(text.width() + 7 + 11, text.height() + 3 + 5);
        const QPointF corner(211 - box.width() - 17, 119 - box.height() - 9);
        QCOMPARE(badge.rect, QRectF(corner, box));
        QCOMPARE(badge.color, QColor(171, 11, 31));
        const QList<NodeInfo> inside = stbtest::childNodes(badge.node);
        QCOMPARE(typesOf(inside), "Image");
        QCOMPARE(inside[0].rect, QRectF(corner + QPointF(7, 3), text));
        QVERIFY(isInkOf(inside[0].pixmap, QColor(251, 241, 231)));
    }

    static void checkBar(double position, double duration, const QRectF &viewed, const QRectF &remaining)
    {
        Scene scene;
        scene.cell->setStyle(&scene.style);
        scene.cell->setListItemType("defaultTile");
        scene.cell->setViewedPosition(position);
        scene.cell->setDuration(duration);
        scene.stage.renderFrame();
        QCOMPARE(scene.onTile()[1].rect, viewed);
        QCOMPARE(scene.onTile()[2].rect, remaining);
        const QColor expected = viewed.width() > 40 ? QColor(61, 91, 221) : QColor(221, 221, 61);
        QCOMPARE(scene.stage.picture().pixelColor(20 + 60, 30 + 100), expected);
        QCOMPARE(scene.stage.renderWhole(), scene.stage.picture());
    }
};

STB_TEST_MAIN(tst_StbEpisodesViewDelegatePaint)
#include "tst_stbepisodesviewdelegatepaint.moc"
