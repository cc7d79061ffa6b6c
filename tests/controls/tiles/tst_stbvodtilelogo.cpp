// SPDX-License-Identifier: MIT
#include "captionscene.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <controls/tiles/stbvodtile.h>
#include <controls/tiles/stbvodtile_p.h>

#include <QtCore/qtemporarydir.h>

using stbtest::NodeInfo;

namespace {

const QSize logoSize(41, 23);
const QPointF lowerPlace(200 - 19 - 41, 112 - 21 - 23); // in the tile of 201 x 113
constexpr int lift = 25;

struct Scene : QmlCaptionScene<StbVodTile>
{
    explicit Scene(const QString &content = "rightholderImageSource: 'qrc:/pictures/logo.png'",
                   bool fading = false)
        : QmlCaptionScene("VodTile", content, fading)
    {
    }
    StbVodTilePrivate *d() { return static_cast<StbVodTilePrivate *>(QQuickItemPrivate::get(tile.get())); }
    bool isLoaded() { return !d()->m_rightholderImage.size().isEmpty(); }
    // The nodes behind background and frame after a frame.
    QList<NodeInfo> painted()
    {
        stage.renderFrame();
        return stbtest::childNodes(stbtest::paintNode(tile.get())).mid(2);
    }
};

} // namespace

class tst_StbVodTileLogo : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theLogoIsLoadedWhenTheComponentIsCompleteAndAsksForAFrame()
    {
        Scene scene;
        QVERIFY(scene.painted().isEmpty()); // still loading
        QVERIFY(!scene.stage.wantsFrame());
        QTRY_VERIFY(scene.isLoaded());
        QTRY_VERIFY(scene.stage.wantsFrame());
        const QList<NodeInfo> nodes = scene.painted();
        QCOMPARE(nodes.size(), 1);
        QCOMPARE(nodes[0].type, "Image");
        QCOMPARE(nodes[0].rect, QRectF(lowerPlace, logoSize));
    }

    void beforeTheCompletionNothingIsLoaded()
    {
        StbVodTile tile;
        static_cast<QQmlParserStatus &>(tile).classBegin();
        auto *d = static_cast<StbVodTilePrivate *>(QQuickItemPrivate::get(&tile));
        tile.setRightholderImageSource(QUrl("qrc:/pictures/logo.png"));
        QVERIFY(!d->m_rightholderImage.takeReloaded());
        static_cast<QQmlParserStatus &>(tile).componentComplete();
        QVERIFY(d->m_rightholderImage.takeReloaded());
    }

    void theSignalComesBeforeTheLoad()
    {
        Scene scene(QString {});
        scene.stage.renderFrame();
        bool loading = true;
        connect(scene.tile.get(), &StbVodTile::rightholderImageSourceChanged, this,
                [&] { loading = scene.d()->m_rightholderImage.takeReloaded(); });
        scene.tile->setRightholderImageSource(QUrl("qrc:/pictures/logo.png"));
        QVERIFY(!loading);
        QVERIFY(scene.d()->m_rightholderImage.takeReloaded());
    }

    void theBarLiftsTheLogoAndLetsItDropAgain()
    {
        Scene scene;
        QTRY_VERIFY(scene.isLoaded());
        QCOMPARE(scene.painted()[0].rect.topLeft(), lowerPlace);
        scene.tile->setDuration(7200);
        QCOMPARE(scene.painted()[0].rect.topLeft(), lowerPlace);
        scene.tile->setTimepoint(60);
        QCOMPARE(scene.painted()[0].rect.topLeft(), lowerPlace - QPointF(0, lift));
        scene.tile->setTimepoint(9999);
        QCOMPARE(scene.painted()[0].rect.topLeft(), lowerPlace - QPointF(0, lift));
        scene.tile->setTimepoint(0);
        QCOMPARE(scene.painted()[0].rect.topLeft(), lowerPlace);
        scene.tile->setTimepoint(60);
        scene.tile->setDuration(0);
        QCOMPARE(scene.painted()[0].rect.topLeft(), lowerPlace);
    }

    void theLogoFollowsThePicture()
    {
        Scene scene;
        QTRY_VERIFY(scene.isLoaded());
        scene.stage.renderFrame();
        scene.tile->setCustomFocusRect(QRect(-13, -7, 231, 151)); // right 217, bottom 143
        QCOMPARE(scene.painted()[0].rect, QRectF(QPointF(217 - 19 - 41, 143 - 21 - 23), logoSize));
    }

    void theNodesStandInTheirOrderWhateverComesFirst_data()
    {
        QTest::addColumn<QList<int>>("appearance");
        QList<int> order { 0, 1, 2, 3 };
        do {
            QTest::addRow("%d%d%d%d", order[0], order[1], order[2], order[3]) << order;
        } while (std::next_permutation(order.begin(), order.end()));
    }
    void theNodesStandInTheirOrderWhateverComesFirst()
    {
        QFETCH(QList<int>, appearance);
        Scene scene("moviePosterDuration: 3");
        scene.stage.renderFrame();
        for (const int part : appearance) {
            switch (part) {
            case 0:
                scene.tile->setRightholderImageSource(QUrl("qrc:/pictures/logo.png"));
                QTRY_VERIFY(scene.isLoaded());
                break;
            case 1:
                scene.tile->setRating("12+");
                break;
            case 2:
                scene.tile->setTimepoint(1);
                break;
            default:
                scene.tile->setStatus("New");
            }
            scene.stage.renderFrame();
        }
        const QList<NodeInfo> nodes = scene.painted();
        QCOMPARE(nodes.size(), 5);
        QVERIFY(stbtest::isPaintedIn(nodes[0].pixmap, oddTileStyle().statusColor));
        QCOMPARE(nodes[1].pixmap.size(), logoSize);
        QCOMPARE(nodes[2].color, oddTileStyle().ratingBadgeColor);
        QCOMPARE(nodes[3].color, oddTileStyle().progressTrackColor);
        QCOMPARE(nodes[4].color, oddTileStyle().progressValueColor);
    }

    void aLogoThatFailsToLoadLeavesNoNode_data()
    {
        QTest::addColumn<QUrl>("url");
        QTest::newRow("missing file") << QUrl("file:///no/such/logo.png");
        QTest::newRow("no picture") << QUrl("qrc:/Stbui/UI/Qml/Controls/Basic/qmldir");
        QTest::newRow("empty") << QUrl();
        QTest::newRow("invalid") << QUrl("http://[");
    }
    void aLogoThatFailsToLoadLeavesNoNode()
    {
        QFETCH(QUrl, url);
        Scene scene;
        QTRY_VERIFY(scene.isLoaded());
        QCOMPARE(scene.painted().size(), 1);
        const QImage shown = scene.stage.picture();
        scene.tile->setRightholderImageSource(url);
        QVERIFY(scene.stage.wantsFrame());
        QVERIFY(scene.painted().isEmpty()); // the former one goes at once
        if (url.isValid())
            QTRY_VERIFY(scene.stage.wantsFrame()); // when the failure is known
        QVERIFY(scene.painted().isEmpty());
        QVERIFY(scene.stage.picture() != shown);
        QVERIFY(!scene.isLoaded());
    }

    void anotherLogoReplacesTheFirstOneEvenWithoutAFrameInBetween()
    {
        Scene scene;
        QTRY_VERIFY(scene.isLoaded());
        QCOMPARE(scene.painted()[0].pixmap.size(), logoSize);
        scene.tile->setRightholderImageSource(QUrl("qrc:/pictures/landscape.png"));
        QTRY_VERIFY(scene.isLoaded());
        QList<NodeInfo> nodes = scene.painted();
        QCOMPARE(nodes.size(), 1);
        QCOMPARE(nodes[0].pixmap.size(), QSize(91, 51));
        QCOMPARE(nodes[0].rect, QRectF(200 - 19 - 91, 112 - 21 - 51, 91, 51));
        QCOMPARE(scene.stage.picture(), scene.stage.renderWhole());

        scene.tile->setRightholderImageSource(QUrl("qrc:/pictures/logo.png"));
        QVERIFY(scene.painted().isEmpty());
        QTRY_VERIFY(scene.isLoaded());
        QCOMPARE(scene.painted()[0].pixmap.size(), logoSize);
    }

    void theLogoNeverFades()
    {
        Scene scene("imageSource: 'qrc:/pictures/landscape.png'\n"
                    "rightholderImageSource: 'qrc:/pictures/logo.png'",
                    true);
        QTRY_VERIFY(scene.isLoaded());
        QTRY_VERIFY(!scene.d()->m_poster.size().isEmpty());
        scene.d()->m_fadeTimeLine.setPaused(true);
        scene.d()->m_fadeTimeLine.setCurrentTime(scene.d()->m_fadeTimeLine.duration() / 2);
        scene.stage.renderFrame();
        const QList<NodeInfo> nodes = stbtest::childNodes(stbtest::paintNode(scene.tile.get()));
        QCOMPARE(nodes.size(), 4);
        QCOMPARE(nodes[1].type, "Opacity");
        QCOMPARE(nodes[3].type, "Image");
        QCOMPARE(nodes[3].pixmap.size(), logoSize);
    }

    void aTileThatGoesWhileItsLogoLoadsIsNotAskedForAFrame()
    {
        Scene scene;
        scene.tile.reset();
        QCoreApplication::processEvents();
        scene.stage.renderFrame();
        QVERIFY(!scene.stage.wantsFrame());
    }

    void aTileWithoutAnEngineShowsNoLogo()
    {
        CaptionScene<StbVodTile> scene;
        scene.tile.setStyle(&scene.style);
        scene.tile.setRightholderImageSource(QUrl("qrc:/pictures/logo.png"));
        scene.stage.renderFrame();
        QVERIFY(scene.nodes().isEmpty());
    }
};

STB_TEST_MAIN(tst_StbVodTileLogo)
#include "tst_stbvodtilelogo.moc"
