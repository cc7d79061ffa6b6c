// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"
#include "tilescene.h"

#include <QtQml/qqmlparserstatus.h>
#include <QtQuick/private/qquickpixmapcache_p.h>

namespace {

struct Scene : TileScene<StbExpandableTile>
{
    explicit Scene(bool fading, const QString &content = {})
    {
        settings.setValue("Animations", "fadeEffectEnabled", fading);
        make("ExpandableTile", content);
    }
    StbExpandableTilePrivate *d() { return tilePrivate(tile.get()); }
};

} // namespace

// When a tile loads its picture, and what it does when the load is over.
class tst_StbExpandableTileLoads : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void beforeTheCompletionNothingIsLoaded()
    {
        StbExpandableTile tile;
        auto *status = static_cast<QQmlParserStatus *>(&tile);
        status->classBegin();
        tile.setImageSource(stbtest::HandPictures::url("a"));
        QVERIFY(!tilePrivate(&tile)->m_poster.takeReloaded());
        status->componentComplete();
        QVERIFY(tilePrivate(&tile)->m_poster.takeReloaded());
    }

    void withoutASourceTheCompletionLoadsNothing()
    {
        StbExpandableTile tile;
        auto *status = static_cast<QQmlParserStatus *>(&tile);
        status->classBegin();
        status->componentComplete();
        QVERIFY(!tilePrivate(&tile)->m_poster.takeReloaded());
    }

    void aSourceGivenInQmlIsAskedForOnce()
    {
        Scene scene(false, "imageSource: '" + stbtest::HandPictures::url("poster").toString() + "'");
        QVERIFY(scene.arrive(fieldsPicture()));
        QCOMPARE(scene.pictures.requests("poster"), 1);
        QCOMPARE(scene.pictures.requestedSize("poster"), QSize(-1, -1));
    }

    void theSameSourceIsNotLoadedAgain()
    {
        Scene scene(false);
        QVERIFY(scene.show(fieldsPicture()));
        scene.stage.renderFrame();
        scene.tile->setImageSource(stbtest::HandPictures::url("poster"));
        QVERIFY(!scene.stage.wantsFrame());
        QCOMPARE(scene.pictures.requests("poster"), 1);
    }

    void theSignalComesBeforeTheLoad()
    {
        Scene scene(false);
        bool loading = true;
        connect(scene.tile.get(), &StbExpandableTile::imageSourceChanged, this,
                [&] { loading = scene.d()->m_poster.takeReloaded(); });
        scene.tile->setImageSource(stbtest::HandPictures::url("poster"));
        QVERIFY(!loading);
        QVERIFY(scene.d()->m_poster.takeReloaded());
        QVERIFY(scene.pictures.deliver("poster", QImage()));
    }

    void aPictureThatIsReadyAtOnceFadesInToo()
    {
        const QQuickPixmap red(QUrl("itemgrabber:red"), plainPicture(Qt::red));
        Scene scene(true);
        scene.tile->setImageSource(QUrl("itemgrabber:red"));
        QCOMPARE(scene.d()->m_imageOpacity, 0.0);
        QCOMPARE(scene.d()->m_fadeTimeLine.state(), QTimeLine::Running);
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Rectangle", "Opacity", "InternalRectangle" }));
    }

    void aPictureThatIsReadyAtTheCompletionIsShownWithoutAFade()
    {
        const QQuickPixmap red(QUrl("itemgrabber:red"), plainPicture(Qt::red));
        Scene scene(true, "imageSource: 'itemgrabber:red'");
        QCOMPARE(scene.d()->m_imageOpacity, 1.0);
        QCOMPARE(scene.d()->m_fadeTimeLine.state(), QTimeLine::NotRunning);
        QCOMPARE(scene.types(), (QStringList { "Image", "InternalRectangle" }));
    }

    void aSourceThatCannotBeAskedForTakesThePictureAwayAndStartsNoFade_data() { emptySources(); }
    void aSourceThatCannotBeAskedForTakesThePictureAwayAndStartsNoFade()
    {
        QFETCH(QUrl, source);
        Scene scene(true);
        QVERIFY(scene.show(fieldsPicture()));
        finish(scene.d()->m_fadeTimeLine);
        scene.stage.renderFrame();
        scene.tile->setImageSource(source);
        QCOMPARE(scene.d()->m_fadeTimeLine.state(), QTimeLine::NotRunning);
        QCOMPARE(scene.d()->m_imageOpacity, 1.0);
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Rectangle", "InternalRectangle" }));
        QVERIFY(!scene.stage.wantsFrame());
    }

    void aPictureAfterAnEmptySourceFadesInFromNothing_data() { emptySources(); }
    void aPictureAfterAnEmptySourceFadesInFromNothing()
    {
        QFETCH(QUrl, source);
        Scene scene(true);
        const QTimeLine &fade = scene.d()->m_fadeTimeLine;
        QVERIFY(scene.show(fieldsPicture()));
        finish(scene.d()->m_fadeTimeLine);
        scene.stage.renderFrame();
        scene.tile->setImageSource(source);
        QCOMPARE(fade.currentTime(), fade.duration()); // where the first picture's ended
        QVERIFY(scene.show(plainPicture(Qt::red), "other"));
        QCOMPARE(fade.state(), QTimeLine::Running);
        QCOMPARE(fade.currentTime(), 0);
        QCOMPARE(scene.d()->m_imageOpacity, 0.0);
        scene.stage.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Rectangle", "Opacity", "InternalRectangle" }));
    }

    void aTileMayGoWhileItsPictureLoads()
    {
        Scene scene(true);
        scene.tile->setImageSource(stbtest::HandPictures::url("late"));
        QTRY_COMPARE(scene.pictures.waiting("late"), 1);
        scene.tile.reset();
        QVERIFY(scene.pictures.deliver("late", fieldsPicture()));
        QCoreApplication::processEvents();
        scene.stage.renderFrame();
        QVERIFY(!scene.stage.wantsFrame());
    }

    void aPictureThatArrivesInAnotherWindowIsShownThere()
    {
        Scene scene(false);
        scene.tile->setImageSource(stbtest::HandPictures::url("late"));
        scene.stage.renderFrame();
        QTRY_COMPARE(scene.pictures.waiting("late"), 1);
        stbtest::Stage other(scene.stage.size(), QColor(0, 60, 40));
        scene.tile->setParentItem(other.contentItem());
        other.renderFrame();
        QVERIFY(scene.pictures.deliver("late", fieldsPicture()));
        QTRY_VERIFY(other.wantsFrame());
        other.renderFrame();
        QCOMPARE(scene.types(), (QStringList { "Image", "InternalRectangle" }));
        QCOMPARE(scene.children()[0].pixmap.toImage(), fieldsPicture());
        scene.tile->setParentItem(scene.stage.contentItem());
    }

private:
    static void emptySources()
    {
        QTest::addColumn<QUrl>("source");
        QTest::newRow("empty") << QUrl();
        QTest::newRow("invalid") << QUrl("http://[");
    }
};

STB_TEST_MAIN(tst_StbExpandableTileLoads)
#include "tst_stbexpandabletileloads.moc"
