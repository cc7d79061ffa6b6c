// SPDX-License-Identifier: MIT
#include "testkit/counters.h"
#include "testkit/testcase.h"
#include "tvchannelscene.h"

#include <QtQml/qqmlcomponent.h>
#include <QtTest/qsignalspy.h>

#include <limits>

using Scene = OffscreenTvChannelScene;
using StyleObject = design_system::PlayerTvChannelItemQmlStyle;
using stbtest::HandPictures;

namespace {

// How often each signal of the row's own class was emitted since the start.
class Signals
{
public:
    explicit Signals(StbTvChannelViewDelegate *row)
    {
        const QMetaObject *meta = row->metaObject();
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                m_spies.push_back(std::make_unique<QSignalSpy>(row, meta->method(i)));
        }
    }
    QByteArrayList emitted() const
    {
        QByteArrayList names;
        for (const auto &spy : m_spies)
            names.insert(names.size(), spy->count(), spy->signal().chopped(2));
        return names;
    }
    int count() const { return int(m_spies.size()); }

private:
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};

} // namespace

class tst_StbTvChannelViewDelegate : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFreshRowHasTheDefaults()
    {
        const StbTvChannelViewDelegate row;
        QVERIFY(!row.style());
        QVERIFY(row.imageSource().isEmpty());
        QVERIFY(row.channelName().isEmpty());
        QVERIFY(!row.channelNameColor().isValid());
        QVERIFY(row.channelNumber().isEmpty());
        QVERIFY(row.channelQuality().isEmpty());
        QVERIFY(row.programName().isEmpty());
        QCOMPARE(row.progress(), 0.);
        QVERIFY(!row.isLive());
        QVERIFY(!row.isLockIconVisible());
        QVERIFY(row.cachedChannelRect().isNull());
        QVERIFY(row.canvas().isNull());
        QVERIFY(row.flags() & QQuickItem::ItemHasContents);
        QCOMPARE(row.size(), QSizeF(0, 0));
    }

    void everyPropertyStoresSignalsOnceAndAsksForAFrame_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("imageSource") << QByteArray("imageSourceChanged") << QVariant(HandPictures::url("x"));
        QTest::newRow("channelListChannelName") << QByteArray("channelNameChanged") << QVariant("a");
        QTest::newRow("channelNameColor")
                << QByteArray("channelNameColorChanged") << QVariant(QColor(1, 2, 3));
        QTest::newRow("channelListChannelNumber") << QByteArray("channelNumberChanged") << QVariant("b");
        QTest::newRow("channelListChannelQuality") << QByteArray("channelQualityChanged") << QVariant("c");
        QTest::newRow("channelListProgramName") << QByteArray("programNameChanged") << QVariant("d");
        QTest::newRow("channelListProgramProgress") << QByteArray("progressChanged") << QVariant(0.25);
        QTest::newRow("channelListChannelLive") << QByteArray("liveChanged") << QVariant(true);
        QTest::newRow("channelListLockIconVisible") << QByteArray("lockIconVisibleChanged") << QVariant(true);
        QTest::newRow("cachedChannelRect")
                << QByteArray("cachedChannelRectChanged") << QVariant(canvasCell(2));
    }
    void everyPropertyStoresSignalsOnceAndAsksForAFrame()
    {
        QFETCH(QByteArray, signal);
        QFETCH(QVariant, value);
        Scene scene;
        scene.setCell();
        scene.fillAndPaint();
        const Signals all(scene.row.get());
        QCOMPARE(all.count(), 12);
        const QMetaObject *meta = scene.row->metaObject();
        const char *name = QTest::currentDataTag();
        QCOMPARE(meta->property(meta->indexOfProperty(name)).notifySignal().name(), signal);
        QVERIFY(!scene.stage.wantsFrame());
        QVERIFY(scene.row->setProperty(name, value));
        QCOMPARE(all.emitted(), QByteArrayList { signal });
        QCOMPARE(scene.row->property(name), value);
        QVERIFY(scene.stage.wantsFrame());

        scene.stage.renderFrame();
        QVERIFY(scene.row->setProperty(name, value));
        QCOMPARE(all.emitted(), QByteArrayList { signal });
        QVERIFY(!scene.stage.wantsFrame());
    }

    void aProgressThatIsNoNumberSignalsOnce()
    {
        StbTvChannelViewDelegate row;
        QSignalSpy changed(&row, &StbTvChannelViewDelegate::progressChanged);
        row.setProgress(std::numeric_limits<double>::quiet_NaN());
        row.setProgress(std::numeric_limits<double>::quiet_NaN());
        QCOMPARE(changed.count(), 1);
    }

    void theStyleIsStoredSignalledAndResettable()
    {
        Scene scene;
        QSignalSpy changed(scene.row.get(), &StbTvChannelViewDelegate::styleChanged);
        scene.row->setStyle(&scene.style);
        scene.row->setStyle(&scene.style);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(scene.row->style(), &scene.style);
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();

        const QMetaObject *meta = scene.row->metaObject();
        const QMetaProperty property = meta->property(meta->indexOfProperty("style"));
        QCOMPARE(property.notifySignal().name(), QByteArray("styleChanged"));
        QVERIFY(property.isResettable());
        QVERIFY(property.reset(scene.row.get()));
        QVERIFY(!scene.row->style());
        QCOMPARE(changed.count(), 2);
        QVERIFY(scene.stage.wantsFrame());
    }

    void aStyleThatDiesCountsAsNull()
    {
        Scene scene;
        scene.stage.renderFrame();
        const QImage ground = scene.stage.picture();
        auto style = std::make_unique<StyleObject>();
        style->setStyle(oddTvChannelStyle());
        scene.fill();
        scene.row->setStyle(style.get());
        scene.stage.renderFrame();
        QVERIFY(scene.stage.picture() != ground);
        QSignalSpy changed(scene.row.get(), &StbTvChannelViewDelegate::styleChanged);
        style.reset();
        QCOMPARE(changed.count(), 1);
        QVERIFY(!scene.row->style());
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), ground);
    }

    void aStyleThatWasReplacedMayDieUnnoticed()
    {
        Scene scene;
        auto former = std::make_unique<StyleObject>();
        scene.row->setStyle(former.get());
        scene.row->setStyle(&scene.style);
        QSignalSpy changed(scene.row.get(), &StbTvChannelViewDelegate::styleChanged);
        former.reset();
        QCOMPARE(changed.count(), 0);
        QCOMPARE(scene.row->style(), &scene.style);
    }

    void changesInsideAStyleObjectAreNotListenedTo()
    {
        Scene scene;
        scene.fillAndPaint();
        scene.style.setStyle(otherTvChannelStyle());
        QVERIFY(!scene.stage.wantsFrame());
    }

    // On purpose.
    void theFirstCanvasStays()
    {
        Scene scene;
        QSignalSpy changed(scene.row.get(), &StbTvChannelViewDelegate::canvasChanged);
        const QPixmap first = channelCanvas();
        scene.row->setCanvas(QPixmap());
        QCOMPARE(changed.count(), 0);
        scene.row->setCanvas(first);
        QCOMPARE(changed.count(), 1);
        QPixmap second(99, 99);
        second.fill(Qt::red);
        scene.row->setCanvas(second);
        scene.row->setCanvas(QPixmap());
        QVERIFY(scene.row->setProperty("canvas", second));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(scene.row->canvas().cacheKey(), first.cacheKey());
    }

    void aCanvasAsksForAFrameWhenThereIsACell()
    {
        Scene scene;
        scene.fillAndPaint();
        scene.row->setCanvas(channelCanvas());
        QVERIFY(!scene.stage.wantsFrame());

        Scene cellFirst;
        cellFirst.fillAndPaint();
        cellFirst.row->setCachedChannelRect(canvasCell(1));
        QVERIFY(!cellFirst.stage.wantsFrame());
        cellFirst.row->setCanvas(channelCanvas());
        QVERIFY(cellFirst.stage.wantsFrame());
    }

    void aCellAsksForAFrameWhenItCanBeSeen()
    {
        Scene scene;
        scene.fillAndPaint();
        scene.row->setCanvas(channelCanvas());
        QSignalSpy changed(scene.row.get(), &StbTvChannelViewDelegate::cachedChannelRectChanged);
        scene.row->setCachedChannelRect(QRect(5, 5, 0, 7)); // invalid, and nothing is shown yet
        QCOMPARE(changed.count(), 1);
        QVERIFY(!scene.stage.wantsFrame());
        scene.row->setCachedChannelRect(canvasCell(1));
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();
        scene.row->setCachedChannelRect(QRect()); // what is shown has to go
        QVERIFY(scene.stage.wantsFrame());
        QCOMPARE(changed.count(), 3);
    }

    void aHandlerMayChangeTheRowWhileItChanges()
    {
        Scene scene;
        scene.fillAndPaint();
        connect(scene.row.get(), &StbTvChannelViewDelegate::liveChanged, this, [&] {
            scene.row->setLive(false);
            scene.row->resetStyle();
        });
        scene.row->setLive(true);
        QVERIFY(!scene.row->isLive());
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(scene.row.get()));
    }

    void theLogoIsAskedForWhenTheComponentIsComplete()
    {
        Scene scene;
        QQmlComponent component(scene.qml.engine());
        component.setData("import Stbui.UI.Qml.Controls.Basic\n"
                          "TvChannelViewDelegate { imageSource: 'image://hand/first' }",
                          QUrl("qrc:/test/text.qml"));
        const std::unique_ptr<QObject> object(component.beginCreate(qmlContext(scene.row.get())));
        auto *row = qobject_cast<StbTvChannelViewDelegate *>(object.get());
        QVERIFY(row);
        row->setImageSource(HandPictures::url("second"));
        component.completeCreate();
        QVERIFY(scene.pictures.deliver("second", logoPicture()));
        QCOMPARE(scene.pictures.requests("second"), 1);
        QCOMPARE(scene.pictures.requests("first"), 0);
        QVERIFY(scene.pictures.requestedSize("second").isEmpty()); // in its own size
    }

    void iconsAreReadWhenTheyAreFirstNeededAndOnce()
    {
        Scene scene;
        scene.fillAndPaint();
        QVERIFY(!scene.d()->m_lockIcon.isLoadAttempted());
        QVERIFY(!scene.d()->m_playingIcon.isLoadAttempted());
        scene.row->setLockIconVisible(true);
        scene.row->setLive(true);
        QCOMPARE(scene.d()->m_lockIcon.source(), ":/resources/icons/lock_icon_white.png");
        QCOMPARE(scene.d()->m_playingIcon.source(), ":/resources/icons/player/playing_content.png");
        QCOMPARE(scene.d()->m_lockIcon.pixmap().size(), QSize(13, 17));
        QCOMPARE(scene.d()->m_playingIcon.pixmap().size(), QSize(15, 27));
        const qint64 lock = scene.d()->m_lockIcon.pixmap().cacheKey();
        scene.row->setLockIconVisible(false);
        scene.row->setLockIconVisible(true);
        QCOMPARE(scene.d()->m_lockIcon.pixmap().cacheKey(), lock);
    }

    void theMarksBuilderLivesWhileTheRowIsLive()
    {
        Scene scene;
        scene.fillAndPaint();
        QVERIFY(!scene.d()->m_playingText);
        scene.row->setLive(true);
        scene.stage.renderFrame();
        QVERIFY(scene.d()->m_playingText);
        QCOMPARE(scene.d()->m_playingText->text(), "PLAYING");
        scene.row->setLive(false);
        scene.stage.renderFrame();
        QVERIFY(!scene.d()->m_playingText);
    }

    void theMarkIsTheApplicationsTranslation()
    {
        Translation translation("PLAYING", "Läuft");
        Scene scene;
        scene.fill();
        scene.row->setLive(true);
        QCOMPARE(scene.d()->m_playingText->text(), "Läuft");
    }

    void oneRowIsOneObjectAndOneItem()
    {
        Scene scene;
        scene.setCell();
        scene.fill();
        scene.row->setLive(true);
        scene.row->setLockIconVisible(true);
        QVERIFY(scene.show());
        QCOMPARE(stbtest::objectCount(scene.row.get()), 1);
        QCOMPARE(stbtest::itemCount(scene.row.get()), 1);
    }
};

STB_TEST_MAIN(tst_StbTvChannelViewDelegate)
#include "tst_stbtvchannelviewdelegate.moc"
