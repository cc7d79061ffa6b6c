// SPDX-License-Identifier: MIT
#include "epgtexts.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"
#include "tvchannelscene.h"

#include <algorithm>

using Scene = OffscreenTvChannelScene;
using Style = design_system::PlayerTvChannelItemStyle;
using stbtest::NodeInfo;

namespace {

constexpr int textWidth = 426; // 600 - 121 - 13 - 19 - 21

const Style &odd()
{
    static const Style style = oddTvChannelStyle();
    return style;
}

QSize sizeOf(const design_system::TextStyle &style, const QString &text, int width = textWidth)
{
    return textExtent(style, text, width).size();
}

// The badge around a quality.
QRect badge(const QString &quality = "HD")
{
    return { QPoint(153, 17), sizeOf(odd().qualityTextStyle, quality) + QSize(9 + 15, 3 + 1) };
}

// Where a name lies beside that badge.
QRectF nameBeside(const QRect &box, const QString &name, int width = textWidth)
{
    const QSize size = sizeOf(odd().channelNameTextStyle, name, width);
    return QRectF(QRect(QPoint(box.right() + 11, 17 + (box.height() - size.height()) / 2), size));
}

// The fixed children, from the number's box on; the logo's node, when there is one, comes before.
enum Child { NumberBox, QualityBox, Name, Program, Played, Remainder, FirstOptional };

NodeInfo textIn(const NodeInfo &box)
{
    return stbtest::childNodes(box.node).first();
}

} // namespace

class tst_StbTvChannelViewDelegatePaint : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void withoutStyleOrSizeNothingIsPainted_data()
    {
        QTest::addColumn<bool>("styled");
        QTest::addColumn<QSizeF>("size");
        QTest::newRow("no style") << false << QSizeF(600, 111);
        QTest::newRow("no width") << true << QSizeF(0, 111);
        QTest::newRow("no height") << true << QSizeF(600, 0);
        QTest::newRow("negative width") << true << QSizeF(-1, 111);
        QTest::newRow("negative height") << true << QSizeF(600, -1);
    }
    void withoutStyleOrSizeNothingIsPainted()
    {
        QFETCH(bool, styled);
        QFETCH(QSizeF, size);
        Scene scene;
        scene.fill();
        scene.row->setSize(size);
        scene.row->setStyle(styled ? &scene.style : nullptr);
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(scene.row.get()));
    }

    void theNodesStandInTheirOrder()
    {
        Scene scene;
        scene.fillAndPaint();
        const NodeInfo root = stbtest::nodeTree(stbtest::paintNode(scene.row.get())).first();
        QCOMPARE(root.type, "Rectangle");
        QCOMPARE(root.rect, QRectF(0, 0, 600, 111));
        QCOMPARE(root.color, QColor(Qt::transparent));
        const QList<NodeInfo> nodes = scene.children();
        QCOMPARE(nodes.size(), 6);
        QCOMPARE(nodes[NumberBox].color, QColor(31, 41, 51));
        QVERIFY(isInkOf(textIn(nodes[NumberBox]).pixmap, QColor(251, 241, 131)));
        QCOMPARE(nodes[QualityBox].color, QColor(91, 31, 121));
        QVERIFY(isInkOf(textIn(nodes[QualityBox]).pixmap, QColor(231, 211, 251)));
        QVERIFY(isInkOf(nodes[Name].pixmap, QColor(251, 249, 231)));
        QVERIFY(isInkOf(nodes[Program].pixmap, QColor(151, 163, 173)));
        QCOMPARE(nodes[Played].color, QColor(61, 201, 111));
        QCOMPARE(nodes[Remainder].color, QColor(71, 83, 97));
    }

    void optionalPartsTakeTheirPlacesInEveryOrderOfAppearance_data()
    {
        QTest::addColumn<QByteArray>("order");
        QByteArray order("ckp"); // cell, lock, playing
        do
            QTest::addRow("%s", order.constData()) << order;
        while (std::next_permutation(order.begin(), order.end()));
    }
    void optionalPartsTakeTheirPlacesInEveryOrderOfAppearance()
    {
        QFETCH(QByteArray, order);
        Scene scene;
        scene.fillAndPaint();
        const auto set = [&](char part, bool there) {
            if (part == 'c')
                scene.row->setCachedChannelRect(there ? canvasCell(1) : QRect());
            else if (part == 'k')
                scene.row->setLockIconVisible(there);
            else
                scene.row->setLive(there);
            scene.stage.renderFrame();
        };
        scene.row->setCanvas(channelCanvas());
        const QImage without = scene.stage.picture();
        for (const char part : order)
            set(part, true);
        const QList<NodeInfo> nodes = scene.children();
        QCOMPARE(nodes.size(), 10);
        QCOMPARE(nodes[0].rect, QRectF(11, 15, 121, 67));
        QCOMPARE(nodes[1 + NumberBox].color, QColor(31, 41, 51));
        QCOMPARE(nodes[1 + FirstOptional].rect.size(), QSizeF(13, 17)); // the lock
        QVERIFY(isInkOf(nodes[2 + FirstOptional].pixmap, QColor(91, 191, 241))); // the mark's text
        QCOMPARE(nodes[3 + FirstOptional].rect.size(), QSizeF(15, 27)); // and icon
        QVERIFY(isInkOf(nodes[3 + FirstOptional].pixmap, QColor(91, 191, 241)));
        for (const char part : order)
            set(part, false);
        QCOMPARE(scene.children().size(), 6);
        QCOMPARE(scene.stage.picture(), without);
    }

    void theNumberStandsInItsBoxInTheLogosCorner()
    {
        Scene scene;
        scene.fillAndPaint();
        const QSize size = sizeOf(odd().channelNumberTextStyle, "47", 71);
        QCOMPARE(textIn(scene.children()[NumberBox]).rect, QRectF(QPointF(19, 21), size));
        QCOMPARE(scene.children()[NumberBox].rect, QRectF(QPointF(14, 20), size + QSize(12, 4)));
    }

    void theNumberHasTheWidthOfItsOwnRectangle()
    {
        Scene scene;
        scene.fill();
        scene.row->setChannelNumber("a number of many digits");
        scene.stage.renderFrame();
        QCOMPARE(textIn(scene.children()[NumberBox]).rect.size(),
                 QSizeF(sizeOf(odd().channelNumberTextStyle, "a number of many digits", 71)));
    }

    void qualityNameAndProgrammeStandInTheTextsColumn()
    {
        Scene scene;
        scene.fillAndPaint();
        const QList<NodeInfo> nodes = scene.children();
        QCOMPARE(nodes[QualityBox].rect, QRectF(badge()));
        QCOMPARE(textIn(nodes[QualityBox]).rect,
                 QRectF(QPointF(162, 20), sizeOf(odd().qualityTextStyle, "HD")));
        QCOMPARE(nodes[Name].rect, nameBeside(badge(), "Rivers"));
        const int bottom = std::max(badge().bottom(), nodes[Name].rect.toRect().bottom());
        QCOMPARE(nodes[Program].rect, QRectF(QPointF(153, bottom + 23),
                                             sizeOf(odd().programNameTextStyle, "The Nature of Rivers")));
    }

    // One pixel left of the programme's name: the corner of the empty badge is an inclusive one.
    void aRowWithoutQualityPutsItsNameAtTheTextsColumn()
    {
        Scene scene;
        scene.fill();
        scene.row->setChannelQuality(QString());
        scene.stage.renderFrame();
        const QList<NodeInfo> nodes = scene.children();
        QCOMPARE(nodes[QualityBox].rect, QRectF(153, 17, 0, 0));
        QCOMPARE(nodes[Name].rect, QRectF(QPointF(152, 17), sizeOf(odd().channelNameTextStyle, "Rivers")));
        QCOMPARE(nodes[Program].rect.topLeft(), QPointF(153, nodes[Name].rect.toRect().bottom() + 23));
    }

    void anotherQualityMovesNameAndProgramme()
    {
        Scene scene;
        scene.fillAndPaint();
        scene.row->setChannelQuality("4K\nHDR");
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(),
                 Scene::freshPicture([](Scene &fresh) { fresh.row->setChannelQuality("4K\nHDR"); }));
        scene.row->setChannelQuality("Ultra HD");
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[Name].rect, nameBeside(badge("Ultra HD"), "Rivers"));
        QCOMPARE(scene.stage.picture(),
                 Scene::freshPicture([](Scene &fresh) { fresh.row->setChannelQuality("Ultra HD"); }));
    }

    void anEmptiedTextLeavesNoStubAndNoStalePixel_data()
    {
        QTest::addColumn<QByteArray>("property");
        for (const char *name : { "channelListChannelNumber", "channelListChannelQuality",
                                  "channelListChannelName", "channelListProgramName" })
            QTest::newRow(name) << QByteArray(name);
    }
    void anEmptiedTextLeavesNoStubAndNoStalePixel()
    {
        QFETCH(QByteArray, property);
        Scene scene;
        scene.fillAndPaint();
        const QImage before = scene.stage.picture();
        scene.row->setProperty(property, QString());
        scene.stage.renderFrame();
        QVERIFY(scene.stage.picture() != before);
        QCOMPARE(scene.stage.picture(),
                 Scene::freshPicture([&](Scene &fresh) { fresh.row->setProperty(property, QString()); }));
        QCOMPARE(scene.stage.renderWhole(), scene.stage.picture());
        if (property == "channelListChannelNumber")
            QVERIFY(scene.children()[NumberBox].rect.isEmpty());
        if (property == "channelListChannelQuality")
            QVERIFY(scene.children()[QualityBox].rect.isEmpty());
        scene.fill();
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), before);
    }

    void theNameGetsWhatBadgeAndMarkLeaveOfTheWidth()
    {
        Scene scene;
        scene.fill();
        const QString name = "The channel of the longest rivers, of all lakes and of the seven seas";
        scene.row->setChannelName(name);
        scene.stage.renderFrame();
        const int width = textWidth - badge().width() - 11;
        QCOMPARE(scene.children()[Name].rect, nameBeside(badge(), name, width));
        scene.row->setLive(true);
        scene.stage.renderFrame();
        const int mark = sizeOf(odd().playingTextStyle, "PLAYING").width() + 15 + 27;
        QCOMPARE(scene.children()[Name].rect, nameBeside(badge(), name, width - mark));
        scene.row->setLive(false);
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[Name].rect, nameBeside(badge(), name, width));
    }

    // The badge's text comes from the cache with the width of the row that laid it out first.
    void aNarrowRowWithTheSameQualityDoesNotChangeTheNamesWidth()
    {
        Scene narrow;
        narrow.fill();
        narrow.row->setWidth(333);
        narrow.stage.renderFrame();
        theNameGetsWhatBadgeAndMarkLeaveOfTheWidth();
    }

    void theNamesColourIsTheRowsOwnWhenThereIsOne()
    {
        Scene scene;
        scene.fill();
        scene.row->setChannelNameColor(QColor(251, 61, 61));
        scene.stage.renderFrame();
        QVERIFY(isInkOf(scene.children()[Name].pixmap, QColor(251, 61, 61)));
        scene.row->setChannelNameColor(QColor());
        scene.stage.renderFrame();
        QVERIFY(isInkOf(scene.children()[Name].pixmap, QColor(251, 249, 231)));
    }

    void theLockLiesInTheLogosUpperRightCorner()
    {
        Scene scene;
        scene.fill();
        scene.row->setLockIconVisible(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[FirstOptional].rect, QRectF(111, 16, 13, 17)); // 131 - 13 - 7, 15 + 1
    }

    void theMarkStandsAtTheRightAndItsIconLeftOfIt()
    {
        Scene scene;
        scene.fill();
        scene.row->setLive(true);
        scene.stage.renderFrame();
        const QSize size = sizeOf(odd().playingTextStyle, "PLAYING");
        QVERIFY(size.height() < 27);
        const QRect text(QPoint(600 - 21 - size.width(), 9 + (27 - size.height()) / 2), size);
        QCOMPARE(scene.children()[FirstOptional].rect, QRectF(text));
        QCOMPARE(scene.children()[FirstOptional + 1].rect, QRectF(text.left() - 27 - 15, 9, 15, 27));
    }

    void theMarkTakesHalfTheRowAtMost()
    {
        const QString longText = "This channel is the one that is being played at this very moment";
        Translation translation("PLAYING", longText);
        Scene scene;
        scene.fill();
        scene.row->setLive(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[FirstOptional].rect.size(),
                 QSizeF(sizeOf(odd().playingTextStyle, longText, 300)));
    }

    void aRowThatWasLiveBeforeShowsTheMarkOfNow()
    {
        Scene scene;
        scene.fill();
        scene.row->setLive(true);
        scene.stage.renderFrame();
        Translation translation("PLAYING", "On air");
        scene.row->setLive(false); // and back, within one frame
        scene.row->setLive(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), Scene::freshPicture([](Scene &fresh) { fresh.row->setLive(true); }));
    }

    void theBarLiesAlongTheBottomAndItsPartsOverlapByAPixel()
    {
        Scene scene;
        scene.fillAndPaint();
        QCOMPARE(scene.children()[Played].rect, QRectF(151, 99, 214, 5)); // half of 600 - 151 - 21
        QCOMPARE(scene.children()[Remainder].rect, QRectF(364, 99, 214, 5));
        scene.row->setProgress(0);
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[Played].rect, QRectF(151, 99, 0, 0));
        QCOMPARE(scene.children()[Remainder].rect, QRectF(150, 99, 428, 5));
        scene.row->setProgress(1);
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[Played].rect, QRectF(151, 99, 428, 5));
        QCOMPARE(scene.children()[Remainder].rect, QRectF(578, 99, 0, 0));
    }

    void aProgrammeThatBeginsAnewLeavesNoPixelOfTheFullBar()
    {
        Scene scene;
        scene.fill();
        scene.row->setProgress(1);
        scene.stage.renderFrame();
        scene.row->setProgress(0);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), Scene::freshPicture([](Scene &fresh) { fresh.row->setProgress(0); }));
        scene.row->setProgress(1);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), Scene::freshPicture([](Scene &fresh) { fresh.row->setProgress(1); }));
    }

    void anotherStyleChangesFontsColoursAndPlaces()
    {
        const auto mark = [](Scene &scene) {
            scene.row->setLive(true);
            scene.row->setLockIconVisible(true);
            scene.setCell(1);
        };
        Scene scene;
        scene.fill();
        mark(scene);
        scene.stage.renderFrame();
        scene.row->setStyle(&scene.other);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), Scene::freshPicture([&](Scene &fresh) {
                     mark(fresh);
                     fresh.row->setStyle(&fresh.other);
                 }));
        QCOMPARE(scene.children()[1 + NumberBox].color, QColor(131, 21, 11, 199));
        QVERIFY(isInkOf(scene.children()[3 + FirstOptional].pixmap, QColor(241, 91, 41)));
    }

    void anotherSizeLaysTheRowOutAgain()
    {
        Scene scene;
        scene.fill();
        scene.row->setChannelName("The channel of the longest rivers, of all lakes and of the seven seas");
        scene.row->setLive(true);
        scene.stage.renderFrame();
        scene.row->setSize(QSizeF(411.5, 97.25));
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), Scene::freshPicture([&](Scene &fresh) {
                     fresh.row->setChannelName(scene.row->channelName());
                     fresh.row->setLive(true);
                     fresh.row->setSize(QSizeF(411.5, 97.25));
                 }));
    }

    void coloursThatAreNotSetPaintNothing()
    {
        Scene scene;
        Style style = odd();
        style.channelNumberTextStyle.backgroundColor = QColor();
        style.qualityTextStyle.backgroundColor = QColor();
        style.progressPlayedColor = QColor();
        style.progressRemainderColor = QColor();
        scene.other.setStyle(style);
        scene.row->setStyle(&scene.other);
        scene.row->setProgress(0.5);
        scene.row->setChannelQuality(" ");
        scene.stage.renderFrame();
        QImage ground(640, 170, QImage::Format_RGB32);
        ground.fill(QColor(0, 60, 40));
        QCOMPARE(scene.stage.picture().convertToFormat(QImage::Format_RGB32), ground);
    }

    void itLooksLikeItsPictures_data()
    {
        QTest::addColumn<QByteArray>("parts"); // l logo, c cell, k lock, p playing, q no quality, n no number
        QTest::newRow("logo") << QByteArray("l");
        QTest::newRow("cell") << QByteArray("c");
        QTest::newRow("lock") << QByteArray("ck");
        QTest::newRow("playing") << QByteArray("lp");
        QTest::newRow("no-quality") << QByteArray("lqn");
        QTest::newRow("bare") << QByteArray("");
        QTest::newRow("long-texts") << QByteArray("lkpt");
    }
    void itLooksLikeItsPictures()
    {
        QFETCH(QByteArray, parts);
        Scene scene;
        scene.fill();
        scene.row->setLockIconVisible(parts.contains('k'));
        scene.row->setLive(parts.contains('p'));
        if (parts.contains('c'))
            scene.setCell(1);
        if (parts.contains('q'))
            scene.row->setChannelQuality(QString());
        if (parts.contains('n'))
            scene.row->setChannelNumber(QString());
        if (parts.contains('t')) {
            scene.row->setChannelName("The channel of the longest rivers, of all lakes and of the seven seas");
            scene.row->setProgramName("What happened today and the day before, what may happen tomorrow");
        }
        if (parts.contains('l'))
            QVERIFY(scene.show());
        scene.stage.renderFrame();
        STB_COMPARE_GOLDEN(scene.stage.picture(), QStringLiteral("tvchannel-") + QTest::currentDataTag(),
                           { 24, 60, "glyph edges differ a little between font rasterizers' versions" });
    }
};

STB_TEST_MAIN(tst_StbTvChannelViewDelegatePaint)
#include "tst_stbtvchannelviewdelegatepaint.moc"
