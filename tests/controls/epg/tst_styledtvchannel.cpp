// SPDX-License-Identifier: MIT
#include "testkit/fakeplatform.h"
#include "testkit/pictures.h"
#include "testkit/testcase.h"
#include "tvchannelscene.h"

#include <scenegraph/nodehelpers.h>

#include <design_system/qmldesignsystem.h>

using Scene = OffscreenTvChannelScene;

namespace {

// The children of a full row.
enum Child { Logo, NumberBox, QualityBox, Name, Program, Played, Remainder, Lock, Playing, PlayingIcon };

// The height that a list gives its rows: the logo with the same room below it as above.
int rowHeight(const design_system::PlayerTvChannelItemStyle &style)
{
    return style.logoRect.height() + 2 * style.logoRect.top();
}

} // namespace

// What the default theme gives the rows of the list of channels.
class tst_StyledTvChannel : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void aFullRowHasRoomForEverythingAtEveryResolution_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<int>("rowWidth");
        QTest::newRow("hd") << "hd" << 640;
        QTest::newRow("fullhd") << "fullhd" << 960;
        QTest::newRow("sd") << "sd" << 480;
    }
    void aFullRowHasRoomForEverythingAtEveryResolution()
    {
        QFETCH(QString, resolution);
        QFETCH(int, rowWidth);
        stbtest::MemoryConfiguration store;
        store.setValue("UI", "resolution", resolution);
        Scene scene;
        scene.stage.setBackground(QColor(24, 34, 46));
        auto *design = qml_basic_plugin::designSystem(scene.row.get());
        QVERIFY(design);
        auto *style = design->property("playerTvChannelItemStyle")
                              .value<design_system::PlayerTvChannelItemQmlStyle *>();
        QVERIFY(style);
        scene.fill();
        scene.row->setStyle(style);
        const int height = rowHeight(style->style());
        scene.row->setSize(QSizeF(rowWidth, height));
        scene.row->setPosition(QPointF(0, 0));
        scene.row->setChannelNumber("1234");
        scene.row->setLive(true);
        scene.row->setLockIconVisible(true);
        QVERIFY(scene.show(logoPicture()));
        stbtest::savePicture(scene.stage.picture(), "styledtvchannel-" + resolution); // to be looked at
        const auto nodes = scene.children();
        QCOMPARE(nodes.size(), 10);
        const QRectF row(0, 0, rowWidth, height);
        for (const auto &node : nodes)
            QVERIFY(row.contains(node.rect));
        QVERIFY(nodes[Logo].rect.contains(nodes[NumberBox].rect));
        QVERIFY(nodes[Logo].rect.contains(nodes[Lock].rect));
        QVERIFY(!nodes[NumberBox].rect.intersects(nodes[Lock].rect));
        const QRectF bar = nodes[Played].rect.united(nodes[Remainder].rect);
        for (const Child text : { Name, Program, QualityBox, Playing })
            QVERIFY(nodes[text].rect.bottom() <= bar.top() - 2);
        QVERIFY(nodes[Name].rect.bottom() <= nodes[Program].rect.top());
        QVERIFY(nodes[Name].rect.right() < nodes[PlayingIcon].rect.left());
        QCOMPARE(nodes[Program].rect.left(), nodes[QualityBox].rect.left());
        QCOMPARE(bar.left(), nodes[QualityBox].rect.left());
    }
};

STB_TEST_MAIN(tst_StyledTvChannel)
#include "tst_styledtvchannel.moc"
