// SPDX-License-Identifier: MIT
#include "testkit/counters.h"
#include "testkit/fakeplatform.h"
#include "testkit/nodes.h"
#include "testkit/pictures.h"
#include "testkit/qmlscene.h"
#include "testkit/stage.h"
#include "testkit/testcase.h"
#include "toyitem.h"

#include <QtCore/qregularexpression.h>
#include <QtCore/qtemporarydir.h>
#include <QtGui/qpainter.h>
#include <QtQuick/qsgnode.h>

#include <thread>

using stbtest::Stage;

class tst_Kit : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void nodesAreListedParentsFirst();
    void thePixmapOfAnImageNodeIsSeen();
    void nothingHasNoNodes();
    void equalPicturesDoNotDiffer();
    void aDifferenceIsCountedAndPlaced();
    void aTolerableDifferenceIsNotCounted();
    void picturesOfDifferentSizesDiffer();
    void aMissingReferenceIsReportedAndTheActualPictureSaved();
    void anEqualReferencePasses();
    void aDifferentReferenceIsReportedWithItsDifference();
    void aToleranceNeedsAReason();
    void aReferenceIsWrittenOnDemandOnly();
    void objectsAreCountedWithTheirChildren();
    void itemsAreCountedWithTheirChildren();
    void theNodesOfAnItemIncludeItsPlace();
    void createdObjectsAreCountedThoughDeleted();
    void objectsCreatedByAnotherThreadAreNotCounted();
    void paintedPixelsAreThoseOfTheChange();
    void tiledPixmapsAreInForceWhileTheyLive();
    void tiledPixmapsCountWhatIsAsked();
    void tiledPixmapsAnswerBadlyWhenTold();
    void aConfigurationIsInForceWhileItLives();
    void itemsComeFromQmlText();
    void aQmlMistakeIsAWarning();
    void anotherTypeThanAskedForIsAWarning();
};

namespace {

QImage filled(const QSize &size, const QColor &color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

} // namespace

void tst_Kit::nodesAreListedParentsFirst()
{
    Stage stage(QSize(61, 43));
    ToyItem item(ToyItem::NoMistake, stage.contentItem());
    item.setSize(QSizeF(20, 11));
    item.setPictureColor(Qt::yellow);
    stage.renderFrame();
    const QList<stbtest::NodeInfo> tree = stbtest::nodeTree(stbtest::paintNode(&item));
    QCOMPARE(tree.size(), 2);
    QCOMPARE(tree.at(0).type, QStringLiteral("Rectangle"));
    QCOMPARE(tree.at(0).rect, QRectF(0, 0, 20, 11));
    QCOMPARE(tree.at(0).color, QColor(Qt::red));
    QCOMPARE(tree.at(0).depth, 0);
    QCOMPARE(tree.at(1).type, QStringLiteral("Image"));
    QCOMPARE(tree.at(1).rect, QRectF(3, 2, 8, 6));
    QCOMPARE(tree.at(1).depth, 1);
    QCOMPARE(stbtest::childNodes(tree.at(0).node).size(), 1);
    QCOMPARE(stbtest::childNodes(tree.at(0).node).at(0).node, tree.at(1).node);
    QCOMPARE(stbtest::describeNodes(tree.at(0).node),
             QStringLiteral("Rectangle (0,0 20x11) #ffff0000\n  Image (3,2 8x6) pixmap 8x6\n"));
    QCOMPARE(stbtest::nodeTree(stbtest::itemNode(&item)).at(0).type, QStringLiteral("Transform"));
}

void tst_Kit::thePixmapOfAnImageNodeIsSeen()
{
    Stage stage(QSize(61, 43));
    ToyItem item(ToyItem::NoMistake, stage.contentItem());
    item.setSize(QSizeF(20, 11));
    item.setPictureColor(Qt::yellow);
    stage.renderFrame();
    const QPixmap pixmap = stbtest::childNodes(stbtest::paintNode(&item)).at(0).pixmap;
    QCOMPARE(pixmap.size(), QSize(8, 6));
    QCOMPARE(pixmap.toImage().pixelColor(7, 5), QColor(Qt::yellow));
    QVERIFY(stbtest::texturePixmap(nullptr).isNull());
}

void tst_Kit::nothingHasNoNodes()
{
    QVERIFY(stbtest::nodeTree(nullptr).isEmpty());
    QVERIFY(stbtest::childNodes(nullptr).isEmpty());
    QCOMPARE(stbtest::nodeCount(nullptr), 0);
    QCOMPARE(stbtest::describeNodes(nullptr), QString());
}

void tst_Kit::equalPicturesDoNotDiffer()
{
    const QImage a = filled(QSize(7, 5), Qt::red);
    const stbtest::PictureDifference same = stbtest::comparePictures(a,
                                                                     a.convertToFormat(QImage::Format_RGB32));
    QCOMPARE(same.pixels, 0);
    QCOMPARE(same.text(), QString());
    QVERIFY(same.picture.isNull());
}

void tst_Kit::aDifferenceIsCountedAndPlaced()
{
    const QImage a = filled(QSize(7, 5), QColor(100, 100, 100));
    QImage b = a;
    b.setPixelColor(2, 1, QColor(100, 103, 100));
    b.setPixelColor(5, 4, QColor(60, 100, 100));
    const stbtest::PictureDifference difference = stbtest::comparePictures(a, b);
    QCOMPARE(difference.pixels, 2);
    QCOMPARE(difference.largest, 40);
    QCOMPARE(difference.bounds, QRect(2, 1, 4, 4));
    QCOMPARE(difference.picture.pixelColor(2, 1), QColor(Qt::red));
    QVERIFY(difference.picture.pixelColor(3, 1) != QColor(Qt::red));
    QCOMPARE(difference.text(), QStringLiteral("2 pixels differ within (2,1 4x4), by up to 40 of 255"));
}

void tst_Kit::aTolerableDifferenceIsNotCounted()
{
    const QImage a = filled(QSize(7, 5), QColor(100, 100, 100));
    QImage b = a;
    b.setPixelColor(2, 1, QColor(100, 103, 100));
    QCOMPARE(stbtest::comparePictures(a, b, 3).pixels, 0);
    QCOMPARE(stbtest::comparePictures(a, b, 2).pixels, 1);
}

void tst_Kit::picturesOfDifferentSizesDiffer()
{
    const auto difference = stbtest::comparePictures(filled(QSize(7, 5), Qt::red),
                                                     filled(QSize(5, 7), Qt::red));
    QVERIFY(difference.sizesDiffer);
    QCOMPARE(difference.text(), QStringLiteral("the sizes differ"));
}

void tst_Kit::aMissingReferenceIsReportedAndTheActualPictureSaved()
{
    const QTemporaryDir folder;
    const QImage picture = filled(QSize(7, 5), Qt::red);
    const QString report = stbtest::compareWithFile(picture, folder.filePath(QStringLiteral("missing.png")));
    QVERIFY2(report.startsWith(QLatin1String("there is no golden picture ")), qPrintable(report));
    static const QRegularExpression file(QStringLiteral("actual: +([^\n]+\\.png)"));
    QCOMPARE(QImage(file.match(report).captured(1)).size(), QSize(7, 5));
}

void tst_Kit::anEqualReferencePasses()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("same.png"));
    const QImage picture = filled(QSize(7, 5), QColor(1, 2, 3));
    QVERIFY(picture.save(file));
    QCOMPARE(stbtest::compareWithFile(picture, file), QString());
}

void tst_Kit::aDifferentReferenceIsReportedWithItsDifference()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("other.png"));
    QImage picture = filled(QSize(7, 5), QColor(1, 2, 3));
    QVERIFY(picture.save(file));
    picture.setPixelColor(6, 4, Qt::white);
    const QString report = stbtest::compareWithFile(picture, file);
    QVERIFY2(report.contains(QLatin1String("1 pixels differ within (6,4 1x1)")), qPrintable(report));
    QVERIFY2(report.contains(QLatin1String("other-difference.png")), qPrintable(report));
    QCOMPARE(stbtest::compareWithFile(picture, file, { 0, 1, "one pixel is the point of this test" }),
             QString());
}

void tst_Kit::aToleranceNeedsAReason()
{
    const QTemporaryDir folder;
    QCOMPARE(stbtest::compareWithFile(filled(QSize(1, 1), Qt::red), folder.filePath(QStringLiteral("x.png")),
                                      { 1, 0, "" }),
             QStringLiteral("a tolerance needs its reason"));
}

void tst_Kit::aReferenceIsWrittenOnDemandOnly()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("deeper/new.png"));
    const QImage picture = filled(QSize(7, 5), Qt::red);
    QVERIFY(!stbtest::compareWithFile(picture, file).isEmpty());
    QVERIFY(!QFile::exists(file));
    qputenv("STBTEST_UPDATE_GOLDEN", "1");
    const QString report = stbtest::compareWithFile(picture, file);
    qunsetenv("STBTEST_UPDATE_GOLDEN");
    QCOMPARE(report, QString());
    QCOMPARE(QImage(file).pixelColor(6, 4), QColor(Qt::red));
}

void tst_Kit::objectsAreCountedWithTheirChildren()
{
    QObject object;
    auto *child = new QObject(&object);
    new QObject(child);
    new QObject(&object);
    QCOMPARE(stbtest::objectCount(&object), 4);
}

void tst_Kit::itemsAreCountedWithTheirChildren()
{
    QQuickItem item;
    QQuickItem child(&item);
    QQuickItem grandchild(&child);
    new QObject(&item);
    QCOMPARE(stbtest::itemCount(&item), 3);
    QCOMPARE(stbtest::itemCount(&grandchild), 1);
}

void tst_Kit::theNodesOfAnItemIncludeItsPlace()
{
    Stage stage(QSize(61, 43));
    ToyItem item(ToyItem::NoMistake, stage.contentItem());
    item.setSize(QSizeF(20, 11));
    QCOMPARE(stbtest::itemNodeCount(&item), 0);
    stage.renderFrame();
    QCOMPARE(stbtest::itemNodeCount(&item), 2);
    item.setPictureColor(Qt::yellow);
    stage.renderFrame();
    QCOMPARE(stbtest::itemNodeCount(&item), 3);
}

void tst_Kit::createdObjectsAreCountedThoughDeleted()
{
    QCOMPARE(stbtest::objectsCreated([] {}), 0);
    QCOMPARE(stbtest::objectsCreated([] {
                 const QObject first;
                 const QObject second;
             }),
             2);
    const QObject uncounted;
    QCOMPARE(stbtest::objectsCreated([] {}), 0);
}

void tst_Kit::objectsCreatedByAnotherThreadAreNotCounted()
{
    QCOMPARE(stbtest::objectsCreated([] {
                 const QObject counted;
                 std::thread([] { const QObject uncounted; }).join();
             }),
             1);
}

void tst_Kit::paintedPixelsAreThoseOfTheChange()
{
    Stage stage(QSize(61, 43));
    ToyItem item(ToyItem::NoMistake, stage.contentItem());
    item.setSize(QSizeF(20, 11));
    QCOMPARE(stbtest::pixelsPainted(stage, [] {}), 0);
    QCOMPARE(stbtest::pixelsPainted(stage, [&item] { item.setColor(Qt::blue); }), 220);
    QCOMPARE(stbtest::pixelsPainted(stage, [&item] { item.setPictureColor(Qt::yellow); }), 48);
}

void tst_Kit::tiledPixmapsAreInForceWhileTheyLive()
{
    QVERIFY(!stbcore::platformNativeInterface());
    {
        stbtest::TiledPixmaps outer;
        QCOMPARE(stbcore::platformNativeInterface(), &outer);
        {
            const stbtest::TiledPixmaps inner;
            QCOMPARE(stbcore::platformNativeInterface(), &inner);
        }
        QCOMPARE(stbcore::platformNativeInterface(), &outer);
        QVERIFY(outer.isTiledPixmapAvailable());
        outer.setAvailable(false);
        QVERIFY(!outer.isTiledPixmapAvailable());
    }
    QVERIFY(!stbcore::platformNativeInterface());
}

void tst_Kit::tiledPixmapsCountWhatIsAsked()
{
    stbtest::TiledPixmaps tiles;
    QPixmap pixmap = tiles.createTiledPixmap(QSize(7, 5), [](QPainter &painter) {
        painter.fillRect(0, 0, 3, 5, Qt::green);
    });
    QCOMPARE(pixmap.size(), QSize(7, 5));
    QCOMPARE(pixmap.toImage().pixelColor(2, 4), QColor(Qt::green));
    QCOMPARE(pixmap.toImage().pixelColor(3, 4), QColor(Qt::magenta));
    QCOMPARE(tiles.created(), QList<QSize> { QSize(7, 5) });
    QCOMPARE(tiles.setUps(), 0);
    QPainter painter(&pixmap);
    tiles.setupPainterForTiledPixmap(pixmap, painter);
    QCOMPARE(tiles.setUps(), 1);
    QCOMPARE(tiles.lastSetUpKey(), pixmap.cacheKey());
    painter.end();
    QTest::ignoreMessage(QtWarningMsg, "A painter is set up that is not open on the tiled pixmap");
    tiles.setupPainterForTiledPixmap(pixmap, painter);
}

void tst_Kit::tiledPixmapsAnswerBadlyWhenTold()
{
    stbtest::TiledPixmaps tiles;
    tiles.setAnswer(stbtest::TiledPixmaps::Answer::Null);
    QVERIFY(tiles.createTiledPixmap(QSize(7, 5), {}).isNull());
    tiles.setAnswer(stbtest::TiledPixmaps::Answer::WrongSize);
    QCOMPARE(tiles.createTiledPixmap(QSize(7, 5), {}).size(), QSize(9, 4));
    tiles.setAnswer(stbtest::TiledPixmaps::Answer::Right);
    QCOMPARE(tiles.createTiledPixmap(QSize(7, 5), {}).size(), QSize(7, 5));
    QCOMPARE(tiles.created().size(), 3);
}

void tst_Kit::aConfigurationIsInForceWhileItLives()
{
    stbconfig::ConfigurationManager *before = stbconfig::qmlConfigManager();
    {
        stbtest::MemoryConfiguration configuration;
        QCOMPARE(stbconfig::qmlConfigManager(), &configuration);
        configuration.setValue(QStringLiteral("UI"), QStringLiteral("roundingEnabled"), false);
        QCOMPARE(configuration.value(QStringLiteral("UI"), QStringLiteral("roundingEnabled"), true),
                 QVariant(false));
        QCOMPARE(configuration.value(QStringLiteral("Ui"), QStringLiteral("roundingEnabled"), 7), QVariant(7));
        QCOMPARE(configuration.readings(), 2);
    }
    QCOMPARE(stbconfig::qmlConfigManager(), before);
}

void tst_Kit::itemsComeFromQmlText()
{
    Stage stage(QSize(61, 43));
    stbtest::QmlScene scene;
    const auto item = scene.createItem(QStringLiteral(
                                               "import QtQuick\nRectangle { color: \"blue\"; width: 20; "
                                               "height: 11; Item {} }"),
                                       stage.contentItem());
    QVERIFY(item);
    QCOMPARE(scene.errorString(), QString());
    QCOMPARE(qmlEngine(item.get()), scene.engine());
    QCOMPARE(stage.renderFrame(), QRegion(0, 0, 61, 43));
    QCOMPARE(stage.picture().pixelColor(19, 10), QColor(Qt::blue));
    QCOMPARE(stbtest::itemCount(item.get()), 2);
}

void tst_Kit::aQmlMistakeIsAWarning()
{
    stbtest::QmlScene scene;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("text.qml:2.*Rectagle")));
    QVERIFY(!scene.createItem(QStringLiteral("import QtQuick\nRectagle {}")));
    QVERIFY(scene.errorString().contains(QLatin1String("Rectagle")));
}

void tst_Kit::anotherTypeThanAskedForIsAWarning()
{
    stbtest::QmlScene scene;
    QTest::ignoreMessage(QtWarningMsg, "the QML text describes a QQuickItem");
    QVERIFY(!scene.createItem<ToyItem>(QStringLiteral("import QtQuick\nItem {}")));
}

STB_TEST_MAIN(tst_Kit)
#include "tst_kit.moc"
