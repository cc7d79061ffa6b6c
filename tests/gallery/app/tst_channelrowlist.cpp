// SPDX-License-Identifier: MIT
#include "channels.h"
#include "testkit/qmlscene.h"
#include "testkit/stage.h"
#include "testkit/testcase.h"

#include "gallery/data/clock.h"
#include "screens/channelscontroller.h"
#include "screens/pictureprovider.h"

#include <design_system/playertvchannelitemstyle.h>

#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(GalleryPlugin)

namespace {

QObject *controlOf(const QQuickItem *row)
{
    const QList<QQuickItem *> children = row->childItems();
    for (QQuickItem *child : children) {
        if (child->property("channelListChannelName").isValid())
            return child;
    }
    return nullptr;
}

/*! The rows on a stage of its own, where a test sees what each frame paints. */
struct RowsOnStage
{
    explicit RowsOnStage(const gallery::Guide &guide)
    {
        clock.setFixed(guides::at(20, 5));
        controller.setGuide(guide);
        scene.engine()->addImportPath(QStringLiteral("qrc:/"));
        scene.engine()->addImageProvider(gallery::PictureProvider::name(), new gallery::PictureProvider);
        QQmlComponent component(scene.engine(), QUrl(QStringLiteral("qrc:/Gallery/ChannelRowList.qml")));
        item.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties(
                { { "controller", QVariant::fromValue(&controller) }, { "width", 700 }, { "height", 480 } })));
        if (!item)
            qFatal("%s", qPrintable(component.errorString()));
        item->setParentItem(stage.contentItem());
        for (int i = 0; i < 3; ++i)
            stage.renderFrame();
    }

    QList<QQuickItem *> rows() const
    {
        QList<QQuickItem *> found;
        const QList<QQuickItem *> children = item->property("contentItem").value<QQuickItem *>()->childItems();
        for (QQuickItem *child : children) {
            if (child->objectName() == "channelRow")
                found.append(child);
        }
        return found;
    }

    gallery::Clock clock;
    gallery::ChannelsController controller { &clock };
    stbtest::Stage stage { QSize(700, 480), QColor(11, 17, 24) };
    stbtest::QmlScene scene;
    std::unique_ptr<QQuickItem> item;
};

} // namespace

/*! What the rows of the screen of channels paint. */
class tst_ChannelRowList : public stbtest::TestCase
{
    Q_OBJECT

    /*! The bars of the rows whose channels \a counts says. */
    template <typename Counts>
    static QRegion bars(const RowsOnStage &stage, const Counts &counts)
    {
        QRegion found;
        const QList<QQuickItem *> rows = stage.rows();
        for (const QQuickItem *row : rows) {
            if (!counts(row->property("channel").toInt()))
                continue;
            const auto style = controlOf(row)->property("style").value<QObject *>()->property("style");
            const auto values = style.value<design_system::PlayerTvChannelItemStyle>();
            const int left = values.progressBarRect.left();
            const int height = values.progressBarRect.height();
            const QPoint corner = row->mapToScene(QPointF(0, 0)).toPoint();
            found += QRect(corner + QPoint(left, int(row->height()) - values.bottomMargin - height),
                           QSize(700 - left - values.rightMargin, height));
        }
        return found;
    }

private Q_SLOTS:
    void aMinutePaintsBarsOnly()
    {
        RowsOnStage rows(channels::many(9));
        QCOMPARE(rows.stage.renderFrame(), QRegion());
        QVERIFY(rows.rows().size() == 5 || rows.rows().size() == 6); // the next one touches the edge
        rows.clock.setFixed(guides::at(20, 6));
        const QRegion painted = rows.stage.renderFrame();
        QVERIFY(stbtest::pixelCount(painted) > 0);
        QCOMPARE(painted.subtracted(bars(rows, [](int) { return true; })), QRegion());
        QCOMPARE(rows.stage.picture(), rows.stage.renderWhole());
    }

    void aMinutePaintsNothingOfChannelsWithNothingOn()
    {
        QList<channels::Spec> specs;
        for (int i = 0; i < 9; ++i)
            specs.append({ "c" + QString::number(i), {}, {}, {}, false, {}, i == 2 ? 60 : 0 });
        RowsOnStage rows(channels::guide(specs));
        rows.clock.setFixed(guides::at(20, 6));
        const QRegion painted = rows.stage.renderFrame();
        QVERIFY(stbtest::pixelCount(painted) > 0);
        QCOMPARE(painted.subtracted(bars(rows, [](int channel) { return channel == 2; })), QRegion());
    }

    void aSecondThatMovesNoBarPaintsNothing()
    {
        RowsOnStage rows(channels::many(9));
        rows.clock.setFixed(guides::at(20, 5).addSecs(1));
        QCOMPARE(rows.stage.renderFrame(), QRegion());
    }

    void aMoveOfTheFocusPaintsTwoRowsOnly()
    {
        RowsOnStage rows(channels::many(9));
        QRegion both;
        for (const QQuickItem *row : rows.rows()) {
            if (row->property("channel").toInt() < 2)
                both += row->mapRectToScene(QRectF(0, 0, row->width(), row->height())).toRect();
        }
        rows.controller.press(Qt::Key_Down);
        const QRegion painted = rows.stage.renderFrame();
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted.subtracted(both), QRegion());
    }
};

STB_TEST_MAIN(tst_ChannelRowList)
#include "tst_channelrowlist.moc"
