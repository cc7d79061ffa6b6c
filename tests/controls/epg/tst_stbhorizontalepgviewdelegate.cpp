// SPDX-License-Identifier: MIT
#include "horizontalepgscene.h"
#include "testkit/counters.h"
#include "testkit/testcase.h"

#include <QtQml/qqmlcomponent.h>
#include <QtTest/qsignalspy.h>

using Scene = OffscreenHorizontalEpgScene;
using StyleObject = design_system::PlayerHorizontalEpgViewQmlStyle;
using stbtest::HandPictures;

class tst_StbHorizontalEpgViewDelegate : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFreshCellHasTheDefaults()
    {
        const StbHorizontalEpgViewDelegate cell;
        QVERIFY(!cell.style());
        QVERIFY(cell.imageSource().isEmpty());
        QVERIFY(cell.title().isEmpty());
        QVERIFY(cell.exactDate().isEmpty());
        QVERIFY(cell.description().isEmpty());
        QVERIFY(cell.flags() & QQuickItem::ItemHasContents);
        QCOMPARE(cell.size(), QSizeF(0, 0));
    }

    void everyPropertyStoresSignalsOnceAndAsksForAFrame_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("itemTitle") << QByteArray("titleChanged") << QVariant("a");
        QTest::newRow("tvProgramExactDate") << QByteArray("exactDateChanged") << QVariant("b");
        QTest::newRow("tvProgramDescription") << QByteArray("descriptionChanged") << QVariant("c");
        QTest::newRow("imageSource") << QByteArray("imageSourceChanged") << QVariant(QUrl("qrc:/none.png"));
    }
    void everyPropertyStoresSignalsOnceAndAsksForAFrame()
    {
        QFETCH(QByteArray, signal);
        QFETCH(QVariant, value);
        Scene scene;
        scene.fillAndPaint();
        StbHorizontalEpgViewDelegate &cell = *scene.cell;
        const QMetaObject *meta = cell.metaObject();
        const char *name = QTest::currentDataTag();
        const QMetaProperty property = meta->property(meta->indexOfProperty(name));
        QCOMPARE(property.notifySignal().name(), signal);
        std::vector<std::unique_ptr<QSignalSpy>> spies;
        for (const char *each : { "styleChanged", "imageSourceChanged", "titleChanged", "exactDateChanged",
                                  "descriptionChanged" })
            spies.push_back(std::make_unique<QSignalSpy>(&cell, QByteArray('2' + QByteArray(each) + "()")));
        const auto emitted = [&] {
            QByteArrayList names;
            for (const auto &spy : spies)
                names.insert(names.size(), spy->count(), spy->signal().chopped(2));
            return names;
        };
        QVERIFY(!scene.stage.wantsFrame());
        QVERIFY(cell.setProperty(name, value));
        QCOMPARE(emitted(), QByteArrayList { signal });
        QCOMPARE(cell.property(name), value);
        QVERIFY(scene.stage.wantsFrame());

        scene.stage.renderFrame();
        QVERIFY(cell.setProperty(name, value));
        QCOMPARE(emitted(), QByteArrayList { signal });
        QVERIFY(!scene.stage.wantsFrame());
    }

    void theStyleIsStoredSignalledAndResettable()
    {
        Scene scene;
        QSignalSpy changed(scene.cell.get(), &StbHorizontalEpgViewDelegate::styleChanged);
        scene.cell->setStyle(&scene.style);
        scene.cell->setStyle(&scene.style);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(scene.cell->style(), &scene.style);
        QVERIFY(scene.stage.wantsFrame());
        scene.stage.renderFrame();

        const QMetaObject *meta = scene.cell->metaObject();
        const QMetaProperty property = meta->property(meta->indexOfProperty("style"));
        QCOMPARE(property.notifySignal().name(), QByteArray("styleChanged"));
        QVERIFY(property.isResettable());
        QVERIFY(property.reset(scene.cell.get()));
        QVERIFY(!scene.cell->style());
        QCOMPARE(changed.count(), 2);
        QVERIFY(scene.stage.wantsFrame());
    }

    void aStyleThatDiesCountsAsNull()
    {
        Scene scene;
        scene.stage.renderFrame();
        const QImage ground = scene.stage.picture();
        auto style = std::make_unique<StyleObject>();
        style->setStyle(oddHorizontalEpgStyle());
        scene.fill();
        scene.cell->setStyle(style.get());
        scene.stage.renderFrame();
        QVERIFY(scene.stage.picture() != ground);
        QSignalSpy changed(scene.cell.get(), &StbHorizontalEpgViewDelegate::styleChanged);
        style.reset();
        QCOMPARE(changed.count(), 1);
        QVERIFY(!scene.cell->style());
        scene.stage.renderFrame();
        QCOMPARE(scene.stage.picture(), ground);
    }

    void aStyleThatWasReplacedMayDieUnnoticed()
    {
        Scene scene;
        auto former = std::make_unique<StyleObject>();
        scene.cell->setStyle(former.get());
        scene.cell->setStyle(&scene.style);
        QSignalSpy changed(scene.cell.get(), &StbHorizontalEpgViewDelegate::styleChanged);
        former.reset();
        QCOMPARE(changed.count(), 0);
        QCOMPARE(scene.cell->style(), &scene.style);
    }

    void changesInsideAStyleObjectAreNotListenedTo()
    {
        Scene scene;
        scene.fillAndPaint();
        scene.style.setStyle(otherHorizontalEpgStyle());
        QVERIFY(!scene.stage.wantsFrame());
    }

    void aHandlerMayChangeTheCellWhileItChanges()
    {
        Scene scene;
        scene.fillAndPaint();
        connect(scene.cell.get(), &StbHorizontalEpgViewDelegate::titleChanged, this, [&] {
            scene.cell->setDescription(scene.cell->title() + " again");
            scene.cell->resetStyle();
        });
        scene.cell->setTitle("Night news");
        QCOMPARE(scene.cell->description(), "Night news again");
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(scene.cell.get()));
    }

    void thePictureIsAskedForWhenTheComponentIsComplete()
    {
        Scene scene;
        QQmlComponent component(scene.qml.engine());
        component.setData("import Stbui.UI.Qml.Controls.Basic\n"
                          "HorizontalEpgViewDelegate { imageSource: 'image://hand/first' }",
                          QUrl("qrc:/test/text.qml"));
        const std::unique_ptr<QObject> object(component.beginCreate(qmlContext(scene.cell.get())));
        auto *cell = qobject_cast<StbHorizontalEpgViewDelegate *>(object.get());
        QVERIFY(cell);
        cell->setImageSource(HandPictures::url("second"));
        component.completeCreate();
        QVERIFY(scene.pictures.deliver("second", programmePicture()));
        QTRY_VERIFY(!pictureSize(cell).isEmpty());
        QCOMPARE(scene.pictures.requests("second"), 1);
        QCOMPARE(scene.pictures.requests("first"), 0);
    }

    void thePictureIsAskedForInItsOwnSize()
    {
        Scene scene;
        scene.fill();
        QVERIFY(scene.show());
        QCOMPARE(scene.pictures.requests("still"), 1);
        QVERIFY(scene.pictures.requestedSize("still").isEmpty());
    }

    void anEmptyOrInvalidSourceLoadsNothing_data()
    {
        QTest::addColumn<QUrl>("source");
        QTest::newRow("empty") << QUrl();
        QTest::newRow("invalid") << QUrl("http://[nowhere", QUrl::StrictMode);
    }
    void anEmptyOrInvalidSourceLoadsNothing()
    {
        QFETCH(QUrl, source);
        Scene scene;
        scene.fill();
        QVERIFY(scene.show());
        QCOMPARE(scene.children().size(), 4);
        scene.cell->setImageSource(source);
        scene.stage.renderFrame();
        QCOMPARE(scene.children().size(), 3);
        QVERIFY(!scene.stage.wantsFrame());
    }

    void withoutAnEngineNothingIsLoaded()
    {
        StbHorizontalEpgViewDelegate cell;
        cell.setImageSource(HandPictures::url("still"));
        QCOMPARE(cell.imageSource(), HandPictures::url("still"));
        Scene scene;
        cell.setParentItem(scene.stage.contentItem());
        cell.setSize(QSizeF(500, 161));
        cell.setStyle(&scene.style);
        scene.stage.renderFrame();
        QCOMPARE(stbtest::childNodes(stbtest::paintNode(&cell)).size(), 3);
    }

    void aPictureThatCannotBeLoadedLeavesNothing()
    {
        Scene scene;
        scene.fillAndPaint();
        const QImage without = scene.stage.picture();
        QVERIFY(scene.show(QImage()));
        QCOMPARE(scene.children().size(), 3);
        QCOMPARE(scene.stage.picture(), without);
    }

    void aCellMayGoWhileItsPictureIsLoading()
    {
        Scene scene;
        scene.fill();
        scene.ask();
        scene.stage.renderFrame();
        QTRY_COMPARE(scene.pictures.waiting("still"), 1);
        scene.cell.reset();
        scene.stage.renderFrame();
        QVERIFY(scene.pictures.deliver("still", programmePicture()));
        scene.makeCell(); // what is loaded for another one comes after what nobody waits for any more
        scene.ask("another");
        QVERIFY(scene.pictures.deliver("another", programmePicture()));
        QTRY_VERIFY(!pictureSize(scene.cell.get()).isEmpty());
    }

    void oneCellIsOneObjectAndOneItem()
    {
        Scene scene;
        scene.fill();
        QVERIFY(scene.show());
        QCOMPARE(stbtest::objectCount(scene.cell.get()), 1);
        QCOMPARE(stbtest::itemCount(scene.cell.get()), 1);
    }

    void everyTextIsLaidOutOnce()
    {
        Scene scene;
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.cell->setStyle(&scene.style);
                     scene.cell->setExactDate("A date of its own");
                     scene.cell->setTitle("A title of its own");
                     scene.cell->setDescription("A description of its own");
                     scene.stage.renderFrame();
                 }),
                 3);
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.cell->setSize(QSizeF(510, 171));
                     scene.cell->update();
                     scene.stage.renderFrame();
                     scene.cell->resetStyle(); // and the same texts in the same style after that
                     scene.stage.renderFrame();
                     scene.cell->setStyle(&scene.style);
                     scene.stage.renderFrame();
                 }),
                 0);
        QCOMPARE(stbtest::textsLaidOut([&] {
                     scene.cell->setTitle("Another title");
                     scene.stage.renderFrame();
                 }),
                 1);
    }
};

STB_TEST_MAIN(tst_StbHorizontalEpgViewDelegate)
#include "tst_stbhorizontalepgviewdelegate.moc"
