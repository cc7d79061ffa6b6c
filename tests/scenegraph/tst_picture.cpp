// SPDX-License-Identifier: MIT
#include "testkit/handpictures.h"
#include "testkit/nodes.h"
#include "testkit/stage.h"
#include "testkit/testcase.h"

#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"
#include "scenegraph/picture.h"

#include <QtCore/qtemporarydir.h>
#include <QtQml/qqmlcontext.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/private/qquickitem_p.h>
#include <QtQuick/private/qsgcontext_p.h>

using qml_basic_plugin::ChildNodes;
using qml_basic_plugin::Picture;
using stbtest::HandPictures;
using stbtest::NodeInfo;
using Loading = Picture::Loading;

namespace {

const QSize pictureSize(23, 17);

QImage plain(const QColor &color)
{
    QImage image(pictureSize, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

} // namespace

// An item that paints one picture over its whole size.
class PictureItem : public QQuickItem
{
    Q_OBJECT
public:
    PictureItem() { setFlag(ItemHasContents); }

    bool load(const QUrl &url, Loading loading) { return picture.load(this, url, SLOT(arrive()), loading); }
    QSGTexture *texture()
    {
        return picture.texture(QQuickItemPrivate::get(this)->sceneGraphRenderContext(), window());
    }
    QList<NodeInfo> nodes() { return stbtest::childNodes(stbtest::paintNode(this)); }

    Picture picture;
    int arrivals = 0;

public Q_SLOTS:
    void arrive()
    {
        ++arrivals;
        update();
    }

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *) override
    {
        QSGContext *context = QQuickItemPrivate::get(this)->sceneGraphContext();
        QSGNode *root = oldNode ? oldNode
                                : qml_basic_plugin::createRectangleNode(context, Qt::transparent, nullptr,
                                                                        nullptr);
        ChildNodes children(root);
        if (QSGImageNode *node = picture.placeNode(children, m_present, context, texture()))
            qml_basic_plugin::setNodeRect(node, boundingRect());
        return root;
    }

private:
    bool m_present = false;
};

namespace {

// A stage with two items side by side and an engine whose pictures arrive when the test says so.
struct Scene
{
    Scene()
    {
        int left = 10;
        for (PictureItem *item : { &first, &second }) {
            QQmlEngine::setContextForObject(item, engine.rootContext());
            item->setParentItem(stage.contentItem());
            item->setPosition(QPointF(left, 10));
            item->setSize(pictureSize);
            left += 50;
        }
    }
    bool arrive(const QString &name, const QImage &picture)
    {
        const int before = first.arrivals + second.arrivals;
        return pictures.deliver(name, picture)
               && QTest::qWaitFor([&] { return first.arrivals + second.arrivals > before; });
    }
    QColor shown(const PictureItem &item)
    {
        return stage.picture().pixelColor(item.position().toPoint() + QPoint(11, 8));
    }

    QQmlEngine engine;
    HandPictures pictures { &engine };
    stbtest::Stage stage { QSize(100, 40) };
    PictureItem first;
    PictureItem second;
};

} // namespace

class tst_Picture : public stbtest::TestCase
{
    Q_OBJECT
    QTemporaryDir m_folder;
    QUrl m_file;

private Q_SLOTS:
    void initTestCase()
    {
        const QString path = m_folder.filePath(QStringLiteral("red.png"));
        QVERIFY(plain(Qt::red).save(path));
        m_file = QUrl::fromLocalFile(path);
    }

    void aFileInTheBackgroundIsReadByTheLoader()
    {
        Scene scene;
        QVERIFY(scene.first.load(m_file, Loading::Background));
        QVERIFY(scene.first.picture.size().isEmpty());
        QTRY_COMPARE(scene.first.arrivals, 1);
        QCOMPARE(scene.first.picture.size(), pictureSize);
        scene.stage.renderFrame();
        QCOMPARE(scene.shown(scene.first), QColor(Qt::red));
    }

    void theBackgroundIsTheDefault()
    {
        Scene scene;
        QVERIFY(scene.first.picture.load(&scene.first, m_file, SLOT(arrive())));
        QTRY_COMPARE(scene.first.arrivals, 1);
    }

    void aCachedFileIsReadyAtOnce()
    {
        Scene scene;
        QVERIFY(!scene.first.load(m_file, Loading::Cached));
        QCOMPARE(scene.first.picture.size(), pictureSize);
        scene.stage.renderFrame();
        QCOMPARE(scene.shown(scene.first), QColor(Qt::red));
        QCoreApplication::processEvents();
        QCOMPARE(scene.first.arrivals, 0); // there was nothing to wait for
    }

    void aCachedPictureThatTakesTimeCallsBack()
    {
        Scene scene;
        QVERIFY(scene.first.load(HandPictures::url("slow"), Loading::Cached));
        scene.stage.renderFrame();
        QCOMPARE(scene.first.nodes().size(), 0);
        QVERIFY(scene.arrive("slow", plain(Qt::blue)));
        QCOMPARE(scene.first.arrivals, 1);
        scene.stage.renderFrame();
        QCOMPARE(scene.shown(scene.first), QColor(Qt::blue));
    }

    void aLoadThatFailsLeavesNoPicture_data()
    {
        QTest::addColumn<int>("loading");
        QTest::newRow("background") << int(Loading::Background);
        QTest::newRow("cached") << int(Loading::Cached);
    }
    void aLoadThatFailsLeavesNoPicture()
    {
        QFETCH(int, loading);
        Scene scene;
        QVERIFY(scene.first.load(HandPictures::url("none"), Loading(loading)));
        QVERIFY(scene.arrive("none", QImage()));
        scene.stage.renderFrame();
        QVERIFY(scene.first.picture.size().isEmpty());
        QCOMPARE(scene.first.nodes().size(), 0);
    }

    void aCachedFileThatIsMissingLeavesNoPicture()
    {
        Scene scene;
        QVERIFY(!scene.first.load(QUrl::fromLocalFile(m_folder.filePath("none.png")), Loading::Cached));
        scene.stage.renderFrame();
        QCOMPARE(scene.first.nodes().size(), 0);
        QCOMPARE(scene.first.arrivals, 0);
    }

    void aCachedPictureIsAskedForOnceAndShared()
    {
        Scene scene;
        const QUrl url = HandPictures::url("shared");
        QVERIFY(scene.first.load(url, Loading::Cached));
        QVERIFY(scene.second.load(url, Loading::Cached)); // joins the load that is under way
        QVERIFY(scene.arrive("shared", plain(Qt::green)));
        QTRY_COMPARE(scene.second.arrivals, 1);
        QCOMPARE(scene.pictures.requests("shared"), 1);
        scene.stage.renderFrame();
        QCOMPARE(scene.shown(scene.second), QColor(Qt::green));
        QVERIFY(scene.first.texture());
        QCOMPARE(scene.first.texture(), scene.second.texture());
    }

    void aPictureThatIsThereAlreadyIsReadyAtOnce()
    {
        Scene scene;
        const QUrl url = HandPictures::url("there");
        QVERIFY(scene.first.load(url, Loading::Cached));
        QVERIFY(scene.arrive("there", plain(Qt::green)));
        QVERIFY(!scene.second.load(url, Loading::Cached));
        QCOMPARE(scene.second.picture.size(), pictureSize);
        QCOMPARE(scene.pictures.requests("there"), 1);
    }

    void aPictureInTheBackgroundIsNotShared()
    {
        Scene scene;
        const QUrl url = HandPictures::url("apart");
        QVERIFY(scene.first.load(url, Loading::Background));
        QVERIFY(scene.second.load(url, Loading::Background));
        QTRY_COMPARE(scene.pictures.requests("apart"), 2);
        QVERIFY(scene.arrive("apart", plain(Qt::green)));
        QTRY_COMPARE(scene.first.arrivals + scene.second.arrivals, 2);
        scene.stage.renderFrame();
        QVERIFY(scene.first.texture() != scene.second.texture());
    }

    void whoGoesOnToAnotherPictureLeavesTheSharedOneToTheOthers()
    {
        Scene scene;
        const QUrl url = HandPictures::url("kept");
        QVERIFY(scene.first.load(url, Loading::Cached));
        QVERIFY(scene.arrive("kept", plain(Qt::green)));
        QVERIFY(!scene.second.load(url, Loading::Cached));
        scene.stage.renderFrame();
        QVERIFY(!scene.first.load(m_file, Loading::Cached));
        scene.stage.renderFrame();
        scene.second.setX(70); // painted again, from the picture of before
        scene.stage.renderFrame();
        QCOMPARE(scene.shown(scene.first), QColor(Qt::red));
        QCOMPARE(scene.shown(scene.second), QColor(Qt::green));
    }

    void everyLoadAsksForAFrameAndTheNodeOfBeforeGoes_data()
    {
        QTest::addColumn<int>("loading");
        QTest::addColumn<int>("nodes");
        QTest::newRow("background") << int(Loading::Background) << 0;
        QTest::newRow("cached") << int(Loading::Cached) << 1;
    }
    void everyLoadAsksForAFrameAndTheNodeOfBeforeGoes()
    {
        QFETCH(int, loading);
        QFETCH(int, nodes);
        Scene scene;
        if (scene.first.load(m_file, Loading(loading)))
            QTRY_COMPARE(scene.first.arrivals, 1);
        scene.stage.renderFrame();
        QCOMPARE(scene.first.nodes().size(), 1);
        QVERIFY(!scene.stage.wantsFrame());
        scene.first.load(m_file, Loading(loading));
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        QCOMPARE(scene.first.nodes().size(), nodes);
    }

    void aReloadIsToldOnce()
    {
        Scene scene;
        QVERIFY(!scene.first.picture.takeReloaded());
        scene.first.load(m_file, Loading::Cached);
        QVERIFY(scene.first.picture.takeReloaded());
        QVERIFY(!scene.first.picture.takeReloaded());
    }

    void nothingIsLoadedWithoutAnEngineOrAUrl_data()
    {
        QTest::addColumn<int>("loading");
        QTest::newRow("background") << int(Loading::Background);
        QTest::newRow("cached") << int(Loading::Cached);
    }
    void nothingIsLoadedWithoutAnEngineOrAUrl()
    {
        QFETCH(int, loading);
        PictureItem apart;
        QVERIFY(!apart.load(m_file, Loading(loading)));
        QVERIFY(!apart.load(HandPictures::url("any"), Loading(loading)));
        QVERIFY(apart.picture.size().isEmpty());

        Scene scene;
        scene.first.load(m_file, Loading(loading));
        QVERIFY(!scene.first.load(QUrl(), Loading(loading)));
        QVERIFY(scene.first.picture.size().isEmpty());
        QVERIFY(!scene.first.load(QUrl("http://[", QUrl::StrictMode), Loading(loading)));
        scene.stage.renderFrame();
        QCOMPARE(scene.first.nodes().size(), 0);
    }

    void aRelativeUrlIsTakenFromTheDocument()
    {
        Scene scene;
        QQmlContext document(scene.engine.rootContext());
        document.setBaseUrl(QUrl::fromLocalFile(m_folder.filePath("row.qml")));
        PictureItem item;
        QQmlEngine::setContextForObject(&item, &document);
        QVERIFY(!item.load(QUrl("red.png"), Loading::Cached));
        QCOMPARE(item.picture.size(), pictureSize);
    }
};

STB_TEST_MAIN(tst_Picture)
#include "tst_picture.moc"
