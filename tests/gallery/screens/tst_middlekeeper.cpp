// SPDX-License-Identifier: MIT
#include "gallery/screens/middlekeeper.h"
#include "testkit/qmlscene.h"
#include "testkit/stage.h"
#include "testkit/testcase.h"

#include <cmath>

using namespace gallery;

namespace {

/*! A list of 40 rows, each \a rowSize long, and a keeper of its middle. */
struct KeptList
{
    KeptList(int listSize, int rowSize, bool vertical = true)
    {
        list = scene.createItem(QStringLiteral(R"(
import QtQuick
ListView {
    id: list
    property var sizes: ({})
    property int rowSize: %1
    orientation: %3 ? ListView.Vertical : ListView.Horizontal
    width: %3 ? 100 : %2
    height: %3 ? %2 : 100
    highlightFollowsCurrentItem: false
    model: 40
    delegate: Item {
        required property int index
        readonly property int size: list.sizes[index] ?? list.rowSize
        width: list.orientation === ListView.Vertical ? 100 : size
        height: list.orientation === ListView.Vertical ? size : 100
    }
})")
                                        .arg(rowSize)
                                        .arg(listSize)
                                        .arg(vertical ? QStringLiteral("true") : QStringLiteral("false")),
                                stage.contentItem());
        if (!list)
            qFatal("no list");
        keeper.setParentItem(list.get());
        keeper.setList(list.get());
    }

    /*! Where the current row begins, in the list. */
    QPointF current() const
    {
        return list->mapFromItem(list->property("currentItem").value<QQuickItem *>(), QPointF());
    }
    void choose(int row)
    {
        list->setProperty("currentIndex", row);
        stage.renderFrame();
    }

    stbtest::QmlScene scene;
    stbtest::Stage stage { QSize(400, 300) };
    std::unique_ptr<QQuickItem> list;
    MiddleKeeper keeper;
};

} // namespace

class TestMiddleKeeper : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theChosenRowIsInTheMiddle_data()
    {
        QTest::addColumn<bool>("vertical");
        QTest::newRow("column") << true;
        QTest::newRow("row") << false;
    }
    void theChosenRowIsInTheMiddle()
    {
        QFETCH(bool, vertical);
        KeptList kept(230, 30, vertical);
        kept.choose(20);
        QCOMPARE(kept.current(), vertical ? QPointF(0, 100) : QPointF(100, 0));
    }

    void atTheEndsTheListStaysFull()
    {
        KeptList kept(230, 30);
        kept.choose(1);
        QCOMPARE(kept.current().y(), 30);
        kept.choose(39);
        QCOMPARE(kept.current().y(), 200);
    }

    void halfAPixelGoesTheSameWayWhereverTheContentBegins()
    {
        KeptList kept(231, 30); // 100.5 above and below the row
        kept.choose(20);
        const QPointF before = kept.current();
        QCOMPARE(before.y(), std::round(before.y()));
        // A view lets its content begin anew, at a negative place, when its model is another one.
        for (const int count : { 90, 55, 70 }) {
            kept.list->setProperty("model", count);
            kept.choose(35);
            QCOMPARE(kept.current(), before);
        }
    }

    void aRowThatGrowsStaysInTheMiddle()
    {
        KeptList kept(230, 30);
        kept.choose(20);
        kept.list->setProperty("sizes", QVariantMap { { "20", 90 } });
        kept.stage.renderFrame();
        QCOMPARE(kept.current().y(), 70);
    }

    void aListThatGrowsKeepsItsRowInTheMiddle()
    {
        KeptList kept(230, 30);
        kept.choose(20);
        kept.list->setHeight(130);
        kept.stage.renderFrame();
        QCOMPARE(kept.current().y(), 50);
    }

    void rowsThatAreLongerOnceSeenDoNotMoveIt()
    {
        KeptList kept(230, 30);
        QVariantMap sizes;
        for (int row = 10; row < 40; row += 3)
            sizes.insert(QString::number(row), 71);
        kept.list->setProperty("sizes", sizes);
        for (const int row : { 25, 12, 31 }) {
            kept.choose(row);
            const int size = sizes.value(QString::number(row), 30).toInt();
            QCOMPARE(kept.current().y(), std::floor((230 - size) / 2.0));
        }
    }

    void aListThatGoesIsForgotten()
    {
        KeptList kept(230, 30);
        kept.keeper.setParentItem(nullptr);
        kept.list.reset();
        QCOMPARE(kept.keeper.list(), nullptr);
        kept.keeper.setList(nullptr);
    }
};

STB_TEST_MAIN(TestMiddleKeeper)
#include "tst_middlekeeper.moc"
