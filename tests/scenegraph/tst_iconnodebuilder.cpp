// SPDX-License-Identifier: MIT
#include "softwarescene.h"

#include <QtCore/qtemporarydir.h>
#include <QtGui/qpixmapcache.h>
#include <scenegraph/iconnodebuilder.h>

using qml_basic_plugin::IconNodeBuilder;

class tst_IconNodeBuilder : public stbtest::TestCase
{
    Q_OBJECT

    SoftwareScene m_scene;
    QTemporaryDir m_dir;

    QString write(const QString &name, const QImage &image)
    {
        const QString path = m_dir.filePath(name);
        if (!image.save(path))
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }

    static QImage pixels(std::initializer_list<QRgb> values)
    {
        QImage image(int(values.size()), 1, QImage::Format_ARGB32);
        int x = 0;
        for (const QRgb value : values)
            image.setPixel(x++, 0, value);
        return image;
    }

    static QRgb pixel(const QPixmap &pixmap, int x)
    {
        return pixmap.toImage().convertToFormat(QImage::Format_ARGB32).pixel(x, 0);
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        QPixmapCache::clear();
    }

    void aFreshBuilderHasNoIcon()
    {
        IconNodeBuilder icon;
        QVERIFY(icon.pixmap().isNull());
        QVERIFY(icon.source().isEmpty());
        QVERIFY(!icon.isLoaded());
        QVERIFY(!icon.isLoadAttempted());
    }

    void loadingReadsTheFile()
    {
        IconNodeBuilder icon;
        const QString path = write("a.png", filled({ 7, 5 }, Qt::green));
        icon.load(path, QColor());
        QCOMPARE(icon.source(), path);
        QVERIFY(icon.isLoaded());
        QVERIFY(icon.isLoadAttempted());
        QCOMPARE(icon.pixmap().size(), QSize(7, 5));
        QCOMPARE(pixel(icon.pixmap(), 3), QColor(Qt::green).rgba());
    }

    void theSameSourceWithAnotherColourChangesNothing()
    {
        IconNodeBuilder icon;
        const QString path = write("a.png", filled({ 7, 5 }, Qt::green));
        icon.load(path, QColor());
        const qint64 key = icon.pixmap().cacheKey();
        icon.load(path, Qt::red);
        QCOMPARE(icon.pixmap().cacheKey(), key);
        QCOMPARE(pixel(icon.pixmap(), 0), QColor(Qt::green).rgba());
    }

    void anEmptySourceClearsTheIconAndTellsTheNode()
    {
        IconNodeBuilder icon;
        const auto node = m_scene.imageNode();
        icon.load(write("a.png", filled({ 7, 5 }, Qt::green)), QColor());
        icon.updateNode(node.get(), nullptr);
        QVERIFY(!shownPixmap(node.get()).isNull());

        icon.load(QString(), QColor());
        QVERIFY(icon.pixmap().isNull());
        QVERIFY(!icon.isLoadAttempted());
        icon.updateNode(node.get(), nullptr);
        QVERIFY(shownPixmap(node.get()).isNull());
    }

    void aSecondSourceKeepsTheFirstPicture()
    {
        IconNodeBuilder icon;
        icon.load(write("a.png", filled({ 7, 5 }, Qt::green)), QColor());
        const QString second = write("b.png", filled({ 3, 9 }, Qt::blue));
        icon.load(second, QColor());
        QCOMPARE(icon.source(), second);
        QCOMPARE(icon.pixmap().size(), QSize(7, 5));
        QVERIFY(icon.isLoaded());
    }

    void afterAnEmptySourceTheNextOneIsRead()
    {
        IconNodeBuilder icon;
        icon.load(write("a.png", filled({ 7, 5 }, Qt::green)), QColor());
        icon.load(QString(), QColor());
        icon.load(write("b.png", filled({ 3, 9 }, Qt::blue)), QColor());
        QCOMPARE(icon.pixmap().size(), QSize(3, 9));
    }

    void aFileThatCannotBeReadLeavesNoIcon()
    {
        IconNodeBuilder icon;
        icon.load(m_dir.filePath("missing.png"), Qt::red);
        QVERIFY(icon.pixmap().isNull());
        QVERIFY(!icon.isLoaded());
        QVERIFY(icon.isLoadAttempted());
        const auto node = m_scene.imageNode(filled({ 2, 2 }, Qt::red));
        icon.updateNode(node.get(), nullptr);
        QVERIFY(shownPixmap(node.get()).isNull());
    }

    void tintingFollowsThePixelRule_data()
    {
        QTest::addColumn<QRgb>("source");
        QTest::addColumn<QRgb>("tint");
        QTest::addColumn<QRgb>("result");
        QTest::newRow("half-transparent white, opaque red")
                << qRgba(255, 255, 255, 128) << qRgba(255, 0, 0, 255) << qRgba(255, 0, 0, 128);
        QTest::newRow("both half transparent: 64.25 is cut to 64")
                << qRgba(255, 255, 255, 128) << qRgba(255, 0, 0, 128) << qRgba(255, 0, 0, 64);
        QTest::newRow("opaque black stays")
                << qRgba(0, 0, 0, 255) << qRgba(255, 0, 0, 255) << qRgba(0, 0, 0, 255);
        QTest::newRow("transparent black stays")
                << qRgba(0, 0, 0, 0) << qRgba(255, 0, 0, 255) << qRgba(0, 0, 0, 0);
        QTest::newRow("half-transparent black stays")
                << qRgba(0, 0, 0, 100) << qRgba(255, 0, 0, 255) << qRgba(0, 0, 0, 100);
        QTest::newRow("almost black is tinted")
                << qRgba(0, 0, 1, 255) << qRgba(0, 255, 0, 255) << qRgba(0, 255, 0, 255);
    }
    void tintingFollowsThePixelRule()
    {
        QFETCH(QRgb, source);
        QFETCH(QRgb, tint);
        QFETCH(QRgb, result);
        IconNodeBuilder icon;
        icon.load(write(QStringLiteral("p%1.png").arg(source), pixels({ source, source })),
                  QColor::fromRgba(tint));
        QCOMPARE(pixel(icon.pixmap(), 0), result);
        QCOMPARE(pixel(icon.pixmap(), 1), result);
    }

    void tintedIconsAreSharedUnderSourceAndColourName()
    {
        const QString path = write("a.png", filled({ 4, 4 }, Qt::white));
        IconNodeBuilder first;
        first.load(path, QColor(0x11, 0x22, 0x33, 0xAB));
        QPixmap cached;
        QVERIFY(QPixmapCache::find(path + "#ab112233", &cached));
        QCOMPARE(cached.cacheKey(), first.pixmap().cacheKey());

        IconNodeBuilder second;
        QVERIFY(QFile::remove(path)); // taken from the cache, the file is not read
        second.load(path, QColor(0x11, 0x22, 0x33, 0xAB));
        QCOMPARE(second.pixmap().cacheKey(), cached.cacheKey());
        QVERIFY(second.isLoaded());
        QVERIFY(second.isLoadAttempted());
    }

    void tintingTwiceWithTheSameColourDoesNoWork()
    {
        IconNodeBuilder icon;
        const auto node = m_scene.imageNode();
        icon.load(write("a.png", filled({ 4, 4 }, Qt::white)), QColor());
        icon.colorize(Qt::red);
        icon.updateNode(node.get(), nullptr);
        QPixmapCache::clear();
        const qint64 key = icon.pixmap().cacheKey();
        icon.colorize(Qt::red);
        QCOMPARE(icon.pixmap().cacheKey(), key);
        bool sizeChanged = false;
        icon.updateNode(node.get(), &sizeChanged); // nothing left to hand over: the size is not even compared
        QVERIFY(!sizeChanged);
    }

    void anInvalidColourBringsTheUntintedFileBack()
    {
        IconNodeBuilder icon;
        const QString path = write("a.png", filled({ 4, 4 }, Qt::white));
        icon.load(path, QColor());
        icon.colorize(Qt::red);
        QCOMPARE(pixel(icon.pixmap(), 0), QColor(Qt::red).rgba());
        icon.colorize(QColor());
        QCOMPARE(pixel(icon.pixmap(), 0), QColor(Qt::white).rgba());
        QCOMPARE(icon.source(), path);
    }

    void aTintTakenAwayCanComeBack()
    {
        IconNodeBuilder icon;
        icon.load(write("a.png", filled({ 4, 4 }, Qt::white)), QColor());
        icon.colorize(Qt::red);
        icon.colorize(QColor());
        icon.colorize(Qt::red);
        QCOMPARE(pixel(icon.pixmap(), 0), QColor(Qt::red).rgba());
        icon.colorize(QColor());
        icon.colorize(QColor()); // untinted already: the file is not read again
        const qint64 key = icon.pixmap().cacheKey();
        icon.colorize(QColor());
        QCOMPARE(icon.pixmap().cacheKey(), key);
    }

    void aTintIsLookedUpBeforeItIsMade()
    {
        const QString path = write("a.png", filled({ 4, 4 }, Qt::white));
        IconNodeBuilder first;
        IconNodeBuilder second;
        const auto node = m_scene.imageNode();
        for (IconNodeBuilder *icon : { &first, &second })
            icon->load(path, QColor());
        second.updateNode(node.get(), nullptr);
        first.colorize(Qt::red);
        second.colorize(Qt::red);
        QCOMPARE(second.pixmap().cacheKey(), first.pixmap().cacheKey());
        second.updateNode(node.get(), nullptr); // a hit is a change as well
        QCOMPARE(shownPixmap(node.get()).cacheKey(), first.pixmap().cacheKey());
    }

    void aFileThatIsGoneGivesAnEmptyTintThatIsCached()
    {
        IconNodeBuilder icon;
        const QString path = write("a.png", filled({ 4, 4 }, Qt::white));
        icon.load(path, QColor());
        QVERIFY(QFile::remove(path));
        icon.colorize(Qt::red);
        QVERIFY(icon.pixmap().isNull());
        QPixmap cached(1, 1);
        QVERIFY(QPixmapCache::find(path + "#ffff0000", &cached));
        QVERIFY(cached.isNull());
    }

    void clearForgetsAChange()
    {
        IconNodeBuilder icon;
        icon.load(write("a.png", filled({ 7, 5 }, Qt::white)), QColor());
        icon.clear();
        const auto node = m_scene.imageNode(filled({ 3, 3 }, Qt::red));
        icon.updateNode(node.get(), nullptr);
        QCOMPARE(shownPixmap(node.get()).size(), QSize(3, 3));
    }

    void aTintOverATintStartsFromTheFile()
    {
        IconNodeBuilder icon;
        icon.load(write("a.png", pixels({ qRgba(255, 255, 255, 200) })), QColor(255, 0, 0, 128));
        icon.colorize(Qt::blue);
        QCOMPARE(pixel(icon.pixmap(), 0), qRgba(0, 0, 255, 200));
    }

    void theNodeGetsAChangedPixmapOnce()
    {
        IconNodeBuilder icon;
        const auto node = m_scene.imageNode();
        icon.updateNode(node.get(), nullptr);
        QVERIFY(shownPixmap(node.get()).isNull());
        icon.load(write("a.png", filled({ 4, 4 }, Qt::white)), QColor());
        icon.updateNode(nullptr, nullptr); // no node: the change is kept
        icon.updateNode(node.get(), nullptr);
        QCOMPARE(shownPixmap(node.get()).cacheKey(), icon.pixmap().cacheKey());
    }

    void aSizeChangeIsReportedOnlyWhenTheNodeHasAnotherSize()
    {
        IconNodeBuilder icon;
        const auto node = m_scene.imageNode();
        icon.load(write("a.png", filled({ 7, 5 }, Qt::white)), QColor());
        bool sizeChanged = false;
        icon.updateNode(node.get(), &sizeChanged);
        QVERIFY(sizeChanged);

        node->setRect(QRectF(40, 30, 7, 5));
        icon.colorize(Qt::red);
        sizeChanged = false;
        icon.updateNode(node.get(), &sizeChanged);
        QVERIFY(!sizeChanged);

        node->setRect(QRectF(40, 30, 7, 6));
        icon.colorize(Qt::blue);
        sizeChanged = true;
        icon.updateNode(node.get(), &sizeChanged);
        QVERIFY(sizeChanged); // never set to false
        icon.colorize(Qt::green);
        sizeChanged = false;
        icon.updateNode(node.get(), &sizeChanged);
        QVERIFY(sizeChanged);
    }

    void afterClearColorizeDoesNothingUntilAnImageIsLoaded()
    {
        IconNodeBuilder icon;
        const QString path = write("a.png", filled({ 7, 5 }, Qt::white));
        icon.load(path, QColor());
        icon.clear();
        QVERIFY(icon.pixmap().isNull());
        QVERIFY(!icon.isLoadAttempted());
        QVERIFY(icon.isLoaded());
        QCOMPARE(icon.source(), path);
        icon.colorize(Qt::red);
        QVERIFY(icon.pixmap().isNull());
        icon.load(path, QColor()); // the same source still
        QVERIFY(icon.pixmap().isNull());
    }

    void aNodeMadeAgainGetsThePictureAgain()
    {
        IconNodeBuilder icon;
        icon.load(write("a.png", filled({ 7, 5 }, Qt::white)), QColor());
        for (int i = 0; i < 2; ++i) {
            const std::unique_ptr<QSGImageNode> node(
                    icon.createNode(m_scene.context(), m_scene.renderContext(), nullptr, nullptr));
            QVERIFY(!node->parent());
            QVERIFY(node->ownsTexture());
            QVERIFY(shownPixmap(node.get()).isNull());
            icon.updateNode(node.get(), nullptr);
            QCOMPARE(shownPixmap(node.get()).size(), QSize(7, 5));
        }
    }

    void aNewNodeIsInsertedBeforeOrAppended()
    {
        IconNodeBuilder icon;
        QSGNode root;
        QSGNode *top = icon.createNode(m_scene.context(), m_scene.renderContext(), &root, nullptr);
        QSGNode *below = icon.createNode(m_scene.context(), m_scene.renderContext(), &root, top);
        QCOMPARE(root.firstChild(), below);
        QCOMPARE(below->nextSibling(), top);
    }
};

STB_TEST_MAIN(tst_IconNodeBuilder)
#include "tst_iconnodebuilder.moc"
