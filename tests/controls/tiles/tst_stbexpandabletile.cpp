// SPDX-License-Identifier: MIT
#include "testkit/counters.h"
#include "testkit/testcase.h"
#include "tilescene.h"

#include <QtTest/qsignalspy.h>

namespace {

using Style = design_system::TileStyle;
using StyleObject = design_system::TileQmlStyle;

struct Scene : TileScene<StbExpandableTile>
{
    Scene() { make("ExpandableTile"); }
};

// A derived tile that writes down what it is asked.
class LoggingTilePrivate : public StbExpandableTilePrivate
{
public:
    void processStyleChanged(const Style &style) override
    {
        log += QStringLiteral("style %1, width %2").arg(style.tileRect.width()).arg(double(width));
    }
    QStringList log;
};

class LoggingTile : public StbExpandableTile
{
public:
    LoggingTile()
        : StbExpandableTile(*new LoggingTilePrivate, nullptr)
    {
    }
    QStringList &log()
    {
        return static_cast<LoggingTilePrivate *>(QQuickItemPrivate::get(this))->log; // NOLINT
    }
};

// A style object of a platform that computes its style.
class DoubledStyle : public StyleObject
{
public:
    Style style() const override
    {
        Style result = StyleObject::style();
        result.tileRect.setSize(result.tileRect.size() * 2);
        return result;
    }
};

} // namespace

class tst_StbExpandableTile : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFreshTileHasTheDefaults()
    {
        StbExpandableTile tile;
        QVERIFY(!tile.style());
        QVERIFY(tile.imageSource().isEmpty());
        QVERIFY(!tile.backgroundColor().isValid());
        QCOMPARE(tile.customFocusRect(), QRect());
        QCOMPARE(tile.customFocusRect().right(), -1);
        QVERIFY(tile.flags() & QQuickItem::ItemHasContents);
        QCOMPARE(tile.size(), QSizeF(0, 0));
    }

    void aTileIsOneItemWithItsTwoTimeLines()
    {
        QCOMPARE(stbtest::objectsCreated([] { const StbExpandableTile tile; }), 3);
        Scene scene;
        QCOMPARE(stbtest::itemCount(scene.tile.get()), 1);
        QVERIFY(scene.tile->children().isEmpty());
    }

    void everyPropertyStoresAndSignalsOnce_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *property, const char *signal, const QVariant &value) {
            QTest::newRow(property) << QByteArray(property) << QByteArray(signal) << value;
        };
        row("customFocusRect", "customFocusRectChanged", QRect(3, 5, 7, 9));
        row("imageSource", "imageSourceChanged", stbtest::HandPictures::url("a"));
        row("itemBackgroundColor", "backgroundColorChanged", QColor(1, 2, 3));
    }
    void everyPropertyStoresAndSignalsOnce()
    {
        QFETCH(QByteArray, property);
        QFETCH(QByteArray, signal);
        QFETCH(QVariant, value);
        Scene scene;
        const QMetaObject *meta = scene.tile->metaObject();
        QCOMPARE(meta->property(meta->indexOfProperty(property)).notifySignal().name(), signal);
        std::vector<std::unique_ptr<QSignalSpy>> spies;
        for (const char *name : { "styleChanged", "customFocusRectChanged", "imageSourceChanged",
                                  "backgroundColorChanged", "widthChanged", "heightChanged" })
            spies.push_back(std::make_unique<QSignalSpy>(scene.tile.get(),
                                                         QByteArray('2' + QByteArray(name) + "()")));
        const auto emitted = [&] {
            QByteArrayList names;
            for (const auto &spy : spies)
                names.insert(names.size(), spy->count(), spy->signal().chopped(2));
            return names;
        };
        QVERIFY(scene.tile->setProperty(property, value));
        QCOMPARE(emitted(), QByteArrayList { signal });
        QCOMPARE(scene.tile->property(property), value);
        QVERIFY(scene.tile->setProperty(property, value));
        QCOMPARE(emitted(), QByteArrayList { signal });
    }

    void theStyleIsStoredSignalledAndResettable()
    {
        Scene scene;
        QSignalSpy changed(scene.tile.get(), &StbExpandableTile::styleChanged);
        scene.tile->setStyle(&scene.style);
        QCOMPARE(changed.count(), 0);
        const QMetaObject *meta = scene.tile->metaObject();
        const QMetaProperty property = meta->property(meta->indexOfProperty("style"));
        QVERIFY(property.isResettable());
        QVERIFY(property.reset(scene.tile.get()));
        QVERIFY(!scene.tile->style());
        QCOMPARE(changed.count(), 1);
        scene.tile->setStyle(&scene.style);
        QCOMPARE(scene.tile->style(), &scene.style);
        QCOMPARE(changed.count(), 2);
    }

    void aDestroyedStyleCountsAsNone()
    {
        Scene scene;
        auto style = std::make_unique<StyleObject>();
        style->setStyle(otherTileStyle());
        scene.tile->setStyle(style.get());
        scene.stage.renderFrame();
        QVERIFY(stbtest::paintNode(scene.tile.get()));
        QSignalSpy changed(scene.tile.get(), &StbExpandableTile::styleChanged);
        style.reset();
        QCOMPARE(changed.count(), 1);
        QVERIFY(!scene.tile->style());
        scene.stage.renderFrame();
        QVERIFY(!stbtest::paintNode(scene.tile.get()));
    }

    void settersStoreValuesWithoutAStyle()
    {
        StbExpandableTile tile;
        tile.setCustomFocusRect(QRect(1, 3, 5, 7));
        tile.setBackgroundColor(Qt::red);
        tile.setImageSource(QUrl("image://hand/a"));
        QCOMPARE(tile.customFocusRect(), QRect(1, 3, 5, 7));
        QCOMPARE(tile.backgroundColor(), QColor(Qt::red));
        QCOMPARE(tile.imageSource(), QUrl("image://hand/a"));
        QCOMPARE(tile.size(), QSizeF(0, 0));
    }

    void theStyleSetsTheSizeAndTheFocusRectangle()
    {
        Scene scene;
        QCOMPARE(scene.tile->size(), QSizeF(201, 113));
        QCOMPARE(scene.tile->customFocusRect(), QRect(0, 0, 201, 113));

        Style shifted = oddTileStyle();
        shifted.tileRect = QRect(9, 15, 77, 33);
        StyleObject other;
        other.setStyle(shifted);
        scene.tile->setStyle(&other);
        QCOMPARE(scene.tile->size(), QSizeF(77, 33));
        QCOMPARE(scene.tile->customFocusRect(), QRect(9, 15, 77, 33));
    }

    void aStyleWithAnEqualTileRectangleTellsOfNoNewOne()
    {
        Scene scene;
        Style other = otherTileStyle();
        other.tileRect = oddTileStyle().tileRect;
        StyleObject object;
        object.setStyle(other);
        QSignalSpy changed(scene.tile.get(), &StbExpandableTile::customFocusRectChanged);
        scene.tile->setStyle(&object);
        QCOMPARE(changed.count(), 0);
        scene.tile->setCustomFocusRect(QRect(3, 5, 7, 9)); // nothing but an equal one keeps it silent
        scene.tile->setStyle(&scene.style);
        QCOMPARE(changed.count(), 2);
    }

    void theSizeIsWrittenWithoutANotification()
    {
        Scene scene;
        StyleObject other;
        other.setStyle(otherTileStyle());
        QSignalSpy widthChanged(scene.tile.get(), &QQuickItem::widthChanged);
        QSignalSpy heightChanged(scene.tile.get(), &QQuickItem::heightChanged);
        scene.tile->setStyle(&other);
        QCOMPARE(scene.tile->size(), QSizeF(143, 181));
        QCOMPARE(widthChanged.count() + heightChanged.count(), 0);
    }

    void aBindingOfTheSizeIsDropped()
    {
        Scene scene;
        QProperty<qreal> source(11);
        scene.tile->bindableWidth().setBinding([&] { return source.value(); });
        scene.tile->bindableHeight().setBinding([&] { return source.value(); });
        QCOMPARE(scene.tile->size(), QSizeF(11, 11));
        StyleObject other;
        other.setStyle(otherTileStyle());
        scene.tile->setStyle(&other);
        source = 13;
        QCOMPARE(scene.tile->size(), QSizeF(143, 181));
        QVERIFY(!scene.tile->bindableWidth().hasBinding());
        QVERIFY(!scene.tile->bindableHeight().hasBinding());
    }

    void aStyleSetBeforeCompletionWinsOverBoundSizes_data()
    {
        QTest::addColumn<QString>("content");
        QTest::newRow("a binding") << "property int w: 57; width: w * 2; height: w";
        QTest::newRow("values") << "width: 31; height: 37";
        QTest::newRow("a binding before the style") << "width: 31 + x; height: 37 + y; x: 1; y: 2";
        QTest::newRow("nothing") << "";
    }
    void aStyleSetBeforeCompletionWinsOverBoundSizes()
    {
        QFETCH(QString, content);
        Scene scene;
        const auto tile = scene.qml.createItem<StbExpandableTile>(
                "import Stbui.UI.Qml.Controls.Basic\nimport Stbui.UI.Qml.Design\n"
                "ExpandableTile { style: QmlDesignSystem.expandableTileStyle; "
                + content + " }");
        QVERIFY(tile);
        const QRect rect = tile->style()->style().tileRect;
        QVERIFY(rect.isValid());
        QCOMPARE(tile->size(), QSizeF(rect.size()));
        tile->setProperty("w", 99);
        tile->setPosition(QPointF(7, 9));
        QCOMPARE(tile->size(), QSizeF(rect.size()));
    }

    void theStyleIsReadThroughItsVirtualAccessor()
    {
        Scene scene;
        DoubledStyle doubled;
        doubled.setStyle(oddTileStyle());
        scene.tile->setStyle(&doubled);
        QCOMPARE(scene.tile->size(), QSizeF(402, 226));
    }

    void aDerivedTileHearsOfAStyleBeforeTheGeometryIsUpdated()
    {
        LoggingTile tile;
        StyleObject style;
        style.setStyle(oddTileStyle());
        QSignalSpy changed(&tile, &StbExpandableTile::styleChanged);
        connect(&tile, &StbExpandableTile::styleChanged, this, [&] { tile.log() += "signal"; });
        tile.setStyle(&style);
        QCOMPARE(tile.log(), (QStringList { "signal", "style 201, width 0" }));
        tile.setStyle(&style);
        QCOMPARE(tile.log().size(), 2);
        tile.setStyle(nullptr);
        QCOMPARE(tile.log(), (QStringList { "signal", "style 201, width 0", "signal" }));
        QCOMPARE(tile.size(), QSizeF(201, 113));
    }

    void theFocusRectangleIsBindable()
    {
        Scene scene;
        QProperty<QRect> source(QRect(1, 3, 5, 7));
        QSignalSpy changed(scene.tile.get(), &StbExpandableTile::customFocusRectChanged);
        scene.tile->bindableCustomFocusRect().setBinding([&] { return source.value(); });
        QCOMPARE(scene.tile->customFocusRect(), QRect(1, 3, 5, 7));
        QCOMPARE(changed.count(), 1);
        source = QRect(9, 11, 13, 15);
        QCOMPARE(scene.tile->customFocusRect(), QRect(9, 11, 13, 15));
        QCOMPARE(changed.count(), 2);
    }

    void aBindingInQmlFollowsItsSourceUntilAValueIsWritten()
    {
        Scene scene;
        const auto tile = scene.qml.createItem<StbExpandableTile>(
                "import QtQuick\nimport Stbui.UI.Qml.Controls.Basic\n"
                "ExpandableTile { property int edge: 3; customFocusRect: Qt.rect(edge, 5, 7, 9)\n"
                "                 property int end: customFocusRect.x + customFocusRect.width }");
        QVERIFY(tile);
        QCOMPARE(tile->customFocusRect(), QRect(3, 5, 7, 9));
        tile->setProperty("edge", 11);
        QCOMPARE(tile->customFocusRect(), QRect(11, 5, 7, 9));
        QCOMPARE(tile->property("end"), 18);
        tile->setCustomFocusRect(QRect(1, 1, 1, 1));
        tile->setProperty("edge", 13);
        QCOMPARE(tile->customFocusRect(), QRect(1, 1, 1, 1));
        QCOMPARE(tile->property("end"), 2);
    }

    void readingTheFocusRectangleMakesABindingDependOnIt()
    {
        Scene scene;
        const QProperty<int> left([&] { return scene.tile->customFocusRect().left(); });
        QCOMPARE(left.value(), 0);
        scene.tile->setCustomFocusRect(QRect(17, 0, 3, 3));
        QCOMPARE(left.value(), 17);
    }

    void anEqualFocusRectangleKeepsABindingAndAnotherOneDropsIt()
    {
        Scene scene;
        QProperty<QRect> source(QRect(1, 3, 5, 7));
        scene.tile->bindableCustomFocusRect().setBinding([&] { return source.value(); });
        scene.tile->setCustomFocusRect(QRect(1, 3, 5, 7));
        QVERIFY(scene.tile->bindableCustomFocusRect().hasBinding());
        QSignalSpy changed(scene.tile.get(), &StbExpandableTile::customFocusRectChanged);
        scene.tile->setCustomFocusRect(QRect(1, 3, 5, 9));
        QVERIFY(!scene.tile->bindableCustomFocusRect().hasBinding());
        source = QRect(0, 0, 1, 1);
        QCOMPARE(scene.tile->customFocusRect(), QRect(1, 3, 5, 9));
        QCOMPARE(changed.count(), 1);
    }

    void aStyleDropsABindingOfTheFocusRectangle()
    {
        Scene scene;
        QProperty<QRect> source(QRect(1, 3, 5, 7));
        scene.tile->bindableCustomFocusRect().setBinding([&] { return source.value(); });
        StyleObject other;
        other.setStyle(otherTileStyle());
        QSignalSpy changed(scene.tile.get(), &StbExpandableTile::customFocusRectChanged);
        scene.tile->setStyle(&other);
        QVERIFY(!scene.tile->bindableCustomFocusRect().hasBinding());
        QCOMPARE(scene.tile->customFocusRect(), otherTileStyle().tileRect);
        QCOMPARE(changed.count(), 1);
    }

    void aBoundFocusRectangleIsPaintedWhereItsSourceMovesIt()
    {
        Scene scene;
        QProperty<QRect> source(QRect(1, 3, 5, 7));
        scene.tile->bindableCustomFocusRect().setBinding([&] { return source.value(); });
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[0].rect, QRectF(1, 3, 5, 7));
        source = QRect(9, 11, 13, 15);
        scene.stage.renderFrame();
        QCOMPARE(scene.children()[0].rect, QRectF(9, 11, 13, 15));
    }

    void aScaledTileIsPlacedByItsNewSize()
    {
        Scene scene;
        scene.tile->setScale(0.5); // about the centre
        scene.stage.renderFrame();
        StyleObject other;
        other.setStyle(otherTileStyle());
        scene.tile->setStyle(&other);
        scene.stage.renderFrame();
        Scene fresh;
        fresh.tile->setStyle(&other);
        fresh.tile->setScale(0.5);
        fresh.stage.renderFrame();
        QVERIFY(scene.stage.picture() == fresh.stage.picture());
    }
};

STB_TEST_MAIN(tst_StbExpandableTile)
#include "tst_stbexpandabletile.moc"
