// SPDX-License-Identifier: MIT
#include "episodesscene.h"
#include "testkit/counters.h"
#include "testkit/testcase.h"

#include <controls/epg/stbepisodesviewdelegate_p.h>

#include <QtCore/qmetaobject.h>
#include <QtTest/qsignalspy.h>

#include <limits>

using Scene = OffscreenEpisodesScene;
using Cell = StbEpisodesViewDelegate;
using StyleObject = design_system::PlayerEpisodesItemQmlStyle;
using stbtest::HandPictures;

namespace {

const StbEpisodesViewDelegatePrivate *privateOf(Cell &cell)
{
    return static_cast<StbEpisodesViewDelegatePrivate *>(QQuickItemPrivate::get(&cell));
}

QString upperDate(Cell &cell)
{
    return privateOf(cell)->m_upperDate.text();
}

QString lowerDate(Cell &cell)
{
    return privateOf(cell)->m_lowerDate.text();
}

} // namespace

class tst_StbEpisodesViewDelegate : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFreshCellHasTheDefaults()
    {
        const Cell cell;
        QVERIFY(!cell.style());
        QVERIFY(cell.listItemType().isEmpty());
        QVERIFY(cell.imageSource().isEmpty());
        QVERIFY(cell.title().isEmpty());
        QVERIFY(cell.subtitle().isEmpty());
        QVERIFY(cell.status().isEmpty());
        QCOMPARE(cell.viewedPosition(), 0.0);
        QCOMPARE(cell.duration(), 0.0);
        QVERIFY(cell.flags() & QQuickItem::ItemHasContents);
        QCOMPARE(cell.size(), QSizeF(0, 0));
    }

    void everyPropertyIsFinalWithASignalOfItsOwn_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QByteArray>("signal");
        QTest::newRow("style") << QByteArray("design_system::PlayerEpisodesItemQmlStyle*")
                               << QByteArray("styleChanged()");
        QTest::newRow("listItemType") << QByteArray("QString") << QByteArray("listItemTypeChanged()");
        QTest::newRow("imageSource") << QByteArray("QUrl") << QByteArray("imageSourceChanged()");
        QTest::newRow("itemTitle") << QByteArray("QString") << QByteArray("titleChanged()");
        QTest::newRow("itemSubtitle") << QByteArray("QString") << QByteArray("subtitleChanged()");
        QTest::newRow("itemStatus") << QByteArray("QString") << QByteArray("statusChanged()");
        QTest::newRow("mediaPositionsProgressBarViewed")
                << QByteArray("double") << QByteArray("timepointChanged()");
        QTest::newRow("mediaPositionsProgressBarValue")
                << QByteArray("double") << QByteArray("durationChanged()");
    }
    void everyPropertyIsFinalWithASignalOfItsOwn()
    {
        const QMetaObject &meta = Cell::staticMetaObject;
        const QMetaProperty property = meta.property(meta.indexOfProperty(QTest::currentDataTag()));
        QVERIFY(property.isValid());
        QVERIFY(property.isFinal());
        QVERIFY(property.isWritable());
        QCOMPARE(property.isResettable(), QByteArray(property.name()) == "style");
        QTEST(QByteArray(property.typeName()), "type");
        QTEST(property.notifySignal().methodSignature(), "signal");
        QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 8);
    }

    void whatIsAcceptedOnceIsKept_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QVariant>("first");
        QTest::addColumn<QVariant>("second");
        QTest::addColumn<QVariant>("none");
        QTest::newRow("listItemType") << QByteArray("listItemTypeChanged") << QVariant("viewedTile")
                                      << QVariant("defaultTile") << QVariant("");
        QTest::newRow("listItemType, unknown") << QByteArray("listItemTypeChanged") << QVariant("a")
                                               << QVariant("viewedTile") << QVariant("");
        QTest::newRow("imageSource") << QByteArray("imageSourceChanged") << QVariant(HandPictures::url("a"))
                                     << QVariant(HandPictures::url("b")) << QVariant(QUrl());
        QTest::newRow("itemStatus") << QByteArray("statusChanged") << QVariant("a") << QVariant("b")
                                    << QVariant("");
        QTest::newRow("mediaPositionsProgressBarViewed")
                << QByteArray("timepointChanged") << QVariant(17.0) << QVariant(19.0) << QVariant(0.0);
        QTest::newRow("mediaPositionsProgressBarValue")
                << QByteArray("durationChanged") << QVariant(1.0) << QVariant(19.0) << QVariant(0.0);
    }
    void whatIsAcceptedOnceIsKept()
    {
        QFETCH(QByteArray, signal);
        QFETCH(QVariant, first);
        QFETCH(QVariant, second);
        QFETCH(QVariant, none);
        const QByteArray name = QByteArray(QTest::currentDataTag()).split(',').first();
        Scene scene;
        QSignalSpy spy(scene.cell.get(), QByteArray(QByteArray("2") + signal + "()").constData());
        QVERIFY(scene.cell->setProperty(name, none));
        QCOMPARE(spy.count(), 0);
        QVERIFY(scene.cell->setProperty(name, first));
        QCOMPARE(scene.cell->property(name), first);
        QCOMPARE(spy.count(), 1);
        for (const QVariant &value : { first, second, none }) {
            QVERIFY(scene.cell->setProperty(name, value));
            QCOMPARE(scene.cell->property(name), first);
            QCOMPARE(spy.count(), 1);
        }
    }

    void theFirstStyleIsKeptAndAResetDoesNothing()
    {
        StyleObject style;
        StyleObject other;
        Cell cell;
        const QSignalSpy spy(&cell, &Cell::styleChanged);
        cell.resetStyle();
        cell.setStyle(nullptr);
        QCOMPARE(spy.count(), 0);
        cell.setStyle(&style);
        QCOMPARE(spy.count(), 1);
        cell.setStyle(&other);
        cell.setStyle(nullptr);
        cell.resetStyle();
        QVERIFY(cell.setProperty("style", QVariant::fromValue<StyleObject *>(nullptr)));
        QCOMPARE(cell.style(), &style);
        QCOMPARE(spy.count(), 1);
    }

    void aDestroyedStyleMakesRoomForAnother()
    {
        StyleObject other;
        Cell cell;
        auto style = std::make_unique<StyleObject>();
        cell.setStyle(style.get());
        const QSignalSpy spy(&cell, &Cell::styleChanged);
        style.reset();
        QVERIFY(!cell.style());
        QCOMPARE(spy.count(), 1);
        cell.setStyle(&other);
        QCOMPARE(cell.style(), &other);
        QCOMPARE(spy.count(), 2);
    }

    void titleAndSubtitleChangeAsOftenAsTheyDiffer_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::newRow("itemTitle") << QByteArray("2titleChanged()");
        QTest::newRow("itemSubtitle") << QByteArray("2subtitleChanged()");
    }
    void titleAndSubtitleChangeAsOftenAsTheyDiffer()
    {
        QFETCH(QByteArray, signal);
        Scene scene;
        scene.fillAndPaint("viewedTile");
        const QByteArray name = QTest::currentDataTag();
        const QSignalSpy spy(scene.cell.get(), signal.constData());
        for (const char *text : { "a", "a", "b", "", "" }) {
            scene.cell->setProperty(name, QString(text));
            QCOMPARE(scene.cell->property(name).toString(), text);
        }
        QCOMPARE(spy.count(), 3);
        QVERIFY(scene.stage.wantsFrame());
    }

    void theNamesOfTheKindsAreCaseSensitive_data()
    {
        using Type = StbEpisodesViewDelegatePrivate::ItemType;
        QTest::addColumn<int>("type");
        QTest::newRow("defaultTile") << int(Type::Default);
        QTest::newRow("unViewedTile") << int(Type::Unviewed);
        QTest::newRow("viewedTile") << int(Type::Viewed);
        QTest::newRow("comingSoonTile") << int(Type::ComingSoon);
        for (const char *name : { "DefaultTile", "unviewedTile", "viewedtile", "comingSoonTile ", "0", "-" })
            QTest::newRow(name) << int(Type::Unknown);
    }
    void theNamesOfTheKindsAreCaseSensitive()
    {
        Cell cell;
        cell.setListItemType(QTest::currentDataTag());
        QCOMPARE(cell.listItemType(), QTest::currentDataTag());
        QTEST(int(privateOf(cell)->m_itemType), "type");
    }

    void aDayIsSplitAtItsOneSpace_data()
    {
        QTest::addColumn<QString>("upper");
        QTest::addColumn<QString>("lower");
        QTest::newRow("12 March") << "12"
                                  << "March";
        QTest::newRow("today") << ""
                               << "";
        QTest::newRow("on 12 March") << ""
                                     << "";
        QTest::newRow("12  March") << ""
                                   << ""; // three parts, one of them empty
        QTest::newRow(" March") << ""
                                << "March";
        QTest::newRow("12 ") << "12"
                             << "";
        QTest::newRow(" ") << ""
                           << "";
        QTest::newRow("12\tMarch") << ""
                                   << "";
        QTest::newRow("12\u00a0March") << ""
                                       << "";
    }
    void aDayIsSplitAtItsOneSpace()
    {
        QFETCH(QString, upper);
        QFETCH(QString, lower);
        const QString status = QString::fromUtf8(QTest::currentDataTag());
        Cell cell;
        cell.setListItemType("comingSoonTile");
        const QSignalSpy spy(&cell, &Cell::statusChanged);
        cell.setStatus(status);
        QCOMPARE(upperDate(cell), upper);
        QCOMPARE(lowerDate(cell), lower);
        QCOMPARE(cell.status(), QString()); // on purpose
        QCOMPARE(spy.count(), 1);

        cell.setStatus("13 April"); // what was stored, shown or not, refuses any other
        QCOMPARE(upperDate(cell), upper);
        QCOMPARE(lowerDate(cell), lower);
        QCOMPARE(spy.count(), 1);
    }

    void otherKindsKeepTheirStatusInOnePiece()
    {
        for (const char *type : { "defaultTile", "unViewedTile", "viewedTile", "other" }) {
            Cell cell;
            cell.setListItemType(type);
            cell.setStatus("12 March");
            QCOMPARE(cell.status(), "12 March");
            QCOMPARE(upperDate(cell), QString());
            QCOMPARE(lowerDate(cell), QString());
        }
    }

    void aStatusThatComesBeforeTheKindIsTheSame()
    {
        Cell cell;
        cell.setStatus("12 March");
        QCOMPARE(cell.status(), "12 March");
        const QSignalSpy spy(&cell, &Cell::statusChanged);
        cell.setListItemType("comingSoonTile");
        QCOMPARE(cell.status(), QString());
        QCOMPARE(upperDate(cell), "12");
        QCOMPARE(lowerDate(cell), "March");
        QCOMPARE(spy.count(), 1);
        cell.setStatus("13 April");
        QCOMPARE(upperDate(cell), "12");

        Cell viewed;
        viewed.setStatus("12 March");
        const QSignalSpy none(&viewed, &Cell::statusChanged);
        viewed.setListItemType("viewedTile");
        QCOMPARE(viewed.status(), "12 March");
        QCOMPARE(none.count(), 0);
    }

    void positionsAreWholeNumbersOf64Bits_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("stored");
        const double infinity = std::numeric_limits<double>::infinity();
        QTest::newRow("a whole one") << 17.0 << 17.0;
        QTest::newRow("a fraction") << 17.9 << 17.0;
        QTest::newRow("a small fraction") << 0.9 << 0.0;
        QTest::newRow("a negative fraction") << -17.9 << -17.0;
        QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << 0.0;
        QTest::newRow("infinity") << infinity << 0x1p63;
        QTest::newRow("negative infinity") << -infinity << -0x1p63;
        QTest::newRow("huge") << 1e300 << 0x1p63;
        QTest::newRow("hugely negative") << -1e300 << -0x1p63;
        QTest::newRow("just too large") << 0x1p63 << 0x1p63;
        QTest::newRow("the largest that fits") << 0x1.fffffffffffffp62 << 0x1.fffffffffffffp62;
        QTest::newRow("the smallest that fits") << -0x1p63 << -0x1p63;
    }
    void positionsAreWholeNumbersOf64Bits()
    {
        QFETCH(double, value);
        QFETCH(double, stored);
        Cell cell;
        const QSignalSpy viewedSpy(&cell, &Cell::timepointChanged);
        const QSignalSpy durationSpy(&cell, &Cell::durationChanged);
        cell.setViewedPosition(value);
        QCOMPARE(cell.viewedPosition(), stored);
        QCOMPARE(cell.duration(), 0.0);
        cell.setDuration(value);
        QCOMPARE(cell.duration(), stored);
        QCOMPARE(viewedSpy.count(), stored != 0.0 ? 1 : 0);
        QCOMPARE(durationSpy.count(), stored != 0.0 ? 1 : 0);
    }

    void aPositionOfZeroOrLessCanStillBeReplaced()
    {
        Cell cell;
        for (const double value : { -17.0, -3.0, 0.0, 5.0 }) {
            cell.setViewedPosition(value);
            cell.setDuration(value);
            QCOMPARE(cell.viewedPosition(), value);
            QCOMPARE(cell.duration(), value);
        }
        cell.setViewedPosition(7);
        cell.setDuration(-7);
        QCOMPARE(cell.viewedPosition(), 5.0);
        QCOMPARE(cell.duration(), 5.0);
    }

    void thePictureIsLoadedOnceWhenTheComponentIsComplete()
    {
        stbtest::QmlScene qml;
        const HandPictures pictures(qml.engine());
        const auto cell = qml.createItem<Cell>(
                QStringLiteral(
                        "import Stbui.UI.Qml.Controls.Basic\nEpisodesViewDelegate { imageSource: '%1' }")
                        .arg(HandPictures::url("still").toString()));
        QVERIFY(cell);
        QTRY_COMPARE(pictures.waiting("still"), 1);
        cell->setImageSource(HandPictures::url("another"));
        QCoreApplication::processEvents();
        QCOMPARE(pictures.requests("still"), 1);
        QCOMPARE(pictures.requests("another"), 0);
    }

    void aLoadAsksForAFrame()
    {
        Scene scene;
        scene.fillAndPaint("viewedTile");
        QVERIFY(!scene.stage.wantsFrame());
        scene.ask();
        QVERIFY(scene.stage.wantsFrame());
    }

    void cellsWithTheSamePictureShareIt()
    {
        Scene scene;
        scene.fillAndPaint("viewedTile");
        QVERIFY(scene.show());
        const auto second = makeEpisode(scene.qml, scene.stage.contentItem());
        second->setImageSource(HandPictures::url(scene.picture));
        QCOMPARE(privateOf(*second)->m_picture.size(), QSize(201, 113)); // at once
        QCOMPARE(scene.pictures.requests(scene.picture), 1);
    }

    void theIconIsReadForTheKindsThatShowOne()
    {
        for (const char *type : { "defaultTile", "unViewedTile", "viewedTile", "comingSoonTile", "other" }) {
            const bool playable = QByteArray(type).startsWith('d') || QByteArray(type).startsWith('u');
            stbtest::QmlScene qml;
            const auto atOnce = qml.createItem<Cell>(
                    QStringLiteral(
                            "import Stbui.UI.Qml.Controls.Basic\nEpisodesViewDelegate { listItemType: '%1' }")
                            .arg(type));
            QCOMPARE(privateOf(*atOnce)->m_playIcon.isLoaded(), playable);
            const auto later = makeEpisode(qml);
            QVERIFY(!privateOf(*later)->m_playIcon.isLoadAttempted());
            later->setListItemType(type); // after completion
            QCOMPARE(privateOf(*later)->m_playIcon.isLoaded(), playable);
        }
    }

    void aCellIsOneItemWithoutChildren()
    {
        Scene scene;
        scene.fillAndPaint("defaultTile");
        QCOMPARE(stbtest::itemCount(scene.cell.get()), 1);
        QCOMPARE(stbtest::objectCount(scene.cell.get()), 1);
        QCOMPARE(stbtest::objectsCreated([] { const Cell cell; }), 1);
    }

    void withoutAnEngineThereIsNoPictureAndNoCrash()
    {
        Cell cell;
        cell.setImageSource(HandPictures::url("still"));
        QCOMPARE(cell.imageSource(), HandPictures::url("still"));
        QVERIFY(privateOf(cell)->m_picture.size().isEmpty());
    }
};

STB_TEST_MAIN(tst_StbEpisodesViewDelegate)
#include "tst_stbepisodesviewdelegate.moc"
