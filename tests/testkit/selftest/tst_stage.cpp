// SPDX-License-Identifier: MIT
#include "testkit/stage.h"
#include "testkit/testcase.h"
#include "toyitem.h"

#include <QtQuick/qquickwindow.h>
#include <QtQuick/qsgrectanglenode.h>

class tst_Stage : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theFirstFramePaintsTheWholeWindow()
    {
        stbtest::Stage stage(QSize(61, 43), QColor(9, 8, 7));
        QCOMPARE(stage.picture().pixelColor(60, 42), QColor(0, 0, 0, 0));
        QCOMPARE(stage.renderFrame(), QRegion(0, 0, 61, 43));
        QCOMPARE(stage.picture().size(), QSize(61, 43));
        QCOMPARE(stage.picture().pixelColor(60, 42), QColor(9, 8, 7));
    }

    void anItemIsPaintedWhereItStands()
    {
        stbtest::Stage stage(QSize(61, 43));
        ToyItem item(ToyItem::NoMistake, stage.contentItem());
        item.setPosition(QPointF(5, 7));
        item.setSize(QSizeF(20, 11));
        stage.renderFrame();
        const QImage picture = stage.picture();
        QCOMPARE(picture.pixelColor(5, 7), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(24, 17), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(4, 7), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(25, 17), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(24, 18), QColor(Qt::white));
    }

    void idlePaintsNothing()
    {
        stbtest::Stage stage(QSize(61, 43));
        ToyItem item(ToyItem::NoMistake, stage.contentItem());
        item.setSize(QSizeF(20, 11));
        stage.renderFrame();
        QVERIFY(stage.renderFrame().isEmpty());
        item.update();
        QVERIFY(stage.renderFrame().isEmpty());
        QVERIFY(stage.paintedRegion().isEmpty());
    }

    void changingOneRectanglePaintsThatRectangle()
    {
        stbtest::Stage stage(QSize(61, 43));
        ToyItem item(ToyItem::NoMistake, stage.contentItem());
        item.setPosition(QPointF(5, 7));
        item.setSize(QSizeF(20, 11));
        ToyItem other(ToyItem::NoMistake, stage.contentItem());
        other.setPosition(QPointF(30, 20));
        other.setSize(QSizeF(13, 9));
        stage.renderFrame();
        item.setColor(Qt::blue);
        QCOMPARE(stage.renderFrame(), QRegion(5, 7, 20, 11));
        QCOMPARE(stbtest::pixelCount(stage.paintedRegion()), 220);
        QCOMPARE(stage.picture().pixelColor(6, 8), QColor(Qt::blue));
        QCOMPARE(stage.picture().pixelColor(31, 21), QColor(Qt::red));
    }

    void whatNobodyRepaintsStaysStale()
    {
        stbtest::Stage stage(QSize(61, 43));
        ToyItem item(ToyItem::NoUpdateOnColor, stage.contentItem());
        item.setSize(QSizeF(20, 11));
        stage.renderFrame();
        item.setColor(Qt::blue);
        QVERIFY(!stage.wantsFrame());
        QVERIFY(stage.renderFrame().isEmpty());
        QCOMPARE(stage.picture().pixelColor(1, 1), QColor(Qt::red));
    }

    void theWholePictureShowsTheLastFrameAndDisturbsNothing()
    {
        stbtest::Stage stage(QSize(61, 43));
        ToyItem item(ToyItem::NoMistake, stage.contentItem());
        item.setSize(QSizeF(20, 11));
        item.setPictureColor(Qt::green);
        stage.renderFrame();
        QCOMPARE(stage.renderWhole(), stage.picture());
        QVERIFY(stage.renderFrame().isEmpty());
        item.setColor(Qt::blue);
        QCOMPARE(stage.renderWhole(), stage.picture()); // not synchronised yet
        QCOMPARE(stage.renderFrame(), QRegion(0, 0, 20, 11));
        QCOMPARE(stage.renderWhole(), stage.picture());
    }

    void aNewBackgroundPaintsEverything()
    {
        stbtest::Stage stage(QSize(61, 43));
        stage.renderFrame();
        stage.setBackground(Qt::darkGreen);
        QCOMPARE(stage.renderFrame(), QRegion(0, 0, 61, 43));
        QCOMPARE(stage.picture().pixelColor(60, 42), QColor(Qt::darkGreen));
    }

    void aChangedItemWantsAFrame()
    {
        stbtest::Stage stage(QSize(61, 43));
        ToyItem item(ToyItem::NoMistake, stage.contentItem());
        item.setSize(QSizeF(20, 11));
        QVERIFY(stage.wantsFrame());
        stage.renderFrame();
        QVERIFY(!stage.wantsFrame());
        const int before = stage.frameRequests();
        item.setColor(Qt::blue);
        QVERIFY(stage.wantsFrame());
        QVERIFY(stage.frameRequests() > before);
    }

    void anItemMovesToAnotherWindowAndBack()
    {
        stbtest::Stage first(QSize(61, 43));
        stbtest::Stage second(QSize(50, 30), Qt::gray);
        ToyItem item(ToyItem::NoMistake, first.contentItem());
        item.setSize(QSizeF(20, 11));
        first.renderFrame();
        second.renderFrame();
        item.setParentItem(second.contentItem());
        QCOMPARE(first.renderFrame(), QRegion(0, 0, 20, 11));
        QCOMPARE(second.renderFrame(), QRegion(0, 0, 20, 11));
        QCOMPARE(first.picture().pixelColor(1, 1), QColor(Qt::white));
        QCOMPARE(second.picture().pixelColor(1, 1), QColor(Qt::red));
        item.setParentItem(first.contentItem());
        first.renderFrame();
        second.renderFrame();
        QCOMPARE(first.picture().pixelColor(1, 1), QColor(Qt::red));
        QCOMPARE(second.picture().pixelColor(1, 1), QColor(Qt::gray));
    }

    void theItemsNodesAreThere()
    {
        stbtest::Stage stage(QSize(61, 43));
        ToyItem item(ToyItem::NoMistake, stage.contentItem());
        QVERIFY(!stbtest::paintNode(&item));
        item.setSize(QSizeF(20, 11));
        stage.renderFrame();
        auto *root = static_cast<QSGRectangleNode *>(stbtest::paintNode(&item));
        QVERIFY(root);
        QCOMPARE(root->rect(), QRectF(0, 0, 20, 11));
        QCOMPARE(root->parent(), stbtest::itemNode(&item));
        item.setWidth(0);
        stage.renderFrame();
        QVERIFY(!stbtest::paintNode(&item));
    }
};

STB_TEST_MAIN(tst_Stage)
#include "tst_stage.moc"
