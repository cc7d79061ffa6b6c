// SPDX-License-Identifier: MIT
#include "scenegraph/childnodes.h"
#include "scenegraph/nodehelpers.h"
#include "scenegraph/picture.h"
#include "softwarescene.h"
#include "testkit/handpictures.h"
#include "testkit/nodes.h"
#include "testkit/qmlscene.h"
#include "testkit/stage.h"

#include <QtCore/qbuffer.h>
#include <QtCore/qregularexpression.h>
#include <QtCore/qscopeguard.h>
#include <QtCore/qtemporarydir.h>
#include <QtGui/qimagereader.h>
#include <QtNetwork/qnetworkaccessmanager.h>
#include <QtQml/qqmlcontext.h>
#include <QtQml/qqmlnetworkaccessmanagerfactory.h>
#include <QtQuick/private/qquickpixmapcache_p.h>

using namespace qml_basic_plugin;

namespace {

// An item with one picture below a root node, and a mark behind it.
class PictureItem : public QQuickItem
{
    Q_OBJECT
public:
    PictureItem() { setFlag(ItemHasContents); }

    bool load(const QUrl &url) { return picture.load(this, url, SLOT(finished())); }

    Picture picture;
    int finishedCount = 0;
    bool present = false;
    QSGImageNode *node = nullptr;

public Q_SLOTS:
    void finished()
    {
        ++finishedCount;
        update();
    }

protected:
    QSGNode *updatePaintNode(QSGNode *root, UpdatePaintNodeData *) override
    {
        QSGContext *context = QQuickItemPrivate::get(this)->sceneGraphContext();
        if (!root) {
            present = false;
            root = createRoot(context);
        }
        ChildNodes children(root);
        QSGTexture *texture = picture.texture(QQuickItemPrivate::get(this)->sceneGraphRenderContext(),
                                              window());
        node = picture.placeNode(children, present, context, texture);
        if (node)
            setNodeRect(node, QRectF(QPointF(), picture.size()));
        return root;
    }

private:
    static QSGNode *createRoot(QSGContext *context)
    {
        QSGRectangleNode *root = createRectangleNode(context, Qt::transparent, nullptr, nullptr);
        createRectangleNode(context, Qt::red, root, nullptr)->setRect(90, 90, 9, 9);
        return root;
    }
};

// Counts how often an engine goes to the network.
class Network : public QQmlNetworkAccessManagerFactory
{
public:
    QNetworkAccessManager *create(QObject *parent) override
    {
        ++created;
        return new QNetworkAccessManager(parent);
    }
    QAtomicInt created = 0;
};

struct Scene
{
    Scene()
    {
        qml.engine()->setNetworkAccessManagerFactory(&network);
        QQmlEngine::setContextForObject(&item, qml.engine()->rootContext());
        item.setParentItem(stage.contentItem());
        stage.renderFrame();
    }
    bool show(const QImage &image, const QString &name = "a")
    {
        return item.load(stbtest::HandPictures::url(name)) && arrive(image, name);
    }
    bool arrive(const QImage &image, const QString &name = "a")
    {
        const int before = item.finishedCount;
        const bool arrived = pictures.deliver(name, image)
                             && QTest::qWaitFor([&] { return item.finishedCount > before; });
        stage.renderFrame();
        return arrived;
    }
    QColor pixel(int x, int y) { return stage.picture().pixelColor(x, y); }

    Network network;
    stbtest::QmlScene qml;
    stbtest::HandPictures pictures { qml.engine() };
    stbtest::Stage stage { QSize(100, 100) };
    PictureItem item;
};

const QSize size(41, 23);

} // namespace

// What may happen between a load and its picture: broken files, loads given up, items that go.
class tst_PictureLoads : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void itIsShownWhenItHasArrived()
    {
        Scene scene;
        QVERIFY(scene.item.load(stbtest::HandPictures::url("a")));
        QVERIFY(scene.item.picture.size().isEmpty());
        scene.stage.renderFrame();
        QVERIFY(!scene.item.node);
        QVERIFY(scene.arrive(filled(size, Qt::blue)));
        QCOMPARE(scene.item.picture.size(), size);
        QCOMPARE(scene.item.finishedCount, 1);
        QVERIFY(scene.item.node);
        QVERIFY(!scene.item.node->ownsTexture());
        QCOMPARE(scene.pixel(40, 22), QColor(Qt::blue));
        QCOMPARE(scene.pixel(41, 22), QColor(Qt::white));
    }

    void itsNodeStandsAtItsPlace()
    {
        Scene scene;
        QVERIFY(scene.show(filled(size, Qt::blue)));
        QStringList types;
        for (const stbtest::NodeInfo &info : stbtest::childNodes(stbtest::paintNode(&scene.item)))
            types += info.type;
        QCOMPARE(types, (QStringList { "Image", "Rectangle" }));
    }

    void itIsAskedForInItsOwnSize()
    {
        Scene scene;
        QVERIFY(scene.show(filled(size, Qt::blue)));
        QCOMPARE(scene.pictures.requestedSize("a"), QSize(-1, -1));
    }

    void anEmptyOrInvalidUrlLoadsNothing_data()
    {
        QTest::addColumn<QUrl>("url");
        QTest::newRow("empty") << QUrl();
        QTest::newRow("invalid") << QUrl("http://[no");
    }
    void anEmptyOrInvalidUrlLoadsNothing()
    {
        QFETCH(QUrl, url);
        Scene scene;
        QVERIFY(!scene.item.load(url));
        QVERIFY(scene.show(filled(size, Qt::blue))); // the loader has been busy since
        QCOMPARE(scene.item.finishedCount, 1);
        QCOMPARE(scene.network.created.loadRelaxed(), 0);
        QVERIFY(!scene.item.load(url));
        scene.stage.renderFrame();
        QVERIFY(!scene.item.node);
    }

    void aNewLoadDropsThePictureAtOnce()
    {
        Scene scene;
        QVERIFY(scene.show(filled(size, Qt::blue)));
        QVERIFY(scene.item.load(stbtest::HandPictures::url("b")));
        QVERIFY(scene.item.picture.size().isEmpty());
        scene.stage.renderFrame();
        QVERIFY(!scene.item.node);
        QCOMPARE(scene.pixel(9, 9), QColor(Qt::white));
    }

    void theEndOfALoadThatWasGivenUpIsNotHeard()
    {
        Scene scene;
        QVERIFY(scene.item.load(stbtest::HandPictures::url("a")));
        QTRY_COMPARE(scene.pictures.waiting("a"), 1);
        QVERIFY(scene.item.load(stbtest::HandPictures::url("b")));
        scene.pictures.deliver("a", filled(size, Qt::red));
        QVERIFY(scene.arrive(filled(size, Qt::blue), "b"));
        QCOMPARE(scene.item.finishedCount, 1);
        QCOMPARE(scene.pixel(9, 9), QColor(Qt::blue));
    }

    void aPictureThatCannotBeLoadedEndsTheLoadAndStaysEmpty_data()
    {
        QTest::addColumn<QByteArray>("content");
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        filled(size, Qt::blue).save(&buffer, "PNG");
        QTest::newRow("missing") << QByteArray();
        QTest::newRow("no picture") << QByteArray("This is not a picture at all");
        QTest::newRow("a header alone") << png.left(33);
        QTest::newRow("a wrong length") << png.left(16) + QByteArray(4, char(0x7f)) + png.mid(20);
    }
    void aPictureThatCannotBeLoadedEndsTheLoadAndStaysEmpty()
    {
        QFETCH(QByteArray, content);
        const QTemporaryDir folder;
        const QString path = folder.filePath("a.png");
        if (!content.isEmpty()) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        }
        Scene scene;
        QVERIFY(scene.item.load(QUrl::fromLocalFile(path)));
        QTRY_COMPARE(scene.item.finishedCount, 1);
        scene.stage.renderFrame();
        QVERIFY(!scene.item.node);
        QVERIFY(scene.item.picture.size().isEmpty());
    }

    void aPictureAboveTheMemoryLimitStaysEmpty()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("huge.png");
        QVERIFY(filled(QSize(2001, 1001), Qt::blue).save(path));
        const int limit = QImageReader::allocationLimit();
        QImageReader::setAllocationLimit(1); // MiB; the picture takes almost eight
        const auto restore = qScopeGuard([limit] { QImageReader::setAllocationLimit(limit); });
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("exceeds the current allocation limit"));
        Scene scene;
        QVERIFY(scene.item.load(QUrl::fromLocalFile(path)));
        QTRY_COMPARE(scene.item.finishedCount, 1);
        scene.stage.renderFrame();
        QVERIFY(!scene.item.node);
    }

    void aProviderWithoutThePictureEndsTheLoad()
    {
        Scene scene;
        QVERIFY(scene.show(QImage()));
        QCOMPARE(scene.item.finishedCount, 1);
        QVERIFY(!scene.item.node);
        QVERIFY(scene.item.load(QUrl("image://nobody/a")));
        QTRY_COMPARE(scene.item.finishedCount, 2);
    }

    void theNodeIsKeptWhileThePictureIsTheSame()
    {
        Scene scene;
        QVERIFY(scene.show(filled(size, Qt::blue)));
        const QSGImageNode *node = scene.item.node;
        scene.item.update();
        QVERIFY(scene.stage.renderFrame().isEmpty());
        QCOMPARE(scene.item.node, node);
    }

    void aPictureThatIsReadyAtOnceGetsANewNodeInTheNextFrame()
    {
        // The one kind of URL that Qt Quick looks up among the pictures in memory.
        const QQuickPixmap red(QUrl("itemgrabber:red"), filled(size, Qt::red));
        const QQuickPixmap blue(QUrl("itemgrabber:blue"), filled(size, Qt::blue));
        Scene scene;
        QVERIFY(!scene.item.load(QUrl("itemgrabber:red")));
        QCOMPARE(scene.item.picture.size(), size);
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(9, 9), QColor(Qt::red));
        QVERIFY(!scene.item.load(QUrl("itemgrabber:blue")));
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(9, 9), QColor(Qt::blue));
        QCOMPARE(scene.item.finishedCount, 0);
    }

    void anItemMayGoWhileItsPictureLoads()
    {
        Scene scene;
        auto item = std::make_unique<PictureItem>();
        QQmlEngine::setContextForObject(item.get(), scene.qml.engine()->rootContext());
        item->setParentItem(scene.stage.contentItem());
        QVERIFY(item->load(stbtest::HandPictures::url("late")));
        QTRY_COMPARE(scene.pictures.waiting("late"), 1);
        item.reset();
        scene.pictures.deliver("late", filled(size, Qt::red));
        QVERIFY(scene.show(filled(size, Qt::blue)));
        QCOMPARE(scene.pixel(9, 9), QColor(Qt::blue));
    }

    void anItemMayGoWithItsPictureShown()
    {
        Scene scene;
        auto item = std::make_unique<PictureItem>();
        QQmlEngine::setContextForObject(item.get(), scene.qml.engine()->rootContext());
        item->setParentItem(scene.stage.contentItem());
        QVERIFY(item->load(stbtest::HandPictures::url("a")));
        QVERIFY(scene.pictures.deliver("a", filled(size, Qt::red)));
        QTRY_COMPARE(item->finishedCount, 1);
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(9, 9), QColor(Qt::red));
        item.reset();
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(9, 9), QColor(Qt::white));
    }

    void aHiddenItemLosesItsOldNodeToo()
    {
        Scene scene;
        QVERIFY(scene.show(filled(size, Qt::red)));
        scene.item.setVisible(false);
        scene.stage.renderFrame();
        QVERIFY(scene.item.load(stbtest::HandPictures::url("b")));
        scene.stage.renderFrame();
        QVERIFY(!scene.item.node);
        QVERIFY(scene.arrive(filled(size, Qt::blue), "b"));
        scene.item.setVisible(true);
        scene.stage.renderFrame();
        QCOMPARE(scene.pixel(9, 9), QColor(Qt::blue));
    }

    void itsNodeScalesSmoothly()
    {
        Scene scene;
        QVERIFY(scene.show(filled(size, Qt::blue)));
        QCOMPARE(scene.item.node->filtering(), QSGTexture::Linear);
    }
};

STB_TEST_MAIN(tst_PictureLoads)
#include "tst_pictureloads.moc"
