// SPDX-License-Identifier: MIT
#include "focusedscene.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"

#include <QtCore/qtemporarydir.h>
#include <QtQml/qqmlcontext.h>

using stbtest::HandPictures;
using stbtest::NodeInfo;
using StyleObject = design_system::PlayerEpgDelegateQmlStyle;

namespace {

QImage plainPicture(const QColor &color)
{
    QImage image(23, 17, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

// The picture's node, right below the card; null when there is none.
QSGNode *pictureNode(FocusedScene &scene)
{
    const QList<NodeInfo> children = scene.children();
    const NodeInfo &below = children[children.size() - 2];
    const bool isPicture = below.type == "Image" && below.rect == scene.card().rect;
    return isPicture ? below.node : nullptr;
}

QColor shownAt(FocusedScene &scene, const QPoint &point)
{
    return scene.stage.picture().pixelColor(rowPosition + point);
}

// Where the card lies and nothing is on it: its fill is translucent.
const QPoint cornerOfTheCard(540, 240);

QColor under(const QColor &fill, const QColor &ground)
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter(&image).fillRect(image.rect(), fill);
    return image.pixelColor(0, 0);
}

} // namespace

class tst_StbEpgViewDelegateFocusedPicture : public stbtest::TestCase
{
    Q_OBJECT
    QTemporaryDir m_folder;

    QUrl file(const QString &name, const QImage &picture) const
    {
        const QString path = m_folder.filePath(name);
        return picture.save(path) ? QUrl::fromLocalFile(path) : QUrl();
    }

private Q_SLOTS:
    void thePictureLiesBelowTheCardsFill()
    {
        FocusedScene scene;
        scene.fill();
        QVERIFY(scene.show(plainPicture(QColor(200, 100, 50))));
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 5);
        const NodeInfo picture = scene.children()[3];
        QCOMPARE(picture.type, "Image");
        QCOMPARE(picture.rect, QRectF(131, 53, 417, 211));
        QCOMPARE(shownAt(scene, cornerOfTheCard), under(QColor(13, 17, 61, 117), QColor(200, 100, 50)));
    }

    void untilThePictureIsThereTheFillStandsAlone()
    {
        FocusedScene scene;
        scene.fill();
        scene.row->setImageSource(HandPictures::url("picture"));
        scene.stage.renderFrame();
        QVERIFY(!pictureNode(scene));
        QCOMPARE(shownAt(scene, cornerOfTheCard), under(QColor(13, 17, 61, 117), stageGround));
        QVERIFY(scene.arrive(fieldsPicture()));
        scene.stage.renderFrame();
        QVERIFY(pictureNode(scene));
    }

    void aPictureThatFailsLeavesTheFillAlone()
    {
        FocusedScene scene;
        scene.fill();
        QVERIFY(scene.show(QImage()));
        scene.stage.renderFrame();
        QVERIFY(!pictureNode(scene));
        QCOMPARE(scene.children().size(), 4);
    }

    void aPictureSetBeforeCompletionIsLoadedOnce()
    {
        FocusedScene scene("imageSource: 'image://hand/early'");
        scene.fill();
        QVERIFY(scene.arrive(fieldsPicture(), "early"));
        scene.stage.renderFrame();
        QVERIFY(pictureNode(scene));
        QCOMPARE(scene.pictures.requests("early"), 1);
        QCOMPARE(scene.pictures.requestedSize("early"), QSize()); // in its own size
    }

    void aUrlThatIsReplacedBeforeCompletionIsNeverLoaded()
    {
        FocusedScene scene("imageSource: 'image://hand/first'; property bool replaced: "
                           "{ imageSource = 'image://hand/second'; return true }");
        QVERIFY(scene.arrive(fieldsPicture(), "second"));
        QCOMPARE(scene.pictures.requests("second"), 1);
        QCOMPARE(scene.pictures.requests("first"), 0);
    }

    void withoutAUrlNothingIsLoadedAndNothingAskedFor()
    {
        FocusedScene scene;
        scene.fill();
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 4);
        QVERIFY(!scene.stage.wantsFrame());
    }

    void everyLoadAsksForAFrame()
    {
        FocusedScene scene;
        scene.fill();
        scene.stage.renderFrame();
        QVERIFY(!scene.stage.wantsFrame());
        scene.row->setImageSource(HandPictures::url("picture"));
        QVERIFY(scene.stage.wantsFrame());
        QVERIFY(scene.arrive(fieldsPicture()));
        scene.stage.renderFrame();
        QVERIFY(!scene.stage.wantsFrame());
        scene.row->setImageSource(QUrl());
        QVERIFY(scene.stage.wantsFrame());
    }

    void anotherUrlTakesThePictureAwayAndShowsItsOwn()
    {
        FocusedScene scene;
        scene.fill();
        QVERIFY(scene.show(plainPicture(Qt::red), "first"));
        scene.stage.renderFrame();
        QVERIFY(pictureNode(scene));
        scene.row->setImageSource(HandPictures::url("second"));
        scene.stage.renderFrame();
        QVERIFY(!pictureNode(scene)); // its texture is gone
        QCOMPARE(shownAt(scene, cornerOfTheCard), under(QColor(13, 17, 61, 117), stageGround));
        QVERIFY(scene.arrive(plainPicture(Qt::blue), "second"));
        scene.stage.renderFrame();
        QCOMPARE(shownAt(scene, cornerOfTheCard), under(QColor(13, 17, 61, 117), Qt::blue));
    }

    void aPictureThatIsReadyAtOnceReplacesTheOneBeforeInOneFrame()
    {
        FocusedScene scene;
        scene.fill();
        scene.row->setImageSource(file("red.png", plainPicture(Qt::red)));
        scene.stage.renderFrame();
        QCOMPARE(shownAt(scene, cornerOfTheCard), under(QColor(13, 17, 61, 117), Qt::red));
        scene.row->setImageSource(file("blue.png", plainPicture(Qt::blue)));
        scene.stage.renderFrame();
        QCOMPARE(shownAt(scene, cornerOfTheCard), under(QColor(13, 17, 61, 117), Qt::blue));
        QCOMPARE(scene.children().size(), 5);
    }

    void anEmptyOrBrokenUrlTakesThePictureAway_data()
    {
        QTest::addColumn<QUrl>("url");
        QTest::newRow("empty") << QUrl();
        QTest::newRow("invalid") << QUrl("http://[", QUrl::StrictMode);
        QTest::newRow("missing file") << QUrl("file:///no/such/picture.png");
    }
    void anEmptyOrBrokenUrlTakesThePictureAway()
    {
        QFETCH(QUrl, url);
        FocusedScene scene;
        scene.fill();
        scene.stage.renderFrame();
        const QImage without = scene.stage.picture();
        scene.row->setImageSource(file("red.png", plainPicture(Qt::red)));
        scene.stage.renderFrame();
        QVERIFY(scene.stage.picture() != without);
        scene.row->setImageSource(url);
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), without);
    }

    void aPictureThatArrivesLateIsNotTheOneOfTheUrlSinceThen()
    {
        FocusedScene scene;
        scene.fill();
        scene.row->setImageSource(HandPictures::url("slow"));
        scene.stage.renderFrame();
        QTRY_COMPARE(scene.pictures.requests("slow"), 1);
        scene.row->setImageSource(file("blue.png", plainPicture(Qt::blue)));
        scene.stage.renderFrame();
        static_cast<void>(scene.pictures.waiting("slow")
                          && scene.pictures.deliver("slow", plainPicture(Qt::red)));
        QCoreApplication::processEvents();
        scene.stage.renderFrame();
        QCOMPARE(shownAt(scene, cornerOfTheCard), under(QColor(13, 17, 61, 117), Qt::blue));
    }

    void twoRowsShareOnePicture()
    {
        FocusedScene scene;
        const auto second = scene.qml.createItem<StbEpgViewDelegateFocused>(
                "import Stbui.UI.Qml.Controls.Basic\nEpgViewDelegateFocused { width: 580; y: 40 }",
                scene.stage.contentItem());
        QVERIFY(second);
        scene.fill();
        second->setStyle(&scene.style);
        second->setTitle("Evening film");
        second->setImageSource(HandPictures::url("picture"));
        QVERIFY(scene.show(fieldsPicture()));
        scene.stage.renderFrame();
        QTRY_COMPARE(scene.pictures.requests("picture"), 1);
        QVERIFY(pictureNode(scene));
        scene.row->setImageSource(QUrl()); // the other one keeps it
        scene.stage.renderFrame();
        second->setY(20);
        scene.stage.renderFrame();
        QVERIFY(!pictureNode(scene));
        QCOMPARE(stbtest::childNodes(stbtest::paintNode(second.get())).size(), 5);
    }

    void aRowWithoutAnEngineLoadsNothing()
    {
        stbtest::Stage stage(QSize(640, 440), stageGround);
        StyleObject style;
        style.setStyle(oddEpgStyle());
        StbEpgViewDelegateFocused row;
        row.setParentItem(stage.contentItem());
        row.setWidth(580);
        row.setStyle(&style);
        row.setTitle("Evening news");
        row.setImageSource(file("red.png", plainPicture(Qt::red)));
        row.setImageSource(HandPictures::url("picture"));
        stage.renderFrame();
        QCOMPARE(stbtest::childNodes(stbtest::paintNode(&row)).size(), 4);
    }

    void aRelativeUrlIsTakenFromTheDocument()
    {
        QVERIFY(!file("near.png", plainPicture(Qt::red)).isEmpty());
        FocusedScene scene;
        QQmlContext document(scene.qml.engine()->rootContext());
        document.setBaseUrl(QUrl::fromLocalFile(m_folder.filePath("guide.qml")));
        StbEpgViewDelegateFocused row;
        QQmlEngine::setContextForObject(&row, &document);
        row.setParentItem(scene.stage.contentItem());
        row.setWidth(580);
        row.setStyle(&scene.style);
        row.setTitle("Evening news");
        row.setImageSource(QUrl("near.png"));
        scene.stage.renderFrame();
        QCOMPARE(stbtest::childNodes(stbtest::paintNode(&row)).size(), 5);
    }

    void aRowMayGoWhileItsPictureIsUnderWay()
    {
        FocusedScene scene;
        scene.fill();
        scene.row->setImageSource(HandPictures::url("picture"));
        scene.stage.renderFrame();
        QTRY_COMPARE(scene.pictures.waiting("picture"), 1);
        scene.row.reset();
        QVERIFY(scene.pictures.deliver("picture", fieldsPicture()));
        QCoreApplication::processEvents();
        scene.stage.renderFrame();
        QVERIFY(!scene.stage.wantsFrame());
    }

    void theStyleMovesThePicture()
    {
        FocusedScene scene;
        scene.fill();
        QVERIFY(scene.show(fieldsPicture()));
        scene.stage.renderFrame();
        QSGNode *node = pictureNode(scene);
        StyleObject other;
        other.setStyle(otherEpgStyle());
        scene.row->setStyle(&other);
        scene.stage.renderFrame();
        QCOMPARE(pictureNode(scene), node);
        QCOMPARE(scene.children()[3].rect, QRectF(141, 1, 333, 7));
    }
};

STB_TEST_MAIN(tst_StbEpgViewDelegateFocusedPicture)
#include "tst_stbepgviewdelegatefocusedpicture.moc"
